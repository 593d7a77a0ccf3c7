#include "nav/bookmarks.h"

#include <memory>

#include "prefs/shared_settings.h"
#include "support/error_trap.h"
#include "support/platform.h"
#include "support/text_helpers.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "mSHAREDBookmarks";

struct BookmarkState {
  std::string folder;
  std::unique_ptr<cSHAREDSettings> store;  // null until first use
};

BookmarkState& State() {
  static BookmarkState state;
  return state;
}

std::string FilePath() { return JoinPath(State().folder, "BookMarks.ini"); }

}  // namespace

std::string BookmarkKey(const std::string& book_path) { return UpperCase(FileNamePart(book_path)); }

void SetBookmarksFolder(const std::string& folder) {
  State().folder = folder;
  State().store.reset();
}

void InitialiseIfNecessary() {
  Trap("sub initialiseifnecessary", kModule, [&] {
    if (State().store) return;
    State().store = std::make_unique<cSHAREDSettings>();
    LoadBookmarks();
  });
}

void LoadBookmarks() {
  InitialiseIfNecessary();
  Trap("sub loadbookmarks", kModule, [&] { State().store->LoadSettings(FilePath()); });
}

void SaveBookmarks() {
  InitialiseIfNecessary();
  Trap("sub savebookmarks", kModule, [&] { State().store->SaveSettings(FilePath()); });
}

void StoreBookmark(const std::string& book_path, int32_t position) {
  InitialiseIfNecessary();
  Trap("sub storebookmark", kModule, [&] {
    if (book_path.empty()) return;
    State().store->StoreSetting(BookmarkKey(book_path), static_cast<double>(position));
  });
}

int32_t RetrieveBookmark(const std::string& book_path) {
  InitialiseIfNecessary();
  int32_t position = 0;
  Trap("function retrievebookmark", kModule,
       [&] { position = State().store->RetrieveSetting(BookmarkKey(book_path), 0).ToLong(); });
  return position;
}

void EraseAllBookmarks() {
  InitialiseIfNecessary();
  Trap("sub eraseallbookmarks", kModule, [&] {
    cSHAREDSettings& store = *State().store;
    for (int i = store.SettingsCount(); i >= 1; --i) store.DeleteSetting(i);
  });
}

}  // namespace vireo
