// SPDX-License-Identifier: GPL-3.0-or-later
// A rehearsal machine behind the seam: its hardware, and how busy it is.

#include "machineplatform.h"

#include "machine/machineerror.h"
#include "platform/windowsfacts.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostProcessIds = 1024;

quint64 count(const QJsonObject &object, const QString &key)
{
    return static_cast<quint64>(object.value(key).toInteger());
}

} // namespace

QJsonObject MachinePlatform::hardware() const
{
    return guarded(QJsonObject(), [this] { return machine_->hardware(); });
}

QJsonObject MachinePlatform::volume(const QString &windowsPath) const
{
    const QString file = machine_->hostPath(windowsPath);
    const QString path = machine_->windowsPath(file);
    // What is on none of the machine's drives stays a file of the host, whose path may begin with a drive too.
    if (path == file)
        return {};
    return hardware().value(u"volumes"_s).toObject().value(path.first(2)).toObject();
}

std::optional<bool> MachinePlatform::seekPenalty(const QString &windowsPath) const
{
    if (windowsPath.isEmpty())
        return {};
    const QJsonValue penalty = volume(windowsPath).value(u"seekPenalty"_s);
    return penalty.isBool() ? std::optional(penalty.toBool()) : std::nullopt;
}

std::optional<int> MachinePlatform::colorSpace() const
{
    const QJsonValue space = hardware().value(u"screen"_s).toObject().value(u"colorSpace"_s);
    return space.isDouble() ? std::optional(space.toInt()) : std::nullopt;
}

QSize MachinePlatform::screenSize() const
{
    const QJsonObject screen = hardware().value(u"screen"_s).toObject();
    return {screen.value(u"width"_s).toInt(), screen.value(u"height"_s).toInt()};
}

bool MachinePlatform::hasContrastTheme() const
{
    for (const RegistryValue &value : registryValues(WindowsKey::userHighContrast)) {
        if (value.name.compare("Flags"_L1, Qt::CaseInsensitive) == 0)
            return (textOf(value.data).toUInt() & 1U) != 0;
    }
    return false;
}

ProcessorTimes MachinePlatform::processorTimes() const
{
    const QJsonArray steps = hardware().value(u"processorTimes"_s).toArray();
    const std::lock_guard lock(readingsLock_);
    if (steps.isEmpty())
        return lastReading_;
    // What the machine names passes before each reading, over and over.
    const QJsonObject step = steps.at(readings_++ % steps.size()).toObject();
    lastReading_.idle += count(step, u"idle"_s);
    lastReading_.kernel += count(step, u"kernel"_s);
    lastReading_.user += count(step, u"user"_s);
    return lastReading_;
}

QList<quint32> MachinePlatform::processIds() const
{
    constexpr qsizetype stepBetweenIds = 4; // as Windows gives them

    const qsizetype processes = guarded(qsizetype(0), [this] { return machine_->processes().size(); });
    QList<quint32> ids; // the idle process first
    for (qsizetype i = 0; i <= processes && i < mostProcessIds; ++i)
        ids.append(static_cast<quint32>(i * stepBetweenIds));
    return ids;
}

int MachinePlatform::threadCount() const
{
    return hardware().value(u"threads"_s).toInt();
}

quint64 MachinePlatform::freeMemory() const
{
    return count(hardware(), u"freeMemory"_s);
}

RootDrive MachinePlatform::rootDrive() const
{
    const QString drive = qEnvironmentVariable("SystemDrive", u"C:"_s);
    return {drive + u'/', count(volume(drive), u"freeBytes"_s)};
}
