// SPDX-License-Identifier: GPL-3.0-or-later

#include "elevation.h"

#include "kestrune.h"
#include "messagebox.h"
#include "platform/platform.h"
#include "work/settings.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

bool isProcessElevated()
{
    return platform().isElevated();
}

void startElevatedInstance()
{
    platform().shellExecute({u"runas"_s, QCoreApplication::applicationFilePath(), QString()});
}

void moveToElevatedInstance(Kestrune *window)
{
    openSettings()->setValue(u"lastPage"_s, window->currentPage());
    startElevatedInstance();
    window->leave();
}

void showAdminRequiredDialog(Kestrune *window)
{
    const auto answer = ask({.text = Kestrune::tr("You must launch this app with Admin rights!"),
                             .informativeText = Kestrune::tr("Do you want to start this app with Admin rights?")});
    if (answer == QMessageBox::Yes)
        moveToElevatedInstance(window);
}

bool mayChange(Kestrune *window)
{
    const bool elevated = isProcessElevated();
    if (!elevated)
        showAdminRequiredDialog(window);
    return elevated;
}

std::shared_ptr<void> lockOthersOutOrTell()
{
    auto lock = platform().lockOthersOut();
    if (!lock)
        tell(Kestrune::tr("Another instance of the program is changing this PC. Try again when it has finished."));
    return lock;
}

void Kestrune::StartAsAdmin()
{
    // The Options page writes this value as "StartAsAdmin"; names in the registry don't mind case.
    if (openSettings()->value(u"startAsAdmin"_s, 0).toInt() == 1 && !isProcessElevated()) {
        left_ = true;
        QCoreApplication::exit(0);
        startElevatedInstance();
    }
    setVisible(true);
}
