// SPDX-License-Identifier: GPL-3.0-or-later
// The real registry and the service manager, opened for reading alone.

#pragma once

#include "platform/systemreader.h"

class WindowsReader final : public SystemReader
{
public:
    KeyContent key(const QString &path) const override;
    std::optional<QList<ServiceReport>> serviceReports() const override;
};
