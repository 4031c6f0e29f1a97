// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/frmAbout.h"

#include "Version.h"
#include "chrome/Icons.h"
#include "chrome/Palette.h"
#include "platform/Dialogs.h"
#include "platform/EngineVersion.h"
#include "platform/Runtime.h"
#include "platform/Words.h"

#include <QAccessibleWidget>
#include <QDialogButtonBox>
#include <QDir>
#include <QEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QTimer>
#include <QTimerEvent>
#include <QVBoxLayout>

namespace velor {
namespace {

// Device-independent pixels.
constexpr int Width = 420;
constexpr int LogoSize = 72;
constexpr int FirstRidge = 135;
constexpr int Ridges = 5;
constexpr int RidgeDistance = 2;
constexpr int Margin = 24;
constexpr int TextWidth = Width - 2 * Margin;

/// Milliseconds between two passes: a little over StepSeconds, so that every pass takes a step.
constexpr int PassPeriod = 52;

const QString MailAddress = QStringLiteral("info@example.com");
const QString MailLinkName = QStringLiteral("lblMail_To");

QLabel *NewLabel(const char *name, const QString &text) {
  auto *label = new QLabel(text);
  label->setObjectName(QString::fromLatin1(name));
  return label;
}

QLabel *NewQuietLabel(const char *name, const QString &text) {
  QLabel *label = NewLabel(name, text);
  label->setForegroundRole(QPalette::PlaceholderText);
  return label;
}

/// A label of several lines: the box has one width, and room for all of them.
QLabel *Wrapped(QLabel *label) {
  label->setWordWrap(true);
  label->setFixedSize(TextWidth, label->heightForWidth(TextWidth));
  return label;
}

/// What is said of the browser engine, in rows of their own; nothing where it is not known.
void AddEngineWords(QGridLayout &grid, const EngineVersion &engine) {
  if (engine.chromium.isEmpty()) return;
  QString words = frmAbout::tr("Browser engine: Chromium %1").arg(engine.chromium);
  const QDate released = ReleaseOfChromium(engine.securityFixes);
  if (released.isValid())
    words += u'\n' + frmAbout::tr("Security fixes up to %1 (about %2)")
                         .arg(engine.securityFixes,
                              QLocale().toString(released, QStringLiteral("MMMM yyyy")));
  grid.addWidget(Wrapped(NewQuietLabel("lblEngine", words)), grid.rowCount(), 0, 1, 3);
  if (!IsOutdated(engine, QDate::currentDate())) return;
  const QString meaning = frmAbout::tr(
      "These fixes are older than 18 months: preview only pages that you trust. A newer release of "
      "your system brings a newer engine.");
  grid.addWidget(Wrapped(NewLabel("lblEngineAge", meaning)), grid.rowCount(), 0, 1, 3);
}

/// A link as a control: Tab reaches it and it shows the focus; a click, Enter or Space follows it.
class MailLink final : public QLabel {
 public:
  MailLink() {
    // The text comes when the name is there by which AccessOfMailLink knows the link: a text makes
    // the toolkit ask.
    setObjectName(MailLinkName);
    setText(MailAddress);
    setForegroundRole(QPalette::Link);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    QFont underlined = font();
    underlined.setUnderline(true);
    setFont(underlined);
  }

  void OpenMail() { Q_EMIT linkActivated(QStringLiteral("mailto:") + MailAddress); }

 protected:
  void mouseReleaseEvent(QMouseEvent *event) override {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
      OpenMail();
  }
  void keyPressEvent(QKeyEvent *event) override {
    switch (event->key()) {
      case Qt::Key_Return:
      case Qt::Key_Enter:
      case Qt::Key_Space:
        OpenMail();
        break;
      default:
        QLabel::keyPressEvent(event);
    }
  }
  void focusInEvent(QFocusEvent *) override { update(); }
  void focusOutEvent(QFocusEvent *) override { update(); }
  void paintEvent(QPaintEvent *event) override {
    QLabel::paintEvent(event);
    if (!hasFocus()) return;
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  }
};

/// The link as assistive technology meets it.
class MailLinkAccess final : public QAccessibleWidget {
 public:
  explicit MailLinkAccess(MailLink &link) : QAccessibleWidget(&link, QAccessible::Link) {}

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? MailAddress : QAccessibleWidget::text(kind);
  }
  QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
  void doAction(const QString &action) override {
    if (action != pressAction()) return QAccessibleWidget::doAction(action);
    static_cast<MailLink *>(widget())->OpenMail();
  }
};

/// By the name: dynamic_cast crashes on the engine's objects, which have no type information.
QAccessibleInterface *AccessOfMailLink(const QString &, QObject *object) {
  auto *label = qobject_cast<QLabel *>(object);
  if (label == nullptr || label->objectName() != MailLinkName) return nullptr;
  return new MailLinkAccess(*static_cast<MailLink *>(label));
}

}  // namespace

/// The widget that draws the squares of the animation.
class frmAbout::Pattern final : public QWidget {
 public:
  explicit Pattern(const AboutAnimation &animation) : animation_(animation) {
    setObjectName(QStringLiteral("Thumbing"));
    setFixedSize(AboutAnimation::Side * AboutAnimation::Columns,
                 AboutAnimation::Side * AboutAnimation::Squares / AboutAnimation::Columns);
  }

