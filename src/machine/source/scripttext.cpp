// SPDX-License-Identifier: GPL-3.0-or-later
// The characters of a registry script.

#include "scripttext.h"

#include <QList>
#include <QStringDecoder>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace {

ScriptText decodeUtf16(const QByteArray &units, bool bigEndian)
{
    ScriptText result;
    result.text.resize(units.size() / 2);
    if (bigEndian)
        qFromBigEndian<char16_t>(units.constData(), result.text.size(), result.text.data());
    else
        qFromLittleEndian<char16_t>(units.constData(), result.text.size(), result.text.data());
    if (units.size() % 2 != 0) {
        result.problem = u"the file ends inside a character"_s;
        result.problemLine = int(result.text.count(u'\n')) + 1;
    }
    return result;
}

int firstBadLine(const QByteArray &bytes)
{
    int number = 1;
    for (const QByteArray &line : bytes.split('\n')) {
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        const QString decoded = decoder(line);
        if (decoder.hasError())
            break;
        ++number;
    }
    return number;
}

} // namespace

ScriptText decodeScript(const QByteArray &bytes)
{
    if (bytes.startsWith("\xFE\xFF"))
        return decodeUtf16(bytes.sliced(2), true);
    if (bytes.startsWith("\xFF\xFE"))
        return decodeUtf16(bytes.sliced(2), false);
    if (bytes.size() >= 2 && bytes.at(0) != 0 && bytes.at(1) == 0)
        return decodeUtf16(bytes, false);

    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    ScriptText result{decoder(bytes), {}, 0};
    if (!decoder.hasError())
        return result;
    if (bytes.trimmed().startsWith("REGEDIT4"))
        return {QString::fromLatin1(bytes), {}, 0};
    result.problem = u"the text is neither UTF-8 nor UTF-16"_s;
    result.problemLine = firstBadLine(bytes);
    return result;
}
