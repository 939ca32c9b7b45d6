// SPDX-License-Identifier: GPL-3.0-or-later

#include "progress.h"

#include "console/console.h"
#include "console/printable.h"
#include "console/programinterruption.h"

#include <QDeadlineTimer>

#include <cstdio>

using namespace Qt::StringLiterals;

Progress::Progress(bool steered)
    : steered_(steered)
    , terminal_(!steered && errorsGoToTerminal())
{
}

Progress::~Progress()
{
    clear();
}

void Progress::show(const QString &step, int done, int total)
{
    stopIfInterrupted();
    say(step, done, total);
}

void Progress::say(const QString &step, int done, int total)
{
    constexpr qint64 interval = 50;

    if (!steered_ && !terminal_)
        return;
    // A terminal is slower than most steps.
    const qint64 now = QDeadlineTimer::current().deadline();
    if (shown_ && now - lastShown_ < interval)
        return;
    lastShown_ = now;
    write(step, done, total);
    shown_ = true;
}

void Progress::write(const QString &step, int done, int total)
{
    constexpr qsizetype width = 70;

    if (steered_) {
        std::fputs(u"%1\t%2\t%3\n"_s.arg(done).arg(total).arg(printable(step)).toUtf8().constData(), stderr);
        std::fflush(stderr);
        return;
    }
    const QString percent = total > 0 ? u"%1% "_s.arg(100 * done / total, 3) : QString();
    const QString line = percent + printable(step.size() > width ? u"…"_s + step.last(width - 1) : step);
    clear();
    std::fputs(line.toUtf8().constData(), stderr);
    std::fflush(stderr);
}

void Progress::clear()
{
    if (shown_ && terminal_)
        std::fputs("\r\033[K", stderr);
    shown_ = false;
}

ProgressCallback Progress::callback()
{
    return [this](const QString &step, int done, int total) { show(step, done, total); };
}
