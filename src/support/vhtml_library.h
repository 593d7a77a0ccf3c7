#pragma once

#include <cstddef>
#include <string>
#include <string_view>

struct VhtmlPair;

namespace vireo {

// The vHtml text-helper library, loaded at run time from the program's folder.
class VHtmlLibrary {
 public:
  // "libvHtml.so" (or "vHtml.dll" on Windows): the file looked for.
  static std::string FileName();

  // Loads folder/FileName(). Returns false (and stays unloaded) when the file
  // is missing or lacks one of the four functions.
  bool Load(std::string_view folder);
  bool loaded() const { return count_ != nullptr; }

  using CountFunction = size_t (*)(const unsigned char*, size_t, const unsigned char*, size_t, int);
  using ReplaceFunction = size_t (*)(const unsigned char*, size_t, const unsigned char*, size_t,
                                     const unsigned char*, size_t, int, unsigned char*, size_t);
  using MultiFunction = size_t (*)(const unsigned char*, size_t, const VhtmlPair*, size_t,
                                   unsigned char*, size_t);

  // Each throws RuntimeError 48 when the library is not loaded.
  CountFunction count() const;
  ReplaceFunction replace() const;
  MultiFunction replace_multi() const;
  MultiFunction replace_multi_ignore_caps() const;

 private:
  void* handle_ = nullptr;
  CountFunction count_ = nullptr;
  ReplaceFunction replace_ = nullptr;
  MultiFunction replace_multi_ = nullptr;
  MultiFunction replace_multi_ignore_caps_ = nullptr;
};

// The program-wide instance.
VHtmlLibrary& TheVHtml();

}  // namespace vireo
