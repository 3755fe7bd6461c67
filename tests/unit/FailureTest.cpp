#include "surface/Failure.hpp"

#include <gtest/gtest.h>

#include <exception>
#include <map>
#include <string>

namespace Tessoro {
namespace {

TEST(Failure, EachNumberHasItsText) {
  const std::map<int, std::string> texts = {
      {5, "Invalid procedure call or argument"},
      {6, "Overflow"},
      {9, "Subscript out of range"},
      {13, "Type mismatch"},
      {52, "Bad file name or number"},
      {53, "File not found"},
      {62, "Input past end of file"},
      {68, "Device unavailable"},
      {75, "Path/File access error"},
      {76, "Path not found"},
      {380, "Invalid property value"},
  };
  for (const auto &[number, text] : texts) {
    EXPECT_EQ(Failure(number).Number(), number);
    EXPECT_EQ(Failure(number).Text(), text);
  }
}

TEST(Failure, NamesStandForTheNumbersThatTheUserSees) {
  EXPECT_EQ(FailureCode::InvalidProcedureCall, 5);
  EXPECT_EQ(FailureCode::Overflow, 6);
  EXPECT_EQ(FailureCode::SubscriptOutOfRange, 9);
  EXPECT_EQ(FailureCode::TypeMismatch, 13);
  EXPECT_EQ(FailureCode::BadFileNameOrNumber, 52);
  EXPECT_EQ(FailureCode::FileNotFound, 53);
  EXPECT_EQ(FailureCode::InputPastEndOfFile, 62);
  EXPECT_EQ(FailureCode::DeviceUnavailable, 68);
  EXPECT_EQ(FailureCode::PathFileAccessError, 75);
  EXPECT_EQ(FailureCode::PathNotFound, 76);
  EXPECT_EQ(FailureCode::InvalidPropertyValue, 380);
}

TEST(Failure, ATextOfItsOwnReplacesThatOfTheNumber) {
  const Failure failure(FailureCode::TypeMismatch, "not a cutoff");
  EXPECT_EQ(failure.Number(), 13);
  EXPECT_EQ(failure.Text(), "not a cutoff");
}

TEST(Failure, ANumberThatIsNotListedStillHasAText) {
  EXPECT_EQ(Failure(7).Number(), 7);
  EXPECT_EQ(Failure(7).Text(), "Unexpected failure");
}

TEST(Failure, IsAnExceptionThatTellsItsText) {
  try {
    throw Failure(FailureCode::FileNotFound);
  } catch (const std::exception &exception) {
    EXPECT_STREQ(exception.what(), "File not found");
  }
}

} // namespace
} // namespace Tessoro
