// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <unistd.h>
#include <utility>

namespace velor {

/// An open file of the system, closed at the end of its scope.
class FileDescriptor {
 public:
  explicit FileDescriptor(int number = -1) : number_(number) {}
  FileDescriptor(FileDescriptor &&other) noexcept : number_(std::exchange(other.number_, -1)) {}
  FileDescriptor &operator=(FileDescriptor &&other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~FileDescriptor() { Close(); }

  bool IsOpen() const { return number_ >= 0; }
  int Number() const { return number_; }

  /// False when closing failed; some file systems report a failed write only then.
  bool Close() { return number_ < 0 || close(std::exchange(number_, -1)) == 0; }

 private:
  int number_;
};

}  // namespace velor
