// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/saving/FaithfulPage.h"

#include <QString>

#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace velor {

/// What the document on show came from, and the documents before and behind it in the undo history.
/// One document replaces another in two ways: within the page, as a step of the page's own history
/// (a generation), or by a load, which ends that history. Documents replaced by a load are kept
/// here as text, and undo at the beginning of the page's history steps to them.
class DocumentHistory {
 public:
  /// Never null. Shared with the saves that are under way.
  using Original = std::shared_ptr<FaithfulPage>;
  enum class Direction { Earlier, Later };

  const Original &Current() const { return current_; }
  bool HasEarlier() const { return !earlier_.empty(); }
  bool HasLater() const { return !later_.empty(); }

  /// Makes `original` current, for a load that begins; the generations before it are gone.
  void Load(Original original);
  /// The current document is loaded again: its generations are gone.
  void DropGenerations();
  /// Drops the documents that loads took the place of: undo leads to none of them.
  void ForgetLoaded();
  /// Keeps the current document, which a load is about to replace; `html` is its text now.
  void KeepForUndo(QString html);
  /// Makes the earlier or later loaded document current and answers its text, to be loaded. `html`
  /// is the text of the document current so far, which is kept. Nothing where there is no such
  /// document.
  std::optional<QString> Step(Direction direction, QString html);

  /// A number for the next exchange within the page.
  int NewGeneration() { return ++lastGeneration_; }
  /// The page made that exchange: `original` is current from now on.
  void AddGeneration(int generation, Original original);
  /// The page shows that generation, by undo or redo: makes its original current. Does nothing for
  /// an unknown one.
  void ShowGeneration(int generation);

 private:
  struct Loaded {
    Original original;
    QString html;
  };

  /// Appends a document, and drops the oldest beyond the memory limit.
  static void Keep(std::vector<Loaded> &documents, Loaded document);

  Original current_ = std::make_shared<FaithfulPage>();
  int lastGeneration_ = 0;
  int generation_ = 0;                   ///< of the current document; 0 for the loaded one
  std::map<int, Original> generations_;  ///< the others
  std::vector<Loaded> earlier_;          ///< the nearest is last
  std::vector<Loaded> later_;            ///< the nearest is last
};

}  // namespace velor
