// Fuzzes the page composer on random page texts, font tables, line widths and
// pictures: no crash, no hang, every line drawn (justified, with a search
// term), and on small pages the very lines and pictures of the composer's
// rules written out literally.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "../fake_pump.h"
#include "../fake_surface.h"
#include "../render/literal_composer.h"
#include "fuzz_support.h"
#include "layout/font_metrics.h"
#include "render/print_page.h"

namespace {

using vireo::clsFontMetrics;
using vireo::PageSettings;

// Pictures 0..count-1 exist, but not picture 2.
class FuzzImages : public vireo::ComposerImageStore {
 public:
  explicit FuzzImages(int count) : count_(count) {}
  int ImageCount() const override { return count_; }
  std::optional<double> ImageWidth(int number) const override {
    if (number < 0 || number >= count_ || number == 2) return std::nullopt;
    return 100.0 * number;
  }
  void SetImageLeft(double) override {}

 private:
  int count_;
};

class Recorder : public vireo::PrintPageObserver {
 public:
  void AddImage(int, int image_number, double, int line_index) override {
    images.emplace_back(image_number, static_cast<size_t>(line_index));
  }
  std::vector<std::pair<int, size_t>> images;
};

}  // namespace

using vireo::fuzz::Check;
using vireo::fuzz::TakeByte;

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  vireo::fuzz::StartUp();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size > 50000) return 0;
  const uint8_t flags = TakeByte(data, size);
  PageSettings settings;
  settings.bold = flags & 1;
  settings.italic = flags & 2;
  settings.lines_per_page = TakeByte(data, size) % 40;
  // Multiples of 10 meet whole widths exactly; the third of them does not.
  settings.line_width =
      (TakeByte(data, size) << 4 | TakeByte(data, size)) * ((flags & 4) ? 10 : 10 / 3.0);
  uint32_t seed = 1;
  for (int i = 0; i < 4; ++i) seed = seed * 131 + TakeByte(data, size);
  const clsFontMetrics metrics = vireo::fuzz::ModeTables(seed | 1, flags >> 3, 10, 8, 10, 50);
  FuzzImages images(flags >> 5);
  settings.page_text.assign(reinterpret_cast<const char*>(data), size);

  vireo::test::RecordingPump pump;
  vireo::clsPrintPage composer(pump);
  Recorder recorder;
  composer.SetImageStore(&images);
  composer.SetObserver(&recorder);
  vireo::test::FakeSurface surface;
  settings.search_term = "a";
  composer.DisplayPage(settings, surface, metrics);
  Check(composer.lines().size() <= static_cast<size_t>(settings.lines_per_page + 10),
        "more lines than the line array holds");

  // The literal rules measure every prefix of a long word: small pages only.
  if (size <= 4000) {
    const vireo::test::LiteralPage literal =
        vireo::test::LiteralComposer(settings, metrics, &images).Run();
    Check(literal.lines == composer.lines(), "lines differ from the literal rules");
    Check(literal.images == recorder.images, "pictures differ from the literal rules");
  }
  return 0;
}
