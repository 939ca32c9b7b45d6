// SPDX-License-Identifier: GPL-3.0-or-later
// The window's beginning and end.

#include "kestrune.h"

#include "elevation.h"
#include "work/settings.h"
#include "work/windowsname.h"

#include <QGuiApplication>
#include <QTimer>

using namespace Qt::StringLiterals;

Kestrune::Kestrune()
{
    setVisible(false);
    QTimer::singleShot(0, this, &Kestrune::StartAsAdmin);
    ui.setupUi(this);
    makeWorkers();
    // A table's own default is descending.
    ui.tblTasks->horizontalHeader()->setSortIndicator(0, Qt::AscendingOrder);

    setWindowsName(*workThread);
    startPalette = QGuiApplication::palette();
    monitorTimer = new QTimer(this);

    applyPalette();
    startLanguage();

    // From here on a page may open a box, whose event loop may bring anything: all that is needed is set by now.
    const auto settings = openSettings();
    showPage(settings->value(u"lastPage"_s, 0).toInt());
    // The page may have moved the program to an elevated instance, which the value is for then.
    if (!left_) {
        settings->remove(u"lastPage"_s);
        if (settings->value(u"CheckUpdate"_s, 0).toInt() == 1)
            checkUpdate();
    }
    prepareMonitor();
    lookAtGraphicsCard();
}

Kestrune::~Kestrune()
{
    for (WorkThread *worker : {workThread, workThreadWinSxs, workThreadMonitor}) {
        // A thread that can't be ended is abandoned: deleting it would end the process the hard way.
        if (worker->isRunning() && !worker->endJob())
            worker->setParent(nullptr);
    }
}

void Kestrune::makeWorkers()
{
    workThread = new WorkThread(this);
    connect(workThread, &WorkThread::valueChanged, this, &Kestrune::onWorkThreadValueChanged);
    connect(workThread, &WorkThread::automatizerValueChanged, this, &Kestrune::onAutomatizerValueChanged);
    connect(workThread, &QThread::finished, this, &Kestrune::tellFailure);
    makeWinSxsWorker();
    workThreadMonitor = new WorkThread(this);
    connect(workThreadMonitor, &WorkThread::valueChanged, this, &Kestrune::onWorkThreadValueMonitor);
}

void Kestrune::makeWinSxsWorker()
{
    workThreadWinSxs = new WorkThread(this);
    connect(workThreadWinSxs, &WorkThread::valueChanged, this, &Kestrune::onWorkThreadValueWinSxs);
}

void Kestrune::endWinSxsCount()
{
    if (!workThreadWinSxs->isRunning() || workThreadWinSxs->endJob())
        return;
    connect(workThreadWinSxs, &QThread::finished, workThreadWinSxs, &QObject::deleteLater);
    workThreadWinSxs->setParent(nullptr);
    makeWinSxsWorker();
}

void Kestrune::waitForLastInstructions()
{
    constexpr int patience = 2000; // a busy computer takes its time
    workThread->wait(patience);
}

bool Kestrune::lockOthersOut()
{
    if (!othersLock)
        othersLock = lockOthersOutOrTell();
    return othersLock != nullptr;
}

void Kestrune::letOthersIn()
{
    waitForLastInstructions();
    othersLock.reset();
}

void Kestrune::leave()
{
    left_ = true;
    close();
}
