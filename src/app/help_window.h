#pragma once

#include <QListWidget>
#include <QTextBrowser>
#include <QToolButton>
#include <QWidget>
#include <string>

namespace vireo {

// The manual in a window of its own: Back, Forward and Contents above the
// page, the contents list beside it. Links within the manual open in the
// window; links out of it go to the desktop's browser. Alt+Left and
// Alt+Right go back and forward, Escape closes it.
class HelpWindow : public QWidget {
  Q_OBJECT

 public:
  explicit HelpWindow(QWidget* parent = nullptr);

  // Shows the contents page of the manual in `folder`; false (and nothing
  // shown) when the folder holds no manual.
  bool Open(const std::string& folder);
  QTextBrowser* browser() const { return browser_; }
  QListWidget* contents() const { return contents_; }

 private:
  void ShowEntry(QListWidgetItem* item);

  QToolButton* back_;
  QToolButton* forward_;
  QToolButton* home_;
  QListWidget* contents_;
  QTextBrowser* browser_;
};

}  // namespace vireo
