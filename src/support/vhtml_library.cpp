#include "support/vhtml_library.h"

#include "support/platform.h"
#include "support/runtime_error.h"

#if defined(_WIN32)
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace vireo {
namespace {

void* OpenLibrary(const std::string& path) {
#if defined(_WIN32)
  return reinterpret_cast<void*>(LoadLibraryA(path.c_str()));
#else
  return dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
#endif
}

void* Symbol(void* handle, const char* name) {
#if defined(_WIN32)
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(handle), name));
#else
  return dlsym(handle, name);
#endif
}

template <typename Function>
Function Checked(Function function) {
  if (function == nullptr) throw RuntimeError(ErrorNumber::kDllNotFound);
  return function;
}

}  // namespace

std::string VHtmlLibrary::FileName() {
#if defined(_WIN32)
  return "vHtml.dll";
#else
  return "libvHtml.so";
#endif
}

bool VHtmlLibrary::Load(std::string_view folder) {
  if (loaded()) return true;
  const std::string path = JoinPath(folder, FileName());
  if (!FileExists(path)) return false;
  void* handle = OpenLibrary(path);
  if (handle == nullptr) return false;
  auto count = reinterpret_cast<CountFunction>(Symbol(handle, "cStringCount"));
  auto replace = reinterpret_cast<ReplaceFunction>(Symbol(handle, "cReplace"));
  auto multi = reinterpret_cast<MultiFunction>(Symbol(handle, "cReplaceMulti"));
  auto multi_caps = reinterpret_cast<MultiFunction>(Symbol(handle, "cReplaceMultiIgnoreCaps"));
  if (count == nullptr || replace == nullptr || multi == nullptr || multi_caps == nullptr) {
    return false;
  }
  handle_ = handle;
  count_ = count;
  replace_ = replace;
  replace_multi_ = multi;
  replace_multi_ignore_caps_ = multi_caps;
  return true;
}

VHtmlLibrary::CountFunction VHtmlLibrary::count() const { return Checked(count_); }
VHtmlLibrary::ReplaceFunction VHtmlLibrary::replace() const { return Checked(replace_); }
VHtmlLibrary::MultiFunction VHtmlLibrary::replace_multi() const { return Checked(replace_multi_); }
VHtmlLibrary::MultiFunction VHtmlLibrary::replace_multi_ignore_caps() const {
  return Checked(replace_multi_ignore_caps_);
}

VHtmlLibrary& TheVHtml() {
  static VHtmlLibrary library;
  return library;
}

}  // namespace vireo
