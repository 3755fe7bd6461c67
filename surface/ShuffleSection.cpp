#include "surface/ShuffleSection.hpp"

#include "shell/Application.hpp"
#include "surface/Conversions.hpp"
#include "surface/RandomRange.hpp"

namespace Tessoro {

// One oscillator: its controls, and where its lists end.
struct ShuffleSection::Strip {
  ComboBox &shape;
  std::int16_t highestShape;
  ComboBox &octave;
  std::int16_t highestOctaveOfLevel1;
  TextBox &semi;
  TextBox &detune;
  TextBox &balance;
  TextBox &pulseWidth;
  TextBox &pulseWidthModulation;
  ComboBox &source;
  ScrollBar &volume;
};

ShuffleSection::ShuffleSection(F_Tessoro &owner) : form(owner), main(owner) {
  C_OSC_shuffle.onClick = [this] { C_OSC_shuffle_Click(); };
  HScrollShuffleOSC.onChange = [this] {
    C_OSC_shuffle.SetCaption("shuffle" + SignedNumberText(HScrollShuffleOSC.Value()));
  };
}

void ShuffleSection::C_OSC_shuffle_Click() {
  // clang-format off
  const Strip strips[] = {
      {main.ComboOSC1shape, 6, main.ComboOSC1oct, 8, main.TextOSC1semi, main.TextOSC1detune, main.TextOSC1fbalance,
       main.TextOSC1pw, main.TextOSC1pwm, main.ComboOSC1pwmsource, main.VScrollOSC1vol},
      {main.ComboOSC2shape, 6, main.ComboOSC2oct, 8, main.TextOSC2semi, main.TextOSC2detune, main.TextOSC2fbalance,
       main.TextOSC2pw, main.TextOSC2pwm, main.ComboOSC2pwmsource, main.VScrollOSC2vol},
      {main.ComboOSC3shape, 4, main.ComboOSC3oct, 4, main.TextOSC3semi, main.TextOSC3detune, main.TextOSC3fbalance,
       main.TextOSC3pw, main.TextOSC3pwm, main.ComboOSC3pwmsource, main.VScrollOSC3vol},
  };
  // clang-format on
  const int level = HScrollShuffleOSC.Value();
  for (const Strip &strip : strips)
    Shuffle(strip, level);
}

// A draw that a list doesn't have fails, and nothing traps that.
void ShuffleSection::Shuffle(const Strip &strip, int level) {
  constexpr std::int16_t highestOctave = 8;
  if (level != 1)
    strip.shape.SetListIndex(Draw(1, strip.highestShape));
  strip.octave.SetListIndex(Draw(1, level == 1 ? strip.highestOctaveOfLevel1 : highestOctave));
  if (level != 1 && level != 2)
    ShiftBox(strip.semi, 1, -12, 12);
  ShiftBox(strip.detune, 5, -63, 64);
  ShiftBox(strip.balance, 5, -63, 64);
  ShiftBox(strip.pulseWidth, 10, 0, 127);
  ShiftBox(strip.pulseWidthModulation, 5, 0, 127);
  if (level != 1 && level != 2)
    strip.source.SetListIndex(Draw(0, 13));
  if (level != 1)
    strip.volume.SetValue(Draw(0, 127));
}

int ShuffleSection::Draw(std::int16_t low, std::int16_t high) {
  return RandomInRange(form.App().System().random, low, high);
}

// A step that would land on a bound or beyond it is dropped, not shortened.
void ShuffleSection::ShiftBox(TextBox &box, std::int16_t reach, int lower, int upper) {
  const int shift = Draw(static_cast<std::int16_t>(-reach), reach);
  const double shifted = NumericPrefix(box.Text()) + shift;
  if (shifted > lower && shifted < upper)
    box.SetText(NumberText(shifted));
}

} // namespace Tessoro
