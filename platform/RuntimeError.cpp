// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/RuntimeError.h"

#include "platform/Paths.h"
#include "platform/Words.h"

#include <cerrno>
#include <system_error>
#include <utility>

namespace velor {

namespace {

struct Sentence {
  ErrorNumber number;
  const char *text;
};

constexpr Sentence Sentences[] = {
    {ErrorNumber::InvalidProcedureCall,
     QT_TRANSLATE_NOOP("velor::Words", "Invalid procedure call or argument")},
    {ErrorNumber::Overflow, QT_TRANSLATE_NOOP("velor::Words", "Overflow")},
    {ErrorNumber::SubscriptOutOfRange, QT_TRANSLATE_NOOP("velor::Words", "Subscript out of range")},
    {ErrorNumber::TypeMismatch, QT_TRANSLATE_NOOP("velor::Words", "Type mismatch")},
    {ErrorNumber::OutOfStringSpace, QT_TRANSLATE_NOOP("velor::Words", "Out of string space")},
    {ErrorNumber::FileNotFound, QT_TRANSLATE_NOOP("velor::Words", "File not found")},
    {ErrorNumber::DeviceIoError, QT_TRANSLATE_NOOP("velor::Words", "Device I/O error")},
    {ErrorNumber::DiskFull, QT_TRANSLATE_NOOP("velor::Words", "Disk full")},
    {ErrorNumber::InputPastEnd, QT_TRANSLATE_NOOP("velor::Words", "Input past end of file")},
    {ErrorNumber::PermissionDenied, QT_TRANSLATE_NOOP("velor::Words", "Permission denied")},
    {ErrorNumber::PathFileAccess, QT_TRANSLATE_NOOP("velor::Words", "Path/File access error")},
    {ErrorNumber::PathNotFound, QT_TRANSLATE_NOOP("velor::Words", "Path not found")},
    {ErrorNumber::ObjectNotSet,
     QT_TRANSLATE_NOOP("velor::Words", "Object variable or With block variable not set")},
    {ErrorNumber::DialogCancelled, QT_TRANSLATE_NOOP("velor::Words", "Cancel was selected")},
    {ErrorNumber::IndexOutOfBounds, QT_TRANSLATE_NOOP("velor::Words", "Index out of bounds")},
    {ErrorNumber::ElementNotFound, QT_TRANSLATE_NOOP("velor::Words", "Element not found")},
    {ErrorNumber::InvalidControl,
     QT_TRANSLATE_NOOP(
         "velor::Words",
         "Incorrect control type passed to 'Attach' parameter - must be a control with a hWnd "
         "property.")},
};

/// The number for an errno; PathFileAccess (75) for one that is not listed.
ErrorNumber NumberForErrno(int errnoValue) {
  switch (errnoValue) {
    case ENOENT:
      return ErrorNumber::FileNotFound;
    case ENOTDIR:
    case ELOOP:
    case ENAMETOOLONG:
    case ENODEV:
    case ENXIO:
      return ErrorNumber::PathNotFound;
    case EAGAIN:
    case EBUSY:
    case ETXTBSY:
      return ErrorNumber::PermissionDenied;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return ErrorNumber::DiskFull;
    case EIO:
      return ErrorNumber::DeviceIoError;
    case ENOMEM:
      return ErrorNumber::OutOfStringSpace;
    default:
      return ErrorNumber::PathFileAccess;
  }
}

}  // namespace

RuntimeError::RuntimeError(ErrorNumber number, QString source, QString description)
    : number_(number), source_(std::move(source)), description_(std::move(description)) {
  const QString line = QStringLiteral("Error %1 in %2: %3")
                           .arg(QString::number(static_cast<int>(number_)), source_, description_);
  what_ = line.simplified().toStdString();
}

RuntimeError RuntimeError::Of(ErrorNumber number, const QString &source, const QString &detail) {
  QString description = velor::Description(static_cast<int>(number));
  if (!detail.isEmpty()) description += QStringLiteral(": ") + detail;
  return {number, source, description};
}

RuntimeError RuntimeError::FromErrno(int errnoValue, const QString &source, const QString &path) {
  const QString cause = QString::fromStdString(std::generic_category().message(errnoValue));
  return Of(NumberForErrno(errnoValue), source,
            QStringLiteral("%1 (%2)").arg(ForPeople(path), cause));
}

QString Description(int number) {
  for (const Sentence &sentence : Sentences) {
    if (static_cast<int>(sentence.number) == number) return Words::tr(sentence.text);
  }
  return Words::tr("Application-defined or object-defined error");
}

}  // namespace velor
