// SPDX-License-Identifier: GPL-3.0-or-later
// What the real source control looks like, and how it is typed into.
#include "qt/QsciSourceControl.h"
#include "qt/SourceColors.h"
#include "qt/SourceMarks.h"
#include "tests/support/Checks.h"
#include "tests/support/Waiting.h"

#include <QApplication>
#include <QClipboard>
#include <QFontInfo>
#include <QMimeData>
#include <QPalette>
#include <QTest>
#include <QWidget>
#include <Qsci/qscilexer.h>
#include <Qsci/qsciscintilla.h>

#include <cmath>

namespace velor {

namespace {

double Luminance(const QColor &color) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

double Contrast(const QColor &one, const QColor &other) {
  const double first = Luminance(one) + 0.05;
  const double second = Luminance(other) + 0.05;
  return std::max(first, second) / std::min(first, second);
}

QPalette PaletteOn(const QColor &base, const QColor &text) {
  QPalette palette;
  palette.setColor(QPalette::Base, base);
  palette.setColor(QPalette::Text, text);
  return palette;
}

QsciScintilla *EditorOf(QsciSourceControl &source) {
  return qobject_cast<QsciScintilla *>(source.Widget());
}

}  // namespace

TEST(QsciSourceControlTest, EveryRoleIsLegibleOnLightAndDark) {
  for (const QPalette &palette : {PaletteOn(Qt::white, Qt::black),
                                  PaletteOn(QColor(0x24, 0x26, 0x29), QColor(0xe6, 0xe6, 0xe6))}) {
    for (int role = 0; role < SourceRoleCount; ++role) {
      EXPECT_GE(Contrast(SourceColor(static_cast<SourceRole>(role), palette),
                         palette.color(QPalette::Base)),
                4.5)
          << role;
    }
  }
}

TEST(QsciSourceControlTest, ItFollowsAChangeOfThePalette) {
  QWidget host;
  QsciSourceControl source(&host, SourceAccess::View);
  const QPalette dark = PaletteOn(QColor(0x24, 0x26, 0x29), QColor(0xe6, 0xe6, 0xe6));
  source.Widget()->setPalette(dark);
  QsciLexer *lexer = EditorOf(source)->lexer();
  EXPECT_EQ(lexer->paper(static_cast<int>(SourceRole::Tag)), dark.color(QPalette::Base));
  EXPECT_EQ(lexer->color(static_cast<int>(SourceRole::Tag)), SourceColor(SourceRole::Tag, dark));
}

TEST(QsciSourceControlTest, TheFontHasOnePitchThatIsReallyThere) {
  QWidget host;
  QsciSourceControl source(&host, SourceAccess::View);
  const QFont font = EditorOf(source)->lexer()->font(static_cast<int>(SourceRole::Text));
  const QFontMetrics metrics(font);
  EXPECT_EQ(metrics.horizontalAdvance(u'i'), metrics.horizontalAdvance(u'W'));
}

TEST(QsciSourceControlTest, TheColourSlotsColourTheMargins) {
  QWidget host;
  QsciSourceControl source(&host, SourceAccess::View);
  source.SetColor(1, 0x0000FF);
  source.SetColor(26, 0x00FF00);
  source.SetColor(27, 0xFF0000);
  QsciScintilla *editor = EditorOf(source);
  EXPECT_EQ(editor->marginBackgroundColor(1), QColor(Qt::red));
  const auto style = [editor](unsigned int message) {
    return editor->SendScintilla(message, QsciScintilla::STYLE_LINENUMBER);
  };
  EXPECT_EQ(style(QsciScintilla::SCI_STYLEGETBACK), 0x00FF00);
  EXPECT_EQ(style(QsciScintilla::SCI_STYLEGETFORE), 0xFF0000);
  source.Widget()->setPalette(PaletteOn(Qt::black, Qt::white));
  EXPECT_NE(style(QsciScintilla::SCI_STYLEGETFORE), style(QsciScintilla::SCI_STYLEGETBACK));
  source.Widget()->setPalette(PaletteOn(Qt::white, Qt::black));
  EXPECT_EQ(style(QsciScintilla::SCI_STYLEGETBACK), 0x00FF00) << "kept when the palette changes";
}

TEST(QsciSourceControlTest, LineNumbersStandGreyOnPaperInLightAndDark) {
  QWidget host;
  QsciSourceControl source(&host, SourceAccess::Edit);
  const auto color = [&](unsigned int message) {
    const auto value =
        static_cast<int>(EditorOf(source)->SendScintilla(message, QsciScintilla::STYLE_LINENUMBER));
    return QColor(value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF);
  };
  const QColor darkPaper(0x1e, 0x20, 0x23);
  for (const QPalette &palette :
       {PaletteOn(Qt::white, Qt::black), PaletteOn(darkPaper, Qt::white)}) {
    source.Widget()->setPalette(palette);
    EXPECT_EQ(color(QsciScintilla::SCI_STYLEGETBACK), palette.color(QPalette::Base));
    const QColor number = color(QsciScintilla::SCI_STYLEGETFORE);
    EXPECT_NEAR(number.lightness(), 0x80, 1);
    EXPECT_EQ(number.hsvSaturation(), 0);
  }
}

class QsciEditing : public ::testing::Test {
 protected:
  QsciEditing() {
    host_.resize(600, 400);
    source_.Widget()->resize(600, 400);
    host_.show();
    (void)QTest::qWaitForWindowExposed(&host_);
  }
  QsciScintilla &Editor() { return *EditorOf(source_); }
  long Send(unsigned int message, long first = 0, long second = 0) {
    return Editor().SendScintilla(message, static_cast<unsigned long>(first), second);
  }
  /// The text that carries an indicator, each stretch in brackets.
  QByteArray Indicated(int indicator) {
    const QByteArray text = source_.Text().toUtf8();
    QByteArray told;
    for (long at = 0; at < text.size();) {
      const long end = Send(QsciScintilla::SCI_INDICATOREND, indicator, at);
      if (Send(QsciScintilla::SCI_INDICATORVALUEAT, indicator, at) != 0)
        told += '[' + text.mid(at, end - at) + ']';
      if (end <= at) break;
      at = end;
    }
    return told;
  }
  bool Becomes(int indicator, const QByteArray &wanted) {
    return WaitFor([&] { return Indicated(indicator) == wanted; });
  }

