// SPDX-License-Identifier: GPL-3.0-or-later
// The signal of a check box that was changed, by whichever name Qt has it.

#pragma once

#include <QCheckBox>

#if QT_VERSION >= QT_VERSION_CHECK(6, 7, 0)
inline constexpr auto checkStateChanged = &QCheckBox::checkStateChanged;
#else
inline constexpr auto checkStateChanged = &QCheckBox::stateChanged;
#endif
