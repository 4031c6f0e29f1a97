// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/whole/model/Deed.h"
#include "tests/whole/model/Life.h"

#include <QByteArray>
#include <QMap>
#include <QSet>
#include <QString>
#include <QTemporaryDir>

#include <memory>
#include <vector>

namespace velor {

/// Words are typed once each, so that whatever holds one tells where it comes from.
using Words = QSet<QString>;

/// What a text is besides the words in it.
struct Content {
  QByteArray rest;  ///< the bytes without the words
  Words words;

  bool operator==(const Content &) const = default;
};

Content ContentOf(const QByteArray &bytes);
Words WordsIn(const QString &text);
/// For people, in order.
QString Listed(const Words &words);

/// What each file and page must hold, whatever a person does: a file is what was saved to it from
/// the page that it belongs to, a page is its file and the words typed since, and no word is gone
/// that nobody gave away.
///
/// A model owns a scratch home with the person's files and the life of the program in it. Carry
/// says, for one deed, what is wrong afterwards: a sentence, or nothing.
class Model {
 public:
  explicit Model(const QString &engine);
  ~Model();

  /// The first start. A sentence where that went wrong.
  QString Begin();
  QString Carry(const Deed &deed);

 private:
  struct Step {
    Content before;
    bool isLoad = false;  ///< another program's version came
  };
  struct Page {
    QString path;  ///< native; empty while it has no file
    Content shown;
    Words saved;             ///< the words that its file had when it was loaded or last saved
    Words typed;             ///< in its source editor and not applied
    Words source;            ///< all in its source editor
    bool hasSource = false;  ///< its source editor is open
    Words undone;            ///< taken from it by Undo or by what another program wrote
    bool readOnly = false;
    QByteArray savedRest;        ///< of its file when it was loaded or last saved
    std::vector<Step> earlier;   ///< what each Undo brings back, the last first
    bool isSourceStale = false;  ///< its source editor was filled before the page got another rest
    bool isHistoryKnown = true;  ///< such a source was not applied
    bool isAskedAbout = false;   ///< its file was changed while it had changes
    bool isUnsaved = false;      ///< restored and not saved since, whatever it holds
    bool mayAsk = false;         ///< a save failed: what it holds then counts as saved at closing

    bool IsChanged() const { return isUnsaved || shown.words != saved || shown.rest != savedRest; }
  };

  static constexpr int MostPages = 5;

  static bool IsWritable(const QString &path);
  QString Path(const QString &name) const { return folder_.filePath(name); }
  void Write(const QString &path, const QByteArray &bytes);
  QMap<QString, Content> Disk() const;

  QJsonObject InJson(const Deed &deed);
  QString Act(const Deed &deed);
  /// Another program writes to a file.
  QString ChangeOutside(const Deed &deed, const QString &path);
  void Type(Page &page, const QString &word) const;
  static void Undo(Page &page);
  static void Load(Page &page, const Content &content);
  /// The page is gone, and what it holds must be offered at the next start.
  void Keep(const Page &page);
  QString StartAnew();
  /// Compares what is seen, and takes over what the deed may have changed.
  QString Check(const Deed &deed, const QJsonObject &sent, const QJsonObject &seen);
  QString CheckFiles(const Deed &deed, const QJsonObject &sent);
  QString CheckPages(const Deed &deed, const QJsonObject &sent, const QJsonObject &seen);
  QString CheckGone(const Deed &deed, const Page &page, const QJsonObject &seen);
  QString TakeRestored(const QJsonObject &seen, Words &missing);

  Page *Active();
  bool IsOpen(const QString &path) const;
  QStringList PeoplesFiles() const;

  QString engine_;
  QTemporaryDir folder_;
  std::unique_ptr<Life> life_;
  QMap<QString, Content> files_;  ///< the person's, by native path
  QMap<int, Page> pages_;         ///< by number
  int active_ = 0;
  Words kept_;  ///< of pages that are gone and must be offered at the next start
  QMultiMap<QString, QByteArray> keptRests_;  ///< of these pages, by path
  bool isFull_ = false;
  int words_ = 0;
};

}  // namespace velor
