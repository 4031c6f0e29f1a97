// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/text/UnsupportedForm.h"

#include "platform/Words.h"

#include <QRegularExpression>

#include <algorithm>

namespace velor {

namespace {

constexpr qsizetype Looked = 4096;
/// A file counts as binary from one control character in so many bytes; pages have a few at most.
constexpr qsizetype OneIn = 12;

/// How files of other kinds begin.
constexpr QByteArrayView Signatures[] = {{"\x89PNG", 4},
                                         {"GIF87a", 6},
                                         {"GIF89a", 6},
                                         {"\xFF\xD8\xFF", 3},
                                         {"%PDF-", 5},
                                         {"PK\x03\x04", 4},
                                         {"\x1F\x8B", 2},
                                         {"BZh91AY&SY", 10},
                                         {"7z\xBC\xAF", 4},
                                         {"Rar!\x1A\x07", 6},
                                         {"\xD0\xCF\x11\xE0", 4},
                                         {"\x7F"
                                          "ELF",
                                          4},
                                         {"MZ\x90", 3},
                                         {"OggS\0", 5},
                                         {"ID3\x03", 4},
                                         {"ID3\x04", 4},
                                         {"wOFF", 4},
                                         {"wOF2", 4},
                                         {"SQLite format 3\0", 16}};

unsigned char ByteAt(QByteArrayView bytes, qsizetype at) {
  return static_cast<unsigned char>(bytes[at]);
}

bool StartsWith(QByteArrayView bytes, QByteArrayView start) {
  return bytes.startsWith(start);
}

/// Four bytes a character, all of them characters of Unicode, none of them two of UTF-16.
bool IsUtf32(QByteArrayView bytes) {
  if (StartsWith(bytes, {"\xFF\xFE\0\0", 4}) || StartsWith(bytes, {"\0\0\xFE\xFF", 4})) return true;
  if (bytes.size() < 8) return false;
  bool isLittle = true;
  bool isBig = true;
  for (qsizetype at = 0; at + 4 <= bytes.size(); at += 4) {
    isLittle = isLittle && ByteAt(bytes, at + 3) == 0 && ByteAt(bytes, at + 2) <= 0x10 &&
               (ByteAt(bytes, at) != 0 || ByteAt(bytes, at + 1) != 0);
    isBig = isBig && ByteAt(bytes, at) == 0 && ByteAt(bytes, at + 1) <= 0x10 &&
            (ByteAt(bytes, at + 2) != 0 || ByteAt(bytes, at + 3) != 0);
  }
  return isLittle || isBig;
}

bool IsUtf7(QByteArrayView bytes) {
  for (const QByteArrayView mark : {"+/v8", "+/v9", "+/v+", "+/v/"}) {
    if (bytes.startsWith(mark)) return true;
  }
  static const QRegularExpression declared(
      QStringLiteral("<(?:meta|\\?xml)\\b[^>]*(?:charset|encoding)\\s*=\\s*[\"']?\\s*"
                     "(?:utf-?7|unicode-1-1-utf-7|csunicode11utf7)\\b"),
      QRegularExpression::CaseInsensitiveOption);
  const bool isAscii = std::all_of(bytes.begin(), bytes.end(), [](char byte) { return byte >= 0; });
  return isAscii && declared.match(QString::fromLatin1(bytes)).hasMatch();
}

/// Begins with a "<" of EBCDIC and what follows it in pages, and has no "<" of ASCII.
bool IsEbcdic(QByteArrayView bytes) {
  const auto isBlank = [](unsigned char byte) {
    return byte == 0x40 || byte == 0x15 || byte == 0x25 || byte == 0x0D || byte == 0x05;
  };
  const auto isLetter = [](unsigned char byte) {
    const int low = byte & 0x0F;
    const int high = byte & 0xB0;  // capitals have 0x40 more
    return (high == 0x80 || high == 0x90) ? low >= 1 && low <= 9
                                          : high == 0xA0 && low >= 2 && low <= 9;
  };
  qsizetype at = 0;
  while (at < bytes.size() && isBlank(ByteAt(bytes, at))) ++at;
  if (at + 1 >= bytes.size() || ByteAt(bytes, at) != 0x4C || bytes.contains('<')) return false;
  const unsigned char next = ByteAt(bytes, at + 1);
  if (!isLetter(next) && next != 0x5A && next != 0x6F) return false;
  return bytes.contains('\x6E') && std::count_if(
                                       bytes.begin(), bytes.end(),
                                       [&](char byte) {
                                         const auto sign = static_cast<unsigned char>(byte);
                                         return isLetter(sign) || isBlank(sign);
                                       }) * 2 >
                                       bytes.size();
}

/// Whether zeros stand at even places only, or at odd ones only: two bytes a character.
bool IsLikeUtf16(QByteArrayView bytes) {
  bool isZeroAt[2] = {false, false};
  for (qsizetype at = 0; at < bytes.size(); ++at) {
    if (bytes[at] == 0) isZeroAt[at % 2] = true;
  }
  return isZeroAt[0] != isZeroAt[1];
}

bool IsBinary(QByteArrayView bytes) {
  if (std::any_of(std::begin(Signatures), std::end(Signatures),
                  [&](QByteArrayView signature) { return bytes.startsWith(signature); }))
    return true;
  const bool hasMark = StartsWith(bytes, {"\xFF\xFE", 2}) || StartsWith(bytes, {"\xFE\xFF", 2});
  if (hasMark || IsLikeUtf16(bytes)) return false;
  const auto controls = std::count_if(bytes.begin(), bytes.end(), [](char byte) {
    const auto code = static_cast<unsigned char>(byte);
    // Blanks, the end of a DOS file and what ISO-2022-JP switches with are text.
    return code < 0x20 && !(code >= 0x09 && code <= 0x0F) && code != 0x1A && code != 0x1B;
  });
  return controls * OneIn > bytes.size();
}

}  // namespace

std::optional<UnsupportedForm> UnsupportedFormOf(QByteArrayView bytes) {
  const QByteArrayView start = bytes.first(std::min(Looked, bytes.size()));
  if (IsUtf32(start)) return UnsupportedForm::Utf32;
  if (IsEbcdic(start)) return UnsupportedForm::Ebcdic;
  if (IsBinary(start)) return UnsupportedForm::Binary;
  if (IsUtf7(start)) return UnsupportedForm::Utf7;
  return std::nullopt;
}

QString InWords(UnsupportedForm form) {
  const QString noCharset = Words::tr("%1, which is none of the charsets that pages may have");
  switch (form) {
    case UnsupportedForm::Utf32:
      return noCharset.arg(QStringLiteral("UTF-32"));
    case UnsupportedForm::Utf7:
      return noCharset.arg(QStringLiteral("UTF-7"));
    case UnsupportedForm::Ebcdic:
      return noCharset.arg(QStringLiteral("EBCDIC"));
    case UnsupportedForm::Binary:
      return Words::tr("a binary file, which is no text");
  }
  return {};
}

}  // namespace velor
