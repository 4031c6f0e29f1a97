// SPDX-License-Identifier: GPL-3.0-or-later
// What the golden cases cannot show: messages, the pointer, the clipboard, whole-document calls.
#include "tests/engine/bridge/BridgeCase.h"
#include "tests/engine/bridge/BridgeFixture.h"
#include "tests/support/Waiting.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QWebChannel>
#include <QWebEnginePage>
#include <QWebEngineScript>

#include <gtest/gtest.h>

namespace velor {
namespace {

/// The program's side of the channel: stores what the bridge pushes.
class Host : public QObject {
  Q_OBJECT

 public:
  Q_INVOKABLE void pushState(const QString &json) {
    state = QJsonDocument::fromJson(json.toUtf8()).object();
  }
  Q_INVOKABLE void pushMirror(const QString &html) { mirror = html; }
  Q_INVOKABLE void pushMouse(int x, int y) { mouse = QPoint(x, y); }

  QJsonObject state;
  QString mirror;
  QPoint mouse;
};

class Bridge : public BridgeFixture {
 protected:
  void Load(const QString &html) { page_.Load(html); }
  /// Replaces the channel by an array that collects the pushes.
  void CollectPushes() {
    Evaluate(
        QStringLiteral("globalThis.pushed = []; globalThis.mirrors = []; globalThis.mouse = [];"
                       "velor.host = {pushState(json) { pushed.push(JSON.parse(json)); },"
                       "              pushMirror(html) { mirrors.push(html); },"
                       "              pushMouse(x, y) { mouse.push([x, y]); }};"
                       "velor.start({})"));
    ASSERT_TRUE(Comes(QStringLiteral("pushed.length > 0")));
  }
};

TEST_F(Bridge, PushesItsFirstStateAfterTheStart) {
  Load(QStringLiteral("<p>one|</p>"));
  CollectPushes();
  EXPECT_TRUE(Evaluate(QStringLiteral("pushed[0].dirty")).toBool());
  EXPECT_TRUE(Comes(QStringLiteral("mirrors[0]?.includes('one')")));
  EXPECT_EQ(Text(QStringLiteral("pushed[0].element.tag")), QStringLiteral("P"));
}

TEST_F(Bridge, MakesTextBoldThatThePagesRulesMadeLightWithoutABoldElementInItsLike) {
  Load(
      QStringLiteral("<p><style>.light { font-weight: normal }</style>"
                     "<b><span class=\"light\">^one|</span></b></p>"));
  Evaluate(QStringLiteral("velor.exec(5000)"));
  EXPECT_EQ(Text(QStringLiteral("document.querySelector('p').lastChild.outerHTML")),
            QStringLiteral("<span class=\"light\"><b>one</b></span>"));
  EXPECT_EQ(Evaluate(QStringLiteral("inside.statusOf(5000)")).toInt(), 7);
}

TEST_F(Bridge, TellsTheClassesThatStyleSheetsDefineForAnElementInItsPlace) {
  Load(
      QStringLiteral("<style>.any, p.intro:hover { color: red } td.cell, .menu li.now { top: 0 }"
                     "@media print { :is(h1, h2).head, p.paper::before { top: 0 } }"
                     ".box > p:not(.no)[title=\".x\"].titled, .box p.a.b { top: 0 }"
                     ".\\31 st, .off p.far { top: 0 } p { } .box { }</style>"
                     "<div class=\"box\"><p class=\"any x\" title=\".x\">a <b>b|</b></p></div>"));
  EXPECT_EQ(
      Text(QStringLiteral("JSON.stringify(velor.choicesOnPath(velor.state().pathNumbers[2]))"))
          .toStdString(),
      "{\"removable\":true,\"classes\":[[\"1st\",false],[\"a\",false],"
      "[\"any\",true],[\"b\",false],[\"box\",false],[\"intro\",false],"
      "[\"paper\",false],[\"titled\",false]]}");
  EXPECT_EQ(
      Text(QStringLiteral("JSON.stringify(velor.choicesOnPath(velor.state().pathNumbers[0]))"))
          .toStdString(),
      "{\"removable\":false,"
      "\"classes\":[[\"1st\",false],[\"any\",false],[\"box\",false]]}");
}

TEST_F(Bridge, AnElementOfAPathIsTheSameOneAfterAMoveAndRefusedWhenItHasGone) {
  Load(QStringLiteral("<p class=\"one\">a|</p><p class=\"two\">b</p>"));
  Evaluate(
      QStringLiteral("globalThis.number = velor.state().pathNumbers[1];"
                     "getSelection().collapse(document.querySelector('.two').firstChild, 1)"));
  Evaluate(QStringLiteral("velor.setClassOnPath(number, 'x', true)"));
  EXPECT_EQ(Text(QStringLiteral("document.querySelector('.x').textContent")), QStringLiteral("a"));
  EXPECT_EQ(Text(QStringLiteral("velor.properties('element', number).path")),
            QStringLiteral("body › p.one.x"));
  Evaluate(
      QStringLiteral("document.querySelector('.one').remove();"
                     "velor.actOnPath(number, 'delete')"));
  EXPECT_EQ(Text(QStringLiteral("document.body.textContent")), QStringLiteral("b"));
  EXPECT_EQ(Text(QStringLiteral("JSON.stringify(velor.properties('element', number))")),
            QStringLiteral("{}"));
}

TEST_F(Bridge, PushesAfterAMoveOfTheSelectionWithoutTheMarkup) {
  Load(QStringLiteral("<p>one|</p><h1>two</h1>"));
  CollectPushes();
  ASSERT_TRUE(Comes(QStringLiteral("mirrors.length === 1")));
  Evaluate(QStringLiteral(
      "mirrors.length = 0; getSelection().collapse(document.querySelector('h1').firstChild, 1)"));
  ASSERT_TRUE(Comes(QStringLiteral("pushed.at(-1).blockFormat === 'Heading 1'")));
  EXPECT_FALSE(Evaluate(QStringLiteral("pushed.at(-1).dirty || mirrors.length > 0")).toBool());
}

TEST_F(Bridge, PushesOnceForManyChangesAtOnce) {
  Load(QStringLiteral("<p>^one|</p>"));
  CollectPushes();
  Evaluate(QStringLiteral("pushed.length = 0; for (let i = 0; i < 9; i++) velor.exec(5000)"));
  ASSERT_TRUE(Comes(QStringLiteral("pushed.length > 0 && pushed.at(-1).commands[5000] === 7")));
  EXPECT_LE(Evaluate(QStringLiteral("pushed.length")).toInt(), 2);
}

TEST_F(Bridge, TellsOfALargeDocumentWhatChangedAlone) {
  Load(QStringLiteral("<p>one|</p><p>%1</p>").arg(QString(250000, QLatin1Char('x'))));
  CollectPushes();
  ASSERT_TRUE(Comes(QStringLiteral("mirrors.length === 1")));
  Evaluate(QStringLiteral("velor.changes()"));
  page_.Type(QStringLiteral("!"));
  ASSERT_TRUE(Comes(QStringLiteral("mirrors.at(-1).includes('<p>one!</p>')")));
  EXPECT_LT(Evaluate(QStringLiteral("mirrors.at(-1).length")).toInt(), 200);
}

TEST_F(Bridge, TellsOfChangesThatLeaveNoIdleTime) {
  Load(QStringLiteral("<p>one|</p>"));
  CollectPushes();
  ASSERT_TRUE(Comes(QStringLiteral("mirrors.length === 1")));
  // One task, which nothing else comes between; a key every 20 ms.
  Evaluate(
      QStringLiteral("(async () => { mirrors.length = 0; const now = () => performance.now();"
                     "  for (const end = now() + 800; now() < end;) {"
                     "    document.execCommand('insertText', false, 'x'); await null;"
                     "    for (const next = now() + 20; now() < next;);"
                     "  }"
                     "  globalThis.told = mirrors.length; })()"));
  ASSERT_TRUE(Comes(QStringLiteral("globalThis.told !== undefined")));
  EXPECT_EQ(Evaluate(QStringLiteral("told")).toInt(), 1);
}

TEST_F(Bridge, TellsOfTheSameChangesAgainWhereTheyWereNotHeard) {
  Load(QStringLiteral("<p>one|</p><p>two</p>"));
  Evaluate(QStringLiteral("const first = velor.changes().revision; velor.changes()"));
  page_.Type(QStringLiteral("a"));
  Evaluate(QStringLiteral("velor.changes()"));
  page_.Type(QStringLiteral("b"));
  EXPECT_EQ(Evaluate(QStringLiteral("velor.changes(first).steps.length")).toInt(), 2);
  EXPECT_EQ(Text(QStringLiteral("velor.changes(first - 1).html")),
            Text(QStringLiteral("velor.serialize()")));
}

TEST_F(Bridge, TellsOfChangesInWhatHasLeftItsPlaceMeanwhile) {
  Load(
      QStringLiteral("<div id=a><p>one|</p><p>two</p></div><div id=b><p>three</p><p>four</p></div>"
                     "<div id=c><i>c</i><b>d</b></div>"));
  Evaluate(QStringLiteral("markup.follow(); const by = (id) => document.getElementById(id)"));
  const QStringList changes = {
      QStringLiteral("by('a').append(by('c')); by('c').append('x'); by('c').title = 't'"),
      QStringLiteral("const a = by('a'); a.remove(); a.firstChild.append('&'); by('b').append(a)"),
      QStringLiteral("by('b').replaceWith(...by('b').childNodes)"),
      QStringLiteral("by('a').parentNode.prepend(by('a').cloneNode(true)); by('c').remove()"),
      QStringLiteral("document.body.append(by('a'), 'text', by('a').cloneNode(true))"),
      QStringLiteral("document.documentElement.lang = 'de'; document.title = '<&>'"),
      QStringLiteral("document.prepend(document.createComment('first'))"),
      QStringLiteral("document.body.innerHTML = '<pre>\\n\\nx</pre><p>y\\u00a0<i>z</i></p>'"),
      QStringLiteral("document.querySelector('pre').append('<'); document.body.append('>')"),
      QStringLiteral("const body = document.body; body.remove(); body.append('late');"
                     "document.documentElement.append(body)"),
  };
  for (const QString &change : changes) {
    Evaluate(QStringLiteral("{%1}").arg(change));
    EXPECT_EQ(Text(QStringLiteral("markup.told()")), Text(QStringLiteral("velor.serialize()")))
        << qPrintable(change);
    Evaluate(QStringLiteral("markup.told()"));
  }
  EXPECT_GT(Evaluate(QStringLiteral("markup.tellings()")).toInt(), 10);
}

TEST_F(Bridge, TalksToTheProgramThroughTheChannel) {
  Host host;
  QWebChannel channel;
  channel.registerObject(QStringLiteral("velorHost"), &host);
  page_.Engine().setWebChannel(&channel, QWebEngineScript::ApplicationWorld);
  page_.AddChannelScript();
  Load(QStringLiteral("<p><b>one|</b></p>"));
  EXPECT_TRUE(WaitFor([&host] {
    return host.state[QStringLiteral("element")][QStringLiteral("tag")] == QStringLiteral("B");
  }));
  EXPECT_TRUE(WaitFor([&host] { return host.mirror.contains(QStringLiteral("<b>one</b>")); }));
  page_.Click({30, 40});
  EXPECT_TRUE(WaitFor([&host] { return host.mouse == QPoint(30, 40); }));
}

TEST_F(Bridge, ReportsWhereThePointerPresses) {
  Load(QStringLiteral("<p>one|</p>"));
  CollectPushes();
  page_.Click({50, 60});
  EXPECT_TRUE(Comes(QStringLiteral("mouse.some(([x, y]) => x === 50 && y === 60)")));
}

TEST_F(Bridge, SelectsAPictureThatIsClicked) {
  Load(
      QStringLiteral("<p>one|</p><img id='i' width='100' height='100' "
                     "style='position: absolute; left: 200px; top: 200px'>"));
  page_.Click({250, 250});
  EXPECT_TRUE(Comes(QStringLiteral("velor.state().selection === 'Control'")));
  EXPECT_EQ(Text(QStringLiteral("velor.state().element.tag")), QStringLiteral("IMG"));
  EXPECT_EQ(Text(QStringLiteral("velor.state().element.attributes[0].join()")),
            QStringLiteral("id,i"));
}

TEST_F(Bridge, TakesAPasteOfTheEngineBackInOneStep) {
  QGuiApplication::clipboard()->setText(QStringLiteral("two three"));
  Load(QStringLiteral("<p>one |</p>"));
  const QString loaded = Text(QStringLiteral("velor.serialize()"));
  page_.Engine().triggerAction(QWebEnginePage::Paste);
  ASSERT_TRUE(Comes(QStringLiteral("document.body.textContent.includes('three')")));
  Evaluate(QStringLiteral("velor.exec(5049)"));
  EXPECT_EQ(Text(QStringLiteral("velor.serialize()")), loaded);
  EXPECT_FALSE(Evaluate(QStringLiteral("inside.history.canUndo()")).toBool());
}

TEST_F(Bridge, CutsOverParagraphsInOneStepAndFillsTheClipboard) {
  QGuiApplication::clipboard()->clear();
  Load(QStringLiteral("<h1>one ^two</h1><p>three| four</p>"));
  page_.Engine().triggerAction(QWebEnginePage::Cut);
  ASSERT_TRUE(Comes(QStringLiteral("!document.body.textContent.includes('two')")));
  EXPECT_EQ(Text(QStringLiteral(
                "document.querySelectorAll('body *').length + document.body.firstChild.tagName")),
            QStringLiteral("1H1"));
  EXPECT_TRUE(WaitFor(
      [] { return QGuiApplication::clipboard()->text().contains(QStringLiteral("three")); }));
  Evaluate(QStringLiteral("velor.exec(5049)"));
  EXPECT_EQ(Text(QStringLiteral("markup.read()")),
            QStringLiteral("<h1>one ^two</h1><p>three| four</p>"));
}

TEST_F(Bridge, UndoesAChangeThatNoCommandMade) {
  Load(QStringLiteral("<p>one|</p>"));
  const QString loaded = Text(QStringLiteral("velor.serialize()"));
  Evaluate(QStringLiteral("document.querySelector('p').setAttribute('class', 'x')"));
  Evaluate(QStringLiteral("velor.exec(5049)"));
  EXPECT_EQ(Text(QStringLiteral("velor.serialize()")), loaded);
}

TEST_F(Bridge, ForgetsTheOldestStepsBeyondAThousand) {
  Load(QStringLiteral("<p>^one|</p>"));
  Evaluate(QStringLiteral("for (let i = 0; i < 1100; i++) velor.exec(5000)"));
  EXPECT_EQ(Evaluate(QStringLiteral("let n = 0; while (inside.history.canUndo()) {"
                                    "velor.exec(5049); n++; } n"))
                .toInt(),
            1000);
}

TEST_F(Bridge, LeavesFewRangesForTheEngineToFollowHoweverMuchACommandChanges) {
  QString body = QStringLiteral("^");
  for (int line = 0; line < 200; ++line) body += QStringLiteral("<p>one <b>two</b></p>");
  Load(body + QStringLiteral("<p>end|</p>"));
  Evaluate(
      QStringLiteral("globalThis.made = 0;"
                     "for (const [owner, name] of [[Document, 'createRange'],"
                     "    [Range, 'cloneRange'], [Selection, 'getRangeAt']]) {"
                     "  const make = owner.prototype[name];"
                     "  owner.prototype[name] = function (...values) {"
                     "    made++;"
                     "    return make.apply(this, values);"
                     "  };"
                     "}"));
  const QStringList commands = {QStringLiteral("5000"), QStringLiteral("5024"),
                                QStringLiteral("5051"), QStringLiteral("5051"),
                                QStringLiteral("5018"), QStringLiteral("5043, 'Heading 1'"),
                                QStringLiteral("5004")};
  for (const QString &command : commands) {
    Evaluate(QStringLiteral("made = 0; velor.exec(%1); velor.state()").arg(command));
    EXPECT_LT(Evaluate(QStringLiteral("made")).toInt(), 30) << qPrintable(command);
  }
}

TEST_F(Bridge, TellsOfAKeyOnce) {
  Load(QStringLiteral("<p>one|</p>"));
  CollectPushes();
  ASSERT_TRUE(Comes(QStringLiteral("mirrors.length === 1")));
  for (const QChar key : QStringLiteral("two words")) {
    Evaluate(QStringLiteral("pushed.length = 0"));
    page_.Type(key);
    Evaluate(
        QStringLiteral("globalThis.frames = 0; (function pass() {"
                       "if (++frames < 3) requestAnimationFrame(pass); })()"));
    ASSERT_TRUE(Comes(QStringLiteral("frames === 3")));
    EXPECT_EQ(Evaluate(QStringLiteral("pushed.length")).toInt(), 1) << key.toLatin1();
  }
}

TEST_F(Bridge, TakesAllOfALongSelectionIn) {
  Load(QStringLiteral("<p>one</p>").repeated(3000));
  Evaluate(QStringLiteral("velor.exec(5035); velor.exec(5024)"));
  EXPECT_EQ(Evaluate(QStringLiteral("document.querySelectorAll('p[align=center]').length")).toInt(),
            3000);
  Evaluate(QStringLiteral("velor.exec(5051)"));
  EXPECT_EQ(Evaluate(QStringLiteral("document.querySelectorAll('ul > li').length")).toInt(), 3000);
}

TEST_F(Bridge, PutsTheSelectionBackIntoAFreshCopyOfThePage) {
  Load(QStringLiteral("<p>one <b>t^wo</b> three</p><p>fo|ur</p>"));
  // A cut text counts as one, as it will be one when parsed again.
  Evaluate(QStringLiteral("document.querySelectorAll('p')[1].firstChild.splitText(1)"));
  const QVariantMap mirror = Evaluate(QStringLiteral("velor.mirror()")).toMap();
  const QByteArray places =
      QJsonDocument(
          QJsonObject::fromVariantMap({{QStringLiteral("start"), mirror[QStringLiteral("start")]},
                                       {QStringLiteral("end"), mirror[QStringLiteral("end")]}}))
          .toJson(QJsonDocument::Compact);
  Load(mirror[QStringLiteral("html")].toString());
  Evaluate(QStringLiteral("const places = %1; velor.restore(places.start, places.end)")
               .arg(QString::fromUtf8(places)));
  EXPECT_EQ(Text(QStringLiteral("markup.read()")),
            QStringLiteral("<p>one <b>t^wo</b> three</p><p>fo|ur</p>"));
}

TEST_F(Bridge, ShowsDetailsWithoutATraceInThePage) {
  Load(QStringLiteral("<p>one|</p>"));
  const QString loaded = Text(QStringLiteral("velor.serialize()"));
  const QString glyph =
      QStringLiteral("getComputedStyle(document.querySelector('p'), '::before').content");
  EXPECT_EQ(Text(glyph), QStringLiteral("none"));
  Evaluate(QStringLiteral("velor.setDetails(true)"));
  EXPECT_NE(Text(glyph), QStringLiteral("none"));
  EXPECT_EQ(Text(QStringLiteral("velor.serialize()")), loaded);
  EXPECT_FALSE(Evaluate(QStringLiteral("inside.history.canUndo()")).toBool());
  Evaluate(QStringLiteral("velor.setDetails(false)"));
  EXPECT_EQ(Text(glyph), QStringLiteral("none"));
}

TEST_F(Bridge, KeepsALineBreakThatComesFirstInPreformattedText) {
  Load(QStringLiteral("<p>one|</p><pre>\n\ntwo</pre>"));
  EXPECT_TRUE(
      Text(QStringLiteral("velor.serialize()")).contains(QStringLiteral("<pre>\n\ntwo</pre>")));
}

TEST_F(Bridge, StartsAgainOnADocumentSetInPlace) {
  Load(QStringLiteral("<p>one|</p>"));
  page_.Type(QStringLiteral("x"));
  Evaluate(
      QStringLiteral("document.open(); document.write('<p>two</p>'); document.close();"
                     "markup.countKeys(); velor.start()"));
  EXPECT_FALSE(Evaluate(QStringLiteral("inside.history.canUndo()")).toBool());
  page_.Type(QStringLiteral("y"));
  EXPECT_EQ(Text(QStringLiteral("document.body.textContent")), QStringLiteral("ytwo"));
  Evaluate(QStringLiteral("velor.exec(5049)"));
  EXPECT_EQ(Text(QStringLiteral("document.body.innerHTML")), QStringLiteral("<p>two</p>"));
}

TEST_F(Bridge, CleansWhatIsDroppedFromElsewhereAndTakesItBackInOneStep) {
  Load(QStringLiteral("<p>one|</p><p>two</p>"));
  const QString loaded = Text(QStringLiteral("velor.serialize()"));
  Evaluate(
      QStringLiteral("{ const { right, top } = markup.place('p:last-child');"
                     "markup.drop('<p class=Mso>new <b>words</b></p>', right - 1, top + 2) }"));
  EXPECT_EQ(Text(QStringLiteral("document.body.innerHTML")),
            QStringLiteral("<p>one</p><p>twonew <b>words</b></p>"));
  Evaluate(QStringLiteral("velor.exec(5049)"));
  EXPECT_EQ(Text(QStringLiteral("velor.serialize()")), loaded);
}

TEST_F(Bridge, WritesABlankThatWasTypedAtTheEndAsABlankAtOnce) {
  Load(QStringLiteral("<p>one|</p>"));
  page_.Type(QStringLiteral(" "));
  EXPECT_TRUE(Text(QStringLiteral("velor.serialize()")).contains(QStringLiteral("<p>one </p>")));
  page_.Type(QStringLiteral("two"));
  EXPECT_TRUE(Text(QStringLiteral("velor.serialize()")).contains(QStringLiteral("<p>one two</p>")));
}

TEST_F(Bridge, AppliesNothingInsideAnIslandThatIsClosedToEditing) {
  Load(QStringLiteral("<p>one|<span contenteditable='false'>two</span></p>"));
  Evaluate(
      QStringLiteral("getSelection().setBaseAndExtent(document.querySelector('span'), 0,"
                     "                                document.querySelector('span'), 1)"));
  const QString loaded = Text(QStringLiteral("velor.serialize()"));
  for (const int number : {5000, 5004, 5024, 5051}) {
    EXPECT_EQ(Evaluate(QStringLiteral("inside.statusOf(%1)").arg(number)).toInt(), 1);
    Evaluate(QStringLiteral("velor.exec(%1)").arg(number));
  }
  Evaluate(QStringLiteral("velor.pasteHTML('<b>x</b>')"));
  EXPECT_EQ(Text(QStringLiteral("velor.serialize()")), loaded);
}

TEST_F(Bridge, PutsNothingIntoARuleThatTheCaretIsIn) {
  Load(QStringLiteral("<p>one</p><hr><p>two</p>"));
  Evaluate(
      QStringLiteral("document.getSelection().collapse(document.querySelector('hr'), 0);"
                     "velor.pasteHTML('<h2>x</h2>')"));
  EXPECT_EQ(Text(QStringLiteral("markup.read()")).toStdString(),
            "<p>one</p><hr><h2>x|</h2><p>two</p>");
}

TEST_F(Bridge, NeverRunsAScriptThatIsPutIn) {
  Load(QStringLiteral("<p>one|</p>"));
  Evaluate(
      QStringLiteral("velor.pasteHTML('<script>document.title = \"ran\"</script>"
                     "<img src=\"none\" onerror=\"document.title = 1\">')"));
  ASSERT_TRUE(Comes(QStringLiteral("document.images[0].complete")));
  EXPECT_EQ(Text(QStringLiteral("document.title")), QString());
  EXPECT_EQ(Evaluate(QStringLiteral("document.scripts.length")).toInt(), 1);
}

}  // namespace
}  // namespace velor

#include "BridgeTest.moc"
