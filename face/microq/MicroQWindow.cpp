#include "face/microq/MicroQWindow.hpp"

#include "face/microq/MicroQList.hpp"
#include "face/microq/MicroQLook.hpp"
#include "face/microq/ScreenPace.hpp"
#include "face/qt/Desk.hpp"
#include "face/qt/Look.hpp"
#include "face/qt/ZoomKeys.hpp"
#include "service/builtin/MessageText.hpp"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace Tessoro {

namespace {

// In pixels at a zoom of 1.
constexpr QSize UsualSize(1080, 560);
// Below it, the columns of its lists would be cut too much.
constexpr QSize LeastSize(740, 350);
// Larger letters aren't worth cutting any of them.
constexpr QSize LeastSizeWhenZoomed(900, 350);
constexpr double Margin = 10;
constexpr double Gap = 6;
constexpr double RoomAround = 22; // texts of buttons

} // namespace

MicroQWindow::MicroQWindow(const BuiltinMicroQ &microQ, MessageInbox &messageInbox,
                           const QString &title)
    : source(microQ), inbox(messageInbox), filter(buffer) {
  setWindowTitle(title);
  setAttribute(Qt::WA_ShowWithoutActivating); // the editor keeps the keyboard

  panes = new QSplitter;
  panes->addWidget(MakeMessagePane());
  panes->addWidget(MakeBufferPane());
  panes->setSizes({590, 480});
  panes->setChildrenCollapsible(false);
  statusLine = new QLabel;
  auto *column = new QVBoxLayout(this);
  column->addWidget(panes, 1);
  column->addWidget(statusLine);

  refreshTimer = new QTimer(this);
  refreshTimer->setTimerType(Qt::PreciseTimer);
  connect(refreshTimer, &QTimer::timeout, this, &MicroQWindow::Refresh);
  connect(new QShortcut(QKeySequence::Copy, this), &QShortcut::activated, this,
          &MicroQWindow::Copy);
  inbox.SetBell([this] {
    QMetaObject::invokeMethod(this, &MicroQWindow::StartLooking, Qt::QueuedConnection);
  });
  ListenToZoomKeys(*this, [this](int direction) { ZoomByKey(direction); });
  SetZoom(1);
  resize(UsualSize);
}

MicroQWindow::~MicroQWindow() { inbox.SetBell({}); }

// On a small screen, shorter lists are better than smaller letters.
void MicroQWindow::OpenAlone() {
  const QSize room = Desk::RoomFor(*this);
  openingZoom = std::max(Desk::OpeningZoom(UsualSize, room),
                         std::min(1.0, Desk::OpeningZoom(LeastSize, room)));
  SetZoom(openingZoom);
  TakeUsualSize();
}

void MicroQWindow::TakeUsualSize() { resize((UsualSize * zoom).boundedTo(Desk::RoomFor(*this))); }

// Letters that are larger than usual aren't worth covering a form.
void MicroQWindow::OpenBesideOthers() {
  OpenAlone();
  const auto standsBeside = [this] {
    TakeUsualSize();
    return Desk::StandBesideOthers(*this, (zoom > 1 ? LeastSizeWhenZoomed : LeastSize) * zoom);
  };
  while (!standsBeside() && Desk::NextZoom(zoom, -1) >= 1)
    SetZoom(Desk::NextZoom(zoom, -1));
  openingZoom = zoom;
}

void MicroQWindow::ZoomByKey(int direction) {
  const QSize room = Desk::RoomFor(*this);
  const double newZoom = direction == 0 ? openingZoom : Desk::NextZoom(zoom, direction);
  SetZoom(std::min(newZoom, Desk::LargestZoom(LeastSize, room)));
  if (isMaximized() || isFullScreen())
    return;
  resize(size().boundedTo(room));
  Desk::PullOntoScreen(*this);
}

// The window keeps what the user has made of its proportion.
void MicroQWindow::SetZoom(double newZoom) {
  const double growth = newZoom / zoom;
  zoom = newZoom;
  LayOut();
  layout()->activate(); // else what it needed before would bound it still
  if (!isMaximized() && !isFullScreen())
    resize(size() * growth);
}

void MicroQWindow::LayOut() {
  const Scale scale{.zoom = zoom};
  const int margin = qRound(Margin * zoom);
  const int gap = qRound(Gap * zoom);
  setFont(Look::Font(TextSize::Menu, scale));
  for (QLabel *heading : headings)
    heading->setFont(Look::Font(TextSize::Heading, scale, QFont::DemiBold));
  for (QLayout *row : findChildren<QLayout *>())
    row->setSpacing(gap);
  layout()->setContentsMargins(margin, margin, margin, gap);
  panes->setHandleWidth(margin);
  const QFontMetrics letters(font());
  const int height = letters.height() + margin;
  const auto widthOf = [&](const QString &text) {
    return letters.horizontalAdvance(text) + qRound(RoomAround * zoom);
  };
  for (QPushButton *button : buttons)
    button->setFixedSize(widthOf(tr("Resume")) + margin, height);
  search->setFixedHeight(height);
  search->setMinimumWidth(widthOf(search->placeholderText()));

  const QFont bytes = MicroQLook::BytesFont(scale);
  messages.SetBytesFont(bytes);
  messageList->SetScale(scale);
  messageList->MakeColumnFit(MessageModel::Time, QStringLiteral("00000.000"));
  messageList->MakeColumnFit(MessageModel::Bytes, QStringLiteral("F0 3E 10 00 20 00 00 4E 40 F7"),
                             bytes);
  bufferList->SetScale(scale);
  bufferList->MakeColumnFit(BufferModel::Number, QStringLiteral("CC 68"));
  bufferList->MakeColumnFit(BufferModel::Name, QStringLiteral("Filter 1 cutoff modulation amount"));
  bufferList->MakeColumnFit(BufferModel::Value, QStringLiteral("0000"));
}

