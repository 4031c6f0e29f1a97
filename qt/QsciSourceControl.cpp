// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/QsciSourceControl.h"

#include "engine/FileDrops.h"
#include "page/text/PageEncoding.h"
#include "qt/SourceColors.h"
#include "qt/SourceLexer.h"
#include "qt/SourceMarks.h"

#include <QEvent>
#include <QFontDatabase>
#include <QPalette>
#include <Qsci/qsciscintilla.h>

#include <algorithm>
#include <utility>

namespace velor {

namespace {

constexpr int NumberMargin = 0;
constexpr int EdgeMargin = 1;
constexpr int EdgeWidth = 3;
constexpr int FoldMargin = 2;
constexpr int LineMarker = 0;
constexpr int CaretUpdates = QsciScintilla::SC_UPDATE_SELECTION | QsciScintilla::SC_UPDATE_CONTENT;
constexpr int FirstFoldMarker = QsciScintilla::SC_MARKNUM_FOLDEREND;
constexpr int LastFoldMarker = QsciScintilla::SC_MARKNUM_FOLDEROPEN;
constexpr int TabColumns = 4;
constexpr int MiddleLightness = 128;
/// Share of the highlight colour, and of the text colour, in the fields of marked lines and
/// margins.
constexpr double MarkedLineShare = 0.08;
constexpr double BraceShare = 0.3;
constexpr double FoldMarkShare = 0.55;
/// Narrower than four digits the margin would jump while a page is typed.
constexpr int FewestDigits = 4;

/// Colour slots of the interface.
constexpr int MarginBackground = 1;
constexpr int LineNumberBackground = 26;
constexpr int LineNumberText = 27;
/// What they have until the owner says otherwise: grey numbers on white.
const std::map<int, std::int32_t> SlotColors = {
    {MarginBackground, 0x808080}, {LineNumberBackground, 0xFFFFFF}, {LineNumberText, 0x808080}};

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

/// The line end that a page of this text has, by the rule that its charset line in the status bar
/// goes by.
QsciScintilla::EolMode EolModeOf(const QString &text) {
  switch (DeclaredEncoding(text).lineEnds) {
    case LineEnds::Lf:
      return QsciScintilla::EolUnix;
    case LineEnds::Cr:
      return QsciScintilla::EolMac;
    case LineEnds::CrLf:
      break;
  }
  return QsciScintilla::EolWindows;
}

/// On a dark palette the lightness of the owner's colours is mirrored: white becomes as dark as the
/// text background, and a middle grey stays.
QColor SlotColor(std::int32_t value, const QPalette &palette) {
  const QColor color = FromColorValue(value);
  const QColor paper = palette.color(QPalette::Base);
  if (paper.lightness() >= MiddleLightness) return color;
  const int mirrored = 255 - color.lightness();
  if (mirrored <= paper.lightness()) return paper;
  return QColor::fromHsl(color.hslHue(), color.hslSaturation(), mirrored);
}

QColor Mix(const QColor &one, const QColor &other, double share) {
  const auto part = [share](int from, int to) { return qRound(from + (to - from) * share); };
  return QColor(part(one.red(), other.red()), part(one.green(), other.green()),
                part(one.blue(), other.blue()));
}

}  // namespace

QsciSourceControl::QsciSourceControl(QWidget *parent, SourceAccess access)
    : editor_(new QsciScintilla(parent)), colors_(SlotColors) {
  lexer_ = new SourceLexer(editor_);
  marks_ = new SourceMarks(editor_);
  editor_->setUtf8(true);
  editor_->setFrameStyle(QFrame::NoFrame);
  editor_->setTabWidth(TabColumns);
  editor_->setIndentationsUseTabs(false);
  editor_->setAutoIndent(true);
  editor_->setBackspaceUnindents(true);
  editor_->setBraceMatching(QsciScintilla::SloppyBraceMatch);
  editor_->setScrollWidthTracking(true);
  editor_->setScrollWidth(1);
  editor_->setMarginType(NumberMargin, QsciScintilla::NumberMargin);
  editor_->setMarginWidth(EdgeMargin, EdgeWidth);
  editor_->setMarginSensitivity(EdgeMargin, false);
  editor_->setFolding(QsciScintilla::BoxedTreeFoldStyle, FoldMargin);
  editor_->markerDefine(QsciScintilla::Background, LineMarker);
  editor_->setReadOnly(access == SourceAccess::View);
  // Of a long source the visible part is styled at once, the rest while the program is idle.
  Send(QsciScintilla::SCI_SETIDLESTYLING, QsciScintilla::SC_IDLESTYLING_ALL);
  IgnoreFileDrags(*editor_);
  IgnoreFileDrags(*editor_->viewport());
  PrepareWaves();
  ApplyPalette();
  editor_->installEventFilter(this);
  connect(editor_, &QsciScintilla::linesChanged, this, &QsciSourceControl::FitLineNumbers);
  connect(editor_, &QsciScintilla::SCN_UPDATEUI, this, [this](int updated) {
    // Typing moves the caret too, but is reported as a change of the content only.
    const bool moved = (updated & CaretUpdates) != 0;
    if (moved && selectionListener_) selectionListener_();
  });
  connect(editor_, &QsciScintilla::textChanged, this, [this] {
    if (textListener_) textListener_();
  });
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
  const auto *text = static_cast<const char *>(
      editor_->SendScintillaPtrResult(QsciScintilla::SCI_GETCHARACTERPOINTER));
  return QString::fromUtf8(text, Send(QsciScintilla::SCI_GETLENGTH));
}

void QsciSourceControl::SetText(const QString &text) {
  const QByteArray bytes = text.toUtf8();
  const bool readOnly = editor_->isReadOnly();
  editor_->setReadOnly(false);
  editor_->setEolMode(EolModeOf(text));
  // By length, since the control's own setter ends at the first NUL; and not into the undo history.
  Send(QsciScintilla::SCI_SETUNDOCOLLECTION, 0);
  Send(QsciScintilla::SCI_CLEARALL);
  editor_->SendScintilla(QsciScintilla::SCI_APPENDTEXT, static_cast<unsigned long>(bytes.size()),
                         bytes.constData());
  Send(QsciScintilla::SCI_SETUNDOCOLLECTION, 1);
  Send(QsciScintilla::SCI_EMPTYUNDOBUFFER);
  editor_->setReadOnly(readOnly);
  editor_->setModified(false);
  marks_->TextReplaced();
  FitLineNumbers();
}

void QsciSourceControl::ReplaceText(const QString &text) {
  const QByteArray bytes = text.toUtf8();
  editor_->setEolMode(EolModeOf(text));
  Send(QsciScintilla::SCI_BEGINUNDOACTION);
  Send(QsciScintilla::SCI_SETTARGETRANGE, 0, Send(QsciScintilla::SCI_GETLENGTH));
  editor_->SendScintilla(QsciScintilla::SCI_REPLACETARGET, static_cast<unsigned long>(bytes.size()),
                         bytes.constData());
  Send(QsciScintilla::SCI_ENDUNDOACTION);
  marks_->TextReplaced();
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

void QsciSourceControl::Edit(EditingCommand command) {
  switch (command) {
    case EditingCommand::Undo:
      editor_->undo();
      break;
    case EditingCommand::Redo:
      editor_->redo();
      break;
    case EditingCommand::Cut:
      editor_->cut();
      break;
    case EditingCommand::Copy:
      editor_->copy();
      break;
    case EditingCommand::Paste:
      editor_->paste();
      break;
    case EditingCommand::Delete:
      Send(QsciScintilla::SCI_CLEAR);
      break;
    case EditingCommand::SelectAll:
      editor_->selectAll();
      break;
    case EditingCommand::Indent:
      Send(QsciScintilla::SCI_TAB);
      break;
    case EditingCommand::Outdent:
      Send(QsciScintilla::SCI_BACKTAB);
      break;
    default:
      break;
  }
}

int QsciSourceControl::CaretLine() const {
  return static_cast<int>(
      Send(QsciScintilla::SCI_LINEFROMPOSITION, Send(QsciScintilla::SCI_GETCURRENTPOS)));
}

int QsciSourceControl::CaretColumn() const {
  return static_cast<int>(Send(QsciScintilla::SCI_COUNTCODEUNITS, LineStart(CaretLine()),
                               Send(QsciScintilla::SCI_GETCURRENTPOS)));
}

int QsciSourceControl::LineLength(int line) const {
  return static_cast<int>(Send(QsciScintilla::SCI_COUNTCODEUNITS, LineStart(line), LineEnd(line)));
}

void QsciSourceControl::SetCaret(int line, int column) {
  long position = LineEnd(line);
  if (column < LineLength(line))
    position = Send(QsciScintilla::SCI_POSITIONRELATIVECODEUNITS, LineStart(line), column);
  Send(QsciScintilla::SCI_ENSUREVISIBLE, line);
  Send(QsciScintilla::SCI_GOTOPOS, position);
}

void QsciSourceControl::SetLineWrap(LineWrap wrap) {
  editor_->setWrapMode(wrap == LineWrap::On ? QsciScintilla::WrapWord : QsciScintilla::WrapNone);
}

void QsciSourceControl::CenterCaret() {
  Send(QsciScintilla::SCI_VERTICALCENTRECARET);
}

void QsciSourceControl::SetSelectionListener(std::function<void()> listener) {
  selectionListener_ = std::move(listener);
}

void QsciSourceControl::SetTextListener(std::function<void()> listener) {
  textListener_ = std::move(listener);
}

int QsciSourceControl::MarkedLine() const {
  return markedLine_;
}

void QsciSourceControl::SetMarkedLine(int line) {
  if (line == markedLine_ && editor_->markersAtLine(line) != 0) return;
  markedLine_ = line;
  editor_->markerDeleteAll(LineMarker);
  editor_->markerAdd(line, LineMarker);
}

long QsciSourceControl::Send(unsigned int message, long first, long second) const {
  return editor_->SendScintilla(message, static_cast<unsigned long>(first), second);
}

long QsciSourceControl::LineStart(int line) const {
  return Send(QsciScintilla::SCI_POSITIONFROMLINE, line);
}

long QsciSourceControl::LineEnd(int line) const {
  return Send(QsciScintilla::SCI_GETLINEENDPOSITION, line);
}

bool QsciSourceControl::eventFilter(QObject *watched, QEvent *event) {
  if (watched == editor_ && event->type() == QEvent::PaletteChange) ApplyPalette();
  return QObject::eventFilter(watched, event);
}

void QsciSourceControl::ApplyPalette() {
  const QPalette palette = editor_->palette();
  const QColor paper = palette.color(QPalette::Base);
  const QColor ink = palette.color(QPalette::Text);
  lexer_->setDefaultFont(SourceFont());
  lexer_->setDefaultColor(ink);
  lexer_->setDefaultPaper(paper);
  for (int style = 0; style < SourceRoleCount; ++style) {
    lexer_->setFont(SourceFont(), style);
    lexer_->setColor(SourceColor(static_cast<SourceRole>(style), palette), style);
    lexer_->setPaper(paper, style);
    lexer_->setEolFill(false, style);
  }
  editor_->setLexer(lexer_);
  editor_->setPaper(paper);
  editor_->setColor(ink);
  editor_->setCaretForegroundColor(ink);
  editor_->setSelectionBackgroundColor(palette.color(QPalette::Highlight));
  editor_->setSelectionForegroundColor(palette.color(QPalette::HighlightedText));
  const QColor highlight = palette.color(QPalette::Highlight);
  editor_->setMarkerBackgroundColor(Mix(paper, highlight, MarkedLineShare), LineMarker);
  editor_->setMatchedBraceForegroundColor(ink);
  editor_->setMatchedBraceBackgroundColor(Mix(paper, highlight, BraceShare));
  editor_->setUnmatchedBraceForegroundColor(ink);
  editor_->setUnmatchedBraceBackgroundColor(paper);
  editor_->setFoldMarginColors(paper, paper);
  for (int marker = FirstFoldMarker; marker <= LastFoldMarker; ++marker) {
    const auto number = static_cast<unsigned long>(marker);
    editor_->SendScintilla(QsciScintilla::SCI_MARKERSETFORE, number, paper);
    editor_->SendScintilla(QsciScintilla::SCI_MARKERSETBACK, number,
                           Mix(paper, ink, FoldMarkShare));
  }
  marks_->ApplyPalette();
  ApplyColorSlots();
  FitLineNumbers();
}

void QsciSourceControl::ApplyColorSlots() {
  for (const auto &[slot, value] : colors_) {
    const QColor color = SlotColor(value, editor_->palette());
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
