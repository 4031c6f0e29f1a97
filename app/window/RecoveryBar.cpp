// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/RecoveryBar.h"

#include "chrome/Icons.h"
#include "chrome/Palette.h"
#include "editor/MainWindow.h"
#include "editor/frmBrowser.h"
#include "editor/modGeneral.h"
#include "editor/modWorkFlow.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/Platform.h"
#include "platform/html/FaithfulPage.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

namespace velor {

namespace {

constexpr int MostRowsInSight = 4;
constexpr auto NoteName = u"lblRecoveryNote";

QString NameOf(const JournalledPage &page) {
  return page.path.isEmpty() ? page.caption : modGeneral::FileNameOfPath(page.path);
}

QString NoteOn(const JournalledPage &page, const Files &files) {
  QStringList parts;
  parts << QStringLiteral("changed %1")
               .arg(page.time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
  if (page.path.isEmpty()) {
    parts << QStringLiteral("never saved");
  } else if (!files.FileExists(page.path)) {
    parts << QStringLiteral("the file is gone");
  } else if (files.ChangeTime(page.path) > page.time) {
    parts << QStringLiteral("the file on disk is newer");
  }
  if (!page.path.isEmpty()) parts << ForPeople(page.path);
  return parts.join(QStringLiteral("  ·  "));
}

QPushButton *AddButton(QHBoxLayout &row, const char *objectName, const QString &caption,
                       const QString &page, const QString &tooltip) {
  auto *button = new QPushButton(caption);
  button->setObjectName(QString::fromLatin1(objectName));
  button->setAccessibleName(caption + u' ' + page);
  button->setToolTip(tooltip);
  button->setAutoDefault(false);
  row.addWidget(button);
  return button;
}

}  // namespace

RecoveryBar::RecoveryBar(EditorContext &context, QWidget *parent)
    : QFrame(parent), context_(context) {
  setObjectName(QStringLiteral("picRecovery"));
  setAccessibleName(QStringLiteral("Recovered pages"));

  // The letter leads from anywhere in the window to the first page's buttons.
  caption_ = new QLabel(QStringLiteral("These pa&ges were not saved when the program ended:"));
  caption_->setObjectName(QStringLiteral("lblRecovery"));
  auto *content = new QWidget;
  content->setObjectName(QStringLiteral("picRecoveryRows"));
  rows_ = new QVBoxLayout(content);
  rows_->setContentsMargins(0, 0, 0, 0);
  rows_->setSpacing(BarMargin);
  scroller_ = new QScrollArea;
  scroller_->setFrameShape(QFrame::NoFrame);
  scroller_->setWidgetResizable(true);
  scroller_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroller_->setFocusPolicy(Qt::NoFocus);
  scroller_->setWidget(content);
  // The bar's own field shows through.
  scroller_->viewport()->setAutoFillBackground(false);
  content->setAutoFillBackground(false);

  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(2 * BarMargin, BarMargin, 2 * BarMargin, BarMargin);
  column->setSpacing(BarMargin);
  column->addWidget(caption_);
  column->addWidget(scroller_);
  hide();
}

void RecoveryBar::Offer() {
  if (context_.platform.journals == nullptr) return;
  const std::vector<AbandonedPage> pages = context_.platform.journals->Abandoned();
  for (const AbandonedPage &page : pages) AddRow(page);
  QuietenNotes();
  FitRows();
}

void RecoveryBar::AddRow(const AbandonedPage &abandoned) {
  const QString name = NameOf(abandoned.page);
  const QString note = NoteOn(abandoned.page, context_.platform.files);
  auto *row = new QWidget;
  row->setObjectName(QStringLiteral("picRecoveredPage"));
  row->setAccessibleName(name);
  row->setAccessibleDescription(note);
  auto *line = new QHBoxLayout(row);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(BarMargin);

  auto *picture = new QLabel;
  picture->setPixmap(IconFor(QStringLiteral("page")).pixmap(MenuIconSize, MenuIconSize));
  line->addWidget(picture);
  auto *title = new QLabel(name);
  title->setObjectName(QStringLiteral("lblRecoveredPage"));
  title->setTextFormat(Qt::PlainText);
  QFont strong = title->font();
  strong.setBold(true);
  title->setFont(strong);
  line->addWidget(title);
  auto *details = new QLabel(note);
  details->setObjectName(QString::fromUtf16(NoteName));
  details->setTextFormat(Qt::PlainText);
  details->setToolTip(note);
  // A long path is cut off rather than pushing the buttons out of sight.
  details->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  line->addWidget(details, 1);

  QPushButton *restore = AddButton(*line, "cmdRestore", QStringLiteral("Restore"), name,
                                   QStringLiteral("Open the page with its unsaved changes"));
  connect(restore, &QPushButton::clicked, this, [=, this] { Restore(row, abandoned); });
  connect(AddButton(*line, "cmdShow", QStringLiteral("Show"), name,
                    QStringLiteral("Look at the page in the preview")),
          &QPushButton::clicked, this, [=, this] { Show(abandoned.page); });
  connect(AddButton(*line, "cmdDiscard", QStringLiteral("Discard"), name,
                    QStringLiteral("Give the unsaved changes up")),
          &QPushButton::clicked, this, [=, this] { Discard(row, abandoned.id); });
  if (rows_->isEmpty()) caption_->setBuddy(restore);
  rows_->addWidget(row);
}

void RecoveryBar::Restore(QWidget *row, const AbandonedPage &abandoned) {
  // Only what another journal holds may go.
  if (!modWorkFlow::RestorePage(context_, abandoned.page)) return;
  Discard(row, abandoned.id);
}

void RecoveryBar::Show(const JournalledPage &page) {
  const PageMemory &memory = page.page;
  const FaithfulPage original({memory.original, DecodePage(memory.original), {}});
  frmBrowser &preview = PreviewWindow(context_);
  context_.mainWindow.ShowWindow(&preview);
  preview.brwWebBrowser().NavigateToText(original.Unmasked(memory.document),
                                         QUrl::fromLocalFile(memory.base));
}

void RecoveryBar::Discard(QWidget *row, const QString &id) {
  context_.platform.journals->Discard(id);
  RemoveRow(row);
}

void RecoveryBar::RemoveRow(QWidget *row) {
  const bool hadFocus = row->isAncestorOf(QApplication::focusWidget());
  rows_->removeWidget(row);
  row->hide();
  row->deleteLater();
  FitRows();
  if (rows_->isEmpty()) return;
  auto *next = rows_->itemAt(0)->widget()->findChild<QPushButton *>(QStringLiteral("cmdRestore"));
  caption_->setBuddy(next);
  if (hadFocus) next->setFocus();
}

void RecoveryBar::FitRows() {
  setVisible(!rows_->isEmpty());
  if (rows_->isEmpty()) return;
  const int row = rows_->itemAt(0)->sizeHint().height();
  const int inSight = std::min(rows_->count(), MostRowsInSight);
  scroller_->setFixedHeight(inSight * row + (inSight - 1) * rows_->spacing());
}

void RecoveryBar::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  painter.fillRect(rect(), HoverField(palette()));
  painter.setPen(Hairline(palette()));
  painter.drawLine(rect().bottomLeft(), rect().bottomRight());
}

void RecoveryBar::changeEvent(QEvent *event) {
  QFrame::changeEvent(event);
  if (event->type() == QEvent::FontChange) FitRows();
  if (event->type() == QEvent::PaletteChange) QuietenNotes();
}

void RecoveryBar::QuietenNotes() {
  for (QLabel *note : findChildren<QLabel *>(QString::fromUtf16(NoteName))) {
    QPalette quiet = palette();
    quiet.setColor(QPalette::WindowText, QuietText(palette()));
    note->setPalette(quiet);
  }
}

}  // namespace velor
