#pragma once

#include <cstdint>
#include <string>

namespace vireo {

// mSHAREDBookmarks: the reading position of every book the reader has shown,
// kept in "BookMarks.ini" in the program's folder (same file format as the
// settings). The key is the book's file name without its folder, upper-cased,
// so copies of a book in different folders share one position. Positions are
// 1-based character positions in the book text. Nothing is written to disk
// before SaveBookmarks; the file is replaced atomically.

// The folder whose "BookMarks.ini" the module uses; set at start-up, before
// the first bookmark operation (it resets the store).
void SetBookmarksFolder(const std::string& folder);

// Creates the store and loads the file on first use; every operation below
// calls it first.
void InitialiseIfNecessary();
void LoadBookmarks();
void SaveBookmarks();

// Sets the position of the book at path; an empty path stores nothing.
void StoreBookmark(const std::string& book_path, int32_t position);
// The stored position of the book at path, 0 when there is none.
int32_t RetrieveBookmark(const std::string& book_path);
// Removes every entry from the store (the file changes at the next save).
void EraseAllBookmarks();

// The key a book's position is filed under.
std::string BookmarkKey(const std::string& book_path);

}  // namespace vireo
