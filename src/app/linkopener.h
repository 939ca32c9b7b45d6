// SPDX-License-Identifier: GPL-3.0-or-later
// What opens the links of an elevated program: nothing that they lead to gets its rights.

#pragma once

#include <QObject>
#include <QUrl>

/**
 * The handler of addresses for QDesktopServices, as long as it lives. They go to the desktop of the user, but for a
 * script of start modes, which the registry editor gets. Where there is no desktop nothing is opened.
 */
class LinkOpener final : public QObject
{
    Q_OBJECT

public:
    LinkOpener();
    ~LinkOpener() override;

    Q_INVOKABLE void open(const QUrl &address);
};
