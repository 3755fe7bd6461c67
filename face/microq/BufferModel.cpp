#include "face/microq/BufferModel.hpp"

#include "face/microq/MicroQLook.hpp"
#include "service/builtin/MessageText.hpp"
#include "sound/Catalogue.hpp"

#include <algorithm>

namespace Tessoro {

namespace {

constexpr int MissingNumber = 256; // no parameter has this number

// Filter 1's type has a controller and no number; on the panel it stands before the cutoff.
constexpr int CutoffOfFilter1 = 78;

QVariant AlignmentOf(int column) {
  const bool holdsNumbers = column == BufferModel::Number || column == BufferModel::Value;
  return QVariant::fromValue<Qt::Alignment>((holdsNumbers ? Qt::AlignRight : Qt::AlignLeft) |
                                            Qt::AlignVCenter);
}

} // namespace

BufferModel::BufferModel(QObject *parent) : QAbstractTableModel(parent) {
  for (int number = 1; number <= static_cast<int>(MicroQState::HighestParameter); ++number) {
    if (number == MissingNumber)
      continue;
    if (number == CutoffOfFilter1)
      for (const ControllerRow &each : Controllers())
        if (each.number == 0)
          rows.push_back({.controller = each.controller, .name = std::string(each.name)});
    rows.push_back({.number = number,
                    .name = ParameterName(number),
                    .isKnown = FindParameter(number) != nullptr});
  }
}

int BufferModel::ValueOf(const Row &row, const MicroQState &state) {
  if (row.number != 0)
    return state.parameters.at(static_cast<std::size_t>(row.number));
  int value = -1;
  for (const auto &channel : state.controllers)
    value = std::max<int>(value, channel.at(static_cast<std::size_t>(row.controller)));
  return value;
}

void BufferModel::Take(const MicroQState &state, Time now) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    Row &row = rows[i];
    const int value = ValueOf(row, state);
    if (value == row.value)
      continue;
    row.value = value;
    row.isMarked = true;
    row.markedUntil = now + MarkTime;
    RowChanged(i);
  }
}

void BufferModel::Fade(Time now) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    Row &row = rows[i];
    if (row.isMarked && now >= row.markedUntil) {
      row.isMarked = false;
      RowChanged(i);
    }
  }
}

void BufferModel::RowChanged(std::size_t row) {
  const int place = static_cast<int>(row);
  emit dataChanged(index(place, 0), index(place, ColumnCount - 1));
}

bool BufferModel::IsMarked(int row) const {
  return rows.at(static_cast<std::size_t>(row)).isMarked;
}

bool BufferModel::HasMarks() const {
  return std::any_of(rows.begin(), rows.end(), [](const Row &row) { return row.isMarked; });
}

bool BufferModel::IsWorthShowing(int row) const {
  const Row &asked = rows.at(static_cast<std::size_t>(row));
  return asked.isKnown || asked.value >= 0;
}

int BufferModel::rowCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows.size());
}

int BufferModel::columnCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : ColumnCount;
}

QString BufferModel::ShownText(const Row &row) const {
  if (row.value < 0)
    return QStringLiteral("?");
  Display display = Display::Wire;
  if (row.controller != 0)
    display = FindController(row.controller)->display;
  else if (row.isKnown)
    display = FindParameter(row.number)->display;
  return QString::fromStdString(DisplayText(display, row.value));
}

QVariant BufferModel::data(const QModelIndex &index, int role) const {
  const Row &row = rows.at(static_cast<std::size_t>(index.row()));
  if (role == Qt::TextAlignmentRole)
    return AlignmentOf(index.column());
  if (role == Qt::ForegroundRole && !row.isKnown)
    return MicroQLook::Unknown();
  if (role == Qt::BackgroundRole && row.isMarked)
    return MicroQLook::Mark();
  if (role != Qt::DisplayRole)
    return {};
  switch (index.column()) {
  case Number:
    return row.number != 0 ? QString::number(row.number)
                           : QStringLiteral("CC %1").arg(row.controller);
  case Name:
    return QString::fromStdString(row.name);
  case Value:
    return row.value < 0 ? QString() : QString::number(row.value);
  default:
    return ShownText(row);
  }
}

QVariant BufferModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole)
    return AlignmentOf(section);
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
    return {};
  switch (section) {
  case Number:
    return tr("No.");
  case Name:
    return tr("Parameter");
  case Value:
    return tr("Byte");
  default:
    return tr("Value");
  }
}

BufferFilter::BufferFilter(BufferModel &model, QObject *parent)
    : QSortFilterProxyModel(parent), buffer(model) {
  setSourceModel(&model);
}

void BufferFilter::Search(const QString &text) {
  words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  invalidateFilter();
}

bool BufferFilter::filterAcceptsRow(int row, const QModelIndex & /*parent*/) const {
  if (!buffer.IsWorthShowing(row))
    return false;
  const QStringList numbers =
      buffer.index(row, BufferModel::Number).data().toString().split(QLatin1Char(' '));
  const QString name = buffer.index(row, BufferModel::Name).data().toString();
  return std::all_of(words.begin(), words.end(), [&](const QString &word) {
    return name.contains(word, Qt::CaseInsensitive) || numbers.contains(word, Qt::CaseInsensitive);
  });
}

} // namespace Tessoro
