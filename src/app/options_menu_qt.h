#pragma once

#include <QAction>
#include <QMenu>
#include <QString>
#include <map>

namespace vireo {

// The right-click menu "Options" with its items, submenus and separators.
// Every item's QAction carries the item's name as its objectName
// ("mnuFormatting", "mnuSetLang0" ...), and Item(name) finds it.
class OptionsMenu : public QMenu {
  Q_OBJECT

 public:
  explicit OptionsMenu(QWidget* parent = nullptr);

  // The item of that name; nullptr when there is none.
  QAction* Item(const QString& name) const;

  // The Language submenu: one item mnuSetLang0, mnuSetLang1 ... per name,
  // the chosen one ticked. Triggering item i emits languageChosen(i).
  void SetLanguages(const QStringList& names, int chosen);

 signals:
  void languageChosen(int index);

 private:
  QAction* Add(QMenu* menu, const char* name, const QString& caption, bool checkable = false);
  QMenu* AddSubmenu(const char* name, const QString& caption);

  std::map<QString, QAction*> items_;
  QMenu* languages_ = nullptr;
};

}  // namespace vireo
