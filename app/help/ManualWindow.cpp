// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/help/ManualWindow.h"

#include "chrome/Icons.h"
#include "chrome/Palette.h"
#include "chrome/ScreenRoom.h"
#include "chrome/ToolBarButtons.h"

#include <QDir>
#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTextBrowser>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

namespace velor {
namespace {

/// Wide enough for the manual's pictures.
constexpr QSize FirstSize(1120, 720);
constexpr int ListWidth = 270;
constexpr int PlaceRole = Qt::UserRole;

/// The page. Its style sheet is for browsers: here the colours are the program's.
class ManualPage final : public QTextBrowser {
 public:
  using QTextBrowser::QTextBrowser;

  QVariant loadResource(int type, const QUrl &name) override {
    if (type == QTextDocument::StyleSheetResource) return QString();
    return QTextBrowser::loadResource(type, name);
  }
};

QString StyleFor(const QPalette &palette) {
  const auto name = [](const QColor &color) { return color.name(); };
  return QStringLiteral(
             "h1 { font-size: 19pt; } h2 { font-size: 14pt; margin-top: 22px; margin-bottom: 8px; }"
             "a { color: %1; } code, pre, kbd { background-color: %2; }"
             "pre, code { font-family: monospace; }"
             "table { border-collapse: collapse; border: 1px solid %3; }"
             "th, td { border: 1px solid %3; padding: 4px 8px; }"
             "th { background-color: %2; }"
             ".way { font-size: small; }")
      .arg(name(palette.color(QPalette::Link)), name(palette.color(QPalette::AlternateBase)),
           name(BoxEdge(palette)));
}

}  // namespace

ManualWindow::ManualWindow(const Manual &manual)
    : QDialog(nullptr, Qt::Window),
      manual_(manual),
      words_(new QLineEdit(this)),
      list_(new QListWidget(this)),
      page_(new ManualPage(this)) {
  setObjectName(QStringLiteral("ManualWindow"));
  setWindowTitle(tr("Velor Web Creator Manual"));
  setWindowIcon(ProgramIcon());
  BuildLayout();
  Dress();
  FillList();
  connect(words_, &QLineEdit::textChanged, this, &ManualWindow::FillList);
  connect(words_, &QLineEdit::returnPressed, this, [this] {
    Choose(list_->item(0));
    page_->setFocus();
  });
  connect(list_, &QListWidget::itemActivated, this, &ManualWindow::Choose);
  connect(list_, &QListWidget::itemClicked, this, &ManualWindow::Choose);
  connect(page_, &QTextBrowser::sourceChanged, this, [this] {
    MarkChapter();
    MarkWords();
  });
  connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
    words_->setFocus();
    words_->selectAll();
  });
  connect(new QShortcut(QKeySequence::Back, this), &QShortcut::activated, page_,
          &QTextBrowser::backward);
  connect(new QShortcut(QKeySequence::Forward, this), &QShortcut::activated, page_,
          &QTextBrowser::forward);
  resize(FirstSizeOf(*this, FirstSize));
  // The toolkit would leave no room for the frame.
  move(screen()->availableGeometry().center() - rect().center());
}

void ManualWindow::BuildLayout() {
  words_->setObjectName(QStringLiteral("txtWords"));
  words_->setAccessibleName(tr("Words to find in the manual"));
  words_->setPlaceholderText(tr("Find in the manual"));
  words_->setClearButtonEnabled(true);
  list_->setObjectName(QStringLiteral("lstChapters"));
  list_->setAccessibleName(tr("Chapters"));
  list_->setWordWrap(true);
  list_->setFrameShape(QFrame::NoFrame);
  page_->setObjectName(QStringLiteral("brwManual"));
  page_->setAccessibleName(tr("Manual"));
  page_->setFrameShape(QFrame::NoFrame);
  page_->setOpenExternalLinks(false);
  page_->document()->setDocumentMargin(20);

  auto *left = new QWidget;
  auto *column = new QVBoxLayout(left);
  column->setContentsMargins(BarMargin, BarMargin, BarMargin, 0);
  column->setSpacing(BarMargin);
  column->addWidget(words_);
  column->addWidget(list_, 1);
  auto *halves = new QSplitter(Qt::Horizontal);
  halves->addWidget(left);
  halves->addWidget(page_);
  halves->setChildrenCollapsible(false);
  halves->setStretchFactor(1, 1);
  halves->setSizes({ListWidth, FirstSize.width() - ListWidth});
  auto *window = new QVBoxLayout(this);
  window->setContentsMargins(0, 0, 0, 0);
  window->setSpacing(0);
  window->addWidget(BuildToolBar());
  window->addWidget(halves, 1);
}

