#pragma once

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "test_support.h"

namespace vireo::test {

// A fresh program folder holding copies of the reader, its helper library and the tool.
class ProgramFolder {
 public:
  ProgramFolder() {
    for (const char* name : {"Vireo", "libvHtml.so", "vireo-tool"}) {
      const auto source = std::filesystem::path(BinFolder()) / name;
      if (std::filesystem::exists(source)) {
        std::filesystem::copy_file(source, folder_.path() / name);
      }
    }
  }
  std::string Path(const std::string& name) const { return folder_.File(name); }
  std::string Log() const { return ReadFile(Path("log.txt")); }
  const TempFolder& folder() const { return folder_; }

 private:
  TempFolder folder_;
};

struct RunResult {
  int status = -1;
  std::string out;
  std::string err;
};

// Runs a shell command with extra "NAME=value" settings, capturing its output; status -1
// when it did not exit normally.
inline RunResult Run(const std::string& command, const std::vector<std::string>& environment,
                     const TempFolder& scratch) {
  std::string line;
  for (const std::string& setting : environment) line += setting + " ";
  const std::string out = scratch.File("run.out");
  const std::string err = scratch.File("run.err");
  line += command + " >" + out + " 2>" + err;
  const int raw = std::system(("env " + line).c_str());
  RunResult result;
  result.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
  result.out = ReadFile(out);
  result.err = ReadFile(err);
  return result;
}

// Run with a time limit: a program still running after `seconds` is killed
// (status 124 from timeout, 137 when it ignored the polite signal).
inline RunResult RunWithin(int seconds, const std::string& command,
                           const std::vector<std::string>& environment, const TempFolder& scratch) {
  return Run("timeout -k 5 " + std::to_string(seconds) + " " + command, environment, scratch);
}

// The environment of an unattended reader: no display, no dialogs.
inline std::vector<std::string> Unattended(const TempFolder& folder,
                                           std::vector<std::string> more = {}) {
  more.push_back("QT_QPA_PLATFORM=offscreen");
  more.push_back("VIREO_NONINTERACTIVE=1");
  more.push_back("XDG_DATA_HOME=" + folder.File("xdg"));
  more.push_back("XDG_RUNTIME_DIR=" + folder.str());
  return more;
}

// The word as one shell word: in single quotes, which keep line feeds.
inline std::string ShellWord(const std::string& word) {
  std::string quoted = "'";
  for (const char c : word) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + "'";
}

// Runs the folder's vireo-tool with the arguments (already shell words).
inline RunResult Tool(const ProgramFolder& program, const std::string& arguments) {
  return Run(program.Path("vireo-tool") + " " + arguments, {}, program.folder());
}

// Makes the ebook `name` in the program folder from `text`, with the reader as the stub.
inline RunResult MakeBook(const ProgramFolder& program, const std::string& name,
                          const std::string& text) {
  WriteFile(program.Path("book.txt"), text);
  return Tool(program, "make " + program.Path("book.txt") + " -o " + ShellWord(program.Path(name)) +
                           " --stub " + program.Path("Vireo"));
}

// Runs a program of the folder unattended; it quits as soon as it has started.
inline RunResult StartAndQuit(const ProgramFolder& program, const std::string& name,
                              std::vector<std::string> more = {}, int seconds = 90) {
  more.push_back("VIREO_QUIT_AFTER_MS=0");
  return RunWithin(seconds, ShellWord(program.Path(name)), Unattended(program.folder(), more),
                   program.folder());
}

}  // namespace vireo::test
