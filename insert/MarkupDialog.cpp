// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/MarkupDialog.h"

#include "insert/FormParts.h"
#include "platform/EditingComponent.h"
#include "platform/Platform.h"
#include "platform/RuntimeError.h"
#include "platform/SourceControl.h"
#include "platform/Words.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

#include <chrono>

namespace velor {
namespace {

using namespace std::chrono_literals;

constexpr QSize ComfortableSize(640, 480);
constexpr int LeastHeight = 90;  ///< pixels of the source and of the preview
constexpr std::chrono::milliseconds Pause = 400ms;

}  // namespace

MarkupSurroundings SurroundingsIn(const QString &document, const QString &path) {
  static const QRegularExpression body(
      QStringLiteral("<body(\\s+[^\\s=>]+(=(\"[^\"]*\"|'[^']*'|[^\\s>]*))?)*\\s*>"),
      QRegularExpression::CaseInsensitiveOption);
  const qsizetype head = document.indexOf(QLatin1String("</head>"), 0, Qt::CaseInsensitive);
  const QRegularExpressionMatch found = body.match(document, std::max<qsizetype>(head, 0));
  return {found.hasMatch() ? document.left(found.capturedEnd()) : QString(), path};
}

MarkupDialog::MarkupDialog(Components &components, const MarkupSurroundings &surroundings,
                           QWidget *parent)
    : QDialog(parent),
      surroundings_(surroundings),
      source_(components.CreateSourceControl(this, SourceAccess::Edit)),
      preview_(components.CreateEditingComponent(this)) {
  setObjectName(QStringLiteral("MarkupDialog"));
  setWindowTitle(Words::tr("Insert Custom HTML"));
  setModal(true);
  QVBoxLayout *window = FormParts::MakePage(this);
  const auto add = [&](QWidget &part, const QString &name, const QString &label) {
    auto *caption = new QLabel(label);
    caption->setBuddy(&part);
    FormParts::Name(part, name, label);
    part.setMinimumHeight(LeastHeight);
    window->addWidget(caption);
    window->addWidget(&part, 1);
  };
  add(*source_->Widget(), QStringLiteral("Code"), Words::tr("&HTML:"));
  add(*preview_->Widget(), QStringLiteral("Preview"), Words::tr("How it will look:"));
  // Looked at only: what is typed goes into the source.
  preview_->Widget()->setEnabled(false);
  source_->Widget()->installEventFilter(this);
  source_->SetTextListener([this] { TextChanged(); });

  ok_ = FormParts::MakeButton(QStringLiteral("cmdOK"), Words::tr("OK"));
  QPushButton *cancel = FormParts::MakeButton(QStringLiteral("cmdCancel"), Words::tr("Cancel"));
  connect(ok_, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  FormParts::AddButtonRow(window, {ok_, cancel});
  ok_->setEnabled(false);
  resize(ComfortableSize);
  source_->Widget()->setFocus();

  pause_.setSingleShot(true);
  connect(&pause_, &QTimer::timeout, this, &MarkupDialog::ShowPreview);
  pause_.start(0);
}

MarkupDialog::~MarkupDialog() {
  source_->SetTextListener({});
}

QString MarkupDialog::Markup() const {
  return source_->Text();
}

void MarkupDialog::TextChanged() {
  ok_->setEnabled(!Markup().trimmed().isEmpty());
  pause_.start(Pause);
}

void MarkupDialog::ShowPreview() {
  // Keys that come while a page is waited for begin the pause anew.
  if (preview_->IsWaiting()) return pause_.start(Pause);
  const QPointer<MarkupDialog> alive = this;
  try {
    const QString page = surroundings_.start + Markup();
    if (surroundings_.path.isEmpty())
      preview_->SetDocumentHTML(page);
    else
      preview_->LoadText(page, surroundings_.path);
  } catch (const RuntimeError &) {
    // There is no preview of what the engine cannot show; it can be put in all the same.
  }
  if (!alive.isNull() && focusWidget() == nullptr) source_->SetFocus();
}

bool MarkupDialog::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
  const auto *key = static_cast<QKeyEvent *>(event);
  const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
  if (isEnter && key->modifiers().testFlag(Qt::ControlModifier))
    ok_->click();
  else if (key->key() == Qt::Key_Escape)
    reject();
  else if (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab)
    focusNextPrevChild(key->key() == Qt::Key_Tab);
  else
    return QDialog::eventFilter(watched, event);
  return true;
}

}  // namespace velor
