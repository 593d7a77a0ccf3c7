// The settings dialog driven through its controls on the real window.

#include <gtest/gtest.h>

#include <algorithm>

#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include "app/page_setup_qt.h"
#include "app/reader_window_fixture.h"

namespace vireo {
namespace {

class PageSetupTest : public testing::Test {
 protected:
  PageSetupTest() : reader(test::NumberedProse(160), test::kInstant) {}

  // The dialog as the Settings button fills it, shown.
  frmSettings& Open() {
    dialog = MakePageSetup(reader.logic(), reader.user(), &reader.window());
    shown = dialog.get();
    dialog->show();
    QApplication::processEvents();
    return *dialog;
  }
  template <typename Control = QWidget>
  Control* Find(const char* name) {
    auto* control = shown->findChild<Control*>(name);
    EXPECT_NE(control, nullptr) << name;
    return control;
  }
  void Click(const char* name) {
    Find<QAbstractButton>(name)->click();
    QApplication::processEvents();
  }
  void Type(const char* box, const char* text) {
    QLineEdit* edit = Find<QLineEdit>(box);
    edit->selectAll();
    QTest::keyClicks(edit, text);
  }
  // The paper of the pages chosen and moved to red 10, green 20, blue 30.
  void ChangePaper() {
    Click("optPaper");
    Find<QScrollBar>("HSRed")->setValue(10);
    Find<QScrollBar>("HSGreen")->setValue(20);
    Find<QScrollBar>("HSBlue")->setValue(30);
  }
  QRgb PaperOnShow() { return test::BoxPicture(reader, kLeftPageBox).pixel(3, 3); }

  test::ReaderWindow reader;
  std::unique_ptr<frmSettings> dialog;
  frmSettings* shown = nullptr;  // the dialog the controls are found on
};

// Where the book reopens after a re-pagination is checked through the fake window.
TEST_F(PageSetupTest, CancelledChangesNothingAndAColourAndBordersConfirmedAreDrawnAndStored) {
  reader.Start();
  const QRgb before = PaperOnShow();
  EXPECT_TRUE(test::Answering<frmSettings>(
      [&] { QTest::mouseClick(reader.window().bar().cmdPageSetup, Qt::LeftButton); },
      [&](frmSettings& settings) {
        shown = &settings;
        ChangePaper();
        Type("txtLeftBorder", "900");
        Click("cmdCancel");
      }))
      << "the button shows the dialog";
  EXPECT_EQ(PaperOnShow(), before);
  EXPECT_TRUE(reader.user().messages.empty());
  EXPECT_EQ(sget("LeftBorder", 0).ToNumber(), 0);

  const int count = reader.logic().pages().count;
  Open();
  ChangePaper();
  Type("txtLeftBorder", "1000");
  Type("txtRightBorder", "1000");
  EXPECT_EQ(dialog->form().Colour(PageColour::kPaper), 0x1E140Au);
  EXPECT_TRUE(test::Repaginates(reader, [&] { Click("cmdOK"); }));
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_GT(reader.logic().pages().count, count);
  EXPECT_EQ(sget("LeftBorder", 0).ToNumber(), 1000);
  EXPECT_EQ(PaperOnShow(), qRgb(10, 20, 30));
  test::Press(reader, Qt::Key_Space);
  const QImage next = test::BoxPicture(reader, kLeftPageBox);
  EXPECT_EQ(next.pixel(3, 3), qRgb(10, 20, 30)) << "the next spread too";
  const auto* pixels = reinterpret_cast<const QRgb*>(next.constBits());  // 32-bit RGB
  EXPECT_GT(std::count_if(pixels, pixels + next.width() * next.height(),
                          [](QRgb pixel) { return pixel != qRgb(10, 20, 30); }),
            500)
      << "with its text, not an emptied cached page";
  reader.logic().lifecycle().Quit();
  EXPECT_NE(test::ReadFile(reader.folder().File("Vireo.ini")).find("PAPERCOLOUR,1971210\r\n"),
            std::string::npos);
}

TEST_F(PageSetupTest, EachBorderIsCheckedAtItsLimits) {
  reader.Start();
  Open();
  const struct {
    const char* box;
    int lowest, highest;
    const char* message;
  } borders[] = {
      {"txtLeftBorder", 100, 1000, "Left border must be between 100 and 1000"},
      {"txtTopBorder", 100, 1000, "Top border must be between 100 and 1000"},
      {"txtBottomBorder", 200, 1000, "Bottom border must be between 200 and 1000"},
      {"txtRightBorder", 100, 1000, "Right border must be between 100 and 1000"},
  };
  for (const auto& border : borders) {
    const std::pair<std::string, bool> typed_accepted[] = {
        {std::to_string(border.lowest - 1), false},
        {std::to_string(border.lowest), true},
        {std::to_string(border.highest), true},
        {std::to_string(border.highest + 1), false},
        {"abc", false}};
    for (const auto& [typed, accepted] : typed_accepted) {
      if (!dialog->isVisible()) Open();
      Click("cmdDefaultBorders");
      Type(border.box, typed.c_str());
      reader.user().messages.clear();
      Click("cmdOK");
      EXPECT_EQ(test::LastMessage(reader), accepted ? "" : border.message) << border.box << typed;
      EXPECT_EQ(dialog->isVisible(), !accepted) << border.box << " " << typed;
      if (!accepted) {
        EXPECT_EQ(Find<QLineEdit>(border.box)->text().toStdString(), typed) << "kept as typed";
      }
    }
  }
}

}  // namespace
}  // namespace vireo
