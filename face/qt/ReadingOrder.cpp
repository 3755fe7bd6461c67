#include "face/qt/ReadingOrder.hpp"

#include "surface/Decoration.hpp"
#include "surface/Form.hpp"

#include <algorithm>

namespace Tessoro {

namespace {

// Tops that differ by less stand in one row.
constexpr int RowTolerance = 150; // twips

template <typename Item> void SortByRows(std::vector<Item *> &items) {
  std::stable_sort(items.begin(), items.end(), [](const Item *one, const Item *other) {
    return one->DesignPlace().top < other->DesignPlace().top;
  });
  for (auto begin = items.begin(); begin != items.end();) {
    const int top = (*begin)->DesignPlace().top;
    const auto end = std::find_if(begin, items.end(), [&](const Item *item) {
      return item->DesignPlace().top >= top + RowTolerance;
    });
    std::stable_sort(begin, end, [](const Item *one, const Item *other) {
      return one->DesignPlace().left < other->DesignPlace().left;
    });
    begin = end;
  }
}

std::vector<const Shape *> PanelsOf(const Form &form) {
  std::vector<const Shape *> panels;
  for (const Control *control : form.Controls())
    if (const auto *shape = dynamic_cast<const Shape *>(control))
      if (shape->Kind() == ShapeKind::Panel)
        panels.push_back(shape);
  SortByRows(panels);
  return panels;
}

bool StandsIn(const Shape &panel, const Control &control) {
  const Place &place = control.DesignPlace();
  const Place &area = panel.DesignPlace();
  const int x = place.left + place.width / 2;
  const int y = place.top + place.height / 2;
  return x >= area.left && x < area.left + area.width && y >= area.top &&
         y < area.top + area.height;
}

} // namespace

std::vector<Control *> ReadingOrder(const Form &form) {
  std::vector<Control *> left = form.Controls();
  std::vector<Control *> order;
  for (const Shape *panel : PanelsOf(form)) {
    const auto others = std::stable_partition(
        left.begin(), left.end(), [&](const Control *each) { return StandsIn(*panel, *each); });
    std::vector<Control *> inPanel(left.begin(), others);
    left.erase(left.begin(), others);
    SortByRows(inPanel);
    order.insert(order.end(), inPanel.begin(), inPanel.end());
  }
  order.insert(order.end(), left.begin(), left.end());
  return order;
}

} // namespace Tessoro
