// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform.h"

namespace {

std::unique_ptr<Platform> current;

} // namespace

Platform &platform()
{
    if (!current)
        qFatal("no platform is set");
    return *current;
}

void setPlatform(std::unique_ptr<Platform> newPlatform)
{
    current = std::move(newPlatform);
}
