#include "book/book_reader.h"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <filesystem>
#include <new>
#include <optional>
#include <stdexcept>

#include "book/cls_new_images.h"
#include "book/html_references.h"
#include "book/load_file.h"
#include "book/picture_section.h"
#include "support/error_trap.h"
#include "support/file_io.h"
#include "support/logging.h"
#include "support/milestones.h"
#include "support/platform.h"
#include "support/translation.h"

namespace vireo {
namespace {

constexpr std::string_view kLoadProcedure = "sub loadfile";
constexpr std::string_view kLoadModule = "frmMain";

std::string TrimmedLower(std::string_view text) {
  const size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return "";
  std::string result(text.substr(first, text.find_last_not_of(' ') - first + 1));
  for (char& c : result) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return result;
}

// The error being handled, as the run-time error the trap records.
RuntimeError CurrentError() {
  try {
    throw;
  } catch (const RuntimeError& error) {
    return error;
  } catch (const std::bad_alloc&) {
    return RuntimeError(ErrorNumber::kOutOfMemory);
  } catch (const std::out_of_range&) {
    return RuntimeError(ErrorNumber::kSubscriptOutOfRange);
  } catch (...) {
    return RuntimeError(ErrorNumber::kInvalidProcedureCall);
  }
}

// Records the error being handled under the loader's name and returns the
// line the action list shows for it.
std::string RecordLoadError() {
  const RuntimeError error = CurrentError();
  RecordError(error, kLoadProcedure, kLoadModule);
  return error.description() + " in " + std::string(kLoadProcedure) + "(" +
         std::to_string(error.number()) + ") of module " + std::string(kLoadModule);
}

void ConvertReferences(std::string& text) {
  // Every reference starts with "&", and neither conversion makes one out
  // of nothing: a text without one (most books) is left after one scan.
  if (text.find('&') != std::string::npos) {
    HtmlToChar(text);
    HtmlConstToChar(text);
  }
}

bool HoldsControlCharacters(std::string_view text) {
  return std::any_of(text.begin(), text.end(),
                     [](char c) { return static_cast<uint8_t>(c) < 0x20; });
}

// Why the unpacked book cannot be what was stored, or "".
std::string Damage(const clsBIN& bin) {
  if (!bin.first_failure().empty()) return "the unpacking stopped in " + bin.first_failure();
  if (HoldsControlCharacters(bin.details().author) || HoldsControlCharacters(bin.details().title)) {
    return "its author and title are not text";
  }
  return "";
}

void FinishText(clsBIN& bin, BookReadResult& result, const std::string& path) {
  result.text = bin.TakeResultText();
  ConvertReferences(result.text);
  result.author = bin.details().author;
  result.stored_title = bin.details().title;
  ConvertReferences(result.author);
  ConvertReferences(result.stored_title);
  result.damage = Damage(bin);
  if (!result.damage.empty()) LogAction("The book in " + path + " is damaged: " + result.damage);
  result.has_book = true;
}

std::optional<PackedFileKind> PackedKindByName(const std::string& path) {
  const std::string name = TrimmedLower(FileNamePart(path));
  if (name.ends_with(".brn")) return PackedFileKind::kBrn;
  if (name.ends_with(".bfl")) return PackedFileKind::kBfl;
  return std::nullopt;
}

// A book's picture files while it is unpacked: the store looks in files
// during the conversion and in nothing afterwards.
class BookPictures {
 public:
  BookPictures(clsBIN& bin, const PictureLoading& pictures, PictureFiles& files)
      : store_(pictures.store) {
    if (store_ == nullptr) return;
    store_->SetFiles(&files);
    bin.SetImageStore(store_, pictures.folder);
  }
  ~BookPictures() {
    if (store_ != nullptr) store_->SetFiles(nullptr);
  }
  BookPictures(const BookPictures&) = delete;
  BookPictures& operator=(const BookPictures&) = delete;

 private:
  clsNewImages* store_;
};

}  // namespace

std::string NoBookMessage(const std::string& path) {
  if (TrimmedLower(path) == TrimmedLower("Vireo_Stub.exe")) {
    return GetTranslation("Running Vireo_Stub.exe does nothing. Please use Vireo.exe instead.");
  }
  return GetTranslation("There is no ebook stored in this file.");
}

BookReadResult ReadEmbeddedBook(const std::string& path, const FormattingOptions& options,
                                const ProgressHandler& progress, const PictureLoading& pictures) {
  BookReadResult result;
  try {
    LogAction("Loading from: " + path);
    std::string file = ReadWholeFile(path);
    WriteMilestone("book read");
    const PackedPictures packed = TakePictureSection(file);
    if (const PackedPicture* cover = packed.Cover()) result.packed_cover = cover->bytes;
    const std::string header_marker = HeaderMarker();
    const size_t header_at = file.find(header_marker);
    if (header_at == std::string::npos) {
      result.message = NoBookMessage(path);
      result.show_message = true;
      return result;
    }
    const size_t header_start = header_at + header_marker.size();
    LogAction("Reading Book");
    const std::string book_marker = BookMarker();
    const size_t book_at = file.find(book_marker, header_start);
    if (book_at == std::string::npos) LogAction("No book follows the header marker in " + path);
    Require(book_at != std::string::npos, ErrorNumber::kInvalidProcedureCall);
    clsBIN bin(options, progress);
    bin.set_header_block(file.substr(header_start, book_at - header_start));
    file.erase(0, book_at + book_marker.size());
    result.stored_size = file.size();
    bin.set_body(std::move(file));
    LogAction("Converting book");
    NoPictureFiles nothing;
    PackedPictureFiles files(packed, pictures.disk != nullptr ? *pictures.disk : nothing);
    const BookPictures attached(bin, pictures, files);
    bin.ConvertLoadedBRN();
    FinishText(bin, result, path);
    result.title = FileNamePart(path);
  } catch (...) {
    result = BookReadResult{};
    result.message = RecordLoadError();
  }
  return result;
}

BookReadResult ReadPackedBookFile(const std::string& path, PackedFileKind kind,
                                  const FormattingOptions& options, const ProgressHandler& progress,
                                  const PictureLoading& pictures) {
  BookReadResult result;
  if (!FileExists(path)) {
    result.message = "File not found: " + path;
    return result;
  }
  clsBIN bin(options, progress);
  NoPictureFiles nothing;
  const BookPictures attached(bin, pictures, pictures.disk != nullptr ? *pictures.disk : nothing);
  if (kind == PackedFileKind::kBrn) {
    bin.ConvertAndLoadBRN(path);
  } else {
    bin.ConvertAndLoadBFL(path);
  }
  try {
    result.stored_size = static_cast<size_t>(std::filesystem::file_size(path));
    FinishText(bin, result, path);
    result.title = FileNamePart(path);
  } catch (...) {
    result = BookReadResult{};
    result.message = RecordLoadError();
  }
  return result;
}

BookReadResult ReadBookFile(const std::string& path, const FormattingOptions& options,
                            const ProgressHandler& progress, const PictureLoading& pictures) {
  BookReadResult book = ReadEmbeddedBook(path, options, progress, pictures);
  const std::optional<PackedFileKind> kind = PackedKindByName(path);
  if (book.has_book || !book.show_message || !kind) return book;
  book = ReadPackedBookFile(path, *kind, options, progress, pictures);
  if (book.has_book && (!book.damage.empty() || book.text.empty())) {
    book = BookReadResult{};
    book.message = GetTranslation("This file holds no book that can be read.") + "\n" + path;
    book.show_message = true;
  }
  return book;
}

}  // namespace vireo
