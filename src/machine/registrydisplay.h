// SPDX-License-Identifier: GPL-3.0-or-later
// Registry values as people read them.

#pragma once

#include "registrystore.h"

class Machine;

/** "dword", "text", "multi" and so on; "type 12" for one without a name. */
QString typeName(RegistryType type);
/** The data alone: a text in quotes, a number, or bytes. Long bytes are cut, with their number and a checksum. */
QString dataText(const RegistryValue &value);
/** Type and data: a text in quotes, "dword 2", "binary 01 02", "multi "a" "b"". */
QString valueText(const RegistryValue &value);
/** Type and bytes, for two values that read alike and yet differ. */
QString rawValueText(const RegistryValue &value);
/** The value's name, "(default)" for the unnamed one. */
QString valueName(const RegistryValue &value);

/**
 * The string that a registry text names in a DLL, such as "@%SystemRoot%\system32\x.dll,-100", by the
 * machine's DLLs and environment, as the service manager shows it. A text that is no reference, and a reference that
 * leads nowhere, come back as they are.
 */
QString resolveResourceText(const Machine &machine, const QString &text);
