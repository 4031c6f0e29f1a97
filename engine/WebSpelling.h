// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/PageSpelling.h"
#include "platform/Spelling.h"

#include <QVariantList>

namespace velor {

class LiveDocument;
class NoticeQueue;
struct ViewOptions;

/// The spelling of a page in the engine: the bridge (engine/bridge/spelling) tells the page's
/// lines, draws the waves and exchanges words; here the lines are judged.
class WebSpelling final : public PageSpelling {
 public:
  /// All outlive it. `options` keeps for each load whether waves are drawn.
  WebSpelling(LiveDocument &document, NoticeQueue &notices, ViewOptions &options)
      : document_(document), notices_(notices), options_(options) {}

  void Use(Spelling *spelling, const QString &siteList) override;
  void ShowWaves(bool on) override;
  void CheckAgain() override;
  void SetFocus() override;
  bool CanCorrect() const override { return true; }
  std::optional<UnknownWord> AtCaret() override;
  std::optional<UnknownWord> SelectNext() override;
  std::vector<UnknownWord> All() override;
  bool Correct(const QString &other) override;
  int CorrectAll(const QString &word, const QString &other) override;

  /// Answers what the page asks by the slot spellingWanted; outside of engine callbacks.
  void AnswerPage(const QString &json);

 private:
  /// An unknown word and where it is in the lines that the page told.
  struct Place {
    UnknownWord found;
    int line = 0;
    TextStretch stretch;
  };
  /// A place between two characters of the lines.
  struct Point {
    int line = 0;
    qsizetype index = 0;
  };
  struct PageText {
    std::vector<SpelledLine> lines;
    Point selectionStart;
    Point selectionEnd;
  };

  void TurnWaves();
  /// How much of the page is read: of a large one all of it takes long.
  enum class Extent { Page, LineOfSelection };
  std::optional<PageText> ReadPage(Extent extent = Extent::Page);
  std::vector<TextStretch> Judge(const SpelledLine &line);
  std::vector<Place> PlacesIn(const SpelledLine &line, int number);
  bool Select(const Place &place);
  int Exchange(const std::vector<Place> &places, const QString &word, const QString &other);

  LiveDocument &document_;
  NoticeQueue &notices_;
  ViewOptions &options_;
  Spelling *spelling_ = nullptr;
  QString siteList_;
  bool areWavesOn_ = false;
  std::optional<Place> current_;  ///< what AtCaret or SelectNext answered last
};

}  // namespace velor
