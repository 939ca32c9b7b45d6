// SPDX-License-Identifier: GPL-3.0-or-later
// The Services page: the running services, and those that are disabled. The texts of its buttons tell which it shows.

#include "kestrune.h"

#include "elevation.h"
#include "messagebox.h"
#include "platform/platform.h"
#include "rowtext.h"
#include "work/automatizer/records.h"
#include "work/command.h"
#include "work/keepfeatures.h"
#include "work/services/services.h"
#include "work/settings.h"
#include "work/statusline.h"

#include <QDesktopServices>
#include <QFile>
#include <QSignalBlocker>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/** "Auto", "Manual" or "Disabled" in the user's language; empty for other start modes. */
QString startModeText(const ServiceRow &row)
{
    if (row.startsAs(StartAutomatic))
        return Kestrune::tr("Auto");
    if (row.startsAs(StartOnDemand))
        return Kestrune::tr("Manual");
    if (row.startsAs(StartDisabled))
        return Kestrune::tr("Disabled");
    return {};
}

/** Whether Windows needs the service, so that its row is greyed and can't be checked. */
bool isCriticalService(const ServiceRow &row)
{
    // 224 is a per-user service's instance, which can't be disabled by itself.
    return criticalServices.contains(row.name) || row.type == "224"_L1;
}

} // namespace

void Kestrune::showServicesPage()
{
    ui.tblSvc->setSortingEnabled(false);
    // Where the listing fails, no rows of the other view stay below these buttons.
    ui.tblSvc->setRowCount(0);
    ui.btnSvcViewDisabled->setText(tr("View disabled services"));
    ui.btnSvcDisable->setText(tr("DISABLE checked services"));
    svcDisabledCount = 0;
    workThread->startJob(JobSvcMakeList);
}

void Kestrune::setServiceView(bool disabledView)
{
    if (disabledView) {
        ui.btnSvcViewDisabled->setText(tr("View started services"));
        ui.btnSvcDisable->setText(tr("ENABLE checked services"));
        ui.label_3->setText(tr("Grayed out services refer to those disabled outside this tab"));
    } else {
        ui.btnSvcViewDisabled->setText(tr("View disabled services"));
        ui.btnSvcDisable->setText(tr("DISABLE checked services"));
        ui.label_3->setText(tr("Grayed out services are considered necessary or critical"));
    }
}

void Kestrune::onServiceJobLine(QString &line)
{
    const bool disabling = workThread->job == JobSvcDisable;
    // The prefix is cut off before the next look at the line, so a maximum doesn't show the bar, and a number stands in
    // the status until the name comes.
    if (const auto steps = StatusLine::maximumOf(line)) {
        line = *steps;
        ui.pgrBar->setMaximum(line.toInt());
    }
    if (StatusLine::isProgress(line))
        ui.pgrBar->show();
    if (const auto reached = StatusLine::stepOf(line)) {
        line = *reached;
        ui.pgrBar->setValue(line.toInt());
    }
    if (StatusLine::isProgress(line)) {
        if (StatusLine::isEnd(line)) {
            ui.lblStatus->setText(
                (disabling ? tr("Disable checked services finished") : tr("Enable checked services finished"))
                + u"  "_s);
            waitForLastInstructions();
            refreshPage();
        }
        return;
    }
    ui.lblStatus->setText((disabling ? tr("Stop service:") : tr("Start service:")) + u"  "_s + line);
}

void Kestrune::fillServiceTable()
{
    ui.tblSvc->setRowCount(0);
    svcDisabledCount = 0;
    const QList<ServiceRow> &services = workThread->services;
    svcStartedCount = static_cast<int>(std::ranges::count(services, true, &ServiceRow::running));
    svcStoppedCount = static_cast<int>(services.size()) - svcStartedCount;
    int index = appendRows(ui.tblSvc, svcStartedCount);
    for (const ServiceRow &row : services) {
        if (row.running)
            setServiceRow(index++, row, 0);
        if (row.startsAs(StartDisabled))
            ++svcDisabledCount;
    }
    ui.lblStatus->setText(countText(tr("Services:"), workThread->services.size()) + summarySeparator
                          + countText(tr("started:"), svcStartedCount) + summarySeparator
                          + countText(tr("stopped:"), svcStoppedCount) + summarySeparator
                          + countText(tr("disabled:"), svcDisabledCount) + u"  "_s);
}

void Kestrune::setServiceRow(int index, const ServiceRow &row, int greyed)
{
    const QString texts[] = {row.displayName.isEmpty() ? row.name : row.displayName, startModeText(row),
                             row.description};
    const QString toolTip = rowToolTip(row.name, row.description);
    const bool locked = greyed == 1 || isCriticalService(row);

    // The first cell comes last: where the table is sorted, it moves the row.
    for (int column = 2; column >= 0; --column) {
        QTableWidgetItem *item = newCell(ui.tblSvc, column, texts[column]);
        item->setToolTip(toolTip);
        if (locked) {
            item->setFlags(item->flags() & ~Qt::ItemIsEnabled);
            // Which otherwise only its colour tells.
            item->setData(Qt::AccessibleDescriptionRole, ui.label_3->text());
        }
        if (column == 0)
            item->setCheckState(Qt::Unchecked);
        ui.tblSvc->setItem(index, column, item);
    }
}

