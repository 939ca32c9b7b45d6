// SPDX-License-Identifier: GPL-3.0-or-later

#include "menus.h"

#include <QApplication>
#include <QMenu>
#include <QTest>

namespace {

constexpr int interval = 5; // milliseconds

QAction *actionOf(const QMenu &menu, const QString &text)
{
    for (QAction *action : menu.actions()) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

} // namespace

Menus::Menus()
{
    connect(&timer_, &QTimer::timeout, this, &Menus::look);
    timer_.start(interval);
}

Menus::~Menus()
{
    if (!choices_.isEmpty())
        QTest::qFail("a menu was expected, but none came", __FILE__, __LINE__);
}

void Menus::look()
{
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    if (menu == nullptr)
        return;
    ShownMenu shown{{}, menu->styleSheet(), menu->parent() != nullptr};
    for (const QAction *action : menu->actions())
        shown.actions.append(action->text());
    shown_.append(shown);

    if (choices_.isEmpty()) {
        QTest::qFail("nobody expected the menu", __FILE__, __LINE__);
        menu->close();
        return;
    }
    const QString choice = choices_.takeFirst();
    QAction *action = actionOf(*menu, choice);
    if (action == nullptr && !choice.isEmpty())
        QTest::qFail(qPrintable(QStringLiteral("the menu lacks the action ") + choice), __FILE__, __LINE__);
    if (action == nullptr) {
        QTest::keyClick(menu, Qt::Key_Escape);
        return;
    }
    menu->setActiveAction(action);
    QTest::keyClick(menu, Qt::Key_Return);
}
