// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

/// What new pages begin with.
namespace velor {

class frmMain;
struct EditorContext;

/// A template of the person's own: a page in the folder `templates` of the program folder.
struct PageTemplate {
  QString name;  ///< the file's, without its ending
  QString path;  ///< in logic form
};

/// The person's templates, by name.
std::vector<PageTemplate> OwnTemplates(const EditorContext &context);

/// What the person says of a new page.
struct PageBeginning {
  QString title;
  QString language;  ///< an RFC 5646 tag; empty for none
  bool fitsPhones = true;
};

/// The text of an HTML5 page in UTF-8.
QString ModernPage(const PageBeginning &beginning);

/// The text that New Document begins with: that of the file which the preference NewPageTemplate
/// names, or the published one. A file that cannot be read is told in the status bar.
QString TextOfNewPage(const EditorContext &context);

/// Asks for a name and keeps the page as a template, with its unsaved changes. One that is there is
/// replaced only if the person wants that; a failure is told, and leaves it whole.
void SaveAsTemplate(frmMain &page);

}  // namespace velor
