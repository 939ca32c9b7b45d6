// SPDX-License-Identifier: GPL-3.0-or-later
// The Packages page: packaged applications that can go, and those that this program has taken away. The texts of its
// buttons tell which it shows.

#include "kestrune.h"

#include "elevation.h"
#include "rowtext.h"
#include "work/automatizer/records.h"
#include "work/packages/packages.h"
#include "work/settings.h"

using namespace Qt::StringLiterals;

void Kestrune::showPackagesPage()
{
    // In the view of uninstalled packages these two are hidden.
    ui.tblPackages->setColumnWidth(1, grown(200));
    ui.tblPackages->setColumnWidth(2, grown(400));
    growColumns();
    ui.btnPackagesUninst->setText(tr("Uninstall packages"));
    ui.btnPackagesViewDisabled->setText(tr("View uninstalled packages"));
    ui.tblPackages->setRowCount(0);
    workThread->startJob(JobPackageGetList);
}

void Kestrune::fillPackageTable()
{
    addPackageRows(workThread->packages);
    ui.lblStatus->setText(countText(tr("Packages installed:"), ui.tblPackages->rowCount()) + summarySeparator
                          + countText(tr("uninstalled:"), recordedNames(u"Packages"_s).size()) + u"  "_s);
}

void Kestrune::onPackageJobLine(const QString &line)
{
    recordPackageLine(line, workThread->packageInstall);
    ui.lblStatus->setText(line + u"  "_s);
}

void Kestrune::addPackageRows(const QList<PackageRow> &packages)
{
    const bool uninstalledView = ui.btnPackagesViewDisabled->text() == tr("View installed packages");
    int index = appendRows(ui.tblPackages, packages.size());
    for (const PackageRow &row : packages) {
        const QString texts[] = {row.name, row.displayName, row.comment};
        for (int column = 2; column >= 0; --column) {
            QTableWidgetItem *item = newCell(ui.tblPackages, column, texts[column]);
            if (column == 0)
                item->setCheckState(uninstalledView ? Qt::Unchecked : Qt::Checked);
            ui.tblPackages->setItem(index, column, item);
        }
        ++index;
    }
}

void Kestrune::on_btnPackagesUninst_clicked()
{
    if (workThread->isRunning() || !workThread->packageJobIdle)
        return;
    QList<PackageRow> checked;
    for (const QTableWidgetItem *item : firstCells(ui.tblPackages)) {
        if (item->checkState() == Qt::Checked)
            checked.append({recordedPackage(item->text()), QString(), ui.tblPackages->item(item->row(), 2)->text()});
    }
    workThread->packagesToChange.clear();
    if (checked.isEmpty())
        return;
    if (!mayChange(this))
        return;
    workThread->packagesToChange = checked;
    workThread->packageInstall = ui.btnPackagesUninst->text() == tr("Install packages");
    // Before the start: the job's own true must be the last word.
    workThread->packageJobIdle = false;
    workThread->startJob(JobPackageSetState);
}

void Kestrune::on_btnPackagesViewDisabled_clicked()
{
    if (workThread->isRunning())
        return;
    ui.tblPackages->setRowCount(0);
    if (ui.btnPackagesViewDisabled->text() != tr("View uninstalled packages")) {
        ui.btnPackagesViewDisabled->setText(tr("View uninstalled packages"));
        ui.btnPackagesUninst->setText(tr("Uninstall packages"));
        showPage(4);
        return;
    }
    ui.btnPackagesViewDisabled->setText(tr("View installed packages"));
    ui.btnPackagesUninst->setText(tr("Install packages"));
    ui.tblPackages->setColumnWidth(1, 0);
    ui.tblPackages->setColumnWidth(2, 0);
    growColumns();
    QList<PackageRow> uninstalled;
    for (const QString &name : trustedPackages())
        uninstalled.append({name, QString(), QString()});
    addPackageRows(uninstalled);
    ui.lblStatus->setText(countText(tr("Packages uninstalled:"), ui.tblPackages->rowCount()) + u"  "_s);
}
