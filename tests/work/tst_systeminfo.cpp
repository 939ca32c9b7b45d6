// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of the texts of the system report, and of the steps in which they are collected.

#include "fakeplatform.h"
#include "joblines.h"
#include "support/suite.h"
#include "support/testmachine.h"

#include <QTest>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

const QString windowsKey = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion"_s;
const QString biosKey = u"HKEY_LOCAL_MACHINE\\HARDWARE\\DESCRIPTION\\System\\BIOS"_s;
const QString processorKey = u"HKEY_LOCAL_MACHINE\\HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0"_s;
const QString radeonKey = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\ATI Technologies\\Install"_s;

const QStringList reportLines{u"page: pgr:max:7"_s,   u"page: pgr:value:1"_s, u"page: pgr:value:2"_s,
                              u"page: pgr:value:3"_s, u"page: pgr:value:4"_s, u"page: pgr:value:5"_s,
                              u"page: pgr:value:6"_s, u"page: pgr:value:7"_s};

QJsonObject card(const QString &caption, const QString &driverDate = u"20230613000000.000000-000"_s)
{
    return {{u"Caption"_s, caption},       {u"CurrentHorizontalResolution"_s, 1920},
            {u"CurrentRefreshRate"_s, 60}, {u"CurrentVerticalResolution"_s, 1080},
            {u"DriverDate"_s, driverDate}, {u"DriverVersion"_s, u"31.0.15"_s},
            {u"MaxRefreshRate"_s, 75}};
}

QJsonObject disk(const QString &caption, const QString &interface, const QJsonValue &size)
{
    return {{u"Caption"_s, caption}, {u"InterfaceType"_s, interface}, {u"Size"_s, size}};
}

QJsonObject processor(const QJsonValue &cores, const QJsonValue &threads)
{
    return {{u"L2CacheSize"_s, 2048},           {u"L3CacheSize"_s, 16384},
            {u"NumberOfCores"_s, cores},        {u"NumberOfLogicalProcessors"_s, threads},
            {u"SocketDesignation"_s, u"AM4"_s}, {u"VirtualizationFirmwareEnabled"_s, true}};
}

/** What a worker collects on a machine that has nothing but these instances of a class. */
void collectWith(WorkThread &worker, const QString &className, const QList<QJsonObject> &instances)
{
    const TestMachine machine;
    machine.machine().setWmiInstances(className, instances);
    worker.GetSystemInfo();
}

/** WMI that asks the thread to end. */
class EndingWmi : public FakePlatform
{
public:
    WmiAnswer queryWmi(const QString &, const QStringList &) const override
    {
        QThread::currentThread()->requestInterruption();
        return {};
    }
};

} // namespace

class TestSystemInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLinesComeInOrder();
    void eachLineComesWhenItsTextsStand();
    void anEndedJobStopsBetweenItsSteps();
    void builtInMachines_data();
    void builtInMachines();

    void valuesThatTheRegistryDoesNotHoldAreUnknown();
    void theNameOfWindowsIsNotWrittenAnew();
    void windowsIsOnAnSsdWhereNothingSeeks_data();
    void windowsIsOnAnSsdWhereNothingSeeks();
    void motherboardNamesAreCut_data();
    void motherboardNamesAreCut();

    void oneCard();
    void theFirstOfTwoCardsCounts();
    void theNameOfTheCardIsCut();
    void driverDatesOfEveryLength_data();
    void driverDatesOfEveryLength();
    void oddDriverDates_data();
    void oddDriverDates();
    void radeonSoftwareHasItsOwnVersion_data();
    void radeonSoftwareHasItsOwnVersion();
    void screenSizeIsTheSystems();
    void hdrIsToldByTheColorSpace_data();
    void hdrIsToldByTheColorSpace();

    void disks_data();
    void disks();

    void totalMemory_data();
    void totalMemory();
    void freeMemory_data();
    void freeMemory();
    void oneModuleLosesTheLastDigitOfItsSpeed();
    void twoModulesShowTheSpeedOfTheFirst();
    void formFactors_data();
    void formFactors();
    void pageFile();

    void processorNames_data();
    void processorNames();
    void caches_data();
    void caches();
    void coresAndThreads_data();
    void coresAndThreads();
    void virtualization_data();
    void virtualization();
    void oneProcessorKeepsItsSocketWhole();

    void whatHasDisappearedKeepsItsOldText();
    void failedQueriesLeaveTextsEmptyAndAreLogged();
    void answersThatEndEarlyAreUsed();
    void nullsReadAsNumbers();
    void theBatteryIsLeftAlone();
};

void TestSystemInfo::theLinesComeInOrder()
{
    const TestMachine machine;
    WorkThread worker;
    JobLines lines(worker);
    QVERIFY(runJob(worker, JobGetSystemInfo));
    QCOMPARE(lines.all(), reportLines);
}

void TestSystemInfo::eachLineComesWhenItsTextsStand()
{
    const TestMachine machine(u"windows10"_s);
    WorkThread worker;
    QStringList standing;
    connect(&worker, &WorkThread::valueChanged, this, [&](const QString &line) {
        QString texts;
        for (const QString &last :
             {worker.winOnSsd, worker.mbBiosDate, worker.screenHdr, worker.diskInfo, worker.memVSize, worker.cpuHt})
            texts += last.isEmpty() ? u'-' : u'x';
        standing.append(line.section(u':', 1) + u' ' + texts);
    });
    worker.GetSystemInfo();
    QCOMPARE(standing,
             (QStringList{u"max:7 ------"_s, u"value:1 ------"_s, u"value:2 x-----"_s, u"value:3 xx----"_s,
                          u"value:4 xxx---"_s, u"value:5 xxxx--"_s, u"value:6 xxxxx-"_s, u"value:7 xxxxxx"_s}));
}

