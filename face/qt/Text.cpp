#include "face/qt/Text.hpp"

#include "surface/Windows1252.hpp"

#include <algorithm>

namespace Tessoro {

namespace {

bool IsLineBreak(QChar character) {
  return character == u'\n' || character == u'\r' || character == QChar::LineSeparator ||
         character == QChar::ParagraphSeparator;
}

} // namespace

QString FromModel(std::string_view text) {
  const std::string utf8 = Utf8FromWindows1252(text);
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string ToModel(const QString &text) { return Windows1252FromUtf8(text.toStdString()); }

char DecimalSignOf(const QString &localeSign) {
  const std::optional<std::string> sign = ExactWindows1252FromUtf8(localeSign.toStdString());
  return sign && sign->size() == 1 ? sign->front() : '.';
}

QString WithLineBreaks(const QString &text) {
  QString lines;
  lines.reserve(text.size());
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar each = text[i];
    if (each != u'\r' && each != u'\n') {
      lines += each;
      continue;
    }
    lines += u'\n';
    const QChar other = each == u'\r' ? u'\n' : u'\r';
    if (i + 1 < text.size() && text[i + 1] == other)
      ++i;
  }
  return lines;
}

QString WithoutAccessKey(const QString &caption) {
  QString plain;
  plain.reserve(caption.size());
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if (caption[i] == u'&' && i + 1 < caption.size())
      ++i;
    plain += caption[i];
  }
  return plain;
}

QString InOneLine(const QString &before, const QString &edited) {
  if (std::none_of(edited.begin(), edited.end(), IsLineBreak))
    return edited;
  const qsizetype shorter = std::min(before.size(), edited.size());
  qsizetype head = 0;
  while (head < shorter && before[head] == edited[head])
    ++head;
  qsizetype tail = 0;
  while (tail < shorter - head &&
         before[before.size() - 1 - tail] == edited[edited.size() - 1 - tail])
    ++tail;
  const auto insertedEnd = edited.end() - tail;
  const auto lineBreak = std::find_if(edited.begin() + head, insertedEnd, IsLineBreak);
  return edited.first(lineBreak - edited.begin()) + edited.last(tail);
}

} // namespace Tessoro
