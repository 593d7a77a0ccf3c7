#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <memory>

#include "app/ebook_maker_form.h"
#include "app/frm_main.h"

namespace vireo {

// The Create ebook dialog: the fields of an EbookMakerForm, which makes all
// the decisions. The Choose... buttons ask the common dialogs through the
// form; the form's ChooseText and the fields can also be set directly
// (tests, the non-interactive mode). The pictures fields are disabled for a
// packed book alone, which carries no pictures.
class frmMakeEbook : public QDialog {
  Q_OBJECT

 public:
  // dialogs answers the Choose... buttons and must outlive the dialog.
  frmMakeEbook(std::unique_ptr<EbookMakerForm> form, CommonDialogs& dialogs, QWidget* parent);

  // The text file chosen: the form fills in the rest, shown at once.
  void ChooseText(const std::string& path);
  // Make: the fields go to the form, which makes the book with the progress
  // bar moving, lists what it replaced and offers to open the book.
  void MakeBook();

  EbookMakerForm& form() { return *form_; }

  QLineEdit* txtText;
  QPushButton* cmdChooseText;
  QLabel* lblEncoding;
  QLineEdit* txtTitle;
  QLineEdit* txtAuthor;
  QRadioButton* optEbook;
  QRadioButton* optBrn;
  QLineEdit* txtOut;
  QPushButton* cmdChooseOut;
  QLineEdit* txtPictures;
  QPushButton* cmdChoosePictures;
  QLineEdit* txtCover;
  QPushButton* cmdChooseCover;
  QProgressBar* prgMake;
  QPlainTextEdit* txtReport;
  QPushButton* cmdMake;
  QPushButton* cmdClose;

 private:
  void BuildFields();
  void ShowForm();
  void TakeFields();
  // The form asks dialogs_ for one field; the fields show its answer.
  void Pick(void (EbookMakerForm::*pick)(CommonDialogs&));

  std::unique_ptr<EbookMakerForm> form_;
  CommonDialogs& dialogs_;
};

// The dialog for the reader: it never writes over the running program or the
// open book, and a made book is offered to the reader as a named file is.
// The text of VIREO_EBOOK_TEXT, when set, is chosen already, and the pictures
// folder and cover of VIREO_EBOOK_IMAGES and VIREO_EBOOK_COVER filled in.
std::unique_ptr<frmMakeEbook> MakeCreateEbookDialog(frmMain& logic, UserInteraction& user,
                                                    QWidget* parent);

// Create ebook: shows the dialog modally. In the non-interactive mode the
// dialog is filled from those, VIREO_EBOOK_OUT and VIREO_EBOOK_FORM=brn and
// made at once ("[input] Create ebook: cancelled"
// without VIREO_EBOOK_TEXT).
void ShowCreateEbook(frmMain& logic, UserInteraction& user, QWidget* parent);

}  // namespace vireo
