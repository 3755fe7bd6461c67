// What screen readers are told of the widgets that the toolkit doesn't know.
#pragma once

namespace Tessoro {

// Gives pictures, note keys and frames a role, and bars the value that their control has.
void DescribeViewsToScreenReaders();

} // namespace Tessoro
