// SPDX-License-Identifier: GPL-3.0-or-later
// Disabling and enabling services.

#include "platform/platform.h"
#include "platform/windowsfacts.h"
#include "work/command.h"
#include "work/interruption.h"
#include "work/settings.h"
#include "work/statusline.h"
#include "work/windowsname.h"
#include "work/workthread.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int errorAlreadyRunning = 1056;

/** How services are changed in one run, which differs by the generation of Windows. */
struct ChangePolicy
{
    bool onWindows10; ///< the registry is written, sc is left alone
    bool noStartStop; ///< start modes change, services go on as they are
    int settleDelay;  ///< milliseconds after each step
};

ChangePolicy policyFor(const QString &winName)
{
    const bool onWindows10 = isWindows10(winName);
    const bool wished = openSettings()->value(u"DoNotStartOrStopSvc"_s, 0).toInt() != 0;
    return {onWindows10, onWindows10 || wished, onWindows10 ? 1020 : 300};
}

/** One service, with the one command object that its steps share: its exit code is that of the last step by sc. */
class ServiceChange
{
public:
    ServiceChange(const QString &name, const ChangePolicy &policy)
        : name_(name)
        , policy_(policy)
    {
    }

    void disable()
    {
        if (!policy_.noStartStop) {
            run({u"stop"_s, name_});
            settle();
        }
        setStartMode(StartDisabled, u"start=disabled"_s);
        // Before the pause: nothing would remember the service if the run ended there.
        if (exitCode() == 0)
            record(u"SVC"_s, name_, 1);
        settle();
    }

    void enable()
    {
        setStartMode(StartAutomatic, u"start=auto"_s);
        settle();
        if (!policy_.noStartStop) {
            run({u"start"_s, name_});
            settle();
        }
        openRecords(u"SVC"_s)->remove(name_);
    }

    /** 0 also where no command was needed: a write to the registry counts as done. */
    int exitCode() const { return sc_.exitCode(); }

private:
    void run(const QStringList &arguments)
    {
        sc_.start(u"sc"_s, arguments);
        sc_.waitForFinished();
    }

    void settle() { pauseFor(policy_.settleDelay); }

    void setStartMode(StartMode start, const QString &argument)
    {
        // Windows 10 guards the key of this one service; sc gets through.
        if (!policy_.onWindows10 || name_ == "TrkWks"_L1) {
            run({u"config"_s, name_, argument});
            return;
        }
        platform().openKey(WindowsKey::services + u'\\' + name_)->setValue(u"Start"_s, start);
    }

    QString name_;
    ChangePolicy policy_;
    Command sc_;
};

/** The Automatizer's line for a service, with "%1" for its name. */
QString outcomeText(bool onWindows10, bool enable, bool failed)
{
    const auto outcome = [failed](const QString &what) {
        return what + u' ' + (failed ? WorkThread::tr("error") : WorkThread::tr("done"));
    };
    if (!enable)
        return outcome(onWindows10 ? WorkThread::tr("Service: disable %1")
                                   : WorkThread::tr("Service: disable and stop %1"));
    if (failed)
        return outcome(onWindows10 ? WorkThread::tr("Service: enable %1")
                                   : WorkThread::tr("Service: enable and start %1"));
    return onWindows10 ? WorkThread::tr("Service: enable %1 done")
                       : WorkThread::tr("Service: enable and start %1 done");
}

} // namespace

int WorkThread::SvcStopOrStart(QStringList list, bool enable)
{
    list.sort(Qt::CaseInsensitive);
    const bool forAutomatizer = optimizeRunning != 0 || restoreRunning != 0;
    if (!forAutomatizer)
        report(StatusLine::maximum(list.size()));
    const ChangePolicy policy = policyFor(winName);

    servicesRefused.clear();
    int counter = 1;
    for (const QString &name : list) {
        ServiceChange change(name, policy);
        enable ? change.enable() : change.disable();
        const int exitCode = change.exitCode();

        const QString progress = StatusLine::step(counter);
        if (!forAutomatizer && analyzeRunning == 0) {
            report(progress);
            report(name);
        }
        if (forAutomatizer) {
            QString message = exitCode == errorAlreadyRunning ? tr("Service: enable and start %1, already running!")
                                                              : outcomeText(policy.onWindows10, enable, exitCode != 0);
            reportToAutomatizer(message.replace(u"%1"_s, name));
            reportToAutomatizer(progress);
        }
        if (exitCode != 0) {
            // One that runs is what it was asked to be.
            if (exitCode != errorAlreadyRunning)
                servicesRefused.append(name);
            LogError(u"SvcStopOrStart: "_s + name + u", sc process error! exit code : "_s + QString::number(exitCode));
        }
        ++counter;
    }
    report(StatusLine::servicesChanged);
    return 0;
}