void TestSystemInfo::anEndedJobStopsBetweenItsSteps()
{
    const PlatformInForce<EndingWmi> platform;
    WorkThread worker;
    JobLines lines(worker);
    QVERIFY(runJob(worker, JobGetSystemInfo));
    QCOMPARE(lines.all(), reportLines.first(5)); // the graphics card is the first that WMI is asked of
}

void TestSystemInfo::builtInMachines_data()
{
    addColumns<QString, QList<QStringList>>("name", "parts");
    QTest::newRow("windows11") << u"windows11"_s
                               << QList<QStringList>{
                                      {u"Windows 11 Home"_s, u"26100"_s, u"24H2"_s, u"Core"_s, u"Yes"_s},
                                      {u"ASUSTeK COMPUTER INC."_s, u"TUF GAMING B760-PLUS WIFI"_s, u"1654"_s,
                                       u"05/14/2024"_s},
                                      {u"NVIDIA GeForce RTX 4060"_s, u"32.0.15.6590"_s, u"2024/11/21"_s, u"144 Hz"_s,
                                       u"2560 x 1440"_s, u"2560 x 1440"_s, u"144 Hz"_s, u"enabled"_s},
                                      {u"Name:   Samsung SSD 980 PRO 1TB<br>Capacity:   931 Go<br>"
                                       "Interface type: SCSI"_s},
                                      {u"16 Go"_s, u"7.61 Go"_s, u"480"_s, u"DIMM"_s, u"9728 Mo "_s, u"C:\\"_s},
                                      {u"13th Gen Intel Core i5-13500"_s, u"2496"_s, u"14"_s, u"20"_s, u"11 Mo"_s,
                                       u"24 Mo"_s, u"LGA1700"_s, u"enabled"_s, u"enabled"_s},
                                  };
    QTest::newRow("windows10") << u"windows10"_s
                               << QList<QStringList>{
                                      {u"Windows 10 Pro"_s, u"19045"_s, u"22H2"_s, u"Enterprise"_s, u"Yes"_s},
                                      {u"LENOVO"_s, u"LNVNB161216"_s, u"FSCN28WW"_s, u"03/22/2023"_s},
                                      {u"AMD Radeon RX 5500M"_s, u"24.3.1 (RADEON)"_s, u"2024/06/13"_s, u"120 Hz"_s,
                                       u"1920 x 1080"_s, u"1920 x 1080"_s,
                                       u"120\r\nCaption=AMD Radeon(TM) Graphics\r\nCurrentHorizontalResolution=0\r\n"
                                       "CurrentRefreshRate=0\r\nCurrentVerticalResolution=0\r\n"
                                       "DriverDate=20240613000000.000000-000\r\nDriverVersion=31.0.21921.1000\r\n"
                                       "MaxRefreshRate=0 Hz"_s,
                                       u"disabled"_s},
                                      {u"Name:   WDC PC SN530 SDBPNPZ-512G-11<br>Capacity:   476 Go<br>"
                                       "Interface type: SCSI<br><br>Name:   ST1000LM035-1RK172<br>"
                                       "Capacity:   931 Go<br>Interface type: IDE"_s},
                                      {u"32 Go"_s, u"18.5 Go"_s, u"3200"_s, u"SODIMM"_s, u"4864 Mo "_s, u"C:\\"_s},
                                      {u"AMD Ryzen 7 4800H with Radeon Graphi"_s, u"2894"_s, u"8"_s, u"16"_s, u"0 Mo"_s,
                                       u"8 Mo"_s, u"FP6"_s, u"disabled"_s, u"enabled"_s},
                                  };
}

void TestSystemInfo::builtInMachines()
{
    QFETCH(const QString, name);
    QFETCH(const QList<QStringList>, parts);
    const TestMachine machine(name);
    WorkThread worker;
    QVERIFY(runJob(worker, JobGetSystemInfo));
    QCOMPARE((QStringList{worker.winName, worker.winBuild, worker.winVersion, worker.winEdition, worker.winOnSsd}),
             parts.at(0));
    QCOMPARE((QStringList{worker.mbManufacturer, worker.mbModel, worker.mbBiosVersion, worker.mbBiosDate}),
             parts.at(1));
    QCOMPARE(
        (QStringList{worker.gpuName, worker.gpuDriverVersion, worker.gpuDriverDate, worker.gpuRefreshRate,
                     worker.gpuDesktopSize, worker.gpuDesktopMaxSize, worker.screenMaxRefreshRate, worker.screenHdr}),
        parts.at(2));
    QCOMPARE(QStringList{worker.diskInfo}, parts.at(3));
    QCOMPARE((QStringList{worker.memTotal, worker.memFree, worker.memFreq, worker.memFormFactor, worker.memVSize,
                          worker.memVSizeDrive}),
             parts.at(4));
    QCOMPARE((QStringList{worker.cpuName, worker.cpuFreq, worker.cpuCore, worker.cpuThread, worker.cpuL2Size,
                          worker.cpuL3Size, worker.cpuSocket, worker.cpuV, worker.cpuHt}),
             parts.at(5));
}

