// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLatin1StringView>

/** Who owns the files of Windows; a file of that owner is as it was installed. */
inline constexpr QLatin1StringView installationOwner("NT SERVICE\\TrustedInstaller");
