#include "app/options_menu_qt.h"

#include "support/translation.h"

namespace vireo {

OptionsMenu::OptionsMenu(QWidget* parent) : QMenu(Translatable("Options"), parent) {
  setObjectName("Options");
  Add(this, "mnuEraseBookmarks", Translatable("Erase All Bookmarks"));
  QMenu* file = AddSubmenu("mnuFile", Translatable("File"));
  Add(file, "mnuOpen", Translatable("Open..."))->setShortcut(QKeySequence::Open);
  Add(file, "mnuLoad", Translatable("Load"));
  Add(file, "mnuPrint", Translatable("Print"));
  Add(file, "mnuPrintSetup", Translatable("Print Setup"));
  Add(file, "mnuSave", Translatable("Export"));
  Add(file, "mnuEbook", Translatable("Create ebook"));
  file->addSeparator();
  Add(file, "mnuErasefile", Translatable("Delete"));
  Add(this, "mnuColours", Translatable("Page Setup"));
  Add(this, "mnuSelectFont", Translatable("Change Font"));
  addSeparator();
  QMenu* search = AddSubmenu("mnuSearch", Translatable("Search"));
  Add(search, "mnuGetSearchTerm", Translatable("Enter search term"));
  Add(search, "mnuFindNext", Translatable("Find Next Match (N)"));
  Add(search, "mnuFindPrevious", Translatable("Find Previous Match (P)"));
  Add(this, "mnuGoto", Translatable("Goto Page..."));
  addSeparator();
  Add(this, "mnuCopyPage", Translatable("Copy selected page to clipboard"));
  Add(this, "mnuReadAloud", Translatable("Read Aloud"), true);
  Add(this, "mnuPauseReading", Translatable("Pause Reading"), true);
  addSeparator();
  QMenu* format = AddSubmenu("mnuFormat", Translatable("Formatting"));
  Add(format, "mnuFormatting", Translatable("Format Paragraphs (Reloads file)"), true);
  Add(format, "mnuJustified", Translatable("Justify Text"), true);
  Add(format, "mnuIndentParagraphs", Translatable("Indent Paragraphs"), true);
  Add(format, "mnuUnderscores", Translatable("Change underscores to italics"), true);
  Add(format, "mnuExtraLine", Translatable("Extra line between paragraphs"), true);
  addSeparator();
  languages_ = AddSubmenu("mnuLanguage", Translatable("Language"));
  SetLanguages({"English"}, 0);
  Add(this, "mnuPayAuthor", Translatable("Author Payment"));
  addSeparator();
  Add(this, "mnuGutenberg", Translatable("Gutenberg Books"));
  addSeparator();
  Add(this, "mnuHelp", Translatable("Help"));
  Add(this, "mnuReportProblem", Translatable("Report a problem"));
  addSeparator();
  Add(this, "mnuToggleBar", Translatable("Toggle menu bar"));
  addSeparator();
  Add(this, "mnuCheckUpdate", Translatable("Check for update"));
  Add(this, "mnuAbout", Translatable("About Marrowind Software"));
  Add(this, "mnuExit", Translatable("Exit Vireo"));
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

void OptionsMenu::SetLanguages(const QStringList& names, int chosen) {
  for (QAction* old : languages_->actions()) {
    items_.erase(old->objectName());
    languages_->removeAction(old);
    old->deleteLater();
  }
  for (int index = 0; index < names.size(); ++index) {
    const QByteArray name = "mnuSetLang" + QByteArray::number(index);
    QAction* item = Add(languages_, name.constData(), names[index], true);
    item->setChecked(index == chosen);
    connect(item, &QAction::triggered, this, [this, index] { emit languageChosen(index); });
  }
}

QAction* OptionsMenu::Item(const QString& name) const {
  const auto found = items_.find(name);
  return found == items_.end() ? nullptr : found->second;
}

}  // namespace vireo
