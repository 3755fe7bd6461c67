#include "surface/Windows1252.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace Tessoro {
namespace {

constexpr unsigned HighControlsBegin = 0x80;
constexpr unsigned HighControlsEnd = 0xA0;

// The characters of the bytes 0x80 to 0x9F; all other bytes are their own character.
constexpr std::array<std::uint16_t, HighControlsEnd - HighControlsBegin> CharactersFrom80 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::optional<char> ByteOf(std::uint32_t character) {
  const bool isItsOwnByte =
      character < HighControlsBegin || (character >= HighControlsEnd && character <= 0xFF);
  if (isItsOwnByte) {
    return static_cast<char>(character);
  }
  const auto *found = std::find(CharactersFrom80.begin(), CharactersFrom80.end(), character);
  if (found == CharactersFrom80.end()) {
    return std::nullopt;
  }
  return static_cast<char>(HighControlsBegin + (found - CharactersFrom80.begin()));
}

struct Decoded {
  std::uint32_t character;
  std::size_t length; // 0 if the bytes are no UTF-8
};

constexpr Decoded NoUtf8{0, 0};

Decoded DecodeFirst(std::string_view utf8) {
  const auto byteAt = [utf8](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
  const unsigned first = byteAt(0);
  if (first < 0x80) {
    return {first, 1};
  }
  const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  if (first < 0xC2 || first > 0xF4 || utf8.size() < length) {
    return NoUtf8;
  }
  std::uint32_t character = first & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    if ((byteAt(i) & 0xC0U) != 0x80) {
      return NoUtf8;
    }
    character = character << 6 | (byteAt(i) & 0x3FU);
  }
  constexpr std::array<std::uint32_t, 5> leastOfLength = {0, 0, 0x80, 0x800, 0x10000};
  const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
  if (character < leastOfLength.at(length) || isSurrogate || character > 0x10FFFF) {
    return NoUtf8;
  }
  return {character, length};
}

// Takes the first character off the text, or one byte where the text is no UTF-8; nothing if the
// code page doesn't have it.
std::optional<char> TakeByte(std::string_view &utf8) {
  const Decoded decoded = DecodeFirst(utf8);
  utf8.remove_prefix(std::max<std::size_t>(decoded.length, 1));
  return decoded.length == 0 ? std::nullopt : ByteOf(decoded.character);
}

void AppendUtf8(std::string &utf8, std::uint32_t character) {
  if (character < 0x80) {
    utf8 += static_cast<char>(character);
  } else if (character < 0x800) {
    utf8 += static_cast<char>(0xC0 | character >> 6);
    utf8 += static_cast<char>(0x80 | (character & 0x3F));
  } else {
    utf8 += static_cast<char>(0xE0 | character >> 12);
    utf8 += static_cast<char>(0x80 | (character >> 6 & 0x3F));
    utf8 += static_cast<char>(0x80 | (character & 0x3F));
  }
}

} // namespace

std::string Windows1252FromUtf8(std::string_view utf8) {
  std::string text;
  text.reserve(utf8.size());
  while (!utf8.empty()) {
    text += TakeByte(utf8).value_or('?');
  }
  return text;
}

std::optional<std::string> ExactWindows1252FromUtf8(std::string_view utf8) {
  std::string text;
  text.reserve(utf8.size());
  while (!utf8.empty()) {
    const std::optional<char> byte = TakeByte(utf8);
    if (!byte) {
      return std::nullopt;
    }
    text += *byte;
  }
  return text;
}

std::string Utf8FromWindows1252(std::string_view text) {
  std::string utf8;
  utf8.reserve(text.size());
  for (const char each : text) {
    const auto byte = static_cast<unsigned char>(each);
    const bool isMapped = byte >= HighControlsBegin && byte < HighControlsEnd;
    AppendUtf8(utf8, isMapped ? CharactersFrom80.at(byte - HighControlsBegin) : byte);
  }
  return utf8;
}

} // namespace Tessoro
