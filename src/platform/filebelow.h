// SPDX-License-Identifier: GPL-3.0-or-later
// Writing into folders where others can put links, as Platform::writeFile() and appendLine() have it.

#pragma once

#include "platform.h"

bool writeFileBelow(const QString &folder, const QString &name, const QByteArray &content, IfThere ifThere);
bool appendLineBelow(const QString &folder, const QString &name, const QString &line);
