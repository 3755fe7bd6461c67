// A sound as the tables beside this file tell it: what each control and hidden value holds, and
// what goes out when it changes. It knows nothing of the editor's own tables.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Tessoro::Tests {

// A number of the editor's run-time failures.
struct PaperFailure {
  int number;
};

// The words of a row of a table.
using PaperRow = std::vector<std::string>;
// All rows but the remarks. They stay until the end; given a std::string, g++ 13 would suspect that
// they lie in it.
const std::vector<PaperRow> &ReadTable(const char *name);
// The rest of a row as it stands, from a word on.
std::string RestOf(const PaperRow &row, std::size_t from);

// The number with which a text begins, or 0.
double LeadingNumber(const std::string &text);
// Of the whole text; fails with 13.
double RealNumber(const std::string &text);
// To the nearest, ties to even; fails with 6.
int Rounded(double number);
int StrictNumber(const std::string &text);
std::string Printed(double number);

// A hidden value: a text, a number, or nothing yet.
struct PaperValue {
  bool isText = false;
  std::optional<std::string> content;

  static PaperValue Text(const std::string &text) { return {true, text}; }
  static PaperValue Number(double number) { return {false, Printed(number)}; }
  double AsNumber() const { return content ? RealNumber(*content) : 0; }
};

class PaperSound {
public:
  PaperSound();

  // What went out since it was last cleared, as TestMidi notes it, and the texts of the boxes.
  std::vector<std::string> messages;
  std::vector<std::string> boxes;

  std::string name;
  std::string category;
  std::map<std::string, PaperValue> shadows;

  void Send(int parameter, int value);
  // Writes a control as code does.
  void SetText(const std::string &box, const std::string &text);
  // The index of a list, the value of a bar or a check box.
  void SetNumber(const std::string &control, int number);
  // What the control shows, as it would be saved.
  std::string Content(const std::string &control) const;
  // Sends a text character by character, filled up with blanks, and puts it behind itself.
  void SendPaddedText(std::string &text, int firstParameter, std::size_t length);

private:
  // Throws, with words for who has forgotten its row.
  const PaperRow &ControlCalled(const std::string &wanted) const;
  void Go(const std::string &road, double value);
  void Change(const std::string &box);
  void Clamp(const std::string &box, const PaperRow &control);

  std::map<std::string, PaperRow> controls;
  std::map<std::string, std::string> texts;
  std::map<std::string, int> numbers;
};

// Each reads a whole file and fails as the editor does.
void LoadVersion15(PaperSound &sound, const std::string &bytes);
void LoadVersion02(PaperSound &sound, const std::string &bytes);
void LoadDump(PaperSound &sound, const std::string &bytes);
// What the button of the open form does with a file: true if the form is to close.
bool Open(PaperSound &sound, const std::string &path, const std::string &bytes);
// The file that a save leaves.
std::string Saved(const PaperSound &sound);

} // namespace Tessoro::Tests
