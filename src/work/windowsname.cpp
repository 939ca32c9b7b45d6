// SPDX-License-Identifier: GPL-3.0-or-later

#include "windowsname.h"

#include "platform/platform.h"
#include "platform/windowsfacts.h"
#include "workthread.h"

using namespace Qt::StringLiterals;

WindowsName readWindowsName()
{
    const auto key = platform().openKey(WindowsKey::currentVersion);
    WindowsName name;
    name.product = key->value(u"ProductName"_s, WorkThread::tr("unknown")).toString();
    name.build = key->value(u"CurrentBuild"_s, WorkThread::tr("unknown")).toString();
    if (name.product.contains(u"Windows 10"_s, Qt::CaseInsensitive) && name.build.toInt() >= firstBuildOfWindows11)
        name.product.replace(u"Windows 10"_s, u"Windows 11"_s, Qt::CaseInsensitive);
    return name;
}

void setWindowsName(WorkThread &worker)
{
    const WindowsName windows = readWindowsName();
    worker.winName = windows.product;
    worker.winBuild = windows.build;
}

bool isWindows10(const QString &product)
{
    return product.contains("10"_L1);
}

bool isWindows11(const QString &product)
{
    return product.contains("11"_L1);
}
