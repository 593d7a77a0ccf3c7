#pragma once

#include <string>
#include <vector>

namespace vireo {

// Translation files: one per language in the "languages" folder beside the
// program, named CODE.lng after the language's code ("es.lng", "de.lng"),
// UTF-8 (a byte-order mark and CR LF line ends are fine). Blank lines and
// lines starting with "#" are skipped; "Language: NAME" (without "||") gives
// the language's own name; every other line is an entry "English text ||
// translation".

// The folder of the translation files beside the program.
std::string LanguagesFolder(const std::string& program_folder);

// A language offered to the reader.
struct LanguageFile {
  std::string code;  // the file's name without ".lng"
  std::string name;  // its own name, Windows-1252 (the code when the file names none)
  std::string path;
};

// The translation files in folder, ordered by name; none when the folder is
// missing.
std::vector<LanguageFile> FindLanguages(const std::string& folder);

// A translation file read.
struct LanguageText {
  std::string name;                  // "" when the file names none
  std::vector<std::string> entries;  // "English||translation", Windows-1252
};

// Reads path. A line without "||" or without English text, one that is not
// UTF-8 or holds a character Windows-1252 lacks, and a second entry for the
// same English text (in any case) are logged with their line number and
// skipped. A file that cannot be read gives no entries and is logged.
LanguageText ReadLanguageFile(const std::string& path);

}  // namespace vireo
