#pragma once

#include <functional>
#include <string>
#include <vector>

#include "book/book_maker.h"
#include "support/common_dialogs.h"
#include "support/user_interaction.h"

namespace vireo {

// Title and author suggested for a text: from "Title:" and "Author:" lines
// (or a "by NAME" line) among its first lines, else the title from the file
// name (underscores and hyphens as blanks) and no author. head is the text's
// beginning in UTF-8.
struct SuggestedDetails {
  std::string title;
  std::string author;
};
SuggestedDetails SuggestDetails(const std::string& text_path, std::string_view head);

// The decisions of the Create ebook dialog, without a window: what choosing
// a text fills in, what may be made, and making it with the core maker. The
// dialog shows the fields and passes the person's edits back. Texts shown
// are translated; paths are as the file system spells them.
class EbookMakerForm {
 public:
  // user answers the questions; open offers a made book to the reader.
  // running_program and open_book are never written over.
  EbookMakerForm(UserInteraction& user, std::function<void(const std::string&)> open,
                 std::string running_program, std::string open_book);

  // A text file was chosen: its encoding is detected from its beginning
  // (shown by encoding_name), title and author are suggested, and the output
  // is put beside the text (named after it, ".brn" for a packed book), its
  // pictures looked for in its folder. A typed output or pictures folder
  // stays. An unreadable file is said so and leaves the fields as they were.
  void ChooseText(const std::string& path);
  // The output form; an output named after the text follows it.
  void SetForm(MakeForm form);

  std::string text_path;
  std::string title;
  std::string author;
  std::string out_path;
  // The folder the text's pictures are packed from ("": none) and the cover
  // packed with them ("": none). Only an ebook carries pictures: a packed
  // book alone (.brn) leaves them as files beside it.
  std::string pictures_folder;
  std::string cover_path;
  MakeForm form() const { return form_; }
  bool packs_pictures() const { return form_ == MakeForm::kEbook; }
  const std::string& encoding_name() const { return encoding_name_; }

  // The Choose... buttons: each asks dialogs for its field (cancelled:
  // the field stays).
  void PickText(CommonDialogs& dialogs);
  void PickOutput(CommonDialogs& dialogs);
  void PickPictures(CommonDialogs& dialogs);
  void PickCover(CommonDialogs& dialogs);

  // Why the book cannot be made as the fields stand, or "".
  std::string Problem() const;
  // Makes the book (progress told the stage and percentage). A problem or
  // failure is shown and nothing is left at the output; on success the
  // report holds the summary and every kind of replacement.
  bool Make(const ProgressHandler& progress);
  // After a successful Make: asks whether to open the book, and opens it.
  void OfferToOpen();
  // The summary and one line per kind of replaced character, in UTF-8.
  const std::vector<std::string>& report() const { return report_; }

 private:
  MakeRequest Request() const;
  std::string OutputBesideText() const;
  std::string PicturesProblem() const;

  UserInteraction& user_;
  std::function<void(const std::string&)> open_;
  std::string running_program_;
  std::string open_book_;
  MakeForm form_ = MakeForm::kEbook;
  std::string encoding_name_;
  std::vector<std::string> report_;
  std::string made_path_;
};

}  // namespace vireo
