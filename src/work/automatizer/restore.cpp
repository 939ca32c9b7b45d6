// SPDX-License-Identifier: GPL-3.0-or-later
// Restore: takes back what was recorded. No mirror of Optimize: what wasn't recorded stays, and some steps differ.

#include "automatizer.h"
#include "platform/platform.h"
#include "platform/windowsfacts.h"
#include "records.h"
#include "work/autorun/autorun.h"
#include "work/packages/packages.h"
#include "work/settings.h"
#include "work/statusline.h"
#include "work/tweaks/tweakcatalogue.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 taskOn = 2;

/** The key of a Run value's path, up to the first place where its name stands. */
QString runKey(const QString &path, const QString &name)
{
    return path.left(path.indexOf(u'\\' + name));
}

/** Where a record's Run value was. */
RunValue runValueOf(const QString &path, const QString &name)
{
    return hasPartedName(path) ? runValueAt(path) : RunValue{runKey(path, name), name};
}

/** Brings back what a record of the start-up names. False for a record that names nothing. */
bool bringBack(const QString &name, const QString &record)
{
    const QStringList parts = record.split(u'=');
    if (parts.size() < 2)
        return false;
    const QString &path = parts.at(1);
    if (path.isEmpty())
        enablePackagedTask(parts.first());
    else
        enableRunValue(runValueOf(path, name), parts.first());
    return true;
}

bool isSwitchedOn(const QString &task)
{
    return platform().registryValues(task).contains(
        RegistryValue{u"State"_s, RegistryType::DWord, registryDWord(taskOn)});
}

/** Whether a Run value is there; its command goes as far as records do. */
bool isThere(const RunValue &run, const QString &command)
{
    const QString name = registryName(run.name);
    const QList<RegistryValue> values = platform().registryValues(run.key);
    return std::any_of(values.cbegin(), values.cend(), [&](const RegistryValue &value) {
        return value.name.compare(name, Qt::CaseInsensitive) == 0 && textOf(value.data).section(u'=', 0, 0) == command;
    });
}

} // namespace

QStringList programsNotBroughtBack()
{
    const QStringList distrusted = distrustedRecords();
    const auto records = openRecords(u"Autorun"_s);
    QStringList missing;
    for (const QString &name : recordedNames(u"Autorun"_s)) {
        const QStringList parts = records->ownValue(name).toString().split(u'=');
        if (parts.size() < 2 || distrusted.contains(u"Autorun\\"_s + name))
            continue;
        if (!(parts.at(1).isEmpty() ? isSwitchedOn(parts.first())
                                    : isThere(runValueOf(parts.at(1), name), parts.first())))
            missing.append(name);
    }
    return missing;
}

void Automatizer::restore()
{
    if (!worker_.servicesToChange.isEmpty())
        restoreServices();
    if (!worker_.tasksToChange.isEmpty())
        restoreTasks();
    if (worker_.automatizerProgram != 0) {
        restoreAutoruns();
        restorePackages();
    }
    if (worker_.automatizerTweak != 0) {
        // restoreRunning stays set, and what follows counts as a Restore until the program ends.
        restoreTweaks();
        clearOptimizeBegun();
        return;
    }
    clearOptimizeBegun();
    report(StatusLine::restoredWithoutTweaks);
    worker_.restoreRunning = 0;
}

void Automatizer::restoreServices()
{
    // Not what was there before Optimize, and not a text as that was.
    constexpr int timeout = 2000;

    platform().openKey(WindowsKey::control)->setValue(u"WaitToKillServiceTimeout"_s, timeout);
    reportPhase(WorkThread::tr("Services"));
    reportMaximum(worker_.servicesToChange.size());
    worker_.SvcStopOrStart(worker_.servicesToChange, true);
    reportBreak();
}

void Automatizer::restoreTasks()
{
    reportPhase(WorkThread::tr("Tasks"));
    reportMaximum(worker_.tasksToChange.size());
    worker_.TaskStopOrStart(worker_.tasksToChange);
    reportBreak();
}

void Automatizer::restoreAutoruns()
{
    const QStringList names = trustedAutoruns();
    // A single one stays off, without a word to the user.
    if (names.size() < 2) {
        for (const QString &name : names)
            LogError(u"restoreAutoruns: "_s + name + u" isn't brought back"_s);
        return;
    }
    reportPhase(WorkThread::tr("Autorun"));
    reportMaximum(names.size());
    reportStep(0);
    const auto records = openRecords(u"Autorun"_s);
    int counter = 1;
    for (const QString &name : names) {
        // Also reported of one that can't be brought back.
        if (bringBack(name, records->ownValue(name).toString()))
            report(WorkThread::tr("Autorun program: enable %1 done").replace(u"%1"_s, shownAutorun(name)));
        reportStep(counter);
        ++counter;
    }
    reportStep(names.size());
    reportBreak();
}

void Automatizer::restorePackages()
{
    QList<PackageRow> &packages = worker_.packagesToChange;
    packages.clear();
    for (const QString &name : trustedPackages())
        packages.append({recordedPackage(name), {}, u""_s});
    if (packages.isEmpty())
        return;
    reportPhase(WorkThread::tr("Windows applications"));
    reportStep(0);
    reportMaximum(packages.size());
    worker_.PackageSetState(packages, true);
    reportBreak();
}

void Automatizer::restoreTweaks()
{
    reportPhase(WorkThread::tr("Features"));
    reportMaximum(3);
    reportStep(0);
    report(WorkThread::tr("Features: reset SSD optimizations"));
    restoreGroup(worker_, &WorkThread::TweakSSD, 9);
    reportStep(1);
    report(WorkThread::tr("Features: reset Gaming optimizations"));
    restoreGroup(worker_, &WorkThread::TweakGaming, 13);
    reportStep(2);
    report(WorkThread::tr("Features: reset Windows optimizations"));
    restoreGroup(worker_, &WorkThread::TweakWindows, 10);
    reportStep(3);
    report(StatusLine::tweaksDone);
}
