// A scroll bar, lying or standing.
#pragma once

#include "face/qt/ControlView.hpp"
#include "surface/ScrollBar.hpp"

#include <QScrollBar>

namespace Tessoro {

// The toolkit's bars can't run downward, so this one counts its steps from the left or the top, and
// the value at that end is Min.
class ScrollBarView : public QScrollBar, public ControlView {
public:
  ScrollBarView(Tessoro::ScrollBar &shown, const Surroundings &around, QWidget *parent);

  QWidget &Widget() override { return *this; }
  void LetGo() override;

  // The value that the user has brought the thumb to; a step beyond a limit ends there.
  void ScrollTo(int value);
  const Tessoro::ScrollBar &Shown() const { return bar; }

protected:
  void ShowContent() override;

  void keyPressEvent(QKeyEvent *event) override;
  void wheelEvent(QWheelEvent *event) override;

private:
  void Moved(int steps);

  Tessoro::ScrollBar &bar;
  int wheelTurn = 0;
};

} // namespace Tessoro
