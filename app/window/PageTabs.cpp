// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/PageTabs.h"

#include "chrome/Captions.h"
#include "chrome/Icons.h"
#include "chrome/Palette.h"
#include "platform/Conversions.h"
#include "platform/RuntimeError.h"

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyleOptionTab>
#include <QtMath>

#include <algorithm>
#include <array>

namespace velor {
namespace {

/// Images of the tabs by number, from 1.
constexpr std::array<const char *, 1> Images{"page"};

constexpr int TabHeight = 34;
constexpr int TabPadding = 12;
constexpr int WidestTab = 220;
constexpr int WidestTabWithNote = 440;
constexpr int NarrowestTab = 72;
constexpr int MarkHeight = 2;
/// Pixels: the dot on the picture of a page with unsaved changes.
constexpr int ChangeMark = 9;
/// Pixels: the body of the padlock on the picture of a page that cannot be saved.
constexpr QSize Padlock(8, 6);

/// Draws the marks of a tab's state on its picture.
void PaintMarks(QPainter &painter, const QPalette &palette, const TabState &state,
                const QRect &picture) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  if (state.isReadOnly) {
    const QRectF body(picture.topRight() - QPoint(Padlock.width() - 3, -3), Padlock);
    const QRectF bow = body.adjusted(1.5, -4, -1.5, -Padlock.height() + 4);
    painter.setPen(QPen(palette.color(QPalette::Text), 1.5));
    painter.drawArc(bow, 0, 180 * 16);
    painter.fillRect(body, palette.color(QPalette::Text));
  }
  if (state.hasChanges) {
    painter.setBrush(palette.highlight());
    painter.setPen(QPen(palette.color(QPalette::Window), 1));
    painter.drawEllipse(QRect(picture.bottomRight() - QPoint(ChangeMark - 2, ChangeMark - 2),
                              QSize(ChangeMark, ChangeMark)));
  }
  painter.restore();
}

QString NameOf(const QTabBar &tabs) {
  return tabs.objectName();
}

}  // namespace

PageTabs::PageTabs(QWidget *parent) : QTabBar(parent) {
  setDrawBase(false);
  setMouseTracking(true);
  setDocumentMode(true);
  setExpanding(false);
  setMovable(false);
  setFocusPolicy(Qt::TabFocus);
  setTabsClosable(false);
  setUsesScrollButtons(true);
  setElideMode(Qt::ElideMiddle);
  setIconSize(QSize(MenuIconSize, MenuIconSize));
  connect(this, &QTabBar::currentChanged, this, &PageTabs::Choose);
  // A click on the current tab emits no currentChanged, but the page's window may be behind another
  // one.
  connect(this, &QTabBar::tabBarClicked, this, [this](int index) {
    if (index == currentIndex()) Choose(index);
  });
}

void PageTabs::Add(const QString &key, int image) {
  if (image < 1 || image > static_cast<int>(Images.size())) {
    throw RuntimeError::Of(ErrorNumber::IndexOutOfBounds, NameOf(*this), QString::number(image));
  }
  const QSignalBlocker silence(this);
  tabs_.emplace_back();
  const int index =
      addTab(IconFor(QString::fromLatin1(Images[static_cast<std::size_t>(image - 1)])), QString());
  setTabData(index, key);
}

void PageTabs::SetCaption(const QString &key, const QString &caption) {
  const int index = IndexOf(key);
  // Set before setTabText, which lays the tabs out by the caption's width.
  tabs_[static_cast<std::size_t>(index)].caption = caption;
  Describe(index);
  setTabText(index, AsCaption(caption));
}

void PageTabs::SetState(const QString &key, const TabState &state) {
  const int index = IndexOf(key);
  TabState &known = tabs_[static_cast<std::size_t>(index)].state;
  const bool isAsWide = known.note == state.note;
  known = state;
  Describe(index);
  if (isAsWide) return update(tabRect(index));
  // Has the tabs laid out again.
  setTabText(index, tabText(index));
}

QString PageTabs::Tab::Shown() const {
  return state.note.isEmpty() ? caption : caption + QStringLiteral("  ·  ") + state.note;
}

