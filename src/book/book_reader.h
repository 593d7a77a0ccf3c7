#pragma once

#include <cstddef>
#include <string>

#include "book/cls_bin.h"
#include "book/formatting_options.h"

namespace vireo {

class clsNewImages;
class PictureFiles;

// What loading a book does with its pictures. Without a store the picture
// references stay in the text as they are.
struct PictureLoading {
  clsNewImages* store = nullptr;  // rewrites the references, keeps the pictures
  PictureFiles* disk = nullptr;   // the files the book may name (nullptr: none)
  std::string folder;             // looked in instead of the book's folder ("": the book's)
};

// What loading a book file gave, without a window: the reader's own loading
// path (LoadFile) runs through these functions too.
struct BookReadResult {
  bool has_book = false;
  std::string text;          // the book text as the reader holds it
  std::string author;        // detail field 1, references converted
  std::string title;         // the file name part of the path, as the reader shows it
  std::string stored_title;  // detail field 3, references converted
  // Why the book is not what was stored ("the unpacking stopped in sub
  // decodebin", "its author and title are not text"), or "". The reader
  // goes on with what it got; the tools refuse such a book.
  std::string damage;
  size_t stored_size = 0;    // bytes of the packed body
  std::string packed_cover;  // the cover picture packed with the book, or ""
  // Why there is no book: the reader's message box text when the file holds
  // no header marker (show_message true), otherwise the logged error line.
  std::string message;
  bool show_message = false;
};

// Loads the book appended to the file at path, exactly as the reader does
// at start-up: reads the file, cuts off the pictures packed after the book,
// finds the markers, unpacks with clsBIN (progress told to progress, if set;
// picture references rewritten as pictures says) and converts the HTML references in
// the text and the details. Logs "Loading from: " path, "Reading Book" and
// "Converting book"; an error (unreadable file, a header marker without a
// book marker) is logged under "sub loadfile" of "frmMain" and gives no
// book. A header marker without a book, and a damaged book, also get a log
// line of their own that names the file.
BookReadResult ReadEmbeddedBook(const std::string& path, const FormattingOptions& options,
                                const ProgressHandler& progress = nullptr,
                                const PictureLoading& pictures = {});

// A stand-alone packed book file (".BRN" body, or ".BFL"), unpacked by
// clsBIN and with its HTML references converted.
enum class PackedFileKind { kBrn, kBfl };
BookReadResult ReadPackedBookFile(const std::string& path, PackedFileKind kind,
                                  const FormattingOptions& options,
                                  const ProgressHandler& progress = nullptr,
                                  const PictureLoading& pictures = {});

// Any book file the reader is given: an ebook (or any file holding the
// markers) as ReadEmbeddedBook reads it; a file without the header marker
// whose name ends in ".brn" or ".bfl" (any case) as a stand-alone packed
// book. A packed book that does not unpack whole, or holds nothing, gives no
// book and the message to show, so that the open book stays.
BookReadResult ReadBookFile(const std::string& path, const FormattingOptions& options,
                            const ProgressHandler& progress = nullptr,
                            const PictureLoading& pictures = {});

// The message LoadFile shows for a file without a header marker (already
// translated): the stub's own message when path, trimmed and lower-cased,
// is "vireo_stub.exe", else "There is no ebook stored in this file.".
std::string NoBookMessage(const std::string& path);

}  // namespace vireo
