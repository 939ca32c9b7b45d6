// SPDX-License-Identifier: GPL-3.0-or-later

#include "capturesteps.h"

#include "platform/platform.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace {

// clang-format off
constexpr const char *variables[] = {
    "SystemRoot", "windir", "SystemDrive", "HOMEDRIVE", "ProgramFiles", "ProgramFiles(x86)", "LOCALAPPDATA", "TEMP",
    "USERNAME", "USERDOMAIN",
};
// clang-format on

struct WmiQuestion
{
    QString className;
    QStringList properties;
};

QList<WmiQuestion> wmiQuestions()
{
    return {
        {u"Win32_ComputerSystem"_s, {u"TotalPhysicalMemory"_s}},
        {u"Win32_OperatingSystem"_s, {u"FreePhysicalMemory"_s}},
        {u"Win32_PhysicalMemory"_s, {u"FormFactor"_s, u"Speed"_s}},
        {u"Win32_PageFileUsage"_s, {u"AllocatedBaseSize"_s, u"Caption"_s}},
        {u"Win32_DiskDrive"_s, {u"Caption"_s, u"InterfaceType"_s, u"Size"_s}},
        {u"Win32_VideoController"_s,
         {u"Caption"_s, u"CurrentHorizontalResolution"_s, u"CurrentRefreshRate"_s, u"CurrentVerticalResolution"_s,
          u"DriverDate"_s, u"DriverVersion"_s, u"MaxRefreshRate"_s}},
        {u"Win32_Processor"_s,
         {u"L2CacheSize"_s, u"L3CacheSize"_s, u"NumberOfCores"_s, u"NumberOfLogicalProcessors"_s,
          u"SocketDesignation"_s, u"VirtualizationFirmwareEnabled"_s}},
        {u"Win32_Process"_s, {u"HandleCount"_s}},
    };
}

QString driveOf(const QString &path)
{
    return path.left(2).toUpper();
}

QJsonObject volumes()
{
    QJsonObject result;
    const RootDrive root = platform().rootDrive();
    if (root.path.size() >= 2)
        result[driveOf(root.path)] = QJsonObject{{u"freeBytes"_s, static_cast<qint64>(root.freeBytes)}};
    const QString windows = qEnvironmentVariable("windir");
    if (const auto penalty = platform().seekPenalty(windows)) {
        QJsonObject volume = result.value(driveOf(windows)).toObject();
        volume[u"seekPenalty"_s] = *penalty;
        result[driveOf(windows)] = volume;
    }
    return result;
}

/** What the processors did in half a second. */
QJsonArray processorTimes()
{
    constexpr int measuringTime = 500; // milliseconds

    const ProcessorTimes before = platform().processorTimes();
    platform().pause(measuringTime);
    const ProcessorTimes after = platform().processorTimes();
    return {QJsonObject{{u"idle"_s, static_cast<qint64>(after.idle - before.idle)},
                        {u"kernel"_s, static_cast<qint64>(after.kernel - before.kernel)},
                        {u"user"_s, static_cast<qint64>(after.user - before.user)}}};
}

QJsonObject screen()
{
    const QSize size = platform().screenSize();
    QJsonObject result{{u"width"_s, size.width()}, {u"height"_s, size.height()}};
    if (const auto space = platform().colorSpace())
        result[u"colorSpace"_s] = *space;
    return result;
}

/** Texts, as which the answers come, read the same as what they were made of. */
QList<QJsonObject> instancesOf(const WmiQuestion &question, const WmiAnswer &answer)
{
    QList<QJsonObject> instances;
    for (const QStringList &texts : answer.instances) {
        QJsonObject instance;
        for (qsizetype i = 0; i < question.properties.size(); ++i)
            instance[question.properties.at(i)] = texts.value(i);
        instances.append(instance);
    }
    return instances;
}

} // namespace

QJsonObject captureHardware()
{
    return {{u"volumes"_s, volumes()},
            {u"screen"_s, screen()},
            {u"freeMemory"_s, static_cast<qint64>(platform().freeMemory())},
            {u"threads"_s, platform().threadCount()},
            {u"processorTimes"_s, processorTimes()}};
}

QMap<QString, QList<QJsonObject>> captureWmi(QList<NotRead> &notRead)
{
    QMap<QString, QList<QJsonObject>> classes;
    for (const WmiQuestion &question : wmiQuestions()) {
        const WmiAnswer answer = platform().queryWmi(question.className, question.properties);
        // A failure that leaves instances is one of setting up what was set up already.
        if (answer.failures.isEmpty() || !answer.instances.isEmpty())
            classes.insert(question.className, instancesOf(question, answer));
        else
            notRead.append(
                {question.className + u" of the management instrumentation"_s,
                 u"error 0x"_s + QString::number(static_cast<quint32>(answer.failures.constLast().code), 16)});
    }
    return classes;
}

QMap<QString, QString> captureEnvironment()
{
    QMap<QString, QString> result;
    for (const char *name : variables) {
        if (qEnvironmentVariableIsSet(name))
            result.insert(QString::fromLatin1(name), qEnvironmentVariable(name));
    }
    return result;
}
