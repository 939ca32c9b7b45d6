// SPDX-License-Identifier: GPL-3.0-or-later

#include "waybackscript.h"

#include "console/printable.h"
#include "machine/compare/machinediff.h"
#include "machine/machineerror.h"
#include "machine/registrydisplay.h"
#include "platform/windowsfacts.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStringEncoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Where the programs of the commands are, whatever lies in the folder in which they are given. The prompt's own
// commands are given to one that runs nothing of the user's first.
const QString system32 = u"%SystemRoot%\\System32\\"_s;
const QString prompt = u"cmd.exe /d /c "_s;
const QString powerShell = u"WindowsPowerShell\\v1.0\\powershell.exe -Command "_s;

QString quoted(const QString &text)
{
    return u'"' + text + u'"';
}

/** Whether a command has it as one text in quotation marks, and as nothing else than it is. */
bool canBeQuoted(const QString &text)
{
    return printable(text) == text && !text.contains(u'"') && !text.contains(u'%') && !text.endsWith(u'\\');
}

/** Whether a command has it as one word without quotation marks that is no switch. */
bool isWord(const QString &text)
{
    static const QRegularExpression word(QRegularExpression::anchoredPattern(u"[A-Za-z0-9{][A-Za-z0-9._{}-]*"_s));
    return word.match(text).hasMatch();
}

/** Whether Windows can have a file of that path: what is a pattern, a stream or a step up means other files. */
bool isFilePath(const QString &path)
{
    static const QRegularExpression form(uR"(^[A-Za-z]:(\\[^\\/:*?"<>|]+)+$)"_s);
    const QStringList names = path.split(u'\\');
    return form.match(path).hasMatch() && !names.contains(u"."_s) && !names.contains(u".."_s);
}

QString fileName(const QString &path)
{
    return path.section(u'\\', -1);
}

QString called(DiffKind kind, const QString &name)
{
    return kindName(kind) + u' ' + name;
}

/** "registry KEY", or "registry KEY: NAME" of a value */
QString calledEdit(const RegistryEdit &edit)
{
    using Kind = RegistryEdit::Kind;
    const bool ofKey = edit.kind == Kind::MakeKey || edit.kind == Kind::RemoveKey;
    return called(DiffKind::Registry, edit.key + (ofKey ? QString() : u": "_s + valueName(edit.value)));
}

QByteArray commandText(const QStringList &commands, const QString &script, const QString &purpose)
{
    QString text = u"rem "_s + purpose + u"\nrem\nrem 1. Import "_s + script + u" (a double click, or: reg import \""_s
                   + script
                   + u"\"). This can be done in Safe Mode.\n"
                     "rem 2. Restart, so that services start as they did.\n"
                     "rem 3. Run these commands in this folder, in a command prompt opened as administrator.\n"
                     "rem\n"_s;
    for (const QString &command : commands)
        text += command + u'\n';
    return text.replace(u'\n', u"\r\n"_s).toUtf8();
}

void writeFile(const QString &path, const QByteArray &content)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit())
        throw MachineError{u"%1: %2"_s.arg(QDir::toNativeSeparators(path), file.errorString())};
}

} // namespace

WayBackScript::WayBackScript(QString filesFolder)
    : filesFolder_(std::move(filesFolder))
{
}

/**
 * Adds a command whose program is of System32, with texts in quotation marks at its places %1 and %2.
 * @param what is brought back by it, and left out where the command can't say it
 */
void WayBackScript::give(const QString &what, QString command, const QStringList &texts)
{
    if (!std::all_of(texts.begin(), texts.end(), canBeQuoted)) {
        leaveOut(what);
        return;
    }
    for (const QString &text : texts)
        command = command.arg(quoted(text));
    commands_.append(system32 + command);
}

void WayBackScript::leaveOut(const QString &what)
{
    if (!leftOut_.contains(printable(what)))
        leftOut_.append(printable(what));
}

void WayBackScript::edit(const RegistryEdit &edit)
{
    if (fitsScript(edit))
        registry_.append(edit);
    else
        leaveOut(calledEdit(edit));
}

bool WayBackScript::takesFile(DiffKind kind, const QString &path)
{
    const bool isOne = isFilePath(path);
    if (!isOne)
        leaveOut(called(kind, path));
    return isOne;
}

void WayBackScript::renameFile(const QString &path, const QString &name)
{
    give(called(DiffKind::File, path.section(u'\\', 0, -2) + u'\\' + name), prompt + u"ren %1 %2"_s, {path, name});
}

void WayBackScript::makeFolder(const QString &path)
{
    give(called(DiffKind::File, path), prompt + u"md %1"_s, {path});
}

void WayBackScript::removeFolder(const QString &path)
{
    give(called(DiffKind::File, path), prompt + u"rd %1"_s, {path});
}

void WayBackScript::removeFile(const QString &path)
{
    give(called(DiffKind::File, path), prompt + u"del /f %1"_s, {path});
}

void WayBackScript::putContent(const QString &path, const QByteArray &content)
{
    const QString name = QString::number(files_.size() + 1) + u'-' + fileName(path);
    const QString place = filesFolder_ + u'\\' + name;
    if (!canBeQuoted(place) || !canBeQuoted(path)) {
        leaveOut(called(DiffKind::File, path));
        return;
    }
    files_.append({name, content});
    give(called(DiffKind::File, path), prompt + u"copy /y %1 %2"_s, {place, path});
}

