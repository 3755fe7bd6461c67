#include "tests/endtoend/XConnection.hpp"

#include "tests/endtoend/Waiting.hpp"

namespace Tessoro::Tests {
namespace {

using namespace std::chrono_literals;

// A window that nobody sees, for answers to be sent to.
xcb_window_t MakeMailbox(const XConnection &connection) {
  const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection.get())).data;
  const xcb_window_t window = xcb_generate_id(connection.get());
  xcb_create_window(connection.get(), XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, 1, 1, 0,
                    XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
  return window;
}

bool HasNotice(const XConnection &connection) {
  const XAnswer<xcb_generic_event_t> event(xcb_poll_for_event(connection.get()));
  return event && (event->response_type & 0x7F) == XCB_SELECTION_NOTIFY;
}

} // namespace

XConnection ConnectToX(const std::string &display) {
  return {xcb_connect(display.c_str(), nullptr), &xcb_disconnect};
}

xcb_atom_t XAtom(const XConnection &connection, std::string_view name) {
  const auto request =
      xcb_intern_atom(connection.get(), 0, static_cast<std::uint16_t>(name.size()), name.data());
  const XAnswer<xcb_intern_atom_reply_t> reply(
      xcb_intern_atom_reply(connection.get(), request, nullptr));
  return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

// Longer texts would be handed over in pieces, which no test needs.
std::string XClipboard(const std::string &display) {
  constexpr std::uint32_t mostWords = 64 * 1024;
  const XConnection connection = ConnectToX(display);
  const xcb_window_t mailbox = MakeMailbox(connection);
  const xcb_atom_t utf8 = XAtom(connection, "UTF8_STRING");
  const xcb_atom_t place = XAtom(connection, "TESSORO_TEST");
  xcb_convert_selection(connection.get(), mailbox, XAtom(connection, "CLIPBOARD"), utf8, place,
                        XCB_CURRENT_TIME);
  xcb_flush(connection.get());
  if (!Eventually([&] { return HasNotice(connection); }, 5s))
    return {};
  const auto request = xcb_get_property(connection.get(), 0, mailbox, place, utf8, 0, mostWords);
  const XAnswer<xcb_get_property_reply_t> reply(
      xcb_get_property_reply(connection.get(), request, nullptr));
  if (!reply)
    return {};
  return {static_cast<const char *>(xcb_get_property_value(reply.get())),
          static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

} // namespace Tessoro::Tests
