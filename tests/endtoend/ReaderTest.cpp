// What a screen reader hears: every form of the editor, read off over a real AT-SPI bus. The
// program that is read is this one, started with an argument.
#include "face/qt/MidiOfBuild.hpp"
#include "face/qt/Program.hpp"
#include "tests/endtoend/ChildProcess.hpp"
#include "tests/endtoend/VirtualDisplay.hpp"
#include "tests/endtoend/Waiting.hpp"

#include <QApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QTemporaryDir>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstring>
#include <filesystem>
#include <functional>
#include <map>
#include <set>
#include <thread>

namespace Tessoro::Tests {

// An object of a program that can be read, as the bus names it.
struct Reference {
  QString bus;
  QDBusObjectPath path;
};

static QDBusArgument &operator<<(QDBusArgument &argument, const Reference &reference) {
  argument.beginStructure();
  argument << reference.bus << reference.path;
  argument.endStructure();
  return argument;
}

static const QDBusArgument &operator>>(const QDBusArgument &argument, Reference &reference) {
  argument.beginStructure();
  argument >> reference.bus >> reference.path;
  argument.endStructure();
  return argument;
}

} // namespace Tessoro::Tests

Q_DECLARE_METATYPE(Tessoro::Tests::Reference)

namespace Tessoro::Tests {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

constexpr const char *ShowAllForms = "--show-all-forms";
const QString Accessible = QStringLiteral("org.a11y.atspi.Accessible");
const QString Root = QStringLiteral("/org/a11y/atspi/accessible/root");

// Some forms need a sound to load, and a label that is empty has nothing to say.
void ShowForms(Application &editor) {
  editor.Module1.MidiOutPort = 0;
  editor.Module1.OpenCloseMidiOut("open");
  editor.F_Tessoro.InitPanelParams();
  for (Form *form : editor.Forms())
    form->Show();
  editor.F_FileIO.TextFilename.SetText("bass.tss");
}

int RunEditor() {
  constexpr int untilHintIsWritten = 700;
  const QTemporaryDir settings;
  const auto midi = MakeBuiltinMidiService();
  Program program(*midi, settings.path().toStdString());
  Application &editor = program.Editor();
  editor.Start();
  QTimer::singleShot(untilHintIsWritten, [&] { editor.Event([&] { ShowForms(editor); }); });
  return QCoreApplication::exec();
}

constexpr unsigned Checked = 4;
constexpr unsigned Focusable = 11;

const Reference Registry{QStringLiteral("org.a11y.atspi.Registry"), QDBusObjectPath(Root)};

struct Heard {
  std::string role;
  std::string name;
  std::string value;
  bool canHaveFocus = false;
};

class Reader {
public:
  explicit Reader(const QString &sessionBus) : session(sessionBus), bus(Connect()) {}

  // All of a program whose windows are up, in the order of its tree; nothing if none comes.
  std::vector<Heard> ReadAll(std::size_t windows) {
    std::vector<Heard> heard;
    QList<Reference> found;
    const bool isThere = Eventually([&] {
      for (const Reference &program : ChildrenOf(Registry))
        if (found = ChildrenOf(program); static_cast<std::size_t>(found.size()) >= windows)
          return true;
      return false;
    });
    if (!isThere)
      return {};
    for (const Reference &window : found)
      Read(window, heard);
    return heard;
  }

private:
  // The socket of a bus is there a little before anyone listens.
  QDBusConnection Connect() {
    qDBusRegisterMetaType<Reference>();
    qDBusRegisterMetaType<QList<Reference>>();
    const QString user = QStringLiteral("session");
    const QDBusMessage ask = QDBusMessage::createMethodCall(
        QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
        QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress"));
    QDBusMessage answer;
    EXPECT_TRUE(Eventually([&] {
      QDBusConnection::disconnectFromBus(user);
      answer = QDBusConnection::connectToBus(session, user).call(ask);
      return answer.type() == QDBusMessage::ReplyMessage;
    })) << answer.errorMessage().toStdString();
    return QDBusConnection::connectToBus(answer.arguments().value(0).toString(),
                                         QStringLiteral("readers"));
  }

  QVariant Call(const Reference &object, const QString &interface, const QString &method,
                const QVariantList &arguments = {}) const {
    QDBusMessage ask =
        QDBusMessage::createMethodCall(object.bus, object.path.path(), interface, method);
    ask.setArguments(arguments);
    return bus.call(ask).arguments().value(0);
  }

  QVariant PropertyOf(const Reference &object, const QString &interface,
                      const QString &name) const {
    return Call(object, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"),
                {interface, name})
        .value<QDBusVariant>()
        .variant();
  }

  QList<Reference> ChildrenOf(const Reference &object) const {
    return qdbus_cast<QList<Reference>>(Call(object, Accessible, QStringLiteral("GetChildren")));
  }

  std::string ValueOf(const Reference &object) const {
    const QStringList interfaces =
        Call(object, Accessible, QStringLiteral("GetInterfaces")).toStringList();
    if (interfaces.contains(QStringLiteral("org.a11y.atspi.Value")))
      return PropertyOf(object, QStringLiteral("org.a11y.atspi.Value"),
                        QStringLiteral("CurrentValue"))
          .toString()
          .toStdString();
    if (interfaces.contains(QStringLiteral("org.a11y.atspi.Text")))
      return Call(object, QStringLiteral("org.a11y.atspi.Text"), QStringLiteral("GetText"), {0, -1})
          .toString()
          .toStdString();
    return {};
  }

  // Of the states by their places in the standard.
  bool Is(const Reference &object, unsigned state) const {
    const auto states =
        qdbus_cast<QList<uint>>(Call(object, Accessible, QStringLiteral("GetState")));
    return !states.isEmpty() && (states.front() & (1U << state)) != 0;
  }

  void Read(const Reference &object, std::vector<Heard> &heard) const {
    Heard each{Call(object, Accessible, QStringLiteral("GetRoleName")).toString().toStdString(),
               PropertyOf(object, Accessible, QStringLiteral("Name")).toString().toStdString(),
               ValueOf(object), Is(object, Focusable)};
    if (each.role == "check box")
      each.value = Is(object, Checked) ? "checked" : "not checked";
    heard.push_back(each);
    for (const Reference &child : ChildrenOf(object))
      Read(child, heard);
  }

  const QString session;
  const QDBusConnection bus;
};

class ReaderTest : public testing::Test {
protected:
  static constexpr std::size_t Windows = 9;

