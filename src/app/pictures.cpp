// SPDX-License-Identifier: GPL-3.0-or-later

#include "pictures.h"

#include "console/programinterruption.h"
#include "platform/processground.h"
#include "window/kestrune.h"

#include <QApplication>
#include <QDialog>

using namespace Qt::StringLiterals;

namespace {

constexpr int cannotWrite = 1;
constexpr int badArguments = 2;

bool isIdle(const Kestrune &window)
{
    const auto workers = window.findChildren<QThread *>();
    return std::none_of(workers.begin(), workers.end(), [](const QThread *worker) { return worker->isRunning(); });
}

/** Ends what is under way where the program is broken off, and throws. */
void endIfInterrupted(const Kestrune &window)
{
    if (!isInterrupted())
        return;
    for (QThread *worker : window.findChildren<QThread *>()) {
        worker->requestInterruption();
        worker->wait();
    }
    stopIfInterrupted();
}

/** A moment for what is under way. */
void pass(const Kestrune &window, unsigned long milliseconds)
{
    endIfInterrupted(window);
    QThread::msleep(milliseconds);
    QCoreApplication::processEvents();
}

/** Lets the page's job come to its end, and its last lines arrive. */
void settle(const Kestrune &window)
{
    constexpr int patience = 60000;
    for (int waited = 0; waited < patience && !isIdle(window); waited += 20)
        pass(window, 20);
    for (int round = 0; round < 10; ++round)
        pass(window, 10);
}

/** Shows "PAGE" or "PAGE:BUTTON"; false where the window has no such button. */
bool show(Kestrune &window, const QString &what)
{
    window.showPage(what.section(u':', 0, 0).toInt());
    settle(window);
    const QString name = what.section(u':', 1);
    if (name.isEmpty())
        return true;
    auto *button = window.findChild<QPushButton *>(name);
    if (button == nullptr)
        return false;
    button->click();
    settle(window);
    return true;
}

/** Saves the dialog that a button has opened, and closes it; without one, the window. */
bool save(Kestrune &window, const QString &file)
{
    auto *dialog = window.findChild<QDialog *>();
    if (dialog == nullptr)
        return window.grab().save(file);
    const bool saved = dialog->grab().save(file);
    delete dialog;
    return saved;
}

/** Saves what the arguments name, in pairs of page and file. */
int savePictures(Kestrune &window, const QStringList &pairs)
{
    for (qsizetype i = 0; i < pairs.size(); i += 2) {
        if (!show(window, pairs.at(i))) {
            qCritical("kestrune: %s: there is no such button", qUtf8Printable(pairs.at(i)));
            return badArguments;
        }
        if (!save(window, absolutePath(pairs.at(i + 1)))) {
            qCritical("kestrune: %s: can't be written", qUtf8Printable(pairs.at(i + 1)));
            return cannotWrite;
        }
    }
    return 0;
}

} // namespace

int takePictures(const QStringList &pairs)
{
    if (pairs.isEmpty() || pairs.size() % 2 != 0) {
        qCritical("Usage: kestrune --pictures PAGE[:BUTTON] FILE [PAGE[:BUTTON] FILE]...");
        return badArguments;
    }
    watchForInterruption();
    try {
        Kestrune window;
        window.setAttribute(Qt::WA_DontShowOnScreen);
        window.screenName = rehearsalScreen;
        window.show();
        settle(window);
        return savePictures(window, pairs);
    } catch (const Interrupted &interrupted) {
        return interrupted.exitCode;
    }
}
