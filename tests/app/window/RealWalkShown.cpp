// SPDX-License-Identifier: GPL-3.0-or-later
// RealWalk: whether what is shown is true.
#include "insert/modColor.h"
#include "tests/app/window/RealWalk.h"

#include <QLabel>
#include <QMenu>

namespace velor {

/// What is wrong with what is shown now; empty where all is true.
QString RealWalk::Trouble() {
  const QWidget *current = Area().Current();
  const FrontWindow *front = Area().Front();
  const QWidget *focus = QApplication::focusWidget();
  if (current != nullptr && (focus == nullptr || !current->isAncestorOf(focus))) {
    const auto name = [](const QObject *object) {
      return object == nullptr
                 ? QStringLiteral("nothing")
                 : QLatin1String(object->metaObject()->className()) + u' ' + object->objectName();
    };
    return QStringLiteral("the keyboard is in %1; the window in front is %2, its keyboard in %3")
        .arg(name(focus), name(QApplication::activeWindow()), name(window.focusWidget()));
  }
  const QString title =
      current == nullptr ? QStringLiteral("Velor Web Creator")
                         : QStringLiteral("Velor Web Creator - [%1]").arg(Area().NameOf(current));
  if (window.windowTitle() != title)
    return QStringLiteral("the title is %1, not %2").arg(window.windowTitle(), title);
  if (front != nullptr && front->PageNumber() != 0 &&
      Tabs().tabData(Tabs().currentIndex()).toString() != PageKey(front->PageNumber()))
    return QStringLiteral("the tab in front is another page's");
  const QString bars = BarsTrouble();
  return bars.isEmpty() ? FormatsTrouble() : bars;
}

QString RealWalk::BarsTrouble() {
  for (const GeneralButton &row : GeneralButtons) {
    if (row.needs != Needs::Page) continue;
    const bool isOn = Button(Named("tbrGeneral_", row.key)).isEnabled();
    if (isOn != (Tabs().count() > 0 && ActsOn(row.command, View())))
      return QStringLiteral("%1 is %2").arg(QLatin1String(row.key)).arg(isOn);
  }
  for (const MenuRow &row : MenuTable()) {
    // Without a page the Edit menu as a whole is off.
    if (row.command.id != CommandId::Editing || Tabs().count() == 0) continue;
    // These menus are brought up to date when they open.
    const QLatin1String name(row.name);
    if (name.startsWith(QLatin1String("ext")) || QLatin1String(row.parent) == u"mnuTableMore")
      continue;
    const bool isOn = Find<QAction>(row.name)->isEnabled();
    if (isOn != ActsOn(row.command, View()))
      return QStringLiteral("%1 is %2").arg(QLatin1String(row.name)).arg(isOn);
  }
  const FrontWindow *front = Area().Front();
  const QString form = front == nullptr || front->PageNumber() == 0
                           ? QString()
                           : Pages().Page(front->PageNumber())->DHTML1().TextForm();
  const QString shownForm = Find<QLabel>("Sta_2")->text();
  return shownForm == form ? QString() : QStringLiteral("%1 is another page's").arg(shownForm);
}

QString RealWalk::FormatsTrouble() {
  const QString format = Find<ChoiceBox>("cobFormat")->Text();
  const QString size = Find<ChoiceBox>("cobSize")->Text();
  const QString font = Find<FontPicker>("Font1")->FontName();
  const QString tag = Find<QLabel>("Sta_1")->text();
  frmMain *page = FrontPage();
  if (page == nullptr || page->View() != FrontView::Design) {
    const bool isOff = !Find<ChoiceBox>("cobFormat")->isEnabled() &&
                       !Button(QByteArray("tbrEdit_bold")).isEnabled();
    const bool isEmpty = format.isEmpty() && size.isEmpty() && font.isEmpty() && tag.isEmpty();
    return isOff && isEmpty
               ? QString()
               : QStringLiteral("formats of nothing: %1, %2, %3").arg(format, size, tag);
  }
  const auto value = [page](EditingCommand query) {
    return page->DHTML1().ExecCommand(query).toString();
  };
  if (format != value(EditingCommand::GetBlockFormat))
    return QStringLiteral("the block format is not %1").arg(format);
  if (size != value(EditingCommand::GetFontSize))
    return QStringLiteral("the size is not %1").arg(size);
  // An installed font is shown as the list spells it.
  if (font.compare(value(EditingCommand::GetFontName), Qt::CaseInsensitive) != 0)
    return QStringLiteral("the font is not %1").arg(font);
  const auto colorOf = [&](EditingCommand query) { return modColor::HtmlToColor(value(query)); };
  if (Find<ColorPicker>("cpFore")->Color() != colorOf(EditingCommand::GetForeColor) ||
      Find<ColorPicker>("cpBack")->Color() != colorOf(EditingCommand::GetBackColor))
    return QStringLiteral("a colour is another one");
  if (tag != page->GetActiveElement().tagName) return QStringLiteral("the tag is not %1").arg(tag);
  for (const EditCommand &row : EditCommands) {
    const QToolButton &button = Button(Named("tbrEdit_", row.key.toLatin1()));
    const CommandStatus status = page->DHTML1().QueryStatus(row.command);
    if (button.isEnabled() && button.isChecked() != (status == CommandStatus::Latched))
      return QStringLiteral("%1 shows another state").arg(row.key);
  }
  return {};
}

}  // namespace velor
