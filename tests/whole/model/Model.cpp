// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/whole/model/Model.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QRegularExpression>

#include <array>
#include <cstdlib>
#include <utility>

namespace velor {

namespace {

using Kind = Deed::Kind;

/// Pages of several forms, and files whose names the temporary copies' rule gives.
const std::array<std::pair<const char *, QByteArray>, 8> FirstFiles = {{
    {"site/a.htm", "<html><head></head><body><p>alpha</p></body></html>\n"},
    {"site/b.htm",
     "<html>\r\n<head><meta charset=windows-1252></head>\r\n<body>\r\n<p>b\xEAta</p>\r\n</body>\r\n"
     "</html>\r\n"},
    {"site/c.html", "<!doctype html>\n<title>c</title>\n<p>gamma</p>"},
    {"site/index.htm", "<html><head></head><body>\n  <p>index</p>\n</body></html>\n"},
    {"site/indexTMP.htm", "<html><head></head><body><p>no copy of index</p></body></html>"},
    {"site/my.site/page.htm", "<html><head></head><body><p>page</p></body></html>\n"},
    {"site/myTMP.site/pageTMP.htm",
     "<html><head></head><body><p>no copy of page</p></body></html>"},
    {"site/notes.txt", "w0w are the notes of nobody's page\n"},
}};

const QRegularExpression &Word() {
  static const QRegularExpression word(QStringLiteral("w\\d+w"));
  return word;
}

}  // namespace

Words WordsIn(const QString &text) {
  Words words;
  for (auto match = Word().globalMatch(text); match.hasNext();)
    words.insert(match.next().captured());
  return words;
}

QString Listed(const Words &words) {
  QStringList list(words.begin(), words.end());
  list.sort();
  return list.join(QStringLiteral(", "));
}

Content ContentOf(const QByteArray &bytes) {
  const QString text = QString::fromLatin1(bytes);
  return {QString(text).remove(Word()).toLatin1(), WordsIn(text)};
}

Model::Model(const QString &engine) : engine_(engine) {
  for (const char *name : {"program", "config", "data", "cache", "state"})
    QDir(folder_.path()).mkpath(QString::fromLatin1(name));
  qputenv("VELOR_PROGRAM_FOLDER", QFile::encodeName(Path(QStringLiteral("program"))));
  qputenv("XDG_CONFIG_HOME", QFile::encodeName(Path(QStringLiteral("config"))));
  qputenv("XDG_DATA_HOME", QFile::encodeName(Path(QStringLiteral("data"))));
  qputenv("XDG_CACHE_HOME", QFile::encodeName(Path(QStringLiteral("cache"))));
  qputenv("XDG_STATE_HOME", QFile::encodeName(Path(QStringLiteral("state"))));
  for (const auto &[name, bytes] : FirstFiles) Write(Path(QString::fromLatin1(name)), bytes);
  files_ = Disk();
}

Model::~Model() = default;

QString Model::Begin() {
  return StartAnew();
}

QString Model::Carry(const Deed &deed) {
  const QString wrong = Act(deed);
  return wrong.isEmpty() ? QString() : InWords(deed) + QStringLiteral(": ") + wrong;
}

void Model::Write(const QString &path, const QByteArray &bytes) {
  QDir().mkpath(QFileInfo(path).path());
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) std::abort();
}

QMap<QString, Content> Model::Disk() const {
  QMap<QString, Content> contents;
  QDirIterator walk(Path(QStringLiteral("site")), QDir::Files | QDir::Hidden,
                    QDirIterator::Subdirectories);
  while (walk.hasNext()) {
    QFile file(walk.next());
    if (file.open(QIODevice::ReadOnly)) contents.insert(file.fileName(), ContentOf(file.readAll()));
  }
  return contents;
}

Model::Page *Model::Active() {
  const auto found = pages_.find(active_);
  return found == pages_.end() ? nullptr : &*found;
}

bool Model::IsWritable(const QString &path) {
  return (QFile::permissions(path) & QFile::WriteOwner) != 0;
}

bool Model::IsOpen(const QString &path) const {
  for (const Page &page : pages_)
    if (page.path == path) return true;
  return false;
}

QStringList Model::PeoplesFiles() const {
  QStringList pages;
  for (const QString &path : files_.keys())
    if (!path.endsWith(QStringLiteral(".txt"))) pages.append(path);
  return pages;
}

