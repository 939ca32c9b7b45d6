// SPDX-License-Identifier: GPL-3.0-or-later
// The seam's questions about hardware and load: what every platform answers alike, and a rehearsal machine's own part.

#include "contractplatform.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QSet>
#include <QTest>
#include <QThread>

using namespace Qt::StringLiterals;

class TestHardware : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aPathWithoutVolumeHasNoSeekPenalty_data();
    void aPathWithoutVolumeHasNoSeekPenalty();
    void seekPenaltyBelongsToTheVolume();
    void thereIsAScreen();
    void textsHaveTheirUsualSizeOrMore();
    void titleBarOfNoWindowIsNoHarm();
    void processorTimesNeverGoBack();
    void processIdsAreSingle();
    void processNamesAreProgramsWithoutTheirFolder();
    void threadsAreAtLeastOneForEachProcess();
    void someMemoryIsFree();
    void theRootDriveIsTheSystems();
    void anyThreadMayAsk();

#ifndef KESTRUNE_REAL_MACHINE
    void contrastThemeIsABitOfItsFlags_data();
    void contrastThemeIsABitOfItsFlags();
    void aMachineWithoutHardwareKnowsNothing();
    void seekPenalties_data();
    void seekPenalties();
    void processorTimesFollowTheScript();
    void eachProcessHasItsId();
    void processNamesKeepTheirOrderAndEndAtTheRoom();
    void hardwareIsSetPartByPart();
    void aDamagedDescriptionIsNone();
#endif

private:
    std::unique_ptr<ContractPlatform> contract_;
};

void TestHardware::init()
{
    contract_.reset(); // one at a time
    contract_ = std::make_unique<ContractPlatform>();
#ifndef KESTRUNE_REAL_MACHINE
    const QJsonObject step{{u"idle"_s, 90}, {u"kernel"_s, 95}, {u"user"_s, 5}};
    contract_->machine().setHardware({
        {u"volumes"_s, QJsonObject{{u"C:"_s, QJsonObject{{u"seekPenalty"_s, false}, {u"freeBytes"_s, 5000000000LL}}},
                                   {u"D:"_s, QJsonObject{{u"seekPenalty"_s, true}}}}},
        {u"screen"_s, QJsonObject{{u"width"_s, 1920}, {u"height"_s, 1080}, {u"colorSpace"_s, 12}}},
        {u"freeMemory"_s, 8000000000LL},
        {u"threads"_s, 40},
        {u"processorTimes"_s, QJsonArray{step}},
    });
    contract_->machine().setProcesses({u"System"_s, u"explorer.exe"_s});
#endif
}

void TestHardware::aPathWithoutVolumeHasNoSeekPenalty_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("empty") << QString();
    QTest::newRow("a drive that isn't there") << u"Q:\\Windows"_s;
    QTest::newRow("the root of one") << u"Q:\\"_s;
}

void TestHardware::aPathWithoutVolumeHasNoSeekPenalty()
{
    QFETCH(const QString, path);
    QCOMPARE(platform().seekPenalty(path), std::nullopt);
}

void TestHardware::seekPenaltyBelongsToTheVolume()
{
    const auto penalty = platform().seekPenalty(u"C:\\Windows"_s);
    QCOMPARE(platform().seekPenalty(u"C:\\"_s), penalty);
    QCOMPARE(platform().seekPenalty(u"c:\\WINDOWS\\System32"_s), penalty);
}

void TestHardware::thereIsAScreen()
{
    QVERIFY(platform().screenSize().width() > 0 && platform().screenSize().height() > 0);
    const auto space = platform().colorSpace();
    QVERIFY(space.value_or(0) >= 0);
    QCOMPARE(platform().colorSpace(), space);
}

void TestHardware::textsHaveTheirUsualSizeOrMore()
{
    const QString key = u"HKEY_CURRENT_USER\\Software\\Microsoft\\Accessibility"_s;
    const QString name = u"TextScaleFactor"_s;
    const auto before = contract_->readRaw(key, name);
    const auto scaleOf = [&](const RegistryValue &value) {
        contract_->writeRaw(key, value);
        return platform().textScale();
    };
    if (!before)
        QCOMPARE(platform().textScale(), 100);
    QCOMPARE(scaleOf({name, RegistryType::DWord, registryDWord(150)}), 150);
    QCOMPARE(scaleOf({name, RegistryType::DWord, registryDWord(99)}), 100);
    QCOMPARE(scaleOf({name, RegistryType::DWord, registryDWord(226)}), 225);
    QCOMPARE(scaleOf({name, RegistryType::DWord, registryDWord(0xffffffff)}), 100);
    QCOMPARE(scaleOf({name, RegistryType::String, registryText(u"150"_s)}), 100);
    scaleOf(before.value_or(RegistryValue{name, RegistryType::DWord, registryDWord(100)}));
}

