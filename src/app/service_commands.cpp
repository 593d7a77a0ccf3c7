#include "app/service_commands.h"

#include <vector>

#include "app/peripheral_services.h"
#include "prefs/settings_get_set.h"
#include "support/error_trap.h"
#include "support/file_io.h"
#include "support/maker.h"
#include "support/translation.h"
#include "support/windows1252.h"

namespace vireo {
namespace {

constexpr std::string_view kModule = "frmMain";

std::string WebAddress(const std::string& key) {
  const std::string address = sget(key, std::string(kMakerHomePage)).ToText();
  return address.empty() ? std::string(kMakerHomePage) : address;
}

}  // namespace

ServiceCommands::ServiceCommands(ReaderContext& context, BookSpread& spread, BookSession& session)
    : context_(context), spread_(spread), session_(session), read_aloud_(context, spread) {}

ItalicMarks ServiceCommands::Italics() const {
  return context_.prefs.underscores ? ItalicMarks::kUnderscores : ItalicMarks::kDropped;
}

void ServiceCommands::mnuPrint_Click() {
  Trap("sub mnuprint_click", kModule, [&] {
    if (!context_.book.loaded || context_.reindex.Busy()) return;
    context_.view.Services().PrintBook(context_.book.PageCount());
  });
}

void ServiceCommands::mnuSave_Click() {
  Trap("sub mnusave_click", kModule, [&] {
    if (!context_.book.loaded) return;
    const std::vector<std::string> kinds = {GetTranslation("UTF-8 text (*.txt)"),
                                            GetTranslation("Windows-1252 text (*.txt)")};
    const auto choice = context_.view.Services().Dialogs().AskSaveFile(
        GetTranslation("Export"), session_.path() + ".txt", kinds);
    if (!choice) return;
    const std::string problem =
        ExportTargetProblem(choice->path, context_.location.executable_path, session_.path());
    if (!problem.empty()) return context_.user.ShowMessage(problem, "Vireo");
    const ExportEncoding encoding =
        choice->filter_index == 1 ? ExportEncoding::kWindows1252 : ExportEncoding::kUtf8;
    try {
      WriteFileAtomically(choice->path,
                          EncodeExport(PlainBookText(context_.book.text, Italics()), encoding));
    } catch (const RuntimeError& error) {
      context_.user.ShowMessage(GetTranslation("The text could not be saved to") + " " +
                                    choice->path + ": " + error.description(),
                                "Vireo");
    }
  });
}

void ServiceCommands::mnuCopyPage_Click(CopiedPage which) {
  Trap("sub mnucopypage_click", kModule, [&] {
    if (!context_.book.loaded) return;
    int box = context_.reading.mode == PageMode::kSingle ? kLeftPageBox : kRightPageBox;
    if (which == CopiedPage::kUnderMenu && context_.menu_page_box >= 0) {
      box = context_.menu_page_box;
    }
    const int page = spread_.PageOnBox(box);
    const std::string text = page >= 1 && page <= context_.book.PageCount()
                                 ? PlainBookText(context_.book.Page(page).text, Italics())
                                 : std::string();
    context_.view.Services().CopyPage(box, Utf8FromWindows1252(text));
  });
}

void ServiceCommands::mnuPayAuthor_Click() {
  Trap("sub mnupayauthor_click", kModule,
       [&] { context_.view.Services().OpenWebPage(WebAddress("PayAuthorAddress")); });
}

void ServiceCommands::mnuCheckUpdate_Click() {
  Trap("sub mnucheckupdate_click", kModule,
       [&] { context_.view.Services().OpenWebPage(WebAddress("UpdateAddress")); });
}

}  // namespace vireo
