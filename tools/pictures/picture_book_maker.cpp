// vireo-picture-book: draws the pictures of the sample book "Birdsong" and
// writes its text, so that the project ships no picture it did not make.
// The pictures and the text are ours and free to use under the project's
// licence.
//
//   vireo-picture-book OUTPUT_FOLDER
// writes OUTPUT_FOLDER/birdsong.txt and the pictures it names in
// OUTPUT_FOLDER/pictures/ (with the cover, cover.png).

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <cstdio>
#include <fstream>
#include <string>

namespace {

// A small bird on a branch, facing right.
void DrawBird(QPainter& painter, QPointF at, double size, QColor body) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(body);
  painter.drawEllipse(at, size, size * 0.7);
  painter.drawEllipse(at + QPointF(size * 0.8, -size * 0.6), size * 0.45, size * 0.42);
  painter.setBrush(body.darker(140));
  QPainterPath wing;
  wing.moveTo(at + QPointF(-size * 0.6, -size * 0.1));
  wing.quadTo(at + QPointF(0, -size * 0.9), at + QPointF(size * 0.5, 0));
  wing.quadTo(at + QPointF(0, size * 0.3), at + QPointF(-size * 0.6, -size * 0.1));
  painter.drawPath(wing);
  QPainterPath tail;
  tail.moveTo(at + QPointF(-size * 0.8, 0));
  tail.lineTo(at + QPointF(-size * 1.7, -size * 0.5));
  tail.lineTo(at + QPointF(-size * 1.6, size * 0.1));
  tail.closeSubpath();
  painter.drawPath(tail);
  painter.setBrush(QColor(230, 160, 40));
  QPainterPath beak;
  beak.moveTo(at + QPointF(size * 1.2, -size * 0.7));
  beak.lineTo(at + QPointF(size * 1.65, -size * 0.55));
  beak.lineTo(at + QPointF(size * 1.2, -size * 0.45));
  painter.drawPath(beak);
  painter.setBrush(Qt::black);
  painter.drawEllipse(at + QPointF(size * 0.95, -size * 0.68), size * 0.08, size * 0.08);
}

void DrawBranch(QPainter& painter, QPointF from, QPointF to, double width) {
  painter.setPen(QPen(QColor(100, 70, 40), width, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(from, to);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(70, 140, 60));
  for (int i = 1; i < 6; ++i) {
    const QPointF leaf = from + (to - from) * (i / 6.0);
    painter.drawEllipse(leaf + QPointF(0, (i % 2 ? -1 : 1) * width * 1.6), width * 1.8,
                        width * 0.8);
  }
}

// Fills area with colours running from top to bottom.
void FillVertical(QPainter& painter, const QRect& area, QColor top, QColor bottom) {
  QLinearGradient gradient(0, area.top(), 0, area.bottom());
  gradient.setColorAt(0, top);
  gradient.setColorAt(1, bottom);
  painter.fillRect(area, gradient);
}

QImage BirdOnBranch() {
  QImage image(360, 240, QImage::Format_RGB32);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  FillVertical(painter, image.rect(), QColor(150, 200, 240), QColor(235, 245, 255));
  DrawBranch(painter, QPointF(0, 180), QPointF(360, 150), 8);
  DrawBird(painter, QPointF(170, 140), 34, QColor(200, 60, 50));
  return image;
}

QImage RiverAtDawn() {
  QImage image(420, 220, QImage::Format_RGB32);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  FillVertical(painter, QRect(0, 0, 420, 130), QColor(60, 70, 140), QColor(250, 180, 120));
  QRadialGradient sun(QPointF(300, 130), 60);
  sun.setColorAt(0, QColor(255, 230, 150));
  sun.setColorAt(1, QColor(255, 230, 150, 0));
  painter.setBrush(sun);
  painter.setPen(Qt::NoPen);
  painter.drawEllipse(QPointF(300, 130), 60, 60);
  painter.fillRect(QRect(0, 130, 420, 90), QColor(40, 90, 110));
  painter.setPen(QPen(QColor(250, 200, 140, 160), 2));
  for (int y = 140; y < 220; y += 12) painter.drawLine(QPointF(260, y), QPointF(340, y));
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(40, 60, 40));
  painter.drawRect(QRect(0, 115, 140, 20));
  return image;
}

QImage Cover() {
  QImage image(480, 680, QImage::Format_RGB32);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  FillVertical(painter, image.rect(), QColor(30, 70, 60), QColor(15, 35, 30));
  painter.setPen(QPen(QColor(210, 180, 90), 6));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(QRectF(24, 24, 432, 632));
  DrawBranch(painter, QPointF(40, 420), QPointF(440, 380), 10);
  DrawBird(painter, QPointF(230, 360), 60, QColor(220, 80, 60));
  painter.setPen(QColor(240, 225, 170));
  QFont title("Liberation Serif", 48, QFont::Bold);
  painter.setFont(title);
  painter.drawText(QRectF(0, 90, 480, 120), Qt::AlignCenter, "Birdsong");
  painter.setFont(QFont("Liberation Serif", 20, -1, true));
  painter.drawText(QRectF(0, 520, 480, 60), Qt::AlignCenter, "a sample book with pictures");
  return image;
}

const char* const kText =
    "Birdsong\r\n\r\n"
    "A short book made to show pictures on the page.\r\n\r\n"
    "Before the sun came over the hills, a small red bird sat on the branch "
    "outside the window and sang. It sang the same four notes again and again, "
    "as if it wanted to be sure that someone had heard them.\r\n\r\n"
    "[IMG SRC=\"Birds/Red-Bird.png\"]\r\n\r\n"
    "Down by the river the light came slowly. The water was still dark, and "
    "the far bank was only a line of shadow, but the sky above it turned from "
    "blue to rose to gold.\r\n\r\n"
    "[img src='river.png']\r\n\r\n"
    "By the time the first boat went by, the bird had flown. The branch moved a "
    "little in the wind, and the leaves turned their pale sides to the sun.\r\n\r\n";

bool Save(const QImage& image, const QString& path) {
  if (image.save(path)) return true;
  std::fprintf(stderr, "cannot write %s\n", path.toLocal8Bit().constData());
  return false;
}

}  // namespace

int main(int argc, char* argv[]) {
  QGuiApplication application(argc, argv);
  if (argc != 2) {
    std::fprintf(stderr, "usage: vireo-picture-book OUTPUT_FOLDER\n");
    return 2;
  }
  const QDir out(QString::fromLocal8Bit(argv[1]));
  if (!out.mkpath("pictures/birds")) return 1;
  std::string text;
  for (int i = 0; i < 12; ++i) text += kText;  // long enough for several spreads
  std::ofstream file(out.filePath("birdsong.txt").toLocal8Bit().constData(), std::ios::binary);
  file << text;
  file.close();
  if (!file) return 1;
  const bool saved = Save(BirdOnBranch(), out.filePath("pictures/birds/red-bird.png")) &&
                     Save(RiverAtDawn(), out.filePath("pictures/river.png")) &&
                     Save(Cover(), out.filePath("pictures/cover.png"));
  return saved ? 0 : 1;
}
