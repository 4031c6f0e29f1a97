// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/PageSpelling.h"

#include <QDialog>
#include <QStringList>

#include <vector>

class QLabel;
class QTreeWidget;

namespace velor {

class SuggestionBox;
class frmMain;
struct EditorContext;

/// An unknown word of the open pages.
struct SiteWord {
  UnknownWord word;
  int count = 0;
  QStringList pages;  ///< names of those that have it, in the order of their slots
};

/// The unknown words of all open pages, each once, by the alphabet, with the language of its first
/// place. Waits for the pages.
std::vector<SiteWord> UnknownWordsOfPages(EditorContext &context);

/// Puts `other` in the place of a word in all open pages, in each as one step of its history;
/// answers how often. Waits for the pages.
int CorrectInPages(EditorContext &context, const QString &word, const QString &other);

/// The list of the unknown words of all open pages, where one is changed everywhere, ignored or
/// added.
class FrmSiteSpelling final : public QDialog {
  Q_OBJECT

 public:
  FrmSiteSpelling(EditorContext &context, std::vector<SiteWord> words, QWidget *parent);

 private:
  void Build();
  void Fill();
  /// The word of the chosen row; null where none is chosen.
  const SiteWord *Chosen() const;
  void ShowSuggestions();
  void ChangeEverywhere();
  /// Takes the chosen word for known by `deed`.
  template <typename Deed>
  void TakeForKnown(Deed deed);
  /// Removes the chosen row.
  void Drop();

  EditorContext &context_;
  std::vector<SiteWord> words_;
  QTreeWidget *list_ = nullptr;
  SuggestionBox *other_ = nullptr;
  QLabel *result_ = nullptr;
};

/// Opens that list, or says that there is no unknown word.
void ShowSiteSpelling(EditorContext &context);

}  // namespace velor
