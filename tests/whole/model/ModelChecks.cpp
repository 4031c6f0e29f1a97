// SPDX-License-Identifier: GPL-3.0-or-later
// What must hold after a deed.
#include "tests/whole/model/Model.h"

#include <QJsonArray>

#include <string>
#include <utility>

namespace velor {

namespace {

using Kind = Deed::Kind;

template <typename... Parts>
QString Sentence(const Parts &...parts) {
  QString text;
  ((text += QString(parts)), ...);
  return text;
}

QString Name(const QString &path) {
  return path.section(u'/', -2);
}

/// The name of a temporary copy beside its page.
QString CopyOf(QString path) {
  return path.replace(u'.', QStringLiteral("TMP."));
}

}  // namespace

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
  const bool isStep = deed.kind == Kind::Type || deed.MayApply() || deed.kind == Kind::Close;
  // A first save gives a page bytes and leaves it as it is.
  const bool isOther = page->shown.words != before.words ||
                       (!before.rest.isEmpty() && page->shown.rest != before.rest);
  if (isStep && isOther) page->earlier.push_back({before});
  return wrongPage;
}

QString Model::CheckFiles(const Deed &deed, const QJsonObject &sent) {
  Page *active = Active();
  QStringList targets;
  if (active != nullptr && deed.MayTouchAFile()) {
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
        return Sentence(Name(path), " was saved with other bytes: ", content.rest, " in place of ",
                        active->shown.rest);
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
      if (deed.kind != Kind::New && deed.kind != Kind::Open && !deed.OpensSeveral())
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
    const bool mayApply = deed.MayApply();
    if (mayApply && number == wasActive && words == known.source) known.shown.words = words;
    // Source that was applied, by its button or on the way to a save or an end of the editor.
    if (number == wasActive && words == known.shown.words + known.typed) {
      known.shown.words = words;
      known.typed.clear();
    }
    const bool mayBeStale =
        known.hasSource && known.isSourceStale && (!deed.MayTouchAFile() || !known.typed.isEmpty());
    if (mayApply && number == wasActive && mayBeStale && words == known.source) {
      known.shown.rest = known.savedRest = {};
      known.isHistoryKnown = false;
    }
    if (deed.kind == Kind::EditHtml && number == wasActive) known.isSourceStale = false;
    if (words != known.shown.words)
      return Sentence("page ", QString::number(number), " shows ", Listed(words), " in place of ",
                      Listed(known.shown.words));
    const Words typed = WordsIn(page[QStringLiteral("source")].toString()) - words - known.undone;
    const bool mayGo = deed.kind == Kind::EditHtml || deed.kind == Kind::CloseSource;
    if (!mayGo && !typed.contains(known.typed))
      return Sentence("typed source is gone: ", Listed(known.typed - typed));
    known.typed = typed;
    known.hasSource = page.contains(QStringLiteral("source"));
    known.source = WordsIn(page[QStringLiteral("source")].toString());
    if (path != known.path)
      return Sentence("page ", QString::number(number), " says it is ", Name(path), ", it is ",
                      Name(known.path));
    const bool isNamed = deed.MayTouchAFile() && number == wasActive && !path.isEmpty();
    if (isNamed && !page[QStringLiteral("tab")].toString().contains(path.section(u'/', -1)))
      return Sentence("the tab of ", Name(path), " says ", page[QStringLiteral("tab")].toString());
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
