// The order in which Tab goes through a form.
#pragma once

#include <vector>

namespace Tessoro {

class Control;
class Form;

// As one reads: panel by panel, and in each panel row by row from the left. What stands in no panel
// comes behind, in the order of its declaration.
std::vector<Control *> ReadingOrder(const Form &form);

} // namespace Tessoro