QJsonObject Model::InJson(const Deed &deed) {
  static const QMap<Kind, const char *> names = {
      {Kind::New, "new"},           {Kind::Open, "open"},
      {Kind::Drop, "drop"},         {Kind::Switch, "switch"},
      {Kind::Type, "type"},         {Kind::Save, "save"},
      {Kind::SaveAs, "saveas"},     {Kind::ViewHtml, "view"},
      {Kind::Design, "design"},     {Kind::Preview, "preview"},
      {Kind::EditHtml, "edit"},     {Kind::TypeSource, "source"},
      {Kind::Apply, "apply"},       {Kind::CloseSource, "closesource"},
      {Kind::Close, "close"},       {Kind::DiskFull, "full"},
      {Kind::DiskHasRoom, "room"},  {Kind::Exit, "exit"},
      {Kind::Kill, "room"},         {Kind::Undo, "undo"},
      {Kind::TakeTheirs, "theirs"}, {Kind::PasteFiles, "paste"}};
  constexpr std::array Answers = {"yes", "no", "cancel"};
  QJsonObject sent{{QStringLiteral("do"), QString::fromLatin1(names.value(deed.kind))},
                   {QStringLiteral("answer"),
                    QString::fromLatin1(Answers.at(static_cast<std::size_t>(deed.answer)))},
                   {QStringLiteral("page"), deed.choice}};
  const QStringList files = PeoplesFiles();
  const QString &chosen = files.at(deed.choice % files.size());
  if (deed.kind == Kind::Open) sent.insert(QStringLiteral("path"), chosen);
  if (deed.OpensSeveral()) {
    QJsonArray paths;
    for (int i = 0; i < 2 + deed.choice % 2; ++i)
      paths.append(files.at((deed.choice + i) % files.size()));
    sent.insert(QStringLiteral("paths"), paths);
  }
  // One name in four is not given: the dialog is cancelled.
  if (deed.MayTouchAFile() && deed.choice % 4 != 0)
    sent.insert(QStringLiteral("path"), Path(QStringLiteral("site/own%1.htm").arg(++words_)));
  if (deed.kind == Kind::Type || deed.kind == Kind::TypeSource)
    sent.insert(QStringLiteral("text"), QStringLiteral("w%1w").arg(++words_));
  return sent;
}

QString Model::Act(const Deed &deed) {
  const QStringList files = PeoplesFiles();
  const QString &chosen = files.at(deed.choice % files.size());
  switch (deed.kind) {
    case Kind::MakeReadOnly:
    case Kind::MakeWritable:
      if (!IsOpen(chosen))
        QFile::setPermissions(chosen, deed.kind == Kind::MakeWritable
                                          ? QFile::ReadOwner | QFile::WriteOwner
                                          : QFile::ReadOwner);
      return {};
    case Kind::ChangeOutside:
      return IsWritable(chosen) ? ChangeOutside(deed, chosen) : QString();
    default:
      break;
  }
  const QJsonObject sent = InJson(deed);
  const auto seen = life_->Do(sent);
  if (deed.kind == Kind::DiskFull) isFull_ = true;
  if (deed.kind == Kind::DiskHasRoom || deed.kind == Kind::Kill) isFull_ = false;
  if (!seen) {
    if (deed.kind != Kind::Exit) return QStringLiteral("the program has ended");
    if (!life_->EndedWell()) return QStringLiteral("the exit failed");
    // Asked where nothing could be kept, the person let it end all the same.
    if (isFull_ && deed.answer == Deed::Answer::Yes) pages_.clear();
    return StartAnew();
  }
  if (deed.kind == Kind::Kill) {
    life_->Kill();
    return StartAnew();
  }
  return Check(deed, sent, *seen);
}

QString Model::ChangeOutside(const Deed &deed, const QString &path) {
  QFile file(path);
  if (file.open(QIODevice::Append)) file.write("<!-- by another program -->");
  file.close();
  files_[path] = Disk().value(path);
  const QJsonObject sent{{QStringLiteral("do"), QStringLiteral("changed")},
                         {QStringLiteral("path"), path}};
  const auto seen = life_->Do(sent);
  if (!seen) return QStringLiteral("the program has ended");
  for (Page &page : pages_) {
    if (page.path != path) continue;
    page.isAskedAbout = page.IsChanged() || !page.typed.isEmpty();
    if (!page.isAskedAbout) Load(page, files_[path]);
  }
  return Check(deed, sent, *seen);
}

