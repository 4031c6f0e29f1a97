// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

namespace velor {

/// A member whose life is that of its object, for code that may outlive the object: a callback of
/// the engine, or a member function after a wait, in which a person may have closed the page. Such
/// code makes a Watch beforehand and asks it before it touches the object.
class Lifetime {
 public:
  class Watch {
   public:
    /// The object has been destroyed, or its owner has called End.
    bool IsOver() const { return token_.expired(); }

   private:
    friend class Lifetime;
    explicit Watch(const std::shared_ptr<char> &token) : token_(token) {}

    std::weak_ptr<char> token_;
  };

  Watch NewWatch() const { return Watch(token_); }
  /// Ends the life that was watched so far; a new one begins.
  void End() { token_ = std::make_shared<char>(); }

 private:
  std::shared_ptr<char> token_ = std::make_shared<char>();
};

}  // namespace velor
