#include "app/about_dialog.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <QtGlobal>

#include "app/interaction_qt.h"
#include "support/translate_form_qt.h"
#include "support/translation.h"

namespace vireo {
namespace {

QLabel* AddLine(QVBoxLayout* layout, const char* name, const QString& text) {
  auto* label = new QLabel(text);
  label->setObjectName(name);
  label->setWordWrap(true);
  layout->addWidget(label);
  return label;
}

}  // namespace

frmAbout::frmAbout(const AboutBook& book, QWidget* parent) : QDialog(parent) {
  const AboutText text = MakeAboutText(book);
  setObjectName("frmAbout");
  setWindowTitle(Tr("About Vireo"));
  auto* layout = new QVBoxLayout(this);
  lblProgram = AddLine(layout, "lblProgram", FromWindows1252(text.program));
  QFont big = lblProgram->font();
  big.setPointSizeF(big.pointSizeF() * 1.6);
  big.setBold(true);
  lblProgram->setFont(big);
  lblMaker = AddLine(layout, "lblMaker", FromWindows1252(text.maker));
  const QString address = FromWindows1252(text.home_page);
  lblHomePage =
      AddLine(layout, "lblHomePage", QString("<a href=\"%1\">%1</a>").arg(address.toHtmlEscaped()));
  lblHomePage->setTextFormat(Qt::RichText);
  connect(lblHomePage, &QLabel::linkActivated, this,
          [](const QString& link) { OpenAddress(QUrl(link)); });
  layout->addSpacing(8);
  lblLicence = AddLine(layout, "lblLicence", FromWindows1252(text.licence));
  lblQt = AddLine(layout, "lblQt", QString("Qt %1").arg(qVersion()));
  layout->addSpacing(8);
  lblBook = AddLine(layout, "lblBook", FromWindows1252(text.book));
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  cmdOK = new QPushButton(Tr("OK"));
  cmdOK->setObjectName("cmdOK");
  cmdOK->setDefault(true);
  buttons->addWidget(cmdOK);
  layout->addLayout(buttons);
  connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
  setMinimumWidth(420);
}

}  // namespace vireo
