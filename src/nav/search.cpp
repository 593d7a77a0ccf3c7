#include "nav/search.h"

#include <algorithm>

#include "nav/page_navigation.h"
#include "support/text_helpers.h"

namespace vireo {
namespace {

// WhichPage of a 1-based position, clamped to 1..count as its callers do.
int ClampedPage(const PageIndex& pages, int32_t position) {
  return std::clamp<int>(WhichPage(pages, position), 1, std::max<int32_t>(pages.count, 1));
}

}  // namespace

void BookSearch::SetText(std::string_view text) { upper_ = UpperCase(text); }

std::optional<int> BookSearch::Search(std::string_view term, SearchDirection direction,
                                      int current_page, const PageIndex& pages) const {
  const std::string upper_term = UpperCase(term);
  if (upper_term.empty()) return std::nullopt;
  return direction == SearchDirection::kForward ? Forward(upper_term, current_page, pages)
                                                : Backward(upper_term, current_page, pages);
}

std::optional<int> BookSearch::Forward(const std::string& term, int current_page,
                                       const PageIndex& pages) const {
  for (int page = current_page + 1; page <= pages.count;) {
    const int32_t start = std::max<int32_t>(pages.PageStart(page), 1);
    const size_t found = upper_.find(term, static_cast<size_t>(start - 1));
    if (found == std::string::npos) return std::nullopt;
    const int match_page = ClampedPage(pages, static_cast<int32_t>(found + 1));
    if (match_page != current_page) return match_page;
    page = std::max(match_page, page) + 1;  // always onwards, whatever the clamp gave
  }
  return std::nullopt;
}

std::optional<int> BookSearch::Backward(const std::string& term, int current_page,
                                        const PageIndex& pages) const {
  for (int page = current_page - 1; page > 0;) {
    const size_t limit = static_cast<size_t>(std::max<int32_t>(pages.PageStart(page), 0));
    if (limit < term.size()) return std::nullopt;
    const size_t found = upper_.rfind(term, limit - term.size());
    if (found == std::string::npos) return std::nullopt;
    const int match_page = ClampedPage(pages, static_cast<int32_t>(found + 1));
    if (match_page != current_page) return match_page;
    page = std::min(match_page, page) - 1;
  }
  return std::nullopt;
}

}  // namespace vireo
