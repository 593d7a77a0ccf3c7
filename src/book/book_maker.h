#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "book/cls_bin.h"
#include "book/replacement_report.h"
#include "book/text_encoding.h"

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
//
// Characters the book cannot show are not carried: the formatting codes'
// characters (128-136) and characters outside Windows-1252 are written as
// plain text (plain_text_fallback.h), and each kind is counted.

// The book text in the form the packed book carries: Windows-1252 with the
// characters above written as references or plain text, each replacement
// counted in tally when one is given. A byte-order mark is dropped; UTF-16
// is read as its characters. Throws RuntimeError 13 for UTF-8 input that is
// not UTF-8.
std::string PackableText(std::string_view input, TextEncoding encoding,
                         ReplacementTally* tally = nullptr);

// A detail field (author, title) in packable form: the same, except that
// 200 stays as it is (the reader reads no paragraph placeholder there; it
// converts the references as in the text).
std::string PackableDetail(std::string_view input, TextEncoding encoding,
                           ReplacementTally* tally = nullptr);

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

// What the maker writes: a self-contained ebook (a copy of the reader with
// the book appended), or the packed book alone (a ".brn" file, the body
// without markers, which the reader opens as it opens an ebook).
enum class MakeForm { kEbook, kBrn };

struct MakeRequest {
  std::string text_path;
  std::string out_path;
  std::string stub_path;  // not read for a ".brn" book
  std::string author;     // as typed (UTF-8 or Windows-1252)
  std::string title;
  MakeForm form = MakeForm::kEbook;
  // Files out_path may not be besides the text and the stub (the running
  // reader, the book it has open): the request is refused.
  std::vector<std::string> kept_paths{};
  // Told the stage (English, untranslated) and the percentage done.
  ProgressHandler progress = nullptr;
  // Adds a section of the maker's own after the packed book (given the
  // whole file so far and the packable text); none when not set, and the
  // ebook then ends with the book. May throw RuntimeError.
  std::function<void(std::string& file, std::string_view text)> after_book = nullptr;
};

struct MakeResult {
  bool ok = false;
  std::string message;                                 // the one-line summary, or what went wrong
  size_t text_length = 0;                              // characters of the packable text
  size_t stored_size = 0;                              // bytes of the body
  TextEncoding encoding = TextEncoding::kWindows1252;  // as the text was read
  // The characters that could not go into the book as themselves.
  std::vector<CharacterReplacement> replacements;
};

// Makes the book: checks the request (MakeRequestProblem), reads the text
// (unreadable or empty: error), prepares the stub (ebooks only), packs, and
// writes out_path through a temporary file, so that on any failure nothing
// is left at out_path and the text and the stub are untouched. An ebook is
// made executable. The stub is prepared on a second thread while the text
// is converted. Memory: about twice the text, plus the stub.
MakeResult MakeEbook(const MakeRequest& request);

}  // namespace vireo
