#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vireo {

// Translation of the program's English texts. A language is a list of
// entries "English||translation" kept sorted by the lower-cased English text.
// With no language loaded (English) every text is returned unchanged.

// The text in the current language, or the text itself without a translation.
std::string GetTranslation(std::string_view text);

// Makes entries the current language (they are sorted here); an empty list
// returns to English.
void SetLanguage(std::vector<std::string> entries);

// The trimmed text before / after the first "||" ("" after when absent).
std::string BeforeBreak(std::string_view entry);
std::string AfterBreak(std::string_view entry);

// Index of the entry whose lower-cased BeforeBreak equals key, or -1.
int SeekItem(const std::vector<std::string>& entries, std::string_view key);

}  // namespace vireo
