#pragma once

#include <string>

#include "app/book_spread.h"
#include "app/reader_context.h"
#include "prefs/reader_preferences.h"

namespace vireo {

// The window-side effects of the reader's preferences: the font, the
// formatting flags and their menu ticks, the page colours and the window's
// size, as the preference reader applies them one by one and the commands
// change them. Errors are logged under their procedures' logged names of
// module "frmMain".
class WindowPreferences : public PreferencesHost {
 public:
  WindowPreferences(ReaderContext& context, BookSpread& spread);

  void ApplyFontName(const std::string& name) override;
  void ApplyFontSize(int points) override;
  void SetJustify(bool justify) override;
  // Also redraws the pages on show.
  void SetIndent(bool indented) override;
  void TickUnderscores(bool ticked) override;
  void TickExtraParagraphLine(bool ticked) override;
  bool UnderscoresTicked() const override;
  bool ExtraParagraphLineTicked() const override;
  void SetPageColours() override;
  WindowSize ScreenSize() const override;
  WindowSize CurrentWindowSize() const override;
  void MaximiseWindow() override;
  void SetResizing(bool resizing) override;
  void SetWindowHeight(double twips) override;
  void SetWindowWidth(double twips) override;

 private:
  ReaderContext& context_;
  BookSpread& spread_;
};

}  // namespace vireo
