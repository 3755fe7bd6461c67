// Where a port stands in the lists of the editor, by its name.
#pragma once

#include <string>

namespace Tessoro::Tests {

// Counted from 0; throws where there is none of that name. They ask the machine anew, as the editor
// does at its start.
int NumberOfOut(const std::string &name);
int NumberOfIn(const std::string &name);

} // namespace Tessoro::Tests
