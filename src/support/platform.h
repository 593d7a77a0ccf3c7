#pragma once

#include <string>
#include <string_view>

namespace vireo {

// Facts about the running program and its files that the core needs.

// Full path of the running executable ("" when it cannot be found).
std::string ExecutablePath();

// The folder of the running executable, without a trailing separator.
std::string ProgramFolder();

// Joins a folder and a name with one separator.
std::string JoinPath(std::string_view folder, std::string_view name);

// The file name part of a path (after the last "/" or "\").
std::string FileNamePart(std::string_view path);

bool FileExists(const std::string& path);
bool FolderExists(const std::string& path);

// The name of the program's executable as the system lists it ("Vireo" or
// "Vireo.exe").
inline constexpr std::string_view kExecutableSuffix =
#if defined(_WIN32)
    ".exe";
#else
    "";
#endif

}  // namespace vireo
