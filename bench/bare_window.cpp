// The floor for the reader's start-up: a bare Qt window of the reader's
// default size, with nothing of the reader in it. It writes "[timing] main
// entered <ms since the epoch>" first thing and "[timing] first frame <ms>"
// once its first frame is painted, then quits, so that
// bench/first_spread.sh can set the reader's first spread beside it.

#include <QApplication>
#include <QPainter>
#include <QTimer>
#include <QWidget>

#include "prefs/preference_ranges.h"
#include "render/qt_surface_qt.h"
#include "support/milestones.h"

namespace {

class BareWindow : public QWidget {
 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter(this).fillRect(rect(), Qt::white);
    if (stamped_) return;
    stamped_ = true;
    vireo::WriteMilestone("first frame");
    QTimer::singleShot(0, qApp, &QApplication::quit);
  }

 private:
  bool stamped_ = false;
};

}  // namespace

int main(int argc, char* argv[]) {
  vireo::WriteMilestone("main entered");
  QApplication application(argc, argv);
  constexpr double kTwipsPerPixel = vireo::QtSurface::kTwipsPerPixel;
  BareWindow window;
  window.resize(static_cast<int>(vireo::kMinimumWindowWidthWithBar / kTwipsPerPixel + 0.5),
                static_cast<int>(vireo::kMinimumWindowHeight / kTwipsPerPixel + 0.5));
  window.show();
  return application.exec();
}
