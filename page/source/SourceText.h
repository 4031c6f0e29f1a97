// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Spelling.h"
#include "platform/TextStretch.h"

#include <QString>
#include <QStringView>

#include <memory>
#include <vector>

// The text of a page as its source has it, in the lines in which design view has its spelling
// judged (engine/bridge/spelling/spelledLines.js): the same elements end a line, are left out and
// have a language. What a style sheet does is not known here.
namespace velor {

struct OpenElement;

/// What is open at a place of the source, and the language that the page names for all of it.
struct SourceTextState {
  std::shared_ptr<const OpenElement> innermost = {};
  QString pageLanguage = {};

  bool operator==(const SourceTextState &other) const;
};

/// A line of a page's text, with its place in the source. Offsets in UTF-16 code units.
struct SourceTextLine {
  /// Text from `at` on stands in the source from `start` on.
  struct Piece {
    qsizetype at = 0;
    qsizetype start = 0;
    /// Of a character reference, whose text comes from all of it; 0 for text as it is written.
    qsizetype length = 0;
  };

  /// The source that was read for it, markup around the line included. The next line begins at
  /// `end`; what is read does not depend on what stands behind that.
  qsizetype begin = 0;
  qsizetype end = 0;
  /// What is not judged is one U+FFFC each. Character references are what they stand for.
  SpelledLine spelled = {};
  std::vector<Piece> pieces = {};

  /// The source of the character at an index of the line.
  TextStretch SourceOf(qsizetype index) const;
  /// The source of a stretch of the line, in parts where markup is within it.
  std::vector<TextStretch> SourceOf(const TextStretch &stretch) const;
};

/// Reads the lines of a source one after the other, from its start or from where a line began.
class SourceTextReader {
 public:
  /// `source` outlives the reader. `state` is the one at `at`.
  explicit SourceTextReader(QStringView source, qsizetype at = 0, SourceTextState state = {});

  bool IsAtEnd() const { return at_ >= source_.size(); }
  qsizetype At() const { return at_; }
  const SourceTextState &State() const { return state_; }
  /// The next line; the last one may be without text.
  SourceTextLine Next();

 private:
  void Append(QStringView text, qsizetype start, qsizetype length = 0);
  void ReadText();
  /// Reads what begins with the "<" at `at_`; answers whether the line ends with it.
  bool ReadMarkup();
  bool ReadTag(bool isEndTag);
  void Enter(QStringView name, QStringView tag);
  void Leave(std::uint32_t name);
  /// Ends the elements that end where one of that name begins.
  void EndImplied(std::uint32_t name);

  QStringView source_;
  qsizetype at_;
  SourceTextState state_;
  SourceTextLine line_;
};

}  // namespace velor
