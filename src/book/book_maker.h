#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace vireo {

// The ebook maker: packs a text into the stored form the reader unpacks and
// appends it to a copy of the reader.
//
// The packed form cannot carry every character as it is: the word table's
// codes (179-188, 201-236) always expand, the section mark 169 and the
// paragraph placeholder 200 have meanings of their own, the codes 0-2 and
// 250-255 would leave 0..255 at some positions of the scrambling, and "&"
// would start a reference. Such characters are written as references
// ("&#N;", and "&amp;" for "&"), which the reader turns back, so what the
// reader shows is exactly the reformatted input.

enum class TextEncoding { kWindows1252, kUtf8 };

// UTF-8 when bytes are valid UTF-8 holding at least one non-ASCII character
// (or start with a byte-order mark); Windows-1252 otherwise.
TextEncoding DetectEncoding(std::string_view bytes);

// The book text in the form the packed book carries: Windows-1252 with the
// characters above written as references. From UTF-8, a character outside
// Windows-1252 becomes "&#N;" (its code point; the reader shows "?"), or "?"
// for a C1 control that Windows-1252 lacks; a byte-order mark is dropped.
std::string PackableText(std::string_view input, TextEncoding encoding);

// A detail field (author, title) in packable form: the same, except that
// 200 stays as it is (the reader reads no paragraph placeholder there; it
// converts the references as in the text).
std::string PackableDetail(std::string_view input, TextEncoding encoding);

// The stored body (what follows the book marker) for a packable text and
// packable details. Throws RuntimeError 6 when a character cannot be stored
// (packable input never does).
std::string PackBody(std::string_view text, std::string_view author, std::string_view title);
// The same appended to out, scrambled from where it starts there; the extra
// memory is the body itself and a few small buffers.
void AppendPackedBody(std::string& out, std::string_view text, std::string_view author,
                      std::string_view title);

// The header block written between the two markers.
std::string EbookHeaderBlock();

// A whole ebook file: the stub, the header marker, the header block, the
// book marker and the body. EbookFileStart is all of it but the body.
std::string EbookFile(std::string stub, std::string_view body);
std::string EbookFileStart(std::string stub);

struct MakeRequest {
  std::string text_path;
  std::string out_path;
  std::string stub_path;
  std::string author;  // as typed (UTF-8 or Windows-1252)
  std::string title;
  // Adds a section of the maker's own after the packed book (given the
  // whole file so far and the packable text); none when not set, and the
  // ebook then ends with the book. May throw RuntimeError.
  std::function<void(std::string& file, std::string_view text)> after_book = nullptr;
};

struct MakeResult {
  bool ok = false;
  std::string message;     // the one-line summary, or what went wrong
  size_t text_length = 0;  // characters of the packable text
  size_t stored_size = 0;  // bytes of the body
};

// Makes the ebook: checks the request (MakeRequestProblem), reads the text
// (unreadable or empty: error), prepares the stub, packs, and writes
// out_path through a temporary file, so that on any failure nothing is left
// at out_path and the text and the stub are untouched. The file is made
// executable. Memory: about twice the text, plus the stub.
MakeResult MakeEbook(const MakeRequest& request);

}  // namespace vireo
