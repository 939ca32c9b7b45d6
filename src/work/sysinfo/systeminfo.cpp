// SPDX-License-Identifier: GPL-3.0-or-later
// Collects the texts of the system report, in steps that are each a part of the report.

#include "systeminfo.h"

#include "platform/platform.h"
#include "platform/windowsfacts.h"
#include "work/interruption.h"
#include "work/statusline.h"
#include "work/windowsname.h"
#include "work/wmi.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

using Part = ReportPart;

// clang-format off
constexpr ReportText allTexts[] = {
    {"winName"_L1,              &WorkThread::winName,              Part::Windows,     1},
    {"winBuild"_L1,             &WorkThread::winBuild,             Part::Windows,     2},
    {"winVersion"_L1,           &WorkThread::winVersion,           Part::Windows,     4},
    {"winEdition"_L1,           &WorkThread::winEdition,           Part::Windows,     3},
    {"winOnSsd"_L1,             &WorkThread::winOnSsd,             Part::Windows,     5},
    {"cpuName"_L1,              &WorkThread::cpuName,              Part::Processor,   1},
    {"cpuFreq"_L1,              &WorkThread::cpuFreq,              Part::Processor,   7},
    {"cpuCore"_L1,              &WorkThread::cpuCore,              Part::Processor,   2},
    {"cpuThread"_L1,            &WorkThread::cpuThread,            Part::Processor,   3},
    {"cpuL2Size"_L1,            &WorkThread::cpuL2Size,            Part::Processor,   4},
    {"cpuL3Size"_L1,            &WorkThread::cpuL3Size,            Part::Processor,   5},
    {"cpuSocket"_L1,            &WorkThread::cpuSocket,            Part::Processor,   6},
    {"cpuV"_L1,                 &WorkThread::cpuV,                 Part::Processor,   8},
    {"cpuHt"_L1,                &WorkThread::cpuHt,                Part::Processor,   9},
    {"memTotal"_L1,             &WorkThread::memTotal,             Part::Memory,      3},
    {"memFree"_L1,              &WorkThread::memFree,              Part::Memory,      1},
    {"memFreq"_L1,              &WorkThread::memFreq,              Part::Memory,      2},
    {"memFormFactor"_L1,        &WorkThread::memFormFactor,        Part::Memory,      4},
    {"memVSize"_L1,             &WorkThread::memVSize,             Part::Memory,      0},
    {"memVSizeDrive"_L1,        &WorkThread::memVSizeDrive,        Part::Memory,      0},
    {"mbManufacturer"_L1,       &WorkThread::mbManufacturer,       Part::Motherboard, 2},
    {"mbModel"_L1,              &WorkThread::mbModel,              Part::Motherboard, 1},
    {"mbBiosVersion"_L1,        &WorkThread::mbBiosVersion,        Part::Motherboard, 3},
    {"mbBiosDate"_L1,           &WorkThread::mbBiosDate,           Part::Motherboard, 4},
    {"gpuName"_L1,              &WorkThread::gpuName,              Part::Graphics,    1},
    {"gpuDriverVersion"_L1,     &WorkThread::gpuDriverVersion,     Part::Graphics,    5},
    {"gpuDriverDate"_L1,        &WorkThread::gpuDriverDate,        Part::Graphics,    6},
    {"gpuRefreshRate"_L1,       &WorkThread::gpuRefreshRate,       Part::Graphics,    4},
    {"gpuDesktopSize"_L1,       &WorkThread::gpuDesktopSize,       Part::Graphics,    2},
    {"gpuDesktopMaxSize"_L1,    &WorkThread::gpuDesktopMaxSize,    Part::Graphics,    3},
    {"screenMaxRefreshRate"_L1, &WorkThread::screenMaxRefreshRate, Part::Graphics,    7},
    {"screenHdr"_L1,            &WorkThread::screenHdr,            Part::Graphics,    8},
    {"diskInfo"_L1,             &WorkThread::diskInfo,             Part::Disks,       0},
};
// clang-format on

/** Names of boards, cards and processors are cut to this many characters, which is what a column of the report holds.
 */
constexpr qsizetype longestName = 36;

