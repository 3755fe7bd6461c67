// Draws every form of the editor and the window of the built-in microQ into picture files, without
// a display.
#include "face/qt/FormWindow.hpp"
#include "face/qt/MidiOfBuild.hpp"
#include "face/qt/PictureFiles.hpp"
#include "face/qt/Program.hpp"
#include "face/qt/Text.hpp"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <array>
#include <cstdio>
#include <memory>

namespace {

using namespace Tessoro;

struct PictureScale {
  double factor;
  const char *name;
};

constexpr std::array<PictureScale, 3> Scales{{{1, "1"}, {1.5, "1.5"}, {2, "2"}}};

// Long enough for the hint that comes up at start.
constexpr int SettlingMilliseconds = 700;
// And for the marks of an init to go from the window of the microQ.
constexpr int FadingMilliseconds = 1700;

void LetTimePass(int milliseconds) {
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec();
}

// The platform without a display says of windows that they can't have a least size, which harms no
// picture.
void TellWhatMatters(QtMsgType /*type*/, const QMessageLogContext & /*place*/,
                     const QString &message) {
  if (!message.contains(QLatin1String("propagateSizeHints")))
    std::fprintf(stderr, "tessoro-pictures: %s\n", qPrintable(message));
}

// Nobody is there to answer a message box.
void AnswerBox() {
  auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
  if (box == nullptr)
    return;
  std::fprintf(stderr, "tessoro-pictures: a box says: %s\n", qPrintable(box->text()));
  box->defaultButton()->click();
}

bool SavePicture(QWidget &window, const QString &name, const QDir &folder,
                 const PictureScale &scale) {
  QPixmap picture((QSizeF(window.size()) * scale.factor).toSize());
  picture.setDevicePixelRatio(scale.factor);
  window.render(&picture);
  const QString file =
      folder.filePath(QStringLiteral("%1@%2.png").arg(name, QString::fromLatin1(scale.name)));
  if (picture.save(file))
    return true;
  std::fprintf(stderr, "tessoro-pictures: %s can't be written\n", qPrintable(file));
  return false;
}

bool SaveAtAllScales(QWidget &window, const QString &name, const QDir &folder) {
  bool isSaved = true;
  for (const PictureScale &scale : Scales)
    isSaved = SavePicture(window, name, folder, scale) && isSaved;
  return isSaved;
}

bool Save(FormWindow *window, const QString &name, const QDir &folder) {
  if (window == nullptr) {
    std::fprintf(stderr, "tessoro-pictures: %s doesn't come up\n", qPrintable(name));
    return false;
  }
  window->SetZoom(1); // whatever fits the screen that isn't there
  return SaveAtAllScales(*window, name, folder);
}

// Some forms need a sound to load. It goes to the built-in microQ.
void InitSound(Application &editor) {
  editor.Module1.MidiOutPort = 0;
  editor.Module1.OpenCloseMidiOut("open");
  editor.F_Tessoro.InitPanelParams();
}

// The only window that is no form. A build without MIDI has none.
QWidget *WindowOfMicroQ() {
  for (QWidget *window : QApplication::topLevelWidgets())
    if (window->isVisible() && window->windowTitle().startsWith(QLatin1String("microQ")))
      return window;
  return nullptr;
}

// As somebody who has just tried filter 1 finds it.
bool DrawMicroQ(Application &editor, const QDir &folder) {
  QWidget *window = WindowOfMicroQ();
  if (window == nullptr)
    return true;
  window->resize(1080, 560); // whatever fits the screen that isn't there
  LetTimePass(FadingMilliseconds);
  F_Tessoro &form = editor.F_Tessoro;
  form.NoteC3.UserMouseDown({});
  form.NoteC3.UserMouseUp({});
  form.ComboFilter1.UserSelect(2);
  form.TextF1_cutoff.UserEdit("6");
  form.TextF1_cutoff.UserEdit("64");
  form.TextF1_reso.UserEdit("90");
  form.CheckOSC3mute.UserClick();
  if (auto *search = window->findChild<QLineEdit *>())
    search->setText(QStringLiteral("filter 1"));
  LetTimePass(100);
  return SaveAtAllScales(*window, QStringLiteral("microQ"), folder);
}

// As they stand when they have been used.
void ChoosePortsAndSound(Application &editor) {
  for (ComboBox *ports : {&editor.F_Midi.AuswahlMIDIPort, &editor.F_Midi.AuswahlMIDIinPort})
    if (ports->HasItem(0))
      ports->SetListIndex(0);
  editor.Module1.FileFormMode = "Open";
  editor.F_FileIO.Show();
  editor.F_FileIO.File1.UserChoose("Glass Bells.tss");
}

int DrawForms(const QDir &folder) {
  QTimer answers;
  QObject::connect(&answers, &QTimer::timeout, &AnswerBox);
  answers.start(20);
  const QTemporaryDir settings; // none in it, so the form for the ports comes up by itself
  const auto midi = MakeBuiltinMidiServiceWithWindow();
  Program program(*midi, ToModel(settings.path()), std::make_unique<PictureFiles>());
  program.Editor().Start();
  LetTimePass(SettlingMilliseconds);
  Application &editor = program.Editor();
  const auto draw = [&](const Form &form, const QString &suffix) {
    return Save(program.Windows().WindowOf(form), QString::fromStdString(form.Name()) + suffix,
                folder);
  };
  const Form &mainForm = *editor.Forms().front(); // a run makes it first
  bool isSaved = draw(mainForm, {});
  editor.Event([&editor] { InitSound(editor); });
  editor.Event([&editor] { ChoosePortsAndSound(editor); });
  for (Form *form : editor.Forms()) {
    if (!form->IsShown())
      editor.Event([form] { form->Show(); });
    LetTimePass(0);
    isSaved = draw(*form, form == &mainForm ? QStringLiteral("-init") : QString()) && isSaved;
  }
  isSaved = DrawMicroQ(editor, folder) && isSaved;
  return isSaved ? 0 : 1;
}

} // namespace

int main(int argc, char *argv[]) {
  if (argc != 2) {
    std::fputs("Usage: tessoro-pictures DIRECTORY\n", stderr);
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(&TellWhatMatters);
  const QApplication application(argc, argv);
  DressApplication();
  const QDir folder(QString::fromLocal8Bit(argv[1]));
  if (!folder.mkpath(QStringLiteral("."))) {
    std::fprintf(stderr, "tessoro-pictures: %s can't be made\n", argv[1]);
    return 1;
  }
  return DrawForms(folder);
}
