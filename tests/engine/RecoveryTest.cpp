// SPDX-License-Identifier: GPL-3.0-or-later
// A page whose process ends comes back as it was.
#include "platform/EditingCommands.h"
#include "tests/engine/ComponentFixture.h"

#include <QTimer>

#include <algorithm>
#include <csignal>
#include <gmock/gmock.h>

namespace velor {

namespace {

class Recovery : public WebEditorTest {
 protected:
  void Kill() {
    const qint64 process = Page()->renderProcessPid();
    ASSERT_GT(process, 0);
    ASSERT_EQ(::kill(static_cast<pid_t>(process), SIGKILL), 0);
  }
  bool ComesBack(size_t times = 1) {
    return WaitFor([=, this] {
      return static_cast<size_t>(
                 std::count(listener_.reports.begin(), listener_.reports.end(), back_)) == times;
    });
  }
  /// From now on the page notes the last mirror that it was asked for and that it pushed.
  void Note() {
    ASSERT_TRUE(WaitFor([this] { return listener_.displayChanges > 0; }));
    Evaluate(QStringLiteral(
        "globalThis.given = { mirror: '', pushed: '' };"
        "{ const { mirror } = velor; const { pushMirror } = velor.host;"
        "velor.mirror = (known) => { given.mirror = velor.serialize(); return mirror(known); };"
        "velor.host.pushMirror = (told) => { given.pushed = told; pushMirror(told); }; }"));
  }
  bool Gave(const QString &what, const QString &text) {
    return WaitFor(
        [&] { return Evaluate(QStringLiteral("given.%1").arg(what)).toString().contains(text); });
  }
  void TypeAndSee(const QString &text, const QString &result) {
    TypeText(text);
    ASSERT_TRUE(WaitFor([&] { return DocumentHolds(result); }))
        << qPrintable(editor_->DocumentHTML());
  }

  const QString stopped_ = QStringLiteral("The page's display stopped and is being restored.");
  const QString back_ = QStringLiteral("The page's display has been restored.");
};

TEST_F(Recovery, WhatWasTypedIsStillThere) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  TypeAndSee(QStringLiteral(" two"), QStringLiteral("<p>One two</p>"));
  Kill();
  ASSERT_TRUE(ComesBack());
  EXPECT_THAT(listener_.reports, ::testing::ElementsAre(stopped_, back_));
  EXPECT_TRUE(Evaluate(QStringLiteral("document.body.innerHTML"))
                  .toString()
                  .contains(QStringLiteral("<p>One two</p>")));
  EXPECT_EQ(listener_.completions, 1);
}

TEST_F(Recovery, TheMirrorFollowsTypingWithoutAnyoneReading) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  Note();
  TypeText(QStringLiteral("!"));
  ASSERT_TRUE(Gave(QStringLiteral("pushed"), QStringLiteral("One!")));
  Kill();
  ASSERT_TRUE(ComesBack());
  EXPECT_TRUE(DocumentHolds(QStringLiteral("<p>One!</p>")));
}

TEST_F(Recovery, NoKeyPaysForTheMirror) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  Note();
  // From a key's input to the end of the push that it leads to no markup is read.
  Evaluate(QStringLiteral(
      "given.paid = 0; given.pushes = 0; {"
      "  let atKey = false;"
      "  addEventListener('beforeinput', () => { atKey = true; }, true);"
      "  const { pushState } = velor.host;"
      "  velor.host.pushState = (told) => { pushState(told); given.pushes++;"
      "    queueMicrotask(() => { atKey = false; }); };"
      "  const { get } = Object.getOwnPropertyDescriptor(Element.prototype, 'outerHTML');"
      "  Object.defineProperty(Element.prototype, 'outerHTML', { configurable: true,"
      "    get() { if (atKey) given.paid++; return get.call(this); } });"
      "}"));
  // One key after the other: two may share an animation frame, and then a push.
  for (int key = 1; key <= 2; ++key) {
    TypeText(QStringLiteral("a"));
    ASSERT_TRUE(WaitFor([&] { return Evaluate(QStringLiteral("given.pushes")).toInt() >= key; }));
  }
  ASSERT_TRUE(Gave(QStringLiteral("pushed"), QStringLiteral("Oneaa")));
  EXPECT_EQ(Evaluate(QStringLiteral("given.paid")).toInt(), 0);
}

