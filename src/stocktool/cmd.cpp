// SPDX-License-Identifier: GPL-3.0-or-later
// cmd: the command interpreter, as far as it starts the clean-up of the component store.

#include "tools.h"

#include <QDir>
#include <QMap>
#include <QVersionNumber>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr int elevationRequired = 740;

constexpr QByteArrayView banner = "\r\nDeployment Image Servicing and Management\r\nVersion: 10.0\r\n\r\n";
constexpr QByteArrayView refusal = "\r\nError: 740\r\n\r\n"
                                   "Elevated permissions are required to run DISM.\r\n"
                                   "Use an elevated command prompt to complete these tasks.\r\n";

/** A folder of the component store WinSxS. */
struct Component
{
    QString folder;
    QString identity; ///< all of the name but version and hash
    QVersionNumber version;
};

/** Takes a folder's name apart, from its end: names of components may have underscores. */
std::optional<Component> parseComponent(const QString &folder)
{
    constexpr qsizetype fewestParts = 6;

    QStringList parts = folder.toLower().split(u'_');
    if (parts.size() < fewestParts)
        return std::nullopt;
    parts.removeLast();
    const QString version = parts.takeAt(parts.size() - 2);
    qsizetype end = 0;
    const QVersionNumber number = QVersionNumber::fromString(version, &end);
    if (number.segmentCount() < 2 || end != version.size())
        return std::nullopt;
    return Component{folder, parts.join(u'_'), number};
}

/**
 * Removes the folders of components of which a higher version is there: those named
 * <architecture>_<name>_<token>_<version>_<language>_<hash> that differ in nothing but version and hash.
 * @return how many were removed
 */
int removeSupersededComponents(const QString &storeFolder)
{
    // What a link leads to isn't the store's.
    constexpr auto everything = QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden | QDir::NoSymLinks;

    QList<Component> components;
    QMap<QString, QVersionNumber> highest;
    for (const QString &folder : QDir(storeFolder).entryList(everything)) {
        if (const std::optional<Component> component = parseComponent(folder)) {
            components.append(*component);
            QVersionNumber &version = highest[component->identity];
            version = std::max(version, component->version);
        }
    }
    int removed = 0;
    for (const Component &component : std::as_const(components)) {
        if (component.version < highest.value(component.identity)
            && QDir(storeFolder + u'/' + component.folder).removeRecursively())
            ++removed;
    }
    return removed;
}

/** "[=====                      10.0%                          ] ", as wide at any percentage. */
QByteArray progressBar(int percent)
{
    constexpr int width = 58;

    QByteArray bar = QByteArray(width * percent / 100, '=').leftJustified(width);
    const QByteArray number = QByteArray::number(percent) + ".0%";
    bar.replace((width - number.size()) / 2, number.size(), number);
    return "[" + bar + "] ";
}

ToolResult cleanUpComponents(ToolHost &host)
{
    if (!host.isElevated())
        return {elevationRequired, refusal.toByteArray()};
    removeSupersededComponents(host.hostPath(u"C:\\Windows\\WinSxS"_s));
    ToolResult result;
    result.output = banner.toByteArray();
    // Each step paints over the one before it.
    for (const int percent : {10, 40, 70, 100})
        result.output += '\r' + progressBar(percent);
    result.output += "\r\nThe operation completed successfully.\r\n";
    return result;
}

ToolResult notRecognized(const QString &program)
{
    return {exitNoSuchProgram, u"'%1' is not recognized as an internal or external command,\r\n"
                               "operable program or batch file.\r\n"_s.arg(program)
                                   .toUtf8()};
}

} // namespace

ToolResult runCmd(ToolHost &host, const QStringList &arguments)
{
    // The interpreter takes all that follows as one line, whether it was quoted as a whole or not.
    QStringList words = arguments.join(u' ').split(u' ', Qt::SkipEmptyParts);
    if (words.isEmpty())
        return {};
    if (const QString option = words.takeFirst().toLower(); option != "/k"_L1 && option != "/c"_L1)
        return {};
    if (words.isEmpty())
        return {};
    static const QStringList cleanUp{u"dism"_s, u"/online"_s, u"/cleanup-image"_s, u"/startcomponentcleanup"_s};
    const QString line = words.join(u' ').toLower();
    if (line == cleanUp.join(u' ') || line == "dism.exe "_L1 + cleanUp.mid(1).join(u' '))
        return cleanUpComponents(host);
    return notRecognized(words.at(0));
}
