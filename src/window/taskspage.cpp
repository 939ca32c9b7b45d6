// SPDX-License-Identifier: GPL-3.0-or-later
// The Tasks page: the scheduled tasks that are switched on.

#include "kestrune.h"

#include "elevation.h"
#include "messagebox.h"
#include "rowtext.h"
#include "work/settings.h"
#include "work/statusline.h"
#include "work/tasks/tasks.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString nameOfTask(const QString &path)
{
    return path.sliced(path.lastIndexOf(u'\\') + 1);
}

TaskRow taskToChange(const QString &path, int disabled)
{
    return {path, QString(), nameOfTask(path), QString(), disabled};
}

} // namespace

void Kestrune::showTasksPage()
{
    ui.tblTasks->setSortingEnabled(false);
    if (!isProcessElevated()) {
        const auto answer = ask({.text = tr("You should launch this app with Admin rights!") + u"\r\n"_s
                                         + tr("Otherwise some scheduled tasks will not be detected!"),
                                 .informativeText = tr("Do you want to start this app with Admin rights?")});
        // The listing goes on in either case; this instance may have a moment left.
        if (answer == QMessageBox::Yes)
            moveToElevatedInstance(this);
    }
    workThread->tasks.clear();
    ui.tblTasks->setRowCount(0);
    taskEnabledCount = taskDisabledCount = 0;
    workThread->startJob(JobTaskMakeList);
}

void Kestrune::fillTaskTable()
{
    ui.tblTasks->setSortingEnabled(true);
    // Sorting is put off until all rows are in: thousands of them would each be moved to their place.
    QHeaderView *header = ui.tblTasks->horizontalHeader();
    const int section = header->sortIndicatorSection();
    const Qt::SortOrder order = header->sortIndicatorOrder();
    header->setSortIndicator(-1, order);
    const QList<TaskRow> &tasks = workThread->tasks;
    const qsizetype enabled = std::ranges::count(tasks, 0, &TaskRow::disabled);
    taskEnabledCount += static_cast<int>(enabled);
    taskDisabledCount += static_cast<int>(tasks.size() - enabled);
    int index = appendRows(ui.tblTasks, enabled);
    for (const TaskRow &row : tasks) {
        if (row.disabled == 0)
            setTaskRow(index++, row);
    }
    header->setSortIndicator(section, order);
    ui.lblStatus->setText(countText(tr("Tasks:"), workThread->tasks.size()) + summarySeparator
                          + countText(tr("enabled:"), taskEnabledCount) + summarySeparator
                          + countText(tr("disabled:", "tasks"), taskDisabledCount) + u"  "_s);
}

void Kestrune::setTaskRow(int index, const TaskRow &row)
{
    QTableWidgetItem *path = newCell(ui.tblTasks, 0, row.path);
    path->setToolTip(rowToolTip(row.path, row.description));
    path->setCheckState(Qt::Unchecked);
    QTableWidgetItem *description = newCell(ui.tblTasks, 1, row.description);
    description->setToolTip(wrappedText(row.description));
    ui.tblTasks->setItem(index, 0, path);
    ui.tblTasks->setItem(index, 1, description);
}

void Kestrune::onTaskJobLine(const QString &line)
{
    if (const auto steps = StatusLine::maximumOf(line))
        ui.pgrBar->setMaximum(steps->toInt());
    if (!StatusLine::isProgress(line)) {
        ui.lblStatus->setText(line);
        return;
    }
    ui.pgrBar->show();
    if (const auto reached = StatusLine::stepOf(line))
        ui.pgrBar->setValue(reached->toInt());
    if (StatusLine::isEnd(line)) {
        ui.lblStatus->setText((workThread->taskRestoreMode ? tr("Restore scheduled tasks completed successfully")
                                                           : tr("Disable scheduled tasks completed successfully"))
                              + u"  "_s);
        waitForLastInstructions();
        refreshPage();
        workThread->taskRestoreMode = false;
    }
}

void Kestrune::on_btnTaskDisable_clicked()
{
    workThread->taskRestoreMode = false;
    disableCheckedTasks();
}

void Kestrune::disableCheckedTasks()
{
    if (workThread->isRunning())
        return;
    QList<TaskRow> checked;
    for (const QTableWidgetItem *item : firstCells(ui.tblTasks)) {
        if (item->checkState() == Qt::Checked)
            checked.append(taskToChange(item->text(), 1));
    }
    if (checked.isEmpty())
        return;
    if (!mayChange(this))
        return;
    workThread->tasksToChange = checked;
    workThread->startJob(JobTaskStopOrStart);
}

void Kestrune::on_btnTaskAssist_clicked()
{
    if (workThread->isRunning())
        return;
    workThread->taskRestoreMode = false;
    int count = 0;
    for (QTableWidgetItem *item : firstCells(ui.tblTasks)) {
        if (reasonsAgainstTask(*workThread, nameOfTask(nameFromToolTip(item->toolTip()))) == 0)
            continue;
        item->setCheckState(Qt::Checked);
        ++count;
    }
    if (count < 1) {
        ui.lblStatus->setText(tr("Assistant - no tasks to deactivate"));
        return;
    }
    if (!mayChange(this))
        return;
    // The default button asked for isn't in the box, so the style chooses one.
    const auto answer = ask({.text = tr("Disable scheduled tasks"),
                             .informativeText = tr("Are you sure to disable all checked tasks?"),
                             .defaultButton = QMessageBox::Cancel,
                             .plainNo = true});
    if (answer == QMessageBox::Yes)
        disableCheckedTasks();
}

void Kestrune::on_btnTaskRestore_clicked()
{
    if (workThread->isRunning())
        return;
    if (!mayChange(this))
        return;
    const auto answer =
        ask({.text = tr("Restoring scheduled tasks"),
             .informativeText = tr("Are you sure you want to restore the startup of all scheduled tasks?"),
             .buttons = QMessageBox::Yes | QMessageBox::Cancel,
             .defaultButton = QMessageBox::Cancel,
             .minimumWidth = 400});
    if (answer != QMessageBox::Yes)
        return;
    ui.lblStatus->setText(tr("Restoring scheduled tasks") + u"..."_s);
    workThread->tasksToChange.clear();
    for (const QString &path : recordedNames(u"Task"_s)) {
        if (!path.startsWith("Backup"_L1))
            workThread->tasksToChange.append(taskToChange(path, 0));
    }
    workThread->taskRestoreMode = true;
    workThread->startJob(JobTaskStopOrStart);
}
