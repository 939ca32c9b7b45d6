// SPDX-License-Identifier: GPL-3.0-or-later
// Puts neutral names in place of those of a PC and its users.

#pragma once

#include "machine/source/machinesource.h"

#include <QRegularExpression>
#include <QStringList>

/**
 * The same name always becomes the same, so that paths still find their files, and keys their services. What the
 * program itself calls a key or a value stays.
 */
class NeutralNames
{
public:
    /** Goes by the variables that tell who is logged on and where. */
    explicit NeutralNames(const QMap<QString, QString> &environment);

    /** Another name of the PC, or of the domain that it belongs to. */
    void addHost(const QString &name);
    /** A full name of who is logged on, or an address. */
    void addPerson(const QString &name);
    /** The folder of another user of the PC. */
    void addOther(const QString &folder);

    /** The user and the PC, other users and their folders, and the numbers of accounts. */
    QString text(const QString &text);
    void replaceIn(MachineContents &contents);
    /** What is replaced wherever it stands: what a machine must not hold. */
    QStringList replaced() const;

private:
    struct Rule
    {
        QRegularExpression expression;
        QString replacement;
    };
    struct Word
    {
        QString name;
        Rule rule;
    };

    void addUser(const QString &name);
    void addWord(const QString &name, const QString &neutral);
    QString withNeutralAccounts(const QString &text);
    QByteArray withNeutralAccounts(const QByteArray &data);
    QByteArray withoutNames(QByteArray data, bool isText) const;
    QString neutralAuthority(const QString &authority);
    QByteArray bytes(const QByteArray &data);
    RegistryValue value(RegistryValue value);
    QString key(const QString &path);
    void replaceIn(RegistryEdit &edit);
    void replaceIn(FileDescription &file);
    void replaceIn(MachineDescription &description);

    QStringList hosts_;
    QList<Word> words_;                  ///< names wherever they stand, the longest first
    QList<Rule> rules_;                  ///< names where they can't mean anything else
    QStringList places_;                 ///< what the rules replace of names that are ordinary words
    QMap<QString, QString> authorities_; ///< numbers of a PC or domain, and what stands for them
    QRegularExpression inBytes_;
    QRegularExpression inUtf16_;
};

/** How the texts of Windows stand in bytes: UTF-8 along with the code pages that agree with Latin-1, and UTF-16LE. */
enum class TextForm { Bytes, Utf16 };

/**
 * Finds any of these names in bytes, which are to be read as Latin-1, at whatever place and in whatever case. A name
 * that is part of many words must stand alone. A backslash stands for any separators of a path. Nothing is found where
 * there are no names.
 */
QRegularExpression namesInBytes(const QStringList &names, TextForm form);
