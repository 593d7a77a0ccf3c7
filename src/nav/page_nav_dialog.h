#pragma once

#include <QDialog>
#include <optional>

#include "nav/page_nav_state.h"
#include "nav/page_navigation.h"

class QLineEdit;
class QPushButton;

namespace vireo {

class PageSliderStrip;

// The small modal page dialog frmPageNav: the slider Picture1 (a strip whose
// scale runs over the page numbers; dragging with the left button chooses
// live, a click accepts), the text box txtGotoPage, and the buttons cmdFirst,
// cmdLast, cmdOK and cmdCancel. The keys F and L, released anywhere on the
// dialog, press cmdFirst and cmdLast. Closing it by its frame or with Escape
// cancels. Each control's objectName is its design name.
class frmPageNav : public QDialog, public PageChooser {
  Q_OBJECT

 public:
  explicit frmPageNav(QWidget* parent = nullptr);

  // Fills the dialog for the current page and the page count and shows it
  // modally; the chosen page, or nullopt when cancelled.
  std::optional<int> ChoosePage(int current_page, int page_count) override;

  // ChoosePage's first half: fills the state, the slider's scale and the
  // text box without showing the dialog.
  void Prepare(int current_page, int page_count);
  // Redraws the slider and the text box for SelectedPage.
  void UpdateForm();

  const PageNavState& state() const { return state_; }

 public slots:
  // Escape, the frame's close button and cmdCancel.
  void reject() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void CloseWith(void (PageNavState::*choice)());
  void SliderDragged(double x);

  PageNavState state_;
  PageSliderStrip* picture1_ = nullptr;
  QLineEdit* txt_goto_page_ = nullptr;
  QPushButton* cmd_first_ = nullptr;
  QPushButton* cmd_last_ = nullptr;
  QPushButton* cmd_ok_ = nullptr;
  QPushButton* cmd_cancel_ = nullptr;
};

}  // namespace vireo
