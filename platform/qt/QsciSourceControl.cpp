// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/QsciSourceControl.h"

#include "platform/qt/SourceColors.h"

#include <QEvent>
#include <QFontDatabase>
#include <QPalette>
#include <Qsci/qscilexerhtml.h>
#include <Qsci/qsciscintilla.h>

#include <algorithm>

namespace velor {

namespace {

constexpr int NumberMargin = 0;
constexpr int EdgeMargin = 1;
constexpr int EdgeWidth = 3;
/// The highest style number of the HTML lexer.
constexpr int LastStyle = 127;
constexpr int TabColumns = 4;
/// Narrower than four digits the margin would jump while a page is typed.
constexpr int FewestDigits = 4;

/// Colour slots of the interface.
constexpr int MarginBackground = 1;
constexpr int LineNumberBackground = 26;
constexpr int LineNumberText = 27;

/// The lexer's tags and attributes are those of HTML 4; to colour today's alike, it is told theirs.
class HtmlLexer final : public QsciLexerHTML {
 public:
  using QsciLexerHTML::QsciLexerHTML;

  const char *keywords(int set) const override {
    static const QByteArray tagsAndAttributes =
        QByteArray(QsciLexerHTML().keywords(1)) +
        " article aside audio bdi canvas data datalist details dialog embed figcaption figure "
        "footer header hgroup main mark meter nav output picture progress rp rt ruby section slot "
        "source summary svg template time track video wbr async autocomplete autofocus autoplay "
        "contenteditable controls crossorigin download draggable hidden integrity list loading "
        "loop "
        "max min muted pattern placeholder poster preload required role sandbox sizes spellcheck "
        "srcset step translate";
    return set == 1 ? tagsAndAttributes.constData() : QsciLexerHTML::keywords(set);
  }
};

/// "Lucida Console" where it is installed; the control itself would fall back to a proportional
/// font for a family it does not find.
QFont SourceFont() {
  const QString wanted = QStringLiteral("Lucida Console");
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  if (QFontDatabase::families().contains(wanted)) font.setFamily(wanted);
  return font;
}

QColor FromColorValue(std::int32_t color) {
  return QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
}

QsciScintilla::EolMode EolModeOf(const QString &text) {
  const qsizetype lineFeed = text.indexOf(u'\n');
  const qsizetype carriageReturn = text.indexOf(u'\r');
  if (carriageReturn < 0) return QsciScintilla::EolUnix;
  return lineFeed < 0 ? QsciScintilla::EolMac : QsciScintilla::EolWindows;
}

/// The control counts characters where the interface counts UTF-16 units.
int UnitsOfCharacters(const QString &line, int characters) {
  int unit = 0;
  while (characters-- > 0 && unit < line.size()) {
    unit += line.at(unit).isHighSurrogate() && unit + 1 < line.size() ? 2 : 1;
  }
  return unit;
}

int CharactersOfUnits(const QString &line, int units) {
  int characters = 0;
  for (int unit = 0; unit < std::min<qsizetype>(units, line.size()); ++characters) {
    unit += line.at(unit).isHighSurrogate() && unit + 1 < line.size() ? 2 : 1;
  }
  return characters;
}

}  // namespace

QsciSourceControl::QsciSourceControl(QWidget *parent, SourceAccess access)
    : editor_(new QsciScintilla(parent)) {
  lexer_ = new HtmlLexer(editor_);
  editor_->setUtf8(true);
  editor_->setFrameStyle(QFrame::NoFrame);
  editor_->setTabWidth(TabColumns);
  editor_->setScrollWidthTracking(true);
  editor_->setScrollWidth(1);
  editor_->setMarginType(NumberMargin, QsciScintilla::NumberMargin);
  editor_->setMarginType(EdgeMargin, QsciScintilla::SymbolMarginColor);
  editor_->setMarginWidth(EdgeMargin, EdgeWidth);
  editor_->setReadOnly(access == SourceAccess::View);
  FollowPalette();
  editor_->installEventFilter(this);
  connect(editor_, &QsciScintilla::linesChanged, this, &QsciSourceControl::FitLineNumbers);
}

QsciSourceControl::~QsciSourceControl() {
  delete editor_;
}

QWidget *QsciSourceControl::Widget() {
  return editor_;
}

void QsciSourceControl::SetFocus() {
  editor_->setFocus();
}

QString QsciSourceControl::Text() const {
  return editor_->text();
}

void QsciSourceControl::SetText(const QString &text) {
  editor_->setEolMode(EolModeOf(text));
  editor_->setText(text);
  editor_->setModified(false);
  FitLineNumbers();
}

void QsciSourceControl::SetColor(int slot, std::int32_t color) {
  colors_[slot] = color;
  ApplyColorSlots();
}

QString QsciSourceControl::SelectedText() const {
  return editor_->selectedText();
}

void QsciSourceControl::ReplaceSelection(const QString &text) {
  editor_->replaceSelectedText(text);
}

int QsciSourceControl::CaretLine() const {
  int line = 0;
  int index = 0;
  editor_->getCursorPosition(&line, &index);
  return line;
}

int QsciSourceControl::CaretColumn() const {
  int line = 0;
  int index = 0;
  editor_->getCursorPosition(&line, &index);
  return UnitsOfCharacters(LineText(line), index);
}

int QsciSourceControl::LineLength(int line) const {
  return static_cast<int>(LineText(line).size());
}

void QsciSourceControl::SetCaret(int line, int column) {
  editor_->setCursorPosition(line, CharactersOfUnits(LineText(line), column));
}

bool QsciSourceControl::eventFilter(QObject *watched, QEvent *event) {
  if (watched == editor_ && event->type() == QEvent::PaletteChange) FollowPalette();
  return QObject::eventFilter(watched, event);
}

QString QsciSourceControl::LineText(int line) const {
  QString text = editor_->text(line);
  while (text.endsWith(u'\n') || text.endsWith(u'\r')) text.chop(1);
  return text;
}

void QsciSourceControl::FollowPalette() {
  const QPalette palette = editor_->palette();
  const QColor paper = palette.color(QPalette::Base);
  const QColor ink = palette.color(QPalette::Text);
  lexer_->setDefaultFont(SourceFont());
  lexer_->setDefaultColor(ink);
  lexer_->setDefaultPaper(paper);
  for (int style = 0; style <= LastStyle; ++style) {
    lexer_->setFont(SourceFont(), style);
    lexer_->setColor(SourceColor(RoleOfStyle(style), palette), style);
    lexer_->setPaper(paper, style);
    lexer_->setEolFill(false, style);
  }
  editor_->setLexer(lexer_);
  editor_->setPaper(paper);
  editor_->setColor(ink);
  editor_->setCaretForegroundColor(ink);
  editor_->setSelectionBackgroundColor(palette.color(QPalette::Highlight));
  editor_->setSelectionForegroundColor(palette.color(QPalette::HighlightedText));
  ApplyColorSlots();
  FitLineNumbers();
}

void QsciSourceControl::ApplyColorSlots() {
  for (const auto &[slot, value] : colors_) {
    const QColor color = FromColorValue(value);
    switch (slot) {
      case MarginBackground:
        editor_->setMarginBackgroundColor(EdgeMargin, color);
        break;
      case LineNumberBackground:
        editor_->setMarginsBackgroundColor(color);
        break;
      case LineNumberText:
        editor_->setMarginsForegroundColor(color);
        break;
      default:
        break;
    }
  }
}

void QsciSourceControl::FitLineNumbers() {
  const auto digits = std::max<qsizetype>(FewestDigits, QString::number(editor_->lines()).size());
  editor_->setMarginWidth(NumberMargin, QString(digits + 1, u'8'));
}

}  // namespace velor
