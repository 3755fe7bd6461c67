#include "service/PortNames.hpp"

#include <gtest/gtest.h>

namespace Tessoro {
namespace {

using Names = std::vector<std::string>;

TEST(ServicePortNamesTest, TheAddressBehindAnAlsaNameGoes) {
  EXPECT_EQ(WithoutAddress("UM-ONE:UM-ONE MIDI 1 20:0"), "UM-ONE:UM-ONE MIDI 1");
  EXPECT_EQ(WithoutAddress("a:b 128:12"), "a:b");
}

TEST(ServicePortNamesTest, WhatOnlyLooksLikeAnAddressStays) {
  EXPECT_EQ(WithoutAddress("synth:in"), "synth:in");
  EXPECT_EQ(WithoutAddress("Rack 1:2"), "Rack 1:2");
  EXPECT_EQ(WithoutAddress("a:b20:0"), "a:b20:0");
  EXPECT_EQ(WithoutAddress("a:b 20:"), "a:b 20:");
  EXPECT_EQ(WithoutAddress(""), "");
  EXPECT_EQ(WithoutAddress("12:3"), "12:3");
}

TEST(ServicePortNamesTest, OwnPortsAreKnownByClientAndPort) {
  EXPECT_TRUE(IsOwnPort("Tessoro:out"));
  EXPECT_TRUE(IsOwnPort("Tessoro-01:in"));
  EXPECT_TRUE(IsOwnPort("Tessoro:in 129:0"));
  EXPECT_FALSE(IsOwnPort("Tessoro:thru"));
  EXPECT_FALSE(IsOwnPort("Tessoro monitor:in"));
  EXPECT_FALSE(IsOwnPort("Tessoro-x:in"));
  EXPECT_FALSE(IsOwnPort("Tessoro"));
  EXPECT_FALSE(IsOwnPort("synth:in"));
}

TEST(ServicePortNamesTest, APortIsFoundWhereverItStandsNow) {
  const DeviceKey key = KeyOf({"a:x 20:0", "b:y 24:0"}, 1);
  EXPECT_EQ(FindPort({"b:y 24:0"}, key), 0U);
  EXPECT_EQ(FindPort({"a:x 20:0", "c:z 22:0", "b:y 24:0"}, key), 2U);
  EXPECT_EQ(FindPort({"a:x 20:0"}, key), std::nullopt);
}

TEST(ServicePortNamesTest, APortIsFoundUnderANewAddress) {
  const DeviceKey key = KeyOf({"a:x 20:0", "b:y 24:0"}, 1);
  EXPECT_EQ(FindPort({"a:x 20:0", "b:y 28:0"}, key), 1U);
}

TEST(ServicePortNamesTest, ATwinIsNeverTakenForTheOther) {
  const DeviceKey second = KeyOf({"b:y 20:0", "b:y 24:0"}, 1);
  EXPECT_EQ(FindPort({"b:y 20:0", "b:y 24:0"}, second), 1U);
  EXPECT_EQ(FindPort({"b:y 20:0"}, second), std::nullopt);
  EXPECT_EQ(FindPort({"b:y 20:0", "b:y 28:0"}, second), 1U);
}

TEST(ServicePortNamesTest, AClientThatItsPortRepeatsIsShownOnce) {
  EXPECT_EQ(ShownNames({"UM-ONE:UM-ONE MIDI 1 20:0", "synth:in"}),
            (Names{"UM-ONE MIDI 1", "synth:in"}));
}

TEST(ServicePortNamesTest, ShownNamesFitAndDiffer) {
  const std::string longName = "A synthesizer with a very long name:port";
  EXPECT_EQ(ShownNames({longName + " 1", longName + " 2", "b:y 20:0", "b:y 24:0", "b:y 28:0"}),
            (Names{"A synthesizer with a very long ", "A synthesizer with a very l (2)", "b:y",
                   "b:y (2)", "b:y (3)"}));
}

TEST(ServicePortNamesTest, ShownNamesAreWindows1252) {
  EXPECT_EQ(ShownNames({"Fl\xC3\xBCgel:in"}), (Names{"Fl\xFCgel:in"}));
}

} // namespace
} // namespace Tessoro
