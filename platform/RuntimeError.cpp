// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/RuntimeError.h"

#include "platform/Paths.h"

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
    {ErrorNumber::InvalidProcedureCall, "Invalid procedure call or argument"},
    {ErrorNumber::Overflow, "Overflow"},
    {ErrorNumber::SubscriptOutOfRange, "Subscript out of range"},
    {ErrorNumber::TypeMismatch, "Type mismatch"},
    {ErrorNumber::OutOfStringSpace, "Out of string space"},
    {ErrorNumber::FileNotFound, "File not found"},
    {ErrorNumber::DeviceIoError, "Device I/O error"},
    {ErrorNumber::DiskFull, "Disk full"},
    {ErrorNumber::InputPastEnd, "Input past end of file"},
    {ErrorNumber::PermissionDenied, "Permission denied"},
    {ErrorNumber::PathFileAccess, "Path/File access error"},
    {ErrorNumber::PathNotFound, "Path not found"},
    {ErrorNumber::ObjectNotSet, "Object variable or With block variable not set"},
    {ErrorNumber::DialogCancelled, "Cancel was selected"},
    {ErrorNumber::IndexOutOfBounds, "Index out of bounds"},
    {ErrorNumber::ElementNotFound, "Element not found"},
    {ErrorNumber::InvalidControl,
     "Incorrect control type passed to 'Attach' parameter - must be a control with a hWnd "
     "property."},
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
    if (static_cast<int>(sentence.number) == number) return QString::fromLatin1(sentence.text);
  }
  return QStringLiteral("Application-defined or object-defined error");
}

}  // namespace velor
