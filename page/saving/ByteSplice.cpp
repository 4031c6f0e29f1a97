// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/saving/ByteSplice.h"

#include "page/saving/PageEdits.h"
#include "page/saving/PageMask.h"
#include "page/text/CharsetConverter.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace velor {

namespace {

/// Whether the charset changes its state by escape sequences.
bool HasStates(const PageEncoding &encoding) {
  return encoding.charset == u"iso-2022-jp";
}

bool IsLineBreak(QChar codeUnit) {
  return codeUnit == u'\n' || codeUnit == u'\r';
}

/// Whether a reference at that place of the text stands for its character: in text and in an
/// attribute's value.
bool TakesReference(const QString &whole, const HtmlToken &token, qsizetype place) {
  if (token.IsText()) return true;
  if (token.kind != HtmlTokenKind::StartTag) return false;
  const HtmlTagParts tag = ReadHtmlTag(whole, token.offset);
  return std::any_of(tag.attributes.begin(), tag.attributes.end(), [place](const auto &attribute) {
    return attribute.value >= 0 && place >= attribute.value &&
           place < attribute.value + attribute.valueLength;
  });
}

/// Raises InvalidProcedureCall where a character would need a reference in a place that takes none.
void RequireReferencesFit(const QString &text, const std::vector<TextPatch> &patches,
                          CharsetConverter &converter, const QString &charset) {
  std::vector<qsizetype> places;
  qsizetype shift = 0;
  for (const TextPatch &patch : patches) {
    for (qsizetype at = 0; at < patch.text.size();) {
      const qsizetype found = converter.FirstReference(QStringView(patch.text).sliced(at));
      if (found < 0) break;
      places.push_back(patch.start + shift + at + found);
      at += found + 1;
    }
    shift += patch.text.size() - (patch.end - patch.start);
  }
  if (places.empty()) return;
  const QString whole = Patched(text, patches);
  const PageMask mask(whole);
  const std::vector<HtmlToken> tokens = TokenizeHtml(whole);
  for (const qsizetype place : places) {
    const auto after =
        std::upper_bound(tokens.begin(), tokens.end(), place,
                         [](qsizetype at, const HtmlToken &token) { return at < token.offset; });
    const bool isInToken = after != tokens.begin() && place < std::prev(after)->End();
    if (isInToken && TakesReference(whole, *std::prev(after), place) && !mask.IsServerCode(place))
      continue;
    const QStringView rest = QStringView(whole).sliced(place);
    const QString character = rest.first(rest[0].isHighSurrogate() ? 2 : 1).toString();
    throw RuntimeError(
        ErrorNumber::InvalidProcedureCall, QStringLiteral("SaveDocument"),
        Words::tr("The character \"%1\" cannot be written in the page's charset %2 inside a "
                  "script, style sheet, comment, name or server code.")
            .arg(character, charset));
  }
}

/// A page that declares no charset was read as windows-1252 because its bytes are no UTF-8. Where
/// what is left of them would be, one character becomes a reference.
PageToWrite StillReadAsBefore(PageToWrite page, const PageEncoding &encoding) {
  const bool isSafe = encoding.charset != u"windows-1252" ||
                      !QByteArrayView(page.bytes).isValidUtf8() ||
                      DecodePage(page.bytes).encoding.charset == encoding.charset;
  if (isSafe) return page;
  for (const HtmlToken &token : TokenizeHtml(page.text)) {
    if (!token.IsText() && token.kind != HtmlTokenKind::StartTag) continue;
    for (qsizetype at = token.offset; at < token.End(); ++at) {
      const char16_t codeUnit = page.text[at].unicode();
      if (codeUnit < 0x80) continue;
      const QString reference = QStringLiteral("&#%1;").arg(codeUnit);
      // One byte a character.
      page.bytes.replace(at, 1, reference.toLatin1());
      page.text.replace(at, 1, reference);
      return page;
    }
  }
  return page;
}

/// A text cut into lines, each with its line end.
TokenText Lines(const QString &text) {
  TokenText lines;
  lines.text = text;
  for (qsizetype at = 0; at < text.size();) {
    const qsizetype lineBreak = text.indexOf(u'\n', at);
    const qsizetype end = lineBreak < 0 ? text.size() : lineBreak + 1;
    HtmlToken line;
    line.offset = static_cast<std::int32_t>(at);
    line.length = static_cast<std::int32_t>(end - at);
    line.key = qHash(QStringView(text).sliced(at, end - at), std::size_t{0});
    line.isStrong = true;
    lines.tokens.push_back(line);
    at = end;
  }
  return lines;
}

class Splicer {
 public:
  explicit Splicer(const PageOriginal &original)
      : original_(original), converter_(original.page.encoding.charset) {
    const QByteArrayView all = original.bytes;
    if (original.page.encoding.byteOrderMark)
      markLength_ = original.page.encoding.charset == u"utf-8" ? 3 : 2;
    bytes_ = all.sliced(std::min(markLength_, all.size()));
    text_ = converter_.Decode(bytes_, places_);
  }

  bool Fits() const { return text_ == original_.page.text; }

