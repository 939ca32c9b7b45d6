// SPDX-License-Identifier: GPL-3.0-or-later
// What opens the registry scripts of a rehearsal, as the registry editor does on Windows.

#pragma once

#include <QObject>
#include <QUrl>

class Machine;

/** The handler of file addresses for QDesktopServices, as long as it lives. */
class ScriptOpener final : public QObject
{
    Q_OBJECT

public:
    ScriptOpener(Machine &machine, bool elevated);
    ~ScriptOpener() override;

    /** Imports a .reg file, if elevated; any other file is ignored, since nothing of the host is to be opened. */
    Q_INVOKABLE void open(const QUrl &address);

private:
    Machine &machine_;
    bool elevated_;
};
