// SPDX-License-Identifier: GPL-3.0-or-later

#include "registrykey.h"

#include <QtEndian>

QByteArray registryText(const QString &text)
{
    QByteArray data((text.size() + 1) * 2, '\0');
    qToLittleEndian<char16_t>(text.utf16(), text.size(), data.data());
    return data;
}

QByteArray registryTexts(const QStringList &texts)
{
    QByteArray data;
    for (const QString &text : texts)
        data += registryText(text);
    return data + QByteArray(2, '\0');
}

QString textOf(const QByteArray &data)
{
    QString text(data.size() / 2, Qt::Uninitialized);
    qFromLittleEndian<char16_t>(data.constData(), text.size(), text.data());
    const qsizetype end = text.indexOf(QChar(0));
    return end < 0 ? text : text.first(end);
}

QStringList textsOf(const QByteArray &data)
{
    QStringList texts;
    for (qsizetype at = 0; at + 1 < data.size();) {
        const QString text = textOf(data.sliced(at));
        if (text.isEmpty())
            break;
        texts << text;
        at += (text.size() + 1) * 2;
    }
    return texts;
}

QByteArray registryDWord(quint32 number)
{
    QByteArray data(4, '\0');
    qToLittleEndian(number, data.data());
    return data;
}

QByteArray registryQWord(quint64 number)
{
    QByteArray data(8, '\0');
    qToLittleEndian(number, data.data());
    return data;
}
