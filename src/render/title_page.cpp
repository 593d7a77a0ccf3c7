#include "render/title_page.h"

#include <array>
#include <string>
#include <string_view>

#include "render/surface.h"
#include "render/surface_text.h"
#include "support/error_trap.h"
#include "support/logging.h"
#include "support/maker.h"
#include "support/translation.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmMain";
constexpr uint32_t kHomePageBlue = 0xFF0000;  // 0x00BBGGRR
constexpr double kWelcomeTop = 300;
// The credit line drops to 8 points when it is wider than this part of the box.
constexpr double kCreditFraction = 0.8;
constexpr double kListRightMargin = 300;
constexpr double kCaptionGap = 100;
constexpr double kBelowList = 50;

constexpr std::array<std::string_view, 6> kHints = {
    Translatable("Right-click a page for the menu"),
    Translatable("Click LOAD to load a file"),
    Translatable("Left-click a page to turn it"),
    Translatable("Press B to toggle the control bar"),
    Translatable("Press F1 for the Vireo manual"),
    Translatable("Press 1 and 2 to toggle page mode"),
};

// The page boxes keep whatever style was last set on them (measuring the font
// leaves the first box bold and italic): the title page is upright.
void Upright(Surface& box) {
  box.SetFontItalic(false);
  box.SetFontUnderline(false);
}

void DrawWelcomeBlock(Surface& box, uint32_t ink) {
  box.Clear();
  Upright(box);
  box.SetCurrentX(0);
  box.SetCurrentY(kWelcomeTop);
  box.SetFontSize(12);
  box.SetFontBold(true);
  PrintCentred(box, "Welcome to Vireo!");
  EndLine(box);
  box.SetFontBold(false);
  box.SetFontSize(10);
  EndLine(box);
  box.SetForeColor(ink);

  const std::string credit =
      "Brought to you by " + std::string(kMakerName) + ", " + std::string(kMakerCountry);
  if (box.TextWidth(credit) > kCreditFraction * box.ScaleWidth()) box.SetFontSize(8);
  PrintCentred(box, credit);
  box.SetFontSize(10);
  EndLine(box);

  PrintCentred(box, "This is version " + AppVersion());
  EndLine(box);
  PrintCentred(box, "This program is updated frequently, so please");
  PrintCentred(box, "check the Marrowind home page often:");
  box.SetForeColor(kHomePageBlue);
  PrintCentred(box, kMakerHomePage);
  box.SetForeColor(ink);
}

LanguageListPlacement DrawHintsBlock(Surface& box, bool separate_box, uint32_t ink,
                                     double list_width, double list_height) {
  if (separate_box) box.Clear();
  Upright(box);
  box.SetForeColor(ink);
  box.SetCurrentX(0);
  box.SetCurrentY(box.ScaleHeight() / 2);
  box.SetFontSize(10);
  box.SetFontBold(true);
  PrintLine(box, GetTranslation("Hints") + ":");
  EndLine(box);
  box.SetFontBold(false);
  for (const std::string_view hint : kHints) PrintLine(box, GetTranslation(hint));
  EndLine(box);
  EndLine(box);

  LanguageListPlacement placement;
  placement.list = {box.ScaleWidth() - (list_width + kListRightMargin), box.CurrentY(), list_width,
                    list_height};
  placement.caption_right = placement.list.left - kCaptionGap;
  placement.caption_top = placement.list.top;
  box.SetCurrentY(placement.list.top + list_height + kBelowList);
  PrintCentred(box, GetTranslation("See the Languages folder for translation files"));
  return placement;
}

}  // namespace

std::optional<LanguageListPlacement> DrawTitlePage(Surface& welcome, Surface& hints, uint32_t ink,
                                                   double list_width, double list_height) {
  std::optional<LanguageListPlacement> placement;
  Trap("DrawTitlePage", kModule, [&] {
    DrawWelcomeBlock(welcome, ink);
    placement = DrawHintsBlock(hints, &hints != &welcome, ink, list_width, list_height);
  });
  return placement;
}

}  // namespace vireo
