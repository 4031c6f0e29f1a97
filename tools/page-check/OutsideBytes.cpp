// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/page-check/OutsideBytes.h"

#include "page/saving/PageEdits.h"
#include "page/text/CharsetConverter.h"

#include <QHash>

#include <algorithm>

namespace velor {

namespace {

/// What two texts do not share.
struct Distance {
  QString gone;
  QString come;
};

/// Compares slices as they are written, whatever they mean.
TokenText AsWritten(const QString &text) {
  TokenText written(text);
  std::int32_t done = 0;
  std::vector<HtmlToken> tokens;
  const auto add = [&](HtmlToken token, std::int32_t start, std::int32_t end) {
    token.offset = start;
    token.length = end - start;
    token.key = qHash(QStringView(text).sliced(start, token.length), std::size_t{0});
    tokens.push_back(token);
  };
  for (const HtmlToken &token : written.tokens) {
    if (token.offset > done) add({}, done, token.offset);
    add(token, token.offset, token.End());
    done = token.End();
  }
  if (done < text.size()) add({}, done, static_cast<std::int32_t>(text.size()));
  written.tokens = std::move(tokens);
  return written;
}

bool IsSameTag(QStringView one, QStringView other) {
  const std::vector<HtmlToken> a = TokenizeHtml(one);
  const std::vector<HtmlToken> b = TokenizeHtml(other);
  return a.front().kind == b.front().kind && a.front().name == b.front().name;
}

/// Cuts off what a replaced slice and its replacement share at both ends.
void Add(Distance &distance, QStringView gone, QStringView come) {
  qsizetype front = 0;
  const qsizetype shorter = std::min(gone.size(), come.size());
  while (front < shorter && gone[front] == come[front]) ++front;
  qsizetype back = 0;
  while (back < shorter - front && gone[gone.size() - 1 - back] == come[come.size() - 1 - back])
    ++back;
  // Two tags share their brackets, but neither is a part of the other.
  if (gone.startsWith(u'<') && come.startsWith(u'<') && !IsSameTag(gone, come)) front = back = 0;
  distance.gone += gone.sliced(front, gone.size() - front - back);
  distance.come += come.sliced(front, come.size() - front - back);
}

Distance DistanceOf(const TokenText &one, const TokenText &other) {
  Distance distance;
  const TokenAlignment alignment = AlignTokens(one.tokens, other.tokens, InStep::WithEdit);
  for (const PageEdit &edit : FindEdits(one, other, alignment))
    Add(distance, one.Slice(edit.before, edit.beforeEnd), other.Slice(edit.now, edit.nowEnd));
  return distance;
}

/// What the edit takes from the source and adds to it.
Distance DistanceOfEdit(const TokenText &source, const TokenText &before, const TokenText &now,
                        LineEnds ends) {
  Distance distance;
  const TokenAlignment toSource =
      AlignTokens(source.tokens, before.tokens, InStep::WithSerialisation);
  const TokenAlignment toNow = AlignTokens(before.tokens, now.tokens, InStep::WithEdit);
  // What a parser moved has its counterpart out of order.
  QMultiHash<std::uint64_t, std::int32_t> elsewhere;
  for (std::int32_t at = 0; at < source.Count(); ++at) {
    if (toSource.toOther[static_cast<std::size_t>(at)] < 0) elsewhere.insert(source.At(at).key, at);
  }
  for (const PageEdit &edit : FindEdits(before, now, toNow)) {
    if (edit.isTagChange) {  // attribute by attribute; the tag itself may be written in other ways
      const QString old = before.Slice(edit.before, edit.beforeEnd).toString();
      Add(distance, WithLineEnds(old, ends), now.Slice(edit.now, edit.nowEnd));
      continue;
    }
    std::int32_t first = -1;
    std::int32_t last = -2;
    for (std::int32_t at = edit.before; at < edit.beforeEnd; ++at) {
      const std::int32_t counterpart = toSource.fromOther[static_cast<std::size_t>(at)];
      if (counterpart < 0) {
        if (const auto found = elsewhere.find(before.At(at).key); found != elsewhere.end()) {
          distance.gone += source.Slice(*found, *found + 1);
          elsewhere.erase(found);
        }
        continue;
      }
      if (first < 0) first = counterpart;
      last = counterpart;
    }
    Add(distance, first < 0 ? QStringView() : source.Slice(first, last + 1),
        now.Slice(edit.now, edit.nowEnd));
  }
  return distance;
}

/// The tags among what came that the parser had implied: the smallest change that gives the
/// document has them as well, since a save leaves out what the document can do without.
qsizetype ImpliedTags(const QString &come, const TokenText &source, const TokenText &before,
                      const TokenText &now) {
  const TokenAlignment alignment =
      AlignTokens(source.tokens, before.tokens, InStep::WithSerialisation);
  const TokenAlignment toNow = AlignTokens(before.tokens, now.tokens, InStep::WithEdit);
  QMultiHash<std::uint64_t, std::int32_t> implied;  // their lengths in code units, by keys
  for (std::size_t at = 0; at < before.tokens.size(); ++at) {
    const HtmlToken &token = before.tokens[at];
    if (alignment.fromOther[at] >= 0 || !token.IsTag()) continue;
    implied.insert(token.key, token.length);
    // Once it has other attributes all of it is written; only these are the edit's.
    const std::int32_t changed = toNow.toOther[at];
    if (changed >= 0 && now.At(changed).key != token.key)
      implied.insert(now.At(changed).key, token.length);
  }
  qsizetype codeUnits = 0;
  for (const HtmlToken &token : TokenizeHtml(come)) {
    const auto found = token.IsTag() ? implied.find(token.key) : implied.end();
    if (found == implied.end()) continue;
    codeUnits += *found;
    implied.erase(found);
  }
  return codeUnits;
}

/// Tags that are written as the page's others are may close themselves, which the document's do
/// not.
QString WithoutSlashes(QString text) {
  return text.replace(QLatin1String(" />"), QLatin1String(">"));
}

/// A token a byte.
std::vector<HtmlToken> BytesAsTokens(const QByteArray &bytes) {
  std::vector<HtmlToken> tokens;
  tokens.reserve(static_cast<std::size_t>(bytes.size()));
  for (const char byte : bytes) {
    HtmlToken token;
    token.key = static_cast<unsigned char>(byte);
    token.offset = static_cast<std::int32_t>(tokens.size());
    token.length = 1;
    token.isStrong = true;
    tokens.push_back(token);
  }
  return tokens;
}

}  // namespace

ByteDifference CountByteDifference(const QByteArray &file, const QByteArray &saved) {
  const TokenAlignment alignment =
      AlignTokens(BytesAsTokens(file), BytesAsTokens(saved), InStep::WithEdit);
  const auto unmatched = [](const std::vector<std::int32_t> &counterparts) {
    return static_cast<qsizetype>(std::count(counterparts.begin(), counterparts.end(), -1));
  };
  return {unmatched(alignment.toOther), unmatched(alignment.fromOther)};
}

BytesBeyondEdit CountBytesBeyondEdit(const EditedPage &page) {
  if (page.file == page.saved) return {};
  const DecodedPage file = DecodePage(page.file);
  const DecodedPage saved = DecodePage(page.saved);
  CharsetConverter converter(file.encoding.charset);
  const auto size = [&](const QString &text) { return converter.Encode(text).size(); };
  const LineEnds ends = file.encoding.lineEnds;
  const Distance changed = DistanceOf(AsWritten(file.text), AsWritten(saved.text));
  const TokenText source(file.text);
  const TokenText before(page.before, HtmlOrigin::Serialisation);
  const TokenText now(page.now, HtmlOrigin::Serialisation);
  const Distance edit = DistanceOfEdit(source, before, now, ends);
  const qsizetype gone = size(changed.gone) - size(edit.gone);
  const qsizetype come = size(WithoutSlashes(changed.come)) - size(WithLineEnds(edit.come, ends));
  const qsizetype implied =
      come > 0 ? std::min(come, ImpliedTags(changed.come, source, before, now)) : 0;
  return {std::max<qsizetype>(0, gone) + std::max<qsizetype>(0, come - implied), implied};
}

}  // namespace velor
