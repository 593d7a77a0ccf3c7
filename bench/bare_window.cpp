// The floor for the reader's start-up: a bare Qt window of the reader's
// default size, with nothing of the reader in it. With VIREO_TIMING=1 it
// writes "[timing] first frame <ms since the epoch>" once its first frame is
// painted, then quits, so that bench/first_spread.sh can set the reader's
// first spread beside it.

#include <QApplication>
#include <QPainter>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <cstdio>

#include "prefs/preference_ranges.h"
#include "render/qt_surface_qt.h"

namespace {

class BareWindow : public QWidget {
 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter(this).fillRect(rect(), Qt::white);
    if (stamped_) return;
    stamped_ = true;
    const auto now = std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::system_clock::now().time_since_epoch());
    std::fprintf(stderr, "[timing] first frame %lld\n", static_cast<long long>(now.count()));
    QTimer::singleShot(0, qApp, &QApplication::quit);
  }

 private:
  bool stamped_ = false;
};

}  // namespace

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  constexpr double kTwipsPerPixel = vireo::QtSurface::kTwipsPerPixel;
  BareWindow window;
  window.resize(static_cast<int>(vireo::kMinimumWindowWidthWithBar / kTwipsPerPixel + 0.5),
                static_cast<int>(vireo::kMinimumWindowHeight / kTwipsPerPixel + 0.5));
  window.show();
  return application.exec();
}
