// SPDX-License-Identifier: GPL-3.0-or-later

#include "work/workthread.h"

void WorkThread::TweakSSD(quint8 apply, quint32 id)
{
    Q_UNUSED(apply)
    Q_UNUSED(id)
}
