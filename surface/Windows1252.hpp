// The text of the model is single bytes, Windows-1252. Everything outside (port names, faces, the
// file system) speaks UTF-8; these stand at that edge.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Tessoro {

// A character that has no byte becomes '?', and so does each byte that is no UTF-8.
std::string Windows1252FromUtf8(std::string_view utf8);

// Nothing where the other one would have to write a '?' of its own.
std::optional<std::string> ExactWindows1252FromUtf8(std::string_view utf8);

// Never fails: the five bytes without a character become the control characters of their number,
// and find back to the same byte.
std::string Utf8FromWindows1252(std::string_view text);

} // namespace Tessoro
