// vireo-tool text: the book text exactly as the reader holds it.

#include <cstdio>

#include "book/book_reader.h"
#include "book/cls_new_images.h"
#include "book/picture_files.h"
#include "book_commands.h"

namespace vireo::tool {
namespace {

int Print(const std::string& path, const BookReadResult& book) {
  if (const std::string why = UnshowableBook(path, book); !why.empty()) return Fail(why);
  std::fwrite(book.text.data(), 1, book.text.size(), stdout);
  return std::fflush(stdout) == 0 ? 0 : 1;
}

}  // namespace

int RunText(const Arguments& arguments) {
  std::string path;
  FormattingOptions options;
  enum class Kind { kEbook, kBrn, kBfl } kind = Kind::kEbook;
  for (const std::string& argument : arguments) {
    if (argument == "--no-reformat") {
      options.reformat = false;
    } else if (argument == "--underscores") {
      options.underscores = true;
    } else if (argument == "--extra-line") {
      options.extra_line = true;
    } else if (argument == "--brn") {
      kind = Kind::kBrn;
    } else if (argument == "--bfl") {
      kind = Kind::kBfl;
    } else if (argument.starts_with("-") || !path.empty()) {
      return Fail("text: unexpected argument " + argument);
    } else {
      path = argument;
    }
  }
  if (path.empty()) {
    return Fail("usage: vireo-tool text FILE [--no-reformat] [--underscores] [--extra-line]");
  }
  // Picture references are rewritten as the reader does, the book's folder
  // being the file's folder; only whether a picture exists matters here.
  clsNewImages images;
  DiskPictureFiles disk;
  const PictureLoading pictures{&images, &disk, BookFolderOf(path)};
  switch (kind) {
    case Kind::kBrn:
      return Print(path,
                   ReadPackedBookFile(path, PackedFileKind::kBrn, options, nullptr, pictures));
    case Kind::kBfl:
      return Print(path,
                   ReadPackedBookFile(path, PackedFileKind::kBfl, options, nullptr, pictures));
    case Kind::kEbook:
      break;
  }
  return Print(path, ReadEmbeddedBook(path, options, nullptr, pictures));
}

}  // namespace vireo::tool
