#include "app/help_window.h"

#include <QHBoxLayout>
#include <QShortcut>
#include <QSplitter>
#include <QUrl>
#include <QVBoxLayout>

#include "app/help_manual.h"
#include "app/interaction_qt.h"
#include "support/file_io.h"
#include "support/platform.h"
#include "support/translate_form_qt.h"
#include "support/translation.h"

namespace vireo {
namespace {

QToolButton* Button(QWidget* parent, const char* name, const std::string& text) {
  auto* button = new QToolButton(parent);
  button->setObjectName(name);
  button->setText(FromWindows1252(text));
  return button;
}

}  // namespace

HelpWindow::HelpWindow(QWidget* parent)
    : QWidget(parent, Qt::Window),
      back_(Button(this, "cmdBack", GetTranslation("Back"))),
      forward_(Button(this, "cmdForward", GetTranslation("Forward"))),
      home_(Button(this, "cmdContents", GetTranslation("Contents"))),
      contents_(new QListWidget(this)),
      browser_(new QTextBrowser(this)) {
  setObjectName("frmHelp");
  setWindowTitle(Tr("The Vireo manual"));
  resize(900, 640);
  browser_->setOpenExternalLinks(false);
  browser_->setOpenLinks(false);
  back_->setEnabled(false);
  forward_->setEnabled(false);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(back_);
  buttons->addWidget(forward_);
  buttons->addWidget(home_);
  buttons->addStretch();
  auto* split = new QSplitter(this);
  split->addWidget(contents_);
  split->addWidget(browser_);
  split->setSizes({250, 650});
  contents_->setWordWrap(true);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(buttons);
  layout->addWidget(split);
  connect(back_, &QToolButton::clicked, browser_, &QTextBrowser::backward);
  connect(forward_, &QToolButton::clicked, browser_, &QTextBrowser::forward);
  connect(home_, &QToolButton::clicked, browser_, &QTextBrowser::home);
  connect(browser_, &QTextBrowser::backwardAvailable, back_, &QToolButton::setEnabled);
  connect(browser_, &QTextBrowser::forwardAvailable, forward_, &QToolButton::setEnabled);
  connect(browser_, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
    if (link.isRelative() || link.isLocalFile()) {
      browser_->setSource(browser_->source().resolved(link));
    } else {
      OpenAddress(link);
    }
  });
  connect(contents_, &QListWidget::itemActivated, this, &HelpWindow::ShowEntry);
  connect(contents_, &QListWidget::itemClicked, this, &HelpWindow::ShowEntry);
  new QShortcut(QKeySequence::Back, this, browser_, &QTextBrowser::backward);
  new QShortcut(QKeySequence::Forward, this, browser_, &QTextBrowser::forward);
  new QShortcut(Qt::Key_Escape, this, this, &QWidget::close);
}

bool HelpWindow::Open(const std::string& folder) {
  const std::string index = JoinPath(folder, kManualContentsPage);
  if (!FileExists(index)) return false;
  contents_->clear();
  for (const ManualEntry& entry : ManualContents(ReadWholeFile(index))) {
    auto* item = new QListWidgetItem(QString::fromStdString(entry.title), contents_);
    item->setData(Qt::UserRole, QString::fromStdString(entry.target));
  }
  browser_->setSource(QUrl::fromLocalFile(QString::fromLocal8Bit(index.c_str())));
  browser_->clearHistory();
  return true;
}

void HelpWindow::ShowEntry(QListWidgetItem* item) {
  const QUrl target(item->data(Qt::UserRole).toString());
  browser_->setSource(browser_->source().resolved(target));
}

}  // namespace vireo
