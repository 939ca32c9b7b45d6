// SPDX-License-Identifier: GPL-3.0-or-later
// The record of removed packages, kept from the lines of the job that changes them.

#pragma once

#include <QString>

/** Takes a package into the record, or out of it, if the line says that it was removed or installed. */
void recordPackageLine(const QString &line, bool install);
