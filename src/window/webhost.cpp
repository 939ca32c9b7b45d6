// SPDX-License-Identifier: GPL-3.0-or-later

#include "webhost.h"

#include <QList>

using namespace Qt::StringLiterals;

namespace {

// Bytes of an answer: a version is some ten, and a long text would only fill the screen.
constexpr qint64 longestShown = 4096;

/** The start of a text that is too long to be shown. */
QString startOf(const QString &text)
{
    constexpr qsizetype most = 200; // characters, of which none is cut in two

    const QList<uint> characters = text.toUcs4();
    return QString::fromUcs4(reinterpret_cast<const char32_t *>(characters.constData()), most) + u'…';
}

} // namespace

QString webHost()
{
    return QStringLiteral(KESTRUNE_WEB_HOST);
}

QString withWebHost(QString text, const QString &host)
{
    return text.replace("kestrune.example"_L1, host);
}

std::optional<QString> otherVersion(const QByteArray &answer, const QString &present)
{
    if (answer.size() > longestAnswer)
        return {};
    const QString online = QString::fromUtf8(answer);
    // What is online counts, be it newer or older, and to the last line break.
    if (online == present)
        return {};
    return answer.size() > longestShown ? startOf(online) : online;
}
