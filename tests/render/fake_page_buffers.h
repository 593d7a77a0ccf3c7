#pragma once

#include <array>
#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include "book/picture.h"
#include "fake_surface.h"
#include "render/page_buffers.h"

namespace vireo::test {

// Decodes the test pictures: "PIC W H" (text) gives a W x H picture; anything
// else is no picture.
class FakePictureDecoder : public PictureDecoder {
 public:
  Picture Decode(std::string_view bytes, std::string& why) const override {
    int width = 0;
    int height = 0;
    if (std::sscanf(std::string(bytes).c_str(), "PIC %d %d", &width, &height) != 2 || width <= 0 ||
        height <= 0 || width > 4000 || height > 4000) {
      why = "not a picture";
      return {};
    }
    Picture picture{width, height, {}};
    picture.pixels.assign(static_cast<size_t>(width) * static_cast<size_t>(height), 0xFF000000u);
    return picture;
  }
};

// Page buffers without a screen: fixed-width fake surfaces (6000 x 9000 twips until a layout
// gives them the page size), with the calls that change what a box shows.
class FakePageBuffers : public PageBuffers {
 public:
  void ApplyLayout(const BookViewLayout& applied) override {
    layout = applied;
    for (FakeSurface& box : boxes) {
      box.width = applied.page_width;
      box.height = applied.page_height;
    }
  }
  double FrameWidth(int frame) const override { return layout.page_frames.at(frame).width; }
  Surface& Box(int box) override { return boxes.at(static_cast<size_t>(box)); }
  void SetBoxBackColour(int, uint32_t) override {}
  void SetBoxTexture(int box, std::optional<int> slot) override {
    Box(box).Clear();
    calls.push_back("texture " + std::to_string(box) + " " + std::to_string(slot.value_or(-1)));
  }
  bool LoadTexture(int, const std::string&) override { return true; }
  void CopyBox(int source, int destination) override {
    boxes.at(destination).runs = boxes.at(source).runs;
  }
  void StretchBox(int source, int destination, double) override { CopyBox(source, destination); }
  void RefreshBox(int box) override { calls.push_back("refresh " + std::to_string(box)); }
  void SetBoxWidth(int, double) override {}
  void SetBoxLeft(int, double) override {}
  void SetBoxVisible(int, Visibility) override {}
  void RaiseBox(int) override {}
  void SetLamp(Lamp lamp) override { lamps.push_back(lamp); }
  void SetLineMarker(int frame, double, double) override { marker_frame = frame; }
  TwipsSize LanguageListSize() const override { return {1500, 1200}; }
  void PlaceLanguageList(const LanguageListPlacement& where) override { placement = where; }
  void SetLanguageListVisible(bool) override {}
  void ShowCoverPicture(const Picture* shown) override { cover = shown; }
  const PictureDecoder* Pictures() const override { return &decoder; }

  // Everything drawn on a box, its runs joined by blanks.
  std::string Text(int box) const {
    std::string text;
    for (const auto& run : boxes.at(static_cast<size_t>(box)).runs) text += run.text + " ";
    return text;
  }

  std::array<FakeSurface, kBoxCount> boxes;
  BookViewLayout layout;
  std::vector<Lamp> lamps;
  std::vector<std::string> calls;  // "texture BOX SLOT", "refresh BOX"
  std::optional<LanguageListPlacement> placement;
  int marker_frame = -1;
  const Picture* cover = nullptr;  // the cover on show
  FakePictureDecoder decoder;
};

}  // namespace vireo::test
