// SPDX-License-Identifier: GPL-3.0-or-later

#include "componentstore.h"

#include <QDir>
#include <QMap>
#include <QVersionNumber>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

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

} // namespace

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
