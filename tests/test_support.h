#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace vireo::test {

// A fresh folder under the system's temporary folder, removed with the object.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  std::string str() const { return path_.string(); }
  std::string File(const std::string& name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_;
};

std::string ReadFile(const std::string& path);
void WriteFile(const std::string& path, const std::string& content);
inline bool FileExists(const std::string& path) { return std::filesystem::exists(path); }

// The folder with the built programs and the helper library.
std::string BinFolder();

// Logs into a fresh temporary folder (also there for the test's own files) for the length of a
// test, starting from no recorded actions.
class LogCapture {
 public:
  LogCapture();
  ~LogCapture();
  const TempFolder& folder() const { return folder_; }
  // The recorded actions, oldest first.
  static std::vector<std::string> Entries();

 private:
  TempFolder folder_;
};

}  // namespace vireo::test
