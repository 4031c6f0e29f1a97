// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/PageTemplates.h"

#include "app/settings/modSettingManager.h"
#include "editor/MainWindow.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "editor/modGeneral.h"
#include "editor/modWorkFlow.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/Platform.h"
#include "platform/Runtime.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <QDir>
#include <QPointer>

namespace velor {

namespace {

const QString Ending = QStringLiteral(".html");

QString TemplateFolder(const EditorContext &context) {
  return context.platform.runtime.ProgramFolder() + QStringLiteral("\\templates");
}

bool MayReplace(const EditorContext &context, const QString &name) {
  Message question;
  question.text = Words::tr("There is a template %1 already. Replace it?").arg(name);
  question.buttons = MessageButtons::YesNo;
  question.icon = MessageIcon::Question;
  return context.platform.dialogs.ShowMessage(question) == MessageAnswer::Yes;
}

}  // namespace

std::vector<PageTemplate> OwnTemplates(const EditorContext &context) {
  std::vector<PageTemplate> found;
  const QString folder = TemplateFolder(context);
  const QDir files(ToNative(folder));
  for (const QString &file : files.entryList({u'*' + Ending}, QDir::Files, QDir::LocaleAware))
    found.push_back({file.chopped(Ending.size()), folder + u'\\' + file});
  return found;
}

QString ModernPage(const PageBeginning &beginning) {
  const QString language =
      beginning.language.isEmpty()
          ? QString()
          : QStringLiteral(" lang=\"%1\"").arg(beginning.language.toHtmlEscaped());
  const QString viewport =
      beginning.fitsPhones
          ? QStringLiteral(
                "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n")
          : QString();
  return QStringLiteral(
             "<!DOCTYPE html>\n<html%1>\n<head>\n<meta charset=\"utf-8\">\n%2<title>%3</title>\n"
             "</head>\n<body>\n<p><br></p>\n</body>\n</html>\n")
      .arg(language, viewport, beginning.title.toHtmlEscaped());
}

QString TextOfNewPage(const EditorContext &context) {
  namespace Settings = modSettingManager;
  const Registry &registry = context.platform.registry;
  const QString file = Settings::GetOption(registry, PreferenceOf("NewPageTemplate"));
  if (file.isEmpty() || !context.hasAdditions) return modWorkFlow::NewPageTemplate();
  try {
    return modGeneral::ReadWholeFile(context.platform.files, FromPeople(file));
  } catch (const RuntimeError &error) {
    context.mainWindow.status.Report(
        Words::tr("The template for new pages cannot be read: %1").arg(error.Description()));
    return modWorkFlow::NewPageTemplate();
  }
}

void SaveAsTemplate(frmMain &page) {
  const QPointer<frmMain> alive = &page;
  EditorContext &context = page.Context();
  const QString name =
      context.platform.dialogs
          .AskText(Words::tr("Name of the template:"), Words::tr("Save as Template"), {})
          .trimmed();
  if (alive.isNull() || name.isEmpty()) return;
  if (name.contains(u'/') || name.contains(u'\\') || name.startsWith(u'.')) {
    context.mainWindow.status.Report(
        Words::tr("The name of a template has no slash and does not begin with a dot"));
    return;
  }
  const QString folder = TemplateFolder(context);
  const QString path = folder + u'\\' + name + Ending;
  Files &files = context.platform.files;
  try {
    const QString text = page.DHTML1().TextToSave();
    if (alive.isNull()) return;
    const QByteArray bytes =
        modGeneral::PageBytes(text, modWorkFlow::EncodingOf(context, page.Number()));
    QDir().mkpath(ToNative(folder));
    if (!files.CreateNew(path, bytes)) {
      if (!MayReplace(context, name)) return;
      files.ReplaceAll(path, bytes);
    }
  } catch (const RuntimeError &error) {
    Message failure;
    failure.text = Words::tr("The template could not be saved: %1").arg(error.Description());
    failure.icon = MessageIcon::Critical;
    context.platform.dialogs.ShowMessage(failure);
    return;
  }
  context.mainWindow.status.Report(Words::tr("The page is the template %1 now").arg(name));
}

}  // namespace velor