void TestSystemInfo::valuesThatTheRegistryDoesNotHoldAreUnknown()
{
    const TestMachine machine;
    RegistryStore &registry = machine.machine().registry();
    registry.removeValue(*registry.find(windowsKey), u"ProductName"_s);
    registry.removeValue(*registry.find(windowsKey), u"CurrentBuild"_s);
    WorkThread worker;
    worker.mbModel = u"of an earlier run"_s;
    worker.GetSystemInfo();
    for (const QString &text :
         {worker.winName, worker.winBuild, worker.winVersion, worker.winEdition, worker.mbManufacturer, worker.mbModel,
          worker.mbBiosVersion, worker.mbBiosDate, worker.cpuName, worker.cpuFreq})
        QCOMPARE(text, u"unknown"_s);
}

// Other threads may be reading it.
void TestSystemInfo::theNameOfWindowsIsNotWrittenAnew()
{
    TestMachine machine;
    WorkThread worker;
    worker.GetSystemInfo();
    const QChar *name = std::as_const(worker.winName).constData();
    const QChar *build = std::as_const(worker.winBuild).constData();
    worker.GetSystemInfo();
    QCOMPARE(std::as_const(worker.winName).constData(), name);
    QCOMPARE(std::as_const(worker.winBuild).constData(), build);
    machine.write(windowsKey, u"CurrentBuild"_s, u"22000"_s);
    worker.GetSystemInfo();
    QCOMPARE(worker.winBuild, u"22000"_s);
}

void TestSystemInfo::windowsIsOnAnSsdWhereNothingSeeks_data()
{
    addColumns<QJsonObject, QString>("volumes", "text");
    const auto penalty = [](bool seeks) { return QJsonObject{{u"seekPenalty"_s, seeks}}; };
    QTest::newRow("no penalty") << QJsonObject{{u"C:"_s, penalty(false)}} << u"Yes"_s;
    QTest::newRow("penalty") << QJsonObject{{u"C:"_s, penalty(true)}} << u"No"_s;
    QTest::newRow("not known") << QJsonObject{{u"C:"_s, QJsonObject()}} << u"No"_s;
    QTest::newRow("no volume") << QJsonObject() << u"No"_s;
    QTest::newRow("only another volume") << QJsonObject{{u"D:"_s, penalty(false)}} << u"No"_s;
}

void TestSystemInfo::windowsIsOnAnSsdWhereNothingSeeks()
{
    QFETCH(const QJsonObject, volumes);
    QFETCH(const QString, text);
    const TestMachine machine;
    machine.machine().setHardware({{u"volumes"_s, volumes}});
    WorkThread worker;
    worker.GetSystemInfo();
    QCOMPARE(worker.winOnSsd, text);
}

void TestSystemInfo::motherboardNamesAreCut_data()
{
    addColumns<QString, QString, QString>("name", "manufacturer", "model");
    const QString digits = u"0123456789"_s;
    QTest::newRow("short") << u"Vendor Co., Ltd."_s << u"Vendor "_s << u"Vendor Co., Ltd."_s;
    QTest::newRow("other case") << u"Vendor CO., LTD. Inc"_s << u"Vendor  Inc"_s << u"Vendor CO., LTD. Inc"_s;
    QTest::newRow("36 characters") << digits.repeated(3) + u"abcdef"_s << digits.repeated(3) + u"abcdef"_s
                                   << digits.repeated(3) + u"abcdef"_s;
    QTest::newRow("37 characters") << digits.repeated(3) + u"abcdefg"_s << digits.repeated(3) + u"abcdef"_s
                                   << digits.repeated(3) + u"abcdef"_s;
    QTest::newRow("36 without the company's form")
        << u"Co., Ltd."_s + digits.repeated(3) + u"abcdef"_s << digits.repeated(3) + u"abcdef"_s
        << u"Co., Ltd."_s + digits.repeated(2) + u"0123456"_s;
}

void TestSystemInfo::motherboardNamesAreCut()
{
    QFETCH(const QString, name);
    QFETCH(const QString, manufacturer);
    QFETCH(const QString, model);
    TestMachine machine;
    for (const QString &value : {u"BaseBoardManufacturer"_s, u"BaseBoardProduct"_s, u"BIOSVersion"_s})
        machine.write(biosKey, value, name);
    WorkThread worker;
    worker.GetSystemInfo();
    QCOMPARE(worker.mbManufacturer, manufacturer);
    QCOMPARE(worker.mbModel, model);
    QCOMPARE(worker.mbBiosVersion, name);
}

void TestSystemInfo::oneCard()
{
    WorkThread worker;
    collectWith(worker, u"Win32_VideoController"_s, {card(u"Adapter = A"_s)});
    QCOMPARE(worker.gpuName, u"Adapter = A"_s);
    QCOMPARE(worker.gpuDesktopMaxSize, u"1920 x 1080"_s);
    QCOMPARE(worker.gpuRefreshRate, u"60 Hz"_s);
    QCOMPARE(worker.gpuDriverDate, u"2023/06/13"_s);
    QCOMPARE(worker.gpuDriverVersion, u"31.0.15"_s);
    QCOMPARE(worker.screenMaxRefreshRate, u"75 Hz"_s);
}

