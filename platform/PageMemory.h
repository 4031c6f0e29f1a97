// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace velor {

/// A page as an editing component can be given it again, so that what counts as edited, and what a
/// save writes, is as it was.
struct PageMemory {
  /// The bytes that the document came from.
  QByteArray original;
  /// What links resolve against: a native path of a file, or of a folder with "/" at its end.
  QString base;
  /// The document as the component has it: for no other use than giving it back.
  QString document;

  bool operator==(const PageMemory &) const = default;
};

}  // namespace velor
