#include "book/book_maker.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <optional>

#include "book/ebook_stub.h"
#include "book/load_file.h"
#include "book/make_request_check.h"
#include "book/scrambling.h"
#include "book/word_table.h"
#include "support/file_io.h"
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
  explicit Escaper(Field field) : escape_(MustEscape(field)) {
    for (int byte = 0; byte < 256; ++byte) {
      plain_[byte] = !escape_[byte];
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
    if (!escape_[byte]) {
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
    } else if (code_point < 0x100) {
      out.push_back('?');  // a C1 control: "&#N;" would be read as Windows-1252
    } else {
      AppendReference(out, code_point);
    }
  }

 private:
  std::array<bool, 256> escape_;
  std::array<bool, 256> plain_{};
  std::array<bool, 256> plain_ascii_{};
};

std::string Packable(std::string_view input, TextEncoding encoding, Field field) {
  const Escaper escaper(field);
  std::string out;
  out.reserve(input.size() + input.size() / 32);
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

std::string Detail(const std::string& typed) {
  return PackableDetail(typed, DetectEncoding(typed));
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

std::string Filler(size_t length) {
  std::string filler;
  while (filler.size() < length) filler += kFiller;
  filler.resize(length);
  return filler;
}

}  // namespace

TextEncoding DetectEncoding(std::string_view bytes) {
  if (bytes.starts_with(kByteOrderMark)) return TextEncoding::kUtf8;
  bool non_ascii = false;
  for (size_t index = 0; index < bytes.size();) {
    if (uint64_t eight; bytes.size() - index >= sizeof(eight)) {  // ASCII, eight at a time
      std::memcpy(&eight, bytes.data() + index, sizeof(eight));
      if ((eight & 0x8080808080808080u) == 0) {
        index += sizeof(eight);
        continue;
      }
    }
    if (static_cast<uint8_t>(bytes[index]) >= 0x80) non_ascii = true;
    if (!NextUtf8(bytes, index)) return TextEncoding::kWindows1252;
  }
  return non_ascii ? TextEncoding::kUtf8 : TextEncoding::kWindows1252;
}

std::string PackableText(std::string_view input, TextEncoding encoding) {
  return Packable(input, encoding, Field::kText);
}

std::string PackableDetail(std::string_view input, TextEncoding encoding) {
  return Packable(input, encoding, Field::kDetail);
}

void AppendPackedBody(std::string& out, std::string_view text, std::string_view author,
                      std::string_view title) {
  // The detail block: field 1 the author, field 3 the title, each closed by
  // a section mark so every field ends before the last mark.
  std::string details;
  details += kSectionMark;
  details += author;
  details += kSectionMark;
  details += kSectionMark;
  details += title;
  details += kSectionMark;
  details += kSectionMark;
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
  std::string stage = "cannot read the text " + request.text_path;
  try {
    std::string file = ReadWholeFile(request.text_path);
    const size_t input_size = file.size();
    if (file.empty()) {
      result.message = "the text " + request.text_path + " is empty";
      return result;
    }
    stage = "cannot read the text " + request.text_path + " as UTF-8";
    std::string text = PackableText(file, DetectEncoding(file));
    const std::string out_folder =
        std::filesystem::absolute(request.out_path).parent_path().string();
    stage = "cannot use the stub " + request.stub_path;
    // The ebook takes the input's place: that memory is paged in already,
    // which spares the page faults of a fresh buffer as large as the book.
    const std::string start = EbookFileStart(PrepareStub(request.stub_path, out_folder));
    file.assign(start.data(), start.size());  // a copy keeps the buffer; a move would not
    const size_t body_start = file.size();
    stage = "cannot pack the book";
    AppendPackedBody(file, text, Detail(request.author), Detail(request.title));
    result.text_length = text.size();
    result.stored_size = file.size() - body_start;
    text = std::string();  // not needed while the file is written
    stage = "cannot write " + request.out_path;
    WriteFileAtomically(request.out_path, file);
    MarkExecutable(request.out_path);
    result.ok = true;
    result.message = "made " + request.out_path + ": " + std::to_string(input_size) +
                     " bytes of text, book of " + std::to_string(result.stored_size) + " bytes";
  } catch (const std::exception& error) {
    result = MakeResult{};
    result.message = FailureMessage(stage, error, request);
  }
  return result;
}

}  // namespace vireo
