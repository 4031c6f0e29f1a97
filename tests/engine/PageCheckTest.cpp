// SPDX-License-Identifier: GPL-3.0-or-later
// velor-page-check as a program: a line a file, whatever the files are.
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <vector>

namespace velor {

namespace {

class PageCheckProgram : public ::testing::Test {
 protected:
  QString Write(const QString &name, const QByteArray &content) const {
    const QString path = folder_.filePath(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return path;
  }
  /// The exit status; the lines are in `lines_` then.
  int Run(const QStringList &arguments) {
    QProcess program;
    program.start(QStringLiteral(VELOR_PAGE_CHECK), arguments);
    EXPECT_TRUE(program.waitForFinished(120'000));
    lines_.clear();
    output_ = program.readAllStandardOutput();
    for (const QByteArray &line : output_.split('\n')) {
      if (!line.isEmpty()) lines_.push_back(QJsonDocument::fromJson(line).object());
    }
    return program.exitCode();
  }
  bool Has(std::size_t line, const char *field) const {
    return lines_[line][QLatin1String(field)].toBool();
  }

  QTemporaryDir folder_;
  QByteArray output_;
  std::vector<QJsonObject> lines_;
};

TEST_F(PageCheckProgram, TellsOfEveryFileWhateverTheOthersAre) {
  const QString pipe = folder_.filePath(QStringLiteral("pipe.htm"));
  ASSERT_EQ(::mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
  const QStringList files = {
      Write(QStringLiteral("a/page.htm"), "<P>one"),
      folder_.filePath(QStringLiteral("none.htm")),
      Write(QStringLiteral("b/page.htm"), "<P>two"),
      folder_.path(),
      pipe,
      Write(QStringLiteral("empty.htm"), ""),
      Write(QStringLiteral("bytes.htm"), QByteArray("\x00\x01\xFF\xFE\x89PNG\r\n\x1A words", 18)),
      Write(QStringLiteral("no & name #1 %41.htm"), "<P>three"),
  };
  EXPECT_EQ(Run(QStringList{QStringLiteral("--edit"), QStringLiteral("insert-word")} + files), 1);
  ASSERT_EQ(lines_.size(), static_cast<std::size_t>(files.size()));
  for (std::size_t line = 0; line < lines_.size(); ++line) {
    SCOPED_TRACE(line);
    EXPECT_EQ(lines_[line][QStringLiteral("file")].toString(), files[static_cast<qsizetype>(line)]);
    for (const char *field : {"edited", "identical", "document_equal"})
      EXPECT_TRUE(lines_[line][QLatin1String(field)].isBool()) << field;
    for (const char *field : {"bytes_outside", "bytes_implied", "ms"})
      EXPECT_TRUE(lines_[line][QLatin1String(field)].isDouble()) << field;
    EXPECT_TRUE(lines_[line][QStringLiteral("rung")].isString());
    const bool isReadable = line != 1 && line != 3 && line != 4;
    EXPECT_EQ(lines_[line].contains(QStringLiteral("error")), !isReadable);
    EXPECT_EQ(Has(line, "document_equal"), isReadable);
  }
  for (const std::size_t edited : {0U, 2U, 7U}) EXPECT_TRUE(Has(edited, "edited"));
  EXPECT_TRUE(Has(5, "identical"));
}

TEST_F(PageCheckProgram, LeavesAPageWithoutTheAskedPlaceAsItIs) {
  const QString page = Write(QStringLiteral("page.htm"), "<P>one two");
  EXPECT_EQ(Run({QStringLiteral("--edit"), QStringLiteral("table-row"), page}), 0);
  ASSERT_EQ(lines_.size(), 1U);
  EXPECT_FALSE(Has(0, "edited"));
  EXPECT_TRUE(Has(0, "identical"));
  EXPECT_EQ(Run({QStringLiteral("--edit=bold"), QStringLiteral("--nth=99"), page}), 0);
  EXPECT_FALSE(Has(0, "edited"));
  EXPECT_TRUE(Has(0, "identical"));
}

TEST_F(PageCheckProgram, TypesAWordAsAPersonDoesAndKeepsTheCopy) {
  const QString page =
      Write(QStringLiteral("page.htm"), "<table>\n<tr><TD>one two<td>three\n</table>\n<P>four");
  const QString kept = folder_.filePath(QStringLiteral("kept"));
  for (const char *nth : {"0", "1", "2", "5"}) {
    EXPECT_EQ(Run({QStringLiteral("--edit=type=zebra"), QStringLiteral("--nth"), QLatin1String(nth),
                   QStringLiteral("--keep"), kept, page}),
              0);
    ASSERT_EQ(lines_.size(), 1U);
    EXPECT_TRUE(Has(0, "edited")) << nth;
    EXPECT_EQ(lines_[0][QStringLiteral("bytes_added")].toInt(), 5) << output_.constData();
    QFile copy(kept + QStringLiteral("/1.htm"));
    ASSERT_TRUE(copy.open(QIODevice::ReadOnly));
    EXPECT_TRUE(copy.readAll().contains("zebra")) << nth;
  }
}

TEST_F(PageCheckProgram, PressesKeysAndPastes) {
  const QString page = Write(QStringLiteral("page.htm"), "<P id=a>one <B>two</B> three</P>");
  for (const auto &[kind, lost, added] :
       {std::tuple{"backspace", 1, 0}, {"delete", 1, 0}, {"paste", 0, 6}, {"type", 0, 8}}) {
    EXPECT_EQ(Run({QStringLiteral("--edit"), QLatin1String(kind), page}), 0);
    ASSERT_EQ(lines_.size(), 1U);
    EXPECT_TRUE(Has(0, "edited")) << kind;
    EXPECT_EQ(lines_[0][QStringLiteral("bytes_lost")].toInt(), lost) << kind;
    EXPECT_EQ(lines_[0][QStringLiteral("bytes_added")].toInt(), added) << kind;
  }
  EXPECT_EQ(Run({QStringLiteral("--edit=enter"), page}), 0);
  EXPECT_GT(lines_[0][QStringLiteral("bytes_added")].toInt(), 0);
}

TEST_F(PageCheckProgram, ReplacesWordsInAllPlacesOfTheTextAndNowhereElse) {
  const QByteArray source =
      "<HTML><BODY>\r\n<P title=one>one two<!-- one --><? one ?>\r\n<P align=left>on<B>e</B>\r\n";
  const QString page = Write(QStringLiteral("page.htm"), source);
  const QString kept = folder_.filePath(QStringLiteral("kept"));
  EXPECT_EQ(
      Run({QStringLiteral("--edit=replace-all=one,three"), QStringLiteral("--keep"), kept, page}),
      0);
  ASSERT_EQ(lines_.size(), 1U);
  EXPECT_TRUE(Has(0, "edited")) << output_.constData();
  EXPECT_TRUE(Has(0, "document_equal")) << output_.constData();
  QFile copy(kept + QStringLiteral("/1.htm"));
  ASSERT_TRUE(copy.open(QIODevice::ReadOnly));
  EXPECT_EQ(copy.readAll().toStdString(), QByteArray(source)
                                              .replace(">one two", ">three two")
                                              .replace("on<B>e</B>", "three")
                                              .toStdString());
}

TEST_F(PageCheckProgram, LeavesThePagesOfTheManualAsTheyAreExceptForWhatIsTyped) {
  const QDir manual(QStringLiteral(VELOR_MANUAL));
  QStringList pages;
  for (const QString &name : manual.entryList({QStringLiteral("*.html")}))
    pages << manual.filePath(name);
  ASSERT_GE(pages.size(), 25);
  EXPECT_EQ(Run(pages), 0);
  for (const QJsonObject &line : lines_)
    EXPECT_TRUE(line[QStringLiteral("identical")].toBool()) << output_.constData();
  EXPECT_EQ(
      Run(QStringList{QStringLiteral("--edit=type=zebra"), QStringLiteral("--nth=7")} + pages), 0);
  for (const QJsonObject &line : lines_) {
    const QByteArray name = line[QStringLiteral("file")].toString().toUtf8();
    EXPECT_EQ(line[QStringLiteral("bytes_lost")].toInt(), 0) << name.constData();
    EXPECT_EQ(line[QStringLiteral("bytes_added")].toInt(), 5) << name.constData();
    EXPECT_TRUE(line[QStringLiteral("document_equal")].toBool()) << name.constData();
  }
}

TEST_F(PageCheckProgram, FindsAFragmentEqualThatHasLostItsFirstWord) {
  EXPECT_EQ(Run({QStringLiteral("--edit"), QStringLiteral("delete-word"),
                 Write(QStringLiteral("part.inc"), "Copyright <%= year %> by <b>us</b>.\n")}),
            0);
  ASSERT_EQ(lines_.size(), 1u);
  EXPECT_TRUE(Has(0, "document_equal")) << output_.constData();
  EXPECT_EQ(lines_[0][QLatin1String("bytes_lost")].toInt(), 9) << output_.constData();
}

TEST_F(PageCheckProgram, ChangesTablesAndPropertiesWithNoByteOutside) {
  const QString page =
      Write(QStringLiteral("page.htm"),
            "<HTML><HEAD>\r\n<TITLE>old</TITLE>\r\n</HEAD><BODY bgcolor=white>\r\n"
            "<TABLE border=1 >\r\n  <TR><TD rowspan=2>one<TD>two\r\n  <TR><TD>three\r\n"
            "  <TR><TD>four<TD>five\r\n</TABLE>\r\n<P>six <A HREF=x.htm>seven</A>\r\n");
  for (const char *kind :
       {"row", "column", "merge", "paste-cells", "class", "page-title", "link"}) {
    EXPECT_EQ(Run({QStringLiteral("--edit"), QLatin1String(kind), page}), 0);
    ASSERT_EQ(lines_.size(), 1U);
    EXPECT_TRUE(Has(0, "edited")) << kind;
    EXPECT_FALSE(Has(0, "identical")) << kind;
    EXPECT_TRUE(Has(0, "document_equal")) << kind;
    EXPECT_EQ(lines_[0][QStringLiteral("bytes_outside")].toInt(), 0) << output_.constData();
  }
}

TEST_F(PageCheckProgram, RefusesWhatMeansNothing) {
  const QString page = Write(QStringLiteral("page.htm"), "<P>one two");
  for (const QStringList &arguments : {QStringList{},
                                       {QStringLiteral("--edit"), QStringLiteral("shout"), page},
                                       {QStringLiteral("--nth"), QStringLiteral("-1"), page},
                                       {QStringLiteral("--nth"), QStringLiteral("first"), page},
                                       {QStringLiteral("--sing"), page}}) {
    EXPECT_EQ(Run(arguments), 2);
    EXPECT_TRUE(output_.isEmpty());
  }
  EXPECT_EQ(Run({QStringLiteral("--help")}), 0);
  for (const char *word :
       {"document_equal", "row", "column", "merge", "paste-cells", "class", "page-title", "link"})
    EXPECT_TRUE(output_.contains(word)) << word;
}

}  // namespace

}  // namespace velor
