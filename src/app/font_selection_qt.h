#pragma once

#include <memory>

#include "app/frm_main.h"
#include "prefs/font_dialog.h"

class QWidget;

namespace vireo {

// The font dialog for the reader's current font, previewed in its ink and
// paper colours.
std::unique_ptr<frmFontSel> MakeFontDialog(frmMain& logic, const FontSource& fonts,
                                           QWidget* parent);

// "Font:" and "Change Font": the chosen font goes to ChangeFontStyle, which
// paginates the book again at the reading position; Cancel keeps the font.
// Refused while a font change or a pagination runs; in the non-interactive
// mode the dialog is cancelled at once.
void ShowFontSelection(frmMain& logic, const FontSource& fonts, QWidget* parent);

}  // namespace vireo
