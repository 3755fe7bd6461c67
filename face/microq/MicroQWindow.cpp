#include "face/microq/MicroQWindow.hpp"

#include "face/microq/MicroQList.hpp"
#include "face/microq/MicroQLook.hpp"
#include "face/microq/ScreenPace.hpp"
#include "face/qt/Look.hpp"
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

namespace Tessoro {

namespace {

constexpr int Margin = 10;
constexpr int Gap = 6;

QLabel *MakeHeading(const QString &text) {
  auto *heading = new QLabel(text);
  heading->setFont(Look::Font(TextSize::Heading, {}, QFont::DemiBold));
  return heading;
}

int WidthOf(const QWidget &widget, const QString &text) {
  constexpr int roomAround = 22;
  return widget.fontMetrics().horizontalAdvance(text) + roomAround;
}

} // namespace

MicroQWindow::MicroQWindow(const BuiltinMicroQ &microQ, MessageInbox &messageInbox,
                           const QString &title)
    : source(microQ), inbox(messageInbox), filter(buffer) {
  setWindowTitle(title);
  setAttribute(Qt::WA_ShowWithoutActivating); // the editor keeps the keyboard
  setFont(Look::Font(TextSize::Menu, {}));

  auto *panes = new QSplitter;
  panes->addWidget(MakeMessagePane());
  panes->addWidget(MakeBufferPane());
  panes->setSizes({590, 480});
  panes->setChildrenCollapsible(false);
  panes->setHandleWidth(Margin);
  statusLine = new QLabel;
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(Margin, Margin, Margin, Gap);
  column->setSpacing(Gap);
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
  resize(1080, 560);
}

MicroQWindow::~MicroQWindow() { inbox.SetBell({}); }

QWidget *MicroQWindow::MakeMessagePane() {
  auto *pane = new QWidget;
  auto *column = new QVBoxLayout(pane);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(Gap);
  auto *row = new QHBoxLayout;
  row->setSpacing(Gap);
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
  messageList->MakeColumnFit(MessageModel::Time, QStringLiteral("00000.000"));
  messageList->MakeColumnFit(MessageModel::Bytes, QStringLiteral("F0 3E 10 00 20 00 00 4E 40 F7"),
                             MicroQLook::BytesFont());
  column->addWidget(messageList, 1);
  return pane;
}

QWidget *MicroQWindow::MakeBufferPane() {
  auto *pane = new QWidget;
  auto *column = new QVBoxLayout(pane);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(Gap);
  auto *row = new QHBoxLayout;
  row->setSpacing(Gap);
  row->addWidget(MakeHeading(tr("Edit buffer")), 1);
  auto *search = new QLineEdit;
  search->setPlaceholderText(tr("Search name or number"));
  search->setAccessibleName(tr("Search in the edit buffer"));
  search->setFixedHeight(search->fontMetrics().height() + Margin);
  search->setMinimumWidth(WidthOf(*search, search->placeholderText()));
  search->setFrame(false);
  connect(search, &QLineEdit::textChanged, &filter, &BufferFilter::Search);
  row->addWidget(search);
  column->addLayout(row);

  auto *list = new MicroQList(filter, tr("Edit buffer"));
  list->MakeColumnFit(BufferModel::Number, QStringLiteral("CC 68"));
  list->MakeColumnFit(BufferModel::Name, QStringLiteral("Filter 1 cutoff modulation amount"));
  list->MakeColumnFit(BufferModel::Value, QStringLiteral("0000"));
  column->addWidget(list, 1);
  return pane;
}

QPushButton *MicroQWindow::MakeButton(const QString &text, const QString &toolTip, QLayout &row) {
  auto *button = new QPushButton(text);
  button->setToolTip(toolTip);
  button->setFixedSize(WidthOf(*button, tr("Resume")) + Margin,
                       button->fontMetrics().height() + Margin);
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
