#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include "app/about_text.h"

namespace vireo {

// The about window: the program and its version, the maker, the home page
// as a link, the licence, the Qt version and the book on show.
class frmAbout : public QDialog {
  Q_OBJECT

 public:
  explicit frmAbout(const AboutBook& book, QWidget* parent = nullptr);

  QLabel* lblProgram;
  QLabel* lblMaker;
  QLabel* lblHomePage;  // opens the page in the desktop's browser
  QLabel* lblLicence;
  QLabel* lblQt;
  QLabel* lblBook;
  QPushButton* cmdOK;
};

}  // namespace vireo
