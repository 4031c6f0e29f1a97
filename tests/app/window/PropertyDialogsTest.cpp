// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/ColorPicker.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "platform/Paths.h"
#include "properties/frmProperties.h"
#include "tests/app/window/EveryField.h"
#include "tests/app/window/WindowFixture.h"
#include "tests/support/KeyboardWalk.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>

namespace velor {
namespace {

class PropertyDialogs : public WindowFixture {
 protected:
  static QWidget &Control(QWidget &dialog, const char *name) {
    auto *found = dialog.findChild<QWidget *>(QStringLiteral("prp_") + QLatin1String(name));
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }
  static void Press(QWidget &dialog, const char *button) {
    dialog.findChild<QPushButton *>(QLatin1String(button))->click();
  }
  /// The addresses that the window offers for a link.
  static std::string OffersOf(QWidget &dialog) {
    const auto *list = dialog.findChild<QComboBox *>(QStringLiteral("prp_href_list"));
    QStringList offers;
    for (int index = 0; list != nullptr && index < list->count(); ++index)
      offers << list->itemText(index);
    return offers.join(u' ').toStdString();
  }
  QStringList Written() const {
    QStringList calls;
    for (const QString &call : log)
      if (call.startsWith(QStringLiteral("SetProperties"))) calls << call;
    return calls;
  }
};

TEST_F(PropertyDialogs, WriteWhatThePersonChangedAndNothingElse) {
  FakeEditingComponent &component = Component(NewPage());
  component.properties[PropertySubject::Cell] = {
      {"rows", "2"}, {"heading", ""}, {"width", "40"}, {"align", "justify"}, {"class", "a"}};
  dialogs.ExpectModal([](QWidget &dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Table Cell Properties"));
    EXPECT_EQ(static_cast<QLabel &>(Control(dialog, "rows")).text(), QStringLiteral("2"));
    EXPECT_EQ(static_cast<QComboBox &>(Control(dialog, "align")).currentText(),
              QStringLiteral("justify"));
    // The page has no value by that name.
    EXPECT_EQ(dialog.findChild<QWidget *>(QStringLiteral("prp_height")), nullptr);
    static_cast<QLineEdit &>(Control(dialog, "width")).setText(QStringLiteral("50%"));
    static_cast<QCheckBox &>(Control(dialog, "heading")).setChecked(true);
    Press(dialog, "cmdApply");
    static_cast<QLineEdit &>(Control(dialog, "class")).clear();
    Press(dialog, "cmdOK");
    EXPECT_FALSE(dialog.isVisible());
  });
  Choose("extTDPro");
  EXPECT_EQ(Written(), QStringList({QStringLiteral("SetProperties(3, heading=true width=50%)"),
                                    QStringLiteral("SetProperties(3, class=)")}));
}

TEST_F(PropertyDialogs, RefuseWhatIsNoLengthOrColour) {
  FakeEditingComponent &component = Component(NewPage());
  component.properties[PropertySubject::Table] = {{"width", ""}, {"background", ""}};
  dialogs.ExpectModal([](QWidget &dialog) {
    auto &line = *dialog.findChild<QLabel *>(QStringLiteral("lblRefusal"));
    for (const auto &[name, bad, good] :
         {std::tuple{"width", "wide", "120"}, {"background", "#12", "#112233"}}) {
      auto &box = static_cast<QLineEdit &>(Control(dialog, name));
      box.setText(QLatin1String(bad));
      Press(dialog, "cmdOK");
      EXPECT_FALSE(line.isHidden()) << name;
      EXPECT_TRUE(line.text().contains(QLatin1String(bad))) << name;
      box.setText(QLatin1String(good));
    }
    Press(dialog, "cmdOK");
  });
  Choose("extTablePro");
  EXPECT_EQ(Written(),
            QStringList(QStringLiteral("SetProperties(2, background=#112233 width=120)")));
}

TEST_F(PropertyDialogs, AColourIsChosenFromThePaletteBesideItsBox) {
  FakeEditingComponent &component = Component(NewPage());
  component.properties[PropertySubject::Table] = {{"width", ""}, {"background", "#112233"}};
  dialogs.ExpectModal([](QWidget &dialog) {
    auto *picker = dialog.findChild<ColorPicker *>(QStringLiteral("prp_background_picker"));
    ASSERT_NE(picker, nullptr);
    EXPECT_EQ(picker->Color(), 0x332211);
    EXPECT_EQ(picker->accessibleName(), QStringLiteral("Choose: Background"));
    auto &box = static_cast<QLineEdit &>(Control(dialog, "background"));
    box.setText(QStringLiteral("red"));
    EXPECT_EQ(picker->Color(), 0x0000FF);
    Q_EMIT picker->ColorChosen(0x00C08040);
    EXPECT_EQ(box.text(), QStringLiteral("#4080C0"));
    Press(dialog, "cmdOK");
  });
  Choose("extTablePro");
  EXPECT_EQ(Written(), QStringList(QStringLiteral("SetProperties(2, background=#4080C0)")));
}

TEST_F(PropertyDialogs, NoTwoFieldsOfOneShareAnAltKey) {
  using enum PropertySubject;
  for (const PropertySubject subject : {Page, Image, Table, Cell, Link, Fonts, Element}) {
    const PropertySheet &sheet = SheetOf(subject);
    frmProperties dialog(sheet, EveryField(sheet), nullptr);
    auto *parts = dialog.findChild<QTabWidget *>();
    for (int part = 0; part < (parts == nullptr ? 1 : parts->count()); ++part) {
      if (parts != nullptr) parts->setCurrentIndex(part);
      EXPECT_EQ(SharedAltKeys(dialog).toStdString(), "") << sheet.title << part;
    }
  }
}

TEST_F(PropertyDialogs, CancelledOrUnchangedWriteNothing) {
  FakeEditingComponent &component = Component(NewPage());
  component.properties[PropertySubject::Page] = {{"title", "old"}};
  for (const char *button : {"cmdOK", "cmdCancel"}) {
    dialogs.ExpectModal([button](QWidget &dialog) {
      if (QLatin1String(button) == QLatin1String("cmdCancel"))
        static_cast<QLineEdit &>(Control(dialog, "title")).setText(QStringLiteral("new"));
      Press(dialog, button);
    });
    Choose("extPagePro");
  }
  EXPECT_TRUE(Written().isEmpty());
}

TEST_F(PropertyDialogs, BrowseFillsInTheLinkFromThePageToTheFile) {
  WriteFile(QStringLiteral("\\site\\page.htm"));
  SharedDialog().ExpectOpen(QStringLiteral("\\site\\page.htm"));
  Choose("mnuOpen");
  FakeEditingComponent &component = Component(*window.Context().pages.Page(1));
  component.properties[PropertySubject::Page] = {{"picture", ""}, {"sheets", "a.css"}};
  components.onFileDialog = [](FakeFileDialog &person) {
    person.ExpectOpen(QStringLiteral("\\site\\img\\a#1.png"));
    person.ExpectOpen(QStringLiteral("\\site\\b.css"));
    person.ExpectOpen({});
  };
  dialogs.ExpectModal([](QWidget &dialog) {
    Press(dialog, "prp_picture_browse");
    EXPECT_EQ(static_cast<QLineEdit &>(Control(dialog, "picture")).text(),
              QStringLiteral("img/a%231.png"));
    Press(dialog, "prp_sheets_browse");
    Press(dialog, "prp_sheets_browse");
    EXPECT_EQ(static_cast<QPlainTextEdit &>(Control(dialog, "sheets")).toPlainText(),
              QStringLiteral("a.css\nb.css"));
    Press(dialog, "cmdOK");
  });
  Choose("extPagePro");
  EXPECT_EQ(
      Written(),
      QStringList(QStringLiteral("SetProperties(0, picture=img/a%231.png sheets=a.css\nb.css)")));
}

TEST_F(PropertyDialogs, ALinkInAPageOfAProjectIsOfferedTheProjectsPages) {
  const QTemporaryDir project;
  QDir(project.path()).mkdir(QStringLiteral("more"));
  for (const char *name : {"index.htm", "more/a.htm", "more/b.html", "more/photo.png"})
    EXPECT_TRUE(QFile(project.filePath(QLatin1String(name))).open(QIODevice::WriteOnly));
  WriteFile(ToLogic(project.filePath(QStringLiteral("more/a.htm"))));
  values.DbConnection = database.ConnectEmptyCatalogue();
  database.results[QStringLiteral("Select * from Page where PageId = 7")] = {
      .columns = {{.name = QStringLiteral("TPath")}, {.name = QStringLiteral("Path")}},
      .rows = {{ToLogic(project.path()) + u'\\', QStringLiteral("more\\a.htm")}}};
  window.Opener().OpenProjectPage(7);
  FakeEditingComponent &component = Component(*window.Context().pages.Page(1));
  component.properties[PropertySubject::Link] = {{"href", ""}};
  dialogs.ExpectModal([](QWidget &dialog) {
    EXPECT_EQ(OffersOf(dialog), "../index.htm b.html");
    dialog.findChild<QComboBox *>(QStringLiteral("prp_href_list"))->setCurrentIndex(0);
    Press(dialog, "cmdOK");
  });
  Choose("extAPro");
  EXPECT_EQ(Written(), QStringList(QStringLiteral("SetProperties(4, href=../index.htm)")));
}

TEST_F(PropertyDialogs, ALinkIsOfferedThePlacesOfThePageAndOfThePageLinkedTo) {
  WriteFile(QStringLiteral("\\site\\page.htm"));
  SharedDialog().ExpectOpen(QStringLiteral("\\site\\page.htm"));
  Choose("mnuOpen");
  files.ReplaceAll(QStringLiteral("\\site\\x.htm"), "<p id=there>");
  FakeEditingComponent &component = Component(*window.Context().pages.Page(1));
  component.SetDocumentHTML(QStringLiteral("<p id=here>"));
  component.properties[PropertySubject::Link] = {{"href", "x.htm"}, {"title", "t"}};
  dialogs.ExpectModal([](QWidget &dialog) {
    auto *list = dialog.findChild<QComboBox *>(QStringLiteral("prp_href_list"));
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(OffersOf(dialog), "x.htm#there #here");
    EXPECT_EQ(list->currentText(), QStringLiteral("x.htm"));
    list->setCurrentIndex(0);
    Press(dialog, "cmdApply");
    Press(dialog, "cmdRemove");
    EXPECT_FALSE(dialog.isVisible());
  });
  Choose("extAPro");
  EXPECT_EQ(Written(), QStringList({QStringLiteral("SetProperties(4, href=x.htm#there)"),
                                    QStringLiteral("SetProperties(4, href=)")}));
}

TEST_F(PropertyDialogs, TheCharactersThatACharsetLacksAreListedFirst) {
  FakeEditingComponent &component = Component(NewPage());
  component.SetDocumentHTML(QStringLiteral("<p>\u00E9\n\u4E2D\u4E2D"));
  component.properties[PropertySubject::Page] = {{"charset", "utf-8"}, {"title", "t"}};
  const QString question = QStringLiteral(
      "The charset koi8-r lacks these characters of the page. They become references such as "
      "&#8364;, which browsers show as before.");
  dialogs.ExpectModal([](QWidget &dialog) {
    auto &box = static_cast<QComboBox &>(Control(dialog, "charset"));
    EXPECT_GT(box.count(), 30);
    box.setCurrentIndex(box.findData(QStringLiteral("koi8-r")));
    auto &line = *dialog.findChild<QLabel *>(QStringLiteral("lblRefusal"));
    Press(dialog, "cmdOK");
    EXPECT_FALSE(line.isHidden());
    EXPECT_EQ(line.text(), QStringLiteral("The page keeps its charset utf-8."));
    Press(dialog, "cmdOK");
  });
  dialogs.ExpectChoice(question, QStringLiteral("Cancel"));
  dialogs.ExpectChoice(question, QStringLiteral("Convert the Page"));
  Choose("extPagePro");
  EXPECT_EQ(dialogs.messages.back().details.toStdString(),
            QStringLiteral("\u00E9 (line 1)\n\u4E2D (2 times, first in line 2)").toStdString());
  EXPECT_EQ(Written(), QStringList(QStringLiteral("SetProperties(0, charset=koi8-r)")));
}

TEST_F(PropertyDialogs, QuirksModeIsToldWithItsReason) {
  FakeEditingComponent &component = Component(NewPage());
  component.properties[PropertySubject::Page] = {{"mode", "no doctype"}};
  dialogs.ExpectModal([](QWidget &dialog) {
    EXPECT_EQ(static_cast<QLabel &>(Control(dialog, "mode")).text(),
              QStringLiteral("As old browsers did (quirks mode): the page has no doctype"));
  });
  Choose("extPagePro");
}

TEST_F(PropertyDialogs, TheSampleShowsWhatTheFontsDialogSays) {
  FakeEditingComponent &component = Component(NewPage());
  component.properties[PropertySubject::Fonts] = {
      {"fontName", "Arial"}, {"fontSize", "12"}, {"color", ""}, {"strike", ""}};
  dialogs.ExpectModal([](QWidget &dialog) {
    auto &sample = *dialog.findChild<QLabel *>(QStringLiteral("lblSample"));
    EXPECT_TRUE(sample.text().contains(QStringLiteral("'Arial';font-size: 12pt")));
    static_cast<QLineEdit &>(Control(dialog, "fontSize")).setText(QStringLiteral("20px"));
    static_cast<QLineEdit &>(Control(dialog, "color")).setText(QStringLiteral("navy"));
    static_cast<QCheckBox &>(Control(dialog, "strike")).setChecked(true);
    for (const char *part : {"font-size: 15pt", "#000080", "<s>"})
      EXPECT_TRUE(sample.text().contains(QLatin1String(part))) << sample.text().toStdString();
    EXPECT_GE(dialog.findChild<QComboBox *>(QStringLiteral("prp_fontName_list"))
                  ->findText(QStringLiteral("sans-serif")),
              0);
  });
  Choose("extFontsPro");
}

TEST_F(PropertyDialogs, HintsAreReadableInFull) {
  const PropertySheet &sheet = SheetOf(PropertySubject::Page);
  frmProperties dialog(sheet, EveryField(sheet), nullptr);
  dialog.show();
  auto &parts = *dialog.findChild<QTabWidget *>();
  for (int part = 0; part < parts.count(); ++part) {
    parts.setCurrentIndex(part);
    QApplication::processEvents();
    for (const auto *box : parts.currentWidget()->findChildren<QLineEdit *>()) {
      EXPECT_GT(box->width(), box->fontMetrics().horizontalAdvance(box->placeholderText()))
          << box->objectName().toStdString();
      EXPECT_LE(box->mapTo(&parts, box->rect().bottomRight()).x(), parts.width())
          << box->objectName().toStdString();
    }
  }
}

}  // namespace
}  // namespace velor
