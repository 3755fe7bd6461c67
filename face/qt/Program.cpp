#include "face/qt/Program.hpp"

#include "face/qt/Accessibility.hpp"
#include "face/qt/Composition.hpp"
#include "face/qt/Drawings.hpp"
#include "face/qt/DrawnIcon.hpp"
#include "face/qt/FormStyle.hpp"
#include "face/qt/Look.hpp"
#include "face/qt/Text.hpp"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QTimer>

#include <filesystem>
#include <utility>

namespace Tessoro {

namespace {

// Behind the first frame, which it would hold up; a list of windows asks for it later than that.
constexpr int IconMilliseconds = 100;

std::string TextFromQt(const QString &path) {
  return TextFromPath(std::filesystem::path(path.toStdU16String()));
}

// Whether a folder of programs is the whole machine's, as /usr/bin is. The superuser may write
// there, which doesn't make it his own.
bool ServesAllUsers(const QString &folder) {
  QStringList shares = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
  shares.removeFirst(); // the user's own
  return shares.contains(QDir::cleanPath(folder + QStringLiteral("/../share")));
}

} // namespace

void DressApplication() {
  QApplication::setStyle(new FormStyle);
  QApplication::setFont(Look::Font(TextSize::Control, {})); // before the system's own is loaded
  QApplication::setPalette(Look::Windows());
  QApplication::setPalette(Look::Menus(), "QMenu");
  QApplication::setLayoutDirection(Qt::LeftToRight); // places are fixed
  QApplication::setQuitOnLastWindowClosed(false);    // the editor says when it ends
  QTimer::singleShot(IconMilliseconds,
                     [] { QApplication::setWindowIcon(DrawnIcon(*FindDrawing("icon"))); });
  QGuiApplication::setDesktopFileName(QStringLiteral("org.tessoro.Tessoro"));
  QCoreApplication *application = QCoreApplication::instance();
  application->installEventFilter(new Composition(application));
  DescribeViewsToScreenReaders();
}

std::string ProgramPath() {
  const QString own = QCoreApplication::applicationDirPath();
  if (QFileInfo(own).isWritable() && !ServesAllUsers(own))
    return TextFromQt(own);
  const QString ofUser =
      QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))
          .filePath(QStringLiteral("Tessoro"));
  QDir().mkpath(ofUser); // where that fails, the editor tells as it writes its settings
  return TextFromQt(ofUser);
}

Program::Program(MidiService &midi, const std::string &programPath,
                 std::unique_ptr<FileSystem> seenFiles)
    : files(std::move(seenFiles)),
      editor({.midi = midi,
              .screen = screen,
              .clock = clock,
              .files = *files,
              .random = random,
              .programPath = programPath,
              .decimalSign = DecimalSignOf(QLocale::system().decimalPoint())}) {}

int Program::Run() {
  editor.Start();
  if (screen.ExitStatus())
    return *screen.ExitStatus(); // over before the event loop began
  return QCoreApplication::exec();
}

} // namespace Tessoro