 protected:
  void paintEvent(QPaintEvent *) override {
    QPainter painter(this);
    for (int index = 0; index < animation_.ShownSquares(); ++index) {
      const QRect square = AboutAnimation::SquareAt(index);
      painter.fillRect(square, palette().highlight());
      painter.fillRect(square.adjusted(1, 1, -1, -1), palette().window());
      // Paler than its edge, so that each one is seen beside the next.
      painter.setOpacity(0.5);
      painter.fillRect(square.adjusted(2, 2, -2, -2), palette().highlight());
      painter.setOpacity(1);
    }
  }

 private:
  const AboutAnimation &animation_;
};

frmAbout::frmAbout(Runtime &runtime, const EngineVersion &engine, QWidget *parent)
    : QDialog(parent), runtime_(runtime) {
  setObjectName(QStringLiteral("frmAbout"));
  setWindowTitle(tr("About us..."));
  auto *inert = new QTimer(this);
  inert->setObjectName(QStringLiteral("Timer_Show"));

  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(BuildHead());
  column->addSpacing(Ridges * RidgeDistance + 2);
  column->addWidget(BuildFoot(engine));
  column->setSizeConstraint(QLayout::SetFixedSize);
  findChild<QPushButton *>()->setFocus();
}

QWidget *frmAbout::BuildHead() {
  auto *head = new QWidget;
  head->setFixedSize(Width, FirstRidge - 1);
  QLabel *logo = NewLabel("Image1", {});
  logo->setAccessibleName(tr("Logo"));
  logo->setPixmap(ProgramIcon().pixmap(QSize(LogoSize, LogoSize), devicePixelRatioF()));
  QLabel *product = NewLabel("Label2", QStringLiteral("Vitrine"));
  QFont large = product->font();
  large.setPointSizeF(large.pointSizeF() * 2.2);
  large.setWeight(QFont::DemiBold);
  product->setFont(large);
  pattern_ = new Pattern(animation_);

  auto *grid = new QGridLayout(head);
  grid->setContentsMargins(Margin, 0, Margin, 0);
  grid->setHorizontalSpacing(Margin);
  grid->setVerticalSpacing(2);
  grid->setRowStretch(0, 1);
  grid->addWidget(logo, 0, 0, 5, 1, Qt::AlignVCenter);
  grid->addWidget(product, 1, 1);
  grid->addWidget(NewQuietLabel("Label1", QStringLiteral("Example Software")), 2, 1);
  grid->addWidget(NewQuietLabel("lblVersion",
                                QStringLiteral("%1 %2\nQt %3")
                                    .arg(QString::fromUtf16(ApplicationTitle),
                                         QLatin1String(ProgramVersion), QLatin1String(qVersion()))),
                  3, 1);
  grid->setRowStretch(4, 1);
  grid->setColumnStretch(1, 1);
  grid->addWidget(pattern_, 0, 2, 5, 1, Qt::AlignVCenter);
  return head;
}

QWidget *frmAbout::BuildFoot(const EngineVersion &engine) {
  auto *foot = new QWidget;
  QAccessible::installFactory(AccessOfMailLink);
  auto *mail = new MailLink;
  mail->setMargin(2);
  connect(mail, &QLabel::linkActivated, this, &frmAbout::WriteTo);
  auto *close = new QDialogButtonBox(QDialogButtonBox::Close);
  connect(close, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto *grid = new QGridLayout(foot);
  grid->setContentsMargins(Margin, Margin - RidgeDistance, Margin, Margin - RidgeDistance);
  grid->setHorizontalSpacing(BarMargin);
  grid->setVerticalSpacing(BarMargin);
  grid->setColumnStretch(1, 1);
  grid->addWidget(NewLabel("Label3", QStringLiteral("1 Example Street")), 0, 0, 1, 2);
  grid->addWidget(NewLabel("Label5", QStringLiteral("Exampletown")), 1, 0, 1, 2);
  grid->addWidget(NewLabel("Label4", Words::tr("E-mail :")), 2, 0);
  grid->addWidget(mail, 2, 1, Qt::AlignLeft);
  AddEngineWords(*grid, engine);
  // Beside the last line of the address, or below the words that take the whole width.
  grid->addWidget(close, engine.chromium.isEmpty() ? 2 : grid->rowCount(), 2);
  return foot;
}

void frmAbout::paintEvent(QPaintEvent *event) {
  QDialog::paintEvent(event);
  QPainter painter(this);
  for (int ridge = 0; ridge < Ridges; ++ridge) {
    const int top = FirstRidge + RidgeDistance * ridge;
    painter.fillRect(0, top, width(), 1, palette().light());
    painter.fillRect(0, top + 1, width(), 1, palette().dark());
  }
}

void frmAbout::changeEvent(QEvent *event) {
  QDialog::changeEvent(event);
  if (event->type() != QEvent::ActivationChange) return;
  if (isActiveWindow()) {
    passes_.start(PassPeriod, Qt::PreciseTimer, this);
    Play();
  } else {
    passes_.stop();
  }
}

void frmAbout::hideEvent(QHideEvent *event) {
  passes_.stop();
  QDialog::hideEvent(event);
}

void frmAbout::timerEvent(QTimerEvent *) {
  Play();
}

void frmAbout::Play() {
  if (animation_.StepIfDue(runtime_.SecondsSinceMidnight())) pattern_->update();
}

void frmAbout::WriteTo(const QString &link) {
  const BusyCursor busy(runtime_);
  try {
    runtime_.ShellExecute(QStringLiteral("Open"), link, QDir::currentPath());
  } catch (const std::exception &) {
    // Without a mail program the address can still be read.
  }
}

}  // namespace velor