void TestHardware::titleBarOfNoWindowIsNoHarm()
{
    // What it looks like can be seen on a real desktop only.
    platform().setTitleBarDark(0, true);
    platform().setTitleBarDark(0, false);
}

void TestHardware::processorTimesNeverGoBack()
{
    const ProcessorTimes first = platform().processorTimes();
    QThread::msleep(50);
    const ProcessorTimes second = platform().processorTimes();
    QVERIFY(second.idle >= first.idle && second.kernel >= first.kernel && second.user >= first.user);
    QVERIFY(second.kernel + second.user > 0);
}

void TestHardware::processIdsAreSingle()
{
    const QList<quint32> ids = platform().processIds();
    QVERIFY(ids.size() > 1 && ids.size() <= 1024);
    QCOMPARE(QSet<quint32>(ids.cbegin(), ids.cend()).size(), ids.size());
}

void TestHardware::processNamesAreProgramsWithoutTheirFolder()
{
    const QStringList names = platform().processNames();
    QVERIFY(!names.isEmpty() && names.size() <= 1024);
    for (const QString &name : names)
        QVERIFY2(!name.isEmpty() && !name.contains(u'\\') && !name.contains(u'/'), qPrintable(name));
#ifdef KESTRUNE_REAL_MACHINE
    QVERIFY(names.contains(QFileInfo(QCoreApplication::applicationFilePath()).fileName()));
#else
    QCOMPARE(names, (QStringList{u"System"_s, u"explorer.exe"_s}));
#endif
}

void TestHardware::threadsAreAtLeastOneForEachProcess()
{
    // Some processes may come or go between the two.
    constexpr qsizetype comings = 5;
    QVERIFY(platform().threadCount() > 0);
    QVERIFY(platform().threadCount() >= platform().processIds().size() - comings);
}

void TestHardware::someMemoryIsFree()
{
    constexpr quint64 petabyte = 1ULL << 50;
    QVERIFY(platform().freeMemory() > 1 << 20);
    QVERIFY(platform().freeMemory() < petabyte);
}

void TestHardware::theRootDriveIsTheSystems()
{
    const RootDrive drive = platform().rootDrive();
    QCOMPARE(drive.path, qEnvironmentVariable("SystemDrive", u"C:"_s) + u'/');
    QVERIFY(drive.freeBytes > 0);
    QCOMPARE(platform().rootDrive().path, drive.path);
}

void TestHardware::anyThreadMayAsk()
{
    QSize screen;
    std::optional<bool> penalty;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        screen = platform().screenSize();
        penalty = platform().seekPenalty(u"C:\\"_s);
        platform().colorSpace();
    }));
    thread->start();
    QVERIFY(thread->wait(20000));
    QCOMPARE(screen, platform().screenSize());
    QCOMPARE(penalty, platform().seekPenalty(u"C:\\"_s));
}

#ifndef KESTRUNE_REAL_MACHINE

void TestHardware::aMachineWithoutHardwareKnowsNothing()
{
    contract_.reset();
    contract_ = std::make_unique<ContractPlatform>();
    QCOMPARE(platform().seekPenalty(u"C:\\"_s), std::nullopt);
    QCOMPARE(platform().colorSpace(), std::nullopt);
    QCOMPARE(platform().screenSize(), QSize(0, 0));
    const ProcessorTimes times = platform().processorTimes();
    QVERIFY(times.idle == 0 && times.kernel == 0 && times.user == 0);
    QCOMPARE(platform().processIds(), QList<quint32>{0});
    QCOMPARE(platform().threadCount(), 0);
    QCOMPARE(platform().freeMemory(), 0ULL);
    QCOMPARE(platform().rootDrive().freeBytes, 0ULL);
}

void TestHardware::seekPenalties_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("penalty"); // -1: not known
    QTest::newRow("C") << u"C:\\Windows"_s << 0;
    QTest::newRow("D") << u"d:/Games"_s << 1;
    QTest::newRow("E") << u"E:\\"_s << -1;
    QTest::newRow("bare drive") << u"D:"_s << 1;
    QTest::newRow("without a drive") << u"\\Windows"_s << 0;
    QTest::newRow("share") << u"\\\\server\\share"_s << -1;
}

