#pragma once

#include <cstddef>
#include <string>

namespace vireo {

// The book on show as the about window describes it.
struct AboutBook {
  bool loaded = false;
  std::string title;       // the title the book carries, else its file name
  std::string author;      // may be empty
  size_t stored_size = 0;  // bytes of the packed book in the file
};

// The about window's texts, translated, Windows-1252.
struct AboutText {
  std::string program;    // "Vireo 1.2.3"
  std::string maker;      // the maker and its country
  std::string home_page;  // an address
  std::string licence;
  std::string book;  // "Genesis, by Moses: 1,234,567 bytes stored", or that no book is open
};

AboutText MakeAboutText(const AboutBook& book);

}  // namespace vireo
