#include "app/book_text_export.h"

#include "book/make_request_check.h"
#include "book/plain_text_fallback.h"
#include "support/text_helpers.h"
#include "support/translation.h"
#include "support/windows1252.h"

namespace vireo {
namespace {

constexpr unsigned char kItalicOn = 130;
constexpr unsigned char kItalicOff = 131;

// The style and layout codes; 133 (the ellipsis) is a character and stays.
bool IsLayoutCode(unsigned char code) { return IsFormattingCode(code) && code != 133; }

// Lines lose the blanks the paragraph mark and the reformatting put around them.
std::string TrimLines(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  size_t start = 0;
  while (start <= text.size()) {
    size_t end = text.find('\n', start);
    if (end == std::string_view::npos) end = text.size();
    std::string_view line = text.substr(start, end - start);
    while (!line.empty() && (line.front() == ' ' || line.front() == '\r')) line.remove_prefix(1);
    while (!line.empty() && (line.back() == ' ' || line.back() == '\r')) line.remove_suffix(1);
    out.append(line);
    if (end < text.size()) out += '\n';
    start = end + 1;
  }
  return out;
}

std::string ReplaceParagraphMarks(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  size_t start = 0;
  for (size_t mark = text.find(ParaMark()); mark != std::string_view::npos;
       mark = text.find(ParaMark(), start)) {
    out.append(text.substr(start, mark - start)).append("\n\n");
    start = mark + ParaMark().size();
  }
  return out.append(text.substr(start));
}

}  // namespace

std::string PlainBookText(std::string_view book_text, ItalicMarks italics) {
  std::string text;
  text.reserve(book_text.size());
  for (const char c : book_text) {
    const auto code = static_cast<unsigned char>(c);
    if (italics == ItalicMarks::kUnderscores && (code == kItalicOn || code == kItalicOff)) {
      text += '_';
    } else if (!IsLayoutCode(code)) {
      text += c;
    }
  }
  return TrimLines(ReplaceParagraphMarks(text));
}

std::string EncodeExport(std::string_view plain_text, ExportEncoding encoding) {
  return encoding == ExportEncoding::kUtf8 ? Utf8FromWindows1252(plain_text)
                                           : std::string(plain_text);
}

std::string ExportTargetProblem(const std::string& target, const std::string& program_path,
                                const std::string& book_path) {
  if (!program_path.empty() && SameFile(target, program_path)) {
    return GetTranslation("The text cannot be saved over the program itself.");
  }
  if (!book_path.empty() && SameFile(target, book_path)) {
    return GetTranslation("The text cannot be saved over the open book.");
  }
  return "";
}

}  // namespace vireo
