// SPDX-License-Identifier: GPL-3.0-or-later

#include "namepattern.h"

using namespace Qt::StringLiterals;

namespace {

QString bytesPattern(const QByteArray &bytes)
{
    QString pattern;
    for (const char byte : bytes)
        pattern += u"\\x%1"_s.arg(static_cast<uchar>(byte), 2, 16, QLatin1Char('0'));
    return pattern;
}

/** One letter in any of its cases, in each way in which it may be written. */
QStringList formsOf(char32_t letter, TextForm form)
{
    QStringList forms;
    for (const char32_t variant :
         {letter, QChar::toLower(letter), QChar::toUpper(letter), QChar::toTitleCase(letter)}) {
        const QString text = QString::fromUcs4(&variant, 1);
        if (form == TextForm::Utf16) {
            QByteArray bytes;
            for (const QChar unit : text)
                bytes.append(static_cast<char>(unit.cell())).append(static_cast<char>(unit.row()));
            forms.append(bytesPattern(bytes));
        } else {
            forms.append(bytesPattern(text.toUtf8()));
            if (variant >= 0x80 && variant <= 0xff)
                forms.append(bytesPattern(text.toLatin1()));
        }
    }
    forms.removeDuplicates();
    return forms;
}

QString inBytes(const QString &name, TextForm form)
{
    const QString zero = form == TextForm::Utf16 ? u"\\x00"_s : QString();
    QString pattern;
    for (const uint letter : name.toUcs4()) {
        if (letter == U'\\')
            pattern += u"(?:[\\\\/]%1)+"_s.arg(zero);
        else
            pattern += u"(?:%1)"_s.arg(formsOf(letter, form).join(u'|'));
    }
    return pattern;
}

QString standingAlone(const QString &name, const QString &pattern, TextForm form)
{
    constexpr qsizetype longEnough = 5; // letters: what is longer is rarely part of another word

    const bool isPath = name.contains(u'\\');
    if (name.size() >= longEnough && !isPath)
        return pattern;
    const QString letter = form == TextForm::Utf16 ? u"[A-Za-z0-9]\\x00"_s : u"[A-Za-z0-9\\x80-\\xff]"_s;
    const QString before = name.startsWith(u'\\') ? QString() : u"(?<!%1)"_s.arg(letter);
    return before + pattern + u"(?!%1)"_s.arg(letter);
}

} // namespace

QRegularExpression namesInBytes(const QStringList &names, TextForm form)
{
    QStringList patterns;
    for (const QString &name : names)
        patterns.append(standingAlone(name, inBytes(name, form), form));
    const QString nothing = u"(?!)"_s;
    return QRegularExpression(patterns.isEmpty() ? nothing : patterns.join(u'|'));
}
