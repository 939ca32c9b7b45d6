// SPDX-License-Identifier: GPL-3.0-or-later
// The page of programs started at logon: those that start, and those that this program has switched off. The texts of
// its buttons tell which it shows. All of it happens on the window's thread.

#include "kestrune.h"

#include "elevation.h"
#include "rowtext.h"
#include "work/automatizer/records.h"
#include "work/autorun/autorun.h"
#include "work/settings.h"

using namespace Qt::StringLiterals;

namespace {

void addRow(QTableWidget *table, const QString &name, const QString &path, const QString &command)
{
    const int index = table->rowCount();
    table->setRowCount(index + 1);
    auto *first = new QTableWidgetItem(name);
    first->setToolTip(path);
    first->setCheckState(Qt::Checked);
    auto *second = new QTableWidgetItem(command);
    second->setToolTip(command);
    for (QTableWidgetItem *item : {first, second})
        item->setFlags(item->flags() & ~Qt::ItemIsEditable);
    table->setItem(index, 0, first);
    table->setItem(index, 1, second);
}

/** Rows and records have two parts; what follows a second "=" is dropped. */
struct Parts
{
    explicit Parts(const QString &text)
        : first(text.section(u'=', 0, 0))
        , second(text.section(u'=', 1, 1))
    {
    }
    QString first;
    QString second;
};

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
    for (const AutorunRow &row : std::as_const(workThread->autoruns)) {
        const Parts parts(row);
        addRow(ui.tblAutorun, parts.first.sliced(parts.first.lastIndexOf(u'\\') + 1), parts.first,
               parts.second.isEmpty() ? parts.first : parts.second);
    }
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
    const QStringList programs = disable ? QStringList() : trustedAutoruns();
    const QStringList records = recordedNames(u"Autorun"_s);
    bool done = false;
    for (const QTableWidgetItem *item : firstCells(ui.tblAutorun)) {
        if (item->checkState() != Qt::Checked)
            continue;
        const AutorunEntry entry{item->text(), item->toolTip(), ui.tblAutorun->item(item->row(), 1)->text()};
        if (disable) {
            disableAutorun(entry);
        } else if (programs.contains(entry.name) || !records.contains(entry.name)) {
            enableAutorun(entry);
            // Also where it could not be brought back.
            openRecords(u"Autorun"_s)->remove(entry.name);
        }
        done = true;
    }
    if (done)
        ui.lblStatus->setText(tr("Configure auto started programs done!") + u"  "_s);
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
    const auto records = openRecords(u"Autorun"_s);
    for (const QString &name : recordedNames(u"Autorun"_s)) {
        const Parts parts(records->value(name).toString());
        addRow(ui.tblAutorun, name, parts.second.isEmpty() ? parts.first : parts.second, parts.first);
    }
    ui.lblStatus->setText(countText(tr("Auto started programs disabled:"), ui.tblAutorun->rowCount()) + u"  "_s);
}
