#include "book/picture_files.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

#include "book/picture.h"
#include "support/text_helpers.h"

namespace vireo {
namespace fs = std::filesystem;
namespace {

bool IsRegularFile(const fs::path& path) {
  std::error_code error;
  return fs::is_regular_file(path, error);
}

#if !defined(_WIN32)
// The path with the store's "\" separators turned into "/".
std::string PlatformPath(std::string path) {
  for (char& c : path) {
    if (c == '\\') c = '/';
  }
  return path;
}
#endif

}  // namespace

const DiskPictureFiles::Listing& DiskPictureFiles::ListingOf(const std::string& folder) {
  const auto known = listings_.find(folder);
  if (known != listings_.end()) return known->second;
  Listing& listing = listings_[folder];
  std::error_code error;
  for (fs::directory_iterator entry(folder.empty() ? "." : folder, error), end;
       !error && entry != end; entry.increment(error)) {
    const std::string name = entry->path().filename().string();
    listing.emplace(UpperCase(name), name);  // the first of names differing in case wins
  }
  return listing;
}

std::optional<std::string> DiskPictureFiles::Resolve(const std::string& path) {
  if (path.empty()) return std::nullopt;
#if defined(_WIN32)
  // The file system ignores letter case already.
  if (IsRegularFile(path)) return path;
  return std::nullopt;
#else
  const std::string wanted = PlatformPath(path);
  if (IsRegularFile(wanted)) return wanted;
  // Walk the folders, matching each part of the name without regard to case.
  std::string found = wanted.front() == '/' ? "/" : "";
  size_t start = wanted.front() == '/' ? 1 : 0;
  while (start <= wanted.size()) {
    size_t end = wanted.find('/', start);
    if (end == std::string::npos) end = wanted.size();
    const std::string part = wanted.substr(start, end - start);
    start = end + 1;
    if (part.empty()) continue;
    std::error_code error;
    if (part == "." || part == ".." || fs::exists(found + part, error)) {
      found += part;
    } else {
      const Listing& listing = ListingOf(found);
      const auto match = listing.find(UpperCase(part));
      if (match == listing.end()) return std::nullopt;
      found += match->second;
    }
    if (end < wanted.size()) found += '/';
  }
  if (IsRegularFile(found)) return found;
  return std::nullopt;
#endif
}

bool DiskPictureFiles::IsFile(const std::string& path) { return Resolve(path).has_value(); }

std::optional<std::string> DiskPictureFiles::Read(const std::string& path) {
  const std::optional<std::string> found = Resolve(path);
  if (!found) return std::nullopt;
  std::error_code error;
  const uintmax_t size = fs::file_size(*found, error);
  if (error || size > static_cast<uintmax_t>(kMaxPictureBytes)) return std::nullopt;
  std::ifstream in(*found, std::ios::binary);
  if (!in) return std::nullopt;
  std::string bytes;
  bytes.resize(static_cast<size_t>(size));
  in.read(bytes.data(), static_cast<std::streamsize>(size));
  bytes.resize(static_cast<size_t>(in.gcount()));
  return bytes;
}

}  // namespace vireo