/** A value of the registry as a text, or "unknown" in the user's language. */
QString textOrUnknown(const RegistryKey &key, const QString &name)
{
    return key.value(name, WorkThread::tr("unknown")).toString();
}

/** Other threads may be reading the text, and then it must not be written with the same. */
void setIfOther(QString &text, const QString &other)
{
    if (text != other)
        text = other;
}

void collectWindows(WorkThread &worker)
{
    const WindowsName windows = readWindowsName();
    setIfOther(worker.winName, windows.product);
    setIfOther(worker.winBuild, windows.build);
    const auto key = platform().openKey(WindowsKey::currentVersion);
    worker.winEdition = textOrUnknown(*key, u"CompositionEditionID"_s);
    worker.winVersion = textOrUnknown(*key, u"DisplayVersion"_s);

    const bool seeks = platform().seekPenalty(qEnvironmentVariable("windir")).value_or(true);
    worker.winOnSsd = seeks ? WorkThread::tr("No") : WorkThread::tr("Yes");
}

void collectMotherboard(WorkThread &worker)
{
    const auto key = platform().openKey(WindowsKey::hardware + u"\\BIOS"_s);
    worker.mbManufacturer =
        textOrUnknown(*key, u"BaseBoardManufacturer"_s).remove(u"Co., Ltd."_s, Qt::CaseInsensitive).left(longestName);
    worker.mbModel = textOrUnknown(*key, u"BaseBoardProduct"_s).left(longestName);
    worker.mbBiosVersion = textOrUnknown(*key, u"BIOSVersion"_s);
    worker.mbBiosDate = textOrUnknown(*key, u"BIOSReleaseDate"_s);
}

void collectCard(WorkThread &worker)
{
    const QString answer =
        WmiQuery(u"Win32_VideoController"_s,
                 {u"Caption"_s, u"CurrentHorizontalResolution"_s, u"CurrentRefreshRate"_s,
                  u"CurrentVerticalResolution"_s, u"DriverDate"_s, u"DriverVersion"_s, u"MaxRefreshRate"_s});
    if (const auto caption = wmiField(answer, u"Caption"_s))
        worker.gpuName = caption->left(longestName);
    if (const auto width = wmiField(answer, u"CurrentHorizontalResolution"_s))
        worker.gpuDesktopMaxSize = *width;
    if (const auto rate = wmiField(answer, u"CurrentRefreshRate"_s))
        worker.gpuRefreshRate = *rate + u" Hz"_s;
    if (const auto height = wmiField(answer, u"CurrentVerticalResolution"_s))
        worker.gpuDesktopMaxSize += u" x "_s + *height;
    if (const auto date = wmiField(answer, u"DriverDate"_s))
        worker.gpuDriverDate = wmiDate(*date);
    if (const auto version = wmiField(answer, u"DriverVersion"_s))
        worker.gpuDriverVersion = *version;
    // With a second card this one is followed by all that is known of that.
    if (const auto rate = wmiField(answer, u"MaxRefreshRate"_s, FieldEnd::Text))
        worker.screenMaxRefreshRate = *rate + u" Hz"_s;
}

/** The vendor's software has a version of its own, by which people know their driver. */
void collectRadeonVersion(WorkThread &worker)
{
    const auto key = platform().openKey(WindowsKey::radeonSoftware);
    const QString installer = textOrUnknown(*key, u"InstallDir"_s) + u"\\Bin64\\AMDSoftwareInstaller.exe"_s;
    if (QFileInfo::exists(platform().hostPath(installer)))
        worker.gpuDriverVersion = key->value(u"RadeonSoftwareVersion"_s).toString() + u" (RADEON)"_s;
}

void collectGraphics(WorkThread &worker)
{
    constexpr int highDynamicRange = 12; // DXGI_COLOR_SPACE_RGB_FULL_G2084_NONE_P2020

    collectCard(worker);
    const QSize screen = platform().screenSize();
    worker.gpuDesktopSize = QString::number(screen.width()) + u" x "_s + QString::number(screen.height());
    collectRadeonVersion(worker);
    if (const auto space = platform().colorSpace())
        worker.screenHdr = *space == highDynamicRange ? WorkThread::tr("enabled") : WorkThread::tr("disabled");
}

