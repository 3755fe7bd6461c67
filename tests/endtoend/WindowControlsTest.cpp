// On each section of the main window, one control of each kind under a real mouse and real keys, up
// to the bytes at a synthesizer.
#include "tests/endtoend/PluggedEditorTest.hpp"

namespace Tessoro::Tests {
namespace {

using Act = std::function<void(const VirtualDisplay &, const ShownForm &, const Control &)>;

// What is done to a control, and the messages that come of it. Where none comes, the next row's
// would be heard too early.
struct Row {
  const Control &control;
  Act act;
  std::vector<Bytes> heard;
};

Act Clicks(Share place = {}) {
  return [=](const auto &, const ShownForm &form, const Control &control) {
    form.Click(control, place);
  };
}

Act DoubleClicks() {
  return [](const auto &, const ShownForm &form, const Control &control) {
    form.DoubleClick(control);
  };
}

Act Types(const std::string &keys) {
  return [=](const auto &, const ShownForm &form, const Control &control) {
    form.Type(control, keys);
  };
}

// Focus that it has already is left where it is.
Act Keys(const std::string &keys) {
  return
      [=](const VirtualDisplay &display, const auto &, const auto &) { display.PressKeys(keys); };
}

Act Steps(int steps) {
  return [=](const auto &, const ShownForm &form, const Control &control) {
    form.Step(static_cast<const ComboBox &>(control), steps);
  };
}

Act Picks(int index) {
  return [=](const auto &, const ShownForm &form, const Control &control) {
    form.Pick(static_cast<const ComboBox &>(control), index);
  };
}

Act Grasps(Share place = {}) {
  return [=](const auto &, const ShownForm &form, const Control &control) {
    form.Press(control, place);
  };
}

Act DragsTo(Share place) {
  return [=](const auto &, const ShownForm &form, const Control &control) {
    form.PointAt(control, place);
  };
}

// The arrows of a bar are as long as it is wide, and the thumb is not much shorter.
Act GraspsLowestThumb() {
  return [](const VirtualDisplay &display, const ShownForm &form, const Control &bar) {
    const Area area = form.AreaOf(bar);
    Spot thumb = form.SpotOn(bar, {.y = 1});
    thumb.place.y -= area.width * 4 / 3;
    display.Press(thumb);
  };
}

// There is room for a drag to go on above the window and below it.
constexpr Point PlaceOfWindow{.x = 20, .y = 120};

Act DragsAboveWindow(int pixels) {
  return [=](const VirtualDisplay &display, const auto &, const auto &) {
    display.PointAt({{.x = PlaceOfWindow.x, .y = PlaceOfWindow.y - pixels}});
  };
}

Act DragsBelowWindow() {
  return [](const VirtualDisplay &display, const auto &, const auto &) {
    display.PointAt({{.x = PlaceOfWindow.x, .y = VirtualDisplay::Height - 1}});
  };
}

Act LetsGo() {
  return [](const VirtualDisplay &display, const auto &, const auto &) { display.ReleaseButton(); };
}

constexpr Share RightArrow{.x = 0.9};
constexpr Share UpArrow{.y = 0.04};
constexpr Share AboveThumb{.y = 0.4};
constexpr Share ALittleHigher{.y = 0.3};

class WindowControlsTest : public PluggedEditorTest {
protected:
  void SetUp() override {
    StartPlugged();
    editor->MainForm().Move(PlaceOfWindow);
  }

  // Whatever came too much comes before these notes.
  void TearDown() override {
    Play({{MainDesign().NoteC1, Clicks(), {Note(36, 100), Note(36, 0)}}});
  }

  const F_Tessoro &MainDesign() const { return editor->Design().F_Tessoro; }

