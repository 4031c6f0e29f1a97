// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/NoticeBar.h"
#include "platform/PageSpelling.h"
#include "platform/Spelling.h"

#include <QList>

#include <optional>

namespace velor {

class FrontWindow;
class SuggestionBox;
struct EditorContext;

/// The bar under a page or its source that walks through the unknown words there, from the
/// selection on. The word is selected; the box has what is to stand in its place. Enter changes it,
/// or goes on where words can be shown only; Escape closes the bar and returns the keyboard.
class SpellingBar final : public NoticeBar {
  Q_OBJECT

 public:
  /// `window` has the words, and outlives the bar as `context` does. Hidden at first.
  SpellingBar(EditorContext &context, FrontWindow &window, QWidget *parent);

  /// Goes to the next unknown word, and shows the bar; where there is none the bar closes, and the
  /// status bar says so.
  void GoOn();

 protected:
  void keyPressEvent(QKeyEvent *event) override;

 private:
  void Show(const UnknownWord &found);
  void Change();
  void ChangeAll();
  void Ignore();
  void AddTo(WordHome home);
  void CloseBar();

  EditorContext &context_;
  FrontWindow &window_;
  std::optional<UnknownWord> shown_;
  SuggestionBox *other_ = nullptr;
  QList<QWidget *> correcting_;  ///< what changes words
  QWidget *addToSite_ = nullptr;
  QWidget *next_ = nullptr;
};

}  // namespace velor
