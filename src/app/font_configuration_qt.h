#pragma once

#include <thread>

namespace vireo {

// Loads the system's font configuration (its files and font caches, some
// 6 ms) on a thread of its own while the window is being made, so that the
// first text drawn, the splash's, finds it loaded. Without the font
// configuration library it does nothing.
class FontConfigurationPreload {
 public:
  FontConfigurationPreload();
  ~FontConfigurationPreload();
  FontConfigurationPreload(const FontConfigurationPreload&) = delete;
  FontConfigurationPreload& operator=(const FontConfigurationPreload&) = delete;

  // Waits for the loading to end. The toolkit would otherwise load a second
  // configuration of its own beside it, and the time would be spent twice.
  void Wait();

 private:
  std::thread loader_;
};

}  // namespace vireo
