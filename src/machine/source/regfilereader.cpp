// SPDX-License-Identifier: GPL-3.0-or-later
// Registry scripts: reading them.

#include "regfile.h"

#include "machine/machineerror.h"

#include <QStringDecoder>
#include <QtEndian>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct ScriptText
{
    QString text;
    QString problem; ///< why the bytes are no text; empty if all is well
    int problemLine = 0;
};

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

/** Decodes UTF-16 of either byte order, UTF-8, and the Latin letters of a REGEDIT4 script. */
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

bool isBlank(QChar unit)
{
    return unit == u' ' || unit == u'\t' || unit == u'\r';
}

bool isHexDigit(QChar unit)
{
    return (unit >= u'0' && unit <= u'9') || (unit >= u'a' && unit <= u'f') || (unit >= u'A' && unit <= u'F');
}

/** Reads a script from its first character to its last, telling the line of what it can't read. */
class ScriptReader
{
public:
    ScriptReader(const QByteArray &bytes, const QString &fileName);
    QList<RegistryEdit> read();

private:
    [[noreturn]] void fail(const QString &reason) const;

    bool atEnd() const { return at_ >= text_.size(); }
    QChar peek() const { return atEnd() ? QChar(u'\n') : text_.at(at_); }
    QChar take();
    bool takeIf(QChar unit);
    bool takeWord(QStringView word);
    void skipBlanks();
    void skipBlankLines();
    void endLine();
    QString restOfLine();

    void readHeader();
    void readKey();
    void readValue();
    void readData(RegistryEdit &edit);
    QString readQuoted();
    QByteArray readDWord();
    RegistryType readHexType();
    QByteArray readBytes();
    QByteArray widened(RegistryType type, const QByteArray &data) const;

    QString fileName_;
    QString text_;
    qsizetype at_ = 0;
    int line_ = 1;
    bool narrow_ = false; ///< version 4, whose texts are no UTF-16 where they are written as bytes
    bool removing_ = false;
    QString key_;
    QList<RegistryEdit> edits_;
};

ScriptReader::ScriptReader(const QByteArray &bytes, const QString &fileName)
    : fileName_(fileName)
{
    const ScriptText decoded = decodeScript(bytes);
    text_ = decoded.text;
    if (!decoded.problem.isEmpty()) {
        line_ = decoded.problemLine;
        fail(decoded.problem);
    }
}

void ScriptReader::fail(const QString &reason) const
{
    throw MachineError{u"%1:%2: %3"_s.arg(fileName_, QString::number(line_), reason)};
}

QChar ScriptReader::take()
{
    const QChar unit = peek();
    ++at_;
    if (unit == u'\n')
        ++line_;
    return unit;
}

bool ScriptReader::takeIf(QChar unit)
{
    if (atEnd() || peek() != unit)
        return false;
    take();
    return true;
}

/** A word of the format, whatever its case. */
bool ScriptReader::takeWord(QStringView word)
{
    if (!QStringView(text_).sliced(at_).startsWith(word, Qt::CaseInsensitive))
        return false;
    at_ += word.size();
    return true;
}

void ScriptReader::skipBlanks()
{
    while (!atEnd() && isBlank(peek()))
        take();
}

/** Goes on to the next line that holds something beside a comment. */
void ScriptReader::skipBlankLines()
{
    for (skipBlanks(); !atEnd() && (peek() == u'\n' || peek() == u';'); skipBlanks()) {
        if (peek() == u';')
            restOfLine();
        takeIf(u'\n');
    }
}

void ScriptReader::endLine()
{
    skipBlanks();
    if (peek() == u';')
        restOfLine();
    if (peek() != u'\n')
        fail(u"unexpected text after the value"_s);
    takeIf(u'\n');
}

/** Everything before the line's end, which stays. */
QString ScriptReader::restOfLine()
{
    const qsizetype start = at_;
    while (peek() != u'\n')
        take();
    return text_.sliced(start, at_ - start);
}

QList<RegistryEdit> ScriptReader::read()
{
    readHeader();
    for (skipBlankLines(); !atEnd(); skipBlankLines()) {
        if (takeIf(u'['))
            readKey();
        else if (peek() == u'"' || peek() == u'@')
            readValue();
        else
            fail(u"not a key, a value or a comment"_s);
    }
    return edits_;
}

void ScriptReader::readHeader()
{
    takeIf(QChar(QChar::ByteOrderMark));
    skipBlankLines();
    const QString header = restOfLine().trimmed();
    narrow_ = header == u"REGEDIT4";
    if (!narrow_ && header.compare(u"Windows Registry Editor Version 5.00", Qt::CaseInsensitive) != 0)
        fail(u"not a registry script: \"Windows Registry Editor Version 5.00\" is missing"_s);
}

