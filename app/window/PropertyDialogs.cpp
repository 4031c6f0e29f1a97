// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/PropertyDialogs.h"

#include "editor/EditorContext.h"
#include "editor/frmMain.h"
#include "platform/Dialogs.h"
#include "platform/Platform.h"
#include "properties/frmProperties.h"

#include <QPointer>

namespace velor {

bool ShowProperties(frmMain &page, PropertyOwner owner) {
  const QPointer<frmMain> alive = &page;
  const PropertyValues values = page.DHTML1().Document().Properties(owner);
  if (alive.isNull() || values.isEmpty()) return false;
  frmProperties dialog(SheetOf(owner.subject), values, page.window());
  QObject::connect(&dialog, &frmProperties::Changed, alive,
                   [alive, owner](const PropertyValues &changed) {
                     alive->DHTML1().Document().SetProperties(owner, changed);
                   });
  page.Context().platform.dialogs.RunModal(dialog);
  return true;
}

void ShowCaretElement(frmMain &page) {
  const HtmlDocument &document = page.DHTML1().Document();
  const auto count = static_cast<int>(document.Path().size());
  if (count > 0) ShowProperties(page, {PropertySubject::Element, document.PathElement(count - 1)});
}

}  // namespace velor