void Kestrune::on_btnSvcDisable_clicked()
{
    if (workThread->isRunning())
        return;
    QStringList names;
    for (const QTableWidgetItem *item : firstCells(ui.tblSvc)) {
        if (item->checkState() == Qt::Checked)
            names.append(nameFromToolTip(item->toolTip()));
    }
    if (names.isEmpty())
        return;
    if (!mayChange(this))
        return;
    workThread->servicesToChange = names;
    if (ui.btnSvcDisable->text() == tr("DISABLE checked services"))
        workThread->startJob(JobSvcDisable);
    else if (ui.btnSvcDisable->text() == tr("ENABLE checked services"))
        workThread->startJob(JobSvcEnable);
    else
        workThread->startJob(workThread->job);
}

void Kestrune::on_btnSvcAssist_clicked()
{
    if (ui.btnSvcDisable->text() == tr("ENABLE checked services"))
        return;
    addServicesOfFeaturesGivenUp(*workThread);
    int count = 0;
    for (QTableWidgetItem *item : firstCells(ui.tblSvc)) {
        const bool wanted = workThread->nonVitalServices.contains(nameFromToolTip(item->toolTip()), Qt::CaseInsensitive)
                            && ui.tblSvc->item(item->row(), 1)->toolTip() != "4"_L1;
        item->setCheckState(wanted ? Qt::Checked : Qt::Unchecked);
        count += wanted ? 1 : 0;
    }
    if (count < 1) {
        ui.lblStatus->setText(tr("Assistant - no services to deactivate"));
        return;
    }
    if (!mayChange(this))
        return;
    const auto answer = ask({.text = tr("Disable checked services"),
                             .informativeText = tr("Are you sure to disable all checked services?"),
                             .defaultButton = QMessageBox::No});
    if (answer == QMessageBox::Yes)
        on_btnSvcDisable_clicked();
}

void Kestrune::restoreRecordedServices()
{
    workThread->servicesToChange = trustedServices();
    workThread->startJob(JobSvcEnable);
}

void Kestrune::on_btnSvcRestore_clicked()
{
    if (workThread->isRunning())
        return;
    if (!mayChange(this))
        return;
    const QString backup = startModeBackupFile();
    if (!QFile::exists(backup)) {
        restoreRecordedServices();
        return;
    }
    const auto answer =
        ask({.text = tr("Backup file exists"),
             .informativeText = tr("Do you want to restore start mode option of all services?\r\n\r\nIf you click No "
                                   "(recommended),\r\nthen restore only the services you have disabled"),
             .buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
             .defaultButton = QMessageBox::No,
             .minimumWidth = 400});
    if (answer == QMessageBox::No)
        restoreRecordedServices();
    else if (answer == QMessageBox::Yes)
        QDesktopServices::openUrl(QUrl::fromLocalFile(backup));
    else
        return;
    ui.lblStatus->setText(tr("Restore services finished"));
}

void Kestrune::on_btnSvcViewDisabled_clicked()
{
    if (workThread->isRunning())
        return;
    ui.tblSvc->setRowCount(0);
    if (ui.btnSvcViewDisabled->text() != tr("View disabled services")) {
        setServiceView(false);
        showPage(1);
        return;
    }
    setServiceView(true);

    // Blocked, so that the rows don't jump while the table fills.
    const QSignalBlocker blocker(ui.tblSvc->horizontalHeader());
    ui.tblSvc->horizontalHeader()->setSortIndicator(0, Qt::AscendingOrder);
    const auto records = openRecords(u"SVC"_s);
    for (const ServiceRow &row : workThread->services) {
        if (records->value(row.name, 0).toInt() == 1)
            setServiceRow(appendRows(ui.tblSvc, 1), row, 0);
        else if (row.startsAs(StartDisabled))
            setServiceRow(appendRows(ui.tblSvc, 1), row, 1);
    }
}

void Kestrune::setServiceManualStart()
{
    setServiceStart(u"start=demand"_s);
}

void Kestrune::setServiceAutomaticStart()
{
    setServiceStart(u"start=auto"_s);
}

void Kestrune::setServiceStart(const QString &argument)
{
    if (!mayChange(this))
        return;
    QStringList names;
    for (const QTableWidgetItem *item : ui.tblSvc->selectedItems()) {
        if (item->toolTip().contains(u':'))
            names.append(nameFromToolTip(item->toolTip()));
    }
    {
        const ChangeSession session(u"Start of services"_s);
        for (const QString &name : names) {
            runTool(u"sc"_s, {u"config"_s, name, argument});
            refreshPage();
        }
    }
    tellFailure();
}
