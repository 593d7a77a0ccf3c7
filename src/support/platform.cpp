#include "support/platform.h"

#include <filesystem>
#include <system_error>

#if defined(_WIN32)
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace vireo {

std::string ExecutablePath() {
#if defined(_WIN32)
  char buffer[MAX_PATH * 4] = {};
  const DWORD length = GetModuleFileNameA(nullptr, buffer, sizeof buffer);
  return std::string(buffer, length);
#else
  std::error_code error;
  const auto path = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? std::string() : path.string();
#endif
}

std::string ProgramFolder() {
  return std::filesystem::path(ExecutablePath()).parent_path().string();
}

std::string JoinPath(std::string_view folder, std::string_view name) {
  std::string path(folder);
  if (!path.empty() && path.back() != '/' && path.back() != '\\') path += '/';
  path += name;
  return path;
}

std::string FileNamePart(std::string_view path) {
  const size_t slash = path.find_last_of("/\\");
  return std::string(slash == std::string_view::npos ? path : path.substr(slash + 1));
}

bool FileExists(const std::string& path) {
  std::error_code error;
  return std::filesystem::is_regular_file(path, error);
}

bool FolderExists(const std::string& path) {
  std::error_code error;
  return std::filesystem::is_directory(path, error);
}

}  // namespace vireo
