// SPDX-License-Identifier: GPL-3.0-or-later
// Saves a picture of one page of the window on a rehearsal machine:
// kestrune-picture DIR PAGE FILE [BUTTON] [--not-elevated]
// With a button's object name it is clicked first, and its job is waited for.

#include "platform/simulated/simulatedplatform.h"
#include "standinfonts.h"
#include "window/kestrune.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

bool isIdle(const Kestrune &window)
{
    const auto workers = window.findChildren<WorkThread *>();
    return std::none_of(workers.begin(), workers.end(), [](const WorkThread *worker) { return worker->isRunning(); });
}

/** Lets the page's job come to its end, and its last lines arrive. */
void settle(const Kestrune &window)
{
    constexpr int patience = 60000;
    for (int waited = 0; waited < patience && !isIdle(window); waited += 20) {
        QThread::msleep(20);
        QCoreApplication::processEvents();
    }
    for (int round = 0; round < 10; ++round) {
        QThread::msleep(10);
        QCoreApplication::processEvents();
    }
}

} // namespace

int main(int argc, char **argv)
{
    constexpr int badArguments = 2;
    constexpr int noMachine = 3;

    QApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().sliced(1);
    const bool elevated = !arguments.removeOne(u"--not-elevated"_s);
    if (arguments.size() != 3 && arguments.size() != 4) {
        qCritical("Usage: kestrune-picture DIR PAGE FILE [BUTTON] [--not-elevated]");
        return badArguments;
    }
    QCoreApplication::setApplicationVersion(u"0.3.14"_s);
    useStandInFonts();
    try {
        SimulatedOptions options;
        options.elevated = elevated;
        setPlatform(std::make_unique<SimulatedPlatform>(arguments.at(0), options));
    } catch (const MachineError &error) {
        qCritical("kestrune-picture: %s", qUtf8Printable(error.message));
        return noMachine;
    }
    Kestrune window;
    window.screenName = u"\\\\.\\DISPLAY1"_s; // as Windows calls it; the screen here has no name
    window.show();
    settle(window);
    window.showPage(arguments.at(1).toInt());
    settle(window);
    if (arguments.size() == 4) {
        auto *button = window.findChild<QPushButton *>(arguments.at(3));
        if (button == nullptr) {
            qCritical("kestrune-picture: the window has no button %s", qUtf8Printable(arguments.at(3)));
            return badArguments;
        }
        button->click();
        settle(window);
    }
    return window.grab().save(arguments.at(2)) ? 0 : 1;
}
