// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/Additions.h"

#include <QString>
#include <QStringList>

/// What dialogs that make links ask of the page that they work on. Paths in logic form.
namespace velor {

class frmMain;

/// The path that the page's links are relative to; empty where it has none. A page of a project has
/// its path before it has been saved under a name.
QString PathForLinks(const frmMain &page, Additions additions);

/// Has an address that leads to the file in full, since the page has no path, adapted when the page
/// is saved first.
void NoteFullAddress(frmMain &page, const QString &address, const QString &target);

/// The names of places in the page that an address leads to from the page at `path`; the empty
/// address is the page itself.
QStringList PlacesOf(frmMain &page, const QString &path, const QString &address);

/// The address of a picture once its file is part of the site; empty where it stays as it is.
QString OwnPictureAddress(frmMain &page, const QString &path, const QString &address);

}  // namespace velor
