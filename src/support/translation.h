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

// The key a text is looked up by: its ASCII letters in lower case.
std::string LowerCase(std::string_view text);

// Marks an English text that is translated where it is shown (a form's
// caption, or an entry of a table of messages), so that the check of the
// translation files finds it. Returns text unchanged.
constexpr const char* Translatable(const char* text) { return text; }

// Index of the entry whose lower-cased BeforeBreak equals key, or -1.
int SeekItem(const std::vector<std::string>& entries, std::string_view key);

}  // namespace vireo
