// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/help/HelpTopics.h"

#include "platform/Words.h"

#include <QWidget>

namespace velor {
namespace {

constexpr HelpTopic Topics[] = {
    // Windows of pages.
    {"picOutside", nullptr, "outside.html#both"},
    {"frmMain", "Code1", "source.html#view"},
    {"picWidths", nullptr, "widths.html#bar"},
    {"frmMain", nullptr, "design.html"},
    {"picPicture", nullptr, "pictures.html#site"},
    {"picPictureText", nullptr, "pictures.html#quicker"},
    {"picFitting", nullptr, "pictures.html#fit"},
    {"picSpelling", nullptr, "spelling.html#walk"},
    {"picFind", nullptr, "design.html#find"},
    {"picPdf", nullptr, "printing.html#export"},
    {"frmCodeEditor", nullptr, "source.html#editor"},
    {"frmBrowser", nullptr, "preview.html"},
    // Parts of the main window.
    {"picRecovery", nullptr, "recovery.html#bar"},
    {"tbrGeneral", nullptr, "window.html#toolbar"},
    {"tbrEdit", nullptr, "formatting.html"},
    {"cobFormat", nullptr, "formatting.html#block"},
    {"cobSize", nullptr, "formatting.html#font"},
    {"Font1", nullptr, "formatting.html#font"},
    {"FileTab", nullptr, "pages.html#switch"},
    {"CmbPages", nullptr, "projects.html#chooser"},
    {"MfrmProgram", nullptr, "window.html"},
    // Dialogs.
    {"frmInsertElement", "SSTab2", "pictures.html#insert"},
    {"frmInsertElement", "txtHref", "links.html#hyperlink"},
    {"frmInsertElement", "SSTab3", "links.html#video"},
    {"frmInsertElement", nullptr, "links.html#target"},
    {"frmDialog_Table", nullptr, "tables.html#insert"},
    {"FrmCrop", nullptr, "pictures.html#crop"},
    {"FrmNewPage", nullptr, "pages.html#templates"},
    {"CharacterDialog", nullptr, "design.html#characters"},
    {"MarkupDialog", nullptr, "clipboard.html#markup"},
    {"frmProperties", nullptr, "details.html#properties"},
    {"frmProjectManager", nullptr, "projects.html#manager"},
    {"FrmFld", nullptr, "repair.html#picker"},
    {"FrmDrives", nullptr, "drives.html#window"},
    {"FrmPrint", nullptr, "printing.html#print"},
    {"FrmSiteSpelling", nullptr, "spelling.html#pages"},
    {"FrmSettings", nullptr, "settings.html#list"},
    {"FrmShortcuts", nullptr, "commands.html#shortcuts"},
    {"CommandPalette", nullptr, "commands.html#palette"},
    {"frmCompare", nullptr, "outside.html#both"},
    {"frmAbout", nullptr, "window.html#about"},
    {"CommonDialog1", nullptr, "files.html"},
    {"ManualWindow", nullptr, "index.html#using"},
    {"QInputDialog", nullptr, "source.html#menu", Words::Mark("Go to Line Number")},
    {"QInputDialog", nullptr, "pages.html#templates", Words::Mark("Save as Template")},
    {"QInputDialog", nullptr, "links.html#hyperlink", Words::Mark("Link to a E-mail Address")},
    {"QMessageBox", nullptr, "messages.html"},
};

bool Fits(const HelpTopic &topic, const QWidget &widget) {
  if (widget.objectName() != QLatin1String(topic.widget) && !widget.inherits(topic.widget))
    return false;
  if (topic.title != nullptr && widget.windowTitle() != Words::tr(topic.title)) return false;
  if (topic.visible == nullptr) return true;
  const auto *part = widget.findChild<QWidget *>(QString::fromLatin1(topic.visible));
  return part != nullptr && part->isVisible();
}

}  // namespace

std::span<const HelpTopic> HelpTopics() {
  return Topics;
}

QString HelpPlaceFor(const QWidget *widget) {
  for (; widget != nullptr; widget = widget->parentWidget()) {
    for (const HelpTopic &topic : Topics) {
      if (Fits(topic, *widget)) return QString::fromLatin1(topic.place);
    }
    if (widget->isWindow()) break;
  }
  return QStringLiteral("index.html");
}

}  // namespace velor
