#include "app/page_limit.h"

#include "support/translation.h"

namespace vireo {
namespace {

void ReplaceField(std::string& text, std::string_view field, int64_t value) {
  const size_t at = text.find(field);
  if (at != std::string::npos) text.replace(at, field.size(), std::to_string(value));
}

}  // namespace

std::string PageLimitMessage(const BookPages& book) {
  const int32_t shown = BookPages::kLastShowablePage;
  if (!book.loaded || book.index.count <= shown || book.text.empty()) return "";
  // The first page that cannot be shown starts where the shown text ends.
  const int64_t shown_characters = book.index.PageStart(shown + 1) - 1;
  const int64_t percent = shown_characters * 100 / static_cast<int64_t>(book.text.size());
  std::string message = GetTranslation(
      "At this font size and window size the book has {pages} pages, but only the first "
      "{shown} ({percent} % of the text) can be shown. A smaller font or a bigger window "
      "shows more of it.");
  ReplaceField(message, "{pages}", book.index.count);
  ReplaceField(message, "{shown}", shown);
  ReplaceField(message, "{percent}", percent);
  return message;
}

}  // namespace vireo
