#include "app/book_loader.h"

#include "book/book_reader.h"
#include "book/cover_picture.h"
#include "prefs/settings_get_set.h"
#include "support/error_trap.h"
#include "support/logging.h"
#include "support/translation.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmMain";
constexpr std::string_view kProcedure = "sub loadfile";

std::string ProgressText(std::string_view caption, int value, int maximum) {
  const int percent = maximum > 0 ? value * 100 / maximum : 0;
  return std::string(caption) + " " + std::to_string(percent) + "%";
}

// The formatting the stored settings ask for, read before the preferences
// are applied; reading them logs nothing here, as they are read again then.
FormattingOptions StoredFormatting() {
  HeldBackLog dropped;
  const HoldBackLogging held(dropped);
  return {sget("Reformat", true).ToBoolean(), sget("UnderScores", false).ToBoolean(),
          sget("ExtraParagraphLine", false).ToBoolean()};
}

}  // namespace

BookLoader::BookLoader(ReaderContext& context, BookSpread& spread, BookSession& session)
    : context_(context), spread_(spread), session_(session) {}

void BookLoader::ShowProgress(std::string_view caption, int value, int maximum) {
  context_.view.ShowProgress(ProgressText(caption, value, maximum));
  context_.pump.Yield();
}

FormattingOptions BookLoader::Formatting() const {
  return {context_.reformat, context_.prefs.underscores, context_.prefs.extra_paragraph_line};
}

PictureLoading BookLoader::Pictures(const std::string& path) {
  context_.picture_files.Forget();
  // A book's pictures sit beside it (an appended book's in the program's folder).
  return {&context_.images, &context_.picture_files, BookFolderOf(path)};
}

void BookLoader::PrefetchBook(const std::string& path) {
  prefetch_.Start(path, StoredFormatting(), Pictures(path));
}

// The prefetched book when there is one for path, else the book read here.
// The wait for a prefetch shows its progress but lets no other event in,
// since the reading thread still uses the picture store.
BookReadResult BookLoader::ReadBook(const std::string& path) {
  const FormattingOptions options = Formatting();
  std::optional<BookReadResult> prefetched =
      prefetch_.Take(path, options, [this](std::string_view caption, int value, int maximum) {
        context_.view.ShowProgress(ProgressText(caption, value, maximum));
      });
  if (prefetched) return std::move(*prefetched);
  return ReadBookFile(
      path, options,
      [this](std::string_view caption, int value, int maximum) {
        ShowProgress(caption, value, maximum);
      },
      Pictures(path));
}

void BookLoader::OpenBook(const std::string& path) {
  BookReadResult book = ReadBook(path);
  context_.view.ShowProgress("");
  Trap(kProcedure, kModule, [&] {
    if (!book.has_book) {
      if (book.show_message) context_.user.ShowMessage(book.message, "Vireo");
      return;
    }
    session_.BookLoaded(std::move(book.text), std::move(book.author), std::move(book.title), path);
    session_.SetStoredDetails(std::move(book.stored_title), book.stored_size);
    session_.ReadBookmark();
    LoadCover(book.packed_cover, path);
    LogAction("Reindexing file");
    session_.ReindexFile(true);
    context_.buffers.SetLanguageListVisible(false);
  });
}

void BookLoader::LoadCover(const std::string& packed_cover, const std::string& path) {
  Trap("sub loadcover", kModule, [&] {
    LogAction("Loading cover image");
    context_.view.ShowProgress(GetTranslation("Loading cover image"));
    struct ProgressCleared {
      MainWindowView& view;
      ~ProgressCleared() { view.ShowProgress(""); }
    } cleared{context_.view};
    spread_.plotter().SetCover(nullptr);
    context_.cover = Picture{};
    const std::optional<std::string> bytes =
        CoverPictureBytes(packed_cover, path, context_.picture_files);
    const PictureDecoder* decoder = context_.buffers.Pictures();
    if (!bytes || decoder == nullptr) return;
    std::string why;
    context_.cover = decoder->Decode(*bytes, why);
    if (context_.cover.empty()) LogAction("The cover cannot be shown: " + why);
    spread_.plotter().SetCover(&context_.cover);
  });
}

}  // namespace vireo
