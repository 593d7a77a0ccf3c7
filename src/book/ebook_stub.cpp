#include "book/ebook_stub.h"

#include <cstdint>
#include <filesystem>
#include <fstream>

#include "book/load_file.h"
#include "support/file_io.h"
#include "support/runtime_error.h"

#if !defined(_WIN32)
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
extern char** environ;
#endif

namespace vireo {
namespace {

constexpr uint32_t kSymbolTableSection = 2;  // SHT_SYMTAB

// Little-endian unsigned value of width bytes at offset, or nullopt past the end.
bool ReadLittleEndian(std::string_view bytes, uint64_t offset, int width, uint64_t& value) {
  if (offset > bytes.size() || bytes.size() - offset < static_cast<uint64_t>(width)) return false;
  value = 0;
  for (int i = width - 1; i >= 0; --i) {
    value = (value << 8) | static_cast<uint8_t>(bytes[offset + static_cast<uint64_t>(i)]);
  }
  return true;
}

#if !defined(_WIN32)
// Runs "strip -o output input"; true when it succeeded.
bool RunStrip(const std::string& input, const std::string& output) {
  std::string program = "strip";
  std::string flag = "-o";
  std::string out = output;
  std::string in = input;
  char* arguments[] = {program.data(), flag.data(), out.data(), in.data(), nullptr};
  pid_t child = 0;
  if (posix_spawnp(&child, "strip", nullptr, nullptr, arguments, environ) != 0) return false;
  int status = 0;
  if (waitpid(child, &status, 0) != child) return false;
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}
#endif

std::string StrippedCopy(const std::string& stub_path, const std::string& work_folder) {
#if defined(_WIN32)
  static_cast<void>(work_folder);
  return ReadWholeFile(stub_path);
#else
  const std::string temporary =
      (std::filesystem::path(work_folder) / (".vireo-stub-" + std::to_string(getpid()))).string();
  const bool stripped = RunStrip(stub_path, temporary);
  std::string bytes;
  if (stripped) bytes = ReadWholeFile(temporary);
  std::error_code ignored;
  std::filesystem::remove(temporary, ignored);
  if (!stripped) {
    // strip needs room for a copy as large as the stub; without it the
    // folder, not the stub, is at fault.
    std::error_code unknown;
    const uintmax_t available = std::filesystem::space(work_folder, unknown).available;
    const uintmax_t needed = unknown ? 0 : std::filesystem::file_size(stub_path, unknown);
    if (!unknown && available < needed) throw RuntimeError(ErrorNumber::kDiskFull);
    throw RuntimeError(ErrorNumber::kPathFileAccess, "strip failed on " + stub_path);
  }
  return bytes;
#endif
}

}  // namespace

bool LooksLikeProgram(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  char start[4] = {};
  if (!in.read(start, sizeof(start))) return false;
  const std::string_view bytes(start, sizeof(start));
  return bytes == std::string_view("\x7f" "ELF", 4) || bytes.starts_with("MZ");
}

bool HasSymbolTable(std::string_view bytes) {
  if (bytes.size() < 64 || bytes.substr(0, 4) !=
                               "\x7f"
                               "ELF")
    return false;
  const bool is64 = bytes[4] == 2;
  if (bytes[5] != 1) return false;  // little-endian only
  uint64_t section_offset = 0;
  uint64_t entry_size = 0;
  uint64_t count = 0;
  if (!ReadLittleEndian(bytes, is64 ? 0x28 : 0x20, is64 ? 8 : 4, section_offset) ||
      !ReadLittleEndian(bytes, is64 ? 0x3A : 0x2E, 2, entry_size) ||
      !ReadLittleEndian(bytes, is64 ? 0x3C : 0x30, 2, count)) {
    return false;
  }
  for (uint64_t i = 0; i < count; ++i) {
    uint64_t type = 0;
    if (!ReadLittleEndian(bytes, section_offset + i * entry_size + 4, 4, type)) return false;
    if (type == kSymbolTableSection) return true;
  }
  return false;
}

std::string PrepareStub(const std::string& stub_path, const std::string& work_folder) {
  std::string bytes = ReadWholeFile(stub_path);
  if (HasSymbolTable(bytes)) bytes = StrippedCopy(stub_path, work_folder);
  const size_t book = bytes.find(HeaderMarker());
  if (book != std::string::npos) bytes.resize(book);
  return bytes;
}

}  // namespace vireo
