// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/saving/TokenAlignment.h"

#include <QString>

#include <cstdint>
#include <utility>
#include <vector>

namespace velor {

/// A text cut into tokens.
struct TokenText {
  QString text;
  std::vector<HtmlToken> tokens;

  TokenText() = default;
  explicit TokenText(const QString &html, HtmlOrigin origin = HtmlOrigin::Page)
      : text(html), tokens(TokenizeHtml(html, origin)) {}
  /// Of a serialisation, quicker where it differs from `before`, another one, in one range only.
  TokenText(const QString &html, TokenText before)
      : text(html),
        tokens(TokenizeHtmlLike(html, before.text, std::move(before.tokens),
                                HtmlOrigin::Serialisation)) {}
  const HtmlToken &At(std::int32_t number) const {
    return tokens[static_cast<std::size_t>(number)];
  }
  std::int32_t Count() const { return static_cast<std::int32_t>(tokens.size()); }
  /// The text of the tokens from one number up to another.
  QStringView Slice(std::int32_t from, std::int32_t to) const {
    if (from >= to) return {};
    return QStringView(text).sliced(At(from).offset, At(to - 1).End() - At(from).offset);
  }
};

/// One difference between two serialisations of a document, the one right after loading and the
/// one now: the tokens [before, beforeEnd) of the first became [now, nowEnd) of the second.
struct PageEdit {
  std::int32_t before = 0;
  std::int32_t beforeEnd = 0;
  std::int32_t now = 0;
  std::int32_t nowEnd = 0;
  /// One start tag whose attributes changed.
  bool isTagChange = false;
};

/// The edits that lead from one serialisation to the other, in order. An edit that only inserts or
/// only takes away is shifted, where equal tokens beside it allow that, until it holds whole
/// elements.
std::vector<PageEdit> FindEdits(const TokenText &before, const TokenText &now,
                                const TokenAlignment &alignment);

}  // namespace velor
