// SPDX-License-Identifier: GPL-3.0-or-later

#include "processground.h"

#include <QFileInfo>

void prepareProcess() {}

QString absolutePath(const QString &path)
{
    return QFileInfo(path).absoluteFilePath();
}
