// SPDX-License-Identifier: GPL-3.0-or-later
// Carries out what "kestrune-rehearse preview --undo" has written, on a rehearsal machine.

#pragma once

#include "processes.h"

#include "machine/machine.h"
#include "machine/source/machinesource.h"

#include <QDir>
#include <QFile>

/** The command line's words, as the system's programs take them apart. */
inline QStringList wordsOf(const QString &command)
{
    QStringList result;
    QString word;
    bool inQuotes = false;
    bool any = false;
    for (qsizetype i = 0; i < command.size(); ++i) {
        const QChar letter = command.at(i);
        if (letter == u'\\' && i + 1 < command.size() && command.at(i + 1) == u'"') {
            word += command.at(++i);
        } else if (letter == u'"') {
            inQuotes = !inQuotes;
            any = true;
        } else if (letter == u' ' && !inQuotes) {
            if (any || !word.isEmpty())
                result.append(word);
            word.clear();
            any = false;
        } else {
            word += letter;
        }
    }
    if (any || !word.isEmpty())
        result.append(word);
    return result;
}

inline quint32 changedAttributes(quint32 word, const QStringList &switches)
{
    static const QMap<QChar, quint32> bits{{u'r', 0x1}, {u'h', 0x2}, {u's', 0x4}, {u'a', 0x20}, {u'i', 0x2000}};
    for (const QString &entry : switches) {
        const quint32 bit = bits.value(entry.at(1));
        word = entry.startsWith(u'+') ? word | bit : word & ~bit;
    }
    return word;
}

/** The command of a prompt that is started for it alone: its words after "/c". */
inline QStringList promptsOwn(const QStringList &words)
{
    const bool ofPrompt = words.first().endsWith(QLatin1StringView("\\cmd.exe"));
    return ofPrompt ? words.mid(words.indexOf(QLatin1StringView("/c")) + 1) : words;
}

/** What the command prompt does itself, and attrib; everything else is a tool of the machine. */
inline bool runBuiltIn(Machine &machine, const QStringList &words, const QString &folder)
{
    const QString verb = words.first();
    const QString host = machine.hostPath(words.value(1));
    if (verb == QLatin1StringView("ren"))
        return QFile::rename(host, QFileInfo(host).path() + u'/' + words.at(2));
    if (verb == QLatin1StringView("del"))
        return QFile::remove(machine.hostPath(words.at(2)));
    if (verb == QLatin1StringView("rd"))
        return QDir().rmdir(host);
    if (verb == QLatin1StringView("md"))
        return QDir().mkpath(host);
    if (verb == QLatin1StringView("copy")) {
        const QString target = machine.hostPath(words.at(3));
        QFile::remove(target);
        return QFile::copy(folder + u'/' + QString(words.at(2)).replace(u'\\', u'/'), target);
    }
    if (verb.endsWith(QLatin1StringView("\\attrib.exe"))) {
        const quint32 word = machine.attributes(words.last());
        machine.setAttributes(words.last(), changedAttributes(word, words.mid(1, words.size() - 2)));
        return true;
    }
    return false;
}

/** Runs a tool of the machine, which is in its environment. */
inline int runToolOf(const Machine &machine, const QStringList &words)
{
    Variables variables = machine.environment();
    variables[QStringLiteral("KESTRUNE_ELEVATED")] = QStringLiteral("1");
    const QString name = words.first().section(u'\\', -1).section(u'.', 0, 0).toLower();
    return runProgram(stockTool(), QStringList{machine.folder(), name} + words.mid(1), variables).exitCode;
}

/** Imports the script and gives the commands beside it. The first command that failed; empty where none did. */
inline QString undo(Machine &machine, const QString &script)
{
    importFile(machine, script);
    const QFileInfo place(script);
    QFile commands(place.path() + u'/' + place.completeBaseName() + QStringLiteral("-commands.txt"));
    if (!commands.open(QIODevice::ReadOnly))
        return commands.fileName();
    for (const QString &line :
         QString::fromUtf8(commands.readAll()).split(QStringLiteral("\r\n"), Qt::SkipEmptyParts)) {
        if (line == QLatin1StringView("rem") || line.startsWith(QLatin1StringView("rem ")))
            continue;
        const QStringList words = promptsOwn(wordsOf(line));
        // A service may run already, started by one that needs it.
        if (!runBuiltIn(machine, words, place.path()) && runToolOf(machine, words) != 0
            && !words.first().endsWith(QLatin1StringView("\\sc.exe")))
            return line;
    }
    return {};
}
