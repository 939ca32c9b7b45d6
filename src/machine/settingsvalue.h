// SPDX-License-Identifier: GPL-3.0-or-later
// How QSettings' native format puts variants into registry values, and reads them back.

#pragma once

#include "registrystore.h"

#include <QVariant>

QVariant variantOf(const RegistryValue &value);
RegistryValue registryValueOf(const QString &name, const QVariant &value);
