// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/text/CharsetConverter.h"

#include "page/text/CharsetDecoder.h"

#include <QChar>

#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>
#include <unicode/ucnv_err.h>

namespace velor {

namespace {

/// One U+FFFD for each illegal sequence.
void WriteReplacement(const void *, UConverterToUnicodeArgs *arguments, const char *, int32_t,
                      UConverterCallbackReason reason, UErrorCode *status) {
  if (reason > UCNV_IRREGULAR) return;
  *status = U_ZERO_ERROR;
  ucnv_cbToUWriteUChars(arguments, &Replacement, 1, 0, status);
}

/// The character at `text[at]`, and `at` moved past it; U+FFFD for half a surrogate pair.
char32_t NextCharacter(QStringView text, qsizetype &at) {
  const QChar first = text[at++];
  if (!first.isSurrogate()) return first.unicode();
  if (first.isHighSurrogate() && at < text.size() && text[at].isLowSurrogate()) {
    return QChar::surrogateToUcs4(first, text[at++]);
  }
  return Replacement;
}

}  // namespace

CharsetConverter::CharsetConverter(const QString &charset)
    : form_(FormOf(charset)), isGbk_(charset == u"gbk") {
  if (form_ != CharsetForm::Unicode) {
    index_ = &IndexOf(charset);
    return;
  }
  UErrorCode status = U_ZERO_ERROR;
  unicode_ = ucnv_open(charset.toLatin1().constData(), &status);
  ucnv_setToUCallBack(unicode_, WriteReplacement, nullptr, nullptr, nullptr, &status);
}

CharsetConverter::~CharsetConverter() {
  ucnv_close(unicode_);
}

QString CharsetConverter::Decode(QByteArrayView bytes) {
  return Decode(bytes, nullptr);
}

QString CharsetConverter::Decode(QByteArrayView bytes, std::vector<std::int32_t> &offsets) {
  return Decode(bytes, &offsets);
}

QString CharsetConverter::Decode(QByteArrayView bytes, std::vector<std::int32_t> *offsets) {
  return unicode_ != nullptr ? DecodeUnicode(bytes, offsets)
                             : DecodeByIndex(form_, *index_, bytes, offsets);
}

QString CharsetConverter::DecodeUnicode(QByteArrayView bytes, std::vector<std::int32_t> *offsets) {
  ucnv_resetToUnicode(unicode_);
  QString text;
  // Few sequences give more UTF-16 code units than they have bytes.
  text.resize(bytes.size() + 16);
  const char *source = bytes.data();
  const char *const sourceEnd = source + bytes.size();
  qsizetype used = 0;
  for (;;) {
    auto *const start = reinterpret_cast<char16_t *>(text.data());
    char16_t *target = start + used;
    const auto done = static_cast<std::int32_t>(source - bytes.data());
    if (offsets != nullptr) offsets->resize(static_cast<std::size_t>(text.size()));
    std::int32_t *const places = offsets != nullptr ? offsets->data() + used : nullptr;
    UErrorCode status = U_ZERO_ERROR;
    ucnv_toUnicode(unicode_, &target, start + text.size(), &source, sourceEnd, places, true,
                   &status);
    const qsizetype filled = target - start;
    // Each turn counts its places from its own first byte.
    if (places != nullptr && done > 0)
      for (qsizetype codeUnit = 0; codeUnit < filled - used; ++codeUnit) places[codeUnit] += done;
    used = filled;
    if (status != U_BUFFER_OVERFLOW_ERROR) break;
    text.resize(text.size() * 2);
  }
  text.truncate(used);
  if (offsets != nullptr) offsets->resize(static_cast<std::size_t>(used));
  return text;
}

bool CharsetConverter::Writes(char32_t character) const {
  if (character < 0x80)
    return form_ != CharsetForm::Iso2022Jp ||
           (character != 0x0E && character != 0x0F && character != 0x1B);
  if (character <= 0xFFFF && index_->written[character] != 0)
    return form_ != CharsetForm::Iso2022Jp || index_->written[character] >= 0xA1A1;
  return form_ == CharsetForm::Gb && !isGbk_ && !FourBytesOf(character).isEmpty();
}

QByteArray CharsetConverter::BytesOf(char32_t character) const {
  const std::uint16_t written = character <= 0xFFFF ? index_->written[character] : 0;
  if (written == 0) return FourBytesOf(character);
  QByteArray bytes;
  if (written > 0xFF) bytes += static_cast<char>(written >> 8);
  bytes += static_cast<char>(written & 0xFF);
  return bytes;
}

qsizetype CharsetConverter::FirstReference(QStringView text) {
  if (unicode_ != nullptr) return -1;
  for (qsizetype at = 0; at < text.size();) {
    const qsizetype start = at;
    const QChar codeUnit = text[at];
    const char32_t character = NextCharacter(text, at);
    const bool isBroken = character == Replacement && codeUnit != QChar(Replacement);
    if (isBroken || !Writes(character)) return start;
  }
  return -1;
}

QByteArray CharsetConverter::Encode(const QString &text) {
  if (unicode_ != nullptr) return EncodeUnicode(text);
  QByteArray bytes;
  bytes.reserve(text.size() + text.size() / 2);
  const bool hasStates = form_ == CharsetForm::Iso2022Jp;
  bool isShifted = false;  // in the state of two bytes a character
  const auto shift = [&](bool toPairs) {
    if (!hasStates || isShifted == toPairs) return;
    bytes += toPairs ? "\x1b$B" : "\x1b(B";
    isShifted = toPairs;
  };
  const QStringView view = text;
  for (qsizetype at = 0; at < view.size();) {
    const QChar codeUnit = view[at];
    const char32_t character = NextCharacter(view, at);
    const bool isBroken = character == Replacement && codeUnit != QChar(Replacement);
    if (isBroken || !Writes(character)) {
      shift(false);
      bytes += "&#" + QByteArray::number(static_cast<uint>(character)) + ';';
    } else if (character < 0x80) {
      shift(false);
      bytes += static_cast<char>(character);
    } else {
      shift(true);
      for (const char byte : BytesOf(character))
        bytes += static_cast<char>(hasStates ? byte & 0x7F : byte);
    }
  }
  shift(false);
  return bytes;
}

QByteArray CharsetConverter::EncodeUnicode(const QString &text) {
  QString whole = text;
  for (qsizetype at = 0; at < whole.size();) {
    const qsizetype start = at;
    if (NextCharacter(whole, at) == Replacement) whole[start] = QChar(Replacement);
  }
  ucnv_resetFromUnicode(unicode_);
  QByteArray bytes;
  bytes.resize(whole.size() + whole.size() / 2 + 16);
  const char16_t *source = QStringView(whole).utf16();
  const char16_t *const sourceEnd = source + whole.size();
  qsizetype used = 0;
  for (;;) {
    char *const start = bytes.data();
    char *target = start + used;
    UErrorCode status = U_ZERO_ERROR;
    ucnv_fromUnicode(unicode_, &target, start + bytes.size(), &source, sourceEnd, nullptr, true,
                     &status);
    used = target - start;
    if (status != U_BUFFER_OVERFLOW_ERROR) break;
    bytes.resize(bytes.size() * 2);
  }
  bytes.truncate(used);
  return bytes;
}

}  // namespace velor
