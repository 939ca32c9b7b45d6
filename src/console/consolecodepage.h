// SPDX-License-Identifier: GPL-3.0-or-later
// The code page of the console: 850, which most PCs in Western Europe have.

#pragma once

#include <QByteArray>
#include <QString>

/** The text as tools print it; a character that the code page lacks becomes "?". */
QByteArray toConsoleBytes(QStringView text);
QString fromConsoleBytes(const QByteArray &bytes);
