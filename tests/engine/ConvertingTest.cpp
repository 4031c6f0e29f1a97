// SPDX-License-Identifier: GPL-3.0-or-later
// A page converted into another charset, along with its other properties.
#include "platform/EditingCommands.h"
#include "platform/RuntimeError.h"
#include "tests/engine/ComponentFixture.h"

#include <vector>

namespace velor {
namespace {

class Converting : public WebEditorTest {
 protected:
  void LoadPage(const QByteArray &bytes) {
    editor_->LoadDocument(Write(QStringLiteral("page.htm"), bytes));
  }
  void Undo() { editor_->ExecCommand(EditingCommand::Undo, ExecOption::Default, {}); }
  void Redo() { editor_->ExecCommand(EditingCommand::Redo, ExecOption::Default, {}); }
  bool Becomes(EditingCommand command, CommandStatus status) {
    return WaitFor([=, this] { return editor_->QueryStatus(command) == status; });
  }
  QByteArray Saved() {
    editor_->SaveDocument(Logic(QStringLiteral("saved.htm")));
    return Bytes(QStringLiteral("saved.htm"));
  }
  void Set(const PropertyValues &changed) {
    editor_->Document().SetProperties({PropertySubject::Page}, changed);
  }
  /// Loads a page, gives it properties as one dialog does that applies them one after the other,
  /// and expects one step.
  void ExpectOneStep(const QByteArray &before, const std::vector<PropertyValues> &applied,
                     const QByteArray &after) {
    LoadPage(before);
    editor_->Document().Properties({PropertySubject::Page});
    for (const PropertyValues &changed : applied) Set(changed);
    EXPECT_EQ(Saved().toStdString(), after.toStdString());
    ASSERT_TRUE(Becomes(EditingCommand::Undo, CommandStatus::Enabled));
    Undo();
    ASSERT_TRUE(Becomes(EditingCommand::Redo, CommandStatus::Enabled));
    EXPECT_EQ(Saved().toStdString(), before.toStdString());
    EXPECT_TRUE(Becomes(EditingCommand::Undo, CommandStatus::Disabled));
    Redo();
    ASSERT_TRUE(Becomes(EditingCommand::Redo, CommandStatus::Disabled));
    EXPECT_EQ(Saved().toStdString(), after.toStdString());
  }
};

TEST_F(Converting, AnotherCharsetConvertsDeclarationAndBytesInOneStepAndUndoBringsThemBack) {
  const PropertyOwner owner{PropertySubject::Page};
  const QString charset = QStringLiteral("charset");
  const QByteArray before =
      "<html><head>\n<META CHARSET=utf-8>\n</head><P>\xe4\xb8\xad &eacute;</P>\n";
  LoadPage(before);
  EXPECT_EQ(editor_->Document().Properties(owner)[charset], QStringLiteral("utf-8"));
  for (const auto &[name, text] : {std::pair{"big5", "\xa4\xa4"},
                                   {"shift_jis", "\x92\x86"},
                                   {"gbk", "\xd6\xd0"},
                                   {"iso-2022-jp", "\x1b$BCf\x1b(B"},
                                   {"windows-1251", "&#20013;"}}) {
    SCOPED_TRACE(name);
    editor_->Document().SetProperties(owner, {{charset, QLatin1String(name)}});
    QByteArray wanted = before;
    wanted.replace("=utf-8", QByteArray("=") + name).replace("\xe4\xb8\xad", text);
    EXPECT_EQ(Saved(), wanted);
    EXPECT_EQ(editor_->Document().Properties(owner)[charset], QLatin1String(name));
    Undo();
    EXPECT_EQ(Saved(), before);
  }
  editor_->Document().SetProperties(owner, {{charset, QStringLiteral("utf-16be")}});
  EXPECT_TRUE(Saved().startsWith(QByteArray("\xFE\xFF\0<", 4)));
  EXPECT_TRUE(editor_->HasByteOrderMark());
  Undo();
  EXPECT_EQ(Saved(), before);
}

TEST_F(Converting, WhatWasTypedComesAlongIntoTheOtherCharset) {
  LoadWithCaret("<meta charset=big5>\r\n<p>\xa4\xa4</p>", QStringLiteral("p"));
  TypeText(QStringLiteral("x"));
  editor_->Document().SetProperties({PropertySubject::Page},
                                    {{QStringLiteral("charset"), QStringLiteral("utf-8")},
                                     {QStringLiteral("language"), QStringLiteral("zh")}});
  const QByteArray saved = Saved();
  EXPECT_TRUE(saved.contains("<meta charset=utf-8>\r\n<p>\xe4\xb8\xadx</p>"))
      << saved.toStdString();
  EXPECT_TRUE(saved.contains("lang=")) << saved.toStdString();
}

TEST_F(Converting, APageWhoseScriptsNoCharsetHoldsStaysInItsOwn) {
  const QByteArray before = "<meta charset=utf-8><script>'\xe4\xb8\xad'</script><p>a</p>";
  LoadPage(before);
  EXPECT_THROW(
      editor_->Document().SetProperties(
          {PropertySubject::Page}, {{QStringLiteral("charset"), QStringLiteral("windows-1252")}}),
      RuntimeError);
  EXPECT_EQ(Saved(), before);
}

TEST_F(Converting, ACharsetAndOtherPropertiesAreOneStep) {
  ExpectOneStep("<META CHARSET=utf-8>\n<TITLE>old</TITLE>\n<P>\xe4\xb8\xad</P>\n",
                {{{"charset", "big5"}, {"title", "new"}}},
                "<META CHARSET=big5>\n<TITLE>new</TITLE>\n<P>\xa4\xa4</P>\n");
}

TEST_F(Converting, SoTheyAreInAPageThatOnlyALoadCanShow) {
  // Its security policy would go on for the next document.
  const QByteArray policy =
      "<META HTTP-EQUIV=Content-Security-Policy CONTENT=\"script-src 'none'\">\n";
  ExpectOneStep("<META CHARSET=utf-8>\n" + policy + "<TITLE>old</TITLE>\n<P>\xe4\xb8\xad</P>\n",
                {{{"charset", "big5"}, {"title", "new"}}},
                "<META CHARSET=big5>\n" + policy + "<TITLE>new</TITLE>\n<P>\xa4\xa4</P>\n");
}

TEST_F(Converting, WhatADialogAppliesBeforeAndAfterAnotherCharsetIsOneStepWithIt) {
  ExpectOneStep("<HTML LANG=en><META CHARSET=utf-8>\n<TITLE>old</TITLE>\n<P>\xe4\xb8\xad</P>\n",
                {{{"title", "new"}},
                 {{"charset", "big5"}},
                 {{"language", "zh"}},
                 {{"title", "newer"}},
                 {{"charset", "shift_jis"}}},
                "<HTML LANG=zh><META CHARSET=shift_jis>\n<TITLE>newer</TITLE>\n<P>\x92\x86</P>\n");
}

TEST_F(Converting, WhatWasDoneBeforeTheDialogStaysAStepOfItsOwn) {
  LoadPage("<META CHARSET=utf-8>\n<TITLE>old</TITLE>\n<P>\xe4\xb8\xad</P>\n");
  Set({{"charset", "big5"}});
  const QByteArray before = Saved();
  editor_->Document().Properties({PropertySubject::Page});
  Set({{"charset", "shift_jis"}, {"title", "new"}});
  Set({{"title", "newer"}});
  Undo();
  EXPECT_EQ(Saved().toStdString(), before.toStdString());
}

}  // namespace
}  // namespace velor
