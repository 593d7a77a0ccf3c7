#pragma once

#include <string_view>

#include "support/checked_int16.h"

namespace vireo {

// The numeric value of a text as the classic Val reads it: blanks, tabs and
// line feeds are skipped anywhere, then an optional sign, digits, one
// decimal point and an exponent (E or D) are read up to the first other
// character. No number at all gives 0.
double NumericValue(std::string_view text);

// The slider of the page dialog: a horizontal scale from page 1 at left_x to
// the last page at left_x + width (in the widget's own units).
struct PageSliderScale {
  double left_x = 0;
  double width = 1;
  int num_pages = 1;

  // The page under x, unrounded and unclamped.
  double PageAt(double x) const;
  // Where page lies on the scale.
  double XOf(double page) const;
};

// The state of the page dialog frmPageNav, without the window. Errors are
// logged under module "frmPageNav" and leave the choice as it was.
class PageNavState {
 public:
  // Opens a choice: SelectedPage = current page, NumPages = page count, not
  // cancelled.
  void ChoosePage(Int16 current_page, Int16 num_pages);

  // cmdFirst / cmdLast (and the keys F and L): choose the first or last page.
  void SelectFirst() { selected_page_ = 1; }
  void SelectLast() { selected_page_ = num_pages_; }
  // cmdOK and a click on the slider accept; cmdCancel and closing the
  // window by its frame cancel.
  void Accept() { cancelled_ = false; }
  void Cancel() { cancelled_ = true; }

  // Dragging on the slider with the left button: x in pages, clamped to
  // 1..NumPages and rounded (to even on a tie) to a whole page.
  void SlideTo(double x_pages);
  // A key released in txtGotoPage: a numeric value above 0 and at most
  // NumPages is taken, rounded to a whole number; anything else is ignored.
  // True when the choice was taken.
  bool TypePage(std::string_view text);

  Int16 selected_page() const { return selected_page_; }
  Int16 current_page() const { return current_page_; }
  Int16 num_pages() const { return num_pages_; }
  bool cancelled() const { return cancelled_; }

 private:
  Int16 selected_page_ = 0;
  Int16 current_page_ = 0;
  Int16 num_pages_ = 0;
  bool cancelled_ = false;
};

}  // namespace vireo
