// SPDX-License-Identifier: GPL-3.0-or-later
// A program as its user has it: started, seen, closed. The environment names it (KESTRUNE_TRIAL_PROGRAM) and where the
// picture of the screen goes (KESTRUNE_TRIAL_PICTURE).

#include "processwindow.h"
#include "support/suite.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QTest>

#include <windows.h>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 60000; // milliseconds

const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

QString trialProgram()
{
    return qEnvironmentVariable("KESTRUNE_TRIAL_PROGRAM");
}

/** Starts a program; gives the milliseconds until its window is there, or -1. */
qint64 startAndWait(QProcess &process, const QString &program)
{
    QElapsedTimer timer;
    timer.start();
    process.start(program, QStringList());
    while (windowOf(process) == nullptr) {
        if (timer.elapsed() > patience || process.state() == QProcess::NotRunning)
            return -1;
        QTest::qSleep(2);
        process.waitForReadyRead(0);
    }
    return timer.elapsed();
}

bool closeAndWait(QProcess &process)
{
    PostMessageW(windowOf(process), WM_CLOSE, 0, 0);
    return process.waitForFinished(patience);
}

struct ModuleCloser
{
    void operator()(HMODULE module) const { FreeLibrary(module); }
};
using Module = std::unique_ptr<std::remove_pointer_t<HMODULE>, ModuleCloser>;

QByteArray resource(const QString &program, int number, const wchar_t *type)
{
    const Module module(LoadLibraryExW(wide(program), nullptr, LOAD_LIBRARY_AS_DATAFILE));
    const HRSRC found = FindResourceW(module.get(), MAKEINTRESOURCEW(number), type);
    const HGLOBAL loaded = found != nullptr ? LoadResource(module.get(), found) : nullptr;
    if (loaded == nullptr)
        return {};
    return {static_cast<const char *>(LockResource(loaded)),
            static_cast<qsizetype>(SizeofResource(module.get(), found))};
}

} // namespace

class TestProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAProgramWithoutAConsole();
    void carriesVersionManifestAndIcon();
    void startsIsSeenAndEnds();
    void startTimeBesideNotepads();
};

void TestProgram::isAProgramWithoutAConsole()
{
    QFile file(trialProgram());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray head = file.read(1024);
    const auto number = [&head](qsizetype at) {
        return static_cast<unsigned char>(head.at(at)) | static_cast<unsigned char>(head.at(at + 1)) << 8;
    };
    // After the signature and the file's header the optional header's word at 68 is the subsystem.
    QCOMPARE(number(number(0x3c) + 24 + 68), 2);
}

void TestProgram::carriesVersionManifestAndIcon()
{
    const QByteArray version = resource(trialProgram(), 1, RT_VERSION);
    const QString text =
        QString::fromUtf16(reinterpret_cast<const char16_t *>(version.constData()), version.size() / 2);
    QVERIFY(text.contains("0.3.14"_L1) && text.contains("Kestrune"_L1));
    const QByteArray manifest = resource(trialProgram(), 1, RT_MANIFEST);
    for (const char *words : {"asInvoker", "PerMonitorV2", "longPathAware", "8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a",
                              "Microsoft.Windows.Common-Controls"})
        QVERIFY2(manifest.contains(words), words);
    QVERIFY(!manifest.contains("activeCodePage"));
    QVERIFY(!resource(trialProgram(), 1, RT_GROUP_ICON).isEmpty());
}

void TestProgram::startsIsSeenAndEnds()
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    QVERIFY(startAndWait(process, trialProgram()) >= 0);
    // The page it opens on fills itself meanwhile.
    QTest::qSleep(4000);
    const QString picture = qEnvironmentVariable("KESTRUNE_TRIAL_PICTURE");
    QVERIFY2(QGuiApplication::primaryScreen()->grabWindow(0).save(picture), qPrintable(picture));
    QVERIFY(closeAndWait(process));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    for (const QByteArray &line : process.readAll().split('\n')) {
        // Of Qt's own accord: a virtual display is no monitor.
        if (!line.contains("Unable to open monitor interface"))
            QCOMPARE(line.trimmed(), QByteArray());
    }
}

void TestProgram::startTimeBesideNotepads()
{
    for (const QString &program : {trialProgram(), u"C:\\Windows\\System32\\notepad.exe"_s}) {
        QList<qint64> times;
        for (int round = 0; round < 5; ++round) {
            QProcess process;
            times.append(startAndWait(process, program));
            QVERIFY(times.last() >= 0);
            QVERIFY(closeAndWait(process));
        }
        std::sort(times.begin(), times.end());
        // Told, not asserted: how fast is the computer's affair.
        qInfo("start until the window is there: %s: %lld ms", qPrintable(QFileInfo(program).fileName()), times.at(2));
    }
}

KESTRUNE_WINDOW_SUITE(TestProgram)
#include "tst_program.moc"
