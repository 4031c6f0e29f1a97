// SPDX-License-Identifier: GPL-3.0-or-later
// The manual as it lies in the tree: its links lead somewhere, and it tells of what the tables
// have.
#include "app/help/HelpTopics.h"
#include "app/help/Manual.h"
#include "app/settings/Preferences.h"
#include "app/window/CommandPalette.h"
#include "app/window/GeneralToolbar.h"
#include "app/window/MenuTable.h"
#include "chrome/Captions.h"
#include "editor/EditCommands.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <set>
#include <vector>

namespace velor {
namespace {

QString TextOf(const QString &path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return QString::fromUtf8(file.readAll());
}

std::vector<QString> Matches(const QString &text, const QString &pattern) {
  std::vector<QString> found;
  for (const auto &match : QRegularExpression(pattern).globalMatch(text))
    found.push_back(match.captured(1));
  return found;
}

class ManualTest : public ::testing::Test {
 protected:
  QString Page(const QString &name) const { return TextOf(manual.Folder() + u'/' + name); }
  QStringList Files(const char *pattern) const {
    return QDir(manual.Folder()).entryList({QString::fromLatin1(pattern)}, QDir::Files);
  }
  bool HasPlace(const QString &page, const QString &anchor) const {
    return Files("*.html").contains(page) &&
           (anchor.isEmpty() || Page(page).contains(QStringLiteral(" id=\"%1\"").arg(anchor)));
  }

