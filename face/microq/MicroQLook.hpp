// Colours of the microQ window beside those of the editor.
#pragma once

#include <QColor>

namespace Tessoro::MicroQLook {

// The text of a message that is no message.
inline QColor Fault() { return {255, 128, 112}; }
// Behind a value that has just changed, under amber text.
inline QColor Mark() { return {74, 62, 150}; }

} // namespace Tessoro::MicroQLook
