#include "nav/page_nav_state.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <string>

#include "support/error_trap.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmPageNav";

bool IsSkipped(char c) { return c == ' ' || c == '\t' || c == '\n'; }
bool IsDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

// Appends the digits at text[i...] (skipping blanks) to number.
size_t TakeDigits(std::string_view text, size_t i, std::string& number) {
  for (; i < text.size() && (IsDigit(text[i]) || IsSkipped(text[i])); ++i) {
    if (!IsSkipped(text[i])) number += text[i];
  }
  return i;
}

size_t SkipBlanks(std::string_view text, size_t i) {
  while (i < text.size() && IsSkipped(text[i])) ++i;
  return i;
}

}  // namespace

double NumericValue(std::string_view text) {
  std::string number;
  size_t i = SkipBlanks(text, 0);
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
    if (text[i] == '-') number += '-';
    i = SkipBlanks(text, i + 1);
  }
  i = TakeDigits(text, i, number);
  if (i < text.size() && text[i] == '.') {
    number += '.';
    i = TakeDigits(text, i + 1, number);
  }
  const bool has_digits = std::any_of(number.begin(), number.end(), IsDigit);
  if (!has_digits) return 0;
  if (i < text.size() && std::string_view("eEdD").find(text[i]) != std::string_view::npos) {
    std::string exponent = "e";
    size_t j = SkipBlanks(text, i + 1);
    if (j < text.size() && (text[j] == '+' || text[j] == '-')) exponent += text[j++];
    const size_t before = exponent.size();
    TakeDigits(text, j, exponent);
    if (exponent.size() > before) number += exponent;
  }
  double value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  return result.ec == std::errc() ? value : 0;
}

double PageSliderScale::PageAt(double x) const {
  if (width <= 0 || num_pages <= 1) return 1;
  return 1 + (x - left_x) / width * (num_pages - 1);
}

double PageSliderScale::XOf(double page) const {
  if (num_pages <= 1) return left_x;
  return left_x + (page - 1) / (num_pages - 1) * width;
}

void PageNavState::ChoosePage(Int16 current_page, Int16 num_pages) {
  selected_page_ = current_page;
  current_page_ = current_page;
  num_pages_ = num_pages;
  cancelled_ = false;
}

void PageNavState::SlideTo(double x_pages) {
  Trap("sub picture1_mousemove", kModule, [&] {
    const double clamped = std::clamp(x_pages, 1.0, std::max(1.0, static_cast<double>(num_pages_)));
    selected_page_ = Int16::FromDouble(clamped);
  });
}

bool PageNavState::TypePage(std::string_view text) {
  bool taken = false;
  Trap("sub txtgotopage_keyup", kModule, [&] {
    const double value = NumericValue(text);
    if (value > 0 && value <= num_pages_) {
      selected_page_ = Int16::FromDouble(value);
      taken = true;
    }
  });
  return taken;
}

}  // namespace vireo
