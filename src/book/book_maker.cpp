#include "book/book_maker.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <future>
#include <optional>

#include "book/ebook_stub.h"
#include "book/load_file.h"
#include "book/make_request_check.h"
#include "book/plain_text_fallback.h"
#include "book/scrambling.h"
#include "book/word_table.h"
#include "support/file_io.h"
#include "support/large_buffer.h"
#include "support/logging.h"
#include "support/platform.h"
#include "support/runtime_error.h"
#include "support/windows1252.h"

namespace vireo {
namespace {

constexpr char kSectionMark = '\xA9';  // 169
constexpr size_t kLeadInLength = 2000;
constexpr size_t kTrailerLength = 2000;
constexpr std::string_view kFiller = "This book was made with Vireo. ";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

enum class Field { kText, kDetail };

// Bytes that must be written as a reference. In a detail field 200 is a
// plain character, since no placeholder is read there.
std::array<bool, 256> MustEscape(Field field) {
  std::array<bool, 256> produced{};
  for (const std::string& expansion : Expansions()) {
    for (char c : expansion) produced[static_cast<uint8_t>(c)] = true;
  }
  std::array<bool, 256> escape{};
  for (int byte = 0; byte < 256; ++byte) {
    // The scrambling offsets run from -6 to +3: 3..249 fit everywhere.
    escape[byte] = !produced[byte] || byte < 3 || byte > 249 || byte == 169;
  }
  escape['&'] = true;
  if (field == Field::kText) escape[200] = true;
  return escape;
}

void AppendReference(std::string& out, char32_t code_point) {
  out += "&#" + std::to_string(static_cast<uint32_t>(code_point)) + ";";
}

class Escaper {
 public:
  Escaper(Field field, ReplacementTally* tally) : escape_(MustEscape(field)), tally_(tally) {
    for (int byte = 0; byte < 256; ++byte) {
      plain_[byte] = !escape_[byte] && !IsFormattingCode(static_cast<uint8_t>(byte));
      plain_ascii_[byte] = plain_[byte] && byte < 0x80;
    }
  }

  // The end of the run of bytes from index on that are copied as they are
  // (only ASCII ones from UTF-8 input).
  size_t PlainRunEnd(std::string_view input, size_t index, TextEncoding encoding) const {
    const std::array<bool, 256>& plain =
        encoding == TextEncoding::kUtf8 ? plain_ascii_ : plain_;
    while (index < input.size() && plain[static_cast<uint8_t>(input[index])]) ++index;
    return index;
  }

  void Byte(std::string& out, uint8_t byte) const {
    if (IsFormattingCode(byte)) {
      const char32_t code_point = Windows1252ToUnicode(byte);
      Replace(out, code_point, PlainTextFallback(code_point));
    } else if (!escape_[byte]) {
      out.push_back(static_cast<char>(byte));
    } else if (byte == '&') {
      // "&#38;" would turn into "&" before the named references are read,
      // and could start one; "&amp;" is read last and never rescanned.
      out += "&amp;";
    } else {
      AppendReference(out, byte);
    }
  }

  void CodePoint(std::string& out, char32_t code_point) const {
    if (const std::optional<uint8_t> byte = UnicodeToWindows1252(code_point)) {
      Byte(out, *byte);
    } else if (IsCombiningMark(code_point)) {
      Mark(out, code_point);
    } else {
      Replace(out, code_point, PlainTextFallback(code_point));
    }
  }

 private:
  // A combining mark joins the letter before it when Windows-1252 has the
  // pair as one letter; otherwise the accent is dropped.
  void Mark(std::string& out, char32_t mark) const {
    if (!out.empty()) {
      if (const auto letter = ComposedLetter(static_cast<uint8_t>(out.back()), mark)) {
        out.pop_back();
        Byte(out, *letter);
        return;
      }
    }
    Replace(out, mark, "");
  }

  void Replace(std::string& out, char32_t code_point, std::string_view written) const {
    for (const char c : written) Byte(out, static_cast<uint8_t>(c));
    if (tally_ != nullptr) tally_->Count(code_point, written);
  }

