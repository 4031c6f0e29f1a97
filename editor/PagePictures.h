// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/EditorContext.h"
#include "pictures/CopiedPictures.h"
#include "pictures/RewrittenPictures.h"
#include "platform/Journal.h"

#include <QPointer>
#include <QSize>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QImage;

namespace velor {

class PictureBar;
class PictureTextBox;
class frmMain;

/// Makes the pictures that are put into a page part of its site. A picture from outside is copied
/// or linked as the setting CopyPictures says; the bar under the page offers the other. A page
/// without a path has no site: its files stay linked where they lie, pictures without a file are
/// kept beside its temporary copy, and both move into the site at the first save. Paths in logic
/// form.
class PagePictures final {
 public:
  /// Both outlive it; `page` gets the bar.
  PagePictures(EditorContext &context, frmMain &page);
  ~PagePictures();

  QWidget &Bar();
  /// The page may look different: the box beside the picture follows it.
  void PlaceTextBox();

  struct InPage {
    QString address;  ///< empty where the picture could not be had; the status bar says why
    QSize size = {};  ///< in pixels; empty where it is not known
  };
  /// A picture file that is about to be put into the page. Null where the additions are off.
  InPage TakeFile(const QString &path);
  /// The same for a file chosen in a dialog that asks for the text itself. Null too where its link
  /// stays as the dialog made it.
  InPage TakeChosenFile(const QString &path);
  /// The same for the bytes of a picture file: what a data: address holds.
  InPage TakeBytes(const QByteArray &content);
  /// Puts a picture from the clipboard in at the caret; false where the additions are off.
  bool PutIn(const QImage &image);
  /// The pictures with these addresses came with another program's markup: their files are brought
  /// into the site, and the addresses changed. A file that is not there stays linked.
  void TakePasted(const QStringList &addresses);

  /// Has a file that was made for the page follow its text.
  void Own(const SitePicture &picture) { copied_.Add(picture); }
  /// The picture files that were written anew for the page.
  RewrittenPictures &Rewritten() { return rewritten_; }
  /// The page's text has changed: files follow Undo and Redo.
  void Follow();
  /// The page is in its file.
  void MarkSaved();
  /// The page closes, and its changes are not wanted any more.
  void RemoveUnsaved();
  /// Brings the pictures of a page without a path into the site of its first file `to`, before
  /// their addresses are made relative to it. `html` is the page's text.
  void MoveInto(const QString &to, const QString &html);
  /// The first save has failed: the pictures are where they were.
  void MoveBack();
  /// What a journal has to hold of the pictures, and what the page that is restored from it has.
  QList<JournalledPicture> Unsaved() const;
  void Restore(const JournalledPage &kept);

 private:
  enum class Asks { ForText, Nothing };
  /// Where the file of a page without a path is.
  enum class Place { WhereItLies, BesideTheCopy };
  /// A picture that the bar tells of.
  struct Arrival {
    QString source;  ///< the file that it came from; empty for none
    QString path;    ///< of the file in the site; empty while it is linked
    QString address;
    QString notice;
    Asks asks = Asks::ForText;
  };
  /// A picture of a page without a path, by its full address.
  struct Homeless {
    QString address;
    QString path;                  ///< where the file is
    std::shared_ptr<QString> now;  ///< where it is for the page that is saved
    Place place = Place::WhereItLies;
  };

  bool HasPath() const;
  PageSite Site() const;
  PictureCopier Copier() const;
  /// What `take` has put into the site, for a picture of the file `source`, if any.
  template <typename Take>
  InPage Have(const QString &source, Asks asks, Take take);
  InPage HaveFile(const QString &path, Asks asks);
  InPage Link(const QString &path, Asks asks);
  void NoteHomeless(const QString &address, const QString &path, Place place);
  void Announce(const Arrival &arrival);
  void NoteArrivals();
  /// Has the files of pictures that were put in follow the page, which it looks at so often at
  /// most.
  void FollowArrivals(int looks);
  void ShowBar();
  /// Asks for the alternative text of the picture with that address; the empty one ends it.
  void AskForText(const QString &address);
  void LinkAll();
  void CopyAll();
  void UndoAll();
  void Report(const QString &message) const;

  EditorContext &context_;
  frmMain &page_;
  PictureBar *bar_;
  QPointer<PictureTextBox> textBox_;
  CopiedPictures copied_;
  RewrittenPictures rewritten_;
  std::vector<Arrival> arrivals_;
  bool isGathering_ = false;  ///< what arrives together is told together
  std::vector<Homeless> homeless_;
};

/// Whether a page's text names that file.
bool NamesFile(const QString &html, const QString &path);
/// Whether an open page other than number `but` names that file; 0 is no page.
bool IsNamedByOpenPage(EditorContext &context, int but, const QString &path);

/// Removes the files that were made for a page whose changes are given up unseen: those that the
/// page's file does not name, and no open page or other page of the folder. Files that were written
/// anew for it are as the saved page has them again; the status bar says where that is not
/// possible.
void RemoveUnsavedPictures(EditorContext &context, const JournalledPage &kept);

}  // namespace velor
