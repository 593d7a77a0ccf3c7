#pragma once

// The one Qt application object of the benchmark process (widgets need a
// QApplication; it serves the font measurements as well).

#include <QApplication>

namespace vireo::bench {

inline void EnsureApplication() {
  static QApplication* application = [] {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "vireo_bench";
    static char* argv[] = {name, nullptr};
    return new QApplication(argc, argv);  // lives to the end of the process
  }();
  (void)application;
}

}  // namespace vireo::bench
