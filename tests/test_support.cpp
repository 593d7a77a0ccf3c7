#include "test_support.h"

#include <fstream>
#include <random>
#include <sstream>

#include "support/logging.h"

namespace vireo::test {

TempFolder::TempFolder() {
  std::random_device random;
  path_ = std::filesystem::temp_directory_path() /
          ("vireo-test-" + std::to_string(random()) + std::to_string(random()));
  std::filesystem::create_directories(path_);
}

TempFolder::~TempFolder() {
  std::error_code error;
  std::filesystem::remove_all(path_, error);
}

std::string ReadFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream content;
  content << in.rdbuf();
  return content.str();
}

void WriteFile(const std::string& path, const std::string& content) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << content;
}

std::string BinFolder() { return VIREO_BIN_DIR; }

LogCapture::LogCapture() {
  SetLogFolder(folder_.str());
  ClearActions();
}

LogCapture::~LogCapture() { SetLogFolder(""); }

std::vector<std::string> LogCapture::Entries() {
  std::vector<std::string> entries;
  for (int i = 1; i <= Actions().position; ++i) entries.push_back(Actions().text[i]);
  return entries;
}

}  // namespace vireo::test
