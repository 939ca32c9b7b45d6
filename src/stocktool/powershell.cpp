// SPDX-License-Identifier: GPL-3.0-or-later
// powershell: removes packaged applications for the user, and registers them again.

#include "platform/windowsfacts.h"
#include "tools.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr int exitFailed = 1;

// Keys that are always there: what lies below is opened from them, since to open a missing key would make it.
const QString userRoot = u"HKEY_CURRENT_USER\\Software"_s;
const QString machineRoot = u"HKEY_LOCAL_MACHINE\\SOFTWARE"_s;

const QString removal = u"| Remove-AppxPackage"_s;
const QString registration = u" | Foreach {Add-AppxPackage -DisableDevelopmentMode -Register "
                             "\"$($_.InstallLocation)\\AppXManifest.xml\"}"_s;

/** The list of packages of a user or of the machine. */
class PackageList
{
public:
    PackageList(ToolHost &host, const QString &root, const QString &path)
        : key_(host.openKey(root))
    {
        key_->beginGroup(path.sliced(root.size() + 1).replace(u'\\', u'/'));
    }

    RegistryKey &key() { return *key_; }

    /** Full names of the packages whose name fits the pattern. */
    QStringList find(const QString &pattern) const
    {
        QString expression = QRegularExpression::escape(pattern);
        expression.replace(u"\\*"_s, u".*"_s).replace(u"\\?"_s, u"."_s);
        const QRegularExpression name(QRegularExpression::anchoredPattern(expression),
                                      QRegularExpression::CaseInsensitiveOption
                                          | QRegularExpression::DotMatchesEverythingOption);
        QStringList found;
        for (const QString &fullName : key_->childGroups()) {
            if (name.match(packageNameOf(fullName)).hasMatch())
                found.append(fullName);
        }
        return found;
    }

private:
    std::unique_ptr<RegistryKey> key_;
};

/** What a name comes to in a command that is text: words are parted by blanks, and some characters mean something. */
struct NameInCommand
{
    QString pattern;      ///< of names
    bool matches = true;  ///< false where a second word asks for a publisher, of whom a machine knows nothing
    QByteArray failure{}; ///< what is said where the text is no such command
};

NameInCommand readName(const QString &name)
{
    static const QRegularExpression meansSomething(u"[(){};$`|&<>,]|(?:^|\\s)[@-]"_s);

    if (meansSomething.match(name).hasMatch())
        return {
            {}, false, "A rehearsal machine doesn't evaluate expressions; what isn't a name fails on a PC, too.\r\n"};
    const QStringList words = name.split(QRegularExpression(u"\\s+"_s), Qt::SkipEmptyParts);
    if (words.size() > 2)
        return {{},
                false,
                "Get-AppxPackage : A positional parameter cannot be found that accepts argument '"
                    + words.at(2).toUtf8() + "'.\r\n"};
    // Without a name all packages are meant.
    return {words.isEmpty() ? u"*"_s : words.first(), words.size() < 2};
}

/** Files of a package that nobody else has go with it: it can't be registered again then. */
ToolResult removePackages(ToolHost &host, const QString &pattern)
{
    const QString storeFolder = u"\\WindowsApps\\"_s;
    PackageList packages(host, userRoot, WindowsKey::userPackages);
    const PackageList machine(host, machineRoot, WindowsKey::machinePackages);
    for (const QString &fullName : packages.find(pattern)) {
        const QString folder = packages.key().value(fullName + u"/PackageRootFolder"_s).toString();
        const bool isHeld = !machine.find(packageNameOf(fullName)).isEmpty();
        if (!isHeld && folder.endsWith(storeFolder + fullName, Qt::CaseInsensitive))
            host.removeFolder(folder);
        packages.key().remove(fullName);
    }
    return {};
}

/** Registers a package of the machine for the user. */
void registerPackage(ToolHost &host, PackageList &machine, const QString &fullName)
{
    const QString key = WindowsKey::userPackages + u'\\' + fullName;
    const QString manifest = machine.key().value(fullName + u"/Path"_s).toString();
    const QString root = manifest.left(manifest.lastIndexOf(u'\\'));
    const QString name = packageNameOf(fullName);
    host.writeText(key, u"DisplayName"_s, machine.key().value(fullName + u"/DisplayName"_s, name).toString());
    host.writeText(key, u"PackageID"_s, fullName);
    host.writeText(key, u"PackageRootFolder"_s, root);
}

ToolResult registerPackages(ToolHost &host, const QString &pattern)
{
    PackageList machine(host, machineRoot, WindowsKey::machinePackages);
    PackageList user(host, userRoot, WindowsKey::userPackages);
    const QStringList registered = user.key().childGroups();
    for (const QString &fullName : machine.find(pattern)) {
        if (!registered.contains(fullName, Qt::CaseInsensitive))
            registerPackage(host, machine, fullName);
    }
    return {};
}

} // namespace

ToolResult runPowerShell(ToolHost &host, const QStringList &arguments)
{
    const bool lists = arguments.size() >= 4 && arguments.at(0).compare("-Command"_L1, Qt::CaseInsensitive) == 0
                       && arguments.at(1).compare("Get-AppxPackage"_L1, Qt::CaseInsensitive) == 0;
    const bool removes = lists && arguments.size() == 4 && arguments.at(3) == removal;
    const bool registers = lists && arguments.size() == 5
                           && arguments.at(2).compare("-allusers"_L1, Qt::CaseInsensitive) == 0
                           && arguments.at(4) == registration;
    if (!removes && !registers)
        return {exitFailed, {}, "A rehearsal machine has no such command.\r\n"};
    // The arguments are joined by blanks and read as one text.
    const NameInCommand name = readName(arguments.at(arguments.size() - 2));
    if (!name.failure.isEmpty())
        return {exitFailed, {}, name.failure};
    if (registers && !host.isElevated())
        return {exitFailed, {}, "Get-AppxPackage : Access is denied.\r\n"};
    if (!name.matches)
        return {};
    return removes ? removePackages(host, name.pattern) : registerPackages(host, name.pattern);
}
