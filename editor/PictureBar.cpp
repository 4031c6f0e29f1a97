// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/PictureBar.h"

#include "platform/Words.h"

#include <QPushButton>

namespace velor {

PictureBar::PictureBar(QWidget *parent)
    : NoticeBar("picPicture", "lblPicture", Words::tr("Picture put in"), parent) {
  const auto add = [&](const char *name, const QString &caption, const QString &tip, auto signal) {
    QPushButton &button = AddButton(name, caption, tip);
    connect(&button, &QPushButton::clicked, this, signal);
    return &button;
  };
  copy_ = add("cmdCopyPicture", Words::tr("Copy"),
              Words::tr("Copy it into the site, now and from now on"), &PictureBar::CopyChosen);
  link_ =
      add("cmdLinkPicture", Words::tr("Link Where It Lies"),
          Words::tr("Name the file where it lies, now and from now on"), &PictureBar::LinkChosen);
  add("cmdUndoPicture", Words::tr("Undo"), Words::tr("Take it out of the page again"),
      &PictureBar::UndoChosen);
  add("cmdClosePicture", Words::tr("Close"), Words::tr("Put this bar away"), &PictureBar::hide);
}

void PictureBar::ShowArrival(const QString &text, Offer offer) {
  copy_->setVisible(offer == Offer::Copy);
  link_->setVisible(offer == Offer::Link);
  Tell(text);
}

}  // namespace velor
