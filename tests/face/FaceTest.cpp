#include "tests/face/FaceTest.hpp"

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace Tessoro::Tests {

FaceTest::FaceTest(bool keyPreview) : bench(app, keyPreview) {
  files.contents["/editor/Tessoro.ini"] =
      "\"Tessoro v1.3.1\"\r\n\"\",\"\"\r\n3,3\r\n0,0\r\n0,0\r\n\"?\"\r\n\"No\"\r\n";
  files.folders = {
      {"/", {"home"}}, {"/home", {"sounds", "work"}}, {"/home/sounds", {}}, {"/home/work", {}}};
  files.contents["/home/bass.tss"] = "";
  files.contents["/home/lead.tss"] = "";
  files.workingDirectory = "/home";
}

void FaceTest::SetUp() {
  app.Start();
  bench.Show();
  FormWindow &window = WindowOf(bench);
  for (const Form *form : std::initializer_list<Form *>{&app.F_Tessoro, &bench})
    WindowOf(*form).SetZoom(1); // whatever fits this small screen
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  Heard();
  midi.messages.clear();
}

// A run of the event loop deletes the windows that have gone, before their forms go, and forgets
// that an editor that has ended told the loop to end too.
void FaceTest::TearDown() {
  QTimer::singleShot(0, qApp, &QCoreApplication::quit);
  QCoreApplication::exec();
}

std::vector<std::string> FaceTest::Heard() {
  std::vector<std::string> heard = std::exchange(bench.heard, {});
  std::erase_if(
      heard, [](const std::string &event) { return event.find("MouseMove") != std::string::npos; });
  return heard;
}

Ground &FaceTest::GroundOf(const Form &form) const {
  const QObjectList parts = WindowOf(form).children();
  const auto found = std::ranges::find_if(
      parts, [](QObject *part) { return dynamic_cast<Ground *>(part) != nullptr; });
  return dynamic_cast<Ground &>(**found);
}

const DrawnControl *FaceTest::DrawnFor(const Control &control) const {
  const DrawnControl *drawn = GroundOf(control.Owner()).DrawnFor(control);
  return drawn != nullptr && drawn->StandsForItself() ? drawn : nullptr;
}

void FaceTest::Focus(const Control &control) const {
  WidgetOf(control).setFocus(Qt::TabFocusReason);
}

void WithNextBox(std::function<void(QMessageBox &)> act) {
  constexpr int retryMilliseconds = 5;
  QTimer::singleShot(retryMilliseconds, qApp, [act = std::move(act)] {
    if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
      act(*box);
    else
      WithNextBox(act);
  });
}

void LetPass(int milliseconds) {
  QTest::qWait(milliseconds);
  QCoreApplication::processEvents();
}

} // namespace Tessoro::Tests
