// SPDX-License-Identifier: GPL-3.0-or-later
// A source editor that stays open beside the page's design view.
#include "editor/PageSlots.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "tests/app/window/RealWindowFixture.h"
#include "tests/engine/ComponentFixture.h"

#include <QStatusBar>

namespace velor {
namespace {

const QString PageFile = QStringLiteral("a.htm");
const QByteArray Lines = "<html><body>\r\n<p id=a>One</p>\r\n<p id=b>Two</p>\r\n</body></html>\r\n";

class RealSourceBeside : public RealWindow {
 protected:
  QString Source() { return editor.Code().Text(); }
  QByteArray With(const char *old, const char *replacement) {
    return QByteArray(Lines).replace(old, replacement);
  }
  void TypeInSource(const QString &word, const QString &replacement) {
    const qsizetype at = Source().indexOf(word);
    editor.Code().Select({at, at + word.size()});
    editor.Code().ReplaceSelection(replacement);
  }
  /// Types x behind the first letter of the element, in design view.
  void TypeInDesign(const QString &selector, const QString &seen) {
    Parts().windows.Show(&page);
    PutCaret(page, selector);
    Type(page, QStringLiteral("x"));
    ASSERT_TRUE(WaitFor([&] { return Holds(page, seen); })) << Seen(page);
  }
  void ChangeOnePlaceInBoth() {
    TypeInSource(QStringLiteral("One"), QStringLiteral("Uno"));
    TypeInDesign(QStringLiteral("#a"), QStringLiteral("Oxne"));
  }
  void ComeBack() { Parts().windows.Show(&editor); }
  bool IsConflictTold() {
    const QString message = Find<QStatusBar>("Sta")->currentMessage();
    return message.startsWith(QStringLiteral("Design view changed the page"));
  }

  frmMain &page = Open(PageFile, Lines);
  frmCodeEditor &editor = *[this] {
    page.ChangeMode(3);
    return window.Context().pages.CodeEditor(page.Number()).data();
  }();
};

TEST_F(RealSourceBeside, WhatDesignViewTypedIsInTheSourceAndStaysWhenTheSourceIsSaved) {
  TypeInDesign(QStringLiteral("#a"), QStringLiteral("Oxne"));
  ComeBack();
  EXPECT_TRUE(WaitFor([&] { return Source().contains(QStringLiteral("Oxne")); }))
      << Source().toStdString();
  EXPECT_FALSE(editor.UnappliedText());
  TypeInSource(QStringLiteral("Two"), QStringLiteral("Three"));
  Choose("mnuSave");
  EXPECT_EQ(Bytes(PageFile), With("One", "Oxne").replace("Two", "Three"));
}

TEST_F(RealSourceBeside, SourceThatIsNotAppliedKeepsItsChangesBesideThoseOfDesignView) {
  TypeInSource(QStringLiteral("Two"), QStringLiteral("Three"));
  TypeInDesign(QStringLiteral("#a"), QStringLiteral("Oxne"));
  ComeBack();
  EXPECT_TRUE(WaitFor([&] { return Source().contains(QStringLiteral("Oxne")); }))
      << Source().toStdString();
  EXPECT_TRUE(editor.UnappliedText());
  Choose("mnuSave");
  EXPECT_EQ(Bytes(PageFile), With("One", "Oxne").replace("Two", "Three"));
}

TEST_F(RealSourceBeside, AnAppliedSourceThatDesignViewTookBackIsGoneInTheSourceToo) {
  TypeInSource(QStringLiteral("Two"), QStringLiteral("Three"));
  ASSERT_TRUE(editor.Apply());
  Parts().windows.Show(&page);
  Choose("mnuUndo");
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("Two")); }));
  ComeBack();
  EXPECT_TRUE(WaitFor([&] { return Source() == QString::fromLatin1(Lines); }))
      << Source().toStdString();
  EXPECT_FALSE(editor.UnappliedText());
}

TEST_F(RealSourceBeside, WhereBothChangedOnePlaceTheSourceStaysAndThatIsTold) {
  ChangeOnePlaceInBoth();
  ComeBack();
  EXPECT_TRUE(WaitFor([&] { return IsConflictTold(); }));
  Choose("mnuSave");
  EXPECT_EQ(Bytes(PageFile), With("One", "Uno"));
  Parts().windows.Show(&page);
  Choose("mnuUndo");
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("Oxne")); })) << Seen(page);
}

TEST_F(RealSourceBeside, WhatBothChangedIsToldOnceTheSourceIsInFrontAndNotOverAnotherPage) {
  frmMain &other = Open(QStringLiteral("b.htm"), Lines);
  ChangeOnePlaceInBoth();
  ComeBack();
  Parts().windows.Show(&other);
  bool hasFollowed = false;
  QMetaObject::invokeMethod(
      &editor, [&] { hasFollowed = true; }, Qt::QueuedConnection);
  ASSERT_TRUE(WaitFor([&] { return hasFollowed; }));
  EXPECT_FALSE(IsConflictTold());
  ComeBack();
  EXPECT_TRUE(WaitFor([&] { return IsConflictTold(); }));
}

}  // namespace
}  // namespace velor