  /// The patches with their edges moved out of characters, and out of bytes in another state of the
  /// charset; patches that meet then are joined.
  std::vector<TextPatch> Widened(const std::vector<TextPatch> &patches) const {
    std::vector<TextPatch> wide;
    qsizetype done = 0;  // end of the patch before, in the text
    for (const TextPatch &patch : patches) {
      auto [start, end] = Edges(patch);
      if (!wide.empty() && start < wide.back().end) {
        TextPatch &last = wide.back();
        last.text.chop(last.end - done);
        last.text += QStringView(text_).sliced(done, patch.start - done);
        end = std::max(end, last.end);
      } else {
        wide.push_back(
            {start, end, QStringView(text_).sliced(start, patch.start - start).toString()});
      }
      TextPatch &last = wide.back();
      last.text += patch.text;
      last.text += QStringView(text_).sliced(patch.end, end - patch.end);
      last.end = end;
      done = patch.end;
    }
    return wide;
  }

  PageToWrite Write(const std::vector<TextPatch> &patches) {
    RequireReferencesFit(text_, patches, converter_, original_.page.encoding.charset);
    PageToWrite result;
    result.bytes = original_.bytes.first(markLength_);
    qsizetype done = 0;
    QString expected;
    for (const TextPatch &patch : patches) {
      const QByteArray written = converter_.Encode(patch.text);
      result.bytes += bytes_.sliced(Byte(done), Byte(patch.start) - Byte(done));
      result.bytes += written;
      expected += QStringView(text_).sliced(done, patch.start - done);
      expected += converter_.Decode(written);
      done = patch.end;
    }
    result.bytes += bytes_.sliced(Byte(done));
    expected += QStringView(text_).sliced(done);
    result.text = expected;
    // Invalid bytes may swallow the first of the bytes that now follow them.
    const QByteArrayView all = result.bytes;
    if (converter_.Decode(all.sliced(markLength_)) != expected)
      return WriteWhole(Patched(text_, patches), original_.page.encoding);
    return result;
  }

 private:
  qsizetype Byte(qsizetype codeUnit) const {
    return codeUnit < text_.size() ? places_[static_cast<std::size_t>(codeUnit)] : bytes_.size();
  }
  std::pair<qsizetype, qsizetype> Edges(const TextPatch &patch) const {
    qsizetype start = patch.start;
    qsizetype end = patch.end;
    while (!IsCut(start)) --start;
    while (!IsCut(end)) ++end;
    if (HasStates(original_.page.encoding) && !(IsPlain(start) && IsPlain(end))) {
      while (start > 0 && !(IsLineBreak(text_[start - 1]) && IsPlain(start))) --start;
      while (end < text_.size() && !(IsLineBreak(text_[end]) && IsPlain(end))) ++end;
    }
    return {start, end};
  }
  bool IsCut(qsizetype codeUnit) const {
    if (codeUnit <= 0 || codeUnit >= text_.size()) return true;
    return Byte(codeUnit) != Byte(codeUnit - 1) && !text_[codeUnit].isLowSurrogate();
  }
  /// Whether the charset is in its initial state behind the bytes before an offset of the text.
  bool IsPlain(qsizetype codeUnit) const {
    const QByteArrayView before = bytes_.first(Byte(codeUnit));
    const qsizetype escape = before.lastIndexOf('\x1b');
    return escape < 0 || before.sliced(escape).startsWith(QByteArrayView("\x1b(B"));
  }

  const PageOriginal &original_;
  CharsetConverter converter_;
  qsizetype markLength_ = 0;
  QByteArrayView bytes_;
  QString text_;
  std::vector<std::int32_t> places_;
};

}  // namespace

QString Patched(const QString &text, const std::vector<TextPatch> &patches) {
  QString result;
  qsizetype done = 0;
  for (const TextPatch &patch : patches) {
    result += QStringView(text).sliced(done, patch.start - done);
    result += patch.text;
    done = patch.end;
  }
  return result += QStringView(text).sliced(done);
}

PageToWrite SpliceBytes(const PageOriginal &original, const std::vector<TextPatch> &patches) {
  if (patches.empty()) return {original.page.text, original.bytes};
  Splicer splicer(original);
  if (!splicer.Fits())
    return WriteWhole(Patched(original.page.text, patches), original.page.encoding);
  return StillReadAsBefore(splicer.Write(splicer.Widened(patches)), original.page.encoding);
}

QByteArray BytesForText(const PageOriginal &original, const QString &text,
                        const PageEncoding &encoding) {
  const PageEncoding &before = original.page.encoding;
  if (before.charset != encoding.charset || before.byteOrderMark != encoding.byteOrderMark)
    return WriteWhole(text, encoding).bytes;
  const TokenText old = Lines(original.page.text);
  const TokenText now = Lines(text);
  const TokenAlignment alignment = AlignTokens(old.tokens, now.tokens, InStep::WithEdit);
  std::vector<TextPatch> patches;
  for (const PageEdit &edit : FindEdits(old, now, alignment)) {
    const qsizetype start =
        edit.before < old.Count() ? old.At(edit.before).offset : old.text.size();
    const QStringView gone = old.Slice(edit.before, edit.beforeEnd);
    patches.push_back({start, start + gone.size(), now.Slice(edit.now, edit.nowEnd).toString()});
  }
  return SpliceBytes(original, patches).bytes;
}

PageToWrite WriteWhole(const QString &text, const PageEncoding &encoding) {
  CharsetConverter converter(encoding.charset);
  RequireReferencesFit({}, {{0, 0, text}}, converter, encoding.charset);
  QByteArray bytes = EncodePage(text, encoding);
  QString written = converter.FirstReference(text) < 0 ? text : DecodePage(bytes).text;
  return StillReadAsBefore({std::move(written), std::move(bytes), WrittenExtent::WholePage},
                           encoding);
}

}  // namespace velor
