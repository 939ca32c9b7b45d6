// SPDX-License-Identifier: GPL-3.0-or-later

#include "printable.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/** Beginnings and ends of embeddings, overrides and isolates; marks, which turn nothing, are none of them. */
bool turnsDirection(QChar unit)
{
    return (unit >= u'\u202a' && unit <= u'\u202e') || (unit >= u'\u2066' && unit <= u'\u2069');
}

bool isControl(QChar unit)
{
    const QChar::Category category = unit.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line
           || category == QChar::Separator_Paragraph || turnsDirection(unit);
}

QString hexDigits(QChar unit, int width)
{
    return QString::number(unit.unicode(), 16).rightJustified(width, u'0');
}

QString escape(QChar unit)
{
    switch (unit.unicode()) {
    case u'\0':
        return u"\\0"_s;
    case u'\n':
        return u"\\n"_s;
    case u'\r':
        return u"\\r"_s;
    case u'\t':
        return u"\\t"_s;
    default:
        return unit.unicode() <= 0xff ? u"\\x"_s + hexDigits(unit, 2) : u"\\u"_s + hexDigits(unit, 4);
    }
}

template<typename Replace>
QString withControlsReplaced(const QString &text, Replace replace)
{
    if (std::none_of(text.begin(), text.end(), isControl))
        return text;
    QString result;
    for (const QChar unit : text)
        result += isControl(unit) ? replace(unit) : QString(unit);
    return result;
}

} // namespace

QString printable(const QString &text)
{
    return withControlsReplaced(text, escape);
}

QByteArray printableJson(const QJsonDocument &document, QJsonDocument::JsonFormat format)
{
    // A line break that is one stands between two tokens, all other such characters within a text.
    const auto replace = [](QChar unit) { return unit == u'\n' ? QString(unit) : u"\\u"_s + hexDigits(unit, 4); };
    return withControlsReplaced(QString::fromUtf8(document.toJson(format)), replace).toUtf8();
}
