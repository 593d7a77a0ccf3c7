#include "app/options_menu_qt.h"

#include "support/translation.h"

namespace vireo {

OptionsMenu::OptionsMenu(QWidget* parent) : QMenu("Options", parent) {
  setObjectName("Options");
  Add(this, "mnuEraseBookmarks", "Erase All Bookmarks");
  QMenu* file = AddSubmenu("mnuFile", "File");
  Add(file, "mnuOpen", QString::fromStdString(GetTranslation("Open...")))
      ->setShortcut(QKeySequence::Open);
  Add(file, "mnuLoad", "Load");
  Add(file, "mnuPrint", "Print");
  Add(file, "mnuPrintSetup", "Print Setup");
  Add(file, "mnuSave", "Export");
  Add(file, "mnuEbook", "Create ebook");
  file->addSeparator();
  Add(file, "mnuErasefile", "Delete");
  Add(this, "mnuColours", "Page Setup");
  Add(this, "mnuSelectFont", "Change Font");
  addSeparator();
  QMenu* search = AddSubmenu("mnuSearch", "Search");
  Add(search, "mnuGetSearchTerm", "Enter search term");
  Add(search, "mnuFindNext", "Find Next Match (N)");
  Add(search, "mnuFindPrevious", "Find Previous Match (P)");
  Add(this, "mnuGoto", "Goto Page...");
  addSeparator();
  Add(this, "mnuCopyPage", "Copy selected page to clipboard");
  Add(this, "mnuReadAloud", "Read Aloud", true);
  Add(this, "mnuPauseReading", "Pause Reading", true);
  addSeparator();
  QMenu* format = AddSubmenu("mnuFormat", "Formatting");
  Add(format, "mnuFormatting", "Format Paragraphs (Reloads file)", true);
  Add(format, "mnuJustified", "Justify Text", true);
  Add(format, "mnuIndentParagraphs", "Indent Paragraphs", true);
  Add(format, "mnuUnderscores", "Change underscores to italics", true);
  Add(format, "mnuExtraLine", "Extra line between paragraphs", true);
  addSeparator();
  QMenu* language = AddSubmenu("mnuLanguage", "Language");
  Add(language, "mnuSetLang0", "English");
  Add(language, "mnuSetLang1", QString::fromUtf8("Espa\u00f1ol"));
  Add(this, "mnuPayAuthor", "Author Payment");
  addSeparator();
  Add(this, "mnuGutenberg", "Gutenberg Books");
  addSeparator();
  Add(this, "mnuHelp", "Help");
  Add(this, "mnuReportProblem", "Report a problem");
  addSeparator();
  Add(this, "mnuToggleBar", "Toggle menu bar");
  addSeparator();
  Add(this, "mnuCheckUpdate", "Check for update");
  Add(this, "mnuAbout", "About Marrowind Software");
  Add(this, "mnuExit", "Exit Vireo");
}

QAction* OptionsMenu::Add(QMenu* menu, const char* name, const QString& caption, bool checkable) {
  QAction* action = menu->addAction(caption);
  action->setObjectName(name);
  action->setCheckable(checkable);
  items_[name] = action;
  return action;
}

QMenu* OptionsMenu::AddSubmenu(const char* name, const QString& caption) {
  QMenu* submenu = addMenu(caption);
  submenu->setObjectName(name);
  submenu->menuAction()->setObjectName(name);
  items_[name] = submenu->menuAction();
  return submenu;
}

QAction* OptionsMenu::Item(const QString& name) const {
  const auto found = items_.find(name);
  return found == items_.end() ? nullptr : found->second;
}

}  // namespace vireo
