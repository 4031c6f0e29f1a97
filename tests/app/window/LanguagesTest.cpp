// SPDX-License-Identifier: GPL-3.0-or-later
// Every text of every window in another language: that it is translated at all, that it has the
// room it needs, and that its keys for Alt are its own.
#include "app/settings/Languages.h"
#include "app/window/MenuTable.h"
#include "editor/PageSlots.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "insert/FormParts.h"
#include "platform/Words.h"
#include "properties/PropertySheets.h"
#include "properties/frmProperties.h"
#include "tests/app/window/DialogItems.h"
#include "tests/app/window/WindowFixture.h"
#include "tests/support/KeyboardWalk.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTranslator>

#include <algorithm>
#include <functional>

namespace velor {
namespace {

constexpr QChar Start(u'⟦');

/// Half as long again as English, which no language of a menu needs; each text is told by its
/// start.
class LongWords final : public QTranslator {
 public:
  bool isEmpty() const override { return false; }
  QString translate(const char *, const char *source, const char *, int) const override {
    const QString text = QString::fromUtf8(source);
    // A file dialog's filters and a style of the toolkit's own are read by programs.
    if (text.isEmpty() || text.contains(u"*.") || text.startsWith(u"QT_")) return {};
    return Start + text + QString((text.size() + 1) / 2, QChar(u'é'));
  }
};

template <int Number>
class Shipped final : public QTranslator {
 public:
  Shipped() {
    EXPECT_TRUE(load(QStringLiteral("velor_%1").arg(QLatin1String(Languages[Number].code)),
                     QStringLiteral(":/velor/translations")));
  }
};

template <typename Translator>
class Spoken {
 public:
  Spoken() { QCoreApplication::installTranslator(&translator_); }
  ~Spoken() { QCoreApplication::removeTranslator(&translator_); }
  Q_DISABLE_COPY_MOVE(Spoken)

 private:
  Translator translator_;
};

/// The main window, made in a language.
template <typename Translator>
class WindowIn : private Spoken<Translator>, public WindowFixture {
 protected:
  using Look = std::function<void(QWidget &window, const char *name)>;

  /// Looks at the main window with each view, and at each dialog with each of its tabs.
  void LookAtEverything(const Look &lookAt) {
    int looks = 0;
    const Look look = [&](QWidget &shown, const char *name) {
      ++looks;
      lookAt(shown, name);
    };
    values.DbConnection = database.ConnectEmptyCatalogue();
    window.resize(1200, 680);
    window.show();
    frmMain &page = NewPage();
    look(window, "design");
    LookAtDialogs(look);
    LookAtProperties(look);
    page.ChangeMode(3);
    QTest::keyClick(window.Context().pages.CodeEditor(1)->Code().Widget(), Qt::Key_H,
                    Qt::ControlModifier);
    look(window, "source");
    page.ChangeMode(4);
    look(window, "preview");
    EXPECT_GT(looks, 30);
  }

 private:
  void LookAtDialogs(const Look &look) {
    for (const char *item : DialogItems) {
      dialogs.ExpectModal([&](QWidget &dialog) {
        dialog.show();
        look(dialog, item);
        for (QTabWidget *book : dialog.findChildren<QTabWidget *>()) {
          for (int index = 0; index < book->count(); ++index) {
            if (!book->isTabEnabled(index)) continue;
            book->setCurrentIndex(index);
            look(dialog, item);
          }
        }
        dialog.close();
      });
      Choose(item);
    }
  }

