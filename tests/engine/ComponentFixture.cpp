// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/engine/ComponentFixture.h"

#include "engine/BridgeScript.h"
#include "platform/Paths.h"

#include <QFile>
#include <QTest>
#include <QVBoxLayout>
#include <QWebEngineView>

#include <memory>
#include <optional>

namespace velor {

namespace {

/// One engine for the whole test program, as in the program itself.
class EngineEnvironment : public ::testing::Environment {
 public:
  /// At static initialisation: the scheme must be known before the application object is made.
  EngineEnvironment() { RegisterSchemes(); }
  void TearDown() override { engine_.reset(); }
  EditingEngine &Engine() {
    if (engine_ == nullptr) engine_ = std::make_unique<EditingEngine>();
    return *engine_;
  }

 private:
  std::unique_ptr<EditingEngine> engine_;
};

auto *const Environment = new EngineEnvironment;
[[maybe_unused]] const auto *const Registered = ::testing::AddGlobalTestEnvironment(Environment);

}  // namespace

QVariant Evaluate(QWebEnginePage &page, const QString &expression, quint32 world) {
  const auto answer = std::make_shared<std::optional<QVariant>>();
  page.runJavaScript(expression, world, [answer](const QVariant &value) { *answer = value; });
  EXPECT_TRUE(WaitFor([&] { return answer->has_value(); })) << qPrintable(expression);
  return answer->value_or(QVariant());
}

WebEditorTest::WebEditorTest() : window_(std::make_unique<QWidget>()) {
  window_->resize(800, 600);
  auto *layout = new QVBoxLayout(window_.get());
  layout->setContentsMargins(0, 0, 0, 0);
  editor_ = std::make_unique<WebEditor>(Engine(), files_, ToLogic(folder_.path()), window_.get());
  layout->addWidget(editor_->Widget());
  editor_->SetListener(&listener_);
}

WebEditorTest::~WebEditorTest() {
  editor_.reset();
}

QString WebEditorTest::Logic(const QString &name) const {
  return ToLogic(Native(name));
}

QString WebEditorTest::Write(const QString &name, const QByteArray &content) const {
  QFile file(Native(name));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(name);
  EXPECT_EQ(file.write(content), content.size());
  return Logic(name);
}

QByteArray WebEditorTest::Bytes(const QString &name) const {
  QFile file(Native(name));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
  return file.readAll();
}

void WebEditorTest::Show() {
  window_->show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(window_.get()));
  window_->activateWindow();
  editor_->SetFocus();
}

QWidget *WebEditorTest::Input() const {
  return editor_->Widget()->findChild<QWebEngineView *>()->focusProxy();
}

QWebEnginePage *WebEditorTest::Page() const {
  return editor_->Widget()->findChild<QWebEngineView *>()->page();
}

void WebEditorTest::LoadWithCaret(const QByteArray &html, const QString &selector) {
  editor_->LoadDocument(Write(QStringLiteral("page.htm"), html));
  Show();
  Evaluate(
      QStringLiteral("{ const e = document.querySelector(%1); const r = document.createRange();"
                     "r.selectNodeContents(e); r.collapse(false); const s = getSelection();"
                     "s.removeAllRanges(); s.addRange(r); }")
          .arg(ScriptValue(selector)));
}

EditingEngine &WebEditorTest::Engine() {
  return Environment->Engine();
}

void WebEditorTest::TypeText(const QString &text) const {
  QTest::keyClicks(Input(), text);
}

}  // namespace velor
