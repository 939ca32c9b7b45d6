// SPDX-License-Identifier: GPL-3.0-or-later

#include "nativekey.h"

QVariant NativeKey::value(const QString &name, const QVariant &fallback) const
{
    // QSettings warns of an empty name.
    return name.isEmpty() ? QVariant() : settings_.value(name, fallback);
}
