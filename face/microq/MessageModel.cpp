#include "face/microq/MessageModel.hpp"

#include "face/microq/MicroQLook.hpp"
#include "service/builtin/MessageText.hpp"

#include <algorithm>

namespace Tessoro {

void MessageModel::Append(const std::vector<LoggedMessage> &messages) {
  const std::size_t kept = std::min(messages.size(), MostLines);
  if (kept == 0)
    return;
  if (lines.size() + kept > MostLines)
    RemoveFromTop(lines.size() + kept - MostLines);
  const int first = rowCount();
  beginInsertRows({}, first, first + static_cast<int>(kept) - 1);
  lines.insert(lines.end(), messages.end() - static_cast<std::ptrdiff_t>(kept), messages.end());
  endInsertRows();
}

void MessageModel::RemoveFromTop(std::size_t count) {
  beginRemoveRows({}, 0, static_cast<int>(count) - 1);
  lines.erase(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(count));
  endRemoveRows();
}

void MessageModel::Clear() {
  beginResetModel();
  lines.clear();
  endResetModel();
}

int MessageModel::rowCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : static_cast<int>(lines.size());
}

int MessageModel::columnCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : ColumnCount;
}

QVariant MessageModel::data(const QModelIndex &index, int role) const {
  const LoggedMessage &message = At(index.row());
  if (role == Qt::TextAlignmentRole && index.column() == Time)
    return QVariant::fromValue<Qt::Alignment>(Qt::AlignRight | Qt::AlignVCenter);
  if (role == Qt::FontRole && index.column() == Bytes)
    return bytesFont;
  if (role == Qt::ForegroundRole && message.meaning.kind == MicroQMessageKind::Malformed)
    return MicroQLook::Fault();
  if (role == Qt::ForegroundRole && IsUnknown(message))
    return MicroQLook::Unknown();
  if (role != Qt::DisplayRole)
    return {};
  switch (index.column()) {
  case Time:
    return QString::fromStdString(TimeText(message.time));
  case Bytes:
    return QString::fromStdString(BytesText(message));
  default:
    return QString::fromStdString(MeaningText(message));
  }
}

QVariant MessageModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole && section == Time)
    return QVariant::fromValue<Qt::Alignment>(Qt::AlignRight | Qt::AlignVCenter);
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
    return {};
  switch (section) {
  case Time:
    return tr("Seconds");
  case Bytes:
    return tr("Bytes");
  default:
    return tr("Meaning");
  }
}

} // namespace Tessoro
