// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/page/fuzz/FaithfulFuzz.h"

#include "page/saving/FaithfulPage.h"
#include "page/saving/PageVerifier.h"
#include "page/text/CharsetConverter.h"
#include "platform/RuntimeError.h"

#include <QList>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <vector>

namespace velor {

namespace {

/// Accepts the text with that number among the tries, so that every rung is reached.
class CountingVerifier : public PageVerifier {
 public:
  CountingVerifier(QString wanted, int accepted)
      : wanted_(std::move(wanted)), refusals_(accepted) {}
  std::optional<QString> Serialisation(const QString &) override {
    if (refusals_-- <= 0) return wanted_;
    return wanted_.left(wanted_.size() / 2);
  }

 private:
  QString wanted_;
  int refusals_;
};

void Require(bool condition, int line = __builtin_LINE()) {
  if (condition) return;
  std::fprintf(stderr, "line %d of FaithfulFuzz.cpp does not hold\n", line);
  std::abort();
}

void CheckTokens(const QString &text) {
  std::int32_t end = 0;
  for (const HtmlToken &token : TokenizeHtml(text)) {
    Require(token.offset >= end && token.length > 0);
    end = token.End();
    Require(end <= text.size());
    if (token.kind == HtmlTokenKind::StartTag)
      Require(ReadHtmlTag(text, token.offset).end <= token.End());
  }
}

QString WithoutBlanks(QString text) {
  return text.removeIf([](QChar codeUnit) { return codeUnit.isSpace(); });
}

/// Takes bytes as text of some charset, whatever they declare, and writes it with an addition.
void CheckCharset(char choice, const QByteArray &bytes) {
  static constexpr const char *Charsets[] = {
      "utf-8", "utf-16le", "utf-16be", "windows-1252", "iso-8859-16", "koi8-u",     "big5",
      "gbk",   "gb18030",  "euc-jp",   "euc-kr",       "shift_jis",   "iso-2022-jp"};
  const std::size_t number = static_cast<unsigned char>(choice) % std::size(Charsets);
  const QString charset = QString::fromLatin1(Charsets[number]);
  CharsetConverter converter(charset);
  std::vector<std::int32_t> places;
  const QString text = converter.Decode(bytes, places);
  Require(static_cast<qsizetype>(places.size()) == text.size());
  Require(std::is_sorted(places.begin(), places.end()));
  Require(places.empty() || (places.front() >= 0 && places.back() < bytes.size()));
  Require(converter.Decode(bytes) == text);
  if (converter.FirstReference(text) < 0) Require(converter.Decode(converter.Encode(text)) == text);

  const PageOriginal original{bytes, {text, {charset, false, LineEnds::Lf}}, {}};
  const qsizetype middle = text.size() / 2;
  try {
    const PageToWrite written =
        SpliceBytes(original, {{middle, middle, QStringLiteral("x\u65E5")}});
    Require(!written.bytes.isEmpty());
    Require(SpliceBytes(original, {}).bytes == bytes);
  } catch (const RuntimeError &) {
    // A character without a place in the page's charset.
  }
}

}  // namespace

void FuzzFaithfulPage(QByteArrayView data) {
  if (data.isEmpty()) return;
  // The input: a number, then the page's bytes and the two serialisations, parted by a rare byte.
  const int accepted = static_cast<unsigned char>(data.front()) % 30;
  QList<QByteArray> parts = data.sliced(1).toByteArray().split('\x1f');
  parts.resize(3);
  const DecodedPage decoded = DecodePage(parts[0]);
  const QString before = QString::fromUtf8(parts[1]);
  const QString now = QString::fromUtf8(parts[2]);
  CheckCharset(data.front(), data.sliced(1).toByteArray());
  CheckTokens(decoded.text);
  CheckTokens(before);

  FaithfulPage page(PageOriginal{parts[0], decoded, {}});
  // Blanks behind the last end tags are not loaded.
  Require(WithoutBlanks(page.Unmasked(page.TextToLoad())) == WithoutBlanks(decoded.text));
  page.SetBaseline(before);
  CountingVerifier verifier(now, accepted);
  try {
    if (!before.isEmpty()) Require(page.Compose(before, verifier).page.bytes == parts[0]);
    page.Compose(now, verifier);
    BytesForText(page.Original(), now, decoded.encoding);
  } catch (const RuntimeError &) {
    // A character without a place in the page's charset.
  }
}

}  // namespace velor
