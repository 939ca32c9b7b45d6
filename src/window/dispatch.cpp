// SPDX-License-Identifier: GPL-3.0-or-later
// What the lines of the ordinary jobs mean, by the job that runs.

#include "kestrune.h"

using namespace Qt::StringLiterals;

void Kestrune::onWorkThreadValueChanged(const QString &text)
{
    QString line = text;
    switch (workThread->job) {
    case JobSvcMakeList:
        fillServiceTable();
        ui.tblSvc->setSortingEnabled(true);
        ui.tblSvc->sortByColumn(0, Qt::AscendingOrder);
        break;
    case JobTaskMakeList:
        fillTaskTable();
        break;
    case JobPackageGetList:
        fillPackageTable();
        break;
    case JobPackageSetState:
        onPackageJobLine(line);
        break;
    case JobTaskStopOrStart:
        onTaskJobLine(line);
        break;
    case JobSvcDisable:
    case JobSvcEnable:
        onServiceJobLine(line);
        break;
    case JobTweakApply:
    case JobTweakReset:
        onAttributeWalkEnd();
        break;
    case JobGetSystemInfo:
        onInfoJobLine(line);
        break;
    default:
        break;
    }
    if (line.startsWith("txt:"_L1))
        appendToLog(line);
}
