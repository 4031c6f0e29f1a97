// SPDX-License-Identifier: GPL-3.0-or-later
// Which words of a page are judged, and by which language: the same in design view and in source.
#include "page/saving/PageMask.h"
#include "page/source/SourceText.h"
#include "tests/engine/bridge/BridgeFixture.h"

#include <QRegularExpression>
#include <QStringList>

#include <gtest/gtest.h>

namespace velor {
namespace {

class SpelledLines : public BridgeFixture {
 protected:
  /// A line with "{de}" where a language begins, and one "*" for what is not judged; empty where
  /// there is nothing to judge.
  static QString Shown(const SpelledLine &line) {
    static const QRegularExpression masked(QStringLiteral("\uFFFC+"));
    if (QString(line.text).remove(masked).trimmed().isEmpty()) return {};
    QString text = line.text;
    for (auto run = line.runs.rbegin(); run != line.runs.rend(); ++run)
      text.insert(run->start, u'{' + run->language + u'}');
    return text.replace(masked, QStringLiteral("*")).simplified();
  }
  QStringList InDesignView(const QString &source) {
    page_.Load(PageMask(source).MaskedText());
    QStringList lines;
    const QVariantList told = Evaluate(QStringLiteral("velor.spelledText().lines")).toList();
    for (const QVariant &each : told) {
      SpelledLine line{each.toList().value(0).toString()};
      for (const QVariant &run : each.toList().value(1).toList())
        line.runs.push_back({run.toList().value(0).toLongLong(), run.toList().value(1).toString()});
      lines << Shown(line);
      if (lines.last().isEmpty()) lines.removeLast();
    }
    return lines;
  }
  static QStringList InSource(const QString &source) {
    QStringList lines;
    for (SourceTextReader reader(source); !reader.IsAtEnd();) {
      const QString line = Shown(reader.Next().spelled);
      if (!line.isEmpty()) lines << line;
    }
    return lines;
  }
  void Compare(const char *text) {
    const QString source = QString::fromUtf8(text);
    const QStringList lines = InDesignView(source);
    EXPECT_FALSE(lines.isEmpty()) << text;
    EXPECT_EQ(InSource(source).join(u'|').toStdString(), lines.join(u'|').toStdString()) << text;
  }
};

TEST_F(SpelledLines, AreTheSameInSourceAsInDesignView) {
  for (const char *page : {
           "<HTML lang=en><title>t</title><BODY>\r\n<p id=a>the hose in\r\n  the gardn\r\n"
           "<P align=left>ho<B>s</B>e<!-- hose --> <CODE>xyzzy</CODE> x\r\n<p lang=de>Haus hose\r\n"
           "</BODY></HTML>\r\n",
           "<meta http-equiv=content-language content='fr, en'><body><p>un caf&eacute; "
           "<span lang=en>one</span> deux",
           "<p>one<% if (a > b) %>two <?php echo 1 > 2; ?>three {{ name }} four",
           "<ul lang=de><li lang=fr>a<li>b</ul>c<dl><dt lang=it>d<dd>e</dl>f",
           "<table lang=de><caption>a</caption><tr lang=fr><td lang=it>b<td>c<tr><td>d</table>e",
           "<p translate=no>a <b translate=yes>b</b><p spellcheck=false>c d<p>e<br>f<img alt=x>g",
           "<div lang=de><div>a</div>b</div>c<p>d<select><option>e</select>f<button>g</button>h",
           "<p>a<textarea>b</textarea>c<hr>d<noscript>e</noscript><p>f<kbd>g</kbd>h<samp>i</samp>j",
           "<h1 lang=de>a</h1>b<blockquote lang=fr>c<p>d</blockquote>e<center>f</center>g",
       })
    Compare(page);
}

}  // namespace
}  // namespace velor
