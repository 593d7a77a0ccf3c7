#include "app/create_ebook_dialog.h"

#include <QApplication>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <cstdio>
#include <cstdlib>

#include "app/interaction_qt.h"
#include "support/translate_form_qt.h"
#include "support/translation.h"

namespace vireo {
namespace {

QString Local(const std::string& path) { return QString::fromLocal8Bit(path.c_str()); }
std::string Local(const QString& path) { return path.toLocal8Bit().toStdString(); }

template <typename Widget>
Widget* Named(Widget* widget, const char* name) {
  widget->setObjectName(name);
  return widget;
}

// A line edit with a "Choose..." button beside it, as one row.
QHBoxLayout* WithButton(QLineEdit* edit, QPushButton* button) {
  auto* row = new QHBoxLayout;
  row->addWidget(edit, 1);
  row->addWidget(button);
  return row;
}

const char* Environment(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr && *value != '\0' ? value : nullptr;
}

}  // namespace

frmMakeEbook::frmMakeEbook(std::unique_ptr<EbookMakerForm> form, CommonDialogs& dialogs,
                           QWidget* parent)
    : QDialog(parent), form_(std::move(form)), dialogs_(dialogs) {
  setObjectName("frmMakeEbook");
  setWindowTitle(Tr("Create ebook"));
  BuildFields();
  connect(cmdChooseText, &QPushButton::clicked, this, [this] { Pick(&EbookMakerForm::PickText); });
  connect(cmdChooseOut, &QPushButton::clicked, this,
          [this] { Pick(&EbookMakerForm::PickOutput); });
  connect(cmdChoosePictures, &QPushButton::clicked, this,
          [this] { Pick(&EbookMakerForm::PickPictures); });
  connect(cmdChooseCover, &QPushButton::clicked, this,
          [this] { Pick(&EbookMakerForm::PickCover); });
  connect(optBrn, &QRadioButton::toggled, this, [this](bool brn) {
    TakeFields();
    form_->SetForm(brn ? MakeForm::kBrn : MakeForm::kEbook);
    ShowForm();
  });
  connect(cmdMake, &QPushButton::clicked, this, &frmMakeEbook::MakeBook);
  connect(cmdClose, &QPushButton::clicked, this, &QDialog::reject);
  ShowForm();
  setMinimumWidth(520);
}

void frmMakeEbook::BuildFields() {
  txtText = Named(new QLineEdit, "txtText");
  cmdChooseText = Named(new QPushButton(Tr("Choose...")), "cmdChooseText");
  lblEncoding = Named(new QLabel, "lblEncoding");
  txtTitle = Named(new QLineEdit, "txtTitle");
  txtAuthor = Named(new QLineEdit, "txtAuthor");
  optEbook = Named(new QRadioButton(Tr("Self-contained ebook (a copy of the reader)")), "optEbook");
  optBrn = Named(new QRadioButton(Tr("Packed book alone (.brn), for a reader to open")), "optBrn");
  txtOut = Named(new QLineEdit, "txtOut");
  cmdChooseOut = Named(new QPushButton(Tr("Choose...")), "cmdChooseOut");
  txtPictures = Named(new QLineEdit, "txtPictures");
  cmdChoosePictures = Named(new QPushButton(Tr("Choose...")), "cmdChoosePictures");
  txtCover = Named(new QLineEdit, "txtCover");
  cmdChooseCover = Named(new QPushButton(Tr("Choose...")), "cmdChooseCover");
  prgMake = Named(new QProgressBar, "prgMake");
  txtReport = Named(new QPlainTextEdit, "txtReport");
  cmdMake = Named(new QPushButton(Tr("Make")), "cmdMake");
  cmdClose = Named(new QPushButton(Tr("Close")), "cmdClose");
  txtReport->setReadOnly(true);
  txtReport->setMaximumHeight(90);
  cmdMake->setDefault(true);
  optEbook->setChecked(true);

  auto* fields = new QFormLayout;
  fields->addRow(Tr("Text file:"), WithButton(txtText, cmdChooseText));
  fields->addRow(Tr("Encoding:"), lblEncoding);
  fields->addRow(Tr("Title:"), txtTitle);
  fields->addRow(Tr("Author:"), txtAuthor);
  fields->addRow(Tr("Make:"), optEbook);
  fields->addRow("", optBrn);
  fields->addRow(Tr("Write to:"), WithButton(txtOut, cmdChooseOut));
  fields->addRow(Tr("Pictures folder:"), WithButton(txtPictures, cmdChoosePictures));
  fields->addRow(Tr("Cover picture:"), WithButton(txtCover, cmdChooseCover));
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(prgMake, 1);
  buttons->addWidget(cmdMake);
  buttons->addWidget(cmdClose);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(fields);
  layout->addWidget(txtReport);
  layout->addLayout(buttons);
}

void frmMakeEbook::ShowForm() {
  txtText->setText(Local(form_->text_path));
  lblEncoding->setText(QString::fromStdString(form_->encoding_name()));
  txtTitle->setText(QString::fromUtf8(form_->title.c_str()));
  txtAuthor->setText(QString::fromUtf8(form_->author.c_str()));
  txtOut->setText(Local(form_->out_path));
  txtPictures->setText(Local(form_->pictures_folder));
  txtCover->setText(Local(form_->cover_path));
  for (QWidget* field : {static_cast<QWidget*>(txtPictures), static_cast<QWidget*>(txtCover),
                         static_cast<QWidget*>(cmdChoosePictures),
                         static_cast<QWidget*>(cmdChooseCover)}) {
    field->setEnabled(form_->packs_pictures());
  }
}

void frmMakeEbook::TakeFields() {
  form_->text_path = Local(txtText->text());
  form_->title = txtTitle->text().toStdString();
  form_->author = txtAuthor->text().toStdString();
  form_->out_path = Local(txtOut->text());
  form_->pictures_folder = Local(txtPictures->text());
  form_->cover_path = Local(txtCover->text());
}

void frmMakeEbook::ChooseText(const std::string& path) {
  TakeFields();
  form_->ChooseText(path);
  ShowForm();
}

void frmMakeEbook::Pick(void (EbookMakerForm::*pick)(CommonDialogs&)) {
  TakeFields();
  (form_.get()->*pick)(dialogs_);
  ShowForm();
}

void frmMakeEbook::MakeBook() {
  TakeFields();
  txtReport->clear();
  prgMake->setValue(0);
  cmdMake->setEnabled(false);
  const bool made = form_->Make([this](std::string_view, int value, int maximum) {
    prgMake->setValue(maximum > 0 ? value * 100 / maximum : 0);
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  });
  cmdMake->setEnabled(true);
  for (const std::string& line : form_->report()) {
    txtReport->appendPlainText(QString::fromUtf8(line.c_str()));
  }
  if (made) form_->OfferToOpen();
}

std::unique_ptr<frmMakeEbook> MakeCreateEbookDialog(frmMain& logic, UserInteraction& user,
                                                    QWidget* parent) {
  auto form = std::make_unique<EbookMakerForm>(
      user, [&logic](const std::string& path) { logic.commands().OpenNamedFile(path); },
      logic.context().location.executable_path, logic.book().path());
  auto dialog = std::make_unique<frmMakeEbook>(
      std::move(form), logic.context().view.Services().Dialogs(), parent);
  if (const char* text = Environment("VIREO_EBOOK_TEXT")) dialog->ChooseText(text);
  if (const char* folder = Environment("VIREO_EBOOK_IMAGES")) dialog->txtPictures->setText(folder);
  if (const char* cover = Environment("VIREO_EBOOK_COVER")) dialog->txtCover->setText(cover);
  return dialog;
}

void ShowCreateEbook(frmMain& logic, UserInteraction& user, QWidget* parent) {
  const std::unique_ptr<frmMakeEbook> dialog = MakeCreateEbookDialog(logic, user, parent);
  if (!NonInteractiveMode()) {
    dialog->exec();
    return;
  }
  if (Environment("VIREO_EBOOK_TEXT") == nullptr) {
    std::fprintf(stderr, "[input] Create ebook: cancelled\n");
    return;
  }
  if (const char* form = Environment("VIREO_EBOOK_FORM"); form && std::string(form) == "brn") {
    dialog->optBrn->setChecked(true);
  }
  if (const char* out = Environment("VIREO_EBOOK_OUT")) dialog->txtOut->setText(out);
  dialog->MakeBook();
  for (const std::string& line : dialog->form().report()) {
    std::fprintf(stderr, "[report] %s\n", line.c_str());
  }
}

}  // namespace vireo
