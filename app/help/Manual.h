// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace velor {

/// A part of the manual that can be led to: the beginning of a page, or a heading with its text.
struct ManualPart {
  QString page;     ///< "files.html"
  QString anchor;   ///< of the heading; empty for the beginning of the page
  QString chapter;  ///< the page's title
  QString title;    ///< of the heading; the page's own at its beginning
  QString text;     ///< plain

  QString Place() const { return anchor.isEmpty() ? page : page + u'#' + anchor; }
};

/// The manual's pages, HTML files in one folder. They are read once, here.
class Manual {
 public:
  /// No parts where there are no pages.
  explicit Manual(const QString &nativeFolder);

  const QString &Folder() const { return folder_; }
  bool IsEmpty() const { return parts_.isEmpty(); }
  /// In reading order: that of the links on the first page, index.html.
  const QList<ManualPart> &Parts() const { return parts_; }
  /// The parts that have words which begin with each of these words, letter case ignored, the
  /// nearest first: those that have them in their titles. No words find nothing.
  QList<ManualPart> Find(const QString &words) const;

 private:
  void ReadPage(const QString &name);

  QString folder_;
  QList<ManualPart> parts_;
};

/// The manual's folder for a program in this folder, both native: that of its installation, else
/// docs/manual of the checkout around it. Empty where there is none.
QString ManualFolder(const QString &programFolder);

/// Words of a search, without what separates them.
QStringList WordsOf(const QString &text);

}  // namespace velor