void TestSystemInfo::theFirstOfTwoCardsCounts()
{
    WorkThread worker;
    QJsonObject second = card(u"Adapter B"_s);
    second[u"CurrentHorizontalResolution"_s] = 800;
    second[u"CurrentVerticalResolution"_s] = 600;
    second[u"DriverVersion"_s] = u"1.2"_s;
    second[u"MaxRefreshRate"_s] = 240;
    collectWith(worker, u"Win32_VideoController"_s, {card(u"Adapter A"_s), second});
    QCOMPARE(worker.gpuName, u"Adapter A"_s);
    QCOMPARE(worker.gpuDesktopMaxSize, u"1920 x 1080"_s);
    QCOMPARE(worker.gpuDriverVersion, u"31.0.15"_s);
    // This field isn't cut.
    QCOMPARE(worker.screenMaxRefreshRate,
             u"75\r\nCaption=Adapter B\r\nCurrentHorizontalResolution=800\r\nCurrentRefreshRate=60\r\n"
             "CurrentVerticalResolution=600\r\nDriverDate=20230613000000.000000-000\r\nDriverVersion=1.2\r\n"
             "MaxRefreshRate=240 Hz"_s);
}

void TestSystemInfo::theNameOfTheCardIsCut()
{
    WorkThread worker;
    collectWith(worker, u"Win32_VideoController"_s, {card(u"0123456789"_s.repeated(4))});
    QCOMPARE(worker.gpuName, u"012345678901234567890123456789012345"_s);
    collectWith(worker, u"Win32_VideoController"_s, {card(u"Two\r\nlines"_s)});
    QCOMPARE(worker.gpuName, u"Two"_s);
}

void TestSystemInfo::driverDatesOfEveryLength_data()
{
    addColumns<QString, QString>("cimDate", "shown");
    const QString whole = u"20230613000000.000000-000 and more"_s;
    for (qsizetype length = 0; length < whole.size(); ++length) {
        const QString cimDate = whole.first(length);
        QTest::addRow("%d characters", int(length)) << cimDate << (length < 21 ? cimDate : u"2023/06/13"_s);
    }
}

void TestSystemInfo::driverDatesOfEveryLength()
{
    QFETCH(const QString, cimDate);
    QFETCH(const QString, shown);
    WorkThread worker;
    collectWith(worker, u"Win32_VideoController"_s, {card(u"A"_s, cimDate)});
    QCOMPARE(worker.gpuDriverDate, shown);
}

void TestSystemInfo::oddDriverDates_data()
{
    addColumns<QString, QString>("cimDate", "shown");
    QTest::newRow("blanks are taken out") << u"2023 06 13 000000.000000"_s << u"2023/06/13"_s;
    QTest::newRow("nothing but blanks") << QString(25, u' ') << u"    /  /  "_s;
    QTest::newRow("slashes of its own") << u"2023/06/13 00:00:00.0000"_s << u"2023//0"_s;
    QTest::newRow("a line break ends it") << u"20230613000000\r\n.000000-000"_s << u"20230613000000"_s;
}

void TestSystemInfo::oddDriverDates()
{
    driverDatesOfEveryLength();
}

void TestSystemInfo::radeonSoftwareHasItsOwnVersion_data()
{
    addColumns<QString, QString, QString>("installDir", "file", "shown");
    const QString installer = u"C:\\AMD\\CIM\\Bin64\\AMDSoftwareInstaller.exe"_s;
    QTest::newRow("installed") << u"C:\\AMD\\CIM"_s << installer << u"24.3.1 (RADEON)"_s;
    QTest::newRow("with a backslash at its end") << u"C:\\AMD\\CIM\\"_s << installer << u"24.3.1 (RADEON)"_s;
    QTest::newRow("removed, the key left behind") << u"C:\\AMD\\CIM"_s << QString() << u"31.0.15"_s;
    QTest::newRow("another folder") << u"C:\\AMD"_s << installer << u"31.0.15"_s;
    QTest::newRow("no key") << QString() << installer << u"31.0.15"_s;
}

void TestSystemInfo::radeonSoftwareHasItsOwnVersion()
{
    QFETCH(const QString, installDir);
    QFETCH(const QString, file);
    QFETCH(const QString, shown);
    TestMachine machine;
    machine.machine().setWmiInstances(u"Win32_VideoController"_s, {card(u"A"_s)});
    if (!installDir.isEmpty()) {
        machine.write(radeonKey, u"InstallDir"_s, installDir);
        machine.write(radeonKey, u"RadeonSoftwareVersion"_s, u"24.3.1"_s);
    }
    if (!file.isEmpty())
        machine.addFile(file);
    WorkThread worker;
    worker.GetSystemInfo();
    QCOMPARE(worker.gpuDriverVersion, shown);
}

void TestSystemInfo::screenSizeIsTheSystems()
{
    const TestMachine machine;
    machine.machine().setHardware({{u"screen"_s, QJsonObject{{u"width"_s, 3840}, {u"height"_s, 2160}}}});
    machine.machine().setWmiInstances(u"Win32_VideoController"_s, {card(u"A"_s)});
    WorkThread worker;
    worker.GetSystemInfo();
    QCOMPARE(worker.gpuDesktopSize, u"3840 x 2160"_s);
    QCOMPARE(worker.gpuDesktopMaxSize, u"1920 x 1080"_s);
}

void TestSystemInfo::hdrIsToldByTheColorSpace_data()
{
    addColumns<QJsonObject, QString>("screen", "shown");
    const auto space = [](int number) { return QJsonObject{{u"colorSpace"_s, number}}; };
    QTest::newRow("HDR10") << space(12) << u"enabled"_s;
    QTest::newRow("sRGB") << space(0) << u"disabled"_s;
    QTest::newRow("its neighbour") << space(13) << u"disabled"_s;
    QTest::newRow("not known") << QJsonObject() << u"of an earlier run"_s;
}

