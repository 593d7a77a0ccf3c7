// vireo-tool pages: runs the paginator over a book or a text file and prints
// the page index.
//
//   vireo-tool pages FILE|--text TEXTFILE --line-width W --lines-per-page N
//       [--line-height H] [--first-page 1|2] [--position P]
//       (--metrics METRICSFILE | --font FAMILY --size PT)
//
// One line per page, "page start bold italic underline" (flags 0/1), then
// "passed N" with the page count when the page-passed event came, or
// "passed end" when it came only at the end of pagination. The tool loads no
// images: placeholders are laid out as text.

#include <cstdio>
#include <cstdlib>
#include <map>
#include <optional>
#include <string>

#include "book/book_reader.h"
#include "layout/metrics_file.h"
#include "layout/reindex.h"
#include "support/file_io.h"
#include "support/runtime_error.h"
#include "tool_commands.h"

#ifdef VIREO_TOOL_HAS_QT
#include <QGuiApplication>

#include "render/qt_surface_qt.h"
#endif

namespace vireo::tool {
namespace {

struct PagesRequest {
  std::string book_file;
  std::string text_file;
  std::string metrics_file;
  std::string font_family;
  std::optional<double> font_size;
  std::optional<double> line_width;
  std::optional<int16_t> lines_per_page;
  std::optional<double> line_height;
  int32_t first_page = 1;
  int32_t position = 1;
};

bool ParseNumber(const std::string& text, double& value) {
  char* end = nullptr;
  value = std::strtod(text.c_str(), &end);
  return !text.empty() && end == text.c_str() + text.size();
}

template <typename Integer>
bool ParseInteger(const std::string& text, Integer low, Integer high, Integer& value) {
  char* end = nullptr;
  const long long parsed = std::strtoll(text.c_str(), &end, 10);
  if (text.empty() || end != text.c_str() + text.size() || parsed < low || parsed > high) {
    return false;
  }
  value = static_cast<Integer>(parsed);
  return true;
}

// Fills request from the arguments; an error message otherwise.
std::optional<std::string> ParseArguments(const Arguments& arguments, PagesRequest& request) {
  for (size_t i = 0; i < arguments.size(); ++i) {
    const std::string& name = arguments[i];
    if (name.rfind("--", 0) != 0) {
      if (!request.book_file.empty()) return "more than one FILE: " + name;
      request.book_file = name;
      continue;
    }
    if (i + 1 >= arguments.size()) return name + " needs a value";
    const std::string& value = arguments[++i];
    double number = 0;
    if (name == "--text") {
      request.text_file = value;
    } else if (name == "--metrics") {
      request.metrics_file = value;
    } else if (name == "--font") {
      request.font_family = value;
    } else if (name == "--size" && ParseNumber(value, number) && number > 0) {
      request.font_size = number;
    } else if (name == "--line-width" && ParseNumber(value, number)) {
      request.line_width = number;
    } else if (name == "--line-height" && ParseNumber(value, number)) {
      request.line_height = number;
    } else if (name == "--lines-per-page") {
      int16_t lines = 0;
      if (!ParseInteger<int16_t>(value, -32768, 32767, lines)) return "bad --lines-per-page";
      request.lines_per_page = lines;
    } else if (name == "--first-page") {
      if (!ParseInteger<int32_t>(value, 1, 2, request.first_page)) return "--first-page is 1 or 2";
    } else if (name == "--position") {
      if (!ParseInteger<int32_t>(value, INT32_MIN, INT32_MAX, request.position)) {
        return "bad --position";
      }
    } else {
      return "bad option or value: " + name + " " + value;
    }
  }
  if (request.book_file.empty() == request.text_file.empty()) return "give FILE or --text TEXTFILE";
  if (!request.line_width || !request.lines_per_page) {
    return "--line-width and --lines-per-page are required";
  }
  if (request.metrics_file.empty() == request.font_family.empty()) {
    return "give --metrics METRICSFILE or --font FAMILY --size PT";
  }
  if (!request.font_family.empty() && !request.font_size) return "--font needs --size PT";
  return std::nullopt;
}

// The font tables and the line height of the font (0 from a metrics file).
std::optional<std::string> LoadMetrics(const PagesRequest& request, clsFontMetrics& metrics,
                                       double& font_line_height) {
  font_line_height = 0;
  if (!request.metrics_file.empty()) {
    std::string content;
    try {
      content = ReadWholeFile(request.metrics_file);
    } catch (const RuntimeError& error) {
      return "cannot read " + request.metrics_file + ": " + error.description();
    }
    std::string error;
    std::optional<clsFontMetrics> parsed = ParseMetricsFile(content, error);
    if (!parsed) return request.metrics_file + ": " + error;
    metrics = *parsed;
    return std::nullopt;
  }
#ifdef VIREO_TOOL_HAS_QT
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  int argc = 1;
  char name[] = "vireo-tool";
  char* argv[] = {name, nullptr};
  QGuiApplication application(argc, argv);
  QtSurface surface(16, 16);
  surface.SetFontName(request.font_family);
  surface.SetFontSize(*request.font_size);
  font_line_height = surface.TextHeight("");
  metrics.MakeArrays(surface);
  return std::nullopt;
#else
  return "--font needs the Qt front end; use --metrics";
#endif
}

std::optional<std::string> LoadText(const PagesRequest& request, std::string& text) {
  if (!request.text_file.empty()) {
    try {
      text = ReadWholeFile(request.text_file);
    } catch (const RuntimeError& error) {
      return "cannot read " + request.text_file + ": " + error.description();
    }
    return std::nullopt;
  }
  // The book text as the reader holds it, loaded with the default options.
  BookReadResult book = ReadEmbeddedBook(request.book_file, FormattingOptions{});
  if (!book.has_book)
    return book.message.empty() ? "no book in " + request.book_file : book.message;
  text = std::move(book.text);
  return std::nullopt;
}

// Remembers when the page-passed event came.
class PassedRecorder : public ReindexEvents {
 public:
  PassedRecorder(const PageIndex& index, const clsReindex& reindex)
      : index_(index), reindex_(reindex) {}
  void PassedPage(int32_t) override {
    // The word loop raises it while busy; the end of pagination after.
    passed_at_ = reindex_.Busy() ? std::to_string(index_.count) : "end";
  }
  const std::string& passed_at() const { return passed_at_; }

