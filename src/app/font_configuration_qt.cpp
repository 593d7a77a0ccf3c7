#include "app/font_configuration_qt.h"

#if defined(VIREO_HAVE_FONTCONFIG)
#include <fontconfig/fontconfig.h>
#endif

namespace vireo {

FontConfigurationPreload::FontConfigurationPreload() {
#if defined(VIREO_HAVE_FONTCONFIG)
  loader_ = std::thread([] { FcInit(); });
#endif
}

FontConfigurationPreload::~FontConfigurationPreload() { Wait(); }

void FontConfigurationPreload::Wait() {
  if (loader_.joinable()) loader_.join();
}

}  // namespace vireo
