#pragma once

#include <string>

#include "app/book_session.h"
#include "app/book_spread.h"
#include "app/reader_context.h"
#include "prefs/settings_form.h"

namespace vireo {

// The commands that change how the book is laid out: the font size and
// style, the control bar, the window's size and the page mode. Each stores
// the bookmark and re-paginates the book at it. Errors are logged under their
// procedures' logged names of module "frmMain".
class ViewCommands {
 public:
  ViewCommands(ReaderContext& context, BookSpread& spread, BookSession& session);

  // A new font size (0 or the current size changes nothing).
  void ChangeFontSize(int points);
  void cmdBiggerFont_Click();
  void cmdSmallerFont_Click();
  // Asks for a size 7..48 (the font-size label).
  void GetNewFontSize();
  // A new font name ("" or the current one changes nothing).
  void ChangeFontStyle(const std::string& name);
  // Hides or shows the control bar (a double click on the book's border).
  void ToggleBar();
  // The window's size changed: kept at its minimum, undone while the book
  // is paginated, else the book is laid out and paginated again.
  void Form_Resize();
  // Keys "1" and "2": the page mode, unless it is already the one on show.
  void SwitchPageMode(bool single);
  // Switches to the page mode in the preferences: the bookmark is stored,
  // the window takes the new mode's size (the old one saved first when
  // save_size), and the book is laid out and paginated again.
  void UpdateBookMode(bool save_size);
  // The settings dialog's OK, after it applied its values: the pages are
  // drawn again in the new colours and texture with the cache emptied; when
  // it closed with changed borders the bookmark is stored and the book is
  // laid out and paginated again at it.
  void ApplyPageSetup(const SettingsOutcome& outcome);

 private:
  void StepFontSize(int step);
  void SetWindowWidth(double twips);

  ReaderContext& context_;
  BookSpread& spread_;
  BookSession& session_;
};

}  // namespace vireo
