// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/editor/EditorWorld.h"

#include "editor/modWorkFlow.h"

namespace velor {

frmMain &EditorWorld::Open(const QString &path, const QByteArray &content) {
  files.AddFile(path, content);
  dialog.FileName = path;
  modWorkFlow::OpenPage(context, path);
  const int number = pages.PageCount();
  Component(number).CompleteDocument();
  log.clear();
  return Page(number);
}

frmMain &EditorWorld::New() {
  modWorkFlow::NewPage(context);
  const int number = pages.PageCount();
  Component(number).CompleteDocument();
  log.clear();
  return Page(number);
}

CallLog EditorWorld::Order() const {
  CallLog order;
  for (const QString &call : log) {
    order.push_back(call.startsWith(QStringLiteral("SetDocumentHTML("))
                        ? QStringLiteral("SetDocumentHTML")
                        : call);
  }
  return order;
}

}  // namespace velor