QLabel *MicroQWindow::MakeHeading(const QString &text) {
  auto *heading = new QLabel(text);
  headings.push_back(heading);
  return heading;
}

QWidget *MicroQWindow::MakeMessagePane() {
  auto *pane = new QWidget;
  auto *column = new QVBoxLayout(pane);
  column->setContentsMargins(0, 0, 0, 0);
  auto *row = new QHBoxLayout;
  row->addWidget(MakeHeading(tr("Messages")), 1);
  pauseButton = MakeButton(tr("&Pause"), tr("Stops the list; messages that come are kept"), *row);
  connect(pauseButton, &QPushButton::clicked, this, [this] { Pause(!isPaused); });
  connect(MakeButton(tr("C&lear"), tr("Empties the list; the edit buffer stays"), *row),
          &QPushButton::clicked, this, &MicroQWindow::Clear);
  connect(MakeButton(tr("&Copy"), tr("Copies the selected lines, or all if none is"), *row),
          &QPushButton::clicked, this, &MicroQWindow::Copy);
  column->addLayout(row);

  messageList = new MicroQList(messages, tr("Messages"));
  messageList->setSelectionMode(QAbstractItemView::ExtendedSelection);
  column->addWidget(messageList, 1);
  return pane;
}

QWidget *MicroQWindow::MakeBufferPane() {
  auto *pane = new QWidget;
  auto *column = new QVBoxLayout(pane);
  column->setContentsMargins(0, 0, 0, 0);
  auto *row = new QHBoxLayout;
  row->addWidget(MakeHeading(tr("Edit buffer")), 1);
  search = new QLineEdit;
  search->setPlaceholderText(tr("Search name or number"));
  search->setAccessibleName(tr("Search in the edit buffer"));
  search->setFrame(false);
  connect(search, &QLineEdit::textChanged, &filter, &BufferFilter::Search);
  row->addWidget(search);
  column->addLayout(row);

  bufferList = new MicroQList(filter, tr("Edit buffer"));
  column->addWidget(bufferList, 1);
  return pane;
}

QPushButton *MicroQWindow::MakeButton(const QString &text, const QString &toolTip, QLayout &row) {
  auto *button = new QPushButton(text);
  button->setToolTip(toolTip);
  buttons.push_back(button);
  row.addWidget(button);
  return button;
}

void MicroQWindow::ShowStatus(const QString &text) {
  status = text;
  ShowCounts();
}

void MicroQWindow::Refresh() {
  const auto now = std::chrono::steady_clock::now();
  buffer.Fade(now);
  if (const std::uint64_t total = inbox.Total(); total != seenTotal) {
    seenTotal = total;
    buffer.Take(source.State(), now);
    if (!isPaused)
      TakeMessages();
    ShowCounts();
  }
  LookOnOrRest();
}

bool MicroQWindow::IsLooking() const { return refreshTimer->isActive(); }

// Asked each time, as the window may have gone to another screen, or its screen changed its pace.
void MicroQWindow::StartLooking() {
  const std::chrono::milliseconds pace = ScreenPace::Interval(screen()->refreshRate());
  if (isVisible() && (!IsLooking() || refreshTimer->intervalAsDuration() != pace))
    refreshTimer->start(pace);
}

void MicroQWindow::LookOnOrRest() {
  if (!buffer.HasMarks() && inbox.RingAtNext(seenTotal))
    refreshTimer->stop();
  else
    StartLooking();
}

void MicroQWindow::TakeMessages() {
  const QScrollBar &bar = *messageList->verticalScrollBar();
  const bool wasAtBottom = bar.value() == bar.maximum();
  messages.Append(inbox.Take().messages);
  if (wasAtBottom)
    messageList->scrollToBottom();
}

void MicroQWindow::ShowCounts() {
  QStringList parts{status, tr("%L1 messages").arg(seenTotal)};
  if (isPaused)
    parts << tr("paused");
  statusLine->setText(parts.join(QStringLiteral("   ·   ")));
}

void MicroQWindow::Pause(bool pauses) {
  isPaused = pauses;
  pauseButton->setText(isPaused ? tr("&Resume") : tr("&Pause"));
  if (!isPaused)
    TakeMessages();
  ShowCounts();
}

void MicroQWindow::Clear() {
  inbox.Take(); // also what a pause has held back
  messages.Clear();
}

void MicroQWindow::Copy() {
  QModelIndexList chosen = messageList->selectionModel()->selectedRows();
  std::sort(chosen.begin(), chosen.end());
  QString text;
  const auto add = [&](int row) {
    text += QString::fromStdString(MessageLine(messages.At(row))) + QLatin1Char('\n');
  };
  for (const QModelIndex &index : chosen)
    add(index.row());
  if (chosen.isEmpty())
    for (int row = 0; row < messages.rowCount(); ++row)
      add(row);
  QApplication::clipboard()->setText(text);
}

void MicroQWindow::showEvent(QShowEvent *event) {
  QWidget::showEvent(event);
  Refresh();
}

void MicroQWindow::hideEvent(QHideEvent *event) {
  refreshTimer->stop();
  QWidget::hideEvent(event);
}

} // namespace Tessoro