  const Manual manual{ManualFolder(QCoreApplication::applicationDirPath())};
};

TEST_F(ManualTest, EveryLinkLeadsToAPlaceThatIsThere) {
  std::size_t links = 0;
  for (const QString &name : Files("*.html")) {
    for (const QString &link : Matches(Page(name), QStringLiteral("<a [^>]*?href=\"([^\"]*)\""))) {
      ++links;
      const QString page = link.section(u'#', 0, 0);
      EXPECT_TRUE(HasPlace(page.isEmpty() ? name : page, link.section(u'#', 1)))
          << name.toStdString() << " -> " << link.toStdString();
    }
  }
  EXPECT_GT(links, 150U);
}

TEST_F(ManualTest, EveryPictureIsThereIsDescribedAndIsUsed) {
  std::set<QString> used;
  for (const QString &name : Files("*.html")) {
    const QString html = Page(name);
    for (const QString &picture : Matches(html, QStringLiteral("<img src=\"([^\"]+)\""))) {
      EXPECT_TRUE(QFile::exists(manual.Folder() + u'/' + picture)) << picture.toStdString();
      used.insert(picture);
    }
    EXPECT_EQ(html.count(QStringLiteral("<img ")),
              html.count(QRegularExpression(QStringLiteral("<img [^>]* alt=\"[^\"]+\""))))
        << name.toStdString();
  }
  const QStringList pictures = Files("*.png");
  EXPECT_EQ(used, std::set<QString>(pictures.begin(), pictures.end()));
}

TEST_F(ManualTest, EveryPageIsInTheContentsWithAnAnchorAtEachHeading) {
  std::set<QString> listed;
  for (const ManualPart &part : manual.Parts()) {
    listed.insert(part.page);
    EXPECT_FALSE(part.title.isEmpty()) << part.page.toStdString();
  }
  const QStringList pages = Files("*.html");
  EXPECT_EQ(listed, std::set<QString>(pages.begin(), pages.end()));
  qsizetype headings = 0;
  for (const QString &page : pages)
    headings += Page(page).count(QRegularExpression(QStringLiteral("<h[1-6]")));
  EXPECT_EQ(manual.Parts().size(), headings);
}

TEST_F(ManualTest, EveryPageSaysItsLanguageAndIsUtf8) {
  for (const QString &name : Files("*.html")) {
    const QString html = Page(name);
    EXPECT_TRUE(html.contains(QStringLiteral("<html lang=\"en\">"))) << name.toStdString();
    EXPECT_TRUE(html.contains(QStringLiteral("<meta charset=\"utf-8\">"))) << name.toStdString();
    EXPECT_TRUE(html.contains(QStringLiteral("<meta name=\"viewport\""))) << name.toStdString();
    EXPECT_EQ(html.count(QStringLiteral("<table>")), html.count(QStringLiteral("<table>\n<tr><th")))
        << name.toStdString();
  }
}

TEST_F(ManualTest, TheChapterOnKeysHasEveryKeyOfTheMenus) {
  const QString keys = Page(QStringLiteral("keyboard.html"));
  int known = 0;
  for (const MenuRow &row : MenuTable()) {
    if (row.shortcut == nullptr) continue;
    ++known;
    const QString line = QStringLiteral("<kbd>%1</kbd></td><td>%2")
                             .arg(QString::fromLatin1(row.shortcut),
                                  SpokenCaption(QString::fromLatin1(row.caption)));
    EXPECT_TRUE(keys.contains(line)) << line.toStdString();
  }
  EXPECT_GE(known, 5);
}

TEST_F(ManualTest, ItNamesEveryCommandAndButton) {
  QString all;
  for (const ManualPart &part : manual.Parts()) all += part.title + u' ' + part.text + u'\n';
  QStringList names;
  for (const MenuRow &row : MenuTable()) {
    if (row.command.id != CommandId::None) names << SpokenCaption(QString::fromLatin1(row.caption));
  }
  for (const GeneralButton &button : GeneralButtons) names << QString::fromLatin1(button.tooltip);
  for (const EditCommand &button : EditCommands) names << QString::fromLatin1(button.tooltip);
  for (const QString &name : names) EXPECT_TRUE(all.contains(name)) << name.toStdString();
}

TEST_F(ManualTest, TheTopicsOfF1LeadToPlacesThatAreThere) {
  for (const HelpTopic &topic : HelpTopics()) {
    const QString place = QString::fromLatin1(topic.place);
    EXPECT_TRUE(HasPlace(place.section(u'#', 0, 0), place.section(u'#', 1))) << topic.place;
  }
}

TEST_F(ManualTest, WordsAreFoundByTheirBeginningsAndTitlesComeFirst) {
  const QList<ManualPart> found = manual.Find(QStringLiteral("LINE en"));
  ASSERT_FALSE(found.isEmpty());
  EXPECT_EQ(found.constFirst().Place(), QStringLiteral("files.html#line-ends"));
  const QList<ManualPart> ofChapter = manual.Find(QStringLiteral("pictures size"));
  ASSERT_FALSE(ofChapter.isEmpty());
  EXPECT_EQ(ofChapter.constFirst().Place(), QStringLiteral("pictures.html#size"));
  for (const ManualPart &part : manual.Find(QStringLiteral("grid")))
    EXPECT_TRUE((part.title + part.text).contains(QStringLiteral("grid"), Qt::CaseInsensitive));
  EXPECT_FALSE(manual.Find(QStringLiteral("drives.conf")).isEmpty());
  EXPECT_TRUE(manual.Find(QStringLiteral("ettings.xyz")).isEmpty());
  EXPECT_TRUE(manual.Find(QStringLiteral("  ")).isEmpty());
}

TEST(ManualFolderTest, AnInstallationGoesBeforeTheCheckoutAndWithoutEitherThereIsNone) {
  const QTemporaryDir prefix;
  const QDir root(prefix.path());
  root.mkpath(QStringLiteral("bin"));
  const QString programs = root.filePath(QStringLiteral("bin"));
  EXPECT_EQ(ManualFolder(programs), QString());
  EXPECT_TRUE(Manual(QString()).IsEmpty());
  const auto write = [&](const QString &folder) {
    root.mkpath(folder);
    QFile page(root.filePath(folder + QStringLiteral("/index.html")));
    EXPECT_TRUE(page.open(QIODevice::WriteOnly));
    return root.filePath(folder);
  };
  const QString ofCheckout = write(QStringLiteral("docs/manual"));
  EXPECT_EQ(ManualFolder(programs), ofCheckout);
  const QString installed = write(QStringLiteral("share/doc/velor-web-creator/html"));
  EXPECT_EQ(ManualFolder(programs), installed);
}

TEST_F(ManualTest, TheChapterOnSettingsHasEveryOneWithItsDefault) {
  const QString settings = Page(QStringLiteral("settings.html")).replace(u'\n', QString());
  for (const Preference &preference : PreferenceTable) {
    const QString defaultValue = preference.defaultValue.empty()
                                     ? QStringLiteral("empty")
                                     : QStringLiteral("<code>%1</code>").arg(preference.Default());
    const QString cells =
        QStringLiteral("<td><code>%1</code></td><td>%2</td>").arg(preference.Name(), defaultValue);
    EXPECT_TRUE(settings.contains(cells)) << cells.toStdString();
  }
}

}  // namespace
}  // namespace velor
