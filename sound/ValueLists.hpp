// The values that the synthesizer gives names to, as the lists of the forms show them.
//
// Where a list is not told otherwise, the wire value is the place in it, counted from 0.
#pragma once

#include <array>
#include <string_view>

namespace Tessoro::ValueLists {

// The wire value of zero where a value has a sign.
inline constexpr int WireCenter = 64;

// A text with the wire value that it stands for.
struct TextValue {
  std::string_view text;
  int wire;
};

// Pipe lengths, the highest octave first.
inline constexpr std::array<TextValue, 9> OctaveValues{{
    {"1/2\"", 112},
    {"1\"", 100},
    {"2\"", 88},
    {"4\"", 76},
    {"8\"", 64},
    {"16\"", 52},
    {"32\"", 40},
    {"64\"", 28},
    {"128\"", 16},
}};

inline constexpr std::array<TextValue, 7> ShapeValues{{
    {"OSC off", 0},
    {"Pulse", 1},
    {"Saw", 2},
    {"Triangle", 3},
    {"Sine", 4},
    {"Alt1 Waves", 5},
    {"Alt2 Waves", 6},
}};

inline constexpr std::array<TextValue, 11> FilterTypeValues{{
    {"---- Bypass", 0},
    {"\\_ Lowpass 24 dB", 1},
    {"\\_ Lowpass 12 dB", 2},
    {"/\\ Bandpass 24 dB", 3},
    {"/\\ Bandpass 12 dB", 4},
    {"_/ Highpass 24 dB", 5},
    {"_/ Highpass 12 dB", 6},
    {"\\/  Notch 24 dB", 7},
    {"\\/  Notch 12 dB", 8},
    {"||||| Comb (+)", 9},
    {"||||| Comb (-)", 10},
}};

inline constexpr std::array<TextValue, 14> ModSourceValues{{
    {"Off", 0},
    {"LFO1", 1},
    {"LFO1*MW", 2},
    {"LFO2", 3},
    {"LFO2*Prs", 4},
    {"LFO3", 5},
    {"FilterEnv", 6},
    {"AmpEnv", 7},
    {"Env3", 8},
    {"Env4", 9},
    {"Velocity", 10},
    {"ModWheel", 11},
    {"Pitchbend", 12},
    {"Pressure", 13},
}};

// The texts of such a table, in its order.
template <std::size_t Count>
consteval std::array<std::string_view, Count> TextsOf(const std::array<TextValue, Count> &values) {
  std::array<std::string_view, Count> texts;
  for (std::size_t i = 0; i < Count; ++i)
    texts[i] = values[i].text;
  return texts;
}

inline constexpr auto OctaveTexts = TextsOf(OctaveValues);
inline constexpr auto ShapeTexts = TextsOf(ShapeValues);
inline constexpr auto FilterTypeTexts = TextsOf(FilterTypeValues);
inline constexpr auto ModSourceTexts = TextsOf(ModSourceValues);

// The filters spell two of the modulation sources otherwise.
inline constexpr std::array<std::string_view, 14> FilterModSourceTexts{
    "Off",    "LFO1", "LFO1*MW", "LFO2",     "LFO2*Prs", "LFO3",      "FilterEnv",
    "AmpEnv", "Env3", "Env4",    "Velocity", "Modwheel", "PitchBend", "Pressure"};

inline constexpr std::array<std::string_view, 12> FmSourceTexts{
    "00 Off",  "01 Osc1", "02 Osc2",    "03 Osc3",  "04 Noise", "05 LFO1",
    "06 LFO2", "07 LFO3", "08 FiltEnv", "09 AmEnv", "10 Env3",  "11 Env4"};

inline constexpr std::array<std::string_view, 32> SubFrequencyTexts{
    "01", "02", "03", "04", "05", "06", "07", "08", "09", "10", "11", "12", "13", "14", "15", "16",
    "17", "18", "19", "20", "21", "22", "23", "24", "25", "26", "27", "28", "29", "30", "31", "32"};

inline constexpr std::array<std::string_view, 4> GlideModeTexts{"Portamento", "Fingered Port.",
                                                                "Glissando", "Fingered Gliss."};

inline constexpr std::array<std::string_view, 6> UnisonoModeTexts{"Off", "Dual", "3x",
                                                                  "4x",  "5x",   "6x"};

inline constexpr std::array<std::string_view, 6> LfoShapeTexts{
    "00 Sine", "01 Triangle", "02 Square", "03 Saw", "04 Random", "05 S&H"};

} // namespace Tessoro::ValueLists
