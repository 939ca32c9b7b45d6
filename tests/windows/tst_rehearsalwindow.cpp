// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse gui: the window opens on a rehearsal machine, is seen, and is closed.

#include "machine/source/machinesource.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <windows.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 60000; // milliseconds

struct HandleCloser
{
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using Handle = std::unique_ptr<std::remove_pointer_t<HANDLE>, HandleCloser>;

/** "kestrune-rehearsal.exe" */
QString programOf(HWND window)
{
    DWORD processId = 0;
    GetWindowThreadProcessId(window, &processId);
    const Handle process(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, processId));
    wchar_t path[MAX_PATH] = {};
    DWORD length = MAX_PATH;
    if (!process || !QueryFullProcessImageNameW(process.get(), 0, path, &length))
        return {};
    return QFileInfo(QString::fromWCharArray(path, int(length)).replace(u'\\', u'/')).fileName();
}

BOOL CALLBACK lookAtWindow(HWND window, LPARAM parameter)
{
    if (!IsWindowVisible(window) || GetWindowTextLengthW(window) == 0
        || programOf(window) != "kestrune-rehearsal.exe"_L1)
        return TRUE;
    *reinterpret_cast<HWND *>(parameter) = window;
    return FALSE;
}

HWND rehearsalWindow()
{
    HWND found = nullptr;
    EnumWindows(lookAtWindow, reinterpret_cast<LPARAM>(&found));
    return found;
}

} // namespace

class TestRehearsalWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensOnTheMachineAndIsClosed();
};

void TestRehearsalWindow::opensOnTheMachineAndIsClosed()
{
    const QTemporaryDir folder;
    const QString programs = QCoreApplication::applicationDirPath();
    makeMachine(folder.filePath(u"pc"_s), programs + u"/machines/windows11"_s, Existing::Keep);
    QCOMPARE(rehearsalWindow(), nullptr);
    QProcess process;
    process.start(programs + u"/kestrune-rehearse.exe"_s, {u"gui"_s, folder.filePath(u"pc"_s)});
    QTRY_VERIFY_WITH_TIMEOUT(rehearsalWindow() != nullptr, patience);
    // As its pages do, it leaves its mark in the machine.
    QTRY_VERIFY_WITH_TIMEOUT(
        Machine::open(folder.filePath(u"pc"_s))->registry().find(u"HKEY_CURRENT_USER\\Software\\Kestrune\\Ondrevale"_s),
        patience);
    QCOMPARE(process.state(), QProcess::Running);
    QVERIFY(PostMessageW(rehearsalWindow(), WM_CLOSE, 0, 0));
    QVERIFY(process.waitForFinished(patience));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(process.readAllStandardOutput(), QByteArray());
    QCOMPARE(rehearsalWindow(), nullptr);
}

KESTRUNE_SUITE(TestRehearsalWindow)
#include "tst_rehearsalwindow.moc"
