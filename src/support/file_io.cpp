#include "support/file_io.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "support/large_buffer.h"
#include "support/logging.h"
#include "support/runtime_error.h"

#if defined(_WIN32)
#include <io.h>
#else
#include <unistd.h>
#endif

namespace vireo {
namespace {

std::function<void()>& BeforeRenameHook() {
  static std::function<void()> hook;
  return hook;
}

bool LiftReadOnly(const std::string& path) {
  std::error_code error;
  std::filesystem::permissions(path, std::filesystem::perms::owner_write,
                               std::filesystem::perm_options::add, error);
  return !error;
}

std::function<bool(const std::string&)>& ReadOnlyClearer() {
  static std::function<bool(const std::string&)> clearer = LiftReadOnly;
  return clearer;
}

bool IsReadOnly(const std::string& path) {
  std::error_code error;
  const auto status = std::filesystem::status(path, error);
  if (error || !std::filesystem::is_regular_file(status)) return false;
  using std::filesystem::perms;
  return (status.permissions() & (perms::owner_write | perms::group_write | perms::others_write)) ==
         perms::none;
}

ErrorNumber WriteError(int error_number) {
  return error_number == ENOSPC ? ErrorNumber::kDiskFull : ErrorNumber::kPathFileAccess;
}

// Asks the system to start writing a range of the file to disk now instead
// of when the final flush asks for all of it; only a hint, so a failure is
// left to the flush to report.
void StartWriteback(FILE* file, size_t offset, size_t length) {
#if defined(__linux__)
  sync_file_range(fileno(file), static_cast<off_t>(offset), static_cast<off_t>(length),
                  SYNC_FILE_RANGE_WRITE);
#else
  static_cast<void>(file), static_cast<void>(offset), static_cast<void>(length);
#endif
}

// Writes in pieces, each sent on to the disk as soon as it is written, so
// that the disk works while the later pieces are copied and the final flush
// has little left to wait for (a book is tens of megabytes).
void WriteAndSync(FILE* file, const std::string& content) {
  constexpr size_t kPiece = size_t{8} << 20;
  for (size_t at = 0; at < content.size(); at += kPiece) {
    const size_t length = std::min(kPiece, content.size() - at);
    if (std::fwrite(content.data() + at, 1, length, file) != length || std::fflush(file) != 0) {
      throw RuntimeError(WriteError(errno));
    }
    StartWriteback(file, at, length);
  }
#if !defined(_WIN32)
  if (fsync(fileno(file)) != 0) throw RuntimeError(WriteError(errno));
#endif
}

// The file path finally names, following symbolic links (a link to a file
// not yet made names that file); path itself when it is no link or the links
// cannot be followed.
std::filesystem::path ResolvedTarget(const std::string& path) {
  constexpr int kMostLinks = 40;  // a longer chain is taken for a loop
  std::filesystem::path current = path;
  for (int followed = 0; followed < kMostLinks; ++followed) {
    std::error_code error;
    if (!std::filesystem::is_symlink(current, error)) return current;
    const std::filesystem::path next = std::filesystem::read_symlink(current, error);
    if (error) return path;
    current = next.is_absolute() ? next : current.parent_path() / next;
  }
  return path;
}

std::string TemporaryBeside(const std::filesystem::path& target) {
  return target.string() + ".tmp";
}

}  // namespace

std::string ReadWholeFile(const std::string& path, size_t spare) {
  std::error_code error;
  if (!std::filesystem::exists(path, error)) throw RuntimeError(ErrorNumber::kFileNotFound);
  std::ifstream in(path, std::ios::binary);
  if (!in) throw RuntimeError(ErrorNumber::kPathFileAccess);
  std::string content;
  in.seekg(0, std::ios::end);
  const auto size = in.tellg();
  if (size < 0) throw RuntimeError(ErrorNumber::kPathFileAccess);
  ReserveLarge(content, static_cast<size_t>(size), spare);
  content.resize(static_cast<size_t>(size));
  in.seekg(0, std::ios::beg);
  in.read(content.data(), size);
  if (!in && !in.eof()) throw RuntimeError(ErrorNumber::kPathFileAccess);
  content.resize(static_cast<size_t>(in.gcount()));
  return content;
}

bool PrepareForOutput(const std::string& path) {
  if (!IsReadOnly(path)) return true;
  if (ReadOnlyClearer()(path)) return true;
  LogAction(path + " is read only, can't change it to read write, can't update it");
  return false;
}

std::string TemporaryPathFor(const std::string& path) {
  return TemporaryBeside(ResolvedTarget(path));
}

void RemoveStaleTemporary(const std::string& path) {
  std::error_code error;
  std::filesystem::remove(TemporaryPathFor(path), error);  // a link itself, never what it names
}

void WriteFileAtomically(const std::string& path, const std::string& content) {
  const std::filesystem::path target = ResolvedTarget(path);
  const std::string temporary = TemporaryBeside(target);
  // A stale temporary that is a link would send the bytes where it points.
  std::error_code stale;
  std::filesystem::remove(temporary, stale);
  FILE* file = std::fopen(temporary.c_str(), "wb");
  if (file == nullptr) throw RuntimeError(WriteError(errno));
  try {
    WriteAndSync(file, content);
    if (std::fclose(file) != 0) {
      file = nullptr;
      throw RuntimeError(WriteError(errno));
    }
    file = nullptr;
    if (BeforeRenameHook()) BeforeRenameHook()();
    std::error_code error;
    std::filesystem::rename(temporary, target, error);
    if (error) throw RuntimeError(ErrorNumber::kPathFileAccess);
  } catch (...) {
    if (file != nullptr) std::fclose(file);
    std::remove(temporary.c_str());
    throw;
  }
}

void SetBeforeRenameHook(std::function<void()> hook) { BeforeRenameHook() = std::move(hook); }

void SetReadOnlyClearer(std::function<bool(const std::string&)> clearer) {
  ReadOnlyClearer() = clearer ? std::move(clearer) : LiftReadOnly;
}

}  // namespace vireo
