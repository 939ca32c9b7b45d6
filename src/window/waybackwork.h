// SPDX-License-Identifier: GPL-3.0-or-later
// What the way back does while its dialog stays responsive.

#pragma once

#include "journal/takeback.h"

#include <QThread>

/** A thread that looks what sessions have changed, or takes it back; its members are read when it has finished. */
class WayBackWork final : public QThread
{
    Q_OBJECT

public:
    WayBackWork(const Journal &journal, QObject *parent)
        : QThread(parent)
        , journal_(journal)
    {
    }

    /** Looks, or takes back. Only while it isn't running. */
    void look(const Selection &selection);
    void take(const Selection &selection);

    QList<TakenItem> items; ///< with their verdicts; empty where it has failed or was broken off
    QString failure;        ///< why it has failed, or why some of it wasn't done; in English
    bool brokenOff = false;

Q_SIGNALS:
    /** Which thing is taken back next, from 0, and of how many. */
    void stepped(int step, int steps);

protected:
    void run() override;

private:
    void begin(const Selection &selection, bool takes);

    const Journal &journal_;
    Selection selection_;
    bool takes_ = false;
};
