#pragma once

#include <string>

namespace vireo {

// HTML character references in book text, turned into Windows-1252 bytes.
// Both run in one left-to-right pass and never rescan what they wrote.

// Numeric references: "&#" decimal digits ";" and "&#x" (or "&#X") hex
// digits ";". A value up to 255 gives that byte (128-159 are read as
// Windows-1252, as browsers do); a larger one its Windows-1252 byte, or "?"
// when it has none. A malformed reference (no digit, no ";") stays as it is.
void HtmlToChar(std::string& text);

// Named references of HTML 4 ("&eacute;", "&mdash;" ...; case-sensitive, ";"
// required): the Windows-1252 byte of the character, or "?" when it has
// none. Unknown names stay as they are.
void HtmlConstToChar(std::string& text);

}  // namespace vireo
