// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startup/LocationFiles.h"

#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <QStringDecoder>

#include <algorithm>

namespace velor {

namespace {

/// Files written by hand or by older programs may hold a one-byte character set.
QString Decoded(const QByteArray &bytes) {
  QStringDecoder decoder(QStringDecoder::Utf8);
  const QString text = decoder(bytes);
  return decoder.hasError() ? QString::fromLatin1(bytes) : text;
}

QStringView UpTo(QStringView text, QStringView ends) {
  const auto end = std::find_if(text.begin(), text.end(),
                                [ends](QChar character) { return ends.contains(character); });
  return text.first(end - text.begin());
}

}  // namespace

void WriteLocation(Files &files, const QString &file, const QString &location) {
  const QByteArray content = (u'"' + ForPeople(location) + QStringLiteral("\"\r\n")).toUtf8();
  // No write without a change: the program also starts from a full disk or a read-only folder.
  if (files.FileExists(file) && files.ReadAll(file) == content) return;
  files.ReplaceAll(file, content);
}

QString ReadLocation(const Files &files, const QString &file) {
  const QString text = Decoded(files.ReadAll(file, NameOrigin::Program));
  if (text.isEmpty()) {
    throw RuntimeError::Of(ErrorNumber::InputPastEnd, QStringLiteral("ReadLocation"),
                           ForPeople(file));
  }
  return FromPeople(FirstItem(text));
}

QString FirstItem(QStringView text) {
  while (text.startsWith(u' ')) text = text.sliced(1);
  if (text.startsWith(u'"')) return UpTo(text.sliced(1), u"\"\r\n").toString();
  return UpTo(text, u",\r\n").toString();
}

}  // namespace velor
