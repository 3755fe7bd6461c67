// The edit buffer of a microQ, one row for each parameter.
#pragma once

#include "service/builtin/BuiltinMicroQ.hpp"

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>

#include <chrono>
#include <string>
#include <vector>

namespace Tessoro {

class BufferModel : public QAbstractTableModel {
  Q_OBJECT

public:
  using Time = std::chrono::steady_clock::time_point;
  enum Column { Number, Name, Value, Shown, ColumnCount };

  // How long a changed value is marked.
  static constexpr std::chrono::milliseconds MarkTime{1500};

  explicit BufferModel(QObject *parent = nullptr);

  // Rows that changed are marked from now on.
  void Take(const MicroQState &state, Time now);
  // Takes away the marks whose time is over.
  void Fade(Time now);

  bool IsMarked(int row) const;
  bool HasMarks() const;
  // Whether the editor knows the parameter, or somebody has set it all the same.
  bool IsWorthShowing(int row) const;

  int rowCount(const QModelIndex &parent = {}) const override;
  int columnCount(const QModelIndex &parent = {}) const override;
  QVariant data(const QModelIndex &index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
  struct Row {
    int number = 0;     // 0 for what only a controller changes
    int controller = 0; // 0 for what has a number
    std::string name;
    bool isKnown = true;
    int value = -1; // nobody told it yet
    Time markedUntil{};
    bool isMarked = false;
  };

  static int ValueOf(const Row &row, const MicroQState &state);
  QString ShownText(const Row &row) const;
  void RowChanged(std::size_t row);

  std::vector<Row> rows;
};

// Those rows that hold all words of the search field: a number whole, a piece of a name.
class BufferFilter : public QSortFilterProxyModel {
  Q_OBJECT

public:
  explicit BufferFilter(BufferModel &model, QObject *parent = nullptr);

  void Search(const QString &text);

protected:
  bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
  BufferModel &buffer;
  QStringList words;
};

} // namespace Tessoro
