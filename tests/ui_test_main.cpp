#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

#include "support/vhtml_library.h"
#include "test_support.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  auto application = std::make_unique<QApplication>(argc, argv);
  if (!vireo::TheVHtml().Load(vireo::test::BinFolder())) return 1;
  const int result = RUN_ALL_TESTS();
  // Deleted before exit so that LeakSanitizer does not see fontconfig's caches.
  application.reset();
  return result;
}
