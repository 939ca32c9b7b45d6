// SPDX-License-Identifier: GPL-3.0-or-later

#include "console.h"

#include <QHash>

namespace {

// clang-format off
/** Code page 850 from 0x80 on, sixteen a row. */
constexpr char16_t upperHalf[] =
    u"ÇüéâäàåçêëèïîìÄÅ"
    u"ÉæÆôöòûùÿÖÜø£Ø×ƒ"
    u"áíóúñÑªº¿®¬½¼¡«»"
    u"░▒▓│┤ÁÂÀ©╣║╗╝¢¥┐"
    u"└┴┬├─┼ãÃ╚╔╩╦╠═╬¤"
    u"ðÐÊËÈıÍÎÏ┘┌█▄¦Ì▀"
    u"ÓßÔÒõÕµþÞÚÛÙýÝ¯´"
    u"\u00ad±‗¾¶§÷¸°¨·¹³²■\u00a0";
// clang-format on

constexpr int asciiEnd = 0x80;

QHash<char16_t, char> makeBytes()
{
    QHash<char16_t, char> bytes;
    for (int i = 0; upperHalf[i] != 0; ++i)
        bytes.insert(upperHalf[i], static_cast<char>(asciiEnd + i));
    return bytes;
}

} // namespace

QByteArray toConsoleBytes(QStringView text)
{
    static const QHash<char16_t, char> bytes = makeBytes();

    QByteArray result;
    result.reserve(text.size());
    for (const QChar unit : text) {
        if (unit.isLowSurrogate())
            continue; // one mark for the whole character
        result.append(unit.unicode() < asciiEnd ? static_cast<char>(unit.unicode()) : bytes.value(unit.unicode(), '?'));
    }
    return result;
}

QString fromConsoleBytes(const QByteArray &bytes)
{
    QString result;
    result.reserve(bytes.size());
    for (const char byte : bytes) {
        const int value = static_cast<unsigned char>(byte);
        result.append(value < asciiEnd ? QChar(value) : QChar(upperHalf[value - asciiEnd]));
    }
    return result;
}
