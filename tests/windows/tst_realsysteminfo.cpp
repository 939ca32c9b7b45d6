// SPDX-License-Identifier: GPL-3.0-or-later
// The System information page and the monitor on a real system, held against what its own tool for WMI tells.

#include "platform/platform.h"
#include "support/suite.h"
#include "support/windowdriver.h"
#include "windows/trialpc.h"

#include <QApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QScreen>
#include <QTest>
#include <QTextBrowser>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/** The instances of a class as the tool tells them, each as the values of these properties, in their alphabetic order.
 */
QList<QStringList> wmic(const QString &className, const QStringList &properties)
{
    QProcess process;
    process.start(qEnvironmentVariable("windir") + u"\\system32\\wbem\\wmic.exe"_s,
                  {u"path"_s, className, u"get"_s, properties.join(u',')});
    process.waitForFinished(patience);
    const QStringList lines = QString::fromLocal8Bit(process.readAllStandardOutput()).split(u"\r\n"_s);
    QList<QStringList> instances;
    // After the heads of the columns, which may be longer than the columns
    for (const QString &line : lines.mid(1)) {
        if (line.isEmpty())
            continue;
        // All columns have one width.
        const qsizetype width = line.size() / properties.size();
        QStringList values;
        for (qsizetype i = 0; i < properties.size(); ++i)
            values.append(line.mid(i * width, width).trimmed());
        instances.append(values);
    }
    return instances;
}

QString onlyValue(const QString &className, const QString &property)
{
    const QList<QStringList> instances = wmic(className, {property});
    return instances.isEmpty() ? QString() : instances.constFirst().constFirst();
}

QString registryText(const QString &key, const QString &name)
{
    return platform().openKey(u"HKEY_LOCAL_MACHINE\\"_s + key)->value(name, u"unknown"_s).toString();
}

/** The report's lines with their blanks. */
QStringList reportOf(const WindowDriver &driver)
{
    QString text = driver.get<QTextBrowser>(u"txtInfo"_s)->toPlainText();
    return text.replace(QChar(0x00a0), u' ').split(u'\n');
}

/** The first number of the report's line that begins so. */
double numberAfter(const QStringList &report, const QString &label)
{
    for (const QString &line : report) {
        if (line.startsWith(label))
            return line.sliced(label.size()).section(u' ', 0, 0).toDouble();
    }
    return -1;
}

void compareNear(double is, double should, double tolerance)
{
    QVERIFY2(std::abs(is - should) <= tolerance, qPrintable(u"%1 instead of %2"_s.arg(is).arg(should)));
}

} // namespace

class TestRealSystemInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void tellsWindowsAndTheComputer();
    void tellsTheGraphicsCard();
    void tellsEveryDisk();
    void tellsMemoryAndProcessor();
    void monitorTellsTheLoad();

private:
    std::unique_ptr<TrialPc> pc_;
    std::unique_ptr<WindowDriver> driver_;
    QStringList report_;
};

void TestRealSystemInfo::initTestCase()
{
    pc_ = std::make_unique<TrialPc>();
    platform().openKey(settingsKey)->setValue(u"Monitor"_s, 1);
    platform().openKey(settingsKey)->setValue(u"MonitorThreadAndHandle"_s, 1);
    driver_ = std::make_unique<WindowDriver>();
    QVERIFY(QTest::qWaitForWindowExposed(&driver_->window()));
    driver_->click(u"btnMenuInfo"_s);
    QTRY_COMPARE_WITH_TIMEOUT(driver_->status(), u"Load system info: finished"_s, patience);
    QVERIFY(driver_->get<QWidget>(u"wgtInfo"_s)->isVisible());
    report_ = reportOf(*driver_);
    QVERIFY(!report_.join(u' ').contains(u'%') && !report_.join(u' ').contains("loading"_L1));
}

void TestRealSystemInfo::cleanupTestCase()
{
    driver_.reset();
    for (const QString &name : {u"Monitor"_s, u"MonitorThreadAndHandle"_s})
        platform().openKey(settingsKey)->remove(name);
    pc_.reset();
}

void TestRealSystemInfo::tellsWindowsAndTheComputer()
{
    const QString windows = u"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion"_s;
    const QString board = u"HARDWARE\\DESCRIPTION\\System\\BIOS"_s;
    const QString processor = u"HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0"_s;
    QVERIFY(report_.contains(isWindows11Pc() ? u"Windows 11 Home"_s : u"Windows 10 Pro"_s));
    for (const QString &line : {u"Build:   "_s + registryText(windows, u"CurrentBuild"_s),
                                u"Display version:   "_s + registryText(windows, u"DisplayVersion"_s),
                                u"Bios version:   "_s + registryText(board, u"BIOSVersion"_s),
                                u"Default frequency:   "_s + registryText(processor, u"~MHz"_s) + u" MHz"_s})
        QVERIFY2(report_.contains(line), qPrintable(line));
}

