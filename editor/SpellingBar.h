// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/NoticeBar.h"
#include "platform/PageSpelling.h"
#include "platform/Spelling.h"

#include <optional>

namespace velor {

class SuggestionBox;
class frmMain;

/// The bar under a page that walks through its unknown words, from the selection on. The word is
/// selected in the page; the box has what is to stand in its place. Enter changes it, Escape closes
/// the bar and returns the keyboard to the page.
class SpellingBar final : public NoticeBar {
  Q_OBJECT

 public:
  /// Outlived by `page`, its parent. Hidden at first.
  explicit SpellingBar(frmMain &page);

  /// Goes to the next unknown word, and shows the bar; where the page has none the bar closes, and
  /// the status bar says so.
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

  frmMain &page_;
  std::optional<UnknownWord> shown_;
  SuggestionBox *other_ = nullptr;
  QWidget *addToSite_ = nullptr;
};

}  // namespace velor
