// SPDX-License-Identifier: GPL-3.0-or-later

#include "webhost.h"

using namespace Qt::StringLiterals;

QString webHost()
{
    return QStringLiteral(KESTRUNE_WEB_HOST);
}

QString withWebHost(QString text, const QString &host)
{
    return text.replace("kestrune.example"_L1, host);
}
