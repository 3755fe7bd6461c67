// The list at the left of the microQ window.
#pragma once

#include "face/microq/MicroQWindow.hpp"

#include <QTreeView>

#include <stdexcept>

namespace Tessoro::Tests {

inline QTreeView &MessageListOf(const MicroQWindow &window) {
  for (QTreeView *list : window.findChildren<QTreeView *>())
    if (list->model() == &window.Messages())
      return *list;
  throw std::runtime_error("the window shows no messages");
}

} // namespace Tessoro::Tests
