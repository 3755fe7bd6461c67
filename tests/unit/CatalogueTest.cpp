// The catalogue, held against itself and against its numbers written out once more.
#include "sound/Catalogue.hpp"
#include "tests/support/TestRun.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <set>
#include <sstream>

namespace Tessoro {
namespace {

using testing::ElementsAre;
using testing::IsNull;
using testing::NotNull;

constexpr int None = NoInit;
constexpr int HighestNumber = 383;

struct WireClaim {
  int number;
  int lowest;
  int highest;
  int init;
};

struct ControllerClaim {
  int controller;
  // 0 for none.
  int number;
  std::vector<std::string> controls;
};

struct Numbers {
  int first;
  int last;
};

// clang-format off
constexpr WireClaim WireClaims[] = {
    // number, lowest, highest, init
    {1, 16, 112, 64}, {2, 52, 76, 64}, {3, 0, 127, 64}, {4, 40, 88, 66}, {5, 0, 127, 96},
    {6, 0, 11, 0}, {7, 0, 127, 0}, {8, 0, 6, 1}, {9, 0, 127, 127}, {10, 0, 13, 1},
    {11, 0, 127, 64}, {12, 0, 31, 0}, {13, 0, 127, 0}, {17, 16, 112, 64}, {18, 52, 76, 64},
    {19, 0, 127, 64}, {20, 40, 88, 66}, {21, 0, 127, 96}, {22, 0, 11, 0}, {23, 0, 127, 0},
    {24, 0, 6, 0}, {25, 0, 127, 127}, {26, 0, 13, 3}, {27, 0, 127, 92}, {28, 0, 31, 0},
    {29, 0, 127, 0}, {33, 16, 112, 64}, {34, 52, 76, 64}, {35, 0, 127, 64}, {36, 40, 88, 66},
    {37, 0, 127, 96}, {38, 0, 11, 0}, {39, 0, 127, 0}, {40, 0, 6, 0}, {41, 0, 127, 127},
    {42, 0, 13, 5}, {43, 0, 127, 64}, {49, 0, 1, 0}, {50, 0, 13, 2}, {51, 0, 127, 84},
    {53, 0, 1, 0}, {56, 0, 3, 0}, {57, 0, 127, 0}, {58, 0, 81, 0}, {59, 0, 127, None},
    {61, 0, 127, 127}, {62, 0, 127, 0}, {63, 0, 127, 0}, {64, 0, 127, 0}, {65, 0, 127, 0},
    {66, 0, 127, 0}, {67, 0, 127, None}, {68, 0, 127, None}, {71, 0, 127, 0}, {72, 0, 127, 0},
    {75, 0, 127, 0}, {76, 0, 127, 0}, {78, 0, 127, 127}, {80, 0, 127, 0}, {81, 0, 127, 0},
    {86, 0, 127, 64}, {87, 0, 127, 64}, {88, 0, 127, 64}, {89, 0, 13, 0}, {90, 0, 127, 64},
    {93, 0, 127, 64}, {94, 0, 127, 0}, {95, 0, 127, 64}, {97, 0, 10, 0}, {98, 0, 127, 127},
    {100, 0, 127, 0}, {101, 0, 127, 0}, {106, 0, 127, 64}, {107, 0, 127, 64}, {108, 0, 127, 64},
    {109, 0, 13, 0}, {110, 0, 127, 64}, {113, 0, 127, 64}, {114, 0, 127, 0}, {115, 0, 127, 64},
    {117, 0, 1, 0}, {121, 0, 127, 110}, {122, 0, 127, 109}, {123, 0, 13, 5}, {124, 0, 127, 64},
    {125, 0, 127, 0}, {128, 0, 127, 0}, {129, 0, 127, 0}, {130, 0, 127, 0}, {131, 0, 127, 0},
    {132, 0, 127, 0}, {133, 0, 127, 0}, {134, 0, 127, 0}, {135, 0, 127, 0}, {136, 0, 127, 0},
    {137, 0, 127, 0}, {138, 0, 127, 0}, {139, 0, 127, 0}, {140, 0, 127, 0}, {141, 0, 127, 0},
    {142, 0, 127, 0}, {143, 0, 127, 0}, {144, 0, 127, 0}, {145, 0, 127, 0}, {146, 0, 127, 0},
    {147, 0, 127, 0}, {148, 0, 127, 0}, {149, 0, 127, 0}, {150, 0, 127, 100}, {151, 0, 127, 100},
    {152, 0, 127, 0}, {153, 0, 127, 0}, {154, 0, 127, 0}, {155, 0, 127, 0}, {156, 0, 127, 15},
    {157, 0, 127, 0}, {158, 0, 127, 0}, {159, 0, 127, 0}, {160, 0, 5, 0}, {161, 0, 127, 50},
    {163, 0, 1, 0}, {164, 0, 1, 0}, {165, 0, 127, 0}, {166, 0, 127, 0}, {167, 0, 127, 64},
    {170, 0, 127, 64}, {172, 0, 5, 0}, {173, 0, 127, 40}, {175, 0, 1, 0}, {176, 0, 1, 0},
    {177, 0, 127, 0}, {178, 0, 127, 0}, {179, 0, 127, 64}, {182, 0, 127, 64}, {184, 0, 5, 0},
    {185, 0, 127, 30}, {187, 0, 1, 0}, {188, 0, 1, 0}, {189, 0, 127, 0}, {190, 0, 127, 0},
    {191, 0, 127, 64}, {194, 0, 127, 64}, {196, 0, 127, 0}, {199, 0, 127, 0}, {200, 0, 127, 0},
    {201, 0, 127, 0}, {202, 0, 127, 127}, {203, 0, 127, 0}, {204, 0, 127, 0}, {205, 0, 127, 0},
    {208, 0, 127, 0}, {211, 0, 127, 0}, {212, 0, 127, 0}, {213, 0, 127, 0}, {214, 0, 127, 127},
    {215, 0, 127, 0}, {216, 0, 127, 0}, {217, 0, 127, 0}, {220, 0, 127, 0}, {223, 0, 127, 0},
    {224, 0, 127, 0}, {225, 0, 127, 0}, {226, 0, 127, 127}, {227, 0, 127, 0}, {228, 0, 127, 0},
    {229, 0, 127, 0}, {232, 0, 127, 0}, {235, 0, 127, 0}, {236, 0, 127, 0}, {237, 0, 127, 0},
    {238, 0, 127, 127}, {239, 0, 127, 0}, {240, 0, 127, 0}, {241, 0, 127, 0}, {245, 0, 127, 0},
    {246, 0, 127, 0}, {247, 0, 127, 0}, {248, 0, 127, 64}, {249, 0, 127, 0}, {250, 0, 127, 0},
    {251, 0, 127, 0}, {252, 0, 127, 64}, {253, 0, 127, 0}, {254, 0, 127, 0}, {255, 0, 127, 0},
    {257, 0, 127, 64}, {258, 0, 127, 0}, {259, 0, 127, 0}, {260, 0, 127, 0}, {261, 0, 127, 64},
    {262, 0, 127, 0}, {263, 0, 127, 0}, {264, 0, 127, 64}, {265, 0, 127, 0}, {266, 0, 127, 0},
    {267, 0, 127, 64}, {268, 0, 127, 0}, {269, 0, 127, 0}, {270, 0, 127, 64}, {271, 0, 127, 0},
    {272, 0, 127, 0}, {273, 0, 127, 64}, {274, 0, 127, 0}, {275, 0, 127, 0}, {276, 0, 127, 64},
    {277, 0, 127, 0}, {278, 0, 127, 0}, {279, 0, 127, 64}, {280, 0, 127, 0}, {281, 0, 127, 0},
    {282, 0, 127, 64}, {283, 0, 127, 0}, {284, 0, 127, 0}, {285, 0, 127, 64}, {286, 0, 127, 0},
    {287, 0, 127, 0}, {288, 0, 127, 64}, {289, 0, 127, 0}, {290, 0, 127, 0}, {291, 0, 127, 64},
    {292, 0, 127, 0}, {293, 0, 127, 0}, {294, 0, 127, 64}, {295, 0, 127, 0}, {296, 0, 127, 0},
    {297, 0, 127, 64}, {298, 0, 127, 0}, {299, 0, 127, 0}, {300, 0, 127, 64}, {301, 0, 127, 0},
    {302, 0, 127, 0}, {303, 0, 127, 64}, {304, 0, 127, 0}, {305, 0, 127, 0}, {306, 0, 127, 64},
    {307, 0, 127, 0}, {308, 0, 127, 0}, {309, 0, 127, 64}, {312, 0, 127, 0}, {313, 0, 127, 0},
    {314, 0, 127, 15}, {315, 0, 127, 9}, {316, 0, 127, 11}, {317, 0, 127, 0}, {318, 0, 127, 0},
    {319, 0, 127, 0}, {320, 0, 127, 0}, {321, 0, 127, 0}, {322, 0, 127, 0}, {323, 0, 127, 0},
    {324, 0, 127, 15}, {328, 0, 127, 4}, {329, 0, 127, 4}, {330, 0, 127, 4}, {331, 0, 127, 4},
    {332, 0, 127, 4}, {333, 0, 127, 4}, {334, 0, 127, 4}, {335, 0, 127, 4}, {336, 0, 127, 4},
    {337, 0, 127, 4}, {338, 0, 127, 4}, {339, 0, 127, 4}, {340, 0, 127, 4}, {341, 0, 127, 4},
    {342, 0, 127, 4}, {343, 0, 127, 4}, {344, 0, 127, 68}, {345, 0, 127, 68}, {346, 0, 127, 68},
    {347, 0, 127, 68}, {348, 0, 127, 68}, {349, 0, 127, 68}, {350, 0, 127, 68}, {351, 0, 127, 68},
    {352, 0, 127, 68}, {353, 0, 127, 68}, {354, 0, 127, 68}, {355, 0, 127, 68}, {356, 0, 127, 68},
    {357, 0, 127, 68}, {358, 0, 127, 68}, {359, 0, 127, 68}, {364, 0, 127, 84}, {365, 0, 127, 101},
    {366, 0, 127, 115}, {367, 0, 127, 115}, {368, 0, 127, 111}, {369, 0, 127, 114},
    {370, 0, 127, 111}, {371, 0, 127, 32}, {372, 0, 127, 86}, {373, 0, 127, 50}, {374, 0, 127, 46},
    {375, 0, 127, 48}, {376, 0, 127, 32}, {377, 0, 127, 84}, {378, 0, 127, 101},
    {379, 0, 127, 115}, {380, 0, 127, 73}, {381, 0, 127, 110}, {382, 0, 127, 105},
    {383, 0, 127, 116},
};

const ControllerClaim ControllerClaims[] = {
    // controller, number, controls
    {27, 1, {"ComboOSC1oct"}}, {29, 3, {"TextOSC1detune"}}, {31, 8, {"ComboOSC1shape"}},
    {35, 17, {"ComboOSC2oct"}}, {37, 19, {"TextOSC2detune"}}, {39, 24, {"ComboOSC2shape"}},
    {42, 33, {"ComboOSC3oct"}}, {44, 35, {"TextOSC3detune"}}, {46, 40, {"ComboOSC3shape"}},
    {52, 61, {"VScrollOSC1vol", "CheckOSC1mute"}}, {53, 62, {"TextOSC1fbalance"}},
    {56, 63, {"VScrollOSC2vol", "CheckOSC2mute"}}, {57, 64, {"TextOSC2fbalance"}},
    {58, 65, {"VScrollOSC3vol", "CheckOSC3mute"}}, {59, 66, {"TextOSC3fbalance"}},
    {67, 117, {"TextFilterParSer"}}, {68, 0, {"ComboFilter1"}}, {79, 97, {"ComboFilter2"}},
    {95, 199, {"TextEnv2T1"}}, {96, 201, {"TextEnv2T2"}}, {100, 205, {"TextEnv2T3"}},
    {101, 211, {"TextEnv1T1"}}, {102, 213, {"TextEnv1T2"}}, {103, 214, {"TextEnv1L2"}},
    {106, 217, {"TextEnv1T3"}},
};

constexpr Numbers NeverSent[] = {
    // from, to
    {14, 16}, {30, 32}, {44, 48}, {52, 52}, {54, 55}, {60, 60}, {69, 70}, {73, 74}, {77, 77},
    {79, 79}, {82, 85}, {91, 92}, {96, 96}, {99, 99}, {102, 105}, {111, 112}, {116, 116},
    {118, 120}, {126, 127}, {162, 162}, {168, 169}, {171, 171}, {174, 174}, {180, 181}, {183, 183},
    {186, 186}, {192, 193}, {195, 195}, {197, 198}, {206, 207}, {209, 210}, {218, 219}, {221, 222},
    {230, 231}, {233, 234}, {242, 244}, {256, 256}, {310, 311}, {325, 327}, {360, 363},
};
// clang-format on

std::vector<ParameterRow> AllRows() {
  std::vector<ParameterRow> rows;
  for (const auto half : {SingleParameters(), GroupParameters()})
    rows.insert(rows.end(), half.begin(), half.end());
  return rows;
}

std::vector<std::string> SplitNames(std::string_view list) {
  std::vector<std::string> names;
  std::istringstream stream{std::string(list)};
  for (std::string name; stream >> name;)
    names.push_back(name.back() == ',' ? name.substr(0, name.size() - 1) : name);
  return names;
}

bool StandsOnAForm(const Application &app, const std::string &control) {
  return std::ranges::any_of(
      app.Forms(), [&](const Form *form) { return form->FindControl(control) != nullptr; });
}

// The values of the parameter changes among the messages, by number; the last one counts.
std::map<int, int> LastValues(const std::vector<std::string> &messages) {
  std::map<int, int> values;
  for (const std::string &message : messages) {
    unsigned high = 0;
    unsigned low = 0;
    unsigned value = 0;
    if (std::sscanf(message.c_str(), "F0 3E 10 00 20 00 %2X %2X %2X F7", &high, &low, &value) != 3)
      continue;
    constexpr unsigned block = 128;
    const unsigned address = block * high + low;
    // From the gap on, the numbers are one above the addresses.
    values[static_cast<int>(high < 2 ? address : address + 1)] = static_cast<int>(value);
  }
  return values;
}

TEST(Catalogue, HasNoNumberTwice) {
  std::map<int, std::string_view> names;
  for (const ParameterRow &row : AllRows()) {
    const auto [first, isNew] = names.emplace(row.number, row.name);
    EXPECT_TRUE(isNew) << row.number << " is \"" << first->second << "\" and \"" << row.name << '"';
  }
}

TEST(Catalogue, HasNoNameTwice) {
  std::set<std::string> names;
  for (const ParameterRow &row : AllRows())
    EXPECT_TRUE(row.name.starts_with("FX value") || names.insert(std::string(row.name)).second)
        << row.name;
}

TEST(Catalogue, LeavesOutWhatIsNeverSentAndNothingElse) {
  std::set<int> never;
  for (const Numbers &range : NeverSent)
    for (int number = range.first; number <= range.last; ++number)
      never.insert(number);
  for (int number = 1; number <= HighestNumber; ++number)
    EXPECT_EQ(FindParameter(number) == nullptr, never.contains(number))
        << number << "; NeverSent above tells of it";
}

TEST(Catalogue, EndsAtItsLimits) {
  for (const int number : {-1, 0, HighestNumber + 1})
    EXPECT_THAT(FindParameter(number), IsNull()) << number;
}

TEST(Catalogue, HasAGapAt256WhereTheAddressesHaveNone) {
  EXPECT_THAT(FindParameter(255), NotNull());
  EXPECT_THAT(FindParameter(256), IsNull());
  EXPECT_THAT(FindParameter(257), NotNull());
  TestRun run;
  run.StartWithOpenPorts();
  run.app.Module1.SendSoundParam(255, 1);
  run.app.Module1.SendSoundParam(257, 1);
  EXPECT_THAT(run.midi.messages,
              ElementsAre(ParameterMessage(1, 127, 1), ParameterMessage(2, 0, 1)));
}

TEST(Catalogue, HasTheseWireValues) {
  for (const ParameterRow &row : AllRows())
    EXPECT_EQ(std::ranges::count(WireClaims, row.number, &WireClaim::number), 1)
        << row.number << ' ' << row.name << "; WireClaims above tells of it";
  for (const WireClaim &claim : WireClaims) {
    SCOPED_TRACE(claim.number);
    const ParameterRow *row = FindParameter(claim.number);
    ASSERT_THAT(row, NotNull());
    EXPECT_EQ(row->number, claim.number);
    EXPECT_EQ(row->lowest, claim.lowest);
    EXPECT_EQ(row->highest, claim.highest);
    EXPECT_EQ(row->init, claim.init);
  }
}

TEST(Catalogue, TellsWhatAnInitLeavesBehind) {
  TestRun run;
  run.StartWithOpenPorts();
  run.app.F_Tessoro.InitPanelParams();
  run.Forget();
  // Only the second init sends nothing from its controls.
  run.app.F_Tessoro.InitPanelParams();
  const std::map<int, int> values = LastValues(run.midi.messages);
  for (const ParameterRow &row : AllRows()) {
    const auto found = values.find(row.number);
    EXPECT_EQ(found == values.end() ? NoInit : found->second, row.init) << row.number;
  }
}

TEST(Catalogue, HasNoInitOutsideItsWireValues) {
  for (const ParameterRow &row : AllRows())
    EXPECT_TRUE(row.init == NoInit || (row.lowest <= row.init && row.init <= row.highest))
        << row.number;
}

TEST(Catalogue, PairsTheseControllersWithTheirNumbers) {
  for (const ControllerRow &row : Controllers())
    EXPECT_EQ(std::ranges::count(ControllerClaims, row.controller, &ControllerClaim::controller), 1)
        << row.controller << ' ' << row.name << "; ControllerClaims above tells of it";
  for (const ControllerClaim &claim : ControllerClaims) {
    SCOPED_TRACE(claim.controller);
    const ControllerRow *controller = FindController(claim.controller);
    ASSERT_THAT(controller, NotNull());
    EXPECT_EQ(controller->number, claim.number);
    if (claim.number == 0)
      continue;
    const ParameterRow *row = FindParameter(claim.number);
    ASSERT_THAT(row, NotNull());
    EXPECT_EQ(row->controller, claim.controller);
    EXPECT_EQ(SplitNames(row->shownBy), claim.controls);
    EXPECT_EQ(row->name, controller->name);
    EXPECT_EQ(row->display, controller->display);
  }
  EXPECT_THAT(FindController(1), IsNull());
}

TEST(Catalogue, NamesOnlyControlsThatStandOnAForm) {
  const TestRun run;
  for (const ParameterRow &row : AllRows())
    for (const std::string &control : SplitNames(row.shownBy))
      EXPECT_TRUE(StandsOnAForm(run.app, control)) << row.number << ' ' << control;
}

TEST(Catalogue, HasAControlSendANumberUnlessAControllerGoesInItsPlace) {
  for (const ParameterRow &row : AllRows())
    EXPECT_EQ(row.sentBy.find('C') != std::string_view::npos,
              !row.shownBy.empty() && row.controller == 0)
        << row.number;
}

struct DisplayClaim {
  Display display;
  int wire;
  const char *text;
};

TEST(Catalogue, TellsWireValuesAsTheControlsShowThem) {
  constexpr DisplayClaim claims[] = {
      {Display::Wire, 100, "100"},
      {Display::Signed, 0, "-64"},
      {Display::Signed, 64, "0"},
      {Display::Signed, 127, "+63"},
      {Display::Octave, 112, "1/2\""},
      {Display::Octave, 113, "113"},
      {Display::Shape, 2, "Saw"},
      {Display::FilterType, 0, "---- Bypass"},
      {Display::ModSource, 13, "Pressure"},
      {Display::FmSource, 11, "11 Env4"},
      {Display::FmSource, 12, "12"},
      {Display::FmSource, -1, "-1"},
      {Display::SubFrequency, 31, "32"},
      {Display::GlideMode, 3, "Fingered Gliss."},
      {Display::LfoShape, 5, "05 S&H"},
      {Display::Checked, 0, "off"},
      {Display::Checked, 1, "on"},
      {Display::Allocation, 17, "Mono, unisono Dual"},
      {Display::Allocation, 80, "Poly, unisono 6x"},
      {Display::Allocation, 112, "Poly, unisono 7"},
      {Display::Routing, 0, "parallel"},
      {Display::Routing, 1, "serial"},
      {Display::Character, 65, "'A'"},
      {Display::Character, 31, "31"},
  };
  for (const DisplayClaim &claim : claims)
    EXPECT_EQ(DisplayText(claim.display, claim.wire), claim.text);
}

} // namespace
} // namespace Tessoro
