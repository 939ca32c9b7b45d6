// SPDX-License-Identifier: GPL-3.0-or-later
// Reads what "sc query state= all" printed on a PC.

#pragma once

#include "platform/systemreader.h"

#include <QList>
#include <QString>

/** Whether a text looks like a report, in any language. */
bool isServiceReport(const QString &text);
/** Reads a report. Throws MachineError with "file:line: reason". */
QList<ServiceReport> parseServiceReport(const QString &text, const QString &fileName);
