// vireo-tool: the command-line maker and inspector of Vireo ebooks.

#include <cstdio>
#include <string>

#include "book_commands.h"
#include "support/platform.h"
#include "support/vhtml_library.h"
#include "tool_commands.h"

namespace vireo::tool {

int Fail(const std::string& message) {
  std::fprintf(stderr, "vireo-tool: %s\n", message.c_str());
  return 1;
}

int RunPages(const Arguments& arguments);   // cmd_pages.cpp
int RunRender(const Arguments& arguments);  // cmd_render.cpp
int RunSweep(const Arguments& arguments);   // cmd_render.cpp

namespace {

const ToolCommand kCommands[] = {
    {"help", "help", nullptr},
    {"make", "make TEXT -o OUT [--brn] [--stub PATH] [--author A] [--title T]", RunMake},
    {"text", "text FILE [--no-reformat] [--underscores] [--extra-line] [--brn|--bfl]", RunText},
    {"info", "info FILE", RunInfo},
    {"pages",
     "pages FILE|--text TEXTFILE --line-width W --lines-per-page N [--line-height H] "
     "[--first-page 1|2] [--position P] (--metrics METRICSFILE | --font FAMILY --size PT)",
     RunPages},
#if defined(VIREO_TOOL_HAS_QT)
    {"render", "render FILE --page N -o OUT.png [--single]", RunRender},
    {"sweep", "sweep FILE --page N -o FOLDER", RunSweep},
#endif
};

int Usage() {
  std::fprintf(stderr, "usage:\n");
  for (const ToolCommand& command : kCommands)
    std::fprintf(stderr, "  vireo-tool %s\n", command.usage);
  return 2;
}

}  // namespace
}  // namespace vireo::tool

int main(int argc, char* argv[]) {
  using namespace vireo::tool;
  if (argc < 2) return Usage();
  const std::string name = argv[1];
  if (!vireo::TheVHtml().Load(vireo::ProgramFolder())) {
    return Fail(vireo::VHtmlLibrary::FileName() + " is required beside vireo-tool");
  }
  for (const ToolCommand& command : kCommands) {
    if (name == command.name && command.run != nullptr) {
      return command.run(Arguments(argv + 2, argv + argc));
    }
  }
  return Usage();
}
