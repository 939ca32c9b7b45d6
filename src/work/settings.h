// SPDX-License-Identifier: GPL-3.0-or-later
// The program's own settings and records.

#pragma once

#include "platform/registrykey.h"

#include <memory>

/** The root of the settings tree. */
std::unique_ptr<RegistryKey> openSettings();
/** A group of records below the root: SVC, Task, Autorun, Packages or Tweak. */
std::unique_ptr<RegistryKey> openRecords(const QString &group);
/** The names in a group of records, in order; the key's unnamed value is none. */
QStringList recordedNames(const QString &group);
