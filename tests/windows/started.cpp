// SPDX-License-Identifier: GPL-3.0-or-later
// Writes down with which rights it was started, and with which arguments, under its own name; then it stays for a
// while.

#include "platform/windows/processtoken.h"
#include "windows/standin/standinkeys.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSettings>
#include <QThread>

int main(int argc, char **argv)
{
    constexpr unsigned long aWhile = 3000; // milliseconds

    const QCoreApplication application(argc, argv);
    {
        QSettings started(startedPrograms, QSettings::NativeFormat);
        const QString rights = isElevatedProcess() ? QStringLiteral("elevated") : QStringLiteral("limited");
        const QString name = QFileInfo(QCoreApplication::applicationFilePath()).completeBaseName();
        started.setValue(name.toLower(), QStringList(rights) + QCoreApplication::arguments().sliced(1));
    }
    QThread::msleep(aWhile);
    return 0;
}
