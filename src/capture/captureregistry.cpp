// SPDX-License-Identifier: GPL-3.0-or-later

#include "capturesteps.h"
#include "platform/windowsfacts.h"
#include "work/settings.h"

#include <QMap>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/** The name of its last value is read, whatever that is. */
constexpr QLatin1StringView cloudBackupPrefix("CloudBackupRestoreSvc_");

bool isText(const RegistryValue &value)
{
    return value.type == RegistryType::String || value.type == RegistryType::ExpandString;
}

bool isNamed(const RegistryValue &value, QLatin1StringView name)
{
    return value.name.compare(name, Qt::CaseInsensitive) == 0;
}

std::optional<RegistryValue> valueNamed(const KeyContent &content, QLatin1StringView name)
{
    const auto value = std::find_if(content.values.begin(), content.values.end(),
                                    [name](const RegistryValue &each) { return isNamed(each, name); });
    return value == content.values.end() ? std::nullopt : std::optional(*value);
}

constexpr QLatin1StringView
    userProperties("HKEY_CURRENT_USER\\Software\\Microsoft\\IdentityCRL\\UserExtendedProperties");
constexpr QLatin1StringView profileList("\\ProfileList");         // below the version of Windows
constexpr QLatin1StringView tcpParameters("\\Tcpip\\Parameters"); // below the services

/** Where the program of a command ends. */
qsizetype endOfProgram(const QString &command)
{
    static const QRegularExpression ending(u"\\.(?:exe|com|bat|cmd|scr|pif|vbs|vbe|js|jse|wsf|msc|cpl|lnk|ps1|msi)"
                                           "(?![\\w.\\\\])"_s,
                                           QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression blank(u"\\s"_s);

    if (const qsizetype quote = command.indexOf(u'"', 1); command.startsWith(u'"') && quote > 0)
        return quote + 1;
    if (const QRegularExpressionMatch match = ending.match(command); match.hasMatch())
        return match.capturedEnd();
    const qsizetype end = command.indexOf(blank);
    return end < 0 ? command.size() : end;
}

/** A record of a program at logon is its command up to a "=", and the path of its value. */
QString recordWithoutArguments(const QString &record)
{
    const qsizetype end = record.indexOf(u'=');
    const QString command = record.left(end);
    return command.startsWith("HKEY_"_L1) ? record // of a packaged task
                                          : withoutArguments(command) + (end < 0 ? QString() : record.sliced(end));
}

/** A command as the registry may hold it: also as bytes, of which the program makes a text. */
RegistryValue cutValue(RegistryValue value, QString (*cut)(const QString &))
{
    if (value.type == RegistryType::MultiString) {
        QStringList texts = textsOf(value.data);
        for (QString &text : texts)
            text = cut(text);
        value.data = registryTexts(texts);
    } else if (value.type != RegistryType::DWord && value.type != RegistryType::QWord) {
        const QString text = textOf(value.data);
        if (const QString kept = cut(text); kept != text)
            value.data = registryText(kept);
    }
    return value;
}

/** Another text of the same length, so that it is cut and counted alike. */
QString neutralHint(const QString &hint)
{
    return QString(hint.size(), u'4');
}

class RegistryCapture
{
public:
    RegistryCapture(const SystemReader &system, bool withNames)
        : system_(system)
        , withNames_(withNames)
    {
    }

    CapturedRegistry result()
    {
        for (const CaptureKey &key : captureKeys())
            take(key);
        takeAdapters();
        takeInterfaces();
        return result_;
    }

private:
    void take(const CaptureKey &key)
    {
        switch (key.reach) {
        case Reach::Named:
            takeValues(key.path, &key.values);
            break;
        case Reach::Own:
            takeValues(key.path, nullptr);
            break;
        case Reach::Tree:
            takeTree(key.path);
            break;
        case Reach::NamedOfSubkeys:
            for (const QString &name : open(key.path).subkeys)
                takeSubkey(key, name);
            break;
        }
    }

    /** The key itself and those values of it that are wanted; all of them without a list. */
    KeyContent takeValues(const QString &path, const QStringList *wanted)
    {
        const KeyContent content = open(path);
        for (const RegistryValue &value : content.values) {
            if (wanted == nullptr || wanted->contains(value.name, Qt::CaseInsensitive))
                takeValue(path, value);
        }
        return content;
    }

    KeyContent open(const QString &path)
    {
        const KeyContent content = system_.key(path);
        if (content.isRefused && !result_.refused.contains(path))
            result_.refused.append(path);
        if (content.isThere)
            result_.edits.append({RegistryEdit::Kind::MakeKey, path, {}});
        return content;
    }

    void takeValue(const QString &path, const RegistryValue &value)
    {
        result_.edits.append(
            {RegistryEdit::Kind::SetValue, path, withNames_ ? value : withoutPrivateParts(path, value)});
        const bool shown = isNamed(value, "DisplayName"_L1) || isNamed(value, "Description"_L1);
        if (shown && path.startsWith(WindowsKey::services))
            result_.serviceTexts.append(textOf(value.data));
        else if (isText(value) && (WindowsKey::runKeys.contains(path) || path == recordKey(u"Autorun"_s)))
            result_.commands.append(textOf(value.data));
    }

    static RegistryValue withoutPrivateParts(const QString &path, const RegistryValue &value)
    {
        if (WindowsKey::runKeys.contains(path))
            return cutValue(value, withoutArguments);
        return path == recordKey(u"Autorun"_s) ? cutValue(value, recordWithoutArguments) : value;
    }

    void takeTree(const QString &path)
    {
        for (const QString &name : takeValues(path, nullptr).subkeys)
            takeTree(path + u'\\' + name);
    }

    void takeSubkey(const CaptureKey &key, const QString &name)
    {
        const QString path = key.path + u'\\' + name;
        if (key.path == WindowsKey::services && name.startsWith(cloudBackupPrefix, Qt::CaseInsensitive)) {
            takeTree(path);
            return;
        }
        const KeyContent content = takeValues(path, &key.values);
        if (key.path == WindowsKey::userPackages)
            packageNames_.insert(foldName(name), valueNamed(content, "DisplayName"_L1));
        else if (key.path == WindowsKey::machinePackages && !valueNamed(content, "DisplayName"_L1))
            lendName(path, packageNames_.value(foldName(name)));
    }

    /** A package that comes back is named by what stands in it; a rehearsal machine looks for that name here. */
    void lendName(const QString &path, const std::optional<RegistryValue> &name)
    {
        if (name)
            takeValue(path, *name);
    }

    void takeAdapters()
    {
        const QStringList wanted{u"EnableUlps"_s};
        for (const QString &adapter : open(WindowsKey::displayAdapters).subkeys) {
            const QString path = WindowsKey::displayAdapters + u'\\' + adapter;
            open(path);
            for (int instance = 0; instance <= 5; ++instance)
                takeValues(path + u"\\000"_s + QString::number(instance), &wanted);
        }
    }

    void takeInterfaces()
    {
        takeInterface(WindowsKey::networkInterfaces); // values may lie there, too
        for (const QString &name : system_.key(WindowsKey::networkInterfaces).subkeys)
            takeInterface(WindowsKey::networkInterfaces + u'\\' + name);
    }

    void takeInterface(const QString &path)
    {
        const QStringList switches{u"TcpAckFrequency"_s, u"TCPNoDelay"_s};
        for (const RegistryValue &value : takeValues(path, &switches).values) {
            if (isNamed(value, "DhcpIPAddress"_L1))
                takeAddress(path, value);
            else if (isNamed(value, "DhcpNetworkHint"_L1))
                takeNetwork(path, value);
        }
    }

    /** Whether there is one is all that counts. */
    void takeAddress(const QString &path, RegistryValue value)
    {
        const QString address = textOf(value.data);
        if (!withNames_ && !address.isEmpty() && address != "0.0.0.0"_L1) {
            value.data = registryText(u"192.0.2.1"_s); // of the block for examples
            result_.replaced.append(address);
        }
        takeValue(path, value);
    }

    /** The name of the wireless network that was joined last; its subkey has the first half of it. */
    void takeNetwork(const QString &path, RegistryValue value)
    {
        constexpr qsizetype lengthOfSubkey = 12;

        const QString hint = textOf(value.data);
        const QString shown = withNames_ ? hint : neutralHint(hint);
        if (shown != hint)
            result_.replaced.append(hint);
        value.data = registryText(shown);
        takeValue(path, value);
        const KeyContent network = system_.key(path + u'\\' + hint.left(lengthOfSubkey));
        if (!network.isThere || hint.isEmpty())
            return;
        const QString place = path + u'\\' + shown.left(lengthOfSubkey);
        result_.edits.append({RegistryEdit::Kind::MakeKey, place, {}});
        for (const RegistryValue &each : network.values) {
            if (isNamed(each, "TcpAckFrequency"_L1) || isNamed(each, "TCPNoDelay"_L1))
                takeValue(place, each);
        }
    }

    const SystemReader &system_;
    bool withNames_;
    QMap<QString, std::optional<RegistryValue>> packageNames_; ///< of the user's packages, by full name
    CapturedRegistry result_;
};

} // namespace

