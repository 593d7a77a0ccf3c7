#include "app/about_text.h"

#include "support/logging.h"
#include "support/maker.h"
#include "support/translation.h"

namespace vireo {
namespace {

// 1234567 -> "1,234,567".
std::string WithThousands(size_t number) {
  std::string digits = std::to_string(number);
  for (int at = static_cast<int>(digits.size()) - 3; at > 0; at -= 3) {
    digits.insert(static_cast<size_t>(at), ",");
  }
  return digits;
}

std::string BookLine(const AboutBook& book) {
  if (!book.loaded) return GetTranslation("No book is open.");
  std::string line = book.title;
  if (!book.author.empty()) line += ", " + GetTranslation("by") + " " + book.author;
  return line + ": " + WithThousands(book.stored_size) + " " + GetTranslation("bytes stored");
}

}  // namespace

AboutText MakeAboutText(const AboutBook& book) {
  return {"Vireo " + AppVersion(), std::string(kMakerName) + ", " + std::string(kMakerCountry),
          std::string(kMakerHomePage), GetTranslation(std::string(kLicence)), BookLine(book)};
}

}  // namespace vireo
