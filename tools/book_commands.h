#pragma once

#include <string>

#include "book/book_reader.h"
#include "tool_commands.h"

namespace vireo::tool {

// vireo-tool make TEXT -o OUT [--brn] [--stub PATH] [--author A] [--title T]
int RunMake(const Arguments& arguments);
// vireo-tool text FILE [--no-reformat] [--underscores] [--extra-line] [--brn|--bfl]
int RunText(const Arguments& arguments);
// vireo-tool info FILE
int RunInfo(const Arguments& arguments);

// Why book, loaded from path, is not shown: no book, a damaged book or an
// empty one (the message to fail with), or "" when it can be shown.
std::string UnshowableBook(const std::string& path, const BookReadResult& book);

}  // namespace vireo::tool
