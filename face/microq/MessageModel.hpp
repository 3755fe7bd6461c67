// The messages that a microQ got, as the rows of a list, the newest at the bottom.
#pragma once

#include "service/builtin/MessageInbox.hpp"

#include <QAbstractTableModel>
#include <QFont>

#include <deque>
#include <vector>

namespace Tessoro {

class MessageModel : public QAbstractTableModel {
  Q_OBJECT

public:
  static constexpr std::size_t MostLines = 10000;
  enum Column { Time, Bytes, Meaning, ColumnCount };

  using QAbstractTableModel::QAbstractTableModel;

  // Whatever came since the last time, in one go. Lines beyond the limit go at the top.
  void Append(const std::vector<LoggedMessage> &messages);
  void Clear();

  // Of the bytes; shown when the list is laid out anew.
  void SetBytesFont(const QFont &font) { bytesFont = font; }

  const LoggedMessage &At(int row) const { return lines.at(static_cast<std::size_t>(row)); }

  int rowCount(const QModelIndex &parent = {}) const override;
  int columnCount(const QModelIndex &parent = {}) const override;
  QVariant data(const QModelIndex &index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
  void RemoveFromTop(std::size_t count);

  std::deque<LoggedMessage> lines;
  QFont bytesFont;
};

} // namespace Tessoro
