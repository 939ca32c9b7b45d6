// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <functional>

/** Told of each step of something long: what is done now, how many steps are done, how many there are. */
using ProgressCallback = std::function<void(const QString &step, int done, int total)>;