void TestSystemInfo::hdrIsToldByTheColorSpace()
{
    QFETCH(const QJsonObject, screen);
    QFETCH(const QString, shown);
    const TestMachine machine;
    machine.machine().setHardware({{u"screen"_s, screen}});
    WorkThread worker;
    worker.screenHdr = u"of an earlier run"_s;
    worker.GetSystemInfo();
    QCOMPARE(worker.screenHdr, shown);
}

void TestSystemInfo::disks_data()
{
    using Disks = QList<QJsonObject>;
    addColumns<Disks, QString>("instances", "shown");
    const auto text = [](const QString &name, const QString &size, const QString &interface) {
        return u"Name:   "_s + name + u"<br>Capacity:   "_s + size + u"<br>Interface type: "_s + interface;
    };
    const QString terabyte = u"1000202273280"_s;
    QTest::newRow("none") << Disks{} << u""_s;
    QTest::newRow("one") << Disks{disk(u"Disk A"_s, u"SCSI"_s, terabyte)} << text(u"Disk A"_s, u"931 Go"_s, u"SCSI"_s);
    QTest::newRow("two") << Disks{disk(u"Disk A"_s, u"SCSI"_s, terabyte), disk(u"Disk B"_s, u"USB"_s, u"1073741824"_s)}
                         << text(u"Disk A"_s, u"931 Go"_s, u"SCSI"_s) + u"<br><br>"_s
                                + text(u"Disk B"_s, u"1 Go"_s, u"USB"_s);
    QTest::newRow("just under a gibibyte")
        << Disks{disk(u"A"_s, u"USB"_s, u"1073741823"_s)} << text(u"A"_s, u"0 Go"_s, u"USB"_s);
    QTest::newRow("no medium") << Disks{disk(u"Reader"_s, u"USB"_s, QJsonValue::Null)}
                               << text(u"Reader"_s, u"0 Go"_s, u"USB"_s);
    QTest::newRow("size that is no number")
        << Disks{disk(u"A"_s, u"USB"_s, u"large"_s)} << text(u"A"_s, u"0 Go"_s, u"USB"_s);
    QTest::newRow("size beyond 64 bits") << Disks{disk(u"A"_s, u"USB"_s, u"99999999999999999999"_s)}
                                         << text(u"A"_s, u"0 Go"_s, u"USB"_s);
    QTest::newRow("size after a colon") << Disks{disk(u"A"_s, u"USB"_s, u"total: =2147483648"_s)}
                                        << text(u"A"_s, u"2 Go"_s, u"USB"_s);
    QTest::newRow("name of 28 characters") << Disks{disk(u"0123456789012345678901234567"_s, u"IDE"_s, terabyte)}
                                           << text(u"0123456789012345678901234567"_s, u"931 Go"_s, u"IDE"_s);
    QTest::newRow("name of 29 characters") << Disks{disk(u"01234567890123456789012345678"_s, u"IDE"_s, terabyte)}
                                           << text(u"0123456789012345678901234567"_s, u"931 Go"_s, u"IDE"_s);
    QTest::newRow("the word device goes")
        << Disks{disk(u"Generic USB Device"_s, u"USB"_s, terabyte)} << text(u"Generic USB "_s, u"931 Go"_s, u"USB"_s);
    QTest::newRow("and makes room") << Disks{disk(u"DEVICE0123456789012345678901234567"_s, u"IDE"_s, terabyte)}
                                    << text(u"0123456789012345678901234567"_s, u"931 Go"_s, u"IDE"_s);
    QTest::newRow("name after a colon") << Disks{disk(u"0: \"Disk"_s, u"USB"_s, terabyte)}
                                        << text(u"Disk"_s, u"931 Go"_s, u"USB"_s);
    QTest::newRow("equals sign in the name")
        << Disks{disk(u"A=B"_s, u"USB"_s, terabyte)} << text(u"A=B"_s, u"931 Go"_s, u"USB"_s);
    QTest::newRow("line break in the name")
        << Disks{disk(u"A\r\nB"_s, u"USB"_s, terabyte)} << text(u"A"_s, u"931 Go"_s, u"USB"_s);
    QTest::newRow("second line of a name that begins with a blank")
        << Disks{disk(u"A\r\n Caption=B"_s, u"USB"_s, terabyte)} << text(u"A"_s, u"931 Go"_s, u"USB"_s);
    QTest::newRow("empty texts") << Disks{disk(u""_s, u""_s, u""_s)} << text(u""_s, u"0 Go"_s, u""_s);
    QTest::newRow("nothing known") << Disks{QJsonObject()} << text(u"0"_s, u"0 Go"_s, u"0"_s);
}

void TestSystemInfo::disks()
{
    QFETCH(const QList<QJsonObject>, instances);
    QFETCH(const QString, shown);
    WorkThread worker;
    worker.diskInfo = u"of an earlier run"_s;
    collectWith(worker, u"Win32_DiskDrive"_s, instances);
    QCOMPARE(worker.diskInfo, shown);
}

