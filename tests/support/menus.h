// SPDX-License-Identifier: GPL-3.0-or-later
// Chooses from the popup menus that an action opens, and keeps what they offered.

#pragma once

#include <QList>
#include <QObject>
#include <QStringList>
#include <QTimer>

/** What a menu offered when it stood on the screen. */
struct ShownMenu
{
    QStringList actions;
    QString styleSheet;
    bool hasParent = false;
};

/**
 * Chooses, in the menus that open, the actions it was told, one a menu. A menu that comes untold is closed and fails
 * the test, and so does a choice that was never offered.
 */
class Menus : public QObject
{
    Q_OBJECT

public:
    explicit Menus(const QStringList &choices = {});
    ~Menus() override;

    /** In the next menu the action of this text is chosen; an empty one leaves the menu by Escape. */
    void choose(const QString &action) { choices_.append(action); }
    const QList<ShownMenu> &shown() const { return shown_; }

private:
    void look();

    QTimer timer_;
    QStringList choices_;
    QList<ShownMenu> shown_;
};

/** How a menu is styled in these colors: its ground, its border, and the action under the pointer; in none, not. */
QString menuStyle(const QStringList &colors);