  std::array<bool, 256> escape_;
  std::array<bool, 256> plain_{};
  std::array<bool, 256> plain_ascii_{};
  ReplacementTally* tally_;
};

std::string Packable(std::string_view input, TextEncoding encoding, Field field,
                     ReplacementTally* tally) {
  if (encoding == TextEncoding::kUtf16LittleEndian || encoding == TextEncoding::kUtf16BigEndian) {
    return Packable(Utf8FromUtf16(input, encoding), TextEncoding::kUtf8, field, tally);
  }
  const Escaper escaper(field, tally);
  std::string out;
  ReserveLarge(out, input.size(), input.size() / 32);
  if (encoding == TextEncoding::kUtf8 && input.starts_with(kByteOrderMark)) {
    input.remove_prefix(kByteOrderMark.size());
  }
  for (size_t index = 0; index < input.size();) {
    const size_t run_end = escaper.PlainRunEnd(input, index, encoding);
    out.append(input.substr(index, run_end - index));
    index = run_end;
    if (index == input.size()) break;
    if (encoding == TextEncoding::kWindows1252) {
      escaper.Byte(out, static_cast<uint8_t>(input[index++]));
    } else if (const std::optional<char32_t> code_point = NextUtf8(input, index)) {
      escaper.CodePoint(out, *code_point);
    } else {
      throw RuntimeError(ErrorNumber::kTypeMismatch, "the text is not UTF-8");
    }
  }
  return out;
}

std::string Detail(const std::string& typed, ReplacementTally& tally) {
  return PackableDetail(typed, DetectEncoding(typed), &tally);
}

// What a failure during stage is reported as. A full disk is the output's
// fault, also when it was the stub's stripped copy that did not fit.
std::string FailureMessage(std::string stage, const std::exception& error,
                           const MakeRequest& request) {
  const auto* runtime = dynamic_cast<const RuntimeError*>(&error);
  if (runtime != nullptr && runtime->number() == static_cast<int>(ErrorNumber::kDiskFull)) {
    stage = "cannot write " + request.out_path;
  }
  return stage + " (" + error.what() + ")";
}

void MarkExecutable(const std::string& path) {
  using std::filesystem::perms;
  std::error_code not_executable;  // the book is complete either way
  std::filesystem::permissions(path, perms::owner_exec | perms::group_exec | perms::others_exec,
                               std::filesystem::perm_options::add, not_executable);
}

// The detail block: field 1 the author, field 3 the title, each closed by
// a section mark so every field ends before the last mark.
std::string DetailBlock(std::string_view author, std::string_view title) {
  std::string details;
  details += kSectionMark;
  details += author;
  details += kSectionMark;
  details += kSectionMark;
  details += title;
  details += kSectionMark;
  details += kSectionMark;
  return details;
}

// The most bytes AppendPackedBody adds (the contraction never lengthens).
size_t PackedBodySize(std::string_view text, std::string_view author, std::string_view title) {
  return kLeadInLength + text.size() + DetailBlock(author, title).size() + kTrailerLength;
}

// What the text's buffer is given beyond the text so that the book can take
// its place (MakeRoom): the packable text is about as long as the input
// (references lengthen it, UTF-8 letters shorten it) and the stub comes
// before it. Reserved room that is never used costs no memory.
size_t RoomBeyondText(const std::string& text_path) {
  constexpr size_t kStubRoom = size_t{8} << 20;
  std::error_code unknown;
  const uintmax_t size = std::filesystem::file_size(text_path, unknown);
  return unknown ? 0 : static_cast<size_t>(size / 16) + kStubRoom;
}

// Makes file, emptied, able to hold `size` bytes without growing: a book
// that outgrew it would be copied and its new room faulted in page by page.
// The old buffer is kept when it is large enough (it is paged in already)
// and freed before a new one is taken otherwise.
void MakeRoom(std::string& file, size_t size) {
  file.clear();
  if (file.capacity() >= size) return;
  file.shrink_to_fit();  // frees it: reserving on top would double the old room
  ReserveLarge(file, size);
}

// What comes before the body: for an ebook the prepared stub and the
// header, made on a thread of its own, since stripping the stub runs a
// program and waits for it while the text is converted here; nothing for a
// ".brn" book. Its failure is thrown by get().
std::future<std::string> StartFileStart(const MakeRequest& request) {
  if (request.form != MakeForm::kEbook) {
    return std::async(std::launch::deferred, [] { return std::string(); });
  }
  return std::async(std::launch::async, [stub = request.stub_path, out = request.out_path] {
    const std::string out_folder = std::filesystem::absolute(out).parent_path().string();
    return EbookFileStart(PrepareStub(stub, out_folder));
  });
}

std::string Filler(size_t length) {
  std::string filler;
  while (filler.size() < length) filler += kFiller;
  filler.resize(length);
  return filler;
}

}  // namespace

std::string PackableText(std::string_view input, TextEncoding encoding, ReplacementTally* tally) {
  return Packable(input, encoding, Field::kText, tally);
}

std::string PackableDetail(std::string_view input, TextEncoding encoding,
                           ReplacementTally* tally) {
  return Packable(input, encoding, Field::kDetail, tally);
}

void AppendPackedBody(std::string& out, std::string_view text, std::string_view author,
                      std::string_view title) {
  const std::string details = DetailBlock(author, title);
  const size_t half = text.size() / 2;
  const std::string lead_in = Filler(kLeadInLength);
  const std::string trailer = Filler(kTrailerLength);
  const std::string_view plain[] = {lead_in, text.substr(half), details, text.substr(0, half),
                                    trailer};
  const size_t start = out.size();
  AppendContracted(out, plain);
  Scramble(out.data() + start, out.size() - start);
}

std::string PackBody(std::string_view text, std::string_view author, std::string_view title) {
  std::string body;
  AppendPackedBody(body, text, author, title);
  return body;
}

std::string EbookHeaderBlock() { return "Vireo " + AppVersion(); }

std::string EbookFileStart(std::string stub) {
  stub += HeaderMarker();
  stub += EbookHeaderBlock();
  stub += BookMarker();
  return stub;
}

std::string EbookFile(std::string stub, std::string_view body) {
  std::string file = EbookFileStart(std::move(stub));
  file += body;
  return file;
}

MakeResult MakeEbook(const MakeRequest& request) {
  MakeResult result;
  if (std::string problem = MakeRequestProblem(request); !problem.empty()) {
    result.message = std::move(problem);
    return result;
  }
  const auto progress = [&request](std::string_view caption, int percent) {
    if (request.progress) request.progress(caption, percent, 100);
  };
  std::string stage = "cannot read the text " + request.text_path;
  try {
    progress("Reading the text", 10);
    std::string file = ReadWholeFile(request.text_path, RoomBeyondText(request.text_path));
    const size_t input_size = file.size();
    if (file.empty()) {
      result.message = "the text " + request.text_path + " is empty";
      return result;
    }
    std::future<std::string> file_start = StartFileStart(request);
    result.encoding = DetectEncoding(file);
    stage = "cannot read the text " + request.text_path + " as UTF-8";
    progress("Converting the text", 25);
    ReplacementTally tally;
    std::string text = PackableText(file, result.encoding, &tally);
    if (request.form == MakeForm::kEbook) {
      stage = "cannot use the stub " + request.stub_path;
      progress("Preparing the reader", 40);
    }
    const std::string start = file_start.get();
    stage = "cannot pack the book";
    progress("Packing the book", 55);
    const std::string author = Detail(request.author, tally);
    const std::string title = Detail(request.title, tally);
    // The book takes the input's place when it fits: that memory is paged in
    // already, which spares the page faults of a fresh buffer.
    MakeRoom(file, start.size() + PackedBodySize(text, author, title));
    file.assign(start.data(), start.size());  // a copy keeps the buffer; a move would not
    const size_t body_start = file.size();
    AppendPackedBody(file, text, author, title);
    result.text_length = text.size();
    result.stored_size = file.size() - body_start;
    if (request.after_book) {
      stage = "cannot pack the pictures";
      request.after_book(file, text);
    }
    text = std::string();  // not needed while the file is written
    stage = "cannot write " + request.out_path;
    progress("Writing the book", 80);
    WriteFileAtomically(request.out_path, file);
    if (request.form == MakeForm::kEbook) MarkExecutable(request.out_path);
    progress("Done", 100);
    result.ok = true;
    result.replacements = tally.Kinds();
    result.message = "made " + request.out_path + ": " + std::to_string(input_size) +
                     " bytes of text, book of " + std::to_string(result.stored_size) + " bytes";
  } catch (const std::exception& error) {
    result = MakeResult{};
    result.message = FailureMessage(stage, error, request);
  }
  return result;
}

}  // namespace vireo
