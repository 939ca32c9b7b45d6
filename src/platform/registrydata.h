// SPDX-License-Identifier: GPL-3.0-or-later
// Between texts or numbers and the data of registry values.

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

QByteArray registryText(const QString &text);
QByteArray registryTexts(const QStringList &texts);
QString textOf(const QByteArray &data);
QStringList textsOf(const QByteArray &data);
QByteArray registryDWord(quint32 number);
QByteArray registryQWord(quint64 number);
