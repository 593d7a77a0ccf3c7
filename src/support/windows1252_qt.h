#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace vireo {

// Book text and translations are Windows-1252 bytes; Qt wants Unicode.
QString FromWindows1252(std::string_view bytes);
// '?' stands for a character without a byte.
std::string ToWindows1252(const QString& text);

}  // namespace vireo
