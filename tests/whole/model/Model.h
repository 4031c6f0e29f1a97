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
  struct Page {
    QString path;  ///< native; empty while it has no file
    Content shown;
    Words saved;   ///< the words that its file had when it was loaded or last saved
    Words typed;   ///< in its source editor and not applied
    Words source;  ///< all in its source editor
    bool readOnly = false;

    bool IsChanged() const { return shown.words != saved; }
  };

  QString Path(const QString &name) const { return folder_.filePath(name); }
  void Write(const QString &path, const QByteArray &bytes);
  QMap<QString, Content> Disk() const;

  QJsonObject InJson(const Deed &deed);
  QString Act(const Deed &deed);
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
  bool isFull_ = false;
  int words_ = 0;
};

}  // namespace velor
