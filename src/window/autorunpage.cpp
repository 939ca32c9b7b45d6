// SPDX-License-Identifier: GPL-3.0-or-later
// The page of programs started at logon: those that start, and those that this program has switched off. The texts of
// its buttons tell which it shows. All of it happens on the window's thread.

#include "kestrune.h"

#include "elevation.h"
#include "platform/platform.h"
#include "rowtext.h"
#include "work/automatizer/records.h"
#include "work/autorun/autorun.h"
#include "work/settings.h"

using namespace Qt::StringLiterals;

namespace {

/** What the first cell of a row keeps, which shows a part of it. */
enum Kept { Path = Qt::UserRole, RecordName };

void addRow(QTableWidget *table, const AutorunEntry &entry, const QString &recordName = {})
{
    const int index = table->rowCount();
    table->setRowCount(index + 1);
    QTableWidgetItem *first = newCell(table, 0, entry.name);
    first->setToolTip(plainToolTip(entry.path));
    first->setData(Path, entry.path);
    first->setData(RecordName, recordName);
    first->setCheckState(Qt::Checked);
    QTableWidgetItem *second = newCell(table, 1, entry.command);
    second->setToolTip(plainToolTip(entry.command));
    table->setItem(index, 0, first);
    table->setItem(index, 1, second);
}

} // namespace

void Kestrune::showAutorunPage()
{
    ui.btnAutorunViewDisabled->setText(tr("View programs disabled"));
    ui.btnAutorun->setText(tr("Disable checked programs"));
    workThread->AutorunGetList();
    fillAutorunTable();
    ui.lblStatus->setText(countText(tr("Autorun:"), workThread->autoruns.size()) + summarySeparator
                          + countText(tr("disabled:"), recordedNames(u"Autorun"_s).size()) + u"  "_s);
}

void Kestrune::fillAutorunTable()
{
    ui.tblAutorun->setRowCount(0);
    for (const AutorunRow &row : std::as_const(workThread->autoruns))
        addRow(ui.tblAutorun, shownAutorunEntry(row));
}

void Kestrune::on_btnAutorun_clicked()
{
    switchCheckedAutoruns();
    // Empties the status, so that what was written there isn't seen.
    showPage(3);
}

void Kestrune::switchCheckedAutoruns()
{
    if (workThread->isRunning())
        return;
    if (!mayChange(this))
        return;
    const bool disable = ui.btnAutorun->text() == tr("Disable checked programs");
    const ChangeSession session(disable ? u"Disable programs"_s : u"Enable programs"_s);
    // By the names of their records: one may have changed since it was shown.
    QMap<QString, QString> programs;
    if (!disable) {
        for (const QString &name : trustedAutoruns())
            programs.insert(name, recordedAutorun(name).path);
    }
    bool done = false;
    for (const QTableWidgetItem *item : firstCells(ui.tblAutorun)) {
        if (item->checkState() != Qt::Checked)
            continue;
        const AutorunEntry entry{item->text(), item->data(Path).toString(),
                                 ui.tblAutorun->item(item->row(), 1)->text()};
        // None in the view of what starts
        const QString recorded = item->data(RecordName).toString();
        if (disable) {
            disableAutorun(entry);
        } else if (recorded.isEmpty() || (programs.contains(recorded) && programs.value(recorded) == entry.path)) {
            enableAutorun(entry);
            // Also where it could not be brought back.
            openRecords(u"Autorun"_s)->removeOwnValue(recorded.isEmpty() ? runValueAt(entry.path).name : recorded);
        }
        done = true;
    }
    if (done)
        ui.lblStatus->setText(tr("Configure auto started programs done!") + u"  "_s);
    tellFailure();
}

void Kestrune::on_btnAutorunViewDisabled_clicked()
{
    if (workThread->isRunning())
        return;
    ui.tblAutorun->setRowCount(0);
    if (ui.btnAutorunViewDisabled->text() != tr("View programs disabled")) {
        showPage(3);
        return;
    }
    ui.btnAutorunViewDisabled->setText(tr("View auto started programs"));
    ui.btnAutorun->setText(tr("Enable checked programs"));
    for (const QString &name : recordedNames(u"Autorun"_s))
        addRow(ui.tblAutorun, recordedAutorun(name), name);
    ui.lblStatus->setText(countText(tr("Auto started programs disabled:"), ui.tblAutorun->rowCount()) + u"  "_s);
}
