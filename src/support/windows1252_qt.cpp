#include "support/windows1252_qt.h"

#include "support/windows1252.h"

namespace vireo {

QString FromWindows1252(std::string_view bytes) {
  QString text;
  text.reserve(static_cast<qsizetype>(bytes.size()));
  for (char byte : bytes) {
    text.append(QChar(static_cast<char16_t>(Windows1252ToUnicode(static_cast<uint8_t>(byte)))));
  }
  return text;
}

std::string ToWindows1252(const QString& text) {
  std::string bytes;
  bytes.reserve(static_cast<size_t>(text.size()));
  for (QChar c : text)
    bytes.push_back(static_cast<char>(UnicodeToWindows1252(c.unicode()).value_or('?')));
  return bytes;
}

}  // namespace vireo
