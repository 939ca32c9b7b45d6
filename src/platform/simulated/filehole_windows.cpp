// SPDX-License-Identifier: GPL-3.0-or-later

#include "filehole.h"

qint64 nextData(QFile &, qint64 offset)
{
    // What was never written costs no reading there.
    return offset;
}
