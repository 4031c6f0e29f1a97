// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/FrmPrint.h"

#include "app/window/PaperView.h"
#include "insert/FormParts.h"
#include "platform/Printers.h"
#include "platform/Words.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDate>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QPushButton>
#include <QSpinBox>

#include <array>
#include <chrono>

namespace velor {

using namespace FormParts;

namespace {

using namespace std::chrono_literals;

/// Typing in a box makes the pages when it has paused.
constexpr std::chrono::milliseconds RemakePause = 250ms;
/// Dots a point on paper: 300 an inch.
constexpr qreal PrintDensity = 300.0 / 72;
constexpr qreal Percent = 100;

QSpinBox *AddNumber(QFormLayout &form, const char *name, const QString &label, int most,
                    const QString &unit) {
  auto *box = new QSpinBox;
  box->setMaximum(most);
  box->setSuffix(unit);
  AddControl(&form, QString::fromLatin1(name), label, box);
  return box;
}

constexpr const char *Orientations[] = {Words::Mark("Upright"), Words::Mark("Across")};

}  // namespace

FrmPrint::FrmPrint(PagePrinting &printing, Printers *printers, const PrintedPage &page,
                   PrintChoices &choices, QWidget *parent)
    : QDialog(parent), printing_(printing), printers_(printers), page_(page), choices_(choices) {
  setObjectName(QStringLiteral("FrmPrint"));
  setWindowTitle(Words::tr("Print"));
  setModal(true);
  auto *halves = new QHBoxLayout(this);
  auto *side = new QWidget;
  QVBoxLayout *column = MakePage(side);
  BuildChoices(*AddForm(column));
  column->addStretch();
  state_ = new QLabel;
  state_->setObjectName(QStringLiteral("lblState"));
  state_->setWordWrap(true);
  column->addWidget(state_);
  print_ = MakeButton(QStringLiteral("cmdPrint"), Words::tr("Print..."));
  QPushButton *close = MakeButton(QStringLiteral("cmdClose"), Words::tr("Close"));
  connect(print_, &QPushButton::clicked, this, &FrmPrint::Print);
  connect(close, &QPushButton::clicked, this, &FrmPrint::reject);
  AddButtonRow(column, {print_, close});
  view_ = new PaperView(pages_, this);
  Name(*view_, QStringLiteral("PaperView"), Words::tr("Pages"));
  halves->addWidget(view_, 1);
  halves->addWidget(side);
  setTabOrder(close, view_);
  paper_->setFocus();

  remaking_.setSingleShot(true);
  connect(&remaking_, &QTimer::timeout, this, &FrmPrint::MakePages);
  MakePages();
}

FrmPrint::~FrmPrint() {
  printing_.StopPdf();
}

void FrmPrint::BuildChoices(QFormLayout &form) {
  std::array<const char *, Papers.size()> names{};
  for (std::size_t index = 0; index < Papers.size(); ++index) names[index] = Papers[index].name;
  paper_ = AddComboBox(&form, QStringLiteral("cobPaper"), Words::tr("&Paper:"), names);
  orientation_ =
      AddComboBox(&form, QStringLiteral("cobOrientation"), Words::tr("&Direction:"), Orientations);
  margins_ = AddNumber(form, "txtMargins", Words::tr("&Margins:"), WidestMargin, Words::tr(" mm"));
  scale_ = AddNumber(form, "txtScale", Words::tr("&Scale:"), MostScale, Words::tr(" %"));
  scale_->setMinimum(LeastScale);
  backgrounds_ = AddCheckBox(&form, QStringLiteral("chkBackgrounds"), Words::tr("&Backgrounds"));
  edgeLines_ = AddCheckBox(&form, QStringLiteral("chkEdgeLines"), Words::tr("&Header and footer"));

  const PaperForm &chosen = choices_.form;
  for (std::size_t index = 0; index < Papers.size(); ++index) {
    if (Papers[index].size == chosen.layout.pageSize().id())
      paper_->setCurrentIndex(static_cast<int>(index));
  }
  orientation_->setCurrentIndex(chosen.layout.orientation() == QPageLayout::Landscape ? 1 : 0);
  margins_->setValue(MarginOf(chosen));
  scale_->setValue(PercentOf(chosen));
  backgrounds_->setChecked(chosen.backgrounds == PaperForm::Backgrounds::Printed);
  edgeLines_->setChecked(choices_.hasEdgeLines);

  const auto remake = [this] { remaking_.start(RemakePause); };
  for (QComboBox *box : {paper_, orientation_})
    connect(box, &QComboBox::currentIndexChanged, this, remake);
  for (QSpinBox *box : {margins_, scale_}) connect(box, &QSpinBox::valueChanged, this, remake);
  for (QCheckBox *box : {backgrounds_, edgeLines_}) connect(box, &QCheckBox::toggled, this, remake);
}

void FrmPrint::MakePages() {
  PaperForm &form = choices_.form;
  form.layout =
      LayoutOf(Papers.at(static_cast<std::size_t>(paper_->currentIndex())).size,
               orientation_->currentIndex() == 1 ? QPageLayout::Landscape : QPageLayout::Portrait,
               margins_->value());
  form.scale = scale_->value() / Percent;
  form.backgrounds =
      backgrounds_->isChecked() ? PaperForm::Backgrounds::Printed : PaperForm::Backgrounds::LeftOut;
  choices_.hasEdgeLines = edgeLines_->isChecked();
  pages_.SetEdgeLines({.title = page_.name,
                       .date = QLocale().toString(QDate::currentDate(), QLocale::ShortFormat),
                       .place = page_.place,
                       .areShown = choices_.hasEdgeLines});
  print_->setEnabled(false);
  ShowState(Words::tr("The pages are being made"));
  printing_.MakePdf(form, [this](const QByteArray &pdf) { ShowPages(pdf); });
}

void FrmPrint::ShowPages(const QByteArray &pdf) {
  pages_.Load(pdf);
  view_->Renew();
  const int count = pages_.Count();
  print_->setEnabled(count > 0 && printers_ != nullptr);
  ShowState(count == 0   ? Words::tr("The page could not be printed.")
            : count == 1 ? Words::tr("One page")
                         : Words::tr("%n pages", nullptr, count));
}

void FrmPrint::Print() {
  const PrintTask task{page_.name, pages_.SizeOf(0), pages_.Count()};
  printer_ = printers_->Choose(task, *this);
  if (printer_ == nullptr) return;
  left_ = printer_->Pages();
  print_->setEnabled(false);
  PrintNext();
}

void FrmPrint::PrintNext() {
  if (printer_ == nullptr) return;
  if (left_.isEmpty()) {
    printer_.reset();
    return accept();
  }
  const int page = left_.takeFirst();
  ShowState(Words::tr("Printing page %1. Escape stops it").arg(page + 1));
  const bool isTaken =
      printer_->PrintPage(pages_.SizeOf(page), [&](QPainter &painter, const QRectF &place) {
        pages_.Paint(painter, place, page, PrintDensity);
      });
  // One page a turn of the event loop, so that Escape comes in between.
  if (isTaken) return QTimer::singleShot(0, this, &FrmPrint::PrintNext);
  printer_.reset();
  print_->setEnabled(true);
  ShowState(Words::tr("The printer did not take the page."));
}

void FrmPrint::reject() {
  if (printer_ != nullptr) printer_->Abort();
  printer_.reset();
  QDialog::reject();
}

void FrmPrint::ShowState(const QString &words) {
  state_->setText(words);
}

}  // namespace velor
