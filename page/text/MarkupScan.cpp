// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/text/MarkupScan.h"

namespace velor {

qsizetype BehindNext(QStringView text, QStringView close, qsizetype from) {
  const qsizetype found = text.indexOf(close, from);
  return found < 0 ? text.size() : found + close.size();
}

qsizetype EndOfServerCode(QStringView source, qsizetype at) {
  const QStringView rest = source.sliced(at);
  if (rest.startsWith(u"<%")) return BehindNext(source, u"%>", at + 2);
  if (!rest.startsWith(u"<?")) return at;
  const bool isCode = rest.startsWith(u"<?php", Qt::CaseInsensitive) || rest.size() < 3 ||
                      rest[2] == u'=' || IsMarkupSpace(rest[2]);
  return isCode ? BehindNext(source, u"?>", at + 2) : at;
}

qsizetype EndOfComment(QStringView source, qsizetype at) {
  const QStringView content = source.sliced(at + 4);
  if (content.startsWith(u">")) return at + 5;
  if (content.startsWith(u"->")) return at + 6;
  for (qsizetype end = source.indexOf(u"--", at + 4); end >= 0;
       end = source.indexOf(u"--", end + 1)) {
    const QStringView rest = source.sliced(end + 2);
    if (rest.startsWith(u">")) return end + 3;
    if (rest.startsWith(u"!>")) return end + 4;
  }
  return source.size();
}

}  // namespace velor
