// SPDX-License-Identifier: GPL-3.0-or-later
#include "recovery/offers/RecoveryBar.h"

#include "chrome/Icons.h"
#include "chrome/Palette.h"
#include "editor/MainWindow.h"
#include "editor/OpenPages.h"
#include "editor/PagePictures.h"
#include "editor/PageSlots.h"
#include "editor/frmBrowser.h"
#include "editor/frmMain.h"
#include "editor/modGeneral.h"
#include "editor/modWorkFlow.h"
#include "page/saving/FaithfulPage.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/PlainTip.h"
#include "platform/Platform.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>
#include <utility>

namespace velor {

namespace {

constexpr int MostRowsInSight = 4;
constexpr auto NoteName = u"lblRecoveryNote";

QString NameOf(const AbandonedPage &page) {
  if (!page.defect.isEmpty()) return Words::tr("A page that cannot be read");
  return page.path.isEmpty() ? page.caption : modGeneral::FileNameOfPath(page.path);
}

QString NoteOn(const AbandonedPage &page, const Files &files) {
  QStringList parts;
  parts << Words::tr("changed %1").arg(page.time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
  if (page.end == RunEnd::Exit) parts << Words::tr("kept at exit");
  if (!page.defect.isEmpty()) {
    parts << page.defect;
  } else if (page.path.isEmpty()) {
    parts << Words::tr("never saved");
  } else if (!files.FileExists(page.path)) {
    parts << Words::tr("the file is gone");
  } else if (files.ChangeTime(page.path) > page.time) {
    parts << Words::tr("the file on disk is newer");
  }
  if (page.hasSource) parts << Words::tr("HTML source not applied");
  if (!page.path.isEmpty()) parts << ForPeople(page.path);
  return parts.join(QStringLiteral("  ·  "));
}

QString CaptionOf(const std::vector<AbandonedPage> &pages) {
  const bool isExit = std::all_of(pages.begin(), pages.end(), [](const AbandonedPage &page) {
    return page.end == RunEnd::Exit;
  });
  return isExit ? Words::tr(
                      "These pages were kept at exit with their unsaved changes (Alt+G leads to "
                      "them):")
                : Words::tr(
                      "These pages were not saved when the program ended (Alt+G leads to them):");
}

QPushButton *AddButton(QHBoxLayout &row, const char *objectName, const QString &caption,
                       const QString &accessibleName, const QString &tooltip) {
  auto *button = new QPushButton(caption);
  button->setObjectName(QString::fromLatin1(objectName));
  button->setAccessibleName(accessibleName);
  button->setToolTip(tooltip);
  button->setAutoDefault(false);
  row.addWidget(button);
  return button;
}

QList<QPushButton *> ButtonsOf(const QVBoxLayout &rows, int place) {
  QList<QPushButton *> usable;
  for (auto *button : rows.itemAt(place)->widget()->findChildren<QPushButton *>()) {
    if (button->isEnabled()) usable << button;
  }
  return usable;
}

QPushButton *FirstButtonOf(const QVBoxLayout &rows, int place) {
  return ButtonsOf(rows, place).constFirst();
}

}  // namespace

RecoveryBar::RecoveryBar(EditorContext &context, QWidget *parent)
    : QFrame(parent), context_(context) {
  setObjectName(QStringLiteral("picRecovery"));
  setAccessibleName(Words::tr("Recovered pages"));

  // A shortcut of the bar, not a label's letter: that would press the button at once.
  connect(new QShortcut(Qt::ALT | Qt::Key_G, this), &QShortcut::activated, this,
          [this] { FirstButtonOf(*rows_, 0)->setFocus(Qt::ShortcutFocusReason); });
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
  BuildCaption(*column);
  column->addWidget(scroller_);
  hide();
}

void RecoveryBar::BuildCaption(QVBoxLayout &column) {
  auto *line = new QHBoxLayout;
  line->setSpacing(BarMargin);
  caption_ = new QLabel;
  caption_->setObjectName(QStringLiteral("lblRecovery"));
  caption_->setTextFormat(Qt::PlainText);
  line->addWidget(caption_, 1);
  QPushButton *restore =
      AddButton(*line, "cmdRestoreAll", Words::tr("Restore All"), Words::tr("Restore all pages"),
                Words::tr("Open all pages with their unsaved changes"));
  connect(restore, &QPushButton::clicked, this, &RecoveryBar::RestoreAll);
  QPushButton *discard =
      AddButton(*line, "cmdDiscardAll", Words::tr("Discard All"), Words::tr("Discard all pages"),
                Words::tr("Give the unsaved changes of all pages up, after a question"));
  connect(discard, &QPushButton::clicked, this, &RecoveryBar::DiscardAll);
  column.addLayout(line);
}

void RecoveryBar::Offer() {
  if (context_.platform.journals == nullptr) return;
  const QString reason = context_.platform.journals->ReasonUnavailable();
  if (!reason.isEmpty()) {
    context_.mainWindow.status.Report(
        Words::tr("Recovery is off, unsaved changes cannot be kept: %1").arg(reason));
  }
  Fill();
}

void RecoveryBar::Fill() {
  std::vector<AbandonedPage> pages = context_.platform.journals->Abandoned();
  // Unreadable journals come last: the first button, which Alt+G leads to, has to be a Restore.
  std::stable_partition(pages.begin(), pages.end(),
                        [](const AbandonedPage &page) { return page.defect.isEmpty(); });
  caption_->setText(CaptionOf(pages));
  for (const AbandonedPage &page : pages) AddRow(page);
  DimNotes();
  FitRows();
}

void RecoveryBar::AddRow(const AbandonedPage &abandoned) {
  const QString name = NameOf(abandoned);
  const QString note = NoteOn(abandoned, context_.platform.files);
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
  // A long name may not push the buttons out of sight.
  title->setMinimumWidth(BarMargin);
  title->setToolTip(PlainTip(name));
  line->addWidget(title);
  auto *details = new QLabel(note);
  details->setObjectName(QString::fromUtf16(NoteName));
  details->setTextFormat(Qt::PlainText);
  details->setToolTip(PlainTip(note));
  // A long path is cut off rather than pushing the buttons out of sight.
  details->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  line->addWidget(details, 1);

  const Offered offered{row, abandoned};
  const auto add = [&](const char *objectName, const QString &verb, const QString &tooltip) {
    return AddButton(*line, objectName, verb, verb + u' ' + name, tooltip);
  };
  QPushButton *restore =
      add("cmdRestore", Words::tr("Restore"), Words::tr("Open the page with its unsaved changes"));
  connect(restore, &QPushButton::clicked, this, [=, this] { RestoreOne(offered); });
  QPushButton *show =
      add("cmdShow", Words::tr("Show"), Words::tr("Look at the page in the preview"));
  connect(show, &QPushButton::clicked, this, [=, this] { Show(abandoned); });
  QPushButton *discard =
      add("cmdDiscard", Words::tr("Discard"), Words::tr("Give the unsaved changes up"));
  connect(discard, &QPushButton::clicked, this, [=, this] { GiveUp(offered); });
  for (QPushButton *button : {restore, show, discard}) {
    button->setEnabled(abandoned.defect.isEmpty() || button == discard);
    button->installEventFilter(this);
  }
  rows_->addWidget(row);
  offered_.push_back(offered);
  // In a bar that is visible already the layout would show a new row later, and sizeHint() would
  // leave it out until then.
  row->show();
}

JournalledPage RecoveryBar::Read(const AbandonedPage &abandoned) {
  JournalReading reading = context_.platform.journals->Read(abandoned.id);
  if (reading.endIsMissing) {
    context_.mainWindow.status.Report(
        Words::tr("The journal of %1 is damaged: its last changes are missing")
            .arg(NameOf(abandoned)));
  }
  return std::move(reading.page);
}

int RecoveryBar::Room() const {
  // Pages that stayed open without a tab count too.
  const int open = std::max(context_.mainWindow.tabs.Count(), OpenPageCount(context_));
  return std::max(0, MostPages - open);
}

frmMain *RecoveryBar::OpenPageOf(const Offered &offered) const {
  const auto restored = unkept_.find(offered.page.id);
  if (restored != unkept_.end() && restored->second != nullptr) return restored->second;
  return offered.page.path.isEmpty() ? nullptr : PageOfFile(context_, offered.page.path);
}

void RecoveryBar::ShowOpenPage(const Offered &offered, frmMain &page) {
  context_.mainWindow.windows.Activate(&page);
  const auto restored = unkept_.find(offered.page.id);
  const bool isRestored = restored != unkept_.end() && restored->second == &page;
  if (isRestored && page.Journal().Flush()) return Discard(offered);
  context_.mainWindow.status.Report(
      (isRestored ? Words::tr("%1 is restored already, and stays here until its changes can "
                              "be kept for a recovery")
                  : Words::tr("%1 is open already. Close it, then restore what was kept"))
          .arg(NameOf(offered.page)));
}

void RecoveryBar::RestoreOne(const Offered &offered) {
  if (frmMain *page = OpenPageOf(offered)) return ShowOpenPage(offered, *page);
  if (Room() > 0) return Restore(offered);
  context_.mainWindow.status.Report(
      Words::tr("%1 stays here: %2 pages are open, which is the most. Close one, then restore "
                "it")
          .arg(NameOf(offered.page))
          .arg(MostPages));
}

void RecoveryBar::RestoreAll() {
  std::vector<Offered> readable;
  std::copy_if(offered_.begin(), offered_.end(), std::back_inserter(readable),
               [this](const Offered &offered) {
                 return offered.page.defect.isEmpty() && OpenPageOf(offered) == nullptr;
               });
  const auto room = static_cast<std::size_t>(Room());
  const std::size_t count = std::min(room, readable.size());
  // The newest find room; their tabs come in the order in which they were changed.
  for (std::size_t next = count; next-- > 0;) Restore(readable[next]);
  if (count == readable.size()) return;
  context_.mainWindow.status.Report(
      Words::tr("%1 more stay here: %2 pages are open, which is the most")
          .arg(readable.size() - count)
          .arg(MostPages));
}

void RecoveryBar::Restore(const Offered &offered) {
  try {
    // Only what another journal holds may go.
    if (modWorkFlow::RestorePage(context_, Read(offered.page))) return Discard(offered);
    unkept_[offered.page.id] = context_.pages.Page(context_.pages.PageCount());
  } catch (const RuntimeError &error) {
    context_.mainWindow.status.Report(
        Words::tr("%1 could not be restored: %2").arg(NameOf(offered.page), error.Description()));
  }
}

void RecoveryBar::Show(const AbandonedPage &abandoned) {
  const JournalledPage page = Read(abandoned);
  const PageMemory &memory = page.page;
  const FaithfulPage original({memory.original, DecodePage(memory.original), {}});
  frmBrowser &preview = PreviewWindow(context_);
  preview.SetPage(0);
  context_.mainWindow.windows.Show(&preview);
  preview.WebBrowser().NavigateToText(
      page.source ? *page.source : original.Unmasked(memory.document),
      QUrl::fromLocalFile(memory.base));
}

void RecoveryBar::GiveUp(const Offered &offered) {
  JournalledPage kept;
  try {
    kept = context_.platform.journals->Read(offered.page.id).page;
  } catch (const RuntimeError &) {
    // Of what cannot be read no files are known.
  }
  Discard(offered);
  RemoveUnsavedPictures(context_, kept);
}

void RecoveryBar::Discard(const Offered &offered) {
  context_.platform.journals->Discard(offered.page.id);
  RemoveRow(offered.row);
}

void RecoveryBar::DiscardAll() {
  Message question;
  question.text = Words::tr(
                      "Discard the unsaved changes of all pages listed here (%1)? They cannot be "
                      "brought back.")
                      .arg(offered_.size());
  question.buttons = MessageButtons::YesNo;
  question.icon = MessageIcon::Question;
  if (context_.platform.dialogs.ShowMessage(question) != MessageAnswer::Yes) return;
  for (const Offered &offered : std::vector(offered_)) GiveUp(offered);
}

void RecoveryBar::RemoveRow(QWidget *row) {
  const bool hadFocus = row->isAncestorOf(QApplication::focusWidget());
  const int place = rows_->indexOf(row);
  offered_.erase(offered_.begin() + place);
  rows_->removeWidget(row);
  if (hadFocus) {
    // Before the row is hidden, which would pass the keyboard on as Tab does.
    QWidget *next = rows_->isEmpty() ? context_.mainWindow.windows.Current()
                                     : FirstButtonOf(*rows_, std::min(place, rows_->count() - 1));
    if (next != nullptr) next->setFocus();
  }
  row->hide();
  row->deleteLater();
  if (rows_->isEmpty()) return Fill();
  FitRows();
}

bool RecoveryBar::MoveFocus(QPushButton *from, int key) {
  const int place = rows_->indexOf(from->parentWidget());
  const QList<QPushButton *> row = ButtonsOf(*rows_, place);
  const auto alongRow = [&](qsizetype step) {
    return row[std::clamp<qsizetype>(row.indexOf(from) + step, 0, row.size() - 1)];
  };
  const auto alongRows = [&](int wanted) {
    const int next = std::clamp(wanted, 0, rows_->count() - 1);
    auto *same = rows_->itemAt(next)->widget()->findChild<QPushButton *>(from->objectName());
    return same->isEnabled() ? same : FirstButtonOf(*rows_, next);
  };
  const auto go = [](QPushButton *to) {
    to->setFocus(Qt::TabFocusReason);
    return true;
  };
  switch (key) {
    case Qt::Key_Left:
      return go(alongRow(-1));
    case Qt::Key_Right:
      return go(alongRow(1));
    case Qt::Key_Up:
      return go(alongRows(place - 1));
    case Qt::Key_Down:
      return go(alongRows(place + 1));
    case Qt::Key_Home:
      return go(alongRows(0));
    case Qt::Key_End:
      return go(alongRows(rows_->count() - 1));
    case Qt::Key_Return:
    case Qt::Key_Enter:
      from->animateClick();
      return true;
    default:
      return false;
  }
}

bool RecoveryBar::eventFilter(QObject *watched, QEvent *event) {
  auto *button = qobject_cast<QPushButton *>(watched);
  if (button != nullptr && event->type() == QEvent::FocusIn) scroller_->ensureWidgetVisible(button);
  if (button != nullptr && event->type() == QEvent::KeyPress)
    return MoveFocus(button, static_cast<QKeyEvent *>(event)->key());
  return QFrame::eventFilter(watched, event);
}

void RecoveryBar::FitRows() {
  if (rows_->isEmpty() && isAncestorOf(QApplication::focusWidget())) {
    QWidget *front = context_.mainWindow.windows.Current();
    if (front != nullptr) front->setFocus();
  }
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
  if (event->type() == QEvent::PaletteChange) DimNotes();
}

void RecoveryBar::DimNotes() {
  for (QLabel *note : findChildren<QLabel *>(QString::fromUtf16(NoteName))) {
    QPalette quiet = palette();
    quiet.setColor(QPalette::WindowText, QuietText(palette()));
    note->setPalette(quiet);
  }
}

}  // namespace velor
