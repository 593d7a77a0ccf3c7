#include "book/replacement_report.h"

#include <fmt/format.h>

#include "support/translation.h"
#include "support/windows1252.h"

namespace vireo {
namespace {

bool ShowsByItself(char32_t c) {
  const bool control = c < 0x20 || (c >= 0x7F && c <= 0xA0);
  const bool combining = c >= 0x300 && c <= 0x36F;
  const bool space_or_format = (c >= 0x2000 && c <= 0x200F) || (c >= 0x2028 && c <= 0x202F) ||
                               (c >= 0x205F && c <= 0x206F) || c == 0x3000 || c == 0xFEFF;
  return !control && !combining && !space_or_format;
}

std::string CharacterName(char32_t c) {
  if (!ShowsByItself(c)) return fmt::format("U+{:04X}", static_cast<uint32_t>(c));
  std::string name;
  AppendUtf8(name, c);
  return name;
}

}  // namespace

void ReplacementTally::Count(char32_t code_point, std::string_view written) {
  CharacterReplacement& kind = kinds_[code_point];
  if (kind.count == 0) {
    kind.code_point = code_point;
    kind.written = written;
  }
  ++kind.count;
}

std::vector<CharacterReplacement> ReplacementTally::Kinds() const {
  std::vector<CharacterReplacement> kinds;
  kinds.reserve(kinds_.size());
  for (const auto& [code_point, kind] : kinds_) kinds.push_back(kind);
  return kinds;
}

std::vector<std::string> ReplacementReport(const std::vector<CharacterReplacement>& kinds) {
  std::vector<std::string> lines;
  for (const CharacterReplacement& kind : kinds) {
    const std::string what =
        fmt::format("{} \u00D7 {}", kind.count, CharacterName(kind.code_point));
    if (kind.written == "?") {
      lines.push_back(what + " " + GetTranslation("had no place in the book and show as ?"));
    } else if (kind.written.empty()) {
      lines.push_back(what + " " + GetTranslation("had no place in the book and are left out"));
    } else {
      lines.push_back(what + " " + GetTranslation("are written as") + " " + kind.written);
    }
  }
  return lines;
}

}  // namespace vireo
