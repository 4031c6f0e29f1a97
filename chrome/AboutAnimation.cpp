// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/AboutAnimation.h"

namespace velor {

bool AboutAnimation::StepIfDue(double now) {
  if (lastStep_ && now >= *lastStep_ && now - *lastStep_ <= StepSeconds) return false;
  lastStep_ = now;
  if (step_ < Squares) shown_ = step_ + 1;
  if (++step_ == Steps) step_ = shown_ = 0;
  return true;
}

}  // namespace velor
