// The window of a microQ that isn't there: what it was sent, and what its edit buffer holds.
#pragma once

#include "face/microq/BufferModel.hpp"
#include "face/microq/MessageModel.hpp"
#include "service/builtin/MessageInbox.hpp"

#include <QWidget>

#include <vector>

class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QSplitter;
class QTimer;

namespace Tessoro {

class MicroQList;

// Looks at the microQ at the pace of its screen while it is visible and something happens, and at
// no other time; the inbox takes what comes meanwhile, and rings.
class MicroQWindow : public QWidget {
  Q_OBJECT

public:
  // Both outlive the window.
  MicroQWindow(const BuiltinMicroQ &microQ, MessageInbox &inbox, const QString &title);
  ~MicroQWindow() override;
  MicroQWindow(const MicroQWindow &) = delete;
  MicroQWindow &operator=(const MicroQWindow &) = delete;

  // Before it is shown: as large as fits the screen well, or so that it has room beside the windows
  // that are there. The latter makes it smaller, though its letters not smaller than usual.
  void OpenAlone();
  void OpenBesideOthers();
  // Of letters and all else. The keys that zoom a form zoom this too.
  double Zoom() const { return zoom; }
  void SetZoom(double newZoom);

  // In words, at the bottom of the window: "Open", or where messages come from.
  void ShowStatus(const QString &text);

  // Shows what has come. The window's own timer calls it. However much that is, the work is no more
  // than that of all lines of the list.
  void Refresh();
  // Whether it is looking, at its own pace; else it waits to be rung.
  bool IsLooking() const;

  void Pause(bool pauses);
  void Clear();
  // The selected lines, or all if none is selected, as text on the clipboard.
  void Copy();

  const MessageModel &Messages() const { return messages; }
  const BufferModel &Buffer() const { return buffer; }

protected:
  void showEvent(QShowEvent *event) override;
  void hideEvent(QHideEvent *event) override;

private:
  void TakeUsualSize();
  void ZoomByKey(int direction);
  void LayOut();
  QLabel *MakeHeading(const QString &text);
  QWidget *MakeMessagePane();
  QWidget *MakeBufferPane();
  QPushButton *MakeButton(const QString &text, const QString &toolTip, QLayout &row);
  void StartLooking();
  void LookOnOrRest();
  void TakeMessages();
  void ShowCounts();

  const BuiltinMicroQ &source;
  MessageInbox &inbox;
  MessageModel messages;
  BufferModel buffer;
  BufferFilter filter;
  bool isPaused = false;
  std::uint64_t seenTotal = 0;
  QString status;

  double zoom = 1;
  double openingZoom = 1;
  QSplitter *panes = nullptr;
  std::vector<QLabel *> headings;
  std::vector<QPushButton *> buttons;
  QLineEdit *search = nullptr;
  MicroQList *bufferList = nullptr;
  MicroQList *messageList = nullptr;
  QPushButton *pauseButton = nullptr;
  QLabel *statusLine = nullptr;
  QTimer *refreshTimer = nullptr;
};

} // namespace Tessoro
