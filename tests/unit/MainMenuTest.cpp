#include "tests/support/TestRun.hpp"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace Tessoro {
namespace {

struct Entry {
  const char *name;
  // The title that it hangs under; nothing for a title.
  const char *parent;
  const char *caption;
  const char *shortcut = "";
  // At the design, before the start takes some of them away.
  bool enabled = true;
  bool visible = true;
};

// In their order on the screen.
constexpr Entry Tree[] = {
    {"Menu_File", "", "&File"},
    {"Menu_OpenSound", "Menu_File", "&Open sound", "Ctrl+O"},
    {"Menu_SaveSound", "Menu_File", "Save sound &as", "Ctrl+S"},
    {"MenuRequest", "Menu_File", "Request sound from microQ", "", false},
    {"x1", "Menu_File", "-"},
    {"Menu_preferences", "Menu_File", "Knob &preferences"},
    {"x2", "Menu_File", "-"},
    {"Menu_Quit", "Menu_File", "&Quit"},
    {"Menu_Options", "", "&Midi"},
    {"Menu_Panic", "Menu_Options", "Send &Panic", "F12"},
    {"Menu_Sequenzer", "Menu_Options", "Sequenzer settings", "F11", true, false},
    {"Menu_StartSequenzer", "Menu_Options", "Start se&quenzer", "Ctrl+Q", false, false},
    {"x3", "Menu_Options", "-"},
    {"Menu_Midisettings", "Menu_Options", "Midi settings"},
    {"Menu_Parameters", "", "mQ &parameters"},
    {"Menu_InitW", "Menu_Parameters", "Init sound to mQ Waldorf default"},
    {"Menu_InitK", "Menu_Parameters", "Init sound to Tessoro default", "", false},
    {"x4", "Menu_Parameters", "-"},
    {"Menu_LFOs", "Menu_Parameters", "&LFO settings", "Ctrl+L", false},
    {"Menu_ModMatrix", "Menu_Parameters", "&ModMatrix settings", "Ctrl+M", false},
    {"Menu_ChangeSoundName", "Menu_Parameters", "Change Sound&Name", "Ctrl+N", false},
    {"Menu_General", "Menu_Parameters", "&General sound settings", "Ctrl+G"},
    {"Menu_FXSettings", "Menu_Parameters", "F&X settings", "Ctrl+X", false},
    {"Menu_Arpeggiator", "Menu_Parameters", "&Arpeggiator", "Ctrl+A", false},
    {"x5", "Menu_Parameters", "-"},
    {"Menu_DrumMapping", "Menu_Parameters", "&Drum Mapping", "Ctrl+D", false},
    {"Menu_About", "", "&About"},
};

TEST(MainMenu, StandsAsItWasDesigned) {
  const TestRun run; // not started yet
  std::vector<const Menu *> entries;
  for (const Control *control : run.app.F_Tessoro.Controls())
    if (control->Type() == ControlType::Menu)
      entries.push_back(static_cast<const Menu *>(control));
  const auto names = [](const auto &tree, const auto &nameOf) {
    std::vector<std::string> all;
    all.reserve(std::size(tree));
    for (const auto &entry : tree)
      all.emplace_back(nameOf(entry));
    return all;
  };
  ASSERT_EQ(names(entries, [](const Menu *entry) { return entry->Name(); }),
            names(Tree, [](const Entry &entry) { return entry.name; }))
      << "Tree above tells of each entry";
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const Menu &entry = *entries[i];
    const Entry &expected = Tree[i];
    EXPECT_EQ(entry.Name(), expected.name);
    EXPECT_EQ(entry.Parent() == nullptr ? "" : entry.Parent()->Name(), expected.parent)
        << expected.name;
    EXPECT_EQ(entry.Caption(), expected.caption) << expected.name;
    EXPECT_EQ(entry.Shortcut(), expected.shortcut) << expected.name;
    EXPECT_EQ(entry.Enabled(), expected.enabled) << expected.name;
    EXPECT_EQ(entry.Visible(), expected.visible) << expected.name;
  }
}

TEST(MainMenu, HasNoKeysForTwoEntries) {
  const TestRun run;
  std::map<std::string, std::string> entries;
  for (const Control *control : run.app.F_Tessoro.Controls())
    if (const auto *entry = dynamic_cast<const Menu *>(control);
        entry != nullptr && !entry->Shortcut().empty()) {
      const auto [first, isNew] = entries.emplace(entry->Shortcut(), entry->Name());
      EXPECT_TRUE(isNew) << entry->Shortcut() << " opens " << first->second << " and "
                         << entry->Name();
    }
}

TEST(MainMenu, ThePointerIsAnHourglassWhileThePortsFormLoads) {
  TestRun run;
  run.StartWithOpenPorts();
  const std::vector<MousePointer> hourglass{MousePointer::Hourglass};
  run.midi.onCall = [&] { EXPECT_EQ(run.screen.pointers, hourglass); };
  run.app.F_Tessoro.Menu_Midisettings.UserClick();
  EXPECT_TRUE(run.app.F_Midi.IsShown());
  EXPECT_FALSE(run.midi.calls.empty());
  EXPECT_EQ(run.screen.pointers,
            (std::vector<MousePointer>{MousePointer::Hourglass, MousePointer::Default}));
}

// One that is composed with an accent, for instance.
TEST(MainMenu, AboutGoesAlsoAtACharacterWithoutAKeyOfItsOwn) {
  TestRun run;
  run.StartWithOpenPorts();
  run.app.F_Tessoro.Menu_About.UserClick();
  EXPECT_TRUE(run.app.F_About.IsShown());
  EXPECT_EQ(run.app.F_About.UserKeyPress(0xE9), Reach::Done);
  EXPECT_FALSE(run.app.F_About.IsLoaded());
}

} // namespace
} // namespace Tessoro