void TestSystemInfo::totalMemory_data()
{
    addColumns<QJsonValue, QString>("bytes", "shown");
    QTest::newRow("16 GiB") << QJsonValue(u"17098522624"_s) << u"16 Go"_s;
    QTest::newRow("12 GiB") << QJsonValue(u"12884901888"_s) << u"12 Go"_s;
    QTest::newRow("8500000000") << QJsonValue(u"8500000000"_s) << u"7 Go"_s;
    QTest::newRow("no number") << QJsonValue(u"much"_s) << u"unknown"_s;
    QTest::newRow("empty") << QJsonValue(u""_s) << u"unknown"_s;
    QTest::newRow("beyond 64 bits") << QJsonValue(u"18446744073709551616"_s) << u"unknown"_s;
    QTest::newRow("null") << QJsonValue() << u"0 Go"_s;
}

void TestSystemInfo::totalMemory()
{
    QFETCH(const QJsonValue, bytes);
    QFETCH(const QString, shown);
    WorkThread worker;
    collectWith(worker, u"Win32_ComputerSystem"_s, {{{u"TotalPhysicalMemory"_s, bytes}}});
    QCOMPARE(worker.memTotal, shown);
}

void TestSystemInfo::freeMemory_data()
{
    addColumns<QJsonValue, QString>("kibibytes", "shown");
    QTest::newRow("7.6 GiB") << QJsonValue(u"7986324"_s) << u"7.61 Go"_s;
    QTest::newRow("18.6 GiB") << QJsonValue(u"19473808"_s) << u"18.5 Go"_s;
    QTest::newRow("123 GiB loses its fraction, not the point") << QJsonValue(u"129473808"_s) << u"123. Go"_s;
    QTest::newRow("8 GiB") << QJsonValue(u"8388608"_s) << u"8 Go"_s;
    QTest::newRow("one KiB shows no exponent") << QJsonValue(u"1"_s) << u"9.53 Go"_s;
    QTest::newRow("a fraction of a KiB") << QJsonValue(u"4194304.5"_s) << u"4 Go"_s;
    QTest::newRow("none") << QJsonValue(u"0"_s) << u"0 Go"_s;
    QTest::newRow("null") << QJsonValue() << u"0 Go"_s;
    QTest::newRow("no number") << QJsonValue(u"7986324 KB"_s) << u"unknown"_s;
    QTest::newRow("empty") << QJsonValue(u""_s) << u"unknown"_s;
    QTest::newRow("beyond all numbers") << QJsonValue(u"1e999"_s) << u"unknown"_s;
}

void TestSystemInfo::freeMemory()
{
    QFETCH(const QJsonValue, kibibytes);
    QFETCH(const QString, shown);
    WorkThread worker;
    collectWith(worker, u"Win32_OperatingSystem"_s, {{{u"FreePhysicalMemory"_s, kibibytes}}});
    QCOMPARE(worker.memFree, shown);
}

void TestSystemInfo::oneModuleLosesTheLastDigitOfItsSpeed()
{
    WorkThread worker;
    collectWith(worker, u"Win32_PhysicalMemory"_s, {{{u"FormFactor"_s, 8}, {u"Speed"_s, 3200}}});
    QCOMPARE(worker.memFreq, u"320"_s);
    QCOMPARE(worker.memFormFactor, u"DIMM"_s);
}

void TestSystemInfo::twoModulesShowTheSpeedOfTheFirst()
{
    WorkThread worker;
    collectWith(worker, u"Win32_PhysicalMemory"_s,
                {{{u"FormFactor"_s, 12}, {u"Speed"_s, 3200}}, {{u"FormFactor"_s, 8}, {u"Speed"_s, 2666}}});
    QCOMPARE(worker.memFreq, u"3200"_s);
    QCOMPARE(worker.memFormFactor, u"SODIMM"_s);
}

void TestSystemInfo::formFactors_data()
{
    addColumns<QJsonValue, QString>("number", "shown");
    QTest::newRow("8") << QJsonValue(8) << u"DIMM"_s;
    QTest::newRow("12") << QJsonValue(12) << u"SODIMM"_s;
    QTest::newRow("18, which holds an 8") << QJsonValue(18) << u"DIMM"_s;
    QTest::newRow("112, which holds a 12") << QJsonValue(112) << u"SODIMM"_s;
    QTest::newRow("128, which holds both") << QJsonValue(128) << u"DIMM"_s;
    QTest::newRow("0") << QJsonValue(0) << u"0"_s;
    QTest::newRow("a text") << QJsonValue(u"Row of chips"_s) << u"Row of chips"_s;
}

void TestSystemInfo::formFactors()
{
    QFETCH(const QJsonValue, number);
    QFETCH(const QString, shown);
    WorkThread worker;
    collectWith(worker, u"Win32_PhysicalMemory"_s, {{{u"FormFactor"_s, number}, {u"Speed"_s, 3200}}});
    QCOMPARE(worker.memFormFactor, shown);
}

void TestSystemInfo::pageFile()
{
    WorkThread worker;
    collectWith(worker, u"Win32_PageFileUsage"_s,
                {{{u"AllocatedBaseSize"_s, 4864}, {u"Caption"_s, u"d:\\PageFile.sys"_s}}});
    QCOMPARE(worker.memVSize, u"4864 Mo "_s);
    QCOMPARE(worker.memVSizeDrive, u"d:\\"_s);
    // With a second page file the rest of the answer stands after the first drive.
    collectWith(worker, u"Win32_PageFileUsage"_s,
                {{{u"AllocatedBaseSize"_s, 1}, {u"Caption"_s, u"C:\\pagefile.sys"_s}},
                 {{u"AllocatedBaseSize"_s, 2}, {u"Caption"_s, u"D:\\pagefile.sys"_s}}});
    QCOMPARE(worker.memVSize, u"1 Mo "_s);
    QCOMPARE(worker.memVSizeDrive, u"C:\\\r\nAllocatedBaseSize=2\r\nCaption=D:\\"_s);
}