 private:
  const PageIndex& index_;
  const clsReindex& reindex_;
  std::string passed_at_ = "end";
};

}  // namespace

int RunPages(const Arguments& arguments) {
  PagesRequest request;
  if (std::optional<std::string> error = ParseArguments(arguments, request)) return Fail(*error);
  clsReindex reindex;
  double font_line_height = 0;
  if (auto error = LoadMetrics(request, reindex.FontMetrics(), font_line_height)) {
    return Fail(*error);
  }
  std::string text;
  if (std::optional<std::string> error = LoadText(request, text)) return Fail(*error);

  PageIndex index;
  index.count = request.first_page;
  PassedRecorder recorder(index, reindex);
  reindex.SetEvents(&recorder);
  reindex.NewReindexFile(text, InsertMode::kAllowed, index, request.position, *request.line_width,
                         *request.lines_per_page, request.line_height.value_or(font_line_height));
  std::string out;
  for (int32_t page = 1; page <= index.count; ++page) {
    out += std::to_string(page) + ' ' + std::to_string(index.PageStart(page)) + ' ' +
           (index.Bold(page) ? '1' : '0') + ' ' + (index.Italic(page) ? '1' : '0') + ' ' +
           (index.Underline(page) ? '1' : '0') + '\n';
  }
  out += "passed " + recorder.passed_at() + '\n';
  std::fwrite(out.data(), 1, out.size(), stdout);
  return 0;
}

}  // namespace vireo::tool
