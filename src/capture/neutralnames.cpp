// SPDX-License-Identifier: GPL-3.0-or-later

#include "neutralnames.h"

#include "capturesteps.h"
#include "work/settings.h"

#include <QJsonValue>
#include <QUrl>
#include <QtEndian>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString neutralUser = u"User"_s;
const QString neutralHost = u"PC"_s;
const QString neutralOther = u"Other"_s;

/** Names that are words of Windows itself: they are replaced only where they can't mean anything else. */
bool isOrdinaryWord(const QString &name)
{
    constexpr qsizetype shortestName = 3;
    // clang-format off
    static const QStringList words{
        u"admin"_s, u"administrator"_s, u"appdata"_s, u"azuread"_s, u"common"_s, u"computer"_s, u"data"_s, u"default"_s,
        u"desktop"_s, u"device"_s, u"drivers"_s, u"family"_s, u"files"_s, u"guest"_s, u"home"_s, u"lan"_s, u"laptop"_s,
        u"local"_s, u"machine"_s, u"microsoft"_s, u"network"_s, u"office"_s, u"owner"_s, u"program"_s, u"public"_s,
        u"roaming"_s, u"root"_s, u"service"_s, u"services"_s, u"software"_s, u"system"_s, u"system32"_s, u"task"_s,
        u"tasks"_s, u"temp"_s, u"test"_s, u"update"_s, u"user"_s, u"users"_s, u"win"_s, u"windows"_s, u"work"_s,
        u"workgroup"_s,
    };
    // clang-format on
    return name.size() < shortestName || words.contains(name, Qt::CaseInsensitive);
}

/** Parts of full names, and of addresses, that are words of descriptions more often than names. */
bool isWordOfTexts(const QString &part)
{
    // clang-format off
    static const QStringList words{
        u"account"_s, u"and"_s, u"art"_s, u"best"_s, u"bill"_s, u"case"_s, u"contact"_s, u"den"_s, u"der"_s, u"del"_s,
        u"info"_s, u"link"_s, u"long"_s, u"mail"_s, u"mark"_s, u"may"_s, u"out"_s, u"page"_s, u"power"_s, u"street"_s,
        u"support"_s, u"the"_s, u"van"_s, u"von"_s, u"will"_s,
    };
    // clang-format on
    return words.contains(part, Qt::CaseInsensitive);
}

QRegularExpression anyCase(const QString &pattern)
{
    return QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption
                                           | QRegularExpression::UseUnicodePropertiesOption);
}

/** Stands alone: no letter or digit before or after it. */
QString wholeWord(const QString &name)
{
    return u"(?<![\\p{L}\\p{N}])"_s + QRegularExpression::escape(name) + u"(?![\\p{L}\\p{N}])"_s;
}

/** The part of @p path at the level of the profile's own folder. */
QString folderOfUser(const QString &profile, const QString &path)
{
    const auto levels = [](const QString &text) { return QString(text).replace(u'/', u'\\').split(u'\\'); };
    const QStringList own = levels(profile);
    const QStringList other = levels(path);
    const qsizetype level = own.size() - 1;
    const bool beside =
        level > 0 && other.size() > level
        && own.first(level).join(u'\\').compare(other.first(level).join(u'\\'), Qt::CaseInsensitive) == 0;
    return beside ? other.at(level) : QString();
}

/** As a name stands in XML and in an address of the web, too. */
QStringList spellingsOf(const QString &name)
{
    QStringList spellings{name, name.toHtmlEscaped(), name.toHtmlEscaped().replace(u"'"_s, u"&apos;"_s),
                          QString::fromLatin1(QUrl::toPercentEncoding(name))};
    spellings.removeDuplicates();
    return spellings;
}

enum class Found { Anywhere, AtOddPlaces };

