#pragma once

#include <string>
#include <string_view>

namespace vireo {

enum class ExportEncoding { kUtf8, kWindows1252 };
// What becomes of italics in the exported text.
enum class ItalicMarks { kDropped, kUnderscores };

// The book text (Windows-1252, with paragraph marks and style codes) as
// plain text: paragraphs separated by one blank line, forced line ends kept,
// style and layout codes removed, italics dropped or written as underscores.
// The result is Windows-1252 bytes.
std::string PlainBookText(std::string_view book_text, ItalicMarks italics);

// Plain Windows-1252 text in the chosen encoding.
std::string EncodeExport(std::string_view plain_text, ExportEncoding encoding);

// Why `target` may not be written by an export, or "" when it may: it is
// the running program or the open book (compared as files, so other
// spellings of the path count). Translated.
std::string ExportTargetProblem(const std::string& target, const std::string& program_path,
                                const std::string& book_path);

}  // namespace vireo
