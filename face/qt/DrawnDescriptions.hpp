// What screen readers learn of the controls that a ground draws, as if they were widgets.
#pragma once

#include "surface/Property.hpp"

#include <QAccessible>

#include <optional>

namespace Tessoro {

class Control;
class DrawnControl;
class Ground;

// The descriptions belong to the toolkit, and last as long as the ground.
QAccessibleInterface *DescribeGround(Ground &ground);
QAccessibleInterface *DescriptionOf(Ground &ground, const DrawnControl &drawn);

// What a change of the property is to a reader; nothing where it is none.
std::optional<QAccessible::Event> NewsOf(const Control &control, Property property);
// Where anybody listens.
void TellScreenReaders(Ground &ground, const DrawnControl &drawn, Property property);

} // namespace Tessoro