void TestHardware::seekPenalties()
{
    QFETCH(const QString, path);
    QFETCH(const int, penalty);
    const auto answer = platform().seekPenalty(path);
    QCOMPARE(answer ? int(*answer) : -1, penalty);
}

void TestHardware::processorTimesFollowTheScript()
{
    const auto step = [](int idle, int kernel, int user) {
        return QJsonObject{{u"idle"_s, idle}, {u"kernel"_s, kernel}, {u"user"_s, user}};
    };
    contract_->machine().setHardware({{u"processorTimes"_s, QJsonArray{step(1, 2, 3), step(10, 20, 30)}}});
    QStringList readings;
    for (int i = 0; i < 4; ++i) {
        const ProcessorTimes times = platform().processorTimes();
        readings << u"%1 %2 %3"_s.arg(times.idle).arg(times.kernel).arg(times.user);
    }
    QCOMPARE(readings, (QStringList{u"1 2 3"_s, u"11 22 33"_s, u"12 24 36"_s, u"22 44 66"_s}));
}

void TestHardware::processNamesKeepTheirOrderAndEndAtTheRoom()
{
    QStringList names{u"b.exe"_s, u"A.exe"_s, u"b.exe"_s};
    contract_->machine().setProcesses(names);
    QCOMPARE(platform().processNames(), names);
    for (int i = 0; i < 1100; ++i)
        names.append(u"p%1.exe"_s.arg(i));
    contract_->machine().setProcesses(names);
    QCOMPARE(platform().processNames(), names.first(1024));
}

void TestHardware::contrastThemeIsABitOfItsFlags_data()
{
    addColumns<QString, bool>("flags", "on");
    QTest::newRow("on") << u"127"_s << true;
    QTest::newRow("off") << u"126"_s << false;
    QTest::newRow("only on") << u"1"_s << true;
    QTest::newRow("no number") << u"yes"_s << false;
    QTest::newRow("nothing") << QString() << false;
}

void TestHardware::contrastThemeIsABitOfItsFlags()
{
    QFETCH(const QString, flags);
    QFETCH(const bool, on);
    const QString key = u"HKEY_CURRENT_USER\\Control Panel\\Accessibility\\HighContrast"_s;
    QVERIFY(!platform().hasContrastTheme());
    QVERIFY(!contract_->hasKey(key)); // asking makes nothing
    contract_->writeRaw(key, {u"Flags"_s, RegistryType::String, registryText(flags)});
    QCOMPARE(platform().hasContrastTheme(), on);
}

void TestHardware::eachProcessHasItsId()
{
    QCOMPARE(platform().processIds(), (QList<quint32>{0, 4, 8}));
    contract_->machine().setProcesses(QStringList(2000, u"svchost.exe"_s));
    QCOMPARE(platform().processIds().size(), 1024);
}

void TestHardware::hardwareIsSetPartByPart()
{
    contract_->machine().setHardware({{u"threads"_s, 41}});
    QCOMPARE(platform().threadCount(), 41);
    QCOMPARE(platform().freeMemory(), 8000000000ULL);
    QCOMPARE(platform().screenSize(), QSize(1920, 1080));
    QCOMPARE(platform().colorSpace(), std::optional(12));
    contract_->machine().setHardware({{u"screen"_s, QJsonObject{{u"width"_s, 800}}}});
    QCOMPARE(platform().screenSize(), QSize(800, 0));
    QCOMPARE(platform().colorSpace(), std::nullopt);
    contract_->restart({});
    QCOMPARE(platform().threadCount(), 41);
}

void TestHardware::aDamagedDescriptionIsNone()
{
    contract_->machine().setHardware({{u"threads"_s, u"many"_s},
                                      {u"freeMemory"_s, QJsonArray()},
                                      {u"screen"_s, 3},
                                      {u"volumes"_s, u"C:"_s},
                                      {u"processorTimes"_s, QJsonArray{1}}});
    QCOMPARE(platform().threadCount(), 0);
    QCOMPARE(platform().freeMemory(), 0ULL);
    QCOMPARE(platform().screenSize(), QSize(0, 0));
    QCOMPARE(platform().seekPenalty(u"C:\\"_s), std::nullopt);
    QCOMPARE(platform().processorTimes().kernel, 0ULL);
}

#endif

KESTRUNE_SUITE(TestHardware)
#include "tst_hardware.moc"
