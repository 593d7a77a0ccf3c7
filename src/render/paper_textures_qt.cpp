#include "render/paper_textures_qt.h"

#include <QFileInfo>
#include <QImageReader>
#include <QRect>

#include <algorithm>

namespace vireo {
namespace {

// Decoding a little more than asked for spares a second decode when the
// window grows by a few pixels.
int RoundedUp(int pixels) {
  constexpr int kStep = 64;
  return (pixels + kStep - 1) / kStep * kStep;
}

}  // namespace

bool PaperTextures::SetFile(int slot, const QString& path) {
  if (slot < 0 || slot >= kSlots) return false;
  papers_[slot] = Paper();
  papers_[slot].path = path;
  return QFileInfo(path).isReadable();
}

const QImage& PaperTextures::Covering(int slot, QSize size) {
  Paper& paper = papers_[slot];
  if (!paper.path.isEmpty() && !paper.failed && !Covers(paper, size)) Decode(paper, size);
  return paper.decoded;
}

bool PaperTextures::Covers(const Paper& paper, QSize size) {
  if (paper.decoded.isNull()) return false;
  return paper.whole ||
         (paper.decoded.width() >= size.width() && paper.decoded.height() >= size.height());
}

void PaperTextures::Decode(Paper& paper, QSize size) {
  QImageReader reader(paper.path);
  const QSize whole = reader.size();
  const QRect wanted(0, 0, RoundedUp(std::max(size.width(), paper.decoded.width())),
                     RoundedUp(std::max(size.height(), paper.decoded.height())));
  const QRect part = whole.isValid() ? wanted & QRect(QPoint(0, 0), whole) : QRect();
  paper.whole = !part.isValid() || part.size() == whole;
  if (!paper.whole) reader.setClipRect(part);
  paper.decoded = reader.read();
  paper.failed = paper.decoded.isNull();
}

}  // namespace vireo
