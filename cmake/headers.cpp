// SPDX-License-Identifier: GPL-3.0-or-later
// A target that compiles headers needs a source.
