#include "book/cls_bin.h"

#include <cstring>

#include "book/cls_new_images.h"
#include "book/cls_strip_cr.h"
#include "book/reading_order.h"
#include "book/scrambling.h"
#include "book/word_table.h"
#include "support/error_trap.h"
#include "support/file_io.h"
#include "support/milestones.h"
#include "support/platform.h"
#include "support/text_helpers.h"
#include "support/translation.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "clsBIN";
constexpr char kParagraphPlaceholder = '\xC8';  // 200
constexpr char kBflFlag = '\xFA';               // 250
constexpr size_t kBflHeaderLength = 1000;
constexpr int kBflHeaderOffset = 50;
constexpr int kProgressMaximum = 100;

#if defined(_WIN32)
constexpr char kSeparator = '\\';
#else
constexpr char kSeparator = '/';
#endif

// The detail block from the first section mark (included) to the last
// (excluded) of text; error 5 when text holds no section mark.
std::string DetailsBetweenMarks(std::string_view text) {
  const size_t first = text.find(kSectionMark);
  Require(first != std::string_view::npos, ErrorNumber::kInvalidProcedureCall);
  const size_t last = text.rfind(kSectionMark);
  return std::string(text.substr(first, last - first));
}

// Field n (from 1) of a detail block: the text between the n-th and the
// next section mark (or the end), without section marks. Error 5 when the
// block has fewer than n marks.
std::string DetailField(std::string_view block, int n) {
  size_t mark = std::string_view::npos;
  for (int i = 0; i < n; ++i) {
    mark = block.find(kSectionMark, mark == std::string_view::npos ? 0 : mark + 1);
    Require(mark != std::string_view::npos, ErrorNumber::kInvalidProcedureCall);
  }
  const size_t next = block.find(kSectionMark, mark + 1);
  return std::string(block.substr(
      mark + 1, next == std::string_view::npos ? std::string_view::npos : next - mark - 1));
}

// Every blank followed by the placeholder 200 becomes a paragraph mark.
void ReplaceParagraphPlaceholders(std::string& text) {
  const char* data = text.data();
  const size_t size = text.size();
  const void* hit = std::memchr(data, kParagraphPlaceholder, size);
  if (hit == nullptr) return;
  std::string out;
  out.reserve(size + size / 64);
  size_t copied = 0;
  while (hit != nullptr) {
    const size_t index = static_cast<size_t>(static_cast<const char*>(hit) - data);
    if (index > copied && data[index - 1] == ' ') {
      out.append(text, copied, index - 1 - copied);
      out.append(ParaMark());
      copied = index + 1;
    }
    hit = index + 1 < size ? std::memchr(data + index + 1, kParagraphPlaceholder, size - index - 1)
                           : nullptr;
  }
  out.append(text, copied);
  text = std::move(out);
}

}  // namespace

std::string BookFolderOf(std::string_view path) {
  const size_t last = path.find_last_of("/\\");
  if (last == std::string_view::npos) return std::string{'.', kSeparator};
  return std::string(path.substr(0, last + 1));
}

clsBIN::clsBIN(FormattingOptions options, ProgressHandler progress)
    : options_(options), progress_(std::move(progress)) {}

template <typename Body>
bool clsBIN::Step(std::string_view procedure, Body&& body) {
  const bool ran = Trap(procedure, kModule, std::forward<Body>(body));
  if (!ran && first_failure_.empty()) first_failure_ = procedure;
  return ran;
}

void clsBIN::Progress(std::string_view caption, int value) {
  if (progress_) progress_(GetTranslation(caption), value, kProgressMaximum);
}

// The common end of every conversion: reformatting, pictures, and the body
// handed over as the result.
void clsBIN::Finish(int progress) {
  Progress(Translatable("Finishing"), progress);
  FinalPass();
  ParseImages(body_);
  result_text_ = std::move(body_);
  body_.clear();
}

void clsBIN::ConvertLoadedBRN() {
  Step("sub convertloadedbrn", [&] {
    book_folder_ = ProgramFolder() + kSeparator;
    Progress(Translatable("Unpacking"), 30);
    DecodeAndExtract();
    WriteMilestone("book unpacked");
    Progress(Translatable("Reformatting Text"), 50);
    DecodeDetails();
    Finish(80);
    WriteMilestone("book reformatted");
  });
}

