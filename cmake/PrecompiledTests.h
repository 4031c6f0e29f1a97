// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore>
#include <QtGui>
#include <QtWidgets>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
