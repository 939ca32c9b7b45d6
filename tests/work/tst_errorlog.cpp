// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of the error log.

#include "joblines.h"
#include "support/suite.h"
#include "support/testmachine.h"
#include "work/settings.h"

#include <QDate>
#include <QDir>
#include <QRegularExpression>
#include <QTest>
#include <QThread>

#include <filesystem>

using namespace Qt::StringLiterals;

namespace {

QString logFile(const TestMachine &machine)
{
    return machine.platform().programFolder() + u"/log.txt"_s;
}

QByteArray logBytes(const TestMachine &machine)
{
    QFile file(logFile(machine));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestErrorLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thereIsNoFileUnlessTheSettingIs1_data();
    void thereIsNoFileUnlessTheSettingIs1();
    void aLineHasDateTimeAndMessage();
    void theMessageIsWrittenAsUtf8();
    void linesAreAppendedToWhatIsThere();
    void switchingItOffStopsTheLines();
    void aLogThatCantBeWrittenIsPassedOverInSilence();
    void lineIsAddedToNoLink_data();
    void lineIsAddedToNoLink();
    void twoThreadsAtOnceGiveWholeLines();
};

void TestErrorLog::thereIsNoFileUnlessTheSettingIs1_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("no value") << QVariant();
    QTest::newRow("0") << QVariant(0);
    QTest::newRow("2") << QVariant(2);
    QTest::newRow("-1") << QVariant(-1);
    QTest::newRow("a text") << QVariant(u"yes"_s);
}

void TestErrorLog::thereIsNoFileUnlessTheSettingIs1()
{
    QFETCH(const QVariant, value);
    TestMachine machine;
    if (value.isValid())
        machine.write(settingsKey, u"LogError"_s, value);
    LogError(u"something"_s);
    QVERIFY(!QFile::exists(logFile(machine)));
}

void TestErrorLog::aLineHasDateTimeAndMessage()
{
    LoggingMachine machine;
    const QString before = QDate::currentDate().toString(Qt::TextDate);
    LogError(u"SvcMakeList: something went wrong"_s);
    const QString after = QDate::currentDate().toString(Qt::TextDate);
#ifdef Q_OS_WIN
    const QString lineEnd = u"\r\n"_s;
#else
    const QString lineEnd = u"\n"_s;
#endif
    const QString text = QString::fromUtf8(logBytes(machine));
    const QRegularExpression form(u"^(.+) - \\d\\d:\\d\\d:\\d\\d: SvcMakeList: something went wrong"_s + lineEnd
                                      + u"$"_s,
                                  QRegularExpression::DontCaptureOption);
    QVERIFY2(form.match(text).hasMatch(), qPrintable(text));
    QVERIFY(text.endsWith(lineEnd));
    QCOMPARE(text.count(u'\n'), 1);
    QVERIFY(text.startsWith(before + u" - "_s) || text.startsWith(after + u" - "_s));
}

void TestErrorLog::theMessageIsWrittenAsUtf8()
{
    LoggingMachine machine;
    LogError(u"Dienst „Überprüfung“ 服务"_s);
    QVERIFY(logBytes(machine).contains("Dienst „Überprüfung“ 服务"));
}

void TestErrorLog::linesAreAppendedToWhatIsThere()
{
    LoggingMachine machine;
    QFile file(logFile(machine));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("Mon Jan 5 2026 - 10:00:00: from before\n");
    file.close();
    LogError(u"first"_s);
    LogError(u"second"_s);
    QVERIFY(logBytes(machine).startsWith("Mon Jan 5 2026 - 10:00:00: from before\n"));
    QCOMPARE(machine.errorLog(), (QStringList{u"from before"_s, u"first"_s, u"second"_s}));
}

void TestErrorLog::switchingItOffStopsTheLines()
{
    LoggingMachine machine;
    LogError(u"first"_s);
    machine.write(settingsKey, u"LogError"_s, 0);
    LogError(u"second"_s);
    QCOMPARE(machine.errorLog(), QStringList{u"first"_s});
}

void TestErrorLog::aLogThatCantBeWrittenIsPassedOverInSilence()
{
    LoggingMachine machine;
    machine.add({.name = u"Spooler"_s, .description = u"@nodll.dll,-1"_s});
    machine.addFile(u"C:\\Windows\\System32\\nodll.dll"_s);
    QVERIFY(QDir().mkpath(logFile(machine)));

    WorkThread worker;
    JobLines lines(worker);
    QVERIFY(runJob(worker, 0));
    QCOMPARE(lines.all(), QStringList{u"page: WorkThread::SvcMakeList"_s});
    QCOMPARE(worker.services.size(), 1);
    QCOMPARE(worker.services.at(0).description, u"no description"_s);
    QVERIFY(QDir(logFile(machine)).isEmpty());
}

void TestErrorLog::lineIsAddedToNoLink_data()
{
    QTest::addColumn<bool>("hard");
    QTest::newRow("to a file") << false;
    QTest::newRow("a second name") << true;
}

void TestErrorLog::lineIsAddedToNoLink()
{
    QFETCH(const bool, hard);
    TestMachine machine;
    machine.logErrors();
    const QString hosts = machine.addFile(u"C:\\Windows\\System32\\drivers\\etc\\hosts"_s, "of the system");
    const std::filesystem::path target = hosts.toStdU16String();
    const std::filesystem::path link = logFile(machine).toStdU16String();
    std::error_code error;
    hard ? std::filesystem::create_hard_link(target, link, error)
         : std::filesystem::create_symlink(target, link, error);
    if (error)
        QSKIP("this system makes no such links");
    LogError(u"a message"_s);
    QFile file(hosts);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("of the system"));
}

void TestErrorLog::twoThreadsAtOnceGiveWholeLines()
{
    constexpr int each = 200;
    LoggingMachine machine;
    const auto writer = [](const QString &name) {
        return QThread::create([name] {
            for (int i = 0; i < each; ++i)
                LogError(name + QString::number(i) + u' ' + QString(300, u'x') + u" end"_s);
        });
    };
    const std::unique_ptr<QThread> one(writer(u"one "_s));
    const std::unique_ptr<QThread> two(writer(u"two "_s));
    one->start();
    two->start();
    QVERIFY(one->wait(60000));
    QVERIFY(two->wait(60000));

    const QStringList lines = machine.errorLog();
    QCOMPARE(lines.size(), 2 * each);
    for (int i = 0; i < each; ++i) {
        for (const QString &name : {u"one "_s, u"two "_s})
            QVERIFY(lines.contains(name + QString::number(i) + u' ' + QString(300, u'x') + u" end"_s));
    }
}

KESTRUNE_SUITE(TestErrorLog)
#include "tst_errorlog.moc"
