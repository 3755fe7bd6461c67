// Colours and fonts of the windows.
#pragma once

#include "face/qt/Scale.hpp"

#include <QColor>
#include <QFont>
#include <QPalette>

class QPainter;

namespace Tessoro {

// Pixel sizes at a zoom of 1.
enum class TextSize : std::uint8_t { Control = 11, Menu = 12, Heading = 12, Title = 20 };

namespace Look {

QColor FromModel(Color color);

inline constexpr double CornerRadius = 3; // pixels at a zoom of 1
// Quiet frames, and rules, on the amber ground.
QColor FrameColor();
// What can be grasped: bars' thumbs and arrows, check marks, rings around what has the focus.
QColor Ink();
// Texts of what can't be used now.
QColor FadedInk();

// Sizes are pixels, so that the system's own font size can't break a fixed place. Letters of plain
// scripts are set one after the other: short captions look alike, and need no shaping library.
QFont Font(TextSize size, const Scale &scale, QFont::Weight weight = QFont::Normal);
// The same with marks over letters, and with kerning: names of files may hold anything.
QFont ForAnyText(QFont font);

// The amber ground with black texts, and navy fields as below.
QPalette Windows();
QPalette Menus();
// Fields that show values: navy with amber texts, or blended into the ground.
QPalette Field(Color back);

enum class Direction : std::uint8_t { Left, Right, Up, Down };
// In the middle of the area.
void DrawArrow(QPainter &painter, const QRectF &area, Direction direction, const QColor &color);

// A ring that says that the focus is here, just inside of the frame.
void DrawFocusRing(QPainter &painter, const QRectF &frame, double radius, const QColor &color);

} // namespace Look

} // namespace Tessoro
