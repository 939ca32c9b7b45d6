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
    QString all(data.size() / 2, Qt::Uninitialized);
    qFromLittleEndian<char16_t>(data.constData(), all.size(), all.data());
    QStringList texts;
    for (qsizetype at = 0; at < all.size();) {
        const qsizetype found = all.indexOf(QChar(0), at);
        const qsizetype end = found < 0 ? all.size() : found;
        if (end == at)
            break;
        texts << all.sliced(at, end - at);
        at = end + 1;
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