/** Overwrites what is found by as many signs that mean nothing, since lengths may stand beside it. */
void overwrite(QByteArray &data, const QRegularExpression &names, const QByteArray &sign, Found found = Found::Anywhere)
{
    const QString text = QString::fromLatin1(data);
    for (auto matches = names.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        if (found == Found::AtOddPlaces && match.capturedStart() % 2 == 0)
            continue;
        for (qsizetype i = 0; i < match.capturedLength(); ++i)
            data[match.capturedStart() + i] = sign.at(i % sign.size());
    }
}

QString variable(const QMap<QString, QString> &environment, QLatin1StringView name)
{
    for (auto it = environment.begin(); it != environment.end(); ++it) {
        if (it.key().compare(name, Qt::CaseInsensitive) == 0)
            return it.value();
    }
    return QString();
}

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

NeutralNames::NeutralNames(const QMap<QString, QString> &environment)
{
    for (const QLatin1StringView name : {"COMPUTERNAME"_L1, "USERDOMAIN"_L1, "USERDNSDOMAIN"_L1})
        addHost(variable(environment, name));
    const QString profile = variable(environment, "USERPROFILE"_L1);
    addUser(variable(environment, "USERNAME"_L1));
    addUser(folderOfUser(profile, profile));
    // These may name the folder in its short form.
    addUser(folderOfUser(profile, variable(environment, "TEMP"_L1)));
    addUser(folderOfUser(profile, variable(environment, "LOCALAPPDATA"_L1)));
    // Whoever else has a folder there
    rules_.append({anyCase(u"((?:[a-z]:|%systemdrive%|%homedrive%)[\\\\/]+Users[\\\\/]+)"
                           "(?!(?:Public|Default|Default User|All Users|User|Other)(?:[\\\\/\"',;)]|$))"
                           "[^\\\\/\"<>|:;,=+*?\\r\\n]+"_s),
                   u"\\1"_s + neutralOther});
}

void NeutralNames::addHost(const QString &name)
{
    if (name.isEmpty() || hosts_.contains(name, Qt::CaseInsensitive))
        return;
    hosts_.append(name);
    addWord(name, neutralHost);
}

void NeutralNames::addUser(const QString &name)
{
    if (name.isEmpty())
        return;
    const QString written = QRegularExpression::escape(name);
    const bool sought = isOrdinaryWord(name) && name.compare(neutralUser, Qt::CaseInsensitive) != 0;
    rules_.prepend({anyCase(u"([\\\\/]Users[\\\\/]+)"_s + written + u"(?=[\\\\/\"',;)]|$)"_s), u"\\1"_s + neutralUser});
    for (const QString &host : std::as_const(hosts_)) {
        rules_.prepend({anyCase(u"(?<![\\p{L}\\p{N}])(?:"_s + QRegularExpression::escape(host) + u'|' + neutralHost
                                + u")\\\\"_s + written + u"(?![\\p{L}\\p{N}])"_s),
                        neutralHost + u'\\' + neutralUser});
        if (sought)
            places_.append(host + u'\\' + name);
    }
    if (sought)
        places_.append(u"\\Users\\"_s + name);
    addWord(name, neutralUser);
}

void NeutralNames::addPerson(const QString &name)
{
    static const QRegularExpression between(u"[\\s,]+"_s);

    addWord(name, neutralUser);
    const QStringList parts = name.contains(u'@') ? QStringList(name.section(u'@', 0, 0)) : name.split(between);
    for (const QString &part : parts) {
        if (!isWordOfTexts(part))
            addWord(part, neutralUser);
    }
}

void NeutralNames::addOther(const QString &folder)
{
    addWord(folder, neutralOther);
}

void NeutralNames::addWord(const QString &name, const QString &neutral)
{
    if (isOrdinaryWord(name))
        return;
    for (const QString &spelling : spellingsOf(name)) {
        const auto isKnown = [&](const Word &word) { return word.name.compare(spelling, Qt::CaseInsensitive) == 0; };
        if (std::any_of(words_.begin(), words_.end(), isKnown))
            continue;
        // A name may be part of a longer one.
        const auto place = std::find_if(words_.begin(), words_.end(),
                                        [&](const Word &word) { return word.name.size() < spelling.size(); });
        words_.insert(place, {spelling, {anyCase(wholeWord(spelling)), neutral}});
    }
}

