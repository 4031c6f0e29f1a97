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

/// The one place that turns (what the page was, what the document is now) into what is written.
/// `current` is the engine's serialisation now, with LF line breaks. When it equals the baseline
/// the page has not been edited and the result is the original, to the byte.
struct PageToWrite {
  QString text;
  QByteArray bytes;
};
PageToWrite ComposePage(const PageOriginal &original, const QString &current);

}  // namespace velor