  ReaderTest() {
    const std::string address = "unix:path=" + directory.path().toStdString() + "/bus";
    const std::vector<std::string> environment{
        "DISPLAY=" + display.Name(),
        "DBUS_SESSION_BUS_ADDRESS=" + address,
        "XDG_RUNTIME_DIR=" + directory.path().toStdString(),
        "QT_QPA_PLATFORM=xcb",
        "QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1",
    };
    sessionBus = std::make_unique<ChildProcess>(
        std::vector<std::string>{"dbus-daemon", "--session", "--nofork", "--address=" + address},
        environment);
    Reader reader(QString::fromStdString(address));
    // The desktop's services start as they are first asked, and may lose a program that comes then.
    for (int i = 0; i < 4 && heard.empty(); ++i) {
      program = std::make_unique<ChildProcess>(
          std::vector<std::string>{fs::read_symlink("/proc/self/exe").string(), ShowAllForms},
          environment);
      heard = reader.ReadAll(Windows);
    }
  }

  const Heard &Named(const std::string &name) const {
    static const Heard nothing;
    for (const Heard &each : heard)
      if (each.name == name)
        return each;
    ADD_FAILURE() << "nothing is called " << name;
    return nothing;
  }

  const QTemporaryDir directory;
  VirtualDisplay display;
  std::unique_ptr<ChildProcess> sessionBus;
  std::unique_ptr<ChildProcess> program;
  std::vector<Heard> heard;
};

TEST_F(ReaderTest, EveryControlHasANameARoleAndItsValue) {
  // The grounds that controls stand on, and the lines between entries of a menu.
  const std::set<std::string> nameless{"filler", "panel", "separator"};
  std::map<std::string, int> counts;
  for (const Heard &each : heard) {
    ++counts[each.role];
    EXPECT_TRUE(!each.name.empty() || nameless.contains(each.role))
        << "a nameless " << each.role << " with the value " << each.value;
    EXPECT_FALSE(each.role.empty() || each.role == "unknown" || each.role == "invalid")
        << each.name;
    EXPECT_FALSE(each.role == "scroll bar" && each.value.empty()) << each.name;
  }
  EXPECT_GT(counts["text"], 70);
  EXPECT_GT(counts["combo box"], 20);
  EXPECT_GT(counts["scroll bar"], 15);

  const auto sounds = [this](const std::string &name) {
    const Heard &control = Named(name);
    return control.role + ": " + control.value;
  };
  EXPECT_EQ(sounds("Filter 1 cutoff"), "text: 127");
  EXPECT_EQ(sounds("Filter 1 type"), "combo box: \\_ Lowpass 24 dB");
  EXPECT_EQ(sounds("OSC 1 filter balance bar"), "scroll bar: -64");
  EXPECT_EQ(sounds("OSC 1 mute"), "check box: not checked");
  EXPECT_EQ(sounds("Noise mute"), "check box: checked");
  EXPECT_EQ(Named("Panic").role, "push button");
  for (const char octave : {'1', '2', '3', '4', '5'}) {
    const Heard &key = Named(std::string("Note C") + octave);
    EXPECT_EQ(key.role, "push button") << octave;
    EXPECT_TRUE(key.canHaveFocus) << octave;
  }
  EXPECT_EQ(Named("Filters in parallel").role, "push button");
  EXPECT_EQ(Named("MIDI OUT port").role, "combo box");
  EXPECT_EQ(sounds("Sound category"), "text: Init");
}

} // namespace
} // namespace Tessoro::Tests

int main(int argc, char *argv[]) {
  if (argc > 1 && std::strcmp(argv[1], Tessoro::Tests::ShowAllForms) == 0) {
    const QApplication application(argc, argv);
    Tessoro::DressApplication();
    return Tessoro::Tests::RunEditor();
  }
  testing::InitGoogleTest(&argc, argv);
  const QCoreApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
