// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/frmAbout.h"

#include "chrome/Icons.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>

namespace velor {
namespace {

constexpr int LogoSize = 64;

}  // namespace

frmAbout::frmAbout(QWidget *parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmAbout"));
  setWindowTitle(tr("About us..."));

  auto *logo = new QLabel(this);
  logo->setObjectName(QStringLiteral("Image1"));
  logo->setAccessibleName(tr("Logo"));
  logo->setPixmap(ProgramIcon().pixmap(QSize(LogoSize, LogoSize), devicePixelRatioF()));

  auto *product = new QLabel(tr("Vitrine"), this);
  product->setObjectName(QStringLiteral("Label2"));
  QFont large = product->font();
  large.setPointSizeF(large.pointSizeF() * 1.8);
  large.setWeight(QFont::DemiBold);
  product->setFont(large);

  auto *close = new QDialogButtonBox(QDialogButtonBox::Close, this);
  connect(close, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto *grid = new QGridLayout(this);
  grid->setContentsMargins(24, 24, 24, 16);
  grid->setHorizontalSpacing(20);
  grid->setVerticalSpacing(16);
  grid->addWidget(logo, 0, 0);
  grid->addWidget(product, 0, 1, Qt::AlignVCenter);
  grid->addWidget(close, 1, 0, 1, 2);
  grid->setColumnMinimumWidth(1, 240);
}

}  // namespace velor
