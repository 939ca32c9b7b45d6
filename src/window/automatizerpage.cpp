// SPDX-License-Identifier: GPL-3.0-or-later
// The buttons of the Optimizer page: which of them may start its job when.

#include "kestrune.h"

#include "elevation.h"
#include "messagebox.h"
#include "work/automatizer/automatizer.h"

void Kestrune::takeAutomatizerBoxes()
{
    workThread->automatizerTweak = ui.chkAutomatizerTweak->isChecked() ? 1 : 0;
    workThread->automatizerProgram = ui.chkAutomatizerProgram->isChecked() ? 1 : 0;
}

bool Kestrune::hasFindings() const
{
    return workThread->analyzeServiceCount != 0 || workThread->analyzeTaskCount != 0
           || workThread->analyzePackageCount != 0 || workThread->analyzeAutorunCount != 0
           || workThread->analyzeProcessCount != 0;
}

void Kestrune::on_btnAutomatizerAnalyze_clicked()
{
    if (workThread->isRunning())
        return;
    if (!mayChange(this))
        return;
    takeAutomatizerBoxes();
    ui.txtAutomatizer->clear();
    if (workThread->analyzeRunning != 0 || workThread->optimizeRunning != 0)
        return;
    workThread->startJob(JobAutomatizerAnalyze);
}

void Kestrune::on_btnAutomatize_clicked()
{
    if (workThread->isRunning())
        return;
    // Also where nothing is started.
    takeAutomatizerBoxes();
    if (workThread->optimizeRunning != 0 || workThread->analyzeRunning != 0 || !hasFindings())
        return;
    if (!mayChange(this))
        return;
    if (!lockOthersOut())
        return;
    workThread->win32PrioritySeparationIndex = ui.cbWin32PrioritySeparation->currentIndex();
    ui.txtAutomatizer->clear();
    workThread->analyzeRunning = 0;
    workThread->startJob(JobAutomatizerOptimize);
}

void Kestrune::on_btnAutomatizerRestore_clicked()
{
    if (workThread->isRunning())
        return;
    takeAutomatizerBoxes();
    if (!mayChange(this))
        return;
    if (!canRestore()) {
        tell(tr("Cannot restore if you have not yet optimized!"));
        return;
    }
    const auto answer = ask({.text = tr("Are you sure you want to restore the original values?\r\nAll features, "
                                        "applications, services and tasks will be restored.")});
    if (answer != QMessageBox::Yes || !lockOthersOut())
        return;
    ui.txtAutomatizer->clear();
    fillRestoreLists(*workThread);
    workThread->taskRestoreMode = true;
    workThread->restoreRunning = 1;
    workThread->startJob(JobAutomatizerRestore);
}
