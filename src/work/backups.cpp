// SPDX-License-Identifier: GPL-3.0-or-later

#include "backups.h"

#include "platform/registryscript.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

using namespace Qt::StringLiterals;

BackupState backupState(const QString &file, bool (*isComplete)(const QString &text))
{
    if (!QFile::exists(file))
        return BackupState::Missing;
    const std::optional<QString> text = readBackup(file);
    return !text || isComplete(*text) ? BackupState::Complete : BackupState::CutOff;
}

bool setAside(const QString &file)
{
    const QFileInfo info(file);
    const QString start = info.path() + u'/' + info.completeBaseName() + u"-cut"_s;
    const QString end = u'.' + info.suffix();
    QString aside = start + end;
    for (int number = 2; QFile::exists(aside); ++number)
        aside = start + QString::number(number) + end;
    return QFile::rename(file, aside);
}

QString textOfFile(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringConverter::encodingForData(bytes).value_or(QStringConverter::Utf8));
    return decoder(bytes);
}

std::optional<QString> readBackup(const QString &file)
{
    QFile backup(file);
    if (!backup.open(QIODevice::ReadOnly))
        return {};
    return textOfFile(backup.readAll());
}

bool isCompleteScript(const QString &text)
{
    return (text.startsWith(registryScriptHead) || text.startsWith("REGEDIT4"_L1)) && text.endsWith(u'\n');
}
