// SPDX-License-Identifier: GPL-3.0-or-later

#include "realjournal.h"

#include "machine/machineerror.h"
#include "platform/windows/adminfolder.h"
#include "platform/windows/processtoken.h"
#include "platform/windows/windowssystem.h"
#include "programrecords.h"
#include "takeback.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

/** Anybody can make a folder of that name first. */
std::shared_ptr<void> holdJournalFolder(const QString &folder, QStringList &told)
{
    std::shared_ptr<void> hold = holdAdminFolder(folder);
    if (!hold) {
        told.append(foreignText(folder, putAside(folder, u"foreign"_s)));
        hold = holdAdminFolder(folder);
    }
    if (!hold)
        throw MachineError{u"%1: can't be made for administrators alone"_s.arg(folder)};
    return hold;
}

std::unique_ptr<Journal> journalWith(JournalOptions options)
{
    auto system = std::make_unique<WindowsSystem>();
    options.keptDays = keptDays(*system);
    return std::make_unique<Journal>(std::make_unique<WindowsPlatform>(), std::move(system), std::move(options));
}

} // namespace

QString realJournalFolder()
{
    const QString programData = programDataFolder();
    return programData.isEmpty() ? QString() : programData + u"\\Kestrune"_s;
}

std::unique_ptr<Journal> openRealJournal(const QString &folder)
{
    JournalOptions options;
    options.user = sidOfUser();
    options.version = QCoreApplication::applicationVersion();
    options.ownPlace = placeInProgram;
    options.afterSession = keepWayBack;
    options.isForeign = isForeign;
    try {
        if (options.user.isEmpty())
            throw MachineError{u"Windows doesn't say who runs the program"_s};
        if (folder.isEmpty())
            throw MachineError{u"Windows has no folder for the data of programs"_s};
        options.userKey = u"HKEY_USERS\\"_s + options.user;
        options.sharesPolicies = arePoliciesShared();
        options.hold = holdJournalFolder(folder, options.putAside);
        options.file = folder + u"\\changes.sqlite"_s;
        return journalWith(options);
    } catch (const MachineError &error) {
        options.shut = error.message;
        return journalWith(options);
    }
}

std::unique_ptr<Platform> openRealPlatform()
{
    if (!isElevatedProcess())
        return std::make_unique<WindowsPlatform>();
    return openRealJournal(realJournalFolder());
}
