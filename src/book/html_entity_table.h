#pragma once

#include <span>
#include <string_view>

namespace vireo {

// One named character reference of HTML 4: "&name;" stands for code_point.
struct HtmlEntity {
  std::string_view name;
  char32_t code_point;
};

// The 252 named references of HTML 4, sorted by name (byte order, so the
// case-sensitive names can be searched by binary search).
std::span<const HtmlEntity> HtmlEntities();

}  // namespace vireo
