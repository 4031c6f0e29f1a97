// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/FrmCrop.h"

#include "app/window/CropView.h"
#include "insert/FormParts.h"
#include "pictures/CropRules.h"
#include "platform/Words.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>

#include <algorithm>

namespace velor {

using namespace FormParts;

FrmCrop::FrmCrop(const QImage &picture, const QString &name, QWidget *parent)
    : QDialog(parent), picture_(picture), part_(picture.rect()) {
  setObjectName(QStringLiteral("FrmCrop"));
  setWindowTitle(Words::tr("Crop and Turn %1").arg(name));
  setModal(true);
  auto *halves = new QHBoxLayout(this);
  view_ = new CropView(this);
  Name(*view_, QStringLiteral("CropView"), Words::tr("Part of the picture that stays"));
  halves->addWidget(view_, 1);
  auto *side = new QWidget;
  QVBoxLayout *column = MakePage(side);
  QFormLayout *form = AddForm(column);
  const std::pair<const char *, QString> labels[] = {{"txtCropLeft", Words::tr("&Left:")},
                                                     {"txtCropTop", Words::tr("&Top:")},
                                                     {"txtCropWidth", Words::tr("&Width:")},
                                                     {"txtCropHeight", Words::tr("&Height:")}};
  std::transform(std::begin(labels), std::end(labels), numbers_.begin(), [&](const auto &label) {
    auto *box = new QSpinBox;
    box->setKeyboardTracking(false);
    AddControl(form, QString::fromLatin1(label.first), label.second, box);
    connect(box, &QSpinBox::valueChanged, this, &FrmCrop::TakeNumbers);
    return box;
  });
  ratio_ = AddCheckBox(form, QStringLiteral("chkCropRatio"), Words::tr("&Keep the ratio"));
  connect(ratio_, &QCheckBox::toggled, this, &FrmCrop::ShowRatio);
  const auto addTurn = [&](const char *button, const QString &caption, Turn turn) {
    QPushButton *made = MakeButton(QString::fromLatin1(button), caption);
    connect(made, &QPushButton::clicked, this, [this, turn] { TurnBy(turn); });
    column->addWidget(made);
  };
  addTurn("cmdCropTurnLeft", Words::tr("Turn Left"), Turn::Left);
  addTurn("cmdCropTurnRight", Words::tr("Turn Right"), Turn::Right);
  column->addStretch();
  QPushButton *ok = MakeButton(QStringLiteral("cmdOK"), Words::tr("OK"));
  QPushButton *cancel = MakeButton(QStringLiteral("cmdCancel"), Words::tr("Cancel"));
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  AddButtonRow(column, {ok, cancel});
  halves->addWidget(side);
  connect(view_, &CropView::PartChosen, this, &FrmCrop::ShowPart);
  view_->ShowPicture(picture_, part_);
  ShowPart(part_);
  view_->setFocus();
}

void FrmCrop::ShowPart(const QRect &part) {
  part_ = part;
  const int values[] = {part.x(), part.y(), part.width(), part.height()};
  const int most[] = {picture_.width() - 1, picture_.height() - 1, picture_.width(),
                      picture_.height()};
  for (std::size_t at = 0; at < numbers_.size(); ++at) {
    const QSignalBlocker silent(numbers_[at]);
    numbers_[at]->setRange(at < 2 ? 0 : 1, most[at]);
    numbers_[at]->setValue(values[at]);
  }
  view_->ShowPart(part);
}

void FrmCrop::TakeNumbers() {
  const auto value = [this](std::size_t at) { return numbers_[at]->value(); };
  QRect asked(value(0), value(1), value(2), value(3));
  if (ratio_->isChecked() && asked.size() != part_.size()) {
    // The number that was changed leads; the left upper corner stays.
    const QPoint by = asked.width() != part_.width()
                          ? QPoint(asked.width() - part_.width(), -part_.height())
                          : QPoint(-part_.width(), asked.height() - part_.height());
    asked = DraggedPart(picture_.size(), part_, RightEdge | BottomEdge, by,
                        double(part_.width()) / part_.height());
  }
  ShowPart(PartWithin(picture_.size(), asked));
}

void FrmCrop::ShowRatio() {
  view_->SetRatio(ratio_->isChecked() ? double(part_.width()) / part_.height() : 0);
}

void FrmCrop::TurnBy(Turn turn) {
  part_ = TurnedPart(picture_.size(), part_, turn);
  const int clockwise = turn == Turn::Right ? 1 : 3;
  quarterTurns_ = (quarterTurns_ + clockwise) % 4;
  picture_ = TurnedClockwise(picture_, clockwise);
  view_->ShowPicture(picture_, part_);
  ShowPart(part_);
  ShowRatio();
}

}  // namespace velor
