// SPDX-License-Identifier: GPL-3.0-or-later
// The Features page: the boxes of the tweaks, and the button that puts what the user touched in force.

#include "kestrune.h"

#include "elevation.h"
#include "messagebox.h"
#include "platform/platform.h"
#include "rowtext.h"
#include "work/knowledge.h"
#include "work/settings.h"
#include "work/tweaks/tweakcatalogue.h"
#include "work/windowsname.h"
#include "work/wmi.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

QString homeDrive()
{
    return qEnvironmentVariable("homedrive");
}

/** Cuts a decimal number after its first decimal; one without decimals stays. */
QString withOneDecimal(const QString &number)
{
    const qsizetype point = number.indexOf(u'.');
    return point < 0 ? number : number.left(point + 2);
}

} // namespace

void Kestrune::showFeaturesPage()
{
    if (isWindows10(workThread->winName)) {
        for (const TweakBox &box : tweakBoxes()) {
            if (box.check == When::Windows11)
                checkBoxOf(box)->setEnabled(false);
        }
        ui.chkWindows10->setText(ui.chkWindows10->text().replace("SearchHost.exe"_L1, "SearchApp.exe"_L1));
    }
    explainTweaks();
    // In this order: the first showing marks nothing. A later one finds the marks connected, so that from then on all
    // boxes stored as checked count as touched.
    loadTweakState();
    connectTweakMarks();
    if (openSettings()->value(u"GetWinSxsSize"_s, 1).toInt() != 0)
        workThreadWinSxs->startJob(JobWinSxsSize);
    showHibernationGain();
}

/** Tool tips with what is known of each option, before anybody clicks. */
void Kestrune::explainTweaks()
{
    for (const TweakBox &box : tweakBoxes())
        explain(checkBoxOf(box), tr(knowledgeOf(box.name).tip.toUtf8().constData()));
}

void Kestrune::showHibernationGain()
{
    constexpr double gibibytesPerByte = 1.0 / (1024.0 * 1024.0 * 1024.0);

    const QString file = platform().hostPath(qEnvironmentVariable("systemdrive") + u"\\hiberfil.sys"_s);
    if (!QFileInfo::exists(file))
        return;
    const QString gain = QString::number(static_cast<double>(platform().fileSize(file)) * gibibytesPerByte, 'g', 6);
    ui.chkSsd7->setText(tr("Disable hibernation mode  (gain %1 GB of storage space)").arg(withOneDecimal(gain)));
}

QCheckBox *Kestrune::checkBoxOf(const TweakBox &box) const
{
    return ui.scrollArea->findChild<QCheckBox *>(box.name);
}

void Kestrune::loadTweakState()
{
    const TweakState stored = storedTweaks();
    for (const TweakBox &box : tweakBoxes()) {
        QCheckBox *check = checkBoxOf(box);
        // By way of unchecked, which is a change for the marks.
        check->setChecked(false);
        check->setChecked(stored.boxes.value(box.name));
    }
    ui.cbWin32PrioritySeparation->setCurrentIndex(stored.priorityIndex);
}

void Kestrune::saveTweakState() const
{
    TweakState state;
    for (const TweakBox &box : tweakBoxes())
        state.boxes.insert(box.name, checkBoxOf(box)->isChecked());
    state.priorityIndex = ui.cbWin32PrioritySeparation->currentIndex();
    storeTweaks(state);
}

void Kestrune::connectTweakMarks()
{
    for (const TweakBox &box : tweakBoxes())
        connect(checkBoxOf(box), &QCheckBox::toggled, this, &Kestrune::markTweak, Qt::UniqueConnection);
    connect(ui.cbWin32PrioritySeparation, &QComboBox::currentIndexChanged, this,
            &Kestrune::oncbWin32PrioritySeparationIndexChanged, Qt::UniqueConnection);
}

void Kestrune::markTweak()
{
    touchedBoxes.insert(qobject_cast<QCheckBox *>(sender()));
}

