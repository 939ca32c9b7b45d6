// SPDX-License-Identifier: GPL-3.0-or-later
// Puts neutral names in place of those of a PC and its users.

#pragma once

#include "machine/source/machinesource.h"

#include <QRegularExpression>

/**
 * The same name always becomes the same, so that paths still find their files. Names of keys stay, and so do the values
 * of services and packages that are no texts.
 */
class NeutralNames
{
public:
    /** Goes by the variables that tell who is logged on and where. */
    explicit NeutralNames(const QMap<QString, QString> &environment);

    /** The user and the PC, other users' folders, and the numbers of accounts. */
    QString text(const QString &text);
    void replaceIn(MachineContents &contents);

private:
    struct Rule
    {
        QRegularExpression expression;
        QString replacement;
    };

    void addUser(const QString &name);
    void addHost(const QString &name);
    QString withNeutralAccounts(const QString &text);
    QByteArray withNeutralAccounts(const QByteArray &data);
    QString neutralAuthority(const QString &authority);
    RegistryValue value(RegistryValue value);
    void replaceIn(RegistryEdit &edit);
    void replaceIn(FileDescription &file);
    void replaceIn(MachineDescription &description);

    QStringList hosts_;
    QList<Rule> rules_;
    QMap<QString, QString> authorities_; ///< numbers of a PC or domain, and what stands for them
};