void PageTabs::Describe(int index) {
  const Tab &tab = tabs_[static_cast<std::size_t>(index)];
  const QString &place = tab.state.path.isEmpty() ? tab.caption : tab.state.path;
  QStringList lines{place};
  if (tab.state.isReadOnly) lines << tr("Read-only");
  if (tab.state.hasChanges) lines << tr("Unsaved changes");
  // Assistive technology reads the tip as the tab's description.
  if (!tab.state.note.isEmpty()) lines << tab.state.note;
  setTabToolTip(index, lines.join(u'\n'));
}

void PageTabs::Select(const QString &key) {
  const int index = IndexOf(key);
  const QSignalBlocker silence(this);
  setCurrentIndex(index);
}

void PageTabs::Remove(const QString &key) {
  const int index = IndexOf(key);
  const QSignalBlocker silence(this);
  tabs_.erase(tabs_.begin() + index);
  removeTab(index);
}

void PageTabs::Clear() {
  const QSignalBlocker silence(this);
  while (count() > 0) {
    removeTab(count() - 1);
    tabs_.pop_back();
  }
}

int PageTabs::IndexOf(const QString &key) const {
  for (int index = 0; index < count(); ++index) {
    if (tabData(index).toString() == key) return index;
  }
  throw RuntimeError::Of(ErrorNumber::ElementNotFound, NameOf(*this), key);
}

void PageTabs::Choose(int index) {
  if (index < 0) return;
  constexpr int NumberStart = 3;
  Q_EMIT PageChosen(CInt(tabData(index).toString().mid(NumberStart)));
}

QSize PageTabs::tabSizeHint(int index) const {
  // Rounded up: a caption that is a fraction wider than its place would be cut.
  const Tab &tab = tabs_[static_cast<std::size_t>(index)];
  const int text = qCeil(QFontMetricsF(font()).horizontalAdvance(tab.Shown()));
  const int width = TabPadding + MenuIconSize + TabPadding / 2 + text + TabPadding;
  const int widest = tab.state.note.isEmpty() ? WidestTab : WidestTabWithNote;
  return {std::clamp(width, NarrowestTab, widest), TabHeight};
}

QSize PageTabs::minimumTabSizeHint(int) const {
  return {NarrowestTab, TabHeight};
}

void PageTabs::mouseMoveEvent(QMouseEvent *event) {
  QTabBar::mouseMoveEvent(event);
  const int index = tabAt(event->position().toPoint());
  Q_EMIT Pointed(index < 0 ? QString() : tabs_[static_cast<std::size_t>(index)].state.path);
}

void PageTabs::leaveEvent(QEvent *event) {
  QTabBar::leaveEvent(event);
  Q_EMIT Pointed({});
}

void PageTabs::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  const QColor line = Hairline(palette());
  for (int index = 0; index < count(); ++index) {
    const QRect tab = tabRect(index);
    const bool front = index == currentIndex();
    const Tab &told = tabs_[static_cast<std::size_t>(index)];
    QStyleOptionTab option;
    initStyleOption(&option, index);
    if (front) {
      painter.fillRect(tab, palette().window());
      painter.fillRect(tab.left(), tab.top(), tab.width(), MarkHeight, palette().highlight());
      painter.fillRect(tab.left(), tab.top(), 1, tab.height(), line);
      painter.fillRect(tab.right(), tab.top(), 1, tab.height(), line);
    } else if (option.state & QStyle::State_MouseOver) {
      painter.fillRect(tab.adjusted(1, MarkHeight, 0, 0), HoverField(palette()));
    }
    QRect place = tab.adjusted(TabPadding, MarkHeight, -TabPadding, 0);
    QRect picture(QPoint(), iconSize());
    picture.moveCenter(place.center());
    picture.moveLeft(place.left());
    tabIcon(index).paint(&painter, picture, Qt::AlignCenter,
                         front ? QIcon::Normal : QIcon::Disabled);
    PaintMarks(painter, palette(), told.state, picture);
    place.setLeft(place.left() + MenuIconSize + TabPadding / 2);
    painter.setPen(front ? palette().color(QPalette::Text) : QuietText(palette()));
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(told.Shown(), elideMode(), place.width()));
    if (front && hasFocus()) {
      painter.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DotLine));
      painter.drawRect(tab.adjusted(4, MarkHeight + 3, -5, -5));
    }
  }
}

}  // namespace velor