QToolBar *ManualWindow::BuildToolBar() {
  auto *bar = new QToolBar(this);
  bar->setObjectName(QStringLiteral("tbrManual"));
  bar->setAccessibleName(tr("Navigation"));
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  bar->setIconSize(QSize(MenuIconSize, MenuIconSize));
  bar->setContentsMargins(BarMargin, BarSpacing, BarMargin, BarSpacing);
  const auto add = [bar](const char *key, const QString &caption, const QString &tooltip) {
    ToolBarAction *button =
        AddToolBarButton(*bar, QString::fromLatin1(key), caption, tooltip, ButtonKind::Click);
    button->setObjectName(QString::fromLatin1(key));
    return button;
  };
  ToolBarAction *back = add("Back", tr("Back"), tr("Back to the place before (Alt+Left)"));
  ToolBarAction *forward = add("Forward", tr("Forward"), tr("Forward again (Alt+Right)"));
  ToolBarAction *contents = add("help", tr("Contents"), tr("The first page"));
  back->setEnabled(false);
  forward->setEnabled(false);
  connect(back, &ToolBarAction::Chosen, page_, &QTextBrowser::backward);
  connect(forward, &ToolBarAction::Chosen, page_, &QTextBrowser::forward);
  connect(contents, &ToolBarAction::Chosen, this, [this] {
    words_->clear();
    ShowPlace(manual_.Parts().constFirst().Place());
  });
  connect(page_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(page_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
  return bar;
}

void ManualWindow::ShowPlace(const QString &place) {
  QUrl address = QUrl::fromLocalFile(QDir(manual_.Folder()).filePath(place.section(u'#', 0, 0)));
  address.setFragment(place.section(u'#', 1));
  page_->setSource(address);
  MarkChapter();
}

QString ManualWindow::Place() const {
  const QUrl address = page_->source();
  return address.hasFragment() ? address.fileName() + u'#' + address.fragment()
                               : address.fileName();
}

void ManualWindow::FillList() {
  list_->clear();
  if (WordsOf(words_->text()).isEmpty()) {
    list_->setAccessibleName(tr("Chapters"));
    for (const ManualPart &part : manual_.Parts())
      if (part.anchor.isEmpty()) AddToList(part.title, part.Place());
    MarkChapter();
  } else {
    list_->setAccessibleName(tr("Places found"));
    for (const ManualPart &part : manual_.Find(words_->text()))
      AddToList(
          part.anchor.isEmpty() ? part.chapter : part.chapter + QStringLiteral(": ") + part.title,
          part.Place());
    if (list_->count() == 0) {
      auto *none = new QListWidgetItem(tr("Nothing found"), list_);
      none->setFlags(Qt::NoItemFlags);
    }
  }
  MarkWords();
}

void ManualWindow::AddToList(const QString &caption, const QString &place) {
  auto *entry = new QListWidgetItem(caption, list_);
  entry->setData(PlaceRole, place);
}

void ManualWindow::Choose(const QListWidgetItem *entry) {
  if (entry == nullptr) return;
  const QString place = entry->data(PlaceRole).toString();
  if (!place.isEmpty()) ShowPlace(place);
}

void ManualWindow::MarkChapter() {
  if (!WordsOf(words_->text()).isEmpty()) return;
  for (int row = 0; row < list_->count(); ++row) {
    if (list_->item(row)->data(PlaceRole).toString() == page_->source().fileName())
      list_->setCurrentRow(row);
  }
}

void ManualWindow::MarkWords() {
  QList<QTextEdit::ExtraSelection> marks;
  for (const QString &word : WordsOf(words_->text())) {
    const QRegularExpression pattern(QStringLiteral("\\b") + QRegularExpression::escape(word),
                                     QRegularExpression::CaseInsensitiveOption);
    QTextCursor found = page_->document()->find(pattern);
    for (; !found.isNull(); found = page_->document()->find(pattern, found)) {
      QTextEdit::ExtraSelection mark;
      mark.cursor = found;
      mark.format.setBackground(palette().highlight());
      mark.format.setForeground(palette().highlightedText());
      marks << mark;
    }
  }
  page_->setExtraSelections(marks);
}

void ManualWindow::Dress() {
  page_->document()->setDefaultStyleSheet(StyleFor(palette()));
  if (!page_->source().isEmpty()) page_->reload();
}

void ManualWindow::changeEvent(QEvent *event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) Dress();
}

void ManualWindow::keyPressEvent(QKeyEvent *event) {
  if (event->key() == Qt::Key_Escape && !words_->text().isEmpty()) {
    words_->clear();
  } else {
    QDialog::keyPressEvent(event);
  }
}

}  // namespace velor
