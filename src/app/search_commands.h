#pragma once

#include <string>
#include <string_view>

#include "app/book_session.h"
#include "app/book_spread.h"
#include "app/reader_context.h"
#include "nav/search.h"

namespace vireo {

// The search on the control bar: the term (the search label's caption),
// Find Next and Find Previous. Errors are logged under their procedures'
// logged names of module "frmMain".
class SearchCommands {
 public:
  SearchCommands(ReaderContext& context, BookSpread& spread, const BookSession& session);

  // Asks for the term; a new term is shown on the label and highlighted.
  void GetSearchTerm();
  // Moves the current page to the next match in direction; false (and the
  // person told) when there is none.
  bool Search(const std::string& term, SearchDirection direction);
  void FindNext();
  void FindPrev();

 private:
  void Find(SearchDirection direction, std::string_view procedure);

  ReaderContext& context_;
  BookSpread& spread_;
  const BookSession& session_;
  BookSearch search_;
  int searched_version_ = -1;
};

}  // namespace vireo
