// vireo-paper: draws the reader's four paper textures ("paper1.jpg" ...
// "paper4.jpg") procedurally, so the project ships no pictures it did not make.
// The textures are ours and free to use under the project's licence.
//
//   vireo-paper OUTPUT_FOLDER [WIDTH HEIGHT]

#include <QColor>
#include <QGuiApplication>
#include <QImage>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <string>

namespace {

// A repeatable pseudo-random value in [0, 1) for a lattice point.
double Hash(int x, int y, uint32_t seed) {
  uint32_t h = static_cast<uint32_t>(x) * 374761393u + static_cast<uint32_t>(y) * 668265263u +
               seed * 2246822519u;
  h = (h ^ (h >> 13)) * 1274126177u;
  return static_cast<double>((h ^ (h >> 16)) & 0xFFFFFF) / 16777216.0;
}

double Smooth(double t) { return t * t * (3 - 2 * t); }

// Smoothly interpolated value noise at a scale of `cell` pixels.
double ValueNoise(double x, double y, double cell, uint32_t seed) {
  const double fx = x / cell;
  const double fy = y / cell;
  const int ix = static_cast<int>(std::floor(fx));
  const int iy = static_cast<int>(std::floor(fy));
  const double tx = Smooth(fx - ix);
  const double ty = Smooth(fy - iy);
  const double top = Hash(ix, iy, seed) * (1 - tx) + Hash(ix + 1, iy, seed) * tx;
  const double bottom = Hash(ix, iy + 1, seed) * (1 - tx) + Hash(ix + 1, iy + 1, seed) * tx;
  return top * (1 - ty) + bottom * ty;
}

// Several octaves of noise, centred on 0, roughly in [-0.5, 0.5].
double Clouds(double x, double y, double cell, uint32_t seed) {
  double sum = 0;
  double weight = 0.5;
  for (int octave = 0; octave < 4; ++octave) {
    sum += weight * (ValueNoise(x, y, cell, seed + octave) - 0.5);
    cell /= 2;
    weight /= 2;
  }
  return sum;
}

struct Paper {
  QColor base;
  double grain;     // fine per-pixel speckle
  double mottle;    // large soft blotches
  double laid;      // horizontal laid lines
  double fibres;    // dark fibre specks
  double vignette;  // darkening towards the edges
  uint32_t seed;
};

// Ivory book paper, laid writing paper, old parchment, grey recycled paper.
const Paper kPapers[4] = {
    {QColor(246, 239, 222), 5.0, 7.0, 0.0, 0.0004, 10.0, 11},
    {QColor(248, 247, 240), 3.5, 3.0, 1.2, 0.0002, 6.0, 23},
    {QColor(238, 222, 188), 6.0, 20.0, 0.0, 0.0008, 24.0, 37},
    {QColor(233, 235, 230), 6.0, 6.0, 0.0, 0.0030, 8.0, 51},
};

int Clamp(double value) {
  return static_cast<int>(std::lround(std::fmin(255, std::fmax(0, value))));
}

QImage Draw(const Paper& paper, int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  for (int y = 0; y < height; ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < width; ++x) {
      double shade = paper.grain * (Hash(x, y, paper.seed) - 0.5);
      shade += paper.mottle * Clouds(x, y, 180, paper.seed + 100);
      if (paper.laid > 0) {
        shade += paper.laid * std::sin(y * 2 * M_PI / 6.0) * (0.6 + ValueNoise(x, y, 40, 7));
      }
      if (Hash(x, y, paper.seed + 999) < paper.fibres) shade -= 35;
      const double dx = (2.0 * x / width) - 1;
      const double dy = (2.0 * y / height) - 1;
      shade -= paper.vignette * std::pow((dx * dx + dy * dy) / 2, 1.5);
      // Warm the darker parts a little, as old paper yellows where it darkens.
      line[x] = qRgb(Clamp(paper.base.red() + shade), Clamp(paper.base.green() + shade * 1.05),
                     Clamp(paper.base.blue() + shade * 1.2));
    }
  }
  return image;
}

}  // namespace

int main(int argc, char* argv[]) {
  QGuiApplication application(argc, argv);
  if (argc < 2) {
    std::fprintf(stderr, "usage: vireo-paper OUTPUT_FOLDER [WIDTH HEIGHT]\n");
    return 2;
  }
  const std::string folder = argv[1];
  // Large enough for a page of a maximised window; small enough to decode
  // quickly at start-up.
  const int width = argc > 3 ? std::atoi(argv[2]) : 1280;
  const int height = argc > 3 ? std::atoi(argv[3]) : 1600;
  for (int i = 0; i < 4; ++i) {
    const std::string path = folder + "/paper" + std::to_string(i + 1) + ".jpg";
    if (!Draw(kPapers[i], width, height).save(QString::fromStdString(path), "JPG", 90)) {
      std::fprintf(stderr, "vireo-paper: cannot write %s\n", path.c_str());
      return 1;
    }
  }
  return 0;
}
