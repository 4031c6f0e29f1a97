// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/html/PageEncoding.h"

#include <QByteArray>
#include <QString>

namespace velor {

/// A page as it was read: the bytes, the text they stand for, and the engine's own serialisation
/// right after loading.
struct PageOriginal {
  QByteArray bytes;
  DecodedPage page;
  /// The engine's serialisation when the document was complete; empty until then.
  QString baseline;
};

/// What is written for a document. The plain rule, for components that are their own engine: when
/// `current`, a serialisation with LF line breaks, equals the baseline, the page has not been edited
/// and the result is the original, to the byte; else it is `current` in the page's encoding.
/// FaithfulPage also keeps the source of what was not edited.
struct PageToWrite {
  QString text;
  QByteArray bytes;
};
PageToWrite ComposePage(const PageOriginal &original, const QString &current);

}  // namespace velor
