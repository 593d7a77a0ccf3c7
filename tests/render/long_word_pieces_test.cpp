// Pages composed by clsPrintPage and by the literal rules give the same lines and pictures:
// wrapped words, hyphens, paragraph and page ends, and long words, also for exact fits over
// no-width characters and tags made by deleting tags.

#include <gtest/gtest.h>

#include <random>

#include "fake_pump.h"
#include "fake_surface.h"
#include "layout/font_metrics.h"
#include "layout/pagination_fixtures.h"
#include "literal_composer.h"
#include "render/print_page.h"

namespace vireo {
namespace {

// Pictures 0..4 exist.
class Pictures : public ComposerImageStore {
 public:
  int ImageCount() const override { return 5; }
  std::optional<double> ImageWidth(int number) const override {
    return number >= 0 && number < 5 ? std::optional<double>(100) : std::nullopt;
  }
  void SetImageLeft(double) override {}
};

class Placed : public PrintPageObserver {
 public:
  void AddImage(int, int number, double, int line) override {
    images.emplace_back(number, static_cast<size_t>(line));
  }
  std::vector<std::pair<int, size_t>> images;
};

void ExpectAsTheLiteralRules(const std::string& text, double line_width) {
  SCOPED_TRACE(testing::Message() << "width " << line_width << ": " << text);
  // Width 10 for every character but "z" and the style codes (none): many prefixes fit exactly.
  const clsFontMetrics metrics = test::MetricsOf(
      [](int code, bool) { return code == 'z' || (code >= 0x80 && code <= 0x88) ? 0.0 : 10.0; });
  PageSettings settings;
  settings.page_text = text;
  settings.line_width = line_width;
  settings.lines_per_page = 40;
  Pictures pictures;
  const test::LiteralPage literal = test::LiteralComposer(settings, metrics, &pictures).Run();

  test::RecordingPump pump;
  test::FakeSurface surface;
  clsPrintPage composer(pump);
  Placed placed;
  composer.SetImageStore(&pictures);
  composer.SetObserver(&placed);
  composer.DisplayPage(settings, surface, metrics);
  EXPECT_EQ(composer.lines(), literal.lines);
  EXPECT_EQ(placed.images, literal.images);
}

TEST(LongWordPieces, AreTheLiteralRulesPieces) {
  const std::string zeros(30, 'z');
  const struct {
    std::string text;
    double width;
  } cases[] = {
      // Wrapped words with the paragraph indent and ends; hyphens, even a leading one; page
      // breaks and page-number tags deleted.
      {"one two. \n Three four five ", 100},
      {"aaaa -bbbb well-known ", 60},
      {"Chapter[npn=n] one \x86 next[npn=r] [npn=d]end ", 1000},
      // Exact fits over a run of no-width characters, wherever the shrink by 25 lands.
      {std::string(20, 'a') + zeros + std::string(40, 'b') + " tail", 200},
      {std::string(19, 'a') + zeros + std::string(41, 'b') + " tail", 200},
      {std::string(23, 'a') + "z\x80z\x82" + std::string(77, 'b'), 230},
      // The first character alone is wider than the line; a line of no width.
      {std::string(60, 'w'), 5},
      {zeros + std::string(30, 'c'), 0},
      // A whole word as the piece leaves "0".
      {std::string(20, 'a') + zeros + " next", 200},
      // Tags made by deleting tags, pictures in the rest, a number after the first "=".
      {"[npn=[npn=r]r]" + std::string(40, 'd') + "[npn=[npn=n]n]" + std::string(40, 'e'), 200},
      {std::string(40, 'f') + "[IMG=3]" + std::string(40, 'g'), 200},
      {"=9" + std::string(40, 'h') + "=2[IMG=" + std::string(40, 'i'), 200},
  };
  for (const auto& c : cases) ExpectAsTheLiteralRules(c.text, c.width);

  std::mt19937 random(12);
  const std::string alphabet = "abzzzz  -=[IMG=1]\x80\x81\x82\x83\x86\n";
  for (int page = 0; page < 200; ++page) {
    std::string text;
    const size_t length = 20 + random() % 400;
    for (size_t i = 0; i < length; ++i) text += alphabet[random() % alphabet.size()];
    if (random() % 3 == 0) text += ' ';
    ExpectAsTheLiteralRules(text, 10.0 * static_cast<double>(random() % 30));
  }
}

}  // namespace
}  // namespace vireo
