#include "surface/Failure.hpp"

#include <utility>

namespace Tessoro {

namespace {

struct FailureRow {
  int number;
  const char *text;
};

constexpr FailureRow failureRows[] = {
    {FailureCode::InvalidProcedureCall, "Invalid procedure call or argument"},
    {FailureCode::Overflow, "Overflow"},
    {FailureCode::SubscriptOutOfRange, "Subscript out of range"},
    {FailureCode::TypeMismatch, "Type mismatch"},
    {FailureCode::BadFileNameOrNumber, "Bad file name or number"},
    {FailureCode::FileNotFound, "File not found"},
    {FailureCode::InputPastEndOfFile, "Input past end of file"},
    {FailureCode::DeviceUnavailable, "Device unavailable"},
    {FailureCode::PathFileAccessError, "Path/File access error"},
    {FailureCode::PathNotFound, "Path not found"},
    {FailureCode::InvalidPropertyValue, "Invalid property value"},
};

const char *FailureText(int number) {
  for (const FailureRow &row : failureRows)
    if (row.number == number)
      return row.text;
  return "Unexpected failure";
}

} // namespace

Failure::Failure(int code) : Failure(code, FailureText(code)) {}

Failure::Failure(int code, std::string description) : number(code), text(std::move(description)) {}

} // namespace Tessoro
