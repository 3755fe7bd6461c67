#include "tests/files/PaperSound.hpp"

#include "tests/support/TestRun.hpp"

#include <array>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace Tessoro::Tests {

namespace {

constexpr int TypeMismatch = 13;
constexpr int Overflow = 6;
constexpr int InvalidPropertyValue = 380;

// How many characters of a text form a number.
std::size_t NumberLength(const std::string &text) {
  std::size_t at = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
  const std::size_t begin = at;
  while (at < text.size() &&
         (std::isdigit(static_cast<unsigned char>(text[at])) || text[at] == '.'))
    ++at;
  return at == begin || text[begin] == '.' ? 0 : at;
}

} // namespace

const std::vector<PaperRow> &ReadTable(const char *name) {
  static std::map<std::string, std::vector<PaperRow>> tables;
  std::vector<PaperRow> &rows = tables[name];
  if (!rows.empty())
    return rows;
  std::ifstream file(std::string(TESSORO_FILES_DIRECTORY) + "/" + name);
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with('#'))
      continue;
    PaperRow row;
    std::istringstream words(line);
    for (std::string word; std::getline(words, word, ' ');)
      row.push_back(word);
    rows.push_back(row);
  }
  return rows;
}

std::string RestOf(const PaperRow &row, std::size_t from) {
  std::string text;
  for (std::size_t i = from; i < row.size(); ++i)
    text += (i == from ? "" : " ") + row[i];
  return text;
}

double LeadingNumber(const std::string &text) {
  std::string plain = text;
  std::erase(plain, ' ');
  const std::size_t length = NumberLength(plain);
  return length == 0 ? 0 : std::stod(plain.substr(0, length));
}

double RealNumber(const std::string &text) {
  if (text.empty() || NumberLength(text) != text.size())
    throw PaperFailure{TypeMismatch};
  return std::stod(text);
}

int Rounded(double number) {
  const double nearest = std::nearbyint(number);
  if (nearest < -32768 || nearest > 32767)
    throw PaperFailure{Overflow};
  return static_cast<int>(nearest);
}

int StrictNumber(const std::string &text) { return Rounded(RealNumber(text)); }

std::string Printed(double number) {
  std::ostringstream text;
  text << number;
  return text.str();
}

PaperSound::PaperSound() : name(16, '?'), category(4, '?') {
  for (const PaperRow &row : ReadTable("controls.txt")) {
    controls[row[0]] = row;
    if (row[1] == "list")
      numbers[row[0]] = -1;
    else if (row[1] == "bar" || row[1] == "mute" || row[1] == "check")
      numbers[row[0]] = 0;
    else
      texts[row[0]] = "?";
  }
}

void PaperSound::Send(int parameter, int value) {
  if (value < 0 || value > 127) {
    boxes.emplace_back("Wrong SysEx value, please report this error!");
    value = 0;
  }
  const int high = parameter > 256 ? 2 : parameter > 127 ? 1 : 0;
  const int first[] = {0, 128, 257};
  messages.push_back(ParameterMessage(high, parameter - first[high], value));
}

void PaperSound::Go(const std::string &road, double value) {
  const int number = std::stoi(road.substr(1));
  if (road[0] == 'S') {
    Send(number, Rounded(value));
    return;
  }
  std::array<char, 16> word{};
  std::snprintf(word.data(), word.size(), "%08X",
                static_cast<unsigned>(std::llrint(176 + 256 * number + 65536 * value)));
  messages.emplace_back(word.data());
}

void PaperSound::SetText(const std::string &box, const std::string &text) {
  ControlCalled(box);
  if (texts.at(box) == text)
    return;
  texts[box] = text;
  Change(box);
}

void PaperSound::Clamp(const std::string &box, const PaperRow &control) {
  const std::string &kind = control[1];
  const double number = LeadingNumber(texts[box]);
  if (kind == "bi" ? number == 0 : number <= 0)
    SetText(box, "0");
  if (kind == "bi" && LeadingNumber(texts[box]) < std::stoi(control[2]))
    SetText(box, control[2]);
  if (LeadingNumber(texts[box]) > std::stoi(control[3]))
    SetText(box, control[3]);
}

const PaperRow &PaperSound::ControlCalled(const std::string &wanted) const {
  const auto found = controls.find(wanted);
  if (found == controls.end())
    throw std::runtime_error(wanted + " has no row in tests/files/controls.txt");
  return found->second;
}

void PaperSound::Change(const std::string &box) {
  const PaperRow &control = ControlCalled(box);
  const std::string &kind = control[1];
  const std::string &text = texts[box];
  if (kind == "switch") {
    if (RealNumber(text) != 1)
      SetText(box, "0");
    Go(control[4], RealNumber(text));
    return;
  }
  if (kind != "env" && text.empty())
    return;
  if (kind == "bi" && text == "-")
    return;
  Clamp(box, control);
  if (kind == "panel")
    shadows[control[5]] =
        control[5].back() == 'R' ? PaperValue::Number(StrictNumber(text)) : PaperValue::Text(text);
  Go(control[4], RealNumber(text) + (kind == "bi" ? 64 : 0));
}

void PaperSound::SetNumber(const std::string &control, int number) {
  const PaperRow &row = ControlCalled(control);
  const std::string &kind = row[1];
  const bool isList = kind == "list";
  const int highest = isList ? std::stoi(row[2]) - 1 : kind == "bar" ? 127 : 1;
  if (number < (isList ? -1 : 0) || number > highest)
    throw PaperFailure{InvalidPropertyValue};
  if (numbers[control] == number)
    return;
  numbers[control] = number;
  if (isList && number == -1 && row.size() > 6) {
    boxes.push_back(RestOf(row, 6));
  } else if (isList) {
    Go(row[3], std::stoi(row[4]) + number * std::stoi(row[5]));
  } else if (kind == "bar") {
    Go(row[2], number);
    SetNumber(row[3], 0);
  } else if (kind == "mute") {
    Go(row[2], number == 1 ? 0 : numbers[row[3]]);
  } else {
    Go(row[2], number);
  }
}

std::string PaperSound::Content(const std::string &control) const {
  const auto text = texts.find(control);
  return text != texts.end() ? '"' + text->second + '"' : std::to_string(numbers.at(control));
}

void PaperSound::SendPaddedText(std::string &text, int firstParameter, std::size_t length) {
  std::string padded = (text + std::string(length, ' ')).substr(0, length);
  for (char &character : padded) {
    if (static_cast<unsigned char>(character) > 127)
      character = '?';
    Send(firstParameter++, character);
  }
  text += padded;
}

} // namespace Tessoro::Tests
