#pragma once

#include <string>

#include "book/book_maker.h"

namespace vireo {

// The checks made before an ebook is made, by the maker and by anything that
// asks a person for the paths first: the reason the request cannot be made
// (a sentence naming the file at fault), or "" when nothing stands in the
// way. Looks at the file system only: a folder where a file belongs, an
// output that is the text, the stub (for an ebook) or one of the kept paths (the same file by identity,
// however the paths are spelled: links, "./", absolute or relative), an
// output that is no plain file, an output folder that is missing or refuses
// a new file, and a stub that is not a program. Writes nothing that stays.
std::string MakeRequestProblem(const MakeRequest& request);

// True when both paths exist and are the same file (device and inode).
bool SameFile(const std::string& first, const std::string& second);

}  // namespace vireo
