// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/source/SourceText.h"
#include "platform/PageSpelling.h"
#include "platform/SourceControl.h"

#include <QTimer>

#include <functional>
#include <optional>
#include <vector>

namespace velor {

/// The spelling of the source in a source control: of the page's text in it, not of markup, scripts
/// and server code (page/source/SourceText.h). Waves are drawn in idle time, in pieces that no key
/// waits for: after a change the lines that it touches are judged again, those in sight first.
class SourceSpelling final : public PageSpelling {
 public:
  /// `source` outlives the spelling. `report` is told what a person is to know.
  SourceSpelling(SourceControl &source, SourceAccess access,
                 std::function<void(const QString &)> report);

  void Use(Spelling *spelling, const QString &siteList) override;
  void ShowWaves(bool on) override;
  void CheckAgain() override;
  void SetFocus() override { source_.SetFocus(); }
  bool CanCorrect() const override { return access_ == SourceAccess::Edit; }
  std::optional<UnknownWord> AtCaret() override;
  std::optional<UnknownWord> SelectNext() override;
  std::vector<UnknownWord> All() override;
  bool Correct(const QString &other) override;
  int CorrectAll(const QString &word, const QString &other) override;

  /// To be called when the text, or the caret, has changed.
  void TextChanged();
  void CaretMoved();

 private:
  struct Line {
    qsizetype begin = 0;
    qsizetype end = 0;
    SourceTextState state = {};  ///< at `begin`
    bool isJudged = false;       ///< and has its waves
  };
  /// An unknown word and where it is in its line.
  struct Place {
    UnknownWord found;
    SourceTextLine line;
    TextStretch stretch;

    TextStretch InSource() const;
  };

  bool HasWaves() const { return areWavesOn_ && spelling_ != nullptr; }
  /// Reads and judges all of the source anew.
  void Restart();
  /// Forgets what was read.
  void Forget();
  /// Does some of what is left to do; the rest follows from the event loop.
  void Work();
  /// One step of it; false where nothing is left.
  bool Step(const TextStretch &sight);
  /// Takes over what has changed in the text since it was read.
  void TakeChange();
  /// Reads on by a line.
  void ReadLine();
  /// The line that an offset is in; null where that is not read.
  Line *LineAt(qsizetype offset);
  /// A line in sight, or else the first one of a source that is read; null for none.
  Line *NextUnjudged(const TextStretch &sight);
  void Judge(Line &line);
  /// Whether a word is being written: the caret is at it, and so was the last change.
  bool IsBeingWritten(const TextStretch &word) const;
  /// Gives the word that was held back its wave, once the caret has left it.
  void ReleaseWord();

  std::vector<Place> PlacesIn(const SourceTextLine &line);
  /// A reader of the source that stands before the offset, behind lines that are read already.
  SourceTextReader ReaderFor(const QString &source, qsizetype offset);
  /// Calls `visit` with the unknown words of the lines that are at a stretch of the source, in
  /// order, until it answers false.
  void VisitPlaces(const QString &source, const TextStretch &stretch,
                   const std::function<bool(const Place &)> &visit);
  /// Makes the first word at the stretch that is wanted the one that Correct is about.
  std::optional<UnknownWord> Find(const TextStretch &stretch,
                                  const std::function<bool(const TextStretch &word)> &isWanted);
  /// Puts `other` in the place of the words, in the order of the source, as one undo step; answers
  /// by how much the source grew.
  qsizetype Exchange(const std::vector<Place> &places, const QString &other);

  SourceControl &source_;
  SourceAccess access_;
  std::function<void(const QString &)> report_;
  Spelling *spelling_ = nullptr;
  QString siteList_;
  bool areWavesOn_ = false;
  QTimer timer_;

  QString text_;              ///< as it was read last
  std::vector<Line> lines_;   ///< of it, those before readTo_
  std::size_t judgedTo_ = 0;  ///< lines before it need no look
  qsizetype readTo_ = 0;
  SourceTextState state_;  ///< at readTo_
  /// Lines from a change to the end of the text as they were read before it, the first one last;
  /// their offsets are too small by moved_. Where reading comes to one of them in its state, they
  /// are as good as read.
  std::vector<Line> former_;
  qsizetype moved_ = 0;
  TextStretch lastChange_;
  std::optional<TextStretch> heldBack_;  ///< an unknown word that is being written

  // What AtCaret or SelectNext answered last, and the text then.
  std::optional<Place> current_;
  QString currentText_;
};

}  // namespace velor
