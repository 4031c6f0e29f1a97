// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>
#include <QString>

#include <vector>

namespace velor {

/// What a person, the disk or the machine does. `choice` picks among what there is at that moment
/// (files, tabs, names), so that a deed means something in every state and a walk can be shortened.
struct Deed {
  enum class Kind {
    New,
    Open,
    Drop,        ///< two or three files at once
    PasteFiles,  ///< as many, copied in a file manager
    Switch,      ///< to another page's tab
    Type,        ///< a word at the page's start
    Undo,
    Save,
    SaveAs,
    ViewHtml,
    Design,
    Preview,
    EditHtml,
    TypeSource,  ///< a word in the source editor
    Apply,
    CloseSource,
    Close,
    DiskFull,
    DiskHasRoom,
    MakeReadOnly,
    MakeWritable,
    ChangeOutside,  ///< another program writes a file, one of an open page too
    TakeTheirs,     ///< the file's version in the place of a page with changes
    Exit,
    Kill,
  };
  enum class Answer { Yes, No, Cancel };

  Kind kind = Kind::New;
  int choice = 0;
  Answer answer = Answer::Cancel;  ///< to every question that it leads to

  bool OpensSeveral() const { return kind == Kind::Drop || kind == Kind::PasteFiles; }
  bool MayTouchAFile() const {
    return kind == Kind::Save || kind == Kind::SaveAs || kind == Kind::Close;
  }
  /// A save applies the source in front first.
  bool MayApply() const {
    return kind == Kind::Apply || kind == Kind::CloseSource || kind == Kind::Save ||
           kind == Kind::SaveAs;
  }
};

/// A line for people, "Save 3 yes".
QString InWords(const Deed &deed);

}  // namespace velor