/** What each disk has of a property; the last element is the place of the disk that comes next. */
struct DiskTexts
{
    QStringList names{QString()};
    QStringList interfaces{QString()};
    QStringList sizes{u"0"_s};
};

void store(QStringList &texts, const QString &text)
{
    texts.last() = text;
    texts.append(QString());
}

/** Cuts what stands before a colon, the colon, and two characters after it. */
QString afterColon(const QString &value)
{
    const qsizetype colon = value.indexOf(u':');
    return colon < 0 ? value : value.mid(colon + 3);
}

void readLine(const QString &line, DiskTexts &disks)
{
    constexpr qsizetype longestDiskName = 28;
    constexpr qint64 bytesInGibibyte = 1073741824;

    const auto caption = wmiField(line, u"Caption"_s, FieldEnd::Text);
    if (caption && !line.startsWith(u' '))
        store(disks.names, afterColon(*caption).remove(u"device"_s, Qt::CaseInsensitive).left(longestDiskName));
    if (const auto interface = wmiField(line, u"InterfaceType"_s, FieldEnd::Text))
        store(disks.interfaces, *interface);
    if (const auto size = wmiField(line, u"Size"_s, FieldEnd::Text))
        store(disks.sizes, QString::number(afterColon(*size).toLongLong() / bytesInGibibyte) + u" Go"_s);
}

QString describe(const QString &name, const QString &size, const QString &interface)
{
    return WorkThread::tr("Name:") + u"   "_s + name + u"<br>"_s + WorkThread::tr("Capacity:") + u"   "_s + size
           + u"<br>"_s + WorkThread::tr("Interface type:") + u' ' + interface;
}

void collectDisks(WorkThread &worker)
{
    const QString answer = WmiQuery(u"Win32_DiskDrive"_s, {u"Caption"_s, u"InterfaceType"_s, u"Size"_s});
    DiskTexts disks;
    if (answer.contains("\r\n"_L1)) {
        for (const QString &line : answer.split(u"\r\n"_s))
            readLine(line, disks);
    }
    disks.names.removeLast();
    QStringList descriptions;
    for (qsizetype i = 0; i < disks.names.size(); ++i)
        descriptions.append(describe(disks.names.at(i), disks.sizes.value(i), disks.interfaces.value(i)));
    worker.diskInfo = descriptions.join(u"<br><br>"_s);
}

/** "7.61 Go" of a number of KiB. */
QString freeMemoryText(const QString &kibibytes)
{
    constexpr double gibibytesInKibibyte = 9.5367431640625e-7;
    constexpr qsizetype shownCharacters = 4;

    bool isNumber = false;
    const double number = kibibytes.toDouble(&isNumber);
    if (!isNumber)
        return WorkThread::tr("unknown");
    return QString::number(number * gibibytesInKibibyte, 'g', 6).left(shownCharacters) + u" Go"_s;
}

/** The two form factors that PCs have, by name. */
QString formFactorText(const QString &number)
{
    if (number.contains(u'8'))
        return u"DIMM"_s;
    return number.contains("12"_L1) ? u"SODIMM"_s : number;
}

void collectMemory(WorkThread &worker)
{
    const QString system = WmiQuery(u"Win32_ComputerSystem"_s, {u"TotalPhysicalMemory"_s});
    if (const auto bytes = wmiField(system, u"TotalPhysicalMemory"_s, FieldEnd::Text))
        worker.memTotal = memoryText(memoryUnits(*bytes));
    const QString windows = WmiQuery(u"Win32_OperatingSystem"_s, {u"FreePhysicalMemory"_s});
    if (const auto kibibytes = wmiField(windows, u"FreePhysicalMemory"_s, FieldEnd::Text))
        worker.memFree = freeMemoryText(*kibibytes);

    const QString modules = WmiQuery(u"Win32_PhysicalMemory"_s, {u"FormFactor"_s, u"Speed"_s});
    if (const auto number = wmiField(modules, u"FormFactor"_s))
        worker.memFormFactor = formFactorText(*number);
    if (const auto speed = wmiField(modules, u"Speed"_s))
        worker.memFreq = *speed;

    const QString pageFile = WmiQuery(u"Win32_PageFileUsage"_s, {u"AllocatedBaseSize"_s, u"Caption"_s});
    if (auto path = wmiField(pageFile, u"Caption"_s, FieldEnd::Text))
        worker.memVSizeDrive = path->remove(u"PAGEFILE.SYS"_s, Qt::CaseInsensitive);
    if (const auto size = wmiField(pageFile, u"AllocatedBaseSize"_s))
        worker.memVSize = *size + u" Mo "_s; // the drive follows
}

