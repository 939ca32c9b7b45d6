// SPDX-License-Identifier: GPL-3.0-or-later
// What the lines of Analyze, Optimize and Restore mean: log, status and bar, and what closes each of the three.

#include "kestrune.h"

#include "messagebox.h"
#include "rowtext.h"
#include "work/automatizer/automatizer.h"
#include "work/statusline.h"
#include "work/tweaks/tweakcatalogue.h"
#include "work/windowsname.h"

#include <QScrollBar>
#include <QTextCursor>

using namespace Qt::StringLiterals;

namespace {

QString withHomeDrive(QString text)
{
    return text.replace(u"%1"_s, qEnvironmentVariable("homedrive"));
}

/** How many tweaks Optimize would apply. Told, not counted: the tables of the tweaks don't enter here. */
QString improvementCount(bool onWindows10, bool onBattery)
{
    if (onBattery)
        return onWindows10 ? u"27"_s : u"29"_s;
    return onWindows10 ? u"30"_s : u"32"_s;
}

} // namespace

void Kestrune::onAutomatizerValueChanged(const QString &line)
{
    if (line == StatusLine::tweaksDone) {
        closeTweaks();
    } else if (StatusLine::isProgress(line)) {
        onAutomatizerProgressLine(line);
    } else if (line == StatusLine::analyzed) {
        closeAnalyze();
    } else if (line == StatusLine::optimizedWithoutTweaks) {
        fillBar();
        appendToLog(QString());
        logAndShow(tr("Optimization finished"));
        letOthersIn();
    } else if (line == StatusLine::restoredWithoutTweaks) {
        closeRestore();
        fillBar();
        appendToLog(QString());
        logAndShow(tr("Restoration finished: Restart your PC!"));
        letOthersIn();
    } else if (line == StatusLine::attributesSetByOptimize) {
        closeAttributeWalk();
    } else {
        appendToLog(line);
    }
}

void Kestrune::onAutomatizerProgressLine(const QString &line)
{
    ui.pgrBar->show();
    // What is no number is the head of a phase, which stands after "Optimize" during Restore too.
    if (const auto steps = StatusLine::maximumOf(line))
        ui.pgrBar->setMaximum(steps->toInt());
    else if (const auto reached = StatusLine::stepOf(line))
        ui.pgrBar->setValue(reached->toInt());
    else
        ui.lblStatus->setText(tr("Optimize") + u" : "_s + StatusLine::phaseOf(line));
}

void Kestrune::closeAnalyze()
{
    if (hasFindings())
        logImprovements();
    else
        appendToLog(tr("No optimizations found!"));
    fillBar();
    ui.lblStatus->setText(countText(tr("Services:"), workThread->analyzeServiceCount) + summarySeparator
                          + countText(tr("Tasks:"), workThread->analyzeTaskCount) + summarySeparator
                          + countText(tr("Packages:"), workThread->analyzePackageCount) + summarySeparator
                          + countText(tr("Autorun:"), workThread->analyzeAutorunCount));
}

void Kestrune::logImprovements()
{
    const bool onBattery = workThread->hasBattery();
    if (onBattery)
        appendToLog(tr("Features: Battery detected! Some optimizations will not be applied to maintain battery life"));
    if (ui.chkAutomatizerTweak->isChecked()) {
        QString text = tr("Features: %1 improvements can be applied");
        appendToLog(text.replace(u"%1"_s, improvementCount(isWindows10(workThread->winName), onBattery)));
    }
}

void Kestrune::closeTweaks()
{
    recordTweaksOfAutomatizer(*workThread, ui.cbWin32PrioritySeparation->currentIndex());
    // After a Restore as well, though a Yes puts this tweak in force.
    const auto answer = ask({.text = tr("Would you like to apply option for set indexing attributes of all files in "
                                        "Windows partition?"),
                             .defaultButton = QMessageBox::No});
    if (answer == QMessageBox::Yes)
        startAttributeWalk();
    else
        closeWithoutAttributeWalk();
}

void Kestrune::startAttributeWalk()
{
    waitForLastInstructions();
    workThread->startJob(JobTweakApply);
    ui.pgrBar->show();
    ui.pgrBar->setMaximum(0);
    const QString text = withHomeDrive(tr("Remove indexing attribute of %1"));
    ui.lblStatus->setText(text);
    appendToLog(tr("Features") + u": "_s + text);
}

void Kestrune::closeWithoutAttributeWalk()
{
    workThread->optimizeRunning = 0;
    fillBar();
    logAndShow(tr("Features: applied successfully. Restart your PC!"));
    appendToLog(QString());
    logAndShow(workThread->restoreRunning == 1 ? tr("Restoration finished") : tr("Optimization finished"));
    letOthersIn();
}

void Kestrune::closeAttributeWalk()
{
    const QString text = withHomeDrive(tr("Remove indexing attribute of %1 finished"));
    ui.pgrBar->show();
    fillBar();
    ui.lblStatus->setText(text);
    if (workThread->optimizeRunning == 1) {
        workThread->optimizeRunning = 0;
        appendToLog(tr("Features") + u": "_s + text);
        appendToLog(tr("Features: applied successfully. Restart your PC!"));
        appendToLog(QString());
        logAndShow(tr("Optimization finished"));
    }
    // Takes the place of what was just set, and lacks the log's colon.
    if (workThread->restoreRunning == 0)
        ui.lblStatus->setText(tr("Features applied successfully. Restart your PC!"));
    letOthersIn();
}

void Kestrune::appendToLog(const QString &line)
{
    QTextBrowser *log = ui.txtAutomatizer;
    QScrollBar *bar = log->verticalScrollBar();
    const bool followsTheEnd = bar->value() >= bar->maximum();
    QTextCursor end(log->document());
    end.movePosition(QTextCursor::End);
    if (!log->document()->isEmpty())
        end.insertBlock();
    end.insertText(line);
    if (followsTheEnd)
        bar->setValue(bar->maximum());
}

void Kestrune::fillBar()
{
    constexpr int full = 100;
    ui.pgrBar->setMaximum(full);
    ui.pgrBar->setValue(full);
}

void Kestrune::logAndShow(const QString &text)
{
    appendToLog(text);
    ui.lblStatus->setText(text);
}
