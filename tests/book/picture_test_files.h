#pragma once

#include <map>
#include <optional>
#include <string>

#include "book/picture_files.h"

namespace vireo::test {

// Files by exact path; counts the reads.
class FakePictureFiles : public PictureFiles {
 public:
  FakePictureFiles() = default;
  explicit FakePictureFiles(std::map<std::string, std::string> files) : files_(std::move(files)) {}

  bool IsFile(const std::string& path) override { return files_.count(path) > 0; }
  std::optional<std::string> Read(const std::string& path) override {
    ++reads;
    const auto found = files_.find(path);
    if (found == files_.end()) return std::nullopt;
    return found->second;
  }
  void Remove(const std::string& path) { files_.erase(path); }

  int reads = 0;

 private:
  std::map<std::string, std::string> files_;
};

}  // namespace vireo::test