CapturedRegistry captureRegistry(const SystemReader &system, bool withNames)
{
    return RegistryCapture(system, withNames).result();
}

QString withoutArguments(const QString &command)
{
    QString kept = command.first(endOfProgram(command));
    const QString rest = command.sliced(kept.size());
    if (rest == " /background"_L1) // OneDrive's, which its installer writes again
        return command;
    const qsizetype equals = rest.indexOf(u'=');
    const QString file = command.startsWith(u'"') ? QString() : rest.section(u'"', 1, 1);
    const QString quoted = isWholePath(file) ? u" \""_s + file + u'"' : QString();
    const bool equalsFirst = equals >= 0 && equals < rest.indexOf(u'"');
    if (equals < 0)
        return kept + quoted;
    return equalsFirst ? kept + u" ="_s + quoted : kept + quoted + u" ="_s;
}

PersonalNames personalNames(const SystemReader &system)
{
    PersonalNames names;
    const QString network = WindowsKey::services + tcpParameters;
    for (const QString &name : {u"Hostname"_s, u"NV Hostname"_s, u"Domain"_s, u"NV Domain"_s})
        names.hosts.append(registryTextOf(system, network, name));
    // Whoever logs on with an account of Microsoft's has a key named by its address.
    names.persons = system.namesOfUser() + system.key(userProperties).subkeys;
    const QString profiles = WindowsKey::currentVersion + profileList;
    for (const QString &account : system.key(profiles).subkeys) {
        if (account.startsWith("S-1-5-21-"_L1) || account.startsWith("S-1-12-"_L1))
            names.others.append(
                registryTextOf(system, profiles + u'\\' + account, u"ProfileImagePath"_s).section(u'\\', -1));
    }
    return names;
}

QString registryTextOf(const SystemReader &system, const QString &key, const QString &name)
{
    for (const RegistryValue &value : system.key(key).values) {
        if (value.name.compare(name, Qt::CaseInsensitive) == 0 && isText(value))
            return textOf(value.data);
    }
    return QString();
}
