#include "app/book_loader.h"

#include "book/book_reader.h"
#include "support/error_trap.h"
#include "support/logging.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmMain";
constexpr std::string_view kProcedure = "sub loadfile";

}  // namespace

BookLoader::BookLoader(ReaderContext& context, BookSession& session)
    : context_(context), session_(session) {}

void BookLoader::ShowProgress(std::string_view caption, int value, int maximum) {
  const int percent = maximum > 0 ? value * 100 / maximum : 0;
  context_.view.ShowProgress(std::string(caption) + " " + std::to_string(percent) + "%");
  context_.pump.Yield();
}

void BookLoader::OpenBook(const std::string& path) {
  const FormattingOptions options{context_.reformat, context_.prefs.underscores,
                                  context_.prefs.extra_paragraph_line};
  BookReadResult book =
      ReadBookFile(path, options, [this](std::string_view caption, int value, int maximum) {
        ShowProgress(caption, value, maximum);
      });
  context_.view.ShowProgress("");
  Trap(kProcedure, kModule, [&] {
    if (!book.has_book) {
      if (book.show_message) context_.user.ShowMessage(book.message, "Vireo");
      return;
    }
    session_.BookLoaded(std::move(book.text), std::move(book.author), std::move(book.title), path);
    session_.SetStoredDetails(std::move(book.stored_title), book.stored_size);
    session_.ReadBookmark();
    LogAction("Reindexing file");
    session_.ReindexFile(true);
    context_.buffers.SetLanguageListVisible(false);
  });
}

}  // namespace vireo