/** Whole MiB of a number of KiB: smaller caches read 0. */
QString cacheText(const QString &kibibytes)
{
    bool isNumber = false;
    const int number = kibibytes.toInt(&isNumber);
    return isNumber ? QString::number(number / 1024) + u" Mo"_s : kibibytes + u" Ko"_s;
}

/** A flag as WMI may write it, in a text that may hold more. */
QString switchText(const QString &flag)
{
    const bool on = flag.contains(u'1') || flag.contains("True"_L1, Qt::CaseInsensitive) || flag.contains("65535"_L1);
    return on ? WorkThread::tr("enabled") : WorkThread::tr("disabled");
}

void collectName(WorkThread &worker)
{
    const auto key = platform().openKey(WindowsKey::hardware + u"\\CentralProcessor\\0"_s);
    QString name = textOrUnknown(*key, u"ProcessorNameString"_s);
    name.remove(u"processor"_s, Qt::CaseInsensitive).remove(u"  "_s);
    name.replace(u"Intel(R) Core(TM)"_s, u"Intel Core"_s, Qt::CaseInsensitive);
    worker.cpuName = name.left(longestName);
    worker.cpuFreq = textOrUnknown(*key, u"~MHz"_s);
}

void collectProcessor(WorkThread &worker)
{
    collectName(worker);
    const QString answer = WmiQuery(u"Win32_Processor"_s, {u"L2CacheSize"_s, u"L3CacheSize"_s, u"NumberOfCores"_s,
                                                           u"NumberOfLogicalProcessors"_s, u"SocketDesignation"_s,
                                                           u"VirtualizationFirmwareEnabled"_s});
    if (const auto size = wmiField(answer, u"L2CacheSize"_s))
        worker.cpuL2Size = cacheText(*size);
    if (const auto size = wmiField(answer, u"L3CacheSize"_s))
        worker.cpuL3Size = cacheText(*size);
    if (auto count = wmiField(answer, u"NumberOfCores"_s))
        worker.cpuCore = count->remove(u' ');
    if (auto count = wmiField(answer, u"NumberOfLogicalProcessors"_s))
        worker.cpuThread = count->remove(u' ');
    if (const auto socket = wmiField(answer, u"SocketDesignation"_s))
        worker.cpuSocket = *socket;
    if (const auto flag = wmiField(answer, u"VirtualizationFirmwareEnabled"_s, FieldEnd::Text))
        worker.cpuV = switchText(*flag);
    worker.cpuHt = worker.cpuCore == worker.cpuThread ? WorkThread::tr("disabled") : WorkThread::tr("enabled");
}

using Step = void (*)(WorkThread &worker);

constexpr Step steps[] = {collectWindows, collectMotherboard, collectGraphics,
                          collectDisks,   collectMemory,      collectProcessor};

} // namespace

std::span<const ReportText> reportTexts()
{
    return allTexts;
}

std::optional<qint64> memoryUnits(const QString &bytes)
{
    constexpr qint64 bytesInUnit = 1068000000; // neither 2 to the 30th nor 10 to the 9th

    bool isNumber = false;
    const qint64 number = bytes.toLongLong(&isNumber);
    return isNumber ? std::optional(number / bytesInUnit) : std::nullopt;
}

QString memoryText(std::optional<qint64> units)
{
    return units ? QString::number(*units) + u" Go"_s : WorkThread::tr("unknown");
}

void WorkThread::GetSystemInfo()
{
    report(StatusLine::maximum(7));
    int reached = 1;
    report(StatusLine::step(reached));
    for (const Step collect : steps) {
        endIfInterrupted();
        collect(*this);
        // The window reads the texts when the last of these lines has come: nothing is written after it.
        report(StatusLine::step(++reached));
    }
}
