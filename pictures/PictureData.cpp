// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/PictureData.h"

#include <QtEndian>

#include <optional>

namespace velor {

namespace {

const QByteArray PngSignature("\x89PNG\r\n\x1a\n", 8);

int ByteAt(const QByteArray &bytes, qsizetype at) {
  return static_cast<unsigned char>(bytes[at]);
}

/// Whether a JPEG segment is needed to show the picture: the JFIF header, a colour profile, or the
/// colour transform of an Adobe program. `content` is what follows the length.
bool IsNeededSegment(int marker, const QByteArray &content) {
  constexpr int App0 = 0xE0;
  constexpr int App2 = 0xE2;
  constexpr int App14 = 0xEE;
  constexpr int App15 = 0xEF;
  constexpr int Comment = 0xFE;
  if (marker == App0) return content.startsWith(QByteArray("JFIF\0", 5));
  if (marker == App2) return content.startsWith(QByteArray("ICC_PROFILE\0", 12));
  if (marker == App14) return content.startsWith("Adobe");
  return marker != Comment && (marker < App0 || marker > App15);
}

/// Where the coded picture that begins at `at` ends: at the next marker that is no restart marker.
qsizetype EndOfScan(const QByteArray &file, qsizetype at) {
  for (; at + 1 < file.size(); ++at) {
    const int next = ByteAt(file, at + 1);
    const bool isRestart = next >= 0xD0 && next <= 0xD7;
    if (ByteAt(file, at) == 0xFF && next != 0 && next != 0xFF && !isRestart) return at;
  }
  return file.size();
}

std::optional<QByteArray> JpegWithout(const QByteArray &file) {
  constexpr int EndOfImage = 0xD9;
  constexpr int StartOfScan = 0xDA;
  QByteArray kept = file.left(2);
  for (qsizetype at = 2; at + 3 < file.size();) {
    if (ByteAt(file, at) != 0xFF) return std::nullopt;
    const int marker = ByteAt(file, at + 1);
    if (marker == 0xFF) {
      ++at;
      continue;
    }
    const int length = qFromBigEndian<quint16>(file.constData() + at + 2);
    const qsizetype end = at + 2 + length;
    if (length < 2 || end > file.size()) return std::nullopt;
    if (IsNeededSegment(marker, file.mid(at + 4, length - 2))) kept += file.mid(at, end - at);
    at = end;
    if (marker != StartOfScan) continue;
    const qsizetype scanEnd = EndOfScan(file, at);
    kept += file.mid(at, scanEnd - at);
    at = scanEnd;
    if (at >= file.size() || ByteAt(file, at + 1) == EndOfImage)
      return kept + QByteArray("\xFF\xD9", 2);
  }
  return std::nullopt;
}

std::optional<QByteArray> PngWithout(const QByteArray &file) {
  constexpr qsizetype Frame = 12;  // length, name and check sum
  QByteArray kept = PngSignature;
  for (qsizetype at = PngSignature.size(); at + Frame <= file.size();) {
    const qsizetype end = at + Frame + qFromBigEndian<quint32>(file.constData() + at);
    if (end > file.size()) return std::nullopt;
    const QByteArray name = file.mid(at + 4, 4);
    const bool isData =
        name == "eXIf" || name == "tEXt" || name == "zTXt" || name == "iTXt" || name == "tIME";
    if (!isData) kept += file.mid(at, end - at);
    if (name == "IEND") return kept;
    at = end;
  }
  return std::nullopt;
}

std::optional<QByteArray> WebPWithout(const QByteArray &file) {
  constexpr qsizetype Header = 12;
  constexpr char DataFlags = 0x08 | 0x04;  // EXIF, XMP
  QByteArray kept = file.left(Header);
  for (qsizetype at = Header; at + 8 <= file.size();) {
    const auto length = qFromLittleEndian<quint32>(file.constData() + at + 4);
    const qsizetype end = at + 8 + length + length % 2;
    if (end > file.size()) return std::nullopt;
    const QByteArray name = file.mid(at, 4);
    if (name != "EXIF" && name != "XMP ") {
      const qsizetype flags = kept.size() + 8;
      kept += file.mid(at, end - at);
      if (name == "VP8X" && length > 0) kept[flags] = char(kept[flags] & ~DataFlags);
    }
    at = end;
  }
  qToLittleEndian(static_cast<quint32>(kept.size() - 8), kept.data() + 4);
  return kept;
}

}  // namespace

QByteArray WithoutPictureData(const QByteArray &file) {
  if (file.startsWith("\xFF\xD8\xFF")) return JpegWithout(file).value_or(file);
  if (file.startsWith(PngSignature)) return PngWithout(file).value_or(file);
  if (file.startsWith("RIFF") && file.mid(8, 4) == "WEBP") return WebPWithout(file).value_or(file);
  return file;
}

}  // namespace velor
