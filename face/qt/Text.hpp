// The edge between the texts of the model, single bytes of Windows-1252, and those of Qt.
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace Tessoro {

QString FromModel(std::string_view text);
// A character that has no byte becomes '?'.
std::string ToModel(const QString &text);

// The sign between a number's whole and its fraction, as the model reads it: a point in place of
// one that isn't a single byte there.
char DecimalSignOf(const QString &localeSign);

// Carriage returns and line feeds, alone or in pairs of either order, become one '\n' each.
QString WithLineBreaks(const QString &text);
// As people read it: without the & before an access key, and with && as &.
QString WithoutAccessKey(const QString &caption);

// What a user made of a text in a field of one line: something pasted ends at its first line break.
QString InOneLine(const QString &before, const QString &edited);

} // namespace Tessoro