TEST_F(Recovery, ALargePageKeepsItsMirrorToo) {
  QByteArray page("<p>start</p>");
  while (page.size() < 400'000) page += "<p>One more paragraph of a long page.</p>\n";
  LoadWithCaret(page, QStringLiteral("p"));
  Note();
  TypeText(QStringLiteral("!"));
  ASSERT_TRUE(Gave(QStringLiteral("mirror"), QStringLiteral("start!")));
  Kill();
  ASSERT_TRUE(ComesBack());
  EXPECT_TRUE(DocumentHolds(QStringLiteral("<p>start!</p>")));
}

TEST_F(Recovery, TypingGoesOnWhereItWas) {
  LoadWithCaret("<p>One</p><p>Two</p>", QStringLiteral("p"));
  Note();
  TypeText(QStringLiteral("ab"));
  ASSERT_TRUE(Gave(QStringLiteral("mirror"), QStringLiteral("Oneab")));
  Kill();
  ASSERT_TRUE(ComesBack());
  editor_->SetFocus();
  TypeAndSee(QStringLiteral("c"), QStringLiteral("<p>Oneabc</p><p>Two</p>"));
}

TEST_F(Recovery, AnUneditedPageIsStillUnedited) {
  // The engine's serialisation of this is not what it makes of its own serialisation.
  const QByteArray bytes("<PRE>\n\n first</PRE>\r\n<p><table><tr><td>x</table>");
  LoadWithCaret(bytes, QStringLiteral("pre"));
  const QString before = editor_->DocumentHTML();
  Kill();
  ASSERT_TRUE(ComesBack());
  EXPECT_EQ(editor_->DocumentHTML(), before);
  editor_->SaveDocument(Logic(QStringLiteral("copy.htm")));
  EXPECT_EQ(Bytes(QStringLiteral("copy.htm")), bytes);
}

TEST_F(Recovery, AnEditedPageIsSavedInItsOwnCharsetAfterwards) {
  LoadWithCaret("<meta charset=big5>\r\n<p>\xa4\xa4</p>", QStringLiteral("p"));
  TypeAndSee(QStringLiteral("x"), QStringLiteral("\u4e2dx</p>"));
  Kill();
  ASSERT_TRUE(ComesBack());
  editor_->SaveDocument(Logic(QStringLiteral("copy.htm")));
  EXPECT_TRUE(Bytes(QStringLiteral("copy.htm")).contains("\xa4\xa4x</p>"));
}

TEST_F(Recovery, ReadingAndSavingAnswerWhileThePageIsGone) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  TypeAndSee(QStringLiteral("!"), QStringLiteral("<p>One!</p>"));
  Kill();
  EXPECT_TRUE(DocumentHolds(QStringLiteral("<p>One!</p>")));
  editor_->SaveDocument(Logic(QStringLiteral("copy.htm")));
  EXPECT_TRUE(Bytes(QStringLiteral("copy.htm")).contains("<p>One!</p>"));
  editor_->ExecCommand(EditingCommand::Bold, ExecOption::Default, {});
  ASSERT_TRUE(ComesBack());
  EXPECT_TRUE(DocumentHolds(QStringLiteral("<p>One!</p>")));
}

TEST_F(Recovery, APageWhoseProcessEndsWhileItLoadsIsLoadedAgain) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  QByteArray page("<p>long</p>");
  while (page.size() < 2'000'000) page += "<p>One more paragraph of a long page.</p>\n";
  const QString path = Write(QStringLiteral("long.htm"), page);
  QTimer::singleShot(5, window_.get(), [this] { Kill(); });
  editor_->LoadDocument(path);
  EXPECT_TRUE(DocumentHolds(QStringLiteral("<p>long</p>")));
  ASSERT_TRUE(WaitFor([&] { return listener_.completions > 0; }));
}

TEST_F(Recovery, APageThatKeepsDyingIsLeftWithItsTextKept) {
  LoadWithCaret("<p>One</p>", QStringLiteral("p"));
  TypeAndSee(QStringLiteral("!"), QStringLiteral("<p>One!</p>"));
  for (size_t time = 1; time <= 3; ++time) {
    Kill();
    ASSERT_TRUE(ComesBack(time)) << time;
  }
  Kill();
  ASSERT_TRUE(WaitFor([&] { return listener_.reports.size() == 7; }));
  EXPECT_TRUE(listener_.reports.back().contains(QStringLiteral("Its text is kept")));
  EXPECT_TRUE(DocumentHolds(QStringLiteral("<p>One!</p>")));
  editor_->LoadDocument(Write(QStringLiteral("other.htm"), "<p>Other</p>"));
  EXPECT_TRUE(DocumentHolds(QStringLiteral("<p>Other</p>")));
}

}  // namespace

}  // namespace velor
