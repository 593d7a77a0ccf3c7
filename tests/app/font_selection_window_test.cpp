// The font dialog driven through its controls on the real window.

#include <gtest/gtest.h>

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include "app/font_selection_qt.h"
#include "app/reader_window_fixture.h"

namespace vireo {
namespace {

QListWidget* FontList(QWidget* dialog) { return dialog->findChild<QListWidget*>("lstFonts"); }

void Click(QWidget* dialog, const char* button) {
  dialog->findChild<QAbstractButton*>(button)->click();
  QApplication::processEvents();
}

// Where the book reopens after a re-pagination is checked through the fake window.
TEST(FontSelection, AFontChosenFromTheLabelRepaginatesAndCancelKeepsTheFont) {
  test::ReaderWindow reader(test::NumberedProse(40), test::kInstant);
  reader.Start();
  // Opens the dialog from the menu or the label, shows all fonts and answers.
  const auto choose = [&](bool from_menu, const std::function<void(frmFontSel&)>& answer) {
    bool repaginated = false;
    EXPECT_TRUE(test::Answering<frmFontSel>(
        [&] {
          repaginated = test::Repaginates(reader, [&] {
            if (from_menu) reader.window().menu().Item("mnuSelectFont")->trigger();
            if (!from_menu) QTest::mouseClick(reader.window().bar().Label1, Qt::LeftButton);
          });
        },
        [&](frmFontSel& dialog) {
          Click(&dialog, "optShowAll");
          answer(dialog);
        }))
        << from_menu;
    return repaginated;
  };
  EXPECT_FALSE(choose(true, [](frmFontSel& dialog) {
    FontList(&dialog)->setCurrentRow(0);
    Click(&dialog, "cmdCancel");
  }));
  EXPECT_EQ(reader.logic().preferences().font_name, "Times New Roman");
  EXPECT_FALSE(sget("ShowAllFonts", false).ToBoolean());

  EXPECT_TRUE(choose(false, [](frmFontSel& dialog) {
    const auto found = FontList(&dialog)->findItems("DejaVu Sans", Qt::MatchExactly);
    ASSERT_FALSE(found.isEmpty());
    FontList(&dialog)->setCurrentItem(found.first());
    Click(&dialog, "cmdOK");
  }));
  EXPECT_EQ(reader.logic().preferences().font_name, "DejaVu Sans");
  reader.logic().lifecycle().Quit();
  EXPECT_NE(test::ReadFile(reader.folder().File("Vireo.ini")).find("SHOWALLFONTS,True"),
            std::string::npos);
}

// Fonts that appear while the program runs.
class GrowingFonts : public FontSource {
 public:
  std::vector<std::string> InstalledFonts() const override { return names; }
  bool Usable(const std::string&) const override { return true; }
  std::vector<std::string> names{"DejaVu Serif", "Verdana"};
};

// When the stored list is used rather than a new scan is the font choice's test.
TEST(FontSelection, RescanFindsAFontAddedSinceTheLastScan) {
  ResetGlobalSettings();
  GrowingFonts fonts;
  frmFontSel dialog(fonts, "Verdana", 0, 0);
  fonts.names.push_back("Georgia Pro");
  Click(&dialog, "cmdRescan");
  EXPECT_EQ(FontList(&dialog)->count(), 2) << "Verdana and Georgia Pro";
  EXPECT_EQ(FontList(&dialog)->currentItem()->text(), "Verdana");
  fonts.names = {"DejaVu Serif"};
  Click(&dialog, "cmdRescan");
  EXPECT_EQ(FontList(&dialog)->count(), 0);
  EXPECT_FALSE(dialog.findChild<QLabel*>("lblNotice")->isHidden()) << "says why it is empty";
  ResetGlobalSettings();
}

}  // namespace
}  // namespace vireo
