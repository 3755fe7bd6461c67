#include "tests/endtoend/WindowManager.hpp"

#include "tests/endtoend/Waiting.hpp"

#include <xcb/xcb.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <optional>
#include <stdexcept>
#include <thread>
#include <vector>

namespace Tessoro::Tests {
namespace {

// Not that of whoever runs the tests.
constexpr const char *Settings = "/etc/xdg/openbox/rc.xml";

using Connection = std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)>;
template <typename Reply> using Answer = std::unique_ptr<Reply, decltype(&std::free)>;

Connection Connect(const VirtualDisplay &display) {
  return {xcb_connect(display.Name().c_str(), nullptr), &xcb_disconnect};
}

Answer<xcb_query_tree_reply_t> TreeOf(const Connection &connection, xcb_window_t window) {
  return {xcb_query_tree_reply(connection.get(), xcb_query_tree(connection.get(), window), nullptr),
          &std::free};
}

// The window below the root that holds this one; itself where nothing is around it.
xcb_window_t Outermost(const Connection &connection, const std::string &window) {
  auto outermost = static_cast<xcb_window_t>(std::stoul(window));
  for (;;) {
    const auto tree = TreeOf(connection, outermost);
    if (!tree || tree->parent == tree->root || tree->parent == XCB_NONE)
      return outermost;
    outermost = tree->parent;
  }
}

// As they lie, the lowest first.
std::vector<xcb_window_t> ChildrenOf(const Connection &connection, xcb_window_t window) {
  const auto tree = TreeOf(connection, window);
  if (!tree)
    return {};
  const xcb_window_t *first = xcb_query_tree_children(tree.get());
  return {first, first + xcb_query_tree_children_length(tree.get())};
}

std::vector<xcb_window_t> Stack(const Connection &connection) {
  return ChildrenOf(connection,
                    xcb_setup_roots_iterator(xcb_get_setup(connection.get())).data->root);
}

// On the display.
std::optional<Area> AreaOf(const Connection &connection, xcb_window_t window) {
  const Answer<xcb_get_geometry_reply_t> size(
      xcb_get_geometry_reply(connection.get(), xcb_get_geometry(connection.get(), window), nullptr),
      &std::free);
  if (!size)
    return std::nullopt;
  const Answer<xcb_translate_coordinates_reply_t> place(
      xcb_translate_coordinates_reply(
          connection.get(), xcb_translate_coordinates(connection.get(), window, size->root, 0, 0),
          nullptr),
      &std::free);
  if (!place)
    return std::nullopt;
  return Area{place->dst_x, place->dst_y, size->width, size->height};
}

// They are small squares that can be seen; the corners for dragging can't.
bool IsButton(const Connection &connection, xcb_window_t window, const Area &area) {
  constexpr int least = 8;
  constexpr int most = 32;
  const Answer<xcb_get_window_attributes_reply_t> attributes(
      xcb_get_window_attributes_reply(connection.get(),
                                      xcb_get_window_attributes(connection.get(), window), nullptr),
      &std::free);
  return attributes && attributes->_class == XCB_WINDOW_CLASS_INPUT_OUTPUT &&
         attributes->map_state == XCB_MAP_STATE_VIEWABLE && area.width >= least &&
         area.width <= most && std::abs(area.width - area.height) <= 2;
}

// From the right.
std::vector<Area> ButtonsOf(const Connection &connection, xcb_window_t frame, xcb_window_t framed) {
  std::vector<Area> buttons;
  for (const xcb_window_t strip : ChildrenOf(connection, frame)) {
    if (strip == framed)
      continue;
    for (const xcb_window_t each : ChildrenOf(connection, strip)) {
      const std::optional<Area> area = AreaOf(connection, each);
      if (area && IsButton(connection, each, *area))
        buttons.push_back(*area);
    }
  }
  std::ranges::sort(buttons,
                    [](const Area &one, const Area &other) { return one.left > other.left; });
  return buttons;
}

} // namespace

bool WindowManager::IsInstalled() { return !OutputOf("command -v openbox").empty(); }

// A window that comes up before it is ready may never be shown.
WindowManager::WindowManager(const VirtualDisplay &managed)
    : display(managed), sign(NewTestDirectory() / "ready"),
      program({"openbox", "--sm-disable", "--config-file", Settings, "--startup",
               "touch " + sign.string()},
              {"DISPLAY=" + managed.Name()}) {
  WaitFor("a window manager", [this] { return std::filesystem::exists(sign); });
}

WindowManager::~WindowManager() {
  std::error_code ignored;
  std::filesystem::remove_all(sign.parent_path(), ignored);
}

Area WindowManager::FrameOf(const std::string &window) const {
  const Connection connection = Connect(display);
  const std::optional<Area> area = AreaOf(connection, Outermost(connection, window));
  if (!area)
    throw std::runtime_error("no frame around " + window);
  return *area;
}

bool WindowManager::LiesAbove(const std::string &upper, const std::string &lower) const {
  return Eventually(
      [&] {
        const Connection connection = Connect(display);
        const std::vector<xcb_window_t> stack = Stack(connection);
        return std::find(stack.begin(), stack.end(), Outermost(connection, upper)) >
               std::find(stack.begin(), stack.end(), Outermost(connection, lower));
      },
      std::chrono::seconds(5));
}

void WindowManager::Click(const std::string &window, FrameButton button) const {
  const Connection connection = Connect(display);
  const auto number = static_cast<std::size_t>(button);
  std::vector<Area> buttons;
  WaitFor("the buttons in the frame of " + window, [&] {
    buttons = ButtonsOf(connection, Outermost(connection, window),
                        static_cast<xcb_window_t>(std::stoul(window)));
    return buttons.size() > number;
  });
  const Area &area = buttons[number];
  display.Click({{.x = area.left + area.width / 2, .y = area.top + area.height / 2}});
}

void WindowManager::DragCorner(const std::string &window, Point way, int steps,
                               std::chrono::milliseconds pause) const {
  const Area frame = FrameOf(window);
  const Point corner{.x = frame.left + frame.width - 2, .y = frame.top + frame.height - 2};
  display.Press({corner});
  for (int step = 1; step <= steps; ++step) {
    display.PointAt({{.x = corner.x + way.x * step / steps, .y = corner.y + way.y * step / steps}});
    std::this_thread::sleep_for(pause);
  }
  display.ReleaseButton();
}

} // namespace Tessoro::Tests
