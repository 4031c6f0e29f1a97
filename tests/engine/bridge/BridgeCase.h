// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace velor {

class BridgePage;

/// One golden case: markup with a selection, what is done to it and what is then there.
///
/// In a file a case is a block of lines between blank lines; a line that begins with "#" is a
/// comment:
///     name: Bold makes the selected word bold
///     page: html5                    an HTML5 page; without the line one of the old dialect
///     input: <p>one ^two|</p>        "^" anchor, "|" focus, a "|" alone the caret
///     before: bold=3                 the state that is reported at first
///     do: bold                       any number of them; see Perform
///     state: bold=7 blockFormat=Normal  the state at the end
///     expect: <p>one <b>^two|</b></p>
///     saved: <P>one <B>two</B>       what a save then makes of a file of the input's bytes
/// "\n" stands for a line break, "\r" and "\t" for what they are. Input that begins with "<!" or
/// "<html" is a whole document, and what is expected then is the whole document too, without the
/// selection.
struct BridgeCase {
  QString file;
  QString name;
  QString page;
  QString input;
  QString stateBefore;
  QStringList steps;
  QString state;
  QString expected;
  QString saved;

  bool IsDocument() const;
  /// The document to load.
  QString Document() const;
  /// The same without the marks of the selection.
  QString File() const;
  /// As much of a document like it as the case writes of its own.
  QString PartOf(const QString &document) const;
};

/// All cases of the folder's *.txt files.
std::vector<BridgeCase> ReadBridgeCases(const QString &folder);

/// Writes the expectation of a case anew into its file, and what is saved where it says that.
void Rebaseline(const BridgeCase &subject, const QString &actual, const QString &saved);

/// The text as a literal of the script language.
QString ScriptText(const QString &text);

/// Carries out one "do:" line.
void Perform(BridgePage &page, const QString &step);

/// The state texts of a case's "state:" line, in the same form, as the page has them.
QString ActualState(BridgePage &page, const QString &expected);

}  // namespace velor
