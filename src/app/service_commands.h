#pragma once

#include "app/book_session.h"
#include "app/book_spread.h"
#include "app/book_text_export.h"
#include "app/read_aloud.h"
#include "app/reader_context.h"

namespace vireo {

// Which page Copy Page copies.
enum class CopiedPage {
  kUnderMenu,  // the page the context menu was opened on
  kRightPage,  // the right page of the spread, the only page in single mode
};

// The menu's peripheral services: print, export, copy page, reading aloud
// and the web pages. They act on the open book and reach the platform
// through MainWindowView::Services(). Errors are logged under their
// procedures' logged names of module "frmMain".
class ServiceCommands {
 public:
  ServiceCommands(ReaderContext& context, BookSpread& spread, BookSession& session);

  // The print dialog and the printing, once the book is laid out.
  void mnuPrint_Click();
  // Saves the book's text as a plain-text file chosen with the file dialog:
  // UTF-8 (the first kind offered) or Windows-1252 (the second), written
  // atomically; never over the program or the open book.
  void mnuSave_Click();
  // The page's picture and its text to the clipboard.
  void mnuCopyPage_Click(CopiedPage which);
  // The addresses of "PayAuthorAddress" and "UpdateAddress" in the browser.
  void mnuPayAuthor_Click();
  void mnuCheckUpdate_Click();
  ReadAloud& read_aloud() { return read_aloud_; }

 private:
  ItalicMarks Italics() const;

  ReaderContext& context_;
  BookSpread& spread_;
  BookSession& session_;
  ReadAloud read_aloud_;
};

}  // namespace vireo
