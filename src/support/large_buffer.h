#pragma once

#include <cstddef>
#include <string>

namespace vireo {

// Gives an empty text room for `size` bytes, about to be written, and
// `spare` more that may be. A large room (a book's text, tens of megabytes)
// is asked to be backed by huge pages where the system offers them (Linux),
// and its first `size` bytes are asked for in one call: touching them one
// page at a time costs a page fault each, which is most of what reading and
// unpacking a big book costs on a fresh buffer. The spare room costs no
// memory until it is used. Only where the memory comes from changes; the
// text is untouched.
void ReserveLarge(std::string& text, size_t size, size_t spare = 0);

}  // namespace vireo