void TestSystemInfo::processorNames_data()
{
    addColumns<QString, QString>("name", "shown");
    QTest::newRow("Intel") << u"Intel(R) Core(TM) i5-9400F CPU @ 2.90GHz"_s << u"Intel Core i5-9400F CPU @ 2.90GHz"_s;
    QTest::newRow("Intel in another case") << u"INTEL(R) core(tm) i3"_s << u"Intel Core i3"_s;
    QTest::newRow("AMD") << u"AMD Ryzen 5 3600 6-Core Processor              "_s << u"AMD Ryzen 5 3600 6-Core "_s;
    QTest::newRow("the word alone") << u"PROCESSOR"_s << u""_s;
    QTest::newRow("two blanks come of the word") << u"Quad Processor X"_s << u"QuadX"_s;
    QTest::newRow("three blanks leave one") << u"A   B"_s << u"A B"_s;
    QTest::newRow("cut when all is replaced")
        << u"Intel(R) Core(TM) 0123456789012345678901234567"_s << u"Intel Core 0123456789012345678901234"_s;
}

void TestSystemInfo::processorNames()
{
    QFETCH(const QString, name);
    QFETCH(const QString, shown);
    TestMachine machine;
    machine.write(processorKey, u"ProcessorNameString"_s, name);
    machine.write(processorKey, u"~MHz"_s, 2904);
    WorkThread worker;
    worker.GetSystemInfo();
    QCOMPARE(worker.cpuName, shown);
    QCOMPARE(worker.cpuFreq, u"2904"_s);
}

void TestSystemInfo::caches_data()
{
    addColumns<QJsonValue, QString>("kibibytes", "shown");
    QTest::newRow("512 KiB") << QJsonValue(512) << u"0 Mo"_s;
    QTest::newRow("1023 KiB") << QJsonValue(1023) << u"0 Mo"_s;
    QTest::newRow("1 MiB") << QJsonValue(1024) << u"1 Mo"_s;
    QTest::newRow("1.5 MiB") << QJsonValue(1536) << u"1 Mo"_s;
    QTest::newRow("none") << QJsonValue(0) << u"0 Mo"_s;
    QTest::newRow("null") << QJsonValue() << u"0 Mo"_s;
    QTest::newRow("no number") << QJsonValue(u"512 KB"_s) << u"512 KB Ko"_s;
    QTest::newRow("empty") << QJsonValue(u""_s) << u" Ko"_s;
    QTest::newRow("beyond 32 bits") << QJsonValue(u"4294967296"_s) << u"4294967296 Ko"_s;
}

void TestSystemInfo::caches()
{
    QFETCH(const QJsonValue, kibibytes);
    QFETCH(const QString, shown);
    for (const QString &property : {u"L2CacheSize"_s, u"L3CacheSize"_s}) {
        QJsonObject instance = processor(4, 8);
        instance[property] = kibibytes;
        WorkThread worker;
        collectWith(worker, u"Win32_Processor"_s, {instance});
        QCOMPARE(property.startsWith("L2"_L1) ? worker.cpuL2Size : worker.cpuL3Size, shown);
        QCOMPARE(property.startsWith("L2"_L1) ? worker.cpuL3Size : worker.cpuL2Size,
                 property.startsWith("L2"_L1) ? u"16 Mo"_s : u"2 Mo"_s);
    }
}

void TestSystemInfo::coresAndThreads_data()
{
    addColumns<QJsonValue, QJsonValue, QString>("cores", "threads", "shown");
    QTest::newRow("hyper-threading") << QJsonValue(4) << QJsonValue(8) << u"4 8 enabled"_s;
    QTest::newRow("none") << QJsonValue(6) << QJsonValue(6) << u"6 6 disabled"_s;
    QTest::newRow("blanks don't count") << QJsonValue(u" 6 "_s) << QJsonValue(6) << u"6 6 disabled"_s;
}

void TestSystemInfo::coresAndThreads()
{
    QFETCH(const QJsonValue, cores);
    QFETCH(const QJsonValue, threads);
    QFETCH(const QString, shown);
    WorkThread worker;
    collectWith(worker, u"Win32_Processor"_s, {processor(cores, threads)});
    QCOMPARE(worker.cpuCore + u' ' + worker.cpuThread + u' ' + worker.cpuHt, shown);
}

void TestSystemInfo::virtualization_data()
{
    addColumns<QJsonValue, QString>("flag", "shown");
    QTest::newRow("true") << QJsonValue(true) << u"enabled"_s;
    QTest::newRow("false") << QJsonValue(false) << u"disabled"_s;
    QTest::newRow("null") << QJsonValue() << u"disabled"_s;
    QTest::newRow("-1") << QJsonValue(-1) << u"enabled"_s;
    QTest::newRow("the word") << QJsonValue(u"TRUE"_s) << u"enabled"_s;
    QTest::newRow("the other word") << QJsonValue(u"False"_s) << u"disabled"_s;
    QTest::newRow("65535") << QJsonValue(u"65535"_s) << u"enabled"_s;
    QTest::newRow("empty") << QJsonValue(u""_s) << u"disabled"_s;
}

