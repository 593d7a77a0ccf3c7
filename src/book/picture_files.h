#pragma once

#include <map>
#include <optional>
#include <string>

namespace vireo {

// Where the pictures a book names are looked for. Paths are as the image
// store builds them: the book's folder followed by the name, or the name
// alone, with "\" between folders. Implementations never follow a path as
// anything but a file name.
class PictureFiles {
 public:
  virtual ~PictureFiles() = default;
  // Whether path names a regular file that can be read.
  virtual bool IsFile(const std::string& path) = 0;
  // The whole file, or nothing when it is missing, not a regular file or
  // larger than the picture size limit.
  virtual std::optional<std::string> Read(const std::string& path) = 0;
};

// No files at all.
class NoPictureFiles : public PictureFiles {
 public:
  bool IsFile(const std::string&) override { return false; }
  std::optional<std::string> Read(const std::string&) override { return std::nullopt; }
};

// The pictures on disk. "\" becomes the platform's separator; where the
// file system tells letter cases apart, a name is found whatever the case of
// its letters (each folder is listed once per lookup session and kept, so
// that thousands of names cost one listing per folder).
class DiskPictureFiles : public PictureFiles {
 public:
  bool IsFile(const std::string& path) override;
  std::optional<std::string> Read(const std::string& path) override;
  // The path of the file on disk that path names, or nothing.
  std::optional<std::string> Resolve(const std::string& path);
  // Forgets the folder listings (the files may have changed).
  void Forget() { listings_.clear(); }

 private:
  // Upper-cased entry name to the name on disk, per folder.
  using Listing = std::map<std::string, std::string>;
  const Listing& ListingOf(const std::string& folder);

  std::map<std::string, Listing> listings_;
};

}  // namespace vireo
