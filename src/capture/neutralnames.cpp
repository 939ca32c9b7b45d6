// SPDX-License-Identifier: GPL-3.0-or-later

#include "neutralnames.h"

#include "capturesteps.h"
#include "platform/windowsfacts.h"
#include "work/settings.h"

#include <QtEndian>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString neutralUser = u"User"_s;
const QString neutralHost = u"PC"_s;

/** Names that are words of Windows itself: they are replaced only where they can't mean anything else. */
bool isOrdinaryWord(const QString &name)
{
    constexpr qsizetype shortestName = 3;
    // clang-format off
    static const QStringList words{
        u"admin"_s, u"administrator"_s, u"appdata"_s, u"common"_s, u"computer"_s, u"data"_s, u"default"_s,
        u"desktop"_s, u"device"_s, u"drivers"_s, u"family"_s, u"files"_s, u"guest"_s, u"home"_s, u"laptop"_s,
        u"local"_s, u"machine"_s, u"microsoft"_s, u"network"_s, u"office"_s, u"owner"_s, u"program"_s, u"public"_s,
        u"roaming"_s, u"root"_s, u"service"_s, u"services"_s, u"software"_s, u"system"_s, u"system32"_s, u"task"_s,
        u"tasks"_s, u"temp"_s, u"test"_s, u"update"_s, u"user"_s, u"users"_s, u"win"_s, u"windows"_s, u"work"_s,
    };
    // clang-format on
    return name.size() < shortestName || words.contains(name, Qt::CaseInsensitive);
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

QString variable(const QMap<QString, QString> &environment, QLatin1StringView name)
{
    for (auto it = environment.begin(); it != environment.end(); ++it) {
        if (it.key().compare(name, Qt::CaseInsensitive) == 0)
            return it.value();
    }
    return QString();
}

} // namespace

NeutralNames::NeutralNames(const QMap<QString, QString> &environment)
{
    for (const QLatin1StringView name : {"COMPUTERNAME"_L1, "USERDOMAIN"_L1})
        addHost(variable(environment, name));
    const QString profile = variable(environment, "USERPROFILE"_L1);
    addUser(variable(environment, "USERNAME"_L1));
    addUser(folderOfUser(profile, profile));
    // These may name the folder in its short form.
    addUser(folderOfUser(profile, variable(environment, "TEMP"_L1)));
    addUser(folderOfUser(profile, variable(environment, "LOCALAPPDATA"_L1)));
    // Whoever else has a folder there
    rules_.append(
        {anyCase(u"([a-z]:[\\\\/]+Users[\\\\/]+)(?!(?:Public|Default|Default User|All Users|User)(?:[\\\\/\"]|$))"
                 "[^\\\\/\"<>|:*?\\r\\n]+"_s),
         u"\\1Other"_s});
}

void NeutralNames::addHost(const QString &name)
{
    if (name.isEmpty() || hosts_.contains(name, Qt::CaseInsensitive))
        return;
    hosts_.append(name);
    if (!isOrdinaryWord(name))
        rules_.append({anyCase(wholeWord(name)), neutralHost});
}

void NeutralNames::addUser(const QString &name)
{
    if (name.isEmpty())
        return;
    const QString written = QRegularExpression::escape(name);
    rules_.append({anyCase(u"([\\\\/]Users[\\\\/]+)"_s + written + u"(?=[\\\\/\"]|$)"_s), u"\\1"_s + neutralUser});
    for (const QString &host : std::as_const(hosts_)) {
        rules_.append({anyCase(u"(?<![\\p{L}\\p{N}])(?:"_s + QRegularExpression::escape(host) + u'|' + neutralHost
                               + u")\\\\"_s + written + u"(?![\\p{L}\\p{N}])"_s),
                       neutralHost + u'\\' + neutralUser});
    }
    if (!isOrdinaryWord(name))
        rules_.append({anyCase(wholeWord(name)), neutralUser});
}

QString NeutralNames::text(const QString &text)
{
    QString result = text;
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

RegistryValue NeutralNames::value(RegistryValue value)
{
    const auto texts = [this](QStringList list) {
        for (QString &each : list)
            each = text(each);
        return list;
    };
    switch (value.type) {
    case RegistryType::String:
    case RegistryType::ExpandString:
        // What stays keeps its bytes, also where they are no whole text.
        if (const QString before = textOf(value.data), after = text(before); after != before)
            value.data = registryText(after);
        break;
    case RegistryType::MultiString:
        if (const QStringList before = textsOf(value.data), after = texts(before); after != before)
            value.data = registryTexts(after);
        break;
    default:
        value.data = withNeutralAccounts(value.data);
    }
    return value;
}

void NeutralNames::replaceIn(RegistryEdit &edit)
{
    if (edit.kind != RegistryEdit::Kind::SetValue)
        return;
    edit.value = value(edit.value);
    // Elsewhere the names of values are the program's own.
    if (WindowsKey::runKeys.contains(edit.key) || edit.key.startsWith(programKey + u'\\'))
        edit.value.name = text(edit.value.name);
}

void NeutralNames::replaceIn(FileDescription &file)
{
    file.path = text(file.path);
    if (!file.content)
        return;
    // Byte by byte, whatever the code page
    const QByteArray content = text(QString::fromLatin1(*file.content)).toLatin1();
    file.size = file.size.value_or(0) + content.size() - file.content->size();
    file.content = content;
}

void NeutralNames::replaceIn(MachineDescription &description)
{
    for (auto it = description.environment.begin(); it != description.environment.end(); ++it) {
        if (it.key().compare("USERNAME"_L1, Qt::CaseInsensitive) == 0)
            *it = neutralUser;
        else if (it.key().compare("USERDOMAIN"_L1, Qt::CaseInsensitive) == 0)
            *it = neutralHost;
        else
            *it = text(*it);
    }
    for (FileDescription &file : description.files)
        replaceIn(file);
    QMap<QString, QMap<uint, QString>> dlls;
    for (auto it = description.dlls.begin(); it != description.dlls.end(); ++it)
        dlls.insert(text(it.key()), it.value());
    description.dlls = dlls;
}

void NeutralNames::replaceIn(MachineContents &contents)
{
    static const QRegularExpression otherAccount(u"(<UserId>)(?!S-1-)[^<]*(</UserId>)"_s);

    for (RegistryEdit &edit : contents.registry)
        replaceIn(edit);
    for (ScheduledTask &task : contents.tasks) {
        task.path = text(task.path);
        task.document =
            text(task.document).replace(otherAccount, u"\\1"_s + neutralHost + u'\\' + neutralUser + u"\\2"_s);
    }
    replaceIn(contents.description);
    contents.description.namesReplaced = true;
}
