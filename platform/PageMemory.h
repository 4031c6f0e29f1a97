// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace velor {

/// The state of a page that EditingComponent::Memory gives and EditingComponent::Restore takes. The
/// restored page counts as edited, and is saved, exactly as the page that the state was taken of.
struct PageMemory {
  /// The bytes that the document was loaded from.
  QByteArray original;
  /// The base of relative links: the native path of a file, or of a folder with "/" at its end.
  QString base;
  /// The document's text in the component's own form; only meant for Restore.
  QString document;

  bool operator==(const PageMemory &) const = default;
};

}  // namespace velor
