// The editor in a window, with a synthesizer and a keyboard that are plugged in at a JACK server.
#pragma once

#include "tests/endtoend/JackInstruments.hpp"
#include "tests/endtoend/JackServer.hpp"
#include "tests/endtoend/WindowedEditor.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace Tessoro::Tests {

class PluggedEditorTest : public testing::Test {
public:
  PluggedEditorTest();
  ~PluggedEditorTest() override;
  PluggedEditorTest(const PluggedEditorTest &) = delete;
  PluggedEditorTest &operator=(const PluggedEditorTest &) = delete;

protected:
  int PlaceOfSynth() const;
  int PlaceOfKeyboard() const;
  // Both are chosen in its settings. Returns when it has opened them and shows its window.
  void StartPlugged();

  // The messages that came to the synthesizer since this was last asked: waits for so many, and
  // returns more of them if there are more.
  std::vector<Bytes> Hear(std::size_t count);

  JackServer server;
  std::unique_ptr<Synth> synth = std::make_unique<Synth>("synth");
  std::unique_ptr<Keyboard> keyboard = std::make_unique<Keyboard>("keyboard");
  const VirtualDisplay display;
  const EditorDirectory place;
  std::unique_ptr<WindowedEditor> editor;

private:
  std::size_t heard = 0;
};

} // namespace Tessoro::Tests