void ScriptReader::readKey()
{
    const QString line = restOfLine();
    const qsizetype end = line.lastIndexOf(u']'); // a key's name may have one, too
    if (end < 0)
        fail(u"the key's closing bracket is missing"_s);
    const QString rest = line.mid(end + 1).trimmed();
    if (!rest.isEmpty() && !rest.startsWith(u';'))
        fail(u"unexpected text after the key"_s);
    removing_ = line.startsWith(u'-');
    key_ = line.sliced(removing_ ? 1 : 0, end - (removing_ ? 1 : 0));
    if (!RegistryStore::isHivePath(key_))
        fail(u"the key is in none of the registry's hives"_s);
    const QList<QStringView> levels = QStringView(key_).split(u'\\', Qt::SkipEmptyParts);
    if (removing_ && levels.size() < 2)
        fail(u"a whole hive can't be removed"_s);
    if (levels.size() > RegistryStore::mostLevels)
        fail(u"a key is at most %1 levels deep"_s.arg(RegistryStore::mostLevels));
    if (std::any_of(levels.begin(), levels.end(),
                    [](QStringView name) { return name.size() > RegistryStore::longestName; }))
        fail(u"a key's name has at most %1 characters"_s.arg(RegistryStore::longestName));
    edits_ << RegistryEdit{removing_ ? RegistryEdit::Kind::RemoveKey : RegistryEdit::Kind::MakeKey, key_, {}};
}

void ScriptReader::readValue()
{
    if (key_.isEmpty())
        fail(u"the value stands before the first key"_s);
    if (removing_)
        fail(u"the value stands below a key that is removed"_s);
    RegistryEdit edit{RegistryEdit::Kind::SetValue, key_, {}};
    if (!takeIf(u'@'))
        edit.value.name = readQuoted();
    skipBlanks();
    if (!takeIf(u'='))
        fail(u"missing \"=\" after the value's name"_s);
    skipBlanks();
    readData(edit);
    endLine();
    edits_ << edit;
}

void ScriptReader::readData(RegistryEdit &edit)
{
    if (takeIf(u'-')) {
        edit.kind = RegistryEdit::Kind::RemoveValue;
    } else if (peek() == u'"') {
        edit.value.data = registryText(readQuoted());
    } else if (takeWord(u"dword:")) {
        edit.value.type = RegistryType::DWord;
        edit.value.data = readDWord();
    } else if (takeWord(u"hex")) {
        edit.value.type = readHexType();
        edit.value.data = widened(edit.value.type, readBytes());
    } else {
        fail(u"the value's data must be a text, dword: or hex:"_s);
    }
}

QString ScriptReader::readQuoted()
{
    take(); // the quotation mark
    const int start = line_;
    QString text;
    while (!atEnd()) {
        const QChar unit = take();
        if (unit == u'"')
            return text;
        const bool escaped = unit == u'\\' && (peek() == u'\\' || peek() == u'"');
        text += escaped ? take() : unit;
    }
    line_ = start;
    fail(u"the text's closing quotation mark is missing"_s);
}

QByteArray ScriptReader::readDWord()
{
    QString digits;
    while (isHexDigit(peek()))
        digits += take();
    if (digits.size() > 8)
        fail(u"a dword has at most eight digits"_s);
    return registryDWord(digits.toUInt(nullptr, 16)); // none at all read 0
}

RegistryType ScriptReader::readHexType()
{
    quint32 type = quint32(RegistryType::Binary);
    if (takeIf(u'(')) {
        QString digits;
        while (isHexDigit(peek()))
            digits += take();
        if (digits.isEmpty() || digits.size() > 8 || !takeIf(u')'))
            fail(u"the type's number is missing or wrong"_s);
        type = digits.toUInt(nullptr, 16);
    }
    if (!takeIf(u':'))
        fail(u"missing \":\" after hex"_s);
    return RegistryType(type);
}

QByteArray ScriptReader::readBytes()
{
    QByteArray bytes;
    for (;;) {
        skipBlanks();
        if (takeIf(u'\\')) { // the bytes go on in the next line
            const int start = line_;
            endLine();
            if (atEnd()) {
                line_ = start;
                fail(u"the file ends inside a value"_s);
            }
            continue;
        }
        QString digits;
        while (isHexDigit(peek()))
            digits += take();
        if (digits.isEmpty())
            return bytes;
        if (digits.size() > 2)
            fail(u"a byte has at most two digits"_s);
        bytes += char(digits.toUShort(nullptr, 16));
        skipBlanks();
        if (!takeIf(u',') && peek() != u'\\')
            return bytes;
    }
}

/** Data as version 5 has it: version 4 writes the bytes of texts in the code page. */
QByteArray ScriptReader::widened(RegistryType type, const QByteArray &data) const
{
    const bool text =
        type == RegistryType::String || type == RegistryType::ExpandString || type == RegistryType::MultiString;
    return narrow_ && text ? registryText(QString::fromLatin1(data)).chopped(2) : data;
}

} // namespace

QList<RegistryEdit> parseRegistryScript(const QByteArray &bytes, const QString &fileName)
{
    return ScriptReader(bytes, fileName).read();
}
