#pragma once

#include <cstdint>
#include <string>
#include <variant>

namespace vireo {

// A setting's value: Empty, text, a number or a Boolean, converted the way
// the settings file and the preference readers expect.
class SettingValue {
 public:
  SettingValue() = default;                                          // Empty
  SettingValue(std::string text) : value_(std::move(text)) {}        // NOLINT: implicit by design
  SettingValue(const char* text) : value_(std::string(text)) {}      // NOLINT
  SettingValue(double number) : value_(number) {}                    // NOLINT
  SettingValue(int number) : value_(static_cast<double>(number)) {}  // NOLINT
  SettingValue(int64_t number) : value_(static_cast<double>(number)) {}  // NOLINT
  SettingValue(bool boolean) : value_(boolean) {}                        // NOLINT

  bool IsEmpty() const { return std::holds_alternative<std::monostate>(value_); }
  bool IsText() const { return std::holds_alternative<std::string>(value_); }
  bool IsNumber() const { return std::holds_alternative<double>(value_); }
  bool IsBoolean() const { return std::holds_alternative<bool>(value_); }

  // The file's text form: strings verbatim, "True"/"False", numbers in plain
  // decimal ("6570", "0.5"), Empty as "".
  std::string ToText() const;

  // Numeric value; a Boolean true is -1, Empty 0. Text that is not a number
  // raises error 13 (Type mismatch).
  double ToNumber() const;

  // ToNumber rounded to nearest (ties to even) into 32 bits; error 6 on
  // overflow.
  int32_t ToLong() const;

  // Boolean value: numbers are true when not 0, text "True"/"False" in any
  // case or a number; other text raises error 13.
  bool ToBoolean() const;

  // The comparison "value = 0": true for Empty, 0, False and numeric text
  // equal to 0.
  bool EqualsZero() const;

  friend bool operator==(const SettingValue&, const SettingValue&) = default;

 private:
  std::variant<std::monostate, std::string, double, bool> value_;
};

// Reads a file value: trimmed "TRUE"/"FALSE" in any case become Booleans,
// everything else stays text exactly as written.
SettingValue ParseSettingText(const std::string& text);

}  // namespace vireo
