// SPDX-License-Identifier: GPL-3.0-or-later

#include "menus.h"

#include <QApplication>
#include <QMenu>
#include <QTest>

using namespace Qt::StringLiterals;

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

Menus::Menus(const QStringList &choices)
    : choices_(choices)
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

QString menuStyle(const QStringList &colors)
{
    if (colors.isEmpty())
        return {};
    return u"QMenu { background-color: %1; border-radius: 6px; border: 1px solid %2; }"
           "QMenu::item { padding: 6px; background: transparent; }"
           "QMenu:item:hover  { background-color: %3; border-radius: 6px; }"
           "QMenu:item:selected  { background-color: %3; border-radius: 6px; }"_s.arg(colors.at(0), colors.at(1),
                                                                                      colors.at(2));
}
