// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bench/BareView.h"
#include "bench/SamplePage.h"
#include "engine/EditingEngine.h"
#include "engine/WebEditor.h"
#include "files/QtFiles.h"
#include "platform/EditingComponent.h"

#include <QTemporaryDir>
#include <QVariant>
#include <QWidget>

namespace velor::bench {

/// A window with our editing component; counts the notices that the component sends.
class OurPage : public EditingListener {
 public:
  explicit OurPage(const QString &programFolder);
  void DocumentComplete() override { ++completed; }
  void DisplayChanged() override { ++displayChanges; }
  void ContextMenuRequested(QPoint) override {}
  void MouseNotified(int, int) override {}
  void ComponentReported(const QString &) override {}

  EditingEngine engine;
  QtFiles files;
  QWidget window;
  int completed = 0;
  int displayChanges = 0;
  WebEditor editor;
};

/// Our component and a bare view of the same size, and pages on the disk for both.
struct PageBench {
  PageBench();
  /// Writes a page into the folder and answers its native path.
  QString File(const QString &name, const QByteArray &content) const;
  QString File(const Size &size) const;
  void Load(const QString &path);

  QTemporaryDir folder;
  OurPage ours;
  BareView theirs;
};

QWidget *KeyTarget(QWidget *view);
/// The widget inside that takes the keys.
QWidget *EngineWidget(QWidget *container);
/// Gives the widget the keyboard, as a person does before typing.
void Focus(QWidget *target);
/// The value of an expression in the bridge's world of the view inside, waited for.
QVariant Evaluate(QWidget *container, const QString &script);

}  // namespace velor::bench