void TestRealSystemInfo::tellsTheGraphicsCard()
{
    const QList<QStringList> cards =
        wmic(u"Win32_VideoController"_s,
             {u"Caption"_s, u"CurrentHorizontalResolution"_s, u"CurrentRefreshRate"_s, u"CurrentVerticalResolution"_s,
              u"DriverDate"_s, u"DriverVersion"_s, u"MaxRefreshRate"_s});
    QCOMPARE(cards.size(), 1);
    const QStringList &card = cards.constFirst();
    const QString date = card.at(4);
    const QSize screen = QGuiApplication::primaryScreen()->size();
    for (const QString &line : {card.at(0).left(36), u"Resolution max:   %1 x %2"_s.arg(card.at(1), card.at(3)),
                                u"Refresh rate:   %1 Hz"_s.arg(card.at(2)),
                                u"Driver date:   %1/%2/%3"_s.arg(date.mid(0, 4), date.mid(4, 2), date.mid(6, 2)),
                                u"Driver version:   "_s + card.at(5), u"Refresh rate max:   %1 Hz"_s.arg(card.at(6)),
                                u"Resolution:   %1 x %2"_s.arg(screen.width()).arg(screen.height())})
        QVERIFY2(report_.contains(line), qPrintable(line));
}

void TestRealSystemInfo::tellsEveryDisk()
{
    QStringList lines;
    for (const QStringList &disk : wmic(u"Win32_DiskDrive"_s, {u"Caption"_s, u"InterfaceType"_s, u"Size"_s})) {
        const qint64 gibibytes = disk.at(2).toLongLong() / 1073741824;
        lines += {u"Name:   "_s + disk.at(0), u"Capacity:   %1 Go"_s.arg(gibibytes), u"Interface type: "_s + disk.at(1),
                  QString()};
    }
    QVERIFY(lines.size() >= 4);
    const qsizetype begin = report_.indexOf(lines.constFirst());
    QVERIFY(begin >= 0);
    QCOMPARE(report_.mid(begin, lines.size() - 1), lines.mid(0, lines.size() - 1));
}

void TestRealSystemInfo::tellsMemoryAndProcessor()
{
    const qint64 bytes = onlyValue(u"Win32_ComputerSystem"_s, u"TotalPhysicalMemory"_s).toLongLong();
    const QList<QStringList> processors =
        wmic(u"Win32_Processor"_s, {u"NumberOfCores"_s, u"NumberOfLogicalProcessors"_s});
    QVERIFY(bytes > 0 && !processors.isEmpty());
    QCOMPARE(onlyValue(u"Win32_PhysicalMemory"_s, u"FormFactor"_s), u"8"_s);
    for (const QString &line :
         {u"Capacity:   %1 Go"_s.arg(bytes / 1068000000), u"Form Factor:   DIMM"_s,
          u"Cores / Threads:   %1  / %2"_s.arg(processors.constFirst().at(0), processors.constFirst().at(1))})
        QVERIFY2(report_.contains(line), qPrintable(line));
    const double free = onlyValue(u"Win32_OperatingSystem"_s, u"FreePhysicalMemory"_s).toDouble() / (1024 * 1024);
    compareNear(numberAfter(report_, u"Free:   "_s), free, 1);
}

void TestRealSystemInfo::monitorTellsTheLoad()
{
    static const QRegularExpression form(u"^Kestrune - cpu (\\d+)% \\| processes (\\d+) \\| threads (\\d+) \\| handles "
                                         "(\\d+) \\| free memory (\\d+) Mo \\| free on C: (\\d+)Go$"_s);
    QTRY_VERIFY_WITH_TIMEOUT(form.match(driver_->window().windowTitle()).hasMatch(), patience);
    takePicture(u"monitor"_s);
    const auto processes = static_cast<double>(wmic(u"Win32_Process"_s, {u"ProcessId"_s}).size());
    // Later lines aren't older than what the tool told.
    QTest::qWait(1500);
    const QStringList numbers = form.match(driver_->window().windowTitle()).capturedTexts();
    QCOMPARE(numbers.size(), 7);
    QVERIFY(numbers.at(1).toInt() >= 1 && numbers.at(1).toInt() <= 101);
    // With the idle process, and without the tool itself and what comes and goes
    compareNear(numbers.at(2).toDouble(), processes, 5);
    QVERIFY(numbers.at(3).toInt() >= numbers.at(2).toInt() - 1);
    const double freeMemory = onlyValue(u"Win32_OperatingSystem"_s, u"FreePhysicalMemory"_s).toDouble() / 1024;
    compareNear(numbers.at(5).toDouble(), freeMemory, 1024);
    for (const QStringList &disk : wmic(u"Win32_LogicalDisk"_s, {u"DeviceID"_s, u"FreeSpace"_s})) {
        if (disk.at(0) == "C:"_L1)
            compareNear(numbers.at(6).toDouble(), disk.at(1).toDouble() / 1073741824, 2);
    }
}

KESTRUNE_WINDOW_SUITE(TestRealSystemInfo)
#include "tst_realsysteminfo.moc"
