// SPDX-License-Identifier: GPL-3.0-or-later
// The window's beginning and end.

#include "kestrune.h"

#include "contrast.h"
#include "elevation.h"
#include "work/settings.h"
#include "work/windowsname.h"

#include <QGuiApplication>
#include <QScreen>
#include <QScrollArea>
#include <QTimer>

using namespace Qt::StringLiterals;

Kestrune::Kestrune()
{
    setVisible(false);
    QTimer::singleShot(0, this, &Kestrune::StartAsAdmin);
    ui.setupUi(this);
    growForm();
    fitToScreen(screen()->availableSize());
    for (const Columns &columns : listColumns()) {
        QTableWidget *table = columns.table;
        table->viewport()->installEventFilter(this);
        table->installEventFilter(this);
        table->setItemDelegate(new ListDelegate(table));
        // The whole row has the frame, and the list itself draws two cells anew.
        connect(table->selectionModel(), &QItemSelectionModel::currentRowChanged, table->viewport(),
                qOverload<>(&QWidget::update));
    }
    makeShortcuts();
    QCoreApplication::instance()->installEventFilter(new TitleBarTheme(this));
    // The box's own delegate leaves a row's colour to the style sheet.
    ui.cbOptionsTheme->setItemDelegate(new QStyledItemDelegate(this));
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
    connect(workThread, &QThread::started, this, &Kestrune::showWhetherBusy);
    connect(workThread, &QThread::finished, this, &Kestrune::showWhetherBusy);
    connect(workThread, &QThread::finished, this, &Kestrune::tellFailure);
    makeWinSxsWorker();
    workThreadMonitor = new WorkThread(this);
    connect(workThreadMonitor, &WorkThread::valueChanged, this, &Kestrune::onWorkThreadValueMonitor);
}

void Kestrune::showWhetherBusy()
{
    // A job may have been started since the last one has said that it is over.
    if (workThread->isRunning())
        setCursor(Qt::BusyCursor);
    else
        unsetCursor();
}

void Kestrune::fitToScreen(const QSize &available)
{
    const QSize form = minimumSize();
    const QSize room = available - QSize(0, style()->pixelMetric(QStyle::PM_TitleBarHeight));
    if (room.width() >= form.width() && room.height() >= form.height())
        return;
    // The page keeps the size that it has in the form, and scrolls.
    const QMargins margins = ui.gridLayout_2->contentsMargins();
    const int besides = ui.wgtStatus->minimumHeight() + ui.gridLayout_2->verticalSpacing();
    ui.tabWidget->setMinimumSize(form.shrunkBy(margins).shrunkBy({ui.wgtLeftMenu->minimumWidth(), besides, 0, 0}));
    auto *area = new QScrollArea;
    area->setObjectName(u"pageArea"_s);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    delete ui.gridLayout_2->replaceWidget(ui.tabWidget, area);
    area->setWidget(ui.tabWidget);
    setMinimumSize(form.boundedTo(room));
    resize(minimumSize());
    if (room.width() >= form.width())
        return;
    // The status ends in dots, when the strip is as wide as the window.
    ui.lblStatus->setMinimumWidth(0);
    ui.gridLayout_2->setColumnStretch(0, 1);
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
