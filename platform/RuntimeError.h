// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <exception>
#include <string>

namespace velor {

/// The error numbers that the program's operations return and report. They are published and never
/// renumbered; most are the classic run-time numbers of desktop Basic, which old manuals list.
enum class ErrorNumber : int {
  /// An object's own error 1049, as objects publish theirs.
  InvalidControl = -2147220455,
  None = 0,
  InvalidProcedureCall = 5,
  Overflow = 6,
  SubscriptOutOfRange = 9,
  TypeMismatch = 13,
  OutOfStringSpace = 14,
  FileNotFound = 53,
  DeviceIoError = 57,
  DiskFull = 61,
  InputPastEnd = 62,
  PermissionDenied = 70,
  PathFileAccess = 75,
  PathNotFound = 76,
  ObjectNotSet = 91,
  DialogCancelled = 32755,
  IndexOutOfBounds = 35600,
  ElementNotFound = 35601,
};

/// The program's one exception type. It is caught only where an operation is documented to return a
/// number or to go on, and at the event boundary, which reports it to the person.
class RuntimeError : public std::exception {
 public:
  /// `source` is the name of the failing operation or module; `description` says the cause and the
  /// file.
  RuntimeError(ErrorNumber number, QString source, QString description);

  /// The description is that of the number (Description below), followed by `detail` where given.
  static RuntimeError Of(ErrorNumber number, const QString &source, const QString &detail = {});

  /// The error for a failed system call on `path`, its number by errno: ENOENT 53, ENOTDIR 76,
  /// EACCES, EPERM and EROFS 75 or 70, ENOSPC and EDQUOT 61, EIO 57 ...
  static RuntimeError FromErrno(int errnoValue, const QString &source, const QString &path);

  ErrorNumber Number() const { return number_; }
  int Code() const { return static_cast<int>(number_); }
  const QString &Source() const { return source_; }
  const QString &Description() const { return description_; }

  /// UTF-8: number, source and description in one line.
  const char *what() const noexcept override { return what_.c_str(); }

 private:
  ErrorNumber number_;
  QString source_;
  QString description_;
  std::string what_;
};

/// The standard sentence of an error number ("File not found"); an unknown number gives
/// "Application-defined or object-defined error".
QString Description(int number);

}  // namespace velor
