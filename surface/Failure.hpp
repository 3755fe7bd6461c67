// What a routine throws when it can't do what it was asked to.
#pragma once

#include <exception>
#include <string>

namespace Tessoro {

// The numbers that the user gets to see.
namespace FailureCode {
enum FailureNumber : int {
  InvalidProcedureCall = 5,
  Overflow = 6,
  SubscriptOutOfRange = 9,
  TypeMismatch = 13,
  BadFileNameOrNumber = 52,
  FileNotFound = 53,
  InputPastEndOfFile = 62,
  DeviceUnavailable = 68,
  PathFileAccessError = 75,
  PathNotFound = 76,
  InvalidPropertyValue = 380,
};
} // namespace FailureCode

class Failure : public std::exception {
public:
  // With the text that belongs to the number; "Unexpected failure" for a number not listed above.
  explicit Failure(int code);
  Failure(int code, std::string description);

  int Number() const { return number; }
  const std::string &Text() const { return text; }
  const char *what() const noexcept override { return text.c_str(); }

private:
  int number;
  std::string text;
};

} // namespace Tessoro
