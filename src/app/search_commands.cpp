#include "app/search_commands.h"

#include "render/status_lamp.h"
#include "support/error_trap.h"
#include "support/translation.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmMain";

bool Blank(std::string_view text) { return text.find_first_not_of(' ') == std::string::npos; }

}  // namespace

SearchCommands::SearchCommands(ReaderContext& context, BookSpread& spread,
                               const BookSession& session)
    : context_(context), spread_(spread), session_(session) {}

void SearchCommands::GetSearchTerm() {
  Trap("sub getsearchterm", kModule, [&] {
    const auto answer =
        context_.user.AskText(GetTranslation("Enter the word or words you want to search for"),
                              GetTranslation("Search Terms"), spread_.plotter().search_term());
    if (!answer || answer->empty()) return;
    spread_.plotter().SetSearchTerm(*answer);
    context_.view.SetBarLabel(BarLabel::kSearch, *answer, context_.system_colours.button_text);
    spread_.RedrawPages();
  });
}

bool SearchCommands::Search(const std::string& term, SearchDirection direction) {
  bool found = false;
  Trap("sub search", kModule, [&] {
    RedShape(context_.buffers, context_.pump);
    if (searched_version_ != session_.version()) {
      search_.SetText(context_.book.text);
      searched_version_ = session_.version();
    }
    const auto page =
        search_.Search(term, direction, context_.reading.current_page, context_.book.index);
    NoShape(context_.buffers, context_.pump);
    if (page) {
      context_.reading.current_page = *page;
      found = true;
    } else {
      context_.user.ShowMessage(GetTranslation("No more matches"), "Vireo");
    }
  });
  return found;
}

void SearchCommands::FindNext() { Find(SearchDirection::kForward, "sub findnext"); }
void SearchCommands::FindPrev() { Find(SearchDirection::kBackward, "sub findprev"); }

void SearchCommands::Find(SearchDirection direction, std::string_view procedure) {
  Trap(procedure, kModule, [&] {
    const std::string term = spread_.plotter().search_term();
    if (!context_.book.loaded || Blank(term)) return;
    if (Search(term, direction)) {
      spread_.cache().ResetCache();
      spread_.RedrawPages();
    }
  });
}

}  // namespace vireo
