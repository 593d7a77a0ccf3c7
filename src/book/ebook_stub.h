#pragma once

#include <string>
#include <string_view>

namespace vireo {

// The reader executable that books are appended to.

// True when the file at path starts as the platforms' executables do (ELF,
// or the "MZ" of Windows). A missing or unreadable file gives false.
bool LooksLikeProgram(const std::string& path);

// True when bytes are an ELF executable that still carries a symbol table
// (not stripped). Malformed or foreign files give false.
bool HasSymbolTable(std::string_view bytes);

// The stub's bytes ready for a book to be appended: stripped first when it
// is an unstripped ELF file (strip drops anything appended later, so the
// book must come after it), and cut at a header marker when the stub is
// itself an ebook. work_folder holds the temporary stripped copy. Throws
// RuntimeError 53/75 when the stub cannot be read, 75 when strip fails, 61
// when it failed for want of room in work_folder.
std::string PrepareStub(const std::string& stub_path, const std::string& work_folder);

}  // namespace vireo
