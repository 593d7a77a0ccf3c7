#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "book/formatting_options.h"

namespace vireo {

class clsNewImages;

// The book details read from a packed book: detail field 1 and field 3.
struct BookDetails {
  std::string author;
  std::string title;
};

// Told before each stage of an unpacking: the caption (already translated),
// the progress value and the maximum (always 100).
using ProgressHandler = std::function<void(std::string_view caption, int value, int maximum)>;

// The unpacker of the packed book form (class clsBIN of the reader). One
// instance per conversion. Every procedure traps its own errors under its
// logged name (module "clsBIN"): on an error the procedure is left, and the
// caller continues with whatever the body holds at that point.
//
// Stored form of a packed body, after descrambling and word expansion: a
// 2000-character lead-in, the second half of the book, the detail block
// (fields separated by character 169), the first half, a 2000-character
// trailer.
class clsBIN {
 public:
  explicit clsBIN(FormattingOptions options = {}, ProgressHandler progress = nullptr);

  // Unpacks the book taken from behind the markers of an executable (header
  // block and body set beforehand). Book folder: the program's folder.
  void ConvertLoadedBRN();
  // Reads and unpacks a stand-alone ".BRN" file (the same body).
  void ConvertAndLoadBRN(const std::string& path);
  // Reads and unpacks a ".BFL" file (scrambled 1000-character header with
  // the details, then a body without lead-in, trailer or rotation).
  void ConvertAndLoadBFL(const std::string& path);

  // The stages, public as in the reader's class.
  void ReadBin(const std::string& path);  // the whole file into the body
  bool CheckForBflHeader();               // recognises and strips a BFL header
  void DecodeBin();                       // descrambles and expands the words
  void BrnPostExtract();                  // lead-in, trailer, details, order
  // DecodeBin then BrnPostExtract, as the conversions run them: the words
  // are expanded straight into reading order when the body has the usual
  // shape (no expanded body in stored order is built); otherwise the two
  // stages run in turn, with their own error handling.
  void DecodeAndExtract();
  void DecodeDetails();                 // the detail block into the details
  void FinalPass();                     // reformatting and placeholders 200
  void ParseImages(std::string& text);  // picture references

  // The image store ParseImages rewrites the picture references with (not
  // owned; nullptr, the default: the references stay as they are), and the
  // folder it looks in ("": the book's folder).
  void SetImageStore(clsNewImages* images, std::string folder = "") {
    images_ = images;
    picture_folder_ = std::move(folder);
  }

  void set_header_block(std::string header_block) { header_block_ = std::move(header_block); }
  void set_body(std::string body) { body_ = std::move(body); }
  const std::string& header_block() const { return header_block_; }
  const std::string& body() const { return body_; }
  const std::string& detail_block() const { return detail_block_; }
  const std::string& book_folder() const { return book_folder_; }
  const BookDetails& details() const { return details_; }
  // The finished book text after a conversion; TakeResultText moves it out.
  const std::string& result_text() const { return result_text_; }
  std::string TakeResultText() { return std::move(result_text_); }
  // The logged name of the first procedure that met an error during the
  // conversion ("sub decodebin" ...), or "" when every one ran to its end.
  const std::string& first_failure() const { return first_failure_; }

 private:
  void Finish(int progress);
  void Progress(std::string_view caption, int value);
  // Runs a procedure body under the error trap, noting the first failure.
  template <typename Body>
  bool Step(std::string_view procedure, Body&& body);

  FormattingOptions options_;
  ProgressHandler progress_;
  std::string header_block_;
  std::string body_;
  std::string detail_block_;
  std::string book_folder_;
  std::string result_text_;
  BookDetails details_;
  std::string first_failure_;
  clsNewImages* images_ = nullptr;
  std::string picture_folder_;
};

// The folder of a book file in which its side files are looked for: the
// path up to and including its last separator, or "." and a separator.
std::string BookFolderOf(std::string_view path);

}  // namespace vireo
