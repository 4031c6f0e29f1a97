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

constexpr int MostPages = 5;

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

Words WordsIn(const QString &text) {
  Words words;
  for (auto match = Word().globalMatch(text); match.hasNext();)
    words.insert(match.next().captured());
  return words;
}

std::string Listed(const Words &words) {
  QStringList list(words.begin(), words.end());
  list.sort();
  return list.join(QStringLiteral(", ")).toStdString();
}

template <typename... Parts>
QString Sentence(const Parts &...parts) {
  std::string text;
  ((text += parts), ...);
  return QString::fromStdString(text);
}

std::string Name(const QString &path) {
  return path.section(u'/', -2).toStdString();
}

/// The name of a temporary copy beside its page.
QString CopyOf(QString path) {
  return path.replace(u'.', QStringLiteral("TMP."));
}

bool IsWritable(const QString &path) {
  return (QFile::permissions(path) & QFile::WriteOwner) != 0;
}

/// A save applies the source in front first.
bool MayApply(Kind kind) {
  return kind == Kind::Apply || kind == Kind::CloseSource || kind == Kind::Save ||
         kind == Kind::SaveAs;
}

bool MayTouchAFile(Kind kind) {
  return kind == Kind::Save || kind == Kind::SaveAs || kind == Kind::Close;
}

}  // namespace

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
      {Kind::New, "new"},          {Kind::Open, "open"},
      {Kind::Drop, "drop"},        {Kind::Switch, "switch"},
      {Kind::Type, "type"},        {Kind::Save, "save"},
      {Kind::SaveAs, "saveas"},    {Kind::ViewHtml, "view"},
      {Kind::Design, "design"},    {Kind::Preview, "preview"},
      {Kind::EditHtml, "edit"},    {Kind::TypeSource, "source"},
      {Kind::Apply, "apply"},      {Kind::CloseSource, "closesource"},
      {Kind::Close, "close"},      {Kind::DiskFull, "full"},
      {Kind::DiskHasRoom, "room"}, {Kind::Exit, "exit"},
      {Kind::Kill, "room"},        {Kind::Undo, "undo"},
      {Kind::TakeTheirs, "theirs"}};
  constexpr std::array Answers = {"yes", "no", "cancel"};
  QJsonObject sent{{QStringLiteral("do"), QString::fromLatin1(names.value(deed.kind))},
                   {QStringLiteral("answer"),
                    QString::fromLatin1(Answers.at(static_cast<std::size_t>(deed.answer)))},
                   {QStringLiteral("page"), deed.choice}};
  const QStringList files = PeoplesFiles();
  const QString &chosen = files.at(deed.choice % files.size());
  if (deed.kind == Kind::Open) sent.insert(QStringLiteral("path"), chosen);
  if (deed.kind == Kind::Drop) {
    QJsonArray paths;
    for (int i = 0; i < 2 + deed.choice % 2; ++i)
      paths.append(files.at((deed.choice + i) % files.size()));
    sent.insert(QStringLiteral("paths"), paths);
  }
  // One name in four is not given: the dialog is cancelled.
  if (MayTouchAFile(deed.kind) && deed.choice % 4 != 0)
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
  page.earlier.push_back(page.shown);
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
  const Content before = page.earlier.back();
  page.earlier.pop_back();
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
    return Sentence("lost since the run before: ", Listed(missing));
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

