#include "tests/endtoend/PluggedEditorTest.hpp"

#include "tests/endtoend/MachinePorts.hpp"

namespace Tessoro::Tests {

PluggedEditorTest::PluggedEditorTest() { LetTheNewsPass(); }

PluggedEditorTest::~PluggedEditorTest() {
  editor.reset();
  LetTheNewsPass();
}

int PluggedEditorTest::PlaceOfSynth() const { return NumberOfOut("synth:in"); }

int PluggedEditorTest::PlaceOfKeyboard() const { return NumberOfIn("keyboard:out"); }

void PluggedEditorTest::StartPlugged() {
  place.WriteSettings(SettingsWithPorts(PlaceOfSynth(), PlaceOfKeyboard()));
  editor = std::make_unique<WindowedEditor>(display, place);
  editor->MainForm();
}

std::vector<Bytes> PluggedEditorTest::Hear(std::size_t count) {
  EXPECT_TRUE(Eventually([&] { return synth->Count() >= heard + count; }))
      << "with these windows: " << display.Titles();
  std::vector<Bytes> messages = synth->Messages();
  messages.erase(messages.begin(), messages.begin() + static_cast<std::ptrdiff_t>(heard));
  heard += messages.size();
  return messages;
}

} // namespace Tessoro::Tests
