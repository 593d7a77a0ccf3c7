#pragma once

#include <string>

namespace vireo {

// The position-dependent offset of the packed form. The unpacker walks the
// body with a counter k running 0, -1, 0, 1, ... 5, 4, ... -1, 0 (a triangle
// wave that starts downwards) and alternately subtracts k + 2 and adds 2 - k;
// the pattern repeats every 12 characters from the first character of the
// body. Returns what is added to the stored code at the 0-based index.
int DescrambleOffset(size_t index);

// Descrambles body in place. A code leaving 0..255 raises RuntimeError 6
// (Overflow); the characters before it are descrambled then, the rest not.
void Descramble(std::string& body);

// The inverse of Descramble, for packing. A character whose stored code
// would leave 0..255 at its position raises RuntimeError 6 (the characters
// 3..249 fit at every position).
void Scramble(std::string& plain);
// The same for the size characters at plain, the first of them at index 0.
void Scramble(char* plain, size_t size);

}  // namespace vireo
