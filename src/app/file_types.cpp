#include "app/file_types.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "support/file_io.h"
#include "support/platform.h"

namespace vireo {
namespace {

std::string DataHome() {
  if (const char* xdg = std::getenv("XDG_DATA_HOME"); xdg != nullptr && *xdg != '\0') return xdg;
  if (const char* home = std::getenv("HOME"); home != nullptr && *home != '\0') {
    return JoinPath(home, ".local/share");
  }
  return "";
}

std::string MimePackage() {
  std::string xml =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n"
      "  <mime-type type=\"application/x-vireo-book\">\n"
      "    <comment>Vireo book</comment>\n";
  for (const char* extension : kBookFileTypes) {
    xml += std::string("    <glob pattern=\"*") + extension + "\"/>\n";
  }
  xml += "  </mime-type>\n</mime-info>\n";
  return xml;
}

std::string DesktopEntry(const std::string& executable_path) {
  return "[Desktop Entry]\nType=Application\nName=Vireo\nComment=Read ebooks\nExec=\"" +
         executable_path + "\" %f\nMimeType=application/x-vireo-book;\nTerminal=false\n";
}

void WriteIfChanged(const std::string& path, const std::string& content) {
  std::error_code error;
  std::filesystem::create_directories(std::filesystem::path(path).parent_path(), error);
  if (FileExists(path)) {
    try {
      if (ReadWholeFile(path) == content) return;
    } catch (...) {
    }
  }
  WriteFileAtomically(path, content);
}

}  // namespace

bool RegisterFileTypes(const std::string& executable_path) {
  const std::string data_home = DataHome();
  if (data_home.empty()) return false;
  try {
    WriteIfChanged(JoinPath(data_home, "mime/packages/vireo-books.xml"), MimePackage());
    WriteIfChanged(JoinPath(data_home, "applications/vireo.desktop"),
                   DesktopEntry(executable_path));
    return true;
  } catch (...) {
    return false;
  }
}

}  // namespace vireo