  void Play(const std::vector<Row> &rows) {
    const ShownForm window = editor->MainForm();
    for (const Row &row : rows) {
      row.act(display, window, row.control);
      ASSERT_EQ(Hear(row.heard.size()), row.heard) << row.control.Name();
    }
  }
};

TEST_F(WindowControlsTest, Oscillators) {
  const OscillatorSection &on = MainDesign();
  Play({
      {on.TextOSC1keytrack, Types("minus 5"), {Parameter(5, 59)}},
      {on.TextOSC1detune, Types("1 2"), {Controller(29, 65), Controller(29, 76)}},
      {on.TextOSC1semi, Types("3"), {Parameter(2, 67)}},
      {on.HScrollOSC1semi, Clicks(RightArrow), {Parameter(2, 68)}},
      {on.HScrollOSC1semi, Keys("Left"), {Parameter(2, 67)}},
      {on.HScrollOSC3detune, Grasps(), {}},
      {on.HScrollOSC3detune, DragsTo({.x = 0.6}), {}},
      {on.HScrollOSC3detune, DragsTo({.x = 3}), {}},
      {on.HScrollOSC3detune, LetsGo(), {Controller(44, 127)}},
      {on.ComboOSC2shape, Picks(3), {Controller(39, 3)}},
      {on.ComboOSC1oct, Steps(2), {Controller(27, 112), Controller(27, 100)}},
      {on.ComboFMsrc1, Picks(8), {Parameter(6, 8)}},
      {on.knobOSC1pw, Grasps(), {}},
      {on.knobOSC1pw, DragsTo(ALittleHigher), {Parameter(9, 1)}},
      {on.knobOSC1pw, DragsAboveWindow(20), {Parameter(9, 2)}},
      {on.knobOSC1pw, DragsAboveWindow(40), {Parameter(9, 3)}},
      {on.knobOSC1pw, DragsBelowWindow(), {Parameter(9, 2)}},
      {on.knobOSC1pw, LetsGo(), {}},
      {on.knobOSC1pw, DragsTo(ALittleHigher), {}},
      {on.knobOSC1pw, DoubleClicks(), {Parameter(9, 0)}},
      {on.TextOSC2bendrange, Types("7"), {Parameter(20, 71)}},
      {on.C_OSC2bendPlus, Clicks(), {Parameter(20, 72)}},
      {on.C_octaveplus, Clicks(), {Controller(27, 112)}},
      {on.CheckSyncOn, Clicks(), {Parameter(49, 1)}},
      {on.CheckSyncOn, Keys("space"), {Parameter(49, 0)}},
  });
}

TEST_F(WindowControlsTest, Mixer) {
  const MixerSection &on = MainDesign();
  Play({
      {on.VScrollOSC1vol, GraspsLowestThumb(), {}},
      {on.VScrollOSC1vol, DragsTo(AboveThumb), {}},
      {on.VScrollOSC1vol, DragsTo({.y = -0.5}), {}},
      {on.VScrollOSC1vol, LetsGo(), {Controller(52, 127)}},
      {on.CheckOSC1mute, Clicks(), {Controller(52, 0)}},
      {on.CheckOSC1mute, Clicks(), {Controller(52, 127)}},
      {on.VScrollNoiseVol, Clicks(AboveThumb), {Parameter(67, 10)}},
      {on.VScrollNoiseVol, Clicks(UpArrow), {Parameter(67, 11)}},
      {on.CheckNoisemute, Clicks(), {Parameter(67, 0)}},
      // Whoever moves the bar of a muted source ends the mute, which says the same once more.
      {on.VScrollNoiseVol, Clicks(UpArrow), {Parameter(67, 12), Parameter(67, 12)}},
      {on.TextOSC2fbalance, Types("minus 6"), {Controller(57, 58)}},
      {on.HScrollOSC2fbalance, Clicks(RightArrow), {Controller(57, 59)}},
      {on.HScrollNoisefbalance, Clicks(RightArrow), {Parameter(68, 65)}},
  });
}

TEST_F(WindowControlsTest, Filters) {
  const FilterSection &on = MainDesign();
  Play({
      {on.TextF2_reso, Types("4 0"), {Parameter(100, 4), Parameter(100, 40)}},
      {on.TextF2_pan, Types("minus 6 4"), {Parameter(113, 58), Parameter(113, 0)}},
      {on.ComboFilter2, Picks(10), {Controller(79, 10)}},
      {on.ComboF1Modulation, Steps(2), {Parameter(89, 0), Parameter(89, 1)}},
      {on.knobF2_cutoff, Grasps(), {}},
      {on.knobF2_cutoff, DragsAboveWindow(20), {Parameter(98, 1)}},
      {on.knobF2_cutoff, DragsAboveWindow(40), {Parameter(98, 2)}},
      {on.knobF2_cutoff, LetsGo(), {}},
      {on.knobF2_cutoff, DoubleClicks(), {Parameter(98, 127)}},
      {on.ImageParallel, Clicks(), {Controller(67, 1)}},
      {on.ImageSeriell, Clicks(), {Controller(67, 0)}},
      // What the boxes take for too high is said twice.
      {on.ResetFilter1,
       Clicks(),
       {Controller(68, 1), Parameter(78, 127), Parameter(80, 0), Parameter(81, 0),
        Parameter(86, 127), Parameter(86, 127), Parameter(87, 127), Parameter(87, 127),
        Parameter(88, 127), Parameter(88, 127)}},
  });
}

TEST_F(WindowControlsTest, Envelopes) {
  const EnvelopeSection &on = MainDesign();
  Play({
      {on.TextEnv1T2, Types("7"), {Controller(102, 7)}},
      {on.TextEnv2L2, Types("9 9"), {Parameter(202, 9), Parameter(202, 99)}},
      {on.knobEnvFilt4, Grasps(), {}},
      {on.knobEnvFilt4, DragsTo(ALittleHigher), {Controller(100, 1)}},
      {on.knobEnvFilt4, DragsAboveWindow(20), {Controller(100, 2)}},
      {on.knobEnvFilt4, DragsBelowWindow(), {Controller(100, 1)}},
      {on.knobEnvFilt4, LetsGo(), {}},
      {on.ComboEnv1,
       Picks(2),
       {Controller(101, 15), Controller(102, 0), Controller(103, 127), Controller(106, 45)}},
      {on.ComboEnvFilter,
       Steps(1),
       {Controller(95, 5), Controller(96, 35), Parameter(202, 0), Controller(100, 35)}},
      // The third panel can be seen, but not reached.
      {on.TextEnv3_A, DoubleClicks(), {}},
      {on.C_Envelope34, Clicks(), {}},
      {on.knobEnv3_A, Grasps(), {}},
      {on.knobEnv3_A, DragsAboveWindow(20), {}},
      {on.knobEnv3_A, LetsGo(), {}},
  });
}

TEST_F(WindowControlsTest, Amplifier) {
  const AmplifierSection &on = MainDesign();
  Play({
      {on.TextAmpVolume, Types("1 1"), {Parameter(121, 1), Parameter(121, 11)}},
      {on.VScrollAmpVolume, Clicks(AboveThumb), {Parameter(121, 16)}},
      {on.VScrollAmpVolume, Clicks(UpArrow), {Parameter(121, 17)}},
      {on.VScrollAmpVolume, Keys("Down"), {Parameter(121, 16)}},
      {on.VScrollAmpVelocity, GraspsLowestThumb(), {}},
      {on.VScrollAmpVelocity, DragsTo({.y = -3}), {}},
      {on.VScrollAmpVelocity, LetsGo(), {Parameter(122, 127)}},
  });
}

TEST_F(WindowControlsTest, Notes) {
  std::vector<Bytes> panic;
  for (int i = 0; i < 16; ++i)
    for (int note = 1; note <= 127; ++note)
      panic.push_back(Note(note, 0));

  const NoteSection &on = MainDesign();
  Play({
      {on.NoteC3, Grasps(), {Note(60, 100)}},
      {on.NoteC3, LetsGo(), {Note(60, 0)}},
      {on.NoteC5, Grasps(), {Note(84, 100)}},
      {on.NoteC5, DragsBelowWindow(), {}},
      {on.NoteC5, LetsGo(), {Note(84, 0)}},
      {on.Panic, Clicks(), panic},
  });
}

} // namespace
} // namespace Tessoro::Tests
