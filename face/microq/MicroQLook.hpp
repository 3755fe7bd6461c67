// Colours and fonts of the microQ window beside those of the editor.
#pragma once

#include "face/qt/Look.hpp"

#include <QColor>
#include <QFont>

namespace Tessoro::MicroQLook {

// The text of a message that is no message.
inline QColor Fault() { return {255, 128, 112}; }
// The text of one that nobody here understands.
inline QColor Unknown() { return {190, 178, 255}; }
// Behind a value that has just changed, under amber text.
inline QColor Mark() { return {74, 62, 150}; }

// Of bytes, which stand in columns of their own.
inline QFont BytesFont(const Scale &scale) {
  QFont font = Look::Font(TextSize::Control, scale);
  font.setFamilies({QStringLiteral("Noto Sans Mono"), QStringLiteral("DejaVu Sans Mono"),
                    QStringLiteral("monospace")});
  font.setStyleHint(QFont::Monospace);
  return font;
}

} // namespace Tessoro::MicroQLook
