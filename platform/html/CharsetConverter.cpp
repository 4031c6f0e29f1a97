// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/CharsetConverter.h"

#include <QChar>

#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>
#include <unicode/ucnv_err.h>

namespace velor {

namespace {

constexpr char16_t Replacement = 0xFFFD;

/// The library's tables that come closest to the Encoding Standard's, where the names differ.
const char *TableFor(const QString &charset) {
  struct Table {
    const char *charset;
    const char *table;
  };
  static constexpr Table tables[] = {
      {"big5", "Big5-HKSCS"},
      {"gbk", "gb18030"},
      {"euc-kr", "windows-949"},
      {"shift_jis", "windows-31j"},
      {"iso-8859-8-i", "iso-8859-8"},
      {"x-user-defined", "windows-1252"},
      {"iso-8859-10", "iso-8859_10-1998"},
      {"iso-8859-14", "iso-8859_14-1998"},
  };
  for (const Table &row : tables) {
    if (charset == QLatin1String(row.charset)) return row.table;
  }
  return nullptr;
}

UConverter *Open(const QString &charset) {
  const char *table = TableFor(charset);
  const QByteArray name = charset.toLatin1();
  UErrorCode status = U_ZERO_ERROR;
  UConverter *converter = ucnv_open(table != nullptr ? table : name.constData(), &status);
  if (converter != nullptr) return converter;
  status = U_ZERO_ERROR;
  return ucnv_open("windows-1252", &status);
}

/// One U+FFFD for each illegal or unassigned sequence; the library's own callback writes U+001A
/// for some.
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

/// Whether browsers read a form that they do not write, since many programs that read the charset
/// do not know it: the four-byte forms of GB 18030 in GBK, the Hong Kong characters in Big5.
bool IsExtension(const QString &charset, const QByteArray &bytes) {
  if (charset == u"gbk") return bytes.size() == 4;
  return charset == u"big5" && bytes.size() > 1 && static_cast<unsigned char>(bytes[0]) < 0xA1;
}

}  // namespace

CharsetConverter::CharsetConverter(const QString &charset)
    : converter_(Open(charset)), charset_(charset), isUnicode_(charset.startsWith(u"utf-")) {
  UErrorCode status = U_ZERO_ERROR;
  ucnv_setToUCallBack(converter_, WriteReplacement, nullptr, nullptr, nullptr, &status);
  ucnv_setFromUCallBack(converter_, UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
  ucnv_setFallback(converter_, false);
}

CharsetConverter::~CharsetConverter() {
  ucnv_close(converter_);
}

QString CharsetConverter::Decode(QByteArrayView bytes) {
  return Decode(bytes, nullptr);
}

QString CharsetConverter::Decode(QByteArrayView bytes, std::vector<std::int32_t> &offsets) {
  return Decode(bytes, &offsets);
}

QString CharsetConverter::Decode(QByteArrayView bytes, std::vector<std::int32_t> *offsets) {
  ucnv_resetToUnicode(converter_);
  QString text;
  // Few sequences give more UTF-16 units than they have bytes.
  text.resize(bytes.size() + 16);
  const char *source = bytes.data();
  const char *const sourceEnd = source + bytes.size();
  qsizetype used = 0;
  for (;;) {
    char16_t *const start = reinterpret_cast<char16_t *>(text.data());
    char16_t *target = start + used;
    const auto done = static_cast<std::int32_t>(source - bytes.data());
    if (offsets != nullptr) offsets->resize(static_cast<std::size_t>(text.size()));
    std::int32_t *const places = offsets != nullptr ? offsets->data() + used : nullptr;
    UErrorCode status = U_ZERO_ERROR;
    ucnv_toUnicode(converter_, &target, start + text.size(), &source, sourceEnd, places, true,
                   &status);
    const qsizetype filled = target - start;
    // Each turn counts its places from its own first byte.
    if (places != nullptr && done > 0)
      for (qsizetype unit = 0; unit < filled - used; ++unit) places[unit] += done;
    used = filled;
    if (status != U_BUFFER_OVERFLOW_ERROR) break;
    text.resize(text.size() * 2);
  }
  text.truncate(used);
  if (offsets != nullptr) offsets->resize(static_cast<std::size_t>(used));
  return text;
}

qsizetype CharsetConverter::FirstReference(QStringView text) {
  if (isUnicode_) return -1;
  for (qsizetype at = 0; at < text.size();) {
    const qsizetype start = at;
    if (!ReadsBack(NextCharacter(text, at))) return start;
  }
  return -1;
}

QByteArray CharsetConverter::Encode(const QString &text) {
  QString writable;
  writable.reserve(text.size());
  const QStringView view = text;
  qsizetype pending = 0;  // from here on nothing is copied yet
  for (qsizetype at = 0; at < view.size();) {
    const qsizetype start = at;
    const char32_t character = NextCharacter(view, at);
    const bool isBroken = character == Replacement && view[start] != QChar(Replacement);
    if (!isBroken && ReadsBack(character)) continue;
    writable += view.sliced(pending, start - pending);
    if (isUnicode_) {
      writable += QChar(Replacement);
    } else {
      writable += u'&' + (u'#' + QString::number(character)) + u';';
    }
    pending = at;
  }
  if (pending == 0) return EncodeWhole(view);
  writable += view.sliced(pending);
  return EncodeWhole(writable);
}

/// The text's bytes; as far as the first character that the charset lacks.
QByteArray CharsetConverter::EncodeWhole(QStringView text) {
  ucnv_resetFromUnicode(converter_);
  QByteArray bytes;
  bytes.resize(text.size() + text.size() / 2 + 16);
  const char16_t *source = text.utf16();
  const char16_t *const sourceEnd = source + text.size();
  qsizetype used = 0;
  for (;;) {
    char *const start = bytes.data();
    char *target = start + used;
    UErrorCode status = U_ZERO_ERROR;
    ucnv_fromUnicode(converter_, &target, start + bytes.size(), &source, sourceEnd, nullptr, true,
                     &status);
    used = target - start;
    if (status != U_BUFFER_OVERFLOW_ERROR) break;
    bytes.resize(bytes.size() * 2);
  }
  bytes.truncate(used);
  return bytes;
}

bool CharsetConverter::ReadsBack(char32_t character) {
  if (isUnicode_) return true;
  if (fates_.empty()) fates_.resize(QChar::LastValidCodePoint + 1);
  Fate &fate = fates_[character];
  if (fate == Fate::Unknown) {
    const auto units = QChar::fromUcs4(character);
    const QStringView text = units;
    const QByteArray bytes = EncodeWhole(text);
    fate = !IsExtension(charset_, bytes) && Decode(bytes) == text ? Fate::ReadsBack
                                                                  : Fate::NeedsReference;
  }
  return fate == Fate::ReadsBack;
}

}  // namespace velor
