#include "render/book_pages.h"

#include <utility>

namespace vireo {

void BookPages::SetText(std::string book_text) {
  text = std::move(book_text);
  styles = StylesUsed::In(text);
}

PageContent BookPages::Page(int page) const {
  PageContent content;
  const int32_t start = index.PageStart(page);
  const int32_t next = page < index.UpperBound() ? index.PageStart(page + 1) : 0;
  const size_t from = start > 0 ? static_cast<size_t>(start - 1) : 0;
  if (from < text.size()) {
    const size_t length = next > start ? static_cast<size_t>(next - start) : std::string::npos;
    content.text = text.substr(from, length);
  }
  content.bold = index.Bold(page);
  content.italic = index.Italic(page);
  content.underline = index.Underline(page);
  return content;
}

}  // namespace vireo
