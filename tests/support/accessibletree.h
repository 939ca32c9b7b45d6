// SPDX-License-Identifier: GPL-3.0-or-later
// What screen readers are given of a window: the tree of what can be seen, with roles, names and states. What a reader
// makes of it, and whether Narrator reads it well, can only be heard on a real Windows.

#pragma once

#include <QAccessible>
#include <QMetaEnum>
#include <QStringList>
#include <QWidget>

#include <functional>

/** Visits what can be seen of a window, from the top downwards. */
inline void walkAccessible(QAccessibleInterface *node, const std::function<void(QAccessibleInterface *)> &visit)
{
    const bool isThere = node != nullptr && node->isValid() && !node->state().invisible;
    const auto *widget = isThere ? qobject_cast<const QWidget *>(node->object()) : nullptr;
    if (!isThere || (widget != nullptr && !widget->isVisible()))
        return;
    if (node->tableInterface() != nullptr) {
        // A list tells of its changes only where a screen reader is there: without one the cells are those of the last
        // look.
        QAccessibleTableModelChangeEvent anew(node->object(), QAccessibleTableModelChangeEvent::ModelReset);
        node->tableInterface()->modelChange(&anew);
    }
    visit(node);
    for (int i = 0; i < node->childCount(); ++i)
        walkAccessible(node->child(i), visit);
}

/** Whether a node only holds others together, or is a part of one, so that nobody speaks of it. */
inline bool isStructure(QAccessibleInterface *node)
{
    switch (node->role()) {
    case QAccessible::Client:
    case QAccessible::Pane:
    case QAccessible::LayeredPane:
    case QAccessible::Grouping:
    case QAccessible::Border:
    case QAccessible::PageTabList:
    case QAccessible::ScrollBar:
    case QAccessible::Splitter:
    case QAccessible::Grip:
    case QAccessible::Separator:
        return true;
    // A label says its text, and nothing where it has none.
    case QAccessible::StaticText:
        return node->childCount() == 0 && node->text(QAccessible::Value).isEmpty()
               && node->object()->property("text").toString().isEmpty();
    default:
        // A cell of a column that isn't shown
        return node->tableCellInterface() != nullptr && node->rect().isEmpty();
    }
}

inline QString describeAccessible(const QAccessibleInterface *node)
{
    const QAccessibleInterface *holder = node;
    while (holder != nullptr && (holder->object() == nullptr || holder->object()->objectName().isEmpty()))
        holder = holder->parent();
    return QStringLiteral("%1 in %2")
        .arg(QString::fromLatin1(QMetaEnum::fromType<QAccessible::Role>().valueToKey(node->role())),
             holder != nullptr ? holder->object()->objectName() : QString());
}

/** What can be seen of a window and has no name. */
inline QStringList unnamedIn(QWidget *window)
{
    QStringList unnamed;
    walkAccessible(QAccessible::queryAccessibleInterface(window), [&unnamed](QAccessibleInterface *node) {
        if (!isStructure(node) && node->text(QAccessible::Name).trimmed().isEmpty())
            unnamed.append(describeAccessible(node));
    });
    return unnamed;
}

/** The first that has this role and name; null where there is none. */
inline QAccessibleInterface *findAccessible(QWidget *window, QAccessible::Role role, const QString &name)
{
    QAccessibleInterface *found = nullptr;
    walkAccessible(QAccessible::queryAccessibleInterface(window), [&](QAccessibleInterface *node) {
        if (found == nullptr && node->role() == role && node->text(QAccessible::Name) == name)
            found = node;
    });
    return found;
}
