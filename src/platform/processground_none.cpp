// SPDX-License-Identifier: GPL-3.0-or-later

#include "processground.h"

#include <QFileInfo>

void prepareProcess() {}

std::optional<int> runWithoutRights()
{
    return std::nullopt;
}

QString absolutePath(const QString &path)
{
    return QFileInfo(path).absoluteFilePath();
}