QString Model::Check(const Deed &deed, const QJsonObject &sent, const QJsonObject &seen) {
  const QString error = seen[QStringLiteral("error")].toString();
  if (!error.isEmpty() && !isFull_) return QStringLiteral("an error: ") + error;
  const Page *active = Active();
  const bool mayFail = isFull_ || (active != nullptr && active->readOnly);
  for (const QJsonValue &message : seen[QStringLiteral("messages")].toArray())
    if (message.toString().startsWith(QStringLiteral("File saving error")) && !mayFail)
      return message.toString();
  const int number = active_;
  const Content before = active != nullptr ? active->shown : Content();
  const QString wrong = CheckFiles(deed, sent);
  if (!wrong.isEmpty()) return wrong;
  const QString wrongPage = CheckPages(deed, sent, seen);
  const auto page = pages_.find(number);
  if (page == pages_.end()) return wrongPage;
  const bool isStep = deed.kind == Kind::Type || MayApply(deed.kind) || deed.kind == Kind::Close;
  // A first save gives a page bytes and leaves it as it is.
  const bool isOther = page->shown.words != before.words ||
                       (!before.rest.isEmpty() && page->shown.rest != before.rest);
  if (isStep && isOther) page->earlier.push_back(before);
  return wrongPage;
}

QString Model::CheckFiles(const Deed &deed, const QJsonObject &sent) {
  Page *active = Active();
  QStringList targets;
  if (active != nullptr && MayTouchAFile(deed.kind)) {
    targets.append(sent[QStringLiteral("path")].toString());
    if (!active->path.isEmpty() && deed.kind != Kind::SaveAs) targets.append(active->path);
  }
  const QMap<QString, Content> disk = Disk();
  if (!targets.isEmpty() && isFull_) active->mayAsk = true;
  for (auto [path, content] : files_.asKeyValueRange()) {
    if (!disk.contains(path)) return Sentence(Name(path), " is gone");
    if (disk[path] != content && !targets.contains(path))
      return Sentence(Name(path), " has other bytes");
  }
  for (auto [path, content] : disk.asKeyValueRange()) {
    if (files_.contains(path) && files_[path] == content) continue;
    if (targets.contains(path)) {
      const Words all = active->shown.words + active->typed;
      // Source in front is applied first, and takes the page's place as it does by its button.
      const bool isSource = !active->typed.isEmpty() && content.words == active->source;
      if (content.words != active->shown.words && content.words != all && !isSource)
        return Sentence(Name(path), " was saved without some words");
      const bool isStale = active->isSourceStale && !active->typed.isEmpty();
      if (!isStale && !active->shown.rest.isEmpty() && content.rest != active->shown.rest)
        return Sentence(Name(path), " was saved with other bytes: ", content.rest.toStdString(),
                        " in place of ", active->shown.rest.toStdString());
      active->shown = content;
      active->savedRest = content.rest;
      active->isAskedAbout = active->isUnsaved = active->mayAsk = false;
      active->typed -= content.words;
      active->saved = content.words;
      active->path = path;
      active->readOnly = false;
      files_.insert(path, content);
      continue;
    }
    bool isCopy = false;
    for (const Page &page : std::as_const(pages_)) isCopy = isCopy || CopyOf(page.path) == path;
    if (!isCopy) return Sentence(Name(path), " was left behind");
  }
  return {};
}

