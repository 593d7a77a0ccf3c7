// The settings dialog driven through its controls on the real window.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSet>
#include <QToolButton>

#include "app/page_setup_qt.h"
#include "app/reader_window_fixture.h"

namespace vireo {
namespace {

int ColourCount(const QImage& picture, QRgb colour) {
  int count = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) count += picture.pixel(x, y) == colour ? 1 : 0;
  }
  return count;
}

class PageSetupTest : public testing::Test {
 protected:
  explicit PageSetupTest(const std::string& settings = test::kInstant)
      : reader(test::NumberedProse(160), settings) {}

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
  std::string StoredAfterQuit() {
    reader.logic().lifecycle().Quit();
    return test::ReadFile(reader.folder().File("Vireo.ini"));
  }

  test::ReaderWindow reader;
  std::unique_ptr<frmSettings> dialog;
  frmSettings* shown = nullptr;  // the dialog the controls are found on
};

// Where the book reopens after a re-pagination is checked through the fake window.
TEST_F(PageSetupTest, AColourAndBordersConfirmedAreDrawnRepaginatedAndStored) {
  reader.Start();
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
  EXPECT_GT(next.width() * next.height() - ColourCount(next, qRgb(10, 20, 30)), 500)
      << "with its text, not an emptied cached page";
  EXPECT_NE(StoredAfterQuit().find("PAPERCOLOUR,1971210\r\n"), std::string::npos);
}

TEST_F(PageSetupTest, CancelFromTheSettingsButtonChangesNothing) {
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
  const std::string stored = StoredAfterQuit();
  EXPECT_NE(stored.find("PAPERCOLOUR,16777215\r\n"), std::string::npos);
  EXPECT_EQ(stored.find("LEFTBORDER"), std::string::npos);
}

TEST_F(PageSetupTest, EachBorderIsCheckedAtItsLimits) {
  reader.Start();
  Open();
  const struct {
    const char* box;
    const char* typed;
    const char* message;  // "" when accepted
  } cases[] = {
      {"txtLeftBorder", "99", "Left border must be between 100 and 1000"},
      {"txtLeftBorder", "100", ""},
      {"txtLeftBorder", "1001", "Left border must be between 100 and 1000"},
      {"txtTopBorder", "99", "Top border must be between 100 and 1000"},
      {"txtTopBorder", "1000", ""},
      {"txtTopBorder", "1001", "Top border must be between 100 and 1000"},
      {"txtBottomBorder", "199", "Bottom border must be between 200 and 1000"},
      {"txtBottomBorder", "200", ""},
      {"txtBottomBorder", "1001", "Bottom border must be between 200 and 1000"},
      {"txtRightBorder", "99", "Right border must be between 100 and 1000"},
      {"txtRightBorder", "100", ""},
      {"txtRightBorder", "abc", "Right border must be between 100 and 1000"},
      {"txtRightBorder", "1000", ""},
  };
  for (const auto& c : cases) {
    if (!dialog->isVisible()) Open();
    Click("cmdDefaultBorders");
    Type(c.box, c.typed);
    reader.user().messages.clear();
    Click("cmdOK");
    const bool accepted = *c.message == '\0';
    EXPECT_EQ(test::LastMessage(reader), c.message) << c.box << " " << c.typed;
    EXPECT_EQ(dialog->isVisible(), !accepted) << c.box << " " << c.typed;
    if (!accepted) {
      EXPECT_EQ(Find<QLineEdit>(c.box)->text(), c.typed) << "kept as typed";
    }
  }
}

class TexturedPageSetupTest : public PageSetupTest {
 protected:
  TexturedPageSetupTest() : PageSetupTest(std::string(test::kInstant) + "TEXTURENUM,-1\r\n") {
    std::filesystem::copy_file(test::BinFolder() + "/paper3.jpg",
                               reader.folder().File("paper3.jpg"));
  }
};

TEST_F(TexturedPageSetupTest, ATextureChosenIsDrawnOnThePages) {
  reader.Start();
  auto colours_in_corner = [&] {
    const QImage page = test::BoxPicture(reader, kLeftPageBox);
    QSet<QRgb> colours;
    for (int y = 0; y < 20; ++y) {
      for (int x = 0; x < 20; ++x) colours.insert(page.pixel(x, y));
    }
    return colours.size();
  };
  EXPECT_EQ(colours_in_corner(), 1) << "plain paper";
  Open();
  EXPECT_FALSE(Find<QCheckBox>("chkTextured")->isChecked());
  EXPECT_EQ(dialog->findChild<QToolButton*>("picTexture0"), nullptr) << "only the textures present";
  Click("picTexture2");
  EXPECT_TRUE(Find<QCheckBox>("chkTextured")->isChecked());
  Click("cmdOK");
  EXPECT_EQ(reader.logic().preferences().texture_num, 2);
  EXPECT_GT(colours_in_corner(), 1);
}

}  // namespace
}  // namespace vireo
