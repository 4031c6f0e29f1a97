// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore>
#include <QtGui>
#include <QtWidgets>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>