void Model::Load(Page &page, const Content &content) {
  page.earlier.push_back({page.shown, true});
  page.undone += page.shown.words - content.words;
  page.shown = content;
  page.saved = content.words;
  page.savedRest = content.rest;
  page.isSourceStale = true;
  page.isAskedAbout = page.isUnsaved = page.mayAsk = false;
}

void Model::Type(Page &page, const QString &word) const {
  page.shown.words.insert(word);
  // What stands in a new page for its first word goes with it. The fake engine types beside it.
  QByteArray rest = page.shown.rest;
  if (engine_ == QStringLiteral("real")) rest.replace("<P>&nbsp;</P>", "<P></P>");
  if (rest != page.shown.rest) page.isSourceStale = true;
  page.shown.rest = rest;
}

void Model::Undo(Page &page) {
  if (page.earlier.empty()) return;
  const auto [before, isLoad] = page.earlier.back();
  page.earlier.pop_back();
  // What it came from is not what lies on the disk.
  if (isLoad) page.isAskedAbout = true;
  page.undone += page.shown.words - before.words;
  page.shown.words = before.words;
  // A page that has had no file has no bytes yet.
  if (before.rest.isEmpty() || before.rest == page.shown.rest) return;
  page.shown.rest = before.rest;
  page.isSourceStale = true;
}

void Model::Keep(const Page &page) {
  kept_ += page.shown.words - page.saved;
  kept_ += page.typed;
  if (!keptRests_.contains(page.path, page.shown.rest))
    keptRests_.insert(page.path, page.shown.rest);
}

QString Model::StartAnew() {
  for (const Page &page : std::as_const(pages_)) {
    if (page.IsChanged() || !page.typed.isEmpty()) Keep(page);
  }
  pages_.clear();
  active_ = 0;
  isFull_ = false;
  life_.reset();
  life_ = std::make_unique<Life>(engine_);
  auto seen = life_->Start();
  if (!seen) return QStringLiteral("the program does not start");
  Words missing = std::exchange(kept_, {});
  for (;;) {
    const QString wrong = TakeRestored(*seen, missing);
    if (!wrong.isEmpty()) return wrong;
    if ((*seen)[QStringLiteral("offers")].toInt() == 0 || pages_.size() >= MostPages) break;
    const auto before = pages_.size();
    seen = life_->Do({{QStringLiteral("do"), QStringLiteral("restore")}});
    if (!seen) return QStringLiteral("the program has ended while it restored a page");
    if ((*seen)[QStringLiteral("pages")].toArray().size() > before) continue;
    // What was kept of a file that is open waits until that page is closed.
    if ((*seen)[QStringLiteral("status")].toString().contains(QStringLiteral("open already")))
      break;
    return QStringLiteral("an offered page did not come back");
  }
  const bool isAllBack = (*seen)[QStringLiteral("offers")].toInt() == 0;
  if (isAllBack && !missing.isEmpty())
    return QStringLiteral("lost since the run before: ") + Listed(missing);
  kept_ = missing;
  if (isAllBack) keptRests_.clear();
  const QJsonObject nothing;
  return CheckFiles({Kind::Design}, nothing);
}

QString Model::TakeRestored(const QJsonObject &seen, Words &missing) {
  for (const QJsonValue &value : seen[QStringLiteral("pages")].toArray()) {
    const QJsonObject told = value.toObject();
    const int number = told[QStringLiteral("number")].toInt();
    if (pages_.contains(number)) continue;
    Page page;
    page.path = told[QStringLiteral("path")].toString();
    page.shown.words = WordsIn(told[QStringLiteral("text")].toString());
    page.source = WordsIn(told[QStringLiteral("source")].toString());
    page.hasSource = told.contains(QStringLiteral("source"));
    page.typed = page.source - page.shown.words;
    page.isUnsaved = true;
    if (files_.contains(page.path)) {
      page.saved = files_[page.path].words;
      page.savedRest = files_[page.path].rest;
      // The bytes that it came from: its file may have changed since. Where pages of two lives of
      // that file are offered, it is one of theirs.
      const QByteArrayList rests = keptRests_.values(page.path);
      page.shown.rest = rests.size() == 1 ? rests.front() : QByteArray();
      page.readOnly = !IsWritable(page.path);
    }
    missing -= page.shown.words + page.typed;
    pages_.insert(number, page);
    if (told[QStringLiteral("active")].toBool()) active_ = number;
  }
  return {};
}

}  // namespace velor
