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
    {ErrorNumber::InvalidProcedureCall, Words::Mark("Invalid procedure call or argument")},
    {ErrorNumber::Overflow, Words::Mark("Overflow")},
    {ErrorNumber::SubscriptOutOfRange, Words::Mark("Subscript out of range")},
    {ErrorNumber::TypeMismatch, Words::Mark("Type mismatch")},
    {ErrorNumber::OutOfStringSpace, Words::Mark("Out of string space")},
    {ErrorNumber::FileNotFound, Words::Mark("File not found")},
    {ErrorNumber::DeviceIoError, Words::Mark("Device I/O error")},
    {ErrorNumber::DiskFull, Words::Mark("Disk full")},
    {ErrorNumber::InputPastEnd, Words::Mark("Input past end of file")},
    {ErrorNumber::PermissionDenied, Words::Mark("Permission denied")},
    {ErrorNumber::PathFileAccess, Words::Mark("Path/File access error")},
    {ErrorNumber::PathNotFound, Words::Mark("Path not found")},
    {ErrorNumber::ObjectNotSet, Words::Mark("Object variable or With block variable not set")},
    {ErrorNumber::DialogCancelled, Words::Mark("Cancel was selected")},
    {ErrorNumber::IndexOutOfBounds, Words::Mark("Index out of bounds")},
    {ErrorNumber::ElementNotFound, Words::Mark("Element not found")},
    {ErrorNumber::InvalidControl,
     Words::Mark(
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
  const QString line = Words::tr("Error %1 in %2: %3")
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
