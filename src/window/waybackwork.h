// SPDX-License-Identifier: GPL-3.0-or-later
// What the way back does while its dialog stays responsive.

#pragma once

#include "journal/takeback.h"

#include <QThread>

/** A thread that looks what sessions have changed, takes it back, or writes files; its members are read afterwards. */
class WayBackWork final : public QThread
{
    Q_OBJECT

public:
    WayBackWork(const Journal &journal, QObject *parent)
        : QThread(parent)
        , journal_(journal)
    {
    }

    // Only while it isn't running.

    void look(const Selection &selection);
    void take(const Selection &selection);
    /** Writes the way back as files into a folder, which is made. */
    void save(const Selection &selection, const QString &folder);

    QList<TakenItem> items; ///< with their verdicts; empty where it has failed or was broken off
    WrittenWayBack written;
    QString failure; ///< why it has failed, or why some of it wasn't done; in English

Q_SIGNALS:
    /** Which thing is taken back next, from 0, and of how many. */
    void stepped(int step, int steps);

protected:
    void run() override;

private:
    void begin(const std::function<void()> &work);
    void takeSelection(const Selection &selection);

    const Journal &journal_;
    std::function<void()> work_;
};
