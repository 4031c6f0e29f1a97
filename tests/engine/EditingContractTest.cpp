// SPDX-License-Identifier: GPL-3.0-or-later
// What every editing component promises, whatever stands behind it.
#include "platform/EditingCommands.h"
#include "platform/RuntimeError.h"
#include "tests/engine/ComponentFixture.h"
#include "tests/support/FakeEditingComponent.h"

#include <QFile>

#include <gmock/gmock.h>

namespace velor {

namespace {

/// A page that an engine's serialisation leaves as it is.
const QString PlainPage = QStringLiteral(
    "<html><head><title>A page</title></head><body><p>First</p><p>Second</p></body></html>");

enum class Kind { Fake, Web };

class EditingContract : public WebEditorTest, public ::testing::WithParamInterface<Kind> {
 protected:
  EditingContract() {
    if (GetParam() == Kind::Fake) fake_ = std::make_unique<FakeEditingComponent>(files_, nullptr);
    Component().SetListener(&listener_);
  }

  EditingComponent &Component() {
    return fake_ != nullptr ? static_cast<EditingComponent &>(*fake_) : *editor_;
  }
  bool Completed() {
    return WaitFor([this] { return listener_.completions > 0; });
  }

 private:
  std::unique_ptr<FakeEditingComponent> fake_;
};

TEST_P(EditingContract, AnswersTheDocumentThatWasSet) {
  Component().SetDocumentHTML(PlainPage);
  EXPECT_EQ(Component().DocumentHTML(), PlainPage);
}

TEST_P(EditingContract, AnswersTheDocumentOfALoadedFileWithLineFeeds) {
  const QString path = Write(QStringLiteral("a.htm"),
                             "<html><head></head><body><p>One</p>\r\n<p>Two</p></body></html>");
  Component().LoadDocument(path);
  EXPECT_EQ(Component().DocumentHTML(),
            QStringLiteral("<html><head></head><body><p>One</p>\n<p>Two</p></body></html>"));
}

TEST_P(EditingContract, TellsOfCompletionAfterTheCallHasReturned) {
  Component().SetDocumentHTML(PlainPage);
  EXPECT_EQ(listener_.completions, 0);
  ASSERT_TRUE(Completed());
  EXPECT_EQ(listener_.completions, 1);
}

TEST_P(EditingContract, TheDocumentCanBeReadInTheCompletionNotice) {
  QString read;
  listener_.onComplete = [&] { read = Component().DocumentHTML(); };
  Component().SetDocumentHTML(PlainPage);
  ASSERT_TRUE(Completed());
  EXPECT_EQ(read, PlainPage);
}

TEST_P(EditingContract, ASecondDocumentMayBeSetBeforeTheFirstIsComplete) {
  Component().SetDocumentHTML(PlainPage);
  Component().LoadDocument(
      Write(QStringLiteral("b.htm"), "<html><head></head><body><p>Other</p></body></html>"));
  ASSERT_TRUE(Completed());
  EXPECT_EQ(Component().DocumentHTML(),
            QStringLiteral("<html><head></head><body><p>Other</p></body></html>"));
}

TEST_P(EditingContract, SavesAnUneditedFileByteForByte) {
  const QByteArray bytes("<!doctype HTML>\r\n<P ALIGN=center>caf&eacute;\r\n<br>x\n");
  Component().LoadDocument(Write(QStringLiteral("a.htm"), bytes));
  Component().SaveDocument(Logic(QStringLiteral("copy.htm")));
  EXPECT_EQ(Bytes(QStringLiteral("copy.htm")), bytes);
}

TEST_P(EditingContract, SavesAnUneditedDocumentThatWasSetAsItWasSet) {
  const QString text =
      QStringLiteral("<html>\r\n<BODY text=#000000>\r\n<P>&nbsp;</P>\r\n\r\n</BODY>");
  Component().SetDocumentHTML(text);
  Component().SaveDocument(Logic(QStringLiteral("new.htm")));
  EXPECT_EQ(Bytes(QStringLiteral("new.htm")), text.toLatin1());
  EXPECT_EQ(Component().TextToSave(), text);
}

TEST_P(EditingContract, SavesAnEditedPageInItsOwnLineEnds) {
  Component().LoadDocument(
      Write(QStringLiteral("a.htm"), "<html><head></head><body>\r\n<p>One</p>\r\n</body></html>"));
  Component().Document().Selection().CreateRange()->PasteHTML(QStringLiteral("<b>new</b>"));
  Component().SaveDocument(Logic(QStringLiteral("copy.htm")));
  const QByteArray saved = Bytes(QStringLiteral("copy.htm"));
  EXPECT_TRUE(saved.contains("<b>new</b>")) << saved.constData();
  EXPECT_EQ(saved.count('\n'), saved.count("\r\n")) << saved.constData();
  EXPECT_EQ(Component().TextToSave().toUtf8(), saved);
}

TEST_P(EditingContract, SavesABig5PageInBig5) {
  const QByteArray head(
      R"(<html><head><meta http-equiv="Content-Type" content="text/html; charset=big5"></head>)");
  Component().LoadDocument(
      Write(QStringLiteral("a.htm"), head + "<body><p>\xa4\xa4\xa4\xe5</p></body></html>"));
  EXPECT_EQ(Component().Charset(), QStringLiteral("big5"));
  EXPECT_TRUE(Component().DocumentHTML().contains(QStringLiteral("\u4e2d\u6587")));
  Component().Document().Selection().CreateRange()->PasteHTML(QStringLiteral("\u6587\u20b9"));
  Component().SaveDocument(Logic(QStringLiteral("a.htm")));
  const QByteArray saved = Bytes(QStringLiteral("a.htm"));
  EXPECT_TRUE(saved.contains("\xa4\xe5&#8377;")) << saved.constData();
  EXPECT_TRUE(saved.contains("\xa4\xa4\xa4\xe5")) << saved.constData();
}

TEST_P(EditingContract, ADocumentThatWasSetHasTheCharsetItDeclares) {
  Component().SetDocumentHTML(
      QStringLiteral("<html><head><meta charset=\"shift_jis\"></head><body></body></html>"));
  EXPECT_EQ(Component().Charset(), QStringLiteral("shift_jis"));
  Component().SetDocumentHTML(PlainPage);
  EXPECT_EQ(Component().Charset(), QStringLiteral("utf-8"));
}

TEST_P(EditingContract, AMissingFileIsRaisedAndLeavesThePage) {
  Component().SetDocumentHTML(PlainPage);
  ASSERT_TRUE(Completed());
  try {
    Component().LoadDocument(Logic(QStringLiteral("missing.htm")));
    FAIL() << "nothing was raised";
  } catch (const RuntimeError &error) {
    EXPECT_EQ(error.Number(), ErrorNumber::FileNotFound);
  }
  EXPECT_EQ(Component().DocumentHTML(), PlainPage);
}

TEST_P(EditingContract, AFileThatCannotBeWrittenIsRaised) {
  Component().SetDocumentHTML(PlainPage);
  try {
    Component().SaveDocument(Logic(QStringLiteral("no folder")) + QStringLiteral("\\a.htm"));
    FAIL() << "nothing was raised";
  } catch (const RuntimeError &error) {
    EXPECT_EQ(error.Number(), ErrorNumber::PathNotFound);
  }
}

TEST_P(EditingContract, PastedMarkupIsInTheDocumentAtOnce) {
  Component().SetDocumentHTML(PlainPage);
  Component().Document().Selection().CreateRange()->PasteHTML(
      QStringLiteral("<img src=\"pictures/a.gif\" border=\"0\">"));
  EXPECT_TRUE(Component().DocumentHTML().contains(
      QStringLiteral("<img src=\"pictures/a.gif\" border=\"0\">")));
}

TEST_P(EditingContract, ShowDetailsAndSnapToGridAreKeptAcrossDocuments) {
  EXPECT_FALSE(Component().ShowDetails());
  EXPECT_FALSE(Component().SnapToGrid());
  Component().SetShowDetails(true);
  Component().SetSnapToGrid(true);
  Component().SetDocumentHTML(PlainPage);
  EXPECT_TRUE(Component().ShowDetails());
  EXPECT_TRUE(Component().SnapToGrid());
  Component().SetShowDetails(false);
  EXPECT_FALSE(Component().ShowDetails());
  EXPECT_EQ(Component().DocumentHTML(), PlainPage);
}

TEST_P(EditingContract, TheToolTipIsTheWidgets) {
  Component().SetToolTip(QStringLiteral("Link to : x.htm"));
  EXPECT_EQ(Component().Widget()->toolTip(), QStringLiteral("Link to : x.htm"));
}

TEST_P(EditingContract, TheComponentMayGoBeforeItsWidgetsParentAndAfterIt) {
  auto parent = std::make_unique<QWidget>();
  const auto make = [&]() -> std::unique_ptr<EditingComponent> {
    if (GetParam() == Kind::Fake)
      return std::make_unique<FakeEditingComponent>(files_, parent.get());
    return std::make_unique<WebEditor>(Engine(), files_, Logic(QString()), parent.get());
  };
  auto first = make();
  first->SetDocumentHTML(PlainPage);
  auto second = make();
  second->SetDocumentHTML(PlainPage);
  first.reset();
  EXPECT_EQ(parent->findChildren<QWidget *>(Qt::FindDirectChildrenOnly).size(), 1);
  parent.reset();
  EXPECT_EQ(second->Widget(), nullptr);
  EXPECT_EQ(second->DocumentHTML(), PlainPage);
  second->SetToolTip(QStringLiteral("nowhere"));
  second->SetFocus();
}

INSTANTIATE_TEST_SUITE_P(Components, EditingContract, ::testing::Values(Kind::Fake, Kind::Web),
                         [](const auto &kind) {
                           return kind.param == Kind::Fake ? "Fake" : "WebEditor";
                         });

}  // namespace

}  // namespace velor
