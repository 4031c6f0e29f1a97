// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

#include <vector>

namespace velor {

/// The parts of a style sheet that are told apart; the rest is punctuation and values' words.
enum class CssPart { Selector, Property, String, Number, Comment, AtRule };

struct CssSpan {
  CssPart part;
  qsizetype begin;
  qsizetype end;

  bool operator==(const CssSpan &) const = default;
};

/// The spans of a UTF-8 style sheet in their order; any bytes will do.
std::vector<CssSpan> CssSpans(QByteArrayView css);

}  // namespace velor
