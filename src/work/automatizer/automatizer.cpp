// SPDX-License-Identifier: GPL-3.0-or-later

#include "automatizer.h"

#include "work/services/services.h"
#include "work/statusline.h"
#include "work/tasks/tasks.h"

void Automatizer::reportFinding(int &count, const QString &line)
{
    ++count;
    report(line);
}

void Automatizer::reportPhase(const QString &name)
{
    report(StatusLine::phase(name));
}

void Automatizer::reportMaximum(qsizetype steps)
{
    report(StatusLine::maximum(steps));
}

void Automatizer::reportStep(qsizetype step)
{
    report(StatusLine::step(step));
}

// Not beside the rest of the class: the families, whose catalogues it takes in, know the class.
WorkThread::WorkThread(QObject *parent)
    : QThread(parent)
    , nonVitalServices(nonVitalServiceNames())
    , nonVitalTasks(nonVitalTaskNames())
{
}

void WorkThread::AutomatizerAnalyze()
{
    Automatizer(*this).analyze();
}

void WorkThread::AutomatizerOptimize()
{
    Automatizer(*this).optimize();
}

void WorkThread::AutomatizerRestore()
{
    Automatizer(*this).restore();
}
