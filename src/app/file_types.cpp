#include "app/file_types.h"

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <system_error>

#include "support/file_io.h"
#include "support/platform.h"
#include "support/translation.h"

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

// The executable as the one argument of an Exec key: in double quotes, with
// '"', '`', '$' and '\\' taking a backslash and '%' doubled so that no part of
// the path reads as a field code.
std::string QuotedExecArgument(const std::string& path) {
  std::string quoted = "\"";
  for (const char c : path) {
    if (c == '"' || c == '`' || c == '$' || c == '\\') quoted += '\\';
    if (c == '%') quoted += '%';
    quoted += c;
  }
  return quoted + "\"";
}

// A desktop entry's string value: backslash, line feed, carriage return and
// tab as escape sequences, so that the value stays on its one line. Other
// control characters cannot be written: nullopt.
std::optional<std::string> EscapedDesktopValue(const std::string& value) {
  std::string escaped;
  for (const char c : value) {
    switch (c) {
      case '\\':
        escaped += "\\\\";
        break;
      case '\n':
        escaped += "\\n";
        break;
      case '\r':
        escaped += "\\r";
        break;
      case '\t':
        escaped += "\\t";
        break;
      default:
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) return std::nullopt;
        escaped += c;
    }
  }
  return escaped;
}

std::optional<std::string> DesktopEntry(const std::string& executable_path) {
  const auto exec = EscapedDesktopValue(QuotedExecArgument(executable_path) + " %f");
  if (!exec) return std::nullopt;
  return "[Desktop Entry]\nType=Application\nName=Vireo\nComment=Read ebooks\nExec=" + *exec +
         "\nMimeType=application/x-vireo-book;\nTerminal=false\n";
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

std::string OpenDialogTitle() { return GetTranslation("Open a book"); }

std::vector<std::string> OpenDialogFilters() {
  return {GetTranslation("Books") + " (*.brn *.bfl *.txt *.text *.vrtxt *.vrhtm *.htm *.html)",
          GetTranslation("All files") + " (*)"};
}

std::optional<std::string> ChooseBookFile(CommonDialogs& dialogs, const std::string& folder) {
  const auto chosen = dialogs.AskOpenFile(OpenDialogTitle(), folder, OpenDialogFilters());
  if (!chosen) return std::nullopt;
  return chosen->path;
}

std::optional<std::string> RegistrationTarget(
    const std::string& executable_path, const std::string& temporary_folder,
    const std::function<bool(const std::string&)>& exists) {
  namespace fs = std::filesystem;
  const fs::path program = fs::path(executable_path).lexically_normal();
  if (!temporary_folder.empty()) {
    const fs::path inside = program.lexically_relative(fs::path(temporary_folder).lexically_normal());
    if (!inside.empty() && *inside.begin() != "..") return std::nullopt;
  }
  const std::string reader_name = "Vireo" + std::string(kExecutableSuffix);
  if (program.filename() == reader_name) return program.string();
  const std::string beside = (program.parent_path() / reader_name).string();
  if (exists(beside)) return beside;
  return std::nullopt;
}

bool RegisterFileTypes(const std::string& executable_path) {
  std::error_code no_folder;
  const std::filesystem::path temporary = std::filesystem::temp_directory_path(no_folder);
  const auto canonical = [](const std::filesystem::path& path) {
    std::error_code error;
    const std::filesystem::path found = std::filesystem::weakly_canonical(path, error);
    return error ? path.string() : found.string();
  };
  const auto target = RegistrationTarget(canonical(executable_path),
                                         no_folder ? "" : canonical(temporary),
                                         [](const std::string& path) { return FileExists(path); });
  return target && WriteFileTypeRegistration(*target);
}

bool WriteFileTypeRegistration(const std::string& reader_path) {
  const std::string data_home = DataHome();
  const auto entry = DesktopEntry(reader_path);
  if (data_home.empty() || !entry) return false;
  try {
    WriteIfChanged(JoinPath(data_home, "mime/packages/vireo-books.xml"), MimePackage());
    WriteIfChanged(JoinPath(data_home, "applications/vireo.desktop"), *entry);
    return true;
  } catch (...) {
    return false;
  }
}

}  // namespace vireo
