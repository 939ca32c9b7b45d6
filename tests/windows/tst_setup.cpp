// SPDX-License-Identifier: GPL-3.0-or-later
// The installer as its user clicks through it. The environment names it (KESTRUNE_TRIAL_SETUP); what tells that it was
// started stands in for the desktop's program.

#include "processwindow.h"
#include "support/suite.h"
#include "windows/standin/standinkeys.h"

#include <QApplication>
#include <QProcess>
#include <QSettings>
#include <QTest>

using namespace Qt::StringLiterals;

class TestSetup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lastPageHasTheDesktopStartTheProgram();
};

void TestSetup::lastPageHasTheDesktopStartTheProgram()
{
    constexpr int patience = 120000; // milliseconds
    constexpr int next = 1;          // and "Install" and "Finish", by the number of the button

    QSettings started(startedPrograms, QSettings::NativeFormat);
    started.remove(QString());
    QProcess setup;
    setup.start(qEnvironmentVariable("KESTRUNE_TRIAL_SETUP"), {u"/CurrentUser"_s});
    const bool ended = QTest::qWaitFor(
        [&setup] {
            const HWND button = GetDlgItem(windowOf(setup), next);
            if (button != nullptr && IsWindowEnabled(button))
                PostMessageW(GetParent(button), WM_COMMAND, MAKEWPARAM(next, BN_CLICKED),
                             reinterpret_cast<LPARAM>(button));
            return setup.waitForFinished(500);
        },
        patience);
    setup.kill();
    setup.waitForFinished();
    QVERIFY(ended);
    QCOMPARE(setup.exitCode(), 0);

    const QSettings installed(u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Kestrune"_s,
                              QSettings::NativeFormat);
    const QString program = installed.value(u"InstallLocation"_s).toString() + u"\\kestrune.exe"_s;
    QTRY_COMPARE_WITH_TIMEOUT(started.value(u"explorer"_s).toStringList().mid(1), QStringList{program}, patience);
}

KESTRUNE_WINDOW_SUITE(TestSetup)
#include "tst_setup.moc"
