// SPDX-License-Identifier: GPL-3.0-or-later

#include "work/workthread.h"

void WorkThread::MonitorSystem() {}
