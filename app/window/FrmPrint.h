// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/PaperPages.h"
#include "app/window/PrintChoices.h"

#include <QDialog>
#include <QTimer>

#include <memory>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QPushButton;
class QSpinBox;

namespace velor {

class PaperPrinter;
class PaperView;
class Printers;

/// What is printed, for the header and the footer.
struct PrintedPage {
  QString name;
  QString place;  ///< the file, in the form for people
};

/// The window that shows a page as it goes on paper, and prints it on one of the desktop's
/// printers. The pages are made anew when a choice changes; Escape closes the window, and stops
/// what is being printed.
class FrmPrint final : public QDialog {
  Q_OBJECT

 public:
  /// All outlive the window; `choices` are those that it begins with, and takes the new ones.
  /// `printers` may be null: then it prints nothing.
  FrmPrint(PagePrinting &printing, Printers *printers, const PrintedPage &page,
           PrintChoices &choices, QWidget *parent);
  ~FrmPrint() override;

  void reject() override;

 private:
  void BuildChoices(QFormLayout &form);
  /// Makes the pages for the choices.
  void MakePages();
  void ShowPages(const QByteArray &pdf);
  void Print();
  void PrintNext();
  void ShowState(const QString &words);

  PagePrinting &printing_;
  Printers *printers_;
  const PrintedPage page_;
  PrintChoices &choices_;
  PaperPages pages_;
  PaperView *view_ = nullptr;
  QComboBox *paper_ = nullptr;
  QComboBox *orientation_ = nullptr;
  QSpinBox *margins_ = nullptr;
  QSpinBox *scale_ = nullptr;
  QCheckBox *backgrounds_ = nullptr;
  QCheckBox *edgeLines_ = nullptr;
  QLabel *state_ = nullptr;
  QPushButton *print_ = nullptr;
  QTimer remaking_;
  std::unique_ptr<PaperPrinter> printer_;  ///< while it prints
  QList<int> left_;                        ///< the pages that it has not got
};

}  // namespace velor
