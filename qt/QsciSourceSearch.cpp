// SPDX-License-Identifier: GPL-3.0-or-later
// Finding and replacing in the source control.
#include "qt/QsciSourceControl.h"

#include <Qsci/qsciscintilla.h>

namespace velor {

namespace {

int SearchFlags(LetterCase letterCase) {
  return letterCase == LetterCase::Matched ? QsciScintilla::SCFIND_MATCHCASE : 0;
}

}  // namespace

bool QsciSourceControl::FindBetween(const QByteArray &text, long from, long to) {
  Send(QsciScintilla::SCI_SETTARGETSTART, from);
  Send(QsciScintilla::SCI_SETTARGETEND, to);
  return editor_->SendScintilla(QsciScintilla::SCI_SEARCHINTARGET,
                                static_cast<unsigned long>(text.size()), text.constData()) >= 0;
}

bool QsciSourceControl::Find(const QString &text, SearchDirection direction,
                             LetterCase letterCase) {
  const QByteArray bytes = text.toUtf8();
  if (bytes.isEmpty()) return false;
  Send(QsciScintilla::SCI_SETSEARCHFLAGS, SearchFlags(letterCase));
  const long start = Send(QsciScintilla::SCI_GETSELECTIONSTART);
  const long end = Send(QsciScintilla::SCI_GETSELECTIONEND);
  const long length = Send(QsciScintilla::SCI_GETLENGTH);
  bool found = false;
  switch (direction) {
    case SearchDirection::Here:
      found = FindBetween(bytes, start, length) || FindBetween(bytes, 0, length);
      break;
    case SearchDirection::Forward:
      found = FindBetween(bytes, end, length) || FindBetween(bytes, 0, length);
      break;
    case SearchDirection::Backward:
      found = FindBetween(bytes, start, 0) || FindBetween(bytes, length, 0);
      break;
  }
  if (!found) return false;
  const long from = Send(QsciScintilla::SCI_GETTARGETSTART);
  Send(QsciScintilla::SCI_ENSUREVISIBLE, Send(QsciScintilla::SCI_LINEFROMPOSITION, from));
  Send(QsciScintilla::SCI_SETSEL, from, Send(QsciScintilla::SCI_GETTARGETEND));
  return true;
}

int QsciSourceControl::ReplaceAll(const QString &text, const QString &replacement,
                                  LetterCase letterCase) {
  const QByteArray bytes = text.toUtf8();
  const QByteArray other = replacement.toUtf8();
  if (bytes.isEmpty() || editor_->isReadOnly()) return 0;
  Send(QsciScintilla::SCI_SETSEARCHFLAGS, SearchFlags(letterCase));
  int count = 0;
  editor_->beginUndoAction();
  for (long from = 0; FindBetween(bytes, from, Send(QsciScintilla::SCI_GETLENGTH)); ++count) {
    editor_->SendScintilla(QsciScintilla::SCI_REPLACETARGET,
                           static_cast<unsigned long>(other.size()), other.constData());
    from = Send(QsciScintilla::SCI_GETTARGETEND);
  }
  editor_->endUndoAction();
  return count;
}

}  // namespace velor
