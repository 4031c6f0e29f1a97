// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velor {

/// A text as a caption that shows just it: a single "&" would mark the next letter as its key.
QString AsCaption(QString text);

/// A caption as it is read: without the letter for its key and the dots.
QString SpokenCaption(QString caption);

}  // namespace velor