void clsBIN::ConvertAndLoadBRN(const std::string& path) {
  Step("sub convertandloadbrn", [&] {
    book_folder_ = BookFolderOf(path);
    Progress(Translatable("Reading BRN file"), 20);
    ReadBin(path);
    Progress(Translatable("Unpacking"), 30);
    DecodeAndExtract();
    Progress(Translatable("Reformatting Text"), 60);
    DecodeDetails();
    Finish(80);
  });
}

void clsBIN::ConvertAndLoadBFL(const std::string& path) {
  Step("sub convertandloadbfl", [&] {
    book_folder_ = BookFolderOf(path);
    Progress(Translatable("Reading file"), 10);
    ReadBin(path);
    Progress(Translatable("Unpacking"), 50);
    if (CheckForBflHeader()) DecodeDetails();
    DecodeBin();
    Progress(Translatable("Reformatting Text"), 70);
    Finish(90);
  });
}

void clsBIN::ReadBin(const std::string& path) {
  Step("sub readbin", [&] { body_ = ReadWholeFile(path); });
}

bool clsBIN::CheckForBflHeader() {
  bool found = false;
  Step("function checkforbflheader", [&] {
    if (body_.empty() || body_[0] != kBflFlag) return;
    Require(body_.size() >= kBflHeaderLength, ErrorNumber::kInvalidProcedureCall);
    std::string header = body_.substr(0, kBflHeaderLength);
    for (char& c : header) {
      const int code = static_cast<uint8_t>(c) - kBflHeaderOffset;
      Require(code >= 0, ErrorNumber::kOverflow);
      c = static_cast<char>(code);
    }
    detail_block_ = DetailsBetweenMarks(header);
    body_.erase(0, kBflHeaderLength);
    found = true;
  });
  return found;
}

void clsBIN::DecodeBin() {
  Step("sub decodebin", [&] {
    SetupWords();  // the table is constant; Expansions() holds it composed
    Descramble(body_);
    body_ = ExpandWords(body_);
  });
}

void clsBIN::DecodeAndExtract() {
  bool descrambled = false;
  Step("sub decodebin", [&] {
    SetupWords();  // the table is constant; Expansions() holds it composed
    Descramble(body_);
    descrambled = true;
  });
  if (descrambled) {
    std::optional<ExtractedBook> book;
    Step("sub decodebin", [&] {
      book = ExpandInReadingOrder(body_);
      if (!book) body_ = ExpandWords(body_);
    });
    if (book) {
      body_ = std::move(book->text);
      detail_block_ = std::move(book->detail_block);
      header_block_.clear();
      return;
    }
  }
  BrnPostExtract();
}

void clsBIN::BrnPostExtract() {
  Step("sub brnpostextract", [&] {
    body_.erase(0, std::min(kLeadInLength, body_.size()));
    body_.resize(body_.size() - std::min(kTrailerLength, body_.size()));
    const size_t first = body_.find(kSectionMark);
    Require(first != std::string::npos, ErrorNumber::kInvalidProcedureCall);
    const size_t last = body_.rfind(kSectionMark);
    detail_block_ = body_.substr(first, last - first);
    std::string text;
    text.reserve(body_.size() - (last - first + 1));
    text.append(body_, last + 1);
    text.append(body_, 0, first);
    body_ = std::move(text);
    header_block_.clear();
  });
}

void clsBIN::DecodeDetails() {
  Step("sub decodedetails", [&] {
    details_.author = DetailField(detail_block_, 1);
    details_.title = DetailField(detail_block_, 3);
  });
}

void clsBIN::FinalPass() {
  Step("sub finalpass", [&] {
    clsStripCR::ReplaceKnownChar(body_, options_);
    ReplaceParagraphPlaceholders(body_);
  });
}

void clsBIN::ParseImages(std::string& text) {
  Step("sub parseimages", [&] {
    if (images_ == nullptr) return;
    images_->ClearAll();
    images_->LoadAllImages(picture_folder_.empty() ? book_folder_ : picture_folder_, text, true);
  });
}

}  // namespace vireo
