// What a test asks of an X server itself.
#pragma once

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

namespace Tessoro::Tests {

struct XFree {
  void operator()(void *answer) const { std::free(answer); }
};
template <typename Answer> using XAnswer = std::unique_ptr<Answer, XFree>;

using XConnection = std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)>;

XConnection ConnectToX(const std::string &display);
xcb_atom_t XAtom(const XConnection &connection, std::string_view name);

// The text that a program offers as the clipboard; empty if none does.
std::string XClipboard(const std::string &display);

} // namespace Tessoro::Tests
