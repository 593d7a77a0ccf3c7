#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vireo {

// The encodings a text file for the maker may come in.
enum class TextEncoding { kWindows1252, kUtf8, kUtf16LittleEndian, kUtf16BigEndian };

// UTF-16 when the bytes start with its byte-order mark; UTF-8 when they are
// valid UTF-8 holding at least one non-ASCII character (or start with its
// byte-order mark); Windows-1252 otherwise.
TextEncoding DetectEncoding(std::string_view bytes);

// The encoding's name as the person reads it ("UTF-8", "Windows-1252", ...).
std::string EncodingName(TextEncoding encoding);

// UTF-16 bytes (after or with their byte-order mark, which is dropped) as
// UTF-8. An odd last byte and an unpaired surrogate become U+FFFD, so that
// the maker reports them as characters without a place in the book.
std::string Utf8FromUtf16(std::string_view bytes, TextEncoding encoding);

}  // namespace vireo
