// SPDX-License-Identifier: GPL-3.0-or-later
// Values in registry scripts, the .reg files of the registry editor.

#pragma once

#include "registrykey.h"

/** The first line. */
inline constexpr QLatin1StringView registryScriptHead("Windows Registry Editor Version 5.00");

/**
 * Whether a script can name it. It has no way to write a control character: a line break in a name would begin a line,
 * and so a key, of its own.
 */
bool fitsRegistryScript(const QString &name);
/** The name and the sign after it, with which each line of a value begins. */
QString registryScriptName(const RegistryValue &value);
/** A value with its exact type and data. Several lines where it is long, with LF between them and none at the end. */
QString registryScriptValue(const RegistryValue &value);