void Kestrune::oncbWin32PrioritySeparationIndexChanged()
{
    touchedBoxes.insert(ui.chkGaming11);
}

void Kestrune::on_btnTweakApply_clicked()
{
    if (workThread->isRunning())
        return;
    if (!mayChange(this) || !lockOthersOut())
        return;
    workThread->win32PrioritySeparationIndex = ui.cbWin32PrioritySeparation->currentIndex();
    applyTouchedTweaks();
    QString summary = tr("Apply features finished successfully.");
    if (workThread->needReboot == 1)
        summary += u' ' + tr("Need reboot!");
    ui.lblStatus->setText(summary);
    if (touchedBoxes.contains(ui.chkSsd8))
        offerAttributeWalk();
    // Also where the walk was refused or is still under way: the page is the only memory there is.
    saveTweakState();
    workThread->needReboot = 0;
    if (!workThread->isRunning())
        letOthersIn();
    tellFailure();
}

void Kestrune::applyTouchedTweaks()
{
    const ChangeSession session(u"Apply features"_s);
    for (const TweakBox &box : tweakBoxes()) {
        const QCheckBox *check = checkBoxOf(box);
        if (touchedBoxes.contains(check) && holds(box.apply, *workThread))
            (workThread->*box.tweak)(check->isChecked() ? 1 : 0, box.id);
    }
}

void Kestrune::offerAttributeWalk()
{
    const auto answer =
        ask({.text = tr("Would you like to apply option to set indexing attributes of all files in Windows partition?"),
             .defaultButton = QMessageBox::No});
    if (answer != QMessageBox::Yes)
        return;
    const bool remove = ui.chkSsd8->isChecked();
    const QString text = remove ? tr("Remove indexing attribute of Windows partition %1")
                                : tr("Add indexing attribute of Windows partition %1");
    ui.pgrBar->show();
    ui.pgrBar->setMaximum(0); // busy: nobody knows how many files there are
    ui.lblStatus->setText(text.arg(homeDrive()));
    workThread->startJob(remove ? JobTweakApply : JobTweakReset);
}

void Kestrune::onAttributeWalkEnd()
{
    const bool removed = workThread->job == JobTweakApply;
    const QString text =
        removed ? tr("Remove indexing attribute of %1 finished") : tr("Add indexing attribute of %1 finished");
    ui.pgrBar->show();
    ui.pgrBar->setMaximum(100);
    ui.pgrBar->setValue(100);
    ui.lblStatus->setText(text.arg(homeDrive()));
    if (removed && workThread->optimizeRunning == 1)
        workThread->optimizeRunning = 0;
    letOthersIn();
}

void Kestrune::on_btnSsd8_clicked()
{
    if (!mayChange(this))
        return;
    platform().shellExecute({u"open"_s, qEnvironmentVariable("windir") + u"\\System32\\cmd.exe"_s,
                             u"/k dism /online /Cleanup-Image /StartComponentCleanup"_s});
}

void Kestrune::onWorkThreadValueWinSxs(const QString &line)
{
    if (workThreadWinSxs->job != JobWinSxsSize)
        return;
    if (line.endsWith("..."_L1) || line.endsWith(u'!'))
        ui.lblStatus->setText(line);
    else if (line.isEmpty())
        ui.lblStatus->clear();
    else if (const QString size = withOneDecimal(line); line.contains(u'.') && size != "0.0"_L1)
        ui.btnSsd8->setText(tr("Clean WinSxS folder with Microsoft DISM tool  (current size: %1 GB)").arg(size));
}

void Kestrune::lookAtGraphicsCard()
{
    // The tweak is for cards of AMD. Where WMI names no card at all the box stays within reach.
    const auto adapter = firstDisplayAdapter();
    if (adapter && !adapter->contains("AMD"_L1, Qt::CaseInsensitive))
        ui.chkGaming14->setEnabled(false);
}
