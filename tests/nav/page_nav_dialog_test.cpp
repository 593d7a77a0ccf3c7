#include "nav/page_nav_dialog.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <functional>

#include "app/reader_window_fixture.h"

namespace vireo {
namespace {

class PageNavDialogTest : public testing::Test {
 protected:
  void SetUp() override {
    Reopen();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
    slider = dialog.findChild<QWidget*>("Picture1");
    text = dialog.findChild<QLineEdit*>("txtGotoPage");
    ASSERT_NE(slider, nullptr);
    ASSERT_NE(text, nullptr);
  }

  // The dialog filled for page 5 of 40 and shown.
  void Reopen() {
    dialog.Prepare(5, 40);
    dialog.show();
  }

  frmPageNav dialog;
  QWidget* slider = nullptr;
  QLineEdit* text = nullptr;
};

TEST_F(PageNavDialogTest, DraggingTypingOrTheEndKeysChooseOnlyPagesOfTheBookAndAClickAccepts) {
  EXPECT_EQ(text->text(), "5");
  QTest::mousePress(slider, Qt::LeftButton, {}, QPoint(slider->width() / 2, 10));
  const QPointF beyond(slider->width() + 80, slider->height() / 2);  // dragged past the end
  QMouseEvent move(QEvent::MouseMove, beyond, slider->mapToGlobal(beyond), Qt::NoButton,
                   Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(slider, &move);
  EXPECT_EQ(dialog.state().selected_page(), 40);
  EXPECT_EQ(text->text(), "40");
  QTest::mouseRelease(slider, Qt::LeftButton, {}, QPoint(slider->width() + 80, 10));
  EXPECT_TRUE(dialog.isVisible()) << "a release away from the slider is no click";

  // The whole text of the box, then one key released in it.
  for (auto [typed, chosen] :
       {std::pair{"0", 40}, {"-3", 40}, {"abc", 40}, {"41", 40}, {"17", 17}}) {
    text->setText(typed);
    QTest::keyClick(text, Qt::Key_End);
    EXPECT_EQ(dialog.state().selected_page(), chosen) << typed;
  }
  EXPECT_TRUE(dialog.isVisible());

  QTest::mouseClick(slider, Qt::LeftButton, {}, QPoint(2, 10));
  EXPECT_FALSE(dialog.isVisible()) << "a click accepts the page under it";
  EXPECT_FALSE(dialog.state().cancelled());
  EXPECT_EQ(dialog.state().selected_page(), 1);

  Reopen();  // the keys L and F choose the ends
  QTest::keyClick(text, Qt::Key_L);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(dialog.state().selected_page(), 40);
  Reopen();
  QTest::keyClick(&dialog, Qt::Key_F);
  EXPECT_EQ(dialog.state().selected_page(), 1);
}

TEST(PageNavDialogModal, ChoosePageReturnsTheChoiceOrNothingWhenClosedByTheFrame) {
  frmPageNav dialog;
  std::optional<int> chosen = 1;
  const auto choose = [&](const std::function<void(frmPageNav&)>& answer) {
    EXPECT_TRUE(test::Answering<frmPageNav>([&] { chosen = dialog.ChoosePage(3, 20); }, answer));
  };
  choose([](frmPageNav& shown) { shown.close(); });
  EXPECT_EQ(chosen, std::nullopt);
  choose([](frmPageNav& shown) { shown.findChild<QPushButton*>("cmdOK")->click(); });
  EXPECT_EQ(chosen, std::optional<int>(3)) << "an earlier cancel is forgotten";
}

}  // namespace
}  // namespace vireo
