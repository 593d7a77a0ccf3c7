#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "render/page_settings.h"

namespace vireo {

class Surface;
class clsFontMetrics;
class MessagePump;
class UserInteraction;
struct Picture;

// What the composer asks of the image store about the pictures a page names.
class ComposerImageStore {
 public:
  virtual ~ComposerImageStore() = default;
  // Number of loaded pictures.
  virtual int ImageCount() const = 0;
  // Width in twips of picture `number` (counted from 0); nullopt when the
  // store holds no such picture.
  virtual std::optional<double> ImageWidth(int number) const = 0;
  // Stores the horizontal offset at which the next placed picture goes.
  virtual void SetImageLeft(double twips) = 0;
};

// Told about every picture the composer places on a page.
class PrintPageObserver {
 public:
  virtual ~PrintPageObserver() = default;
  // Picture `image_number` goes on the page drawn on box `page_side`, at the
  // line with 0-based index `line_index`; `left` is the x at which lines start.
  virtual void AddImage(int page_side, int image_number, double left, int line_index) = 0;
};

// The page composer: lays the text of one page out into lines with the
// paginator's word rules, then draws each line, switching bold, italic and
// underline at the style codes, centring or justifying it, and colouring the
// search term. Every procedure logs its own errors under module
// "clsPrintPage" and never throws.
class clsPrintPage {
 public:
  // pump: yielded to once before each page is composed; must outlive this.
  explicit clsPrintPage(MessagePump& pump);

  // Optional collaborators (not owned; nullptr for none). Without an image
  // store no picture is ever placed.
  void SetImageStore(ComposerImageStore* images) { images_ = images; }
  void SetObserver(PrintPageObserver* observer) { observer_ = observer; }
  // Printer failures are shown to the person through user, else only logged.
  void SetUser(UserInteraction* user) { user_ = user; }

  // Composes settings.page_text and draws it onto surface from settings.top,
  // positioning glyphs by the widths in metrics. surface and metrics must
  // stay alive until the next page is composed (PrintSentences reads them).
  void DisplayPage(const PageSettings& settings, Surface& surface, const clsFontMetrics& metrics);
  // Lays settings.page_text out into a fresh lines() without drawing it.
  void ComposeLines(const PageSettings& settings, const clsFontMetrics& metrics);
  // DisplayPage for callers other than the page boxes on show.
  void OutputPage(const PageSettings& settings, Surface& surface, const clsFontMetrics& metrics);
  // Draws the lines composed last onto the printer surface, without laying
  // the page out again; glyphs are placed by the printer's own widths and no
  // search term is highlighted.
  void PrintPage(const PageSettings& settings, Surface& printer);

  // Prints a drawn picture onto the printer surface, scaled into the
  // rectangle at (x, y) of width x height twips. A failure is logged and
  // shown as "Printer Error!" with its description.
  void PrintPictureBox(Surface& printer, const Picture& picture, double x, double y,
                       double width, double height);

  // The target's bold, italic and underline from the page flags; copies the
  // justify and indent flags and the search term.
  void SetupFormatting(const PageSettings& settings);
  // Lays settings.page_text out into lines(), measuring with metrics.
  void StoreSentences(const PageSettings& settings, const clsFontMetrics& metrics);
  // Draws every composed line: CurrentX = left, NewPrintLine, CurrentY +=
  // line step.
  void PrintSentences(const PageSettings& settings);
  // Draws one composed line at the target's current position.
  void NewPrintLine(const PageSettings& settings, std::string line);
  // The extra room to add at each space of rest so that it ends at left +
  // line_width when drawn from current_x: the gap over the number of spaces,
  // 0 without spaces. rest is measured as it will be drawn.
  double CalcSlice(double current_x, std::string_view rest, double line_width, double left);
  // text without the characters 128..136 (the style and layout codes).
  static std::string Cleaned(std::string_view text);

  // The lines of the page composed last; a line that ends a paragraph ends
  // with a line feed, an indented one starts with three spaces.
  const std::vector<std::string>& lines() const { return lines_; }

 private:
  void ComposeAndDraw(std::string_view procedure, const PageSettings& settings, Surface& surface,
                      const clsFontMetrics& metrics);
  // Width of one byte as it will be drawn in the style.
  double GlyphWidth(bool bold, bool italic, unsigned char code) const;
  // Width of text as DrawLineText draws it (style codes switch the style of
  // a copy of the current state and take no room).
  double DrawnWidth(std::string_view text) const;
  void DrawLineText(const PageSettings& settings, std::string_view line, bool justify,
                    double slice);
  // Called by the line composition.
  void StoreLine(std::string line);
  void RaiseAddImage(int page_side, int image_number, double left);
  friend class PageLineComposer;

  MessagePump& pump_;
  ComposerImageStore* images_ = nullptr;
  PrintPageObserver* observer_ = nullptr;
  UserInteraction* user_ = nullptr;
  Surface* target_ = nullptr;
  const clsFontMetrics* metrics_ = nullptr;  // nullptr: the target's own widths
  bool printing_ = false;
  bool justify_ = true;
  bool indented_ = true;
  std::string search_term_;
  std::vector<std::string> lines_;
  size_t line_capacity_ = 0;
  bool picture_placed_ = false;  // on the page being composed
};

}  // namespace vireo
