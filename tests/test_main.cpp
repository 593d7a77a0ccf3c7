#include <gtest/gtest.h>

#include "support/logging.h"
#include "support/vhtml_library.h"
#include "test_support.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  // The helper library sits beside the test programs, as beside the reader.
  if (!vireo::TheVHtml().Load(vireo::test::BinFolder())) {
    fprintf(stderr, "cannot load the helper library from %s\n", VIREO_BIN_DIR);
    return 1;
  }
  return RUN_ALL_TESTS();
}
