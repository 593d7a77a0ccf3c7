// The main window's search: the term on the control bar, Find Next and Find
// Previous.

#include <string>

#include "app/frm_main.h"
#include "render/status_lamp.h"
#include "support/error_trap.h"
#include "support/translation.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmMain";

bool Blank(std::string_view text) { return text.find_first_not_of(' ') == std::string::npos; }

}  // namespace

void frmMain::GetSearchTerm() {
  Trap("sub getsearchterm", kModule, [&] {
    const auto answer = user_.AskText("Enter the word or words you want to search for",
                                      "Search Terms", search_term_);
    if (!answer || answer->empty()) return;
    search_term_ = *answer;
    view_.SetSearchLabel(search_term_);
    RedrawPages();
  });
}

bool frmMain::Search(const std::string& term, SearchDirection direction) {
  bool found = false;
  Trap("sub search", kModule, [&] {
    RedShape(*this, pump_);
    if (search_text_version_ != book_version_) {
      search_.SetText(book_text_);
      search_text_version_ = book_version_;
    }
    const auto page = search_.Search(term, direction, reading_.current_page, pages_);
    NoShape(*this, pump_);
    if (page) {
      reading_.current_page = *page;
      found = true;
    } else {
      user_.ShowMessage(GetTranslation("No more matches"), "Vireo");
    }
  });
  return found;
}

void frmMain::FindNext() { Find(SearchDirection::kForward, "sub findnext"); }
void frmMain::FindPrev() { Find(SearchDirection::kBackward, "sub findprev"); }

void frmMain::Find(SearchDirection direction, std::string_view procedure) {
  Trap(procedure, kModule, [&] {
    if (!book_loaded_ || Blank(search_term_)) return;
    if (Search(search_term_, direction)) {
      cache_.ResetCache();
      RedrawPages();
    }
  });
}

}  // namespace vireo
