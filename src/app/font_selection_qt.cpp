#include "app/font_selection_qt.h"

#include <cstdio>

#include "app/interaction_qt.h"

namespace vireo {

std::unique_ptr<frmFontSel> MakeFontDialog(frmMain& logic, const FontSource& fonts,
                                           QWidget* parent) {
  const ReaderPreferences& prefs = logic.preferences();
  return std::make_unique<frmFontSel>(fonts, prefs.font_name, prefs.ink_colour, prefs.paper_colour,
                                      parent);
}

void ShowFontSelection(frmMain& logic, const FontSource& fonts, QWidget* parent) {
  if (logic.context().font_guard || logic.paginator_busy()) return;
  if (NonInteractiveMode()) {
    std::fprintf(stderr, "[input] Change Font: cancelled\n");
    return;
  }
  const std::string chosen = MakeFontDialog(logic, fonts, parent)->PickFont();
  logic.view_commands().ChangeFontStyle(chosen);
}

}  // namespace vireo
