#pragma once

#include <cstddef>
#include <string>

namespace vireo {

// Gives an empty text room for `size` bytes. A large room (a book's text,
// tens of megabytes) is asked to be backed by huge pages where the system
// offers them (Linux): touching it the first time then costs a few page
// faults per megabyte instead of hundreds, which is most of what reading and
// unpacking a big book costs on a fresh buffer. Only where the memory comes
// from changes; the text is untouched.
void ReserveLarge(std::string& text, size_t size);

}  // namespace vireo
