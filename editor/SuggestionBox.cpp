// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/SuggestionBox.h"

#include "platform/PageSpelling.h"
#include "platform/Spelling.h"
#include "platform/Words.h"

namespace velor {

SuggestionBox::SuggestionBox(const char *name) {
  setObjectName(QString::fromLatin1(name));
  setAccessibleName(Words::tr("Change to"));
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  // A completer takes Enter for itself while the suggestion is selected.
  setCompleter(nullptr);
}

void SuggestionBox::Offer(const UnknownWord &unknown, Spelling &spelling) {
  clear();
  addItems(spelling.Suggestions(unknown.word, unknown.language));
  if (count() == 0) setEditText(unknown.word);
}

}  // namespace velor
