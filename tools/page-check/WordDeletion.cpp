// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/page-check/WordDeletion.h"

#include "page/text/HtmlTokens.h"
#include "page/text/PageEncoding.h"
#include "page/text/TemplateSigns.h"

#include <QHash>

#include <algorithm>
#include <numeric>

namespace velor {

namespace {

struct Change {
  QString before;  ///< what stands before the stretch
  QString gone;
  QString come;
  QString on;  ///< the saved text from there on
};

/// The one stretch in which two texts differ, in whole tokens of the first.
Change ChangeOf(const QString &file, const QString &saved) {
  const qsizetype shorter = std::min(file.size(), saved.size());
  qsizetype front = 0;
  while (front < shorter && file[front] == saved[front]) ++front;
  qsizetype back = 0;
  while (back < shorter - front && file[file.size() - 1 - back] == saved[saved.size() - 1 - back])
    ++back;
  const qsizetype end = file.size() - back;
  for (const HtmlToken &token : TokenizeHtml(file)) {
    if (token.offset < front && token.End() > front) front = token.offset;
    if (token.offset < end && token.End() > end) back = file.size() - token.End();
  }
  return {file.left(front), file.sliced(front, file.size() - back - front),
          saved.sliced(front, std::max<qsizetype>(0, saved.size() - back - front)),
          saved.sliced(front)};
}

bool IsBlank(const HtmlToken &token) {
  return token.kind == HtmlTokenKind::Blank || token.kind == HtmlTokenKind::LineBreak;
}

/// Takes the template sign that has the word in it out of a text; answers whether there is one.
bool TakeSignFrom(QString &gone, const QString &word) {
  TemplateSigns signs(gone);
  for (qsizetype at = 0; at < gone.size(); ++at) {
    const qsizetype end = signs.EndOf(at, SignPlace::BetweenTags);
    if (end == at) continue;
    if (end - at > word.size() && QStringView(gone).sliced(at, end - at).contains(word)) {
      gone.remove(at, end - at);
      return true;
    }
    at = end - 1;
  }
  return false;
}

/// The same for what a change took. Where the text before that ends as it does, the stretch may lie
/// further to the left as well: `{{a}} {{b}}` without its second sign.
bool TakeSign(Change &change, const QString &word) {
  QString gone = change.gone;
  QStringView before = change.before;
  for (qsizetype left = gone.size(); left > 0; --left) {
    if (TakeSignFrom(gone, word)) {
      change.gone = gone;
      return true;
    }
    if (!change.come.isEmpty() || !before.endsWith(gone.back())) return false;
    gone.prepend(before.back());
    gone.chop(1);
    before.chop(1);
  }
  return false;
}

/// The tokens of a text less those that the other one has too, in its order; blanks are none.
std::vector<HtmlToken> TokensLess(const QString &text, const std::vector<HtmlToken> &other) {
  std::vector<HtmlToken> rest;
  auto next = other.begin();
  for (const HtmlToken &token : TokenizeHtml(text)) {
    if (IsBlank(token)) continue;
    const auto found = std::find_if(next, other.end(),
                                    [&](const HtmlToken &each) { return each.key == token.key; });
    if (found == other.end())
      rest.push_back(token);
    else
      next = found + 1;
  }
  return rest;
}

/// True where the end tag of an element that went closes an earlier one of its name now: the first
/// A of `<a><a>word</a>`, which has no other.
bool LeavesItsEndTag(const Change &change, std::uint32_t name) {
  qsizetype opened = 0;
  for (const HtmlToken &token : TokenizeHtml(change.before)) {
    if (token.name == name) opened += token.kind == HtmlTokenKind::StartTag ? 1 : -1;
  }
  const std::vector<HtmlToken> rest = TokenizeHtml(change.on);
  const auto next = std::find_if_not(rest.begin(), rest.end(), IsBlank);
  return opened > 0 && next != rest.end() && next->name == name &&
         next->kind == HtmlTokenKind::EndTag;
}

qsizetype BlanksIn(const QString &text) {
  qsizetype units = 0;
  for (const HtmlToken &token : TokenizeHtml(text)) units += IsBlank(token) ? token.length : 0;
  return units;
}

}  // namespace

WordDeletion JudgeWordDeletion(const QByteArray &file, const QByteArray &saved,
                               const QString &word) {
  Change change = ChangeOf(DecodePage(file).text, DecodePage(saved).text);
  WordDeletion result;
  const bool isSign = TakeSign(change, word);
  if (isSign) result.with << QStringLiteral("sign");

  const std::uint32_t breakName = HtmlNameKey(u"br");
  for (const HtmlToken &token : TokensLess(change.come, TokenizeHtml(change.gone))) {
    if (token.name == breakName && !result.with.contains(QStringLiteral("line")))
      result.with << QStringLiteral("line");
    else
      result.beyond += token.length;
  }
  std::vector<HtmlToken> wanted = isSign ? std::vector<HtmlToken>() : TokenizeHtml(word);
  QHash<std::uint32_t, QList<qsizetype>> open;  // the lengths of start tags, by name
  for (const HtmlToken &token : TokensLess(change.gone, TokenizeHtml(change.come))) {
    if (!wanted.empty() && wanted.front().key == token.key) {
      wanted.erase(wanted.begin());
    } else if (token.kind == HtmlTokenKind::StartTag) {
      open[token.name].push_back(token.length);
    } else if (token.kind == HtmlTokenKind::EndTag && !open.value(token.name).isEmpty()) {
      open[token.name].pop_back();
      if (!result.with.contains(QStringLiteral("element")))
        result.with << QStringLiteral("element");
    } else {
      result.beyond += token.length;
    }
  }
  for (auto each = open.constBegin(); each != open.constEnd(); ++each) {
    const QList<qsizetype> &lengths = each.value();
    if (lengths.size() == 1 && LeavesItsEndTag(change, each.key()))
      result.with << QStringLiteral("element");
    else
      result.beyond += std::accumulate(lengths.begin(), lengths.end(), qsizetype{0});
  }
  for (const HtmlToken &token : wanted) result.beyond += token.length;

  const qsizetype blanks = BlanksIn(change.gone) - BlanksIn(change.come);
  if (blanks == 1)
    result.with << QStringLiteral("blank");
  else
    result.beyond += std::abs(blanks);
  return result;
}

}  // namespace velor
