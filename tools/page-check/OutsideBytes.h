// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/text/PageEncoding.h"

#include <QByteArray>
#include <QString>

namespace velor {

/// One edit of a page, before and after.
struct EditedPage {
  QByteArray file;
  QByteArray saved;
  QString before;  ///< the document's HTML after loading
  QString now;     ///< the document's HTML after the edit
};

/// How many bytes of the file changed beyond what the edit itself takes away and adds.
struct BytesBeyondEdit {
  /// Neither the edit's nor needed for it.
  qsizetype outside = 0;
  /// Tags that the parser had implied and that the edited document cannot do without.
  qsizetype implied = 0;
};

/// What the edit takes away is found in the file by comparing it with the document, what it adds in
/// the document; both sides are counted with the page's charset.
BytesBeyondEdit CountBytesBeyondEdit(const EditedPage &page);

/// How two files differ, byte by byte, whatever the bytes mean.
struct ByteDifference {
  qsizetype lost = 0;
  qsizetype added = 0;
};
ByteDifference CountByteDifference(const QByteArray &file, const QByteArray &saved);

}  // namespace velor
