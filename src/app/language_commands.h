#pragma once

#include <string>
#include <vector>

#include "app/book_spread.h"
#include "app/reader_context.h"
#include "support/language_files.h"

namespace vireo {

// The reader's language: the translation files beside the program offered
// after English (lstLanguages and the Language menu), the one chosen loaded,
// remembered under "Language" in the settings store (the file's code, "" for
// English), the window translated and the title page drawn again in it.
// Errors are logged under their procedures' names of module "frmMain".
class LanguageCommands {
 public:
  LanguageCommands(ReaderContext& context, BookSpread& spread);

  // Start-up: finds the translation files, offers them to the window and
  // switches to the remembered language (English when its file is gone).
  void FillLanguages();
  // lstLanguages and mnuSetLang(index): 0 is English, i the i-th language
  // found; an index out of range changes nothing.
  void ChooseLanguage(int index);

  // The languages found, without English.
  const std::vector<LanguageFile>& languages() const { return languages_; }
  // The index chosen: 0 English.
  int chosen() const { return chosen_; }

 private:
  void Load(int index);
  void ShowChoice();

  ReaderContext& context_;
  BookSpread& spread_;
  std::vector<LanguageFile> languages_;
  int chosen_ = 0;
};

}  // namespace vireo