QStringList NeutralNames::replaced() const
{
    QStringList names;
    for (const Word &word : words_)
        names.append(word.name);
    names += places_ + authorities_.keys();
    names.removeDuplicates();
    return names;
}

QString NeutralNames::text(const QString &text)
{
    // An expression finds nothing in a text with halves of pairs.
    QString result = text.isValidUtf16() ? text : QString::fromUtf8(text.toUtf8());
    for (const Word &word : std::as_const(words_))
        result.replace(word.rule.expression, word.rule.replacement);
    for (const Rule &rule : std::as_const(rules_))
        result.replace(rule.expression, rule.replacement);
    return withNeutralAccounts(result);
}

QString NeutralNames::neutralAuthority(const QString &authority)
{
    QString &neutral = authorities_[authority];
    if (neutral.isEmpty())
        neutral = u"1000000000-1000000000-%1"_s.arg(1000000000 + authorities_.size());
    return neutral;
}

/** "S-1-5-21-<the PC or domain>-<the account>", and accounts of a directory in the cloud. */
QString NeutralNames::withNeutralAccounts(const QString &text)
{
    static const QRegularExpression account(u"\\b(S-1-5-21-|S-1-12-1-\\d+-)(\\d+-\\d+-\\d+)"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    QString result;
    qsizetype end = 0;
    for (auto matches = account.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const bool inCloud = match.capturedView(1).startsWith(u"S-1-12", Qt::CaseInsensitive);
        result += text.mid(end, match.capturedStart() - end);
        result += (inCloud ? u"S-1-12-1-1000000000-"_s : match.captured(1)) + neutralAuthority(match.captured(2));
        end = match.capturedEnd();
    }
    return result + text.mid(end);
}

/** The same numbers as bytes, in what says who may do what. */
QByteArray NeutralNames::withNeutralAccounts(const QByteArray &data)
{
    static const QByteArray start = QByteArray::fromHex("01050000000000051500"
                                                        "0000");
    constexpr qsizetype numbers = 3;

    QByteArray result = data;
    for (qsizetype at = result.indexOf(start); at >= 0; at = result.indexOf(start, at + 1)) {
        char *place = result.data() + at + start.size();
        if (at + start.size() + numbers * 4 > result.size())
            break;
        QStringList parts;
        for (qsizetype i = 0; i < numbers; ++i)
            parts.append(QString::number(qFromLittleEndian<quint32>(place + 4 * i)));
        parts = neutralAuthority(parts.join(u'-')).split(u'-');
        for (qsizetype i = 0; i < numbers; ++i)
            qToLittleEndian(parts.at(i).toUInt(), place + 4 * i);
    }
    return result;
}

/**
 * Names, and the numbers of accounts in texts, among bytes of whatever meaning.
 * @param isText the bytes are a wide text whose own names are replaced already: what else may be in there is a narrow
 * one, or a wide one at an odd place
 */
QByteArray NeutralNames::withoutNames(QByteArray data, bool isText) const
{
    static const QRegularExpression account(u"(?<=S-1-5-21-)\\d+-\\d+-\\d+"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression wideAccount(
        u"(?<=S\\x00-\\x001\\x00-\\x005\\x00-\\x002\\x001\\x00-\\x00)(?:\\d\\x00)+(?:-\\x00(?:\\d\\x00)+){2}"_s,
        QRegularExpression::CaseInsensitiveOption);

    overwrite(data, inBytes_, "x");
    overwrite(data, account, "0");
    const Found wide = isText ? Found::AtOddPlaces : Found::Anywhere;
    overwrite(data, inUtf16_, QByteArray("x\0", 2), wide);
    overwrite(data, wideAccount, QByteArray("0\0", 2), wide);
    return data;
}

QByteArray NeutralNames::bytes(const QByteArray &data)
{
    return withoutNames(withNeutralAccounts(data), false);
}

RegistryValue NeutralNames::value(RegistryValue value)
{
    // What stays keeps its bytes, also where they are no whole text. After the end of a text nobody looks for more.
    switch (value.type) {
    case RegistryType::String:
    case RegistryType::ExpandString: {
        const QString before = textOf(value.data);
        if (const QString after = text(before); after != before || value.data.size() > (before.size() + 1) * 2)
            value.data = registryText(after);
        value.data = withoutNames(value.data, true);
        break;
    }
    case RegistryType::MultiString: {
        const QStringList before = textsOf(value.data);
        QStringList after = before;
        for (QString &each : after)
            each = text(each);
        if (after != before || value.data.size() > registryTexts(before).size())
            value.data = registryTexts(after);
        value.data = withoutNames(value.data, true);
        break;
    }
    case RegistryType::DWord:
    case RegistryType::QWord:
        if (value.data.size() > static_cast<qsizetype>(sizeof(quint64)))
            value.data = bytes(value.data);
        break;
    default:
        value.data = bytes(value.data);
    }
    return value;
}

QString NeutralNames::key(const QString &path)
{
    const QString own = capturedPlace(path).key;
    return own + text(path.sliced(own.size()));
}

void NeutralNames::replaceIn(RegistryEdit &edit)
{
    const CapturedPlace place = capturedPlace(edit.key);
    if (edit.kind == RegistryEdit::Kind::SetValue) {
        edit.value = value(edit.value);
        const bool isOwn = place.values.contains(edit.value.name, Qt::CaseInsensitive) || edit.key == programKey;
        if (!isOwn)
            edit.value.name = text(edit.value.name);
    }
    edit.key = key(edit.key);
}

void NeutralNames::replaceIn(FileDescription &file)
{
    file.path = text(file.path);
    if (!file.content)
        return;
    // Byte by byte, whatever the code page
    const QByteArray content = bytes(text(QString::fromLatin1(*file.content)).toLatin1());
    file.size = file.size.value_or(0) + content.size() - file.content->size();
    file.content = content;
}

void NeutralNames::replaceIn(MachineDescription &description)
{
    if (description.name)
        description.name = text(*description.name);
    for (auto it = description.environment.begin(); it != description.environment.end(); ++it) {
        if (it.key().compare("USERNAME"_L1, Qt::CaseInsensitive) == 0)
            *it = neutralUser;
        else if (it.key().compare("USERDOMAIN"_L1, Qt::CaseInsensitive) == 0)
            *it = neutralHost;
        else
            *it = text(*it);
    }
    if (description.processes) {
        for (QString &process : *description.processes)
            process = text(process);
    }
    for (QList<QJsonObject> &instances : description.wmi) {
        for (QJsonObject &instance : instances) {
            for (QJsonValueRef property : instance)
                if (property.isString())
                    property = text(property.toString());
        }
    }
    for (FileDescription &file : description.files)
        replaceIn(file);
    QMap<QString, QMap<uint, QString>> dlls;
    for (auto it = description.dlls.begin(); it != description.dlls.end(); ++it) {
        QMap<uint, QString> strings = it.value();
        for (QString &string : strings)
            string = text(string);
        dlls.insert(text(it.key()), strings);
    }
    description.dlls = dlls;
}

void NeutralNames::replaceIn(MachineContents &contents)
{
    inBytes_ = namesInBytes(replaced(), TextForm::Bytes);
    inUtf16_ = namesInBytes(replaced(), TextForm::Utf16);
    for (RegistryEdit &edit : contents.registry)
        replaceIn(edit);
    for (ServiceReport &service : contents.services)
        service.name = text(service.name);
    for (ScheduledTask &task : contents.tasks) {
        task.path = text(task.path);
        task.document = text(task.document);
    }
    replaceIn(contents.description);
    contents.description.namesReplaced = true;
}

QRegularExpression namesInBytes(const QStringList &names, TextForm form)
{
    QStringList patterns;
    for (const QString &name : names)
        patterns.append(standingAlone(name, inBytes(name, form), form));
    const QString nothing = u"(?!)"_s;
    return QRegularExpression(patterns.isEmpty() ? nothing : patterns.join(u'|'));
}
