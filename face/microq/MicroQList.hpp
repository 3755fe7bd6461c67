// How both lists of the microQ window look: navy, in columns, without branches.
#pragma once

#include <QTreeView>

namespace Tessoro {

class MicroQList : public QTreeView {
public:
  // The model outlives the list.
  MicroQList(QAbstractItemModel &model, const QString &accessibleName);

  // So that a column shows such a text whole.
  void MakeColumnFit(int column, const QString &text);
  void MakeColumnFit(int column, const QString &text, const QFont &fontOfColumn);
};

} // namespace Tessoro
