// SPDX-License-Identifier: GPL-3.0-or-later
// What every browser promises, against the fake and the real one.
#include "engine/preview/WebBrowser.h"
#include "tests/support/Checks.h"
#include "tests/support/FakeBrowser.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>
#include <string>

namespace velor {

struct BrowserMaker {
  std::string name;
  std::function<std::unique_ptr<Browser>(QWidget *)> make;
};

void PrintTo(const BrowserMaker &maker, std::ostream *out) {
  *out << maker.name;
}

class BrowserContract : public ::testing::TestWithParam<BrowserMaker> {
 protected:
  QWidget host;
};

TEST_P(BrowserContract, EveryButtonIsHarmlessBeforeTheFirstPage) {
  const auto browser = GetParam().make(&host);
  EXPECT_NO_THROW({
    browser->GoBack();
    browser->GoForward();
    browser->Refresh();
    browser->Stop();
  });
}

TEST_P(BrowserContract, WithoutAListenerItGoesItsWay) {
  const auto browser = GetParam().make(&host);
  browser->SetListener(nullptr);
  EXPECT_NO_THROW(browser->Navigate(QUrl(QStringLiteral("about:blank"))));
}

TEST_P(BrowserContract, TheWidgetBelongsToItsParentAndToTheBrowser) {
  QPointer<QWidget> widget;
  {
    const auto browser = GetParam().make(&host);
    widget = browser->Widget();
    EXPECT_EQ(widget->parentWidget(), &host);
  }
  EXPECT_TRUE(widget.isNull());
  auto parent = std::make_unique<QWidget>();
  const auto survivor = GetParam().make(parent.get());
  parent.reset();
}

INSTANTIATE_TEST_SUITE_P(
    FakeAndReal, BrowserContract,
    ::testing::Values(
        BrowserMaker{"Fake", [](QWidget *parent) { return std::make_unique<FakeBrowser>(parent); }},
        BrowserMaker{"Real", [](QWidget *parent) { return std::make_unique<WebBrowser>(parent); }}),
    [](const auto &maker) { return maker.param.name; });

}  // namespace velor
