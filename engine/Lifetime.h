// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

namespace velor {

/// A member that ends with its object. Whoever waits for the engine inside a member function takes
/// a Watch before and asks it afterwards, since a person may have closed the page meanwhile.
class Lifetime {
 public:
  class Watch {
   public:
    bool IsOver() const { return token_.expired(); }

   private:
    friend class Lifetime;
    explicit Watch(const std::shared_ptr<char> &token) : token_(token) {}

    std::weak_ptr<char> token_;
  };

  Watch Begin() const { return Watch(token_); }

 private:
  std::shared_ptr<char> token_ = std::make_shared<char>();
};

}  // namespace velor