  QWidget host_;
  QsciSourceControl source_{&host_, SourceAccess::Edit};
};

TEST_F(QsciEditing, TheSourceHasTheColoursOfItsRoles) {
  source_.SetText(QStringLiteral("<p>b</p><style>q { color: #f00 }</style>\r\n<!-- a\r\nb -->"));
  (void)Editor().grab();
  const auto role = [&](int position) {
    return static_cast<SourceRole>(Send(QsciScintilla::SCI_GETSTYLEAT, position));
  };
  EXPECT_TRUE(WaitFor([&] { return role(50) == SourceRole::Comment; }));
  EXPECT_EQ(role(1), SourceRole::Tag);
  EXPECT_EQ(role(3), SourceRole::Text);
  EXPECT_EQ(role(19), SourceRole::Attribute);
  source_.SetCaret(1, 3);
  source_.ReplaceSelection(QStringLiteral(">"));
  (void)Editor().grab();
  EXPECT_TRUE(WaitFor([&] { return role(51) == SourceRole::Text; }))
      << "what is typed changes the lines below";
}

TEST_F(QsciEditing, ScriptsWithinScriptsAreShown) {
  source_.SetText(QStringLiteral(
      "<script src=a><script><!-- b\n<![CDATA[</script><%@language=python%><script><!"));
  (void)Editor().grab();
  EXPECT_TRUE(WaitFor(
      [&] { return Send(QsciScintilla::SCI_GETENDSTYLED) == Send(QsciScintilla::SCI_GETLENGTH); }));
}

TEST_F(QsciEditing, TheTagAtTheCaretAndItsPartnerAreMarked) {
  source_.SetText(QStringLiteral("<div><b>a</b></div>"));
  source_.SetCaret(0, 2);
  EXPECT_TRUE(Becomes(SourceMarks::TagIndicator, "[<div>][</div>]"))
      << Indicated(SourceMarks::TagIndicator).constData();
  source_.SetCaret(0, 11);
  EXPECT_TRUE(Becomes(SourceMarks::TagIndicator, "[<b>][</b>]"));
  source_.SetText(QStringLiteral("text"));
  EXPECT_TRUE(Becomes(SourceMarks::TagIndicator, ""));
}

TEST_F(QsciEditing, ElementsFold) {
  source_.SetText(QStringLiteral("<div>\r\n<p>a</p>\r\n</div>\r\n<p>b</p>"));
  EXPECT_TRUE(WaitFor([&] {
    return (Send(QsciScintilla::SCI_GETFOLDLEVEL, 0) & QsciScintilla::SC_FOLDLEVELHEADERFLAG) != 0;
  }));
  Editor().foldLine(0);
  EXPECT_EQ(Send(QsciScintilla::SCI_GETLINEVISIBLE, 1), 0);
  source_.Select({10, 11});
  EXPECT_NE(Send(QsciScintilla::SCI_GETLINEVISIBLE, 1), 0) << "what is found is seen";
}

TEST_F(QsciEditing, StretchesAreMarkedInPlaceOfThoseBefore) {
  source_.SetText(QStringLiteral("\u00e4 one two"));
  const auto isMarked = [&](long position) {
    return Send(QsciScintilla::SCI_INDICATORVALUEAT, QsciScintilla::INDIC_CONTAINER + 2,
                position) != 0;
  };
  source_.MarkStretches({{2, 5}});
  EXPECT_TRUE(isMarked(3));
  EXPECT_FALSE(isMarked(7));
  source_.MarkStretches({{6, 9}});
  EXPECT_FALSE(isMarked(3));
  EXPECT_TRUE(isMarked(7));
}

TEST_F(QsciEditing, WhatIsNeverClosedDoesNotFold) {
  source_.SetText(QStringLiteral("<!-- a\nb -->\n<ul><li>c\n<li>d\n</ul></b>\n<p>e\n<br>\nf"));
  const auto level = [&](int line) {
    return Send(QsciScintilla::SCI_GETFOLDLEVEL, line) - QsciScintilla::SC_FOLDLEVELBASE;
  };
  EXPECT_TRUE(WaitFor([&] { return level(2) == QsciScintilla::SC_FOLDLEVELHEADERFLAG; }));
  EXPECT_EQ(level(0), QsciScintilla::SC_FOLDLEVELHEADERFLAG);
  EXPECT_EQ(level(1), 1);
  EXPECT_EQ(level(3), 1);
  EXPECT_EQ(level(4), 1);
  for (int line = 5; line < 8; ++line) EXPECT_EQ(level(line), 0) << line;
}

TEST_F(QsciEditing, ANewLineIsIndentedLikeTheOneBefore) {
  source_.SetText(QStringLiteral("  <p>\r\n"));
  source_.SetCaret(0, 5);
  QTest::keyClick(&Editor(), Qt::Key_Return);
  QTest::keyClick(&Editor(), Qt::Key_X);
  EXPECT_EQ(source_.Text(), QStringLiteral("  <p>\r\n  x\r\n"));
}

TEST_F(QsciEditing, UndoGoesBackToTheTextThatWasPutInAndNoFurther) {
  source_.SetText(QStringLiteral("before"));
  source_.SetText(QStringLiteral("text"));
  for (int key = 0; key < 1200; ++key) {
    source_.ReplaceSelection(QStringLiteral("x"));
    source_.SetCaret(0, 0);
  }
  EXPECT_EQ(source_.Text().size(), 1204);
  while (Editor().isUndoAvailable()) Editor().undo();
  EXPECT_EQ(source_.Text(), QStringLiteral("text"));
}

TEST_F(QsciEditing, PastedLinesGetTheSourcesLineEnds) {
  source_.SetText(QStringLiteral("a\r\n"));
  QApplication::clipboard()->setText(QStringLiteral("1\n2\n"));
  Editor().paste();
  EXPECT_EQ(source_.Text(), QStringLiteral("1\r\n2\r\na\r\n"));
}

TEST_F(QsciEditing, PastedBytesThatAreNoTextBecomeText) {
  auto *pasted = new QMimeData;
  pasted->setData(QStringLiteral("text/plain"), QByteArray("a\xff\xfe\xc3(b"));
  QApplication::clipboard()->setMimeData(pasted);
  Editor().paste();
  const QString text = source_.Text();
  EXPECT_TRUE(text.startsWith(u'a') && text.endsWith(u'b'));
  EXPECT_TRUE(text.toUtf8().isValidUtf8());
}

TEST_F(QsciEditing, ALoneSurrogateBecomesAReplacementCharacter) {
  source_.SetText(QStringLiteral("a") + QChar(0xD800) + QStringLiteral("b"));
  EXPECT_EQ(source_.Text().size(), 3);
  EXPECT_TRUE(source_.Text().isValidUtf16());
}

TEST_F(QsciEditing, TheSelectionsMovesAreTold) {
  int moves = 0;
  source_.SetSelectionListener([&] { ++moves; });
  source_.SetText(QStringLiteral("one two"));
  source_.SetCaret(0, 4);
  EXPECT_TRUE(WaitFor([&] { return moves > 0; }));
  int column = 0;
  source_.SetSelectionListener([&] { column = source_.CaretColumn(); });
  QTest::keyClicks(&Editor(), QStringLiteral("xy"));
  EXPECT_TRUE(WaitFor([&] { return column == 6; }));
}

TEST_F(QsciEditing, AMegabyteInOneLineIsShownAndTypedInto) {
  const QString line = QStringLiteral("<p>One more <b>paragraph</b> of it.</p>").repeated(26'000);
  source_.SetText(line);
  (void)Editor().grab();
  source_.SetCaret(0, static_cast<int>(line.size()) - 4);
  QTest::keyClicks(&Editor(), QStringLiteral("!"));
  (void)Editor().grab();
  EXPECT_EQ(source_.CaretColumn(), line.size() - 3);
  EXPECT_TRUE(source_.Text().endsWith(QStringLiteral("it.!</p>")));
}

TEST_F(QsciEditing, TenMegabytesAreThereWithoutBeingStyledWhole) {
  const QString line = QStringLiteral("<p class=\"a\">One more <b>paragraph</b> of it.</p>\r\n");
  const QString text = line.repeated(10'000'000 / line.size());
  source_.SetText(text);
  Editor().grab();
  EXPECT_LT(Send(QsciScintilla::SCI_GETENDSTYLED), text.size() / 2);
  EXPECT_EQ(source_.Text(), text);
  EXPECT_TRUE(WaitFor([&] { return Send(QsciScintilla::SCI_GETENDSTYLED) > 0; }));
}

TEST(QsciSourceControlTest, TheLineNumberMarginGrowsWithTheText) {
  QWidget host;
  QsciSourceControl source(&host, SourceAccess::View);
  source.SetText(QStringLiteral("a"));
  const int narrow = EditorOf(source)->marginWidth(0);
  EXPECT_GT(narrow, 0);
  source.SetText(QString(200000, u'\n'));
  EXPECT_GT(EditorOf(source)->marginWidth(0), narrow);
}

TEST(QsciSourceControlTest, AViewIgnoresTheKeyboardAndAnEditorTakesIt) {
  QWidget host;
  host.show();
  QsciSourceControl view(&host, SourceAccess::View);
  view.SetText(QStringLiteral("a"));
  QTest::keyClicks(view.Widget(), QStringLiteral("x"));
  EXPECT_EQ(view.Text(), QStringLiteral("a"));
  QsciSourceControl editor(&host, SourceAccess::Edit);
  editor.SetText(QStringLiteral("a"));
  QTest::keyClicks(editor.Widget(), QStringLiteral("x"));
  EXPECT_EQ(editor.Text(), QStringLiteral("xa"));
}

TEST(QsciSourceControlTest, ATextPutInAnothersPlaceIsOneStepThatUndoTakesBack) {
  QWidget host;
  host.show();
  QsciSourceControl source(&host, SourceAccess::Edit);
  source.SetText(QStringLiteral("a\n"));
  QTest::keyClicks(source.Widget(), QStringLiteral("typed "));
  source.ReplaceText(QStringLiteral("b\r\nb\r\n"));
  EXPECT_EQ(source.Text(), QStringLiteral("b\r\nb\r\n"));
  QTest::keyClick(source.Widget(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(source.Text(), QStringLiteral("typed a\n"));
}

TEST(QsciSourceControlTest, ANewLineGetsTheLineEndThatMostLinesHave) {
  QWidget host;
  host.show();
  QsciSourceControl source(&host, SourceAccess::Edit);
  source.SetText(QStringLiteral("a\nb\nc\r\n"));
  QTest::keyClick(source.Widget(), Qt::Key_Return);
  EXPECT_EQ(source.Text(), QStringLiteral("\na\nb\nc\r\n"));
}

TEST(QsciSourceControlTest, ANewLineGetsTheLineEndOfTheText) {
  QWidget host;
  host.show();
  QsciSourceControl source(&host, SourceAccess::Edit);
  for (const QString &end : {QStringLiteral("\r\n"), QStringLiteral("\n"), QStringLiteral("\r")}) {
    source.SetText(QStringLiteral("a") + end + QStringLiteral("b"));
    QTest::keyClick(source.Widget(), Qt::Key_Return);
    EXPECT_EQ(source.Text(), end + QStringLiteral("a") + end + QStringLiteral("b"));
  }
}

/// What has waves, in the control's bytes.
std::vector<QByteArray> Waved(QsciSourceControl &source) {
  constexpr unsigned long Indicator = QsciScintilla::INDIC_CONTAINER + 3;
  const QByteArray bytes = source.Text().toUtf8();
  std::vector<QByteArray> waved;
  for (long at = 0; at < bytes.size();) {
    const long end =
        EditorOf(source)->SendScintilla(QsciScintilla::SCI_INDICATOREND, Indicator, at);
    if (EditorOf(source)->SendScintilla(QsciScintilla::SCI_INDICATORVALUEAT, Indicator, at) != 0)
      waved.push_back(bytes.mid(at, end - at));
    if (end <= at) break;
    at = end;
  }
  return waved;
}

TEST(QsciSourceControlTest, WavesLieUnderTheirWordsAndGoAlongWithThem) {
  QWidget host;
  QsciSourceControl source(&host, SourceAccess::Edit);
  source.SetText(QStringLiteral("\u00e4 \U0001F600 one\r\ntw\u00f6 three"));
  source.DrawWaves({0, 19}, {{5, 8}, {10, 13}});
  EXPECT_EQ(Waved(source), (std::vector<QByteArray>{"one", "tw\xC3\xB6"}));
  source.ReplaceParts({{{0, 1}, QStringLiteral("longer")}});
  EXPECT_EQ(Waved(source), (std::vector<QByteArray>{"one", "tw\xC3\xB6"}));
  source.DrawWaves({15, 24}, {{19, 24}});
  EXPECT_EQ(Waved(source), (std::vector<QByteArray>{"one", "three"}));
  source.MarkStretches({{0, 24}});
  source.MarkStretches({});
  EXPECT_EQ(Waved(source).size(), 2U) << "found places have marks of their own";
}

TEST(QsciSourceControlTest, WhatIsInSightAndAtAPointIsToldInOffsets) {
  QWidget host;
  host.resize(400, 300);
  QsciSourceControl source(&host, SourceAccess::View);
  source.Widget()->resize(400, 300);
  host.show();
  const QString line = QStringLiteral("\u00e4 \U0001F600 one\r\n");
  source.SetText(line.repeated(1'000));
  source.SetCaret(500, 0);
  source.CenterCaret();
  const TextStretch sight = source.InSight();
  EXPECT_LT(sight.start, 500 * line.size());
  EXPECT_GT(sight.start, 400 * line.size());
  EXPECT_GT(sight.end, 500 * line.size());
  EXPECT_LT(sight.end, 600 * line.size());
  source.SetCaret(500, 6);
  const QPoint caret = source.Widget()->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
  EXPECT_EQ(source.OffsetAt(caret), 500 * line.size() + 6);
}

TEST(QsciSourceControlTest, WhatUndoBringsBackIsAChange) {
  QWidget host;
  QsciSourceControl source(&host, SourceAccess::Edit);
  source.SetText(QStringLiteral("one two three"));
  source.ReplaceParts({{{4, 7}, {}}});
  source.TakeChange();
  source.Edit(EditingCommand::Undo);
  EXPECT_EQ(source.TakeChange(), (TextStretch{4, 7}));
}

}  // namespace velor
