#include "prefs/setting_value.h"

#include <fmt/format.h>

#include <cmath>
#include <cstdlib>
#include <limits>

#include "support/runtime_error.h"
#include "support/text_helpers.h"

namespace vireo {
namespace {

std::string Trimmed(const std::string& text) {
  const size_t first = text.find_first_not_of(' ');
  if (first == std::string::npos) return "";
  const size_t last = text.find_last_not_of(' ');
  return text.substr(first, last - first + 1);
}

bool ParseNumber(const std::string& text, double& number) {
  const std::string trimmed = Trimmed(text);
  if (trimmed.empty()) return false;
  char* end = nullptr;
  number = std::strtod(trimmed.c_str(), &end);
  return end == trimmed.c_str() + trimmed.size() && std::isfinite(number);
}

std::string NumberText(double number) {
  if (number == std::floor(number) && std::fabs(number) < 1e15) {
    return fmt::format("{}", static_cast<int64_t>(number));
  }
  std::string text = fmt::format("{:.15G}", number);
  return text;
}

}  // namespace

std::string SettingValue::ToText() const {
  if (const auto* text = std::get_if<std::string>(&value_)) return *text;
  if (const auto* number = std::get_if<double>(&value_)) return NumberText(*number);
  if (const auto* boolean = std::get_if<bool>(&value_)) return *boolean ? "True" : "False";
  return "";
}

double SettingValue::ToNumber() const {
  if (const auto* number = std::get_if<double>(&value_)) return *number;
  if (const auto* boolean = std::get_if<bool>(&value_)) return *boolean ? -1 : 0;
  if (const auto* text = std::get_if<std::string>(&value_)) {
    double parsed = 0;
    if (ParseNumber(*text, parsed)) return parsed;
    throw RuntimeError(ErrorNumber::kTypeMismatch);
  }
  return 0;
}

int32_t SettingValue::ToLong() const {
  const double rounded = std::nearbyint(ToNumber());
  if (rounded < std::numeric_limits<int32_t>::min() ||
      rounded > std::numeric_limits<int32_t>::max()) {
    throw RuntimeError(ErrorNumber::kOverflow);
  }
  return static_cast<int32_t>(rounded);
}

bool SettingValue::ToBoolean() const {
  if (const auto* boolean = std::get_if<bool>(&value_)) return *boolean;
  if (const auto* text = std::get_if<std::string>(&value_)) {
    const std::string upper = UpperCase(Trimmed(*text));
    if (upper == "TRUE") return true;
    if (upper == "FALSE") return false;
  }
  return ToNumber() != 0;
}

bool SettingValue::EqualsZero() const {
  if (IsEmpty()) return true;
  if (const auto* text = std::get_if<std::string>(&value_)) {
    double parsed = 0;
    return ParseNumber(*text, parsed) && parsed == 0;
  }
  return ToNumber() == 0;
}

SettingValue ParseSettingText(const std::string& text) {
  const std::string upper = UpperCase(Trimmed(text));
  if (upper == "FALSE") return SettingValue(false);
  if (upper == "TRUE") return SettingValue(true);
  return SettingValue(text);
}

}  // namespace vireo
