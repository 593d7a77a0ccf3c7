#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace vireo {

// The whole file as bytes. Throws RuntimeError 53 (missing) or 75 (cannot be
// read). Room for `spare` more bytes is reserved (not touched), for a caller
// that goes on to build something larger in the same buffer.
std::string ReadWholeFile(const std::string& path, size_t spare = 0);

// The shared opening check before a file is written: a file that exists and
// is read-only gets its read-only attribute (all write bits clear) lifted.
// When that fails, logs "<path> is read only, can't change it to read write,
// can't update it" and returns false.
bool PrepareForOutput(const std::string& path);

// Replaces path with content atomically: the bytes go to a temporary file
// (TemporaryPathFor), are flushed to disk, and the temporary is renamed over
// the file. When path is a symbolic link, the file it points to is replaced
// and the link stays a link. On any failure the temporary is removed, the
// file is left as it was, and RuntimeError 61 (disk full) or 75 (access) is
// thrown.
void WriteFileAtomically(const std::string& path, const std::string& content);

// The temporary an atomic write of path uses: ".tmp" added to the name of
// the file that path finally points to, in that file's folder.
std::string TemporaryPathFor(const std::string& path);

// Removes the temporary a write of path left behind when the program was
// killed before its rename; nothing happens when there is none.
void RemoveStaleTemporary(const std::string& path);

// Test seams: a hook run just before the rename (throw from it to simulate a
// crash), and the function that lifts the read-only attribute.
void SetBeforeRenameHook(std::function<void()> hook);
void SetReadOnlyClearer(std::function<bool(const std::string&)> clearer);

}  // namespace vireo
