// SPDX-License-Identifier: GPL-3.0-or-later
// What schtasks prints of scheduled tasks, put together by a test.

#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/** A task of an export; what is empty isn't written. */
struct ExportedTask
{
    QString uri; ///< with its leading backslash
    std::optional<QString> description{};
    QString settings{}; ///< further elements of Settings
    QString triggers{}; ///< elements of Triggers
};

/** The element of a task, with the line ends of the tool. */
inline QString taskElement(const ExportedTask &task)
{
    QString text =
        QStringLiteral("<Task version=\"1.4\" xmlns=\"http://schemas.microsoft.com/windows/2004/02/mit/task\">\r\n"
                       "  <RegistrationInfo>\r\n    <Author>Vendor</Author>\r\n");
    if (task.description)
        text += QStringLiteral("    <Description>") + *task.description + QStringLiteral("</Description>\r\n");
    text += QStringLiteral("    <URI>") + task.uri + QStringLiteral("</URI>\r\n  </RegistrationInfo>\r\n  <Triggers>")
            + task.triggers + QStringLiteral("</Triggers>\r\n  <Settings>\r\n    <Hidden>false</Hidden>\r\n")
            + task.settings;
    return text
           + QStringLiteral("  </Settings>\r\n  <Actions>\r\n    <Exec>\r\n      <Command>a.exe</Command>\r\n"
                            "    </Exec>\r\n  </Actions>\r\n</Task>");
}

/** One document for each task, each after a comment, as the tool prints them. */
inline QString listOfDocuments(const QList<ExportedTask> &tasks)
{
    QString text;
    for (const ExportedTask &task : tasks) {
        text += QStringLiteral("<!-- ") + task.uri
                + QStringLiteral(" -->\r\n<?xml version=\"1.0\" encoding=\"UTF-16\"?>\r\n") + taskElement(task)
                + QStringLiteral("\r\n\r\n");
    }
    return text;
}

/** All tasks in one element, as the tool prints them when it is asked for one document. */
inline QString insideTasks(const QList<ExportedTask> &tasks)
{
    QString text = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-16\"?>\r\n<Tasks>\r\n\r\n");
    for (const ExportedTask &task : tasks)
        text += QStringLiteral("<!-- ") + task.uri + QStringLiteral(" -->\r\n") + taskElement(task)
                + QStringLiteral("\r\n\r\n");
    return text + QStringLiteral("</Tasks>\r\n");
}