QString Model::CheckPages(const Deed &deed, const QJsonObject &sent, const QJsonObject &seen) {
  const QJsonArray all = seen[QStringLiteral("pages")].toArray();
  if (all.size() > MostPages) return QStringLiteral("more pages than there may be");
  if (seen[QStringLiteral("tabs")].toInt() != all.size())
    return QStringLiteral("other tabs than pages");
  QMap<int, QJsonObject> told;
  for (const QJsonValue &value : all)
    told.insert(value.toObject()[QStringLiteral("number")].toInt(), value.toObject());
  const int wasActive = active_;
  for (const int number : pages_.keys()) {
    if (told.contains(number)) continue;
    const Page page = pages_.take(number);
    if (deed.kind != Kind::Close || number != wasActive)
      return Sentence("the page of ", Name(page.path), " is gone");
    const QString wrong = CheckGone(deed, page, seen);
    if (!wrong.isEmpty()) return wrong;
  }
  for (auto [number, page] : std::as_const(told).asKeyValueRange()) {
    const Words words = WordsIn(page[QStringLiteral("text")].toString());
    const QString path = page[QStringLiteral("path")].toString();
    if (page[QStringLiteral("active")].toBool()) active_ = number;
    if (!pages_.contains(number)) {
      if (deed.kind != Kind::New && deed.kind != Kind::Open && deed.kind != Kind::Drop)
        return QStringLiteral("a page came from nowhere");
      if (!path.isEmpty() && IsOpen(path)) return Sentence(Name(path), " is open twice");
      const Content file = files_.value(path);
      if (words != file.words) return Sentence(Name(path), " is shown with other words");
      Page opened;
      opened.path = path;
      opened.shown = file;
      opened.saved = file.words;
      opened.savedRest = file.rest;
      opened.readOnly = !path.isEmpty() && !IsWritable(path);
      pages_.insert(number, opened);
      continue;
    }
    Page &known = pages_[number];
    if (deed.kind == Kind::Type && number == wasActive)
      Type(known, sent[QStringLiteral("text")].toString());
    if (deed.kind == Kind::Undo && number == wasActive) {
      if (known.isHistoryKnown)
        Undo(known);
      else
        known.shown = {{}, words};
    }
    const bool isTaken = deed.kind == Kind::TakeTheirs && !seen.contains(QStringLiteral("error"));
    if (isTaken && number == wasActive && known.isAskedAbout) Load(known, files_.value(known.path));
    // What is applied takes the page's place, words that the source has not got included.
    const bool mayApply = MayApply(deed.kind);
    if (mayApply && number == wasActive && words == known.source) known.shown.words = words;
    // Source that was applied, by its button or on the way to a save or an end of the editor.
    if (number == wasActive && words == known.shown.words + known.typed) {
      known.shown.words = words;
      known.typed.clear();
    }
    const bool mayBeStale = known.hasSource && known.isSourceStale &&
                            (!MayTouchAFile(deed.kind) || !known.typed.isEmpty());
    if (mayApply && number == wasActive && mayBeStale && words == known.source) {
      known.shown.rest = known.savedRest = {};
      known.isHistoryKnown = false;
    }
    if (deed.kind == Kind::EditHtml && number == wasActive) known.isSourceStale = false;
    if (words != known.shown.words)
      return Sentence("page ", std::to_string(number), " shows ", Listed(words), " in place of ",
                      Listed(known.shown.words));
    const Words typed = WordsIn(page[QStringLiteral("source")].toString()) - words - known.undone;
    const bool mayGo = deed.kind == Kind::EditHtml || deed.kind == Kind::CloseSource;
    if (!mayGo && !typed.contains(known.typed))
      return Sentence("typed source is gone: ", Listed(known.typed - typed));
    known.typed = typed;
    known.hasSource = page.contains(QStringLiteral("source"));
    known.source = WordsIn(page[QStringLiteral("source")].toString());
    if (path != known.path)
      return Sentence("page ", std::to_string(number), " says it is ", Name(path), ", it is ",
                      Name(known.path));
    const bool isNamed = MayTouchAFile(deed.kind) && number == wasActive && !path.isEmpty();
    if (isNamed && !page[QStringLiteral("tab")].toString().contains(path.section(u'/', -1)))
      return Sentence("the tab of ", Name(path), " says ",
                      page[QStringLiteral("tab")].toString().toStdString());
  }
  if (told.isEmpty()) active_ = 0;
  return {};
}

QString Model::CheckGone(const Deed &deed, const Page &page, const QJsonObject &seen) {
  const bool wasAsked = !seen[QStringLiteral("messages")].toArray().isEmpty();
  if (!page.IsChanged()) {
    return wasAsked && !page.mayAsk && deed.answer == Deed::Answer::No
               ? QStringLiteral("a page without changes asked before it closed")
               : QString();
  }
  if (wasAsked && deed.answer == Deed::Answer::No) return {};
  // Whatever was not asked for, or could not be saved, comes back at the next start.
  Keep(page);
  return {};
}

}  // namespace velor
