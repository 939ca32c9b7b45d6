// SPDX-License-Identifier: GPL-3.0-or-later
// The hardware of a machine.json.

#include "jsonreader.h"
#include "machinejson.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largestNumber = std::numeric_limits<int>::max();

QJsonObject volumes(const JsonReader &read, const QJsonValue &value, const QString &key)
{
    static constexpr std::array known{"seekPenalty"_L1, "freeBytes"_L1};

    QJsonObject result;
    const QJsonObject drives = read.object(value, key);
    for (auto drive = drives.begin(); drive != drives.end(); ++drive) {
        const QString below = keyBelow(key, drive.key());
        if (drive.key().size() != 2 || !drive.key().at(0).isLetter() || drive.key().at(1) != u':')
            read.fail(below, u"not a drive, such as C:"_s);
        const QJsonObject volume = read.object(drive.value(), below);
        read.checkKeys(volume, below, known);
        if (volume.contains(known[0]))
            read.boolean(volume.value(known[0]), keyBelow(below, known[0]));
        if (volume.contains(known[1]))
            read.integer(volume.value(known[1]), keyBelow(below, known[1]), 0);
        result.insert(drive.key().toUpper(), volume);
    }
    return result;
}

QJsonObject screen(const JsonReader &read, const QJsonValue &value, const QString &key)
{
    static constexpr std::array known{"width"_L1, "height"_L1, "colorSpace"_L1};

    const QJsonObject screen = read.object(value, key);
    read.checkKeys(screen, key, known);
    for (auto part = screen.begin(); part != screen.end(); ++part)
        read.integer(part.value(), keyBelow(key, part.key()), 0, largestNumber);
    return screen;
}

/** What passes before each reading, in units of 100 ns. */
QJsonArray processorTimes(const JsonReader &read, const QJsonValue &value, const QString &key)
{
    static constexpr std::array known{"idle"_L1, "kernel"_L1, "user"_L1};

    QJsonArray result;
    for (const QJsonValue each : read.array(value, key)) {
        const QString below = keyAt(key, result.size());
        const QJsonObject step = read.object(each, below);
        read.checkKeys(step, below, known);
        for (const QLatin1StringView part : known)
            read.integer(step.value(part), keyBelow(below, part), 0);
        result.append(step);
    }
    return result;
}

} // namespace

QJsonObject readHardwareJson(const JsonReader &read, const QJsonValue &value, const QString &key)
{
    static constexpr std::array known{"volumes"_L1, "screen"_L1, "freeMemory"_L1, "threads"_L1, "processorTimes"_L1};

    QJsonObject result = read.object(value, key);
    read.checkKeys(result, key, known);
    for (const QString &part : result.keys()) {
        const QString below = keyBelow(key, part);
        QJsonValueRef content = result[part];
        if (part == "volumes"_L1)
            content = volumes(read, content, below);
        else if (part == "screen"_L1)
            content = screen(read, content, below);
        else if (part == "processorTimes"_L1)
            content = processorTimes(read, content, below);
        else
            read.integer(content, below, 0, part == "threads"_L1 ? largestNumber : std::numeric_limits<qint64>::max());
    }
    return result;
}
