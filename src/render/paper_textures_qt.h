#pragma once

#include <QImage>
#include <QSize>
#include <QString>

#include <array>

namespace vireo {

// The four paper pictures. A page buffer shows its paper from the top left
// corner, unscaled, so only that corner of the picture is ever seen: each
// picture is decoded as far as the largest page asked for so far (a
// 1280 x 1600 paper decodes whole in 30-50 ms, a page's corner in 3-7 ms),
// and again, further, when a bigger page asks.
class PaperTextures {
 public:
  static constexpr int kSlots = 4;

  // The picture of slot from now on, not yet decoded; false when it cannot
  // be read.
  bool SetFile(int slot, const QString& path);
  // The top left part of slot's picture covering a page of size (logical
  // pixels), or the whole picture when it is smaller; a null image when the
  // slot has no picture or it does not decode (tried once).
  const QImage& Covering(int slot, QSize size);

 private:
  struct Paper {
    QString path;
    QImage decoded;
    bool whole = false;
    bool failed = false;
  };
  static bool Covers(const Paper& paper, QSize size);
  static void Decode(Paper& paper, QSize size);

  std::array<Paper, kSlots> papers_;
};

}  // namespace vireo