void TestSystemInfo::virtualization()
{
    QFETCH(const QJsonValue, flag);
    QFETCH(const QString, shown);
    QJsonObject instance = processor(4, 8);
    instance[u"VirtualizationFirmwareEnabled"_s] = flag;
    WorkThread worker;
    collectWith(worker, u"Win32_Processor"_s, {instance});
    QCOMPARE(worker.cpuV, shown);
}

void TestSystemInfo::oneProcessorKeepsItsSocketWhole()
{
    WorkThread worker;
    collectWith(worker, u"Win32_Processor"_s, {processor(4, 8)});
    QCOMPARE(worker.cpuSocket, u"AM4"_s);
}

void TestSystemInfo::whatHasDisappearedKeepsItsOldText()
{
    TestMachine machine(u"windows10"_s);
    WorkThread worker;
    QVERIFY(runJob(worker, JobGetSystemInfo));
    const QStringList before{worker.gpuName,
                             worker.gpuDriverDate,
                             worker.gpuRefreshRate,
                             worker.memTotal,
                             worker.memFree,
                             worker.memFreq,
                             worker.memFormFactor,
                             worker.memVSize,
                             worker.memVSizeDrive,
                             worker.cpuCore,
                             worker.cpuThread,
                             worker.cpuL2Size,
                             worker.cpuSocket,
                             worker.cpuV,
                             worker.cpuHt,
                             worker.screenHdr,
                             worker.screenMaxRefreshRate,
                             worker.gpuDesktopMaxSize};
    QVERIFY(!before.contains(QString()));
    for (const QString &gone :
         {u"Win32_VideoController"_s, u"Win32_DiskDrive"_s, u"Win32_ComputerSystem"_s, u"Win32_OperatingSystem"_s,
          u"Win32_PhysicalMemory"_s, u"Win32_PageFileUsage"_s, u"Win32_Processor"_s})
        machine.machine().setWmiInstances(gone, {});
    machine.machine().setHardware({{u"screen"_s, QJsonObject()}});
    QVERIFY(runJob(worker, JobGetSystemInfo));
    const QStringList after{worker.gpuName,
                            worker.gpuDriverDate,
                            worker.gpuRefreshRate,
                            worker.memTotal,
                            worker.memFree,
                            worker.memFreq,
                            worker.memFormFactor,
                            worker.memVSize,
                            worker.memVSizeDrive,
                            worker.cpuCore,
                            worker.cpuThread,
                            worker.cpuL2Size,
                            worker.cpuSocket,
                            worker.cpuV,
                            worker.cpuHt,
                            worker.screenHdr,
                            worker.screenMaxRefreshRate,
                            worker.gpuDesktopMaxSize};
    QCOMPARE(after, before);
    QCOMPARE(worker.diskInfo, QString()); // made anew each time
}

void TestSystemInfo::failedQueriesLeaveTextsEmptyAndAreLogged()
{
    LoggingMachine machine;
    WorkThread worker;
    JobLines lines(worker);
    QVERIFY(runJob(worker, JobGetSystemInfo));
    QCOMPARE(lines.all(), reportLines);
    QCOMPARE(machine.errorLog(), QStringList(7, u"WmiQuery: Query failed! Error code-2147217392"_s));
    for (const QString &text :
         {worker.gpuName, worker.gpuDesktopMaxSize, worker.screenMaxRefreshRate, worker.diskInfo, worker.memTotal,
          worker.memFree, worker.memFreq, worker.memVSize, worker.cpuCore, worker.cpuL2Size, worker.cpuV})
        QCOMPARE(text, QString());
    // Neither cores nor threads are known, and so they are equal.
    QCOMPARE(worker.cpuHt, u"disabled"_s);
}

void TestSystemInfo::answersThatEndEarlyAreUsed()
{
    class EarlyEnd : public FakePlatform
    {
    public:
        WmiAnswer queryWmi(const QString &className, const QStringList &) const override
        {
            if (className == "Win32_DiskDrive"_L1)
                return {{{u"Disk A"_s, u"SCSI"_s, u"2147483648"_s}}, {{WmiStep::Query, -1}}};
            return {{}, {{WmiStep::Connect, -1}}};
        }
    };
    const PlatformInForce<EarlyEnd> platform;
    WorkThread worker;
    worker.GetSystemInfo();
    QCOMPARE(worker.diskInfo, u"Name:   Disk A<br>Capacity:   2 Go<br>Interface type: SCSI"_s);
    QCOMPARE(worker.winOnSsd, u"No"_s);
    QCOMPARE(worker.gpuDesktopSize, u"0 x 0"_s);
    QCOMPARE(platform->errorLog().size(), 7);
}

void TestSystemInfo::nullsReadAsNumbers()
{
    WorkThread worker;
    collectWith(worker, u"Win32_VideoController"_s, {QJsonObject()});
    QCOMPARE(worker.gpuName, u"0"_s);
    QCOMPARE(worker.gpuDesktopMaxSize, u"0 x 0"_s);
    QCOMPARE(worker.gpuRefreshRate, u"0 Hz"_s);
    QCOMPARE(worker.gpuDriverDate, u"0"_s);
    QCOMPARE(worker.screenMaxRefreshRate, u"0 Hz"_s);
}

void TestSystemInfo::theBatteryIsLeftAlone()
{
    const TestMachine machine(u"windows10"_s);
    WorkThread worker;
    worker.GetSystemInfo();
    QCOMPARE(worker.batteryCharge, u"-1"_s);
}

KESTRUNE_SUITE(TestSystemInfo)
#include "tst_systeminfo.moc"
