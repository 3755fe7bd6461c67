// A shadow variable of the type number: it keeps what it was given.
#pragma once

#include "surface/Property.hpp"

#include <string>

namespace Tessoro {

// Holds nothing until it is first written, then a number or a text. A 16-bit one holds a whole
// number at all times, 0 at first.
class Shadow {
public:
  static Shadow Integer16() {
    Shadow shadow;
    shadow.isInteger16 = true;
    shadow.content = 0.0;
    return shadow;
  }

  const Value &Content() const { return content; }

  // A 16-bit shadow rounds, ties to even, and fails with 6 beyond its range.
  void SetNumber(double number);
  // A 16-bit shadow takes the text through StrictInteger, and fails as that does.
  void SetText(const std::string &text, char decimalSign);

  // Takes a field of a file in its own form: a quoted one is a text; a bare one is a number, with a
  // point, nothing if it is empty, and a text otherwise.
  void SetField(bool quoted, const std::string &text);

  // What never held anything reads as 0; a text is taken through StrictNumber, and fails as that
  // does.
  double Number(char decimalSign) const;
  // What never held anything reads as the empty text; a number is printed.
  std::string Text() const;

private:
  bool isInteger16 = false;
  Value content;
};

} // namespace Tessoro