  void LookAtProperties(const Look &look) {
    for (const PropertySubject subject :
         {PropertySubject::Page, PropertySubject::Image, PropertySubject::Table,
          PropertySubject::Cell, PropertySubject::Link, PropertySubject::Fonts,
          PropertySubject::Element}) {
      const PropertySheet &sheet = SheetOf(subject);
      PropertyValues none;
      for (const PropertyField &field : sheet.fields) none.insert(QLatin1String(field.name), {});
      frmProperties dialog(sheet, none, nullptr);
      dialog.show();
      look(dialog, sheet.title);
      if (auto *parts = dialog.findChild<QTabWidget *>()) {
        parts->setCurrentIndex(1);
        look(dialog, sheet.title);
      }
    }
  }
};

using LongWindow = WindowIn<LongWords>;
using GermanWindow = WindowIn<Shipped<1>>;
using ChineseWindow = WindowIn<Shipped<2>>;

struct Text {
  QString place;
  QString text;
};

/// What a window says: captions, tips, and what assistive technology reads.
std::vector<Text> TextsOf(const QWidget &window) {
  std::vector<Text> texts{{QStringLiteral("title"), window.windowTitle()}};
  for (const auto *widget : window.findChildren<QWidget *>()) {
    const QString name =
        QLatin1String(widget->metaObject()->className()) + u' ' + widget->objectName();
    const auto add = [&](const QString &text) { texts.push_back({name, text}); };
    add(widget->toolTip());
    add(widget->accessibleName());
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) add(button->text());
    if (const auto *label = qobject_cast<const QLabel *>(widget)) add(label->text());
    if (const auto *frame = qobject_cast<const QGroupBox *>(widget)) add(frame->title());
    if (const auto *line = qobject_cast<const QLineEdit *>(widget)) add(line->placeholderText());
    if (const auto *tabs = qobject_cast<const QTabBar *>(widget)) {
      for (int tab = 0; tab < tabs->count(); ++tab) add(tabs->tabText(tab));
    }
    if (const auto *box = qobject_cast<const QComboBox *>(widget)) {
      if (box->objectName() == u"Font1") continue;
      for (int item = 0; item < box->count(); ++item) add(box->itemText(item));
    }
    if (const auto *header = qobject_cast<const QHeaderView *>(widget)) {
      for (int column = 0; column < header->count(); ++column)
        add(header->model()->headerData(column, header->orientation()).toString());
    }
  }
  for (const auto *item : window.findChildren<QAction *>())
    texts.push_back({item->objectName(), item->text()});
  return texts;
}

/// Names, values of a page, and what has no words.
bool IsTheSameInEveryLanguage(const Text &one) {
  static const QRegularExpression same(
      QStringLiteral(
          "^(|[^a-zA-Z]*|Vitrine|Velor Web Creator.*|Example Software|1 Example Street|Exampletown|"
          "\\S+@\\S+|[A-Z]:|_\\w+|English|Deutsch|(\\w+, )?CR LF|-|Ctrl\\+.*|Shift\\+.*|F\\d+)$"),
      QRegularExpression::DotMatchesEverythingOption);
  return same.match(one.text).hasMatch();
}

/// The table dialog's alignments are typed into the page as they are read; characters have the
/// names that Unicode gives them, and fonts their own.
bool HasANameOfItsOwn(const Text &one) {
  return one.place.endsWith(u" Combo1") || one.place.endsWith(u" cobBlock") ||
         one.place.endsWith(u" lblName") || one.place.endsWith(u" prp_fontName_list");
}

/// A control in sight that is narrower than its words.
QString Cut(const QWidget &window) {
  QStringList cut;
  for (const auto *widget : window.findChildren<QWidget *>()) {
    if (!widget->isVisibleTo(&window) || widget->window() != &window) continue;
    const auto *label = qobject_cast<const QLabel *>(widget);
    // The status bar cuts its panes to its width.
    const bool isLabel = label != nullptr && !label->wordWrap() && !label->text().isEmpty() &&
                         !label->objectName().startsWith(u"Sta");
    const bool isButton = qobject_cast<const QCheckBox *>(widget) != nullptr ||
                          qobject_cast<const QPushButton *>(widget) != nullptr;
    if ((isLabel || isButton) && widget->width() < widget->sizeHint().width())
      cut += widget->objectName() + u' ' + NameOf(*widget);
  }
  return cut.join(u"; ");
}

TEST_F(LongWindow, SaysNothingThatIsNotTranslated) {
  LookAtEverything([](QWidget &shown, const char *name) {
    QStringList untranslated;
    for (const Text &one : TextsOf(shown)) {
      if (!one.text.contains(Start) && !IsTheSameInEveryLanguage(one) && !HasANameOfItsOwn(one))
        untranslated += one.place + QStringLiteral(": ") + one.text;
    }
    EXPECT_EQ(untranslated.join(u'\n').toStdString(), "") << name;
  });
}

TEST_F(LongWindow, HasRoomForLongerWordsOnASmallScreen) {
  LookAtEverything([](QWidget &shown, const char *name) {
    EXPECT_EQ(Cut(shown).toStdString(), "") << name;
    EXPECT_LE(shown.frameGeometry().width(), 1280) << name;
    EXPECT_LE(shown.frameGeometry().height(), 720) << name;
  });
}

/// The Alt keys of the items of a menu that the program itself does not share between them.
QString SharedLetters() {
  QStringList shared;
  for (const MenuRow &row : MenuTable()) {
    for (const MenuRow &other : MenuTable()) {
      if (&other == &row) break;
      const auto key = [](const char *caption) {
        return QKeySequence::mnemonic(QString::fromUtf8(caption));
      };
      const auto spoken = [](const char *caption) {
        return QKeySequence::mnemonic(Words::tr(caption));
      };
      const bool isOfOneMenu = std::string_view(row.parent == nullptr ? "" : row.parent) ==
                               std::string_view(other.parent == nullptr ? "" : other.parent);
      if (!isOfOneMenu || spoken(row.caption).isEmpty() || key(row.caption) == key(other.caption))
        continue;
      if (spoken(row.caption) == spoken(other.caption))
        shared += Words::tr(row.caption) + QStringLiteral(", ") + Words::tr(other.caption);
    }
  }
  return shared.join(u"; ");
}

TEST_F(GermanWindow, HasRoomForItsWordsAndKeysOfTheirOwn) {
  LookAtEverything([](QWidget &shown, const char *name) {
    EXPECT_EQ(Cut(shown).toStdString(), "") << name;
    EXPECT_EQ(SharedAltKeys(shown).toStdString(), "") << name;
  });
  EXPECT_EQ(SharedLetters().toStdString(), "");
  EXPECT_EQ(Item("mnuSave")->text(), QStringLiteral("&Speichern"));
}

TEST_F(ChineseWindow, HasRoomForItsWordsAndKeysOfTheirOwn) {
  LookAtEverything([](QWidget &shown, const char *name) {
    EXPECT_EQ(Cut(shown).toStdString(), "") << name;
    EXPECT_EQ(SharedAltKeys(shown).toStdString(), "") << name;
  });
  EXPECT_EQ(SharedLetters().toStdString(), "");
}

TEST_F(GermanWindow, ShowsBlockFormatsInItsWordsAndAppliesThemByTheirNames) {
  NewPage();
  Parts().formats.ShowBlockFormat(QStringLiteral("Heading 2"));
  auto *box = Find<QComboBox>("cobFormat");
  EXPECT_NE(box->currentText(), QStringLiteral("Heading 2"));
  EXPECT_EQ(box->itemData(box->findText(box->currentText())).toString(),
            QStringLiteral("Heading 2"));
}

TEST_F(GermanWindow, WritesValuesOfPagesAsThePageHasThem) {
  NewPage();
  dialogs.ExpectModal([](QWidget &dialog) {
    auto *alignment = dialog.findChild<QComboBox *>(QStringLiteral("cobIMGAlign"));
    EXPECT_EQ(alignment->currentText(), Words::tr("Default"));
    EXPECT_EQ(alignment->currentData().toString(), QStringLiteral("Default"));
    dialog.close();
  });
  Choose("mnuISTimage");
}

}  // namespace
}  // namespace velor