void WayBackScript::setAttributes(const QString &path, quint32 word)
{
    static const std::pair<quint32, QLatin1StringView> letters[] = {{AttributeReadOnly, "r"_L1},
                                                                    {AttributeHidden, "h"_L1},
                                                                    {AttributeSystem, "s"_L1},
                                                                    {AttributeArchive, "a"_L1},
                                                                    {AttributeNotIndexed, "i"_L1}};
    QString command = u"attrib.exe"_s;
    for (const auto &[bit, letter] : letters)
        command += ((word & bit) != 0 ? u" +"_s : u" -"_s) + letter;
    give(called(DiffKind::Attribute, path), command + u" %1"_s, {path});
}

void WayBackScript::setRights(const QString &path, const QString &rights)
{
    if (rights.isEmpty())
        give(called(DiffKind::Security, path), u"icacls.exe %1 /reset"_s, {path});
    else
        give(called(DiffKind::Security, path), u"icacls.exe %1 /grant:r %2"_s, {path, rights});
}

void WayBackScript::setOwner(const QString &path, const QString &owner)
{
    give(called(DiffKind::Security, path), u"icacls.exe %1 /setowner %2"_s, {path, owner});
}

void WayBackScript::restoreRights(const QString &path, const QString &descriptor)
{
    const QString what = called(DiffKind::Security, path);
    const QString name = QString::number(files_.size() + 1) + u"-rights.txt"_s;
    const QString place = filesFolder_ + u'\\' + name;
    const QString folder = path.section(u'\\', 0, -2);
    if (!canBeQuoted(place) || !canBeQuoted(path)) {
        leaveOut(what);
        return;
    }
    // As icacls /save writes it.
    QStringEncoder encoder(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom);
    files_.append({name, encoder(fileName(path) + u"\r\n"_s + descriptor + u"\r\n"_s)});
    give(what, u"icacls.exe %1 /restore %2"_s, {folder.endsWith(u':') ? folder + u"\\."_s : folder, place});
}

void WayBackScript::switchHibernation(bool on)
{
    give(called(DiffKind::File, u"hiberfil.sys"_s), on ? u"powercfg.exe -h on"_s : u"powercfg.exe -h off"_s, {});
}

void WayBackScript::givePackage(const QString &name, const QString &command)
{
    // PowerShell would take any other sign for one of its own.
    if (isWord(name))
        commands_.append(system32 + powerShell + command.arg(name));
    else
        leaveOut(u"package "_s + name);
}

void WayBackScript::installPackage(const QString &name)
{
    givePackage(name, u"Get-AppxPackage -allusers %1 \" | Foreach {Add-AppxPackage -DisableDevelopmentMode -Register "
                      "\\\"$($_.InstallLocation)\\AppXManifest.xml\\\"}\""_s);
}

void WayBackScript::removePackage(const QString &name)
{
    givePackage(name, u"Get-AppxPackage %1 \" | Remove-AppxPackage\""_s);
}

QString oneDriveSetup(const std::function<bool(const QString &path)> &exists)
{
    const QString of32Bits = u"\\SysWOW64\\OneDriveSetup.exe"_s;
    return exists(of32Bits) ? of32Bits : u"\\System32\\OneDriveSetup.exe"_s;
}

void WayBackScript::installOneDrive(const QString &setup)
{
    commands_.append(u"%SystemRoot%"_s + setup + u" /silent"_s);
}

void WayBackScript::removeOneDrive(const QString &setup)
{
    commands_.append(u"%SystemRoot%"_s + setup + u" /uninstall"_s);
}

void WayBackScript::setBootOption(const QString &name, const std::optional<QString> &value)
{
    if (!isWord(name) || (value && !isWord(*value)))
        leaveOut(called(DiffKind::BootOption, name));
    else if (value)
        give(called(DiffKind::BootOption, name), u"bcdedit.exe /set "_s + name + u' ' + *value, {});
    else
        give(called(DiffKind::BootOption, name), u"bcdedit.exe /deletevalue "_s + name, {});
}

void WayBackScript::enableTask(const QString &path, bool enabled)
{
    give(called(DiffKind::Task, path), u"schtasks.exe /CHANGE /TN %1"_s + (enabled ? u" /ENABLE"_s : u" /DISABLE"_s),
         {path});
}

void WayBackScript::startService(const QString &name, bool running)
{
    give(called(DiffKind::Service, name), running ? u"sc.exe start %1"_s : u"sc.exe stop %1"_s, {name});
}

QByteArray WayBackScript::registryScript() const
{
    // The registry editor takes a script of version 5 only in UTF-16 for sure.
    QStringEncoder encoder(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom);
    return encoder(writeRegistryEdits(registry_).replace(u'\n', u"\r\n"_s));
}

WrittenWayBack WayBackScript::write(const QString &file, const QString &purpose) const
{
    const QFileInfo place(file);
    const QString stem = place.path() + u'/' + place.completeBaseName();
    QStringList written{file, stem + u"-commands.txt"_s};
    writeFile(written.at(0), registryScript());
    writeFile(written.at(1), commandText(commands_, place.fileName(), purpose));
    const QString folder = place.path() + u'/' + filesFolder_;
    for (const WayBackFile &content : files_) {
        if (!QDir().mkpath(folder))
            throw MachineError{u"%1: the folder can't be made"_s.arg(folder)};
        written.append(folder + u'/' + content.name);
        writeFile(written.last(), content.content);
    }
    return {written, leftOut_};
}
