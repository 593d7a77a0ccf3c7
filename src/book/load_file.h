#pragma once

#include <string>

namespace vireo {

// The markers that open the header block and the packed book behind an
// executable. They exist in the program only as UTF-16 literals, so the
// reader never finds its own constants; these build their byte form.
std::string HeaderMarker();
std::string BookMarker();

}  // namespace vireo
