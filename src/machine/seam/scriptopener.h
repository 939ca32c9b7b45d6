// SPDX-License-Identifier: GPL-3.0-or-later
// What opens files and pages for the window of a rehearsal.

#pragma once

#include <QObject>
#include <QUrl>

#include <memory>

class Machine;

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
    /** For MachineOptions::opener. */
    static std::shared_ptr<QObject> make(Machine &machine, bool elevated)
    {
        return std::make_shared<ScriptOpener>(machine, elevated);
    }

    Q_INVOKABLE void open(const QUrl &address);

private:
    Machine &machine_;
    bool elevated_;
};
