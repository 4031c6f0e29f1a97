// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/engine/bridge/BridgePage.h"

#include "tests/support/Waiting.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QWebEnginePage>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>

#include <gtest/gtest.h>
#include <memory>

namespace velor {
namespace {

constexpr int Patience = 20000;  // milliseconds; only a hung engine takes that long

QString TextOf(const QString &path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
  return QString::fromUtf8(file.readAll());
}

}  // namespace

QString TestScript(const char *name) {
  return TextOf(QStringLiteral(VELOR_BRIDGE_TEST_FOLDER "/") + QLatin1String(name));
}

namespace {

QString JoinedScripts() {
  return TextOf(QStringLiteral(VELOR_BRIDGE_TEST_BUNDLE)) + TestScript("markup.js");
}

QWebEngineScript Script(const QString &source) {
  QWebEngineScript script;
  script.setName(QStringLiteral("bridge"));
  script.setSourceCode(source);
  script.setInjectionPoint(QWebEngineScript::DocumentCreation);
  script.setWorldId(QWebEngineScript::ApplicationWorld);
  return script;
}

// A page that fails the test when a script of the bridge fails.
class ReportingPage : public QWebEnginePage {
 public:
  using QWebEnginePage::QWebEnginePage;

 protected:
  void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString &message,
                                int line, const QString &source) override {
    if (level != ErrorMessageLevel) return;
    ADD_FAILURE() << qPrintable(message) << " (" << qPrintable(source) << " line " << line << ")";
  }
};

}  // namespace

BridgePage::BridgePage() {
  auto *page = new ReportingPage(&view_);
  view_.setPage(page);
  page->settings()->setAttribute(QWebEngineSettings::JavascriptEnabled, false);
  page->scripts().insert(Script(JoinedScripts()));
  view_.resize(800, 600);
  view_.show();
  view_.activateWindow();
}

void BridgePage::AddChannelScript() {
  QWebEngineScriptCollection &scripts = Engine().scripts();
  scripts.clear();
  scripts.insert(Script(TextOf(QStringLiteral(":/qtwebchannel/qwebchannel.js")) + JoinedScripts()));
}

void BridgePage::Load(const QString &html) {
  QSignalSpy loaded(view_.page(), &QWebEnginePage::loadFinished);
  view_.setHtml(html, QUrl(QStringLiteral("file:///")));
  ASSERT_TRUE(loaded.wait(Patience));
  Evaluate(QStringLiteral("markup.select(); markup.countKeys(); velor.start()"));
}

QVariant BridgePage::Evaluate(const QString &expression) {
  // Shared with the callback: an answer may come after the wait was given up.
  struct Wait {
    QEventLoop loop;
    QVariant answer;
    bool answered = false;
  };
  auto wait = std::make_shared<Wait>();
  view_.page()->runJavaScript(expression, QWebEngineScript::ApplicationWorld,
                              [wait](const QVariant &value) {
                                wait->answer = value;
                                wait->answered = true;
                                wait->loop.quit();
                              });
  QTimer::singleShot(Patience, &wait->loop, &QEventLoop::quit);
  wait->loop.exec();
  EXPECT_TRUE(wait->answered) << qPrintable(expression.left(200));
  return wait->answer;
}

void BridgePage::AwaitKeys(int count) {
  EXPECT_TRUE(WaitFor(
      [this, count] { return Evaluate(QStringLiteral("markup.keysUp()")).toInt() >= count; },
      Patience))
      << "the page never saw the keys";
}

void BridgePage::Type(const QString &text) {
  const int before = Evaluate(QStringLiteral("markup.keysUp()")).toInt();
  view_.focusProxy()->setFocus();
  QTest::keyClicks(view_.focusProxy(), text);
  AwaitKeys(before + static_cast<int>(text.size()));
}

void BridgePage::Press(const QKeySequence &key) {
  const int before = Evaluate(QStringLiteral("markup.keysUp()")).toInt();
  view_.focusProxy()->setFocus();
  const QKeyCombination combination = key[0];
  QTest::keyClick(view_.focusProxy(), combination.key(), combination.keyboardModifiers());
  AwaitKeys(before + 1);
}

void BridgePage::Hold(const QKeySequence &key, int repetitions) {
  const int before = Evaluate(QStringLiteral("markup.keysUp()")).toInt();
  QWidget *input = view_.focusProxy();
  input->setFocus();
  const QString text = key.toString().size() == 1 ? key.toString().toLower() : QString();
  const int code = key[0].key();
  for (int sent = 0; sent <= repetitions; ++sent) {
    QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier, text, sent > 0);
    QCoreApplication::sendEvent(input, &press);
  }
  QKeyEvent release(QEvent::KeyRelease, code, Qt::NoModifier, text);
  QCoreApplication::sendEvent(input, &release);
  AwaitKeys(before + 1);
}

void BridgePage::Compose(const QString &preedit) {
  const QInputMethodEvent::Attribute caret(QInputMethodEvent::Cursor,
                                           static_cast<int>(preedit.size()), 1, {});
  QInputMethodEvent event(preedit, {caret});
  Send(event);
}

void BridgePage::Commit(const QString &text) {
  QInputMethodEvent event;
  event.setCommitString(text);
  Send(event);
}

void BridgePage::Send(QInputMethodEvent &event) {
  const int before = Evaluate(QStringLiteral("markup.composed()")).toInt();
  view_.focusProxy()->setFocus();
  QCoreApplication::sendEvent(view_.focusProxy(), &event);
  EXPECT_TRUE(WaitFor(
      [this, before] { return Evaluate(QStringLiteral("markup.composed()")).toInt() > before; },
      Patience))
      << "the page never saw the composition";
}

void BridgePage::Click(QPoint place) {
  QTest::mouseClick(view_.focusProxy(), Qt::LeftButton, Qt::NoModifier, place);
}

void BridgePage::Button(QEvent::Type type, QPoint place, Qt::KeyboardModifiers modifiers) {
  QWidget *input = view_.focusProxy();
  const bool isPress = type == QEvent::MouseButtonPress;
  QMouseEvent event(type, place, input->mapToGlobal(place), Qt::LeftButton,
                    isPress ? Qt::LeftButton : Qt::NoButton, modifiers);
  QCoreApplication::sendEvent(input, &event);
}

void BridgePage::Move(QPoint place, Qt::MouseButtons held, Qt::KeyboardModifiers modifiers) {
  QWidget *input = view_.focusProxy();
  QMouseEvent event(QEvent::MouseMove, place, input->mapToGlobal(place), Qt::NoButton, held,
                    modifiers);
  QCoreApplication::sendEvent(input, &event);
}

}  // namespace velor
