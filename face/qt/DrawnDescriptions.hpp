// What screen readers learn of the controls that a ground draws, as if they were widgets.
#pragma once

#include "surface/Property.hpp"

#include <QAccessible>

#include <memory>

namespace Tessoro {

class DrawnControl;
class Ground;

// The descriptions belong to the toolkit, and last as long as the ground.
QAccessibleInterface *DescribeGround(Ground &ground);
QAccessibleInterface *DescriptionOf(Ground &ground, const DrawnControl &drawn);

// What a reader is to be told of a change of the property; null where that is nothing.
std::unique_ptr<QAccessibleEvent> NewsOf(Ground &ground, const DrawnControl &drawn,
                                         Property property);
// Where anybody listens.
void TellScreenReaders(Ground &ground, const DrawnControl &drawn, Property property);

} // namespace Tessoro
