// The font dialog driven through its controls on the real window.

#include <gtest/gtest.h>

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include "app/font_selection_qt.h"
#include "app/reader_window_fixture.h"
#include "nav/bookmarks.h"

namespace vireo {
namespace {

QListWidget* FontList(QWidget* dialog) { return dialog->findChild<QListWidget*>("lstFonts"); }

std::vector<std::string> Listed(QWidget* dialog) {
  std::vector<std::string> names;
  QListWidget* list = FontList(dialog);
  for (int row = 0; row < list->count(); ++row)
    names.push_back(list->item(row)->text().toStdString());
  return names;
}

void Click(QWidget* dialog, const char* button) {
  dialog->findChild<QAbstractButton*>(button)->click();
  QApplication::processEvents();
}

TEST(FontSelection, AFontChosenFromTheLabelRepaginatesAtTheReadingPosition) {
  test::ReaderWindow reader(test::SampleProse(120), test::kInstant);
  reader.Start();
  reader.logic().spread().ShowPage(9);
  const int32_t shown_start = reader.logic().pages().PageStart(reader.logic().current_page());
  bool shown = false;
  QTimer::singleShot(0, [&] {
    auto* dialog = qobject_cast<frmFontSel*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    shown = true;
    Click(dialog, "optShowAll");
    const auto found = FontList(dialog)->findItems("DejaVu Sans", Qt::MatchExactly);
    ASSERT_FALSE(found.isEmpty());
    FontList(dialog)->setCurrentItem(found.first());
    Click(dialog, "cmdOK");
  });
  bool repaginated = test::Repaginates(
      reader, [&] { QTest::mouseClick(reader.window().bar().Label1, Qt::LeftButton); });
  ASSERT_TRUE(shown) << "the label opens the dialog";
  EXPECT_EQ(reader.logic().preferences().font_name, "DejaVu Sans");
  EXPECT_TRUE(repaginated);
  EXPECT_EQ(RetrieveBookmark(reader.book()), shown_start);
  const PageIndex& pages = reader.logic().pages();
  const int c = reader.logic().current_page();
  EXPECT_LE(pages.PageStart(c - 1), shown_start);
  EXPECT_TRUE(c + 1 > pages.count || pages.PageStart(c + 1) > shown_start);
  reader.logic().lifecycle().Quit();
  EXPECT_NE(test::ReadFile(reader.folder().File("Vireo.ini")).find("SHOWALLFONTS,True"),
            std::string::npos);
}

TEST(FontSelection, CancelKeepsTheFontAndTheListChoice) {
  test::ReaderWindow reader(test::SampleProse(10), test::kInstant);
  reader.Start();
  QTimer::singleShot(0, [&] {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr) return;
    Click(dialog, "optShowAll");
    FontList(dialog)->setCurrentRow(0);
    Click(dialog, "cmdCancel");
  });
  reader.window().menu().Item("mnuSelectFont")->trigger();
  EXPECT_EQ(reader.logic().preferences().font_name, "Times New Roman");
  EXPECT_FALSE(sget("ShowAllFonts", false).ToBoolean());
}

// Fonts that appear while the program runs.
class GrowingFonts : public FontSource {
 public:
  std::vector<std::string> InstalledFonts() const override { return names; }
  bool Usable(const std::string&) const override { return true; }
  std::vector<std::string> names{"DejaVu Serif", "Verdana"};
};

TEST(FontSelection, RescanFindsAFontAddedSinceTheLastScan) {
  ResetGlobalSettings();
  GrowingFonts fonts;
  frmFontSel first(fonts, "Verdana", 0, 0);
  EXPECT_EQ(Listed(&first), std::vector<std::string>{"Verdana"});
  fonts.names.push_back("Georgia Pro");
  frmFontSel dialog(fonts, "Verdana", 0, 0);
  EXPECT_EQ(Listed(&dialog), std::vector<std::string>{"Verdana"}) << "the stored list";
  Click(&dialog, "cmdRescan");
  EXPECT_EQ(Listed(&dialog), (std::vector<std::string>{"Verdana", "Georgia Pro"}));
  EXPECT_EQ(FontList(&dialog)->currentItem()->text(), "Verdana");

  fonts.names = {"DejaVu Serif"};
  Click(&dialog, "cmdRescan");
  EXPECT_TRUE(Listed(&dialog).empty());
  EXPECT_FALSE(dialog.findChild<QLabel*>("lblNotice")->isHidden()) << "says why it is empty";
  ResetGlobalSettings();
}

}  // namespace
}  // namespace vireo
