// SPDX-License-Identifier: GPL-3.0-or-later
// What a rehearsal changes in the process that runs it: its environment variables, and what opens files and pages for
// its window.

#pragma once

#include <QMap>
#include <QObject>
#include <QUrl>

class Machine;

/**
 * Sets the variables in every spelling that is asked for, since names have a case on some systems, and takes away what
 * an earlier call has set. To be called before the first thread.
 */
void enterEnvironment(const QMap<QString, QString> &variables);

/**
 * The handler of file and web addresses for QDesktopServices, as long as it lives: registry scripts open, as with the
 * registry editor on Windows, and nothing else.
 */
class ScriptOpener final : public QObject
{
    Q_OBJECT

public:
    ScriptOpener(Machine &machine, bool elevated);
    ~ScriptOpener() override;

    /** Imports a .reg file, if elevated; all else is ignored, since no program of the host is to open it. */
    Q_INVOKABLE void open(const QUrl &address);

private:
    Machine &machine_;
    bool elevated_;
};
