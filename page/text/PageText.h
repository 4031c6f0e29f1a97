// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/text/PageEncoding.h"

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

/// How much of a page's bytes is written anew.
enum class WrittenExtent { Patches, WholePage };

/// What is written for a document.
struct PageToWrite {
  QString text;
  QByteArray bytes;
  WrittenExtent extent = WrittenExtent::Patches;
};

}  // namespace velor
