// SPDX-License-Identifier: GPL-3.0-or-later

#include "automatizer.h"

#include "work/statusline.h"

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
