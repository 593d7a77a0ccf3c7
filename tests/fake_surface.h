#pragma once

#include <string>
#include <vector>

#include "render/surface.h"

namespace vireo::test {

// A deterministic surface: every character is `char_width` twips wide
// (bold adds `bold_extra`, italic `italic_extra`), every line `line_height`
// twips high. Records what is drawn.
class FakeSurface : public Surface {
 public:
  struct Run {
    std::string text;
    double x, y;
    bool bold, italic, underline;
    uint32_t colour;
    double font_size = 0;  // points, as set when the run was drawn
  };

  double char_width = 100;
  double bold_extra = 20;
  double italic_extra = 10;
  double line_height = 240;
  double width = 6000;
  double height = 9000;

  void SetFontName(std::string_view name) override { font_name = std::string(name); }
  void SetFontSize(double points) override { font_size = points; }
  double FontSize() const override { return font_size; }
  void SetFontBold(bool on) override { bold = on; }
  void SetFontItalic(bool on) override { italic = on; }
  void SetFontUnderline(bool on) override { underline = on; }
  bool FontBold() const override { return bold; }
  bool FontItalic() const override { return italic; }
  bool FontUnderline() const override { return underline; }

  double TextWidth(std::string_view text) const override {
    ++width_queries;
    return static_cast<double>(text.size()) *
           (char_width + (bold ? bold_extra : 0) + (italic ? italic_extra : 0));
  }
  double TextHeight(std::string_view) const override { return line_height; }
  double ScaleWidth() const override { return width; }
  double ScaleHeight() const override { return height; }

  void DrawText(std::string_view text) override {
    runs.push_back({std::string(text), CurrentX(), CurrentY(), bold, italic, underline, ForeColor(),
                    font_size});
    SetCurrentX(CurrentX() + TextWidth(text));
  }
  // A picture is recorded as a run "picture WxH" (in twips) at its corner.
  void PaintPicture(const Picture& picture, double left, double top, double w, double h) override {
    if (picture.empty()) return;
    runs.push_back({"picture " + std::to_string(static_cast<int>(w)) + "x" +
                        std::to_string(static_cast<int>(h)),
                    left, top, false, false, false, 0, font_size});
  }
  void Clear() override {
    runs.clear();
    ++clears;
  }

  std::string font_name;
  double font_size = 10;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  mutable int width_queries = 0;
  int clears = 0;
  std::vector<Run> runs;

  // The text of every run, in drawing order.
  std::vector<std::string> RunTexts() const {
    std::vector<std::string> texts;
    for (const Run& run : runs) texts.push_back(run.text);
    return texts;
  }
};

}  // namespace vireo::test
