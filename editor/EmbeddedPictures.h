// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace velor {

class frmMain;

/// A picture that stands in a page's text itself, as a data: address.
struct EmbeddedPicture {
  qsizetype offset = 0;  ///< of the address in the text, without its quotes
  qsizetype length = 0;
  QByteArray content;  ///< of the picture's file
};

/// The pictures that the tags of a page hold, in source order. A data: address that is damaged is
/// none of them.
std::vector<EmbeddedPicture> EmbeddedPicturesOf(const QString &html);

/// Puts the embedded pictures of a page into files of its site, as one step of its undo history,
/// and reports in the status bar how many.
void TakePicturesOut(frmMain &page);

}  // namespace velor
