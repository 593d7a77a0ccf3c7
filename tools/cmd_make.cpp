// vireo-tool make: packs a text into a self-contained ebook, or with --brn
// into a stand-alone packed book.

#include <cstdio>
#include <filesystem>

#include "book/book_maker.h"
#include "book/picture_packing.h"
#include "book_commands.h"
#include "support/platform.h"

namespace vireo::tool {
namespace {

// The title when none is given: the text file's name without its extension.
std::string DefaultTitle(const std::string& text_path) {
  return std::filesystem::path(text_path).stem().string();
}

}  // namespace

int RunMake(const Arguments& arguments) {
  MakeRequest request;
  request.stub_path =
      JoinPath(ProgramFolder(), std::string("Vireo") + std::string(kExecutableSuffix));
  bool has_title = false;
  std::string pictures_folder;
  std::string cover_path;
  for (size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    const bool has_value = i + 1 < arguments.size();
    if ((argument == "-o" || argument == "--stub" || argument == "--author" ||
         argument == "--title" || argument == "--images" || argument == "--cover") &&
        !has_value) {
      return Fail(argument + " needs a value");
    }
    if (argument == "-o") {
      request.out_path = arguments[++i];
    } else if (argument == "--stub") {
      request.stub_path = arguments[++i];
    } else if (argument == "--author") {
      request.author = arguments[++i];
    } else if (argument == "--title") {
      request.title = arguments[++i];
      has_title = true;
    } else if (argument == "--brn") {
      request.form = MakeForm::kBrn;
    } else if (argument == "--images") {
      pictures_folder = arguments[++i];
    } else if (argument == "--cover") {
      cover_path = arguments[++i];
    } else if (argument.starts_with("-") || !request.text_path.empty()) {
      return Fail("make: unexpected argument " + argument);
    } else {
      request.text_path = argument;
    }
  }
  if (request.text_path.empty() || request.out_path.empty()) {
    return Fail(
        "usage: vireo-tool make TEXT -o OUT [--brn] [--stub PATH] [--author A] [--title T] "
        "[--images DIR [--cover FILE]]");
  }
  if (!cover_path.empty() && pictures_folder.empty()) return Fail("--cover needs --images");
  // A stand-alone packed book is the book alone: its pictures stay files beside it.
  if (!pictures_folder.empty() && request.form == MakeForm::kBrn) {
    return Fail("--images packs pictures into an ebook, not into a .brn book");
  }
  if (!pictures_folder.empty()) {
    request.after_book = [&](std::string& file, std::string_view text) {
      AppendBookPictures(file, text, pictures_folder, cover_path);
    };
  }
  if (!has_title) request.title = DefaultTitle(request.text_path);
  const MakeResult result = MakeEbook(request);
  if (!result.ok) return Fail(result.message);
  std::printf("%s\n", result.message.c_str());
  for (const std::string& line : ReplacementReport(result.replacements)) {
    std::printf("%s\n", line.c_str());
  }
  return 0;
}

}  // namespace vireo::tool
