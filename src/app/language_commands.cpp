#include "app/language_commands.h"

#include "app/program_lifecycle.h"
#include "prefs/settings_get_set.h"
#include "support/error_trap.h"
#include "support/translation.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmMain";
constexpr const char* kLanguageKey = "Language";

}  // namespace

LanguageCommands::LanguageCommands(ReaderContext& context, BookSpread& spread)
    : context_(context), spread_(spread) {}

void LanguageCommands::FillLanguages() {
  Trap("sub filllanguages", kModule, [&] {
    languages_ = FindLanguages(LanguagesFolder(context_.location.folder));
    const std::string remembered = sget(kLanguageKey, "").ToText();
    int index = 0;
    for (size_t i = 0; i < languages_.size(); ++i) {
      if (languages_[i].code == remembered) index = static_cast<int>(i) + 1;
    }
    Load(index);
    ShowChoice();
  });
}

void LanguageCommands::ChooseLanguage(int index) {
  Trap("sub lstlanguages_click", kModule, [&] {
    if (index < 0 || index > static_cast<int>(languages_.size())) return;
    Load(index);
    sset(kLanguageKey, index == 0 ? std::string() : languages_[index - 1].code);
    ShowChoice();
    if (!context_.busy) context_.view.SetExitCaption(ProgramLifecycle::ExitCaption());
    if (!context_.book.loaded && !context_.busy) spread_.plotter().DrawTitlePage();
  });
}

void LanguageCommands::Load(int index) {
  chosen_ = index;
  SetLanguage(index == 0 ? std::vector<std::string>{}
                         : ReadLanguageFile(languages_[index - 1].path).entries);
}

void LanguageCommands::ShowChoice() {
  std::vector<std::string> names{"English"};
  for (const LanguageFile& language : languages_) names.push_back(language.name);
  context_.view.ShowLanguages(names, chosen_,
                              chosen_ == 0 ? std::string() : languages_[chosen_ - 1].code);
}

}  // namespace vireo
