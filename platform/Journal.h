// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/PageMemory.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QDateTime>
#include <QList>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace velor {

/// How the run ended that left a page's journal behind.
enum class RunEnd {
  /// It crashed, was killed, or still runs.
  Unforeseen,
  /// The person closed the program with the page unsaved.
  Exit,
};

/// As a JournalledPicture has it.
inline QByteArray DigestOf(const QByteArray &content) {
  return QCryptographicHash::hash(content, QCryptographicHash::Sha256);
}

/// A picture file that goes with a page's unsaved text: it was put into the page, or a file of the
/// site was written anew for it. Paths in logic form.
struct JournalledPicture {
  QString path;
  QString address;  ///< in the page; empty for a file that was written anew
  /// SHA-256 of the file as the program wrote it; empty for a file that it did not write.
  QByteArray digest = {};
  /// Of a file that was written anew: the file that holds what goes with the saved page, and its
  /// SHA-256.
  QString saved = {};
  QByteArray savedDigest = {};
  /// Hash of the saved page's file (FileTrace), where there is `saved`.
  quint64 page = 0;

  bool operator==(const JournalledPicture &) const = default;
};

/// A page with unsaved changes, as a journal stores it.
struct JournalledPage {
  /// The page's file in logic form; empty for one that was never saved.
  QString path;
  QString caption;
  /// Whether Save writes to `path` or asks for a name.
  enum class Saving { ToItsFile, AsksForAName } saving = Saving::AsksForAName;
  PageMemory page;
  /// When the document was like this.
  QDateTime time;
  /// The text of the page's source editor, where it was not applied to the document.
  std::optional<QString> source = std::nullopt;
  RunEnd end = RunEnd::Unforeseen;
  QList<JournalledPicture> pictures = {};
};

/// The journal of one page. Its content survives a crash of the process once Write returns, and of
/// the machine once Sync or Compact returns. A journal that is not removed is an AbandonedPage for
/// a later run. Failures are RuntimeErrors; what was written before stays readable.
class Journal {
 public:
  virtual ~Journal() = default;

  /// Appends what of the page has changed since the last Write.
  virtual void Write(const JournalledPage &page) = 0;
  /// Makes what was written durable. Fast enough to be called between two keys.
  virtual void Sync() = 0;
  /// Syncs, and rewrites a file that has grown to hold the last state alone. For idle moments.
  virtual void Compact() = 0;
  /// Deletes the journal, since the changes are saved or given up. The next Write begins a new one.
  virtual void Remove() = 0;
};

/// A page whose run ended before its changes were saved, as Journals::Abandoned lists it.
struct AbandonedPage {
  QString id;  ///< for Read and Discard
  /// path, caption, time and end as in JournalledPage.
  QString path;
  QString caption;
  QDateTime time;
  /// Whether there is a source that was not applied.
  bool hasSource = false;
  /// Why nothing of it can be read, in words for people. Empty where it is readable as far as its
  /// header tells.
  QString defect;
  RunEnd end = RunEnd::Unforeseen;
};

/// The result of Journals::Read.
struct JournalReading {
  JournalledPage page;
  /// Whether the journal's end is damaged, so that the last changes are missing.
  bool endIsMissing = false;
};

/// The journals of all runs of the program by this user. A run does not see journals of another run
/// that has not ended, nor those that another run offers already.
class Journals {
 public:
  virtual ~Journals() = default;

  /// Why no journal can be written, in words for people; empty where journals can be written.
  virtual QString ReasonUnavailable() = 0;

  /// Creates an empty journal; its file is created by the first Write. Must not outlive the
  /// Journals.
  virtual std::unique_ptr<Journal> Begin() = 0;

  /// The pages of ended runs, newest first; from now on no other run is given them. Where there are
  /// very many only the newest are returned; the next call after those are gone returns more.
  virtual std::vector<AbandonedPage> Abandoned() = 0;
  /// Reads an abandoned page. Raises RuntimeError where nothing of it can be read.
  virtual JournalReading Read(const QString &id) = 0;
  /// Deletes the journal of an abandoned page. Raises RuntimeError where it cannot.
  virtual void Discard(const QString &id) = 0;
};

}  // namespace velor
