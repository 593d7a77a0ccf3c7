#include "book/make_request_check.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>

#include "book/ebook_stub.h"
#include "support/platform.h"

#if !defined(_WIN32)
#include <unistd.h>
#endif

namespace vireo {
namespace {

namespace fs = std::filesystem;

// Why no new file can be made in folder, or "" when one can: a file is
// created there and removed again.
std::string FolderRefusal(const fs::path& folder) {
#if defined(_WIN32)
  const int id = 0;
#else
  const int id = static_cast<int>(getpid());
#endif
  const std::string probe = (folder / (".vireo-probe-" + std::to_string(id))).string();
  FILE* file = std::fopen(probe.c_str(), "wb");
  if (file == nullptr) return std::strerror(errno);
  std::fclose(file);
  std::remove(probe.c_str());
  return "";
}

std::string OutputProblem(const MakeRequest& request) {
  const std::string& out = request.out_path;
  std::error_code error;
  const fs::file_status status = fs::status(out, error);
  if (fs::exists(status) && !fs::is_regular_file(status)) {
    return "cannot write " + out + " (" + (fs::is_directory(status) ? "a folder" : "not a plain file") +
           " is there)";
  }
  if (SameFile(out, request.text_path)) {
    return "cannot write " + out + ": it is the text itself, and the ebook would replace it";
  }
  if (request.form == MakeForm::kEbook && SameFile(out, request.stub_path)) {
    return "cannot write " + out + ": it is the stub itself, and the ebook would replace it";
  }
  for (const std::string& kept : request.kept_paths) {
    if (SameFile(out, kept)) return "cannot write " + out + ": it is in use by the reader";
  }
  const fs::path folder = fs::absolute(out, error).parent_path();
  if (!FolderExists(folder.string())) return "cannot write " + out + " (no such folder)";
  if (const std::string refusal = FolderRefusal(folder); !refusal.empty()) {
    return "cannot write " + out + " (" + refusal + ")";
  }
  return "";
}

}  // namespace

bool SameFile(const std::string& first, const std::string& second) {
  std::error_code error;
  return fs::equivalent(first, second, error) && !error;
}

std::string MakeRequestProblem(const MakeRequest& request) {
  if (FolderExists(request.text_path)) return "the text " + request.text_path + " is a folder";
  if (request.form == MakeForm::kEbook) {
    if (FolderExists(request.stub_path)) return "the stub " + request.stub_path + " is a folder";
    if (FileExists(request.stub_path) && !LooksLikeProgram(request.stub_path)) {
      return "the stub " + request.stub_path + " is not a program";
    }
  }
  return OutputProblem(request);
}

}  // namespace vireo
