// SPDX-License-Identifier: GPL-3.0-or-later
// What the real source control looks like, and how it is typed into.
#include "platform/qt/QsciSourceControl.h"
#include "platform/qt/SourceColors.h"
#include "tests/support/Checks.h"

#include <QFontInfo>
#include <QPalette>
#include <QTest>
#include <QWidget>
#include <Qsci/qscilexerhtml.h>
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
  EXPECT_EQ(lexer->paper(QsciLexerHTML::Tag), dark.color(QPalette::Base));
  EXPECT_EQ(lexer->color(QsciLexerHTML::Tag), SourceColor(SourceRole::Tag, dark));
}

TEST(QsciSourceControlTest, TheFontHasOnePitchThatIsReallyThere) {
  QWidget host;
  QsciSourceControl source(&host, SourceAccess::View);
  const QFont font = EditorOf(source)->lexer()->font(QsciLexerHTML::Default);
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
  EXPECT_EQ(style(QsciScintilla::SCI_STYLEGETBACK), 0x00FF00) << "kept when the palette changes";
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

}  // namespace velor
