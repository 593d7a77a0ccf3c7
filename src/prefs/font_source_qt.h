#pragma once

#include "prefs/font_choice.h"

namespace vireo {

// The font families Qt's font database lists (fontconfig's on Linux), in
// its order; a family is usable when the database knows it.
class QtFontSource : public FontSource {
 public:
  std::vector<std::string> InstalledFonts() const override;
  bool Usable(const std::string& name) const override;
};

}  // namespace vireo
