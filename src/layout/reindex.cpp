#include "layout/reindex.h"

#include "layout/pagination_pass.h"
#include "support/error_trap.h"
#include "support/text_helpers.h"
#include "support/user_interaction.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "clsReindex";
constexpr char kPageBreakMark[] = {' ', static_cast<char>(134), ' '};

}  // namespace

void clsReindex::Yield() {
  if (pump_ != nullptr) pump_->Yield();
}

void clsReindex::ReplaceCharacter(std::string& text, int32_t position,
                                  std::string_view replacement) {
  Require(position >= 1, ErrorNumber::kInvalidProcedureCall);
  const size_t index = static_cast<size_t>(position) - 1;
  if (index >= text.size()) {
    text.append(replacement);
  } else {
    text.replace(index, 1, replacement);
  }
}

std::string clsReindex::NewLines(int count) const {
  std::string lines;
  Trap("function newlines", kModule, [&] {
    if (count < 1) return;
    lines.reserve(static_cast<size_t>(count) * ParaMark().size());
    for (int i = 0; i < count; ++i) lines.append(ParaMark());
  });
  return lines;
}

void clsReindex::AddLines(std::string& text, int32_t position, int count) {
  Trap("sub addlines", kModule, [&] {
    if (no_insert_) return;
    ReplaceCharacter(text, position, NewLines(count));
  });
}

void clsReindex::AddBreak(std::string& text, int32_t position) {
  Trap("sub addbreak", kModule, [&] {
    if (no_insert_) return;
    ReplaceCharacter(text, position, std::string_view(kPageBreakMark, sizeof kPageBreakMark));
  });
}

void clsReindex::NewReindexFile(std::string& text, InsertMode insert, PageIndex& index,
                                int32_t reading_position, double line_width, int16_t lines_per_page,
                                double line_height) {
  PaginationPass pass(*this, text, index,
                      {reading_position, line_width, lines_per_page, line_height});
  // An error ends the word loop; the closing events are still raised so that
  // the main window never stays in its reindexing state.
  Trap("sub newreindexfile", kModule, [&] {
    if (insert == InsertMode::kNotAllowed) no_insert_ = true;
    busy_ = true;
    Yield();
    index.Recreate(PageIndex::kInitialUpperBound);
    index.SetPageStart(index.count, 1);
    pass.Run();
  });
  Trap("sub newreindexfile", kModule, [&] {
    if (events_ != nullptr) events_->CurrentPage(index.count);
  });
  busy_ = false;
  Trap("sub newreindexfile", kModule, [&] {
    if (!pass.passed() && events_ != nullptr) events_->PassedPage(reading_position);
  });
  Trap("sub newreindexfile", kModule, [&] {
    if (events_ != nullptr) events_->FinishedReindex();
  });
}

}  // namespace vireo
