// How both lists of the microQ window look: navy, in columns, without branches.
#pragma once

#include "face/qt/Scale.hpp"

#include <QTreeView>

namespace Tessoro {

class MicroQList : public QTreeView {
public:
  // The model outlives the list.
  MicroQList(QAbstractItemModel &model, const QString &accessibleName);

  // The columns stay as they are, and fit anew each by itself.
  void SetScale(const Scale &newScale);
  // So that a column shows such a text whole.
  void MakeColumnFit(int column, const QString &text);
  void MakeColumnFit(int column, const QString &text, const QFont &fontOfColumn);

private:
  Scale scale;
};

} // namespace Tessoro
