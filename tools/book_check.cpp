// Whether a loaded book is one the tools show: a file that gave no book, a
// damaged book and an empty one are refused with what is wrong.

#include "book_commands.h"

namespace vireo::tool {

std::string UnshowableBook(const std::string& path, const BookReadResult& book) {
  if (!book.has_book) return book.message;
  if (!book.damage.empty()) return path + " holds a damaged book: " + book.damage;
  if (book.text.empty()) return path + " holds an empty book";
  return "";
}

}  // namespace vireo::tool
