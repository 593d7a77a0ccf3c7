#include "render/sweep.h"

#include <algorithm>

namespace vireo {
namespace {

constexpr double kStepPauseSeconds = 0.005;

}  // namespace

PageSweep::PageSweep(BookDisplay& display, PageBuffers& buffers, MessagePump& pump,
                     PageCache& cache)
    : display_(display), buffers_(buffers), pump_(pump), cache_(cache) {}

void PageSweep::Pause() { Delay(pump_, kStepPauseSeconds); }

void PageSweep::RestoreBox(int box, int frame) {
  buffers_.SetBoxWidth(box, buffers_.FrameWidth(frame));
  buffers_.SetBoxLeft(box, 0);
}

void PageSweep::HideWorkBoxes() {
  buffers_.SetBoxVisible(kLeftWorkBox, Visibility::kHidden);
  buffers_.SetBoxVisible(kRightWorkBox, Visibility::kHidden);
}

void PageSweep::TurnRightPageOver(int strip_twips) {
  if (strip_twips <= 0) return;
  const double frame_width = buffers_.FrameWidth(kRightFrame);
  double width = frame_width;
  for (double x = frame_width; x >= 0; x -= strip_twips) {
    if (x > frame_width / 2) {
      // The page narrows towards the spine, squeezed rather than cut.
      width = std::max(0.0, width - strip_twips);
      buffers_.SetBoxWidth(kRightPageBox, width);
      buffers_.SetBoxLeft(kRightPageBox, 0);
      buffers_.StretchBox(kLeftWorkBox, kRightPageBox, width);
      pump_.Yield();
      Pause();
    } else {
      // The second half of the way: the page stands on the spine.
      pump_.Yield();
    }
  }
}

void PageSweep::HandOverRightPage() {
  HideWorkBoxes();
  buffers_.SetBoxVisible(kLeftPageBox, Visibility::kShown);
  RestoreBox(kRightPageBox, kRightFrame);
  display_.ClearPage(kRightPageBox);
  cache_.CopyPage(kRightWorkBox, kRightPageBox);
  buffers_.SetBoxVisible(kRightPageBox, Visibility::kHidden);
  buffers_.SetBoxVisible(kRightPageBox, Visibility::kShown);
  Pause();
}

void PageSweep::LayDownLeftPage(int strip_twips) {
  const double frame_width = buffers_.FrameWidth(kLeftFrame);
  if (strip_twips > 0) {
    buffers_.RaiseBox(kLeftPageBox);
    buffers_.SetBoxVisible(kLeftWorkBox, Visibility::kShown);
    for (double w = strip_twips; w <= frame_width + strip_twips; w += strip_twips) {
      const double width = std::min(w, frame_width);
      buffers_.SetBoxWidth(kLeftPageBox, width);
      buffers_.SetBoxLeft(kLeftPageBox, frame_width - width);
      cache_.CopyPage(kRightWorkBox, kLeftPageBox);
      Pause();
    }
  } else {
    cache_.CopyPage(kRightWorkBox, kLeftPageBox);
  }
  RestoreBox(kLeftPageBox, kLeftFrame);
  buffers_.SetBoxVisible(kLeftWorkBox, Visibility::kHidden);
}

void PageSweep::TurnLeftPageOver(int strip_twips) {
  const double frame_width = buffers_.FrameWidth(kLeftFrame);
  double width = frame_width;
  for (double x = strip_twips; strip_twips > 0 && x <= frame_width; x += strip_twips) {
    if (x < frame_width / 2) {
      width = std::max(0.0, width - strip_twips);
      buffers_.SetBoxWidth(kLeftPageBox, width);
      buffers_.SetBoxLeft(kLeftPageBox, frame_width - width);
      buffers_.StretchBox(kRightWorkBox, kLeftPageBox, width);
      pump_.Yield();
      Pause();
    } else {
      pump_.Yield();
    }
  }
  HideWorkBoxes();
  RestoreBox(kLeftPageBox, kLeftFrame);
  display_.ClearPage(kLeftPageBox);
  cache_.CopyPage(kLeftWorkBox, kLeftPageBox);
}

}  // namespace vireo
