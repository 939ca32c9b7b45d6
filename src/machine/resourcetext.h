// SPDX-License-Identifier: GPL-3.0-or-later
// Registry texts that stand for a string in a DLL, as the service manager shows them.

#pragma once

#include "machine.h"

/**
 * The string behind a reference such as "@%SystemRoot%\system32\x.dll,-100", by the machine's DLLs and environment. A
 * text that is no reference, and a reference that leads nowhere, come back as they are.
 */
QString resolveResourceText(const Machine &machine, const QString &text);
