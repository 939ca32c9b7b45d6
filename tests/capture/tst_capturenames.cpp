// SPDX-License-Identifier: GPL-3.0-or-later
// A PC that is captured without names: whoever uses it stands nowhere in the machine, and what the jobs need is there.

#include "capture/capture.h"
#include "capture/capturesteps.h"
#include "capture/neutralnames.h"
#include "capturing.h"
#include "machine/database.h"
#include "machine/machineschema.h"
#include "platform/windowsfacts.h"
#include "support/processes.h"
#include "support/suite.h"
#include "work/settings.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/** All that must not be found, in one text that may be a name of nearly anything. */
const QString everybody = u"KIMBERLEY; box-7qx; Kimberley Quist; kim.quist@example.org; quist; kim.quist; Leonora; "
                          "S-1-5-21-11-22-33-1001"_s;
const QStringList words{u"kimberley"_s, u"box-7qx"_s,      u"quist"_s,        u"leonora"_s,
                        u"11-22-33"_s,  u"6485d796f6d6"_s, u"192.168.77.5"_s, u"example.org"_s};
const QStringList namesOfUser{u"Kimberley Quist"_s, u"kim.quist@example.org"_s};

const QString servicesKey = WindowsKey::services;
const QString uninstallKey =
    u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\OneDriveSetup.exe"_s;
const QString approvedKey =
    u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\StartupApproved\\Run"_s;
const QString menuKey = u"HKEY_CURRENT_USER\\Software\\Classes\\CLSID\\{86ca1aa0-34aa-4e8b-a509-50c905bae2a2}"_s;
const QString interfaceKey = WindowsKey::networkInterfaces + u"\\{7be1c6a0-3f6b-4a53-8d0c-91d7b02f5a42}"_s;
const QString encoderFolder = u"C:\\Program Files (x86)\\RivaTuner Statistics Server\\Profiles"_s;

QByteArray utf16(const QString &text)
{
    return registryText(text).chopped(2);
}

/** One place of a PC with a text in it that begins with a mark of the place. */
struct Place
{
    enum Fate { Stays, Goes }; ///< of the rest of the text

    QString what;
    Fate fate = Stays;
    std::function<void(Machine &machine, const QString &text)> plant;
};

void setValue(Machine &machine, const QString &key, const QString &name, RegistryType type, const QByteArray &data)
{
    machine.registry().setValue(*machine.registry().make(key), {name, type, data});
}

Place value(const QString &what, const QString &key, const QString &name, RegistryType type = RegistryType::String,
            Place::Fate fate = Place::Stays)
{
    return {what, fate,
            [=](Machine &machine, const QString &text) { setValue(machine, key, name, type, registryText(text)); }};
}

Place bytes(const QString &what, const QString &key, const QString &name, RegistryType type,
            const std::function<QByteArray(const QString &text)> &made, Place::Fate fate = Place::Stays)
{
    return {what, fate, [=](Machine &machine, const QString &text) { setValue(machine, key, name, type, made(text)); }};
}

Place keyName(const QString &what, const QString &above)
{
    return {what, Place::Stays,
            [=](Machine &machine, const QString &text) { machine.registry().make(above + u'\\' + text); }};
}

Place valueName(const QString &what, const QString &key, const QString &data = u"C:\\x.exe"_s)
{
    return {what, Place::Stays, [=](Machine &machine, const QString &text) {
                setValue(machine, key, text, RegistryType::String, registryText(data));
            }};
}

/** A task with the text in one field. */
Place field(const QString &what, const QString &document, Place::Fate fate = Place::Goes)
{
    return {what, fate, [=](Machine &machine, const QString &text) {
                const QString mark = text.section(u';', 0, 0);
                QString filled = document;
                machine.setTask({u"\\Field of "_s + mark, filled.replace(u'~', text)});
            }};
}

Place inRegistration(const QString &element)
{
    return field(element, u"<Task><RegistrationInfo><URI>\\x</URI><%1>~</%1></RegistrationInfo></Task>"_s.arg(element));
}

Place inAction(const QString &element)
{
    return field(element, u"<Task><Actions Context=\"Author\"><Exec><%1>~</%1></Exec></Actions></Task>"_s.arg(element));
}

Place wmi(const QString &className, const QString &property)
{
    return {className + u'.' + property, Place::Stays, [=](Machine &machine, const QString &text) {
                machine.setWmiInstances(className, {QJsonObject{{property, text}}});
            }};
}

Place variable(const QString &name, const QString &front, Place::Fate fate = Place::Stays)
{
    return {name, fate, [=](Machine &machine, const QString &text) {
                QMap<QString, QString> variables = machine.environment();
                variables.insert(name, front + text);
                machine.setEnvironment(variables);
            }};
}

QList<Place> placesOfTexts()
{
    using enum RegistryType;
    const QString service = servicesKey + u"\\Spooler"_s;
    return {
        value(u"display name"_s, service, u"DisplayName"_s),
        value(u"description"_s, service, u"Description"_s, ExpandString),
        value(u"value of another case"_s, servicesKey + u"\\Fax"_s, u"DISPLAYNAME"_s),
        {u"list of services"_s, Place::Stays,
         [=](Machine &machine, const QString &text) {
             setValue(machine, service, u"DependOnService"_s, MultiString, registryTexts({u"RPCSS"_s, text}));
         }},
        value(u"package's name"_s, WindowsKey::userPackages + u"\\One_1_x64__a"_s, u"DisplayName"_s),
        value(u"package's identity"_s, WindowsKey::userPackages + u"\\One_1_x64__a"_s, u"PackageID"_s),
        value(u"package's folder"_s, WindowsKey::userPackages + u"\\One_1_x64__a"_s, u"PackageRootFolder"_s),
        value(u"path of a package"_s, WindowsKey::machinePackages + u"\\Two_1_x64__a"_s, u"Path"_s),
        value(u"name of a package"_s, WindowsKey::machinePackages + u"\\Two_1_x64__a"_s, u"DisplayName"_s),
        value(u"uninstaller's name"_s, uninstallKey, u"DisplayName"_s),
        value(u"board"_s, WindowsKey::hardware + u"\\BIOS"_s, u"BaseBoardProduct"_s),
        value(u"processor"_s, WindowsKey::hardware + u"\\CentralProcessor\\0"_s, u"ProcessorNameString"_s),
        value(u"version of Windows"_s, WindowsKey::currentVersion, u"DisplayVersion"_s),
        value(u"build of Windows"_s, WindowsKey::currentVersion, u"CurrentBuild"_s),
        value(u"folder of graphics software"_s, WindowsKey::radeonSoftware, u"InstallDir"_s),
        value(u"tweak's value"_s, WindowsKey::priorityControl, u"Win32PrioritySeparation"_s),
        value(u"switch of a packaged task"_s, WindowsKey::terminalTask, u"State"_s),
        value(u"value of the menu"_s, menuKey + u"\\InprocServer32"_s, QString()),
        value(u"switch of an adapter"_s, WindowsKey::displayAdapters + u"\\{1}\\0000"_s, u"EnableUlps"_s),
        value(u"switch of an interface"_s, interfaceKey, u"TcpAckFrequency"_s),
        value(u"record of a service"_s, recordKey(u"SVC"_s), u"Audio"_s),
        value(u"setting"_s, programKey, u"lastPage"_s),
        // No whole text: a search by expressions gives up on it.
        value(u"half of a pair"_s, servicesKey + u"\\Half"_s, u"DisplayName"_s),
    };
}

QList<Place> placesOfNames()
{
    return {
        keyName(u"service"_s, servicesKey),
        {u"service that runs"_s, Place::Stays,
         [](Machine &machine, const QString &text) { machine.setRunning(text, true); }},
        keyName(u"user's package"_s, WindowsKey::userPackages),
        keyName(u"machine's package"_s, WindowsKey::machinePackages),
        keyName(u"adapter"_s, WindowsKey::displayAdapters),
        keyName(u"interface"_s, WindowsKey::networkInterfaces),
        keyName(u"key of the uninstaller"_s, uninstallKey),
        keyName(u"key of the menu"_s, menuKey),
        keyName(u"key below the records"_s, programKey),
        keyName(u"key of a restored service"_s, servicesKey + u"\\CloudBackupRestoreSvc_1"_s),
        valueName(u"value of the uninstaller"_s, uninstallKey),
        valueName(u"value of the menu"_s, menuKey),
        valueName(u"value of a restored service"_s, servicesKey + u"\\CloudBackupRestoreSvc_1"_s),
        valueName(u"user's program at logon"_s, WindowsKey::userRun),
        valueName(u"machine's program at logon"_s, WindowsKey::machineRun),
        valueName(u"record of a program"_s, recordKey(u"Autorun"_s), u"C:\\x.exe="_s + WindowsKey::userRun + u"\\x"_s),
        valueName(u"recorded service"_s, recordKey(u"SVC"_s)),
        valueName(u"recorded task"_s, recordKey(u"Task"_s)),
        valueName(u"recorded package"_s, recordKey(u"Packages"_s)),
        {u"process"_s, Place::Stays,
         [](Machine &machine, const QString &text) { machine.setProcesses(machine.processes() << text); }},
        variable(u"ProgramFiles"_s, u"D:\\Programs "_s),
        wmi(u"Win32_DiskDrive"_s, u"Caption"_s),
        wmi(u"Win32_VideoController"_s, u"Caption"_s),
        wmi(u"Win32_PageFileUsage"_s, u"Caption"_s),
        wmi(u"Win32_Processor"_s, u"SocketDesignation"_s),
    };
}

QList<Place> placesOfBytes()
{
    using enum RegistryType;
    const QString service = servicesKey + u"\\Bytes"_s;
    const auto hidden = [](const QString &text) { return registryText(u"shown"_s) + registryText(text); };
    return {
        bytes(u"text of bytes"_s, service, u"Description"_s, Binary, utf16),
        bytes(u"UTF-8 without a type"_s, service, u"ErrorControl"_s, None,
              [](const QString &text) { return text.toUtf8(); }),
        bytes(u"text at an odd place"_s, service, u"Start"_s, Binary,
              [](const QString &text) { return '\x7f' + utf16(text) + "\x01\x02"; }),
        bytes(u"number that is too long"_s, service, u"Type"_s, DWord, utf16),
        bytes(u"link"_s, service, u"DelayedAutostart"_s, Link, utf16),
        bytes(u"unknown type"_s, servicesKey + u"\\More"_s, u"Start"_s, static_cast<RegistryType>(77), utf16),
        bytes(u"after the end of a text"_s, servicesKey + u"\\More"_s, u"DisplayName"_s, String, hidden, Place::Goes),
        bytes(u"after the end of a reference"_s, servicesKey + u"\\More"_s, u"Description"_s, ExpandString, hidden,
              Place::Goes),
        bytes(
            u"after the end of a list"_s, servicesKey + u"\\More"_s, u"DependOnService"_s, MultiString,
            [](const QString &text) { return registryTexts({u"RPCSS"_s}) + registryText(text); }, Place::Goes),
        bytes(u"narrow text for a wide one"_s, servicesKey + u"\\Narrow"_s, u"DisplayName"_s, String,
              [](const QString &text) { return text.toUtf8(); }),
        bytes(u"wide text at an odd place of one"_s, servicesKey + u"\\Narrow"_s, u"Description"_s, ExpandString,
              [](const QString &text) { return '\x7f' + utf16(text) + '\x01'; }),
        bytes(u"narrow text for a list"_s, servicesKey + u"\\Narrow"_s, u"DependOnService"_s, MultiString,
              [](const QString &text) { return text.toUtf8(); }),
        bytes(u"approval of a program"_s, approvedKey, u"OneDrive"_s, Binary,
              [](const QString &text) { return QByteArray::fromHex("0300000000ff") + text.toUtf8(); }),
        bytes(u"bytes of the uninstaller"_s, uninstallKey, u"EstimatedSize"_s, None, utf16),
        bytes(u"bytes of the menu"_s, menuKey, u"x"_s, Binary, utf16),
    };
}

QList<Place> placesOfCommands()
{
    using enum RegistryType;
    const auto command = [](const QString &what, const QString &key, const QString &before, Place::Fate fate) {
        return Place{what, fate, [=](Machine &machine, const QString &text) {
                         const QString name = u"of "_s + text.section(u';', 0, 0);
                         setValue(machine, key, name, ExpandString, registryText(QString(before).replace(u'#', text)));
                     }};
    };
    return {
        command(u"program"_s, WindowsKey::userRun, u"\"C:\\# \\x.exe\""_s, Place::Stays),
        command(u"arguments"_s, WindowsKey::userRun, u"\"C:\\x.exe\" -p #"_s, Place::Goes),
        command(u"arguments of a bare program"_s, WindowsKey::machineRun, u"C:\\Program Files\\x.exe /p:#"_s,
                Place::Goes),
        command(u"arguments without a blank"_s, WindowsKey::machineRun32, u"C:\\x.exe,#"_s, Place::Goes),
        command(u"arguments of what has no ending"_s, WindowsKey::machineRun32, u"program #"_s, Place::Goes),
        command(u"quotes that don't end"_s, WindowsKey::userRun, u"\"C:\\x.exe -p #"_s, Place::Goes),
        command(u"arguments with an equals sign"_s, WindowsKey::userRun, u"\"C:\\x.exe\" --p=#"_s, Place::Goes),
        bytes(
            u"command as bytes"_s, WindowsKey::userRun, u"bytes"_s, Binary,
            [](const QString &text) { return utf16(u"C:\\x.exe "_s + text); }, Place::Goes),
        bytes(
            u"command as a list"_s, WindowsKey::userRun, u"list"_s, MultiString,
            [](const QString &text) {
                return registryTexts({u"C:\\x.exe "_s + text, u"y.exe "_s + text});
            },
            Place::Goes),
        command(u"recorded arguments"_s, recordKey(u"Autorun"_s),
                u"\"C:\\x.exe\" #="_s + WindowsKey::userRun + u"\\x"_s, Place::Goes),
        command(u"recorded name"_s, recordKey(u"Autorun"_s), u"\"C:\\x.exe\"="_s + WindowsKey::userRun + u"\\#"_s,
                Place::Stays),
    };
}

QList<Place> placesOfTasks()
{
    const QString trigger = u"<Task><Triggers><EventTrigger id=\"%1\"><%2>%3</%2></EventTrigger></Triggers></Task>"_s;
    const QString principal = u"<Task><Principals><Principal id=\"%1\"><%2>%3</%2></Principal></Principals></Task>"_s;
    return {
        {u"path of a task"_s, Place::Stays,
         [](Machine &machine, const QString &text) {
             machine.setTask({u'\\' + text, u"<Task><RegistrationInfo><URI>\\x</URI></RegistrationInfo></Task>"_s});
         }},
        field(u"URI"_s, u"<Task><RegistrationInfo><URI>\\~</URI></RegistrationInfo></Task>"_s, Place::Stays),
        field(u"description"_s, u"<Task><RegistrationInfo><Description>~</Description></RegistrationInfo></Task>"_s,
              Place::Stays),
        field(u"description in bytes of its own"_s,
              u"<Task><RegistrationInfo><Description>&#75;imberley &#x4b;imberley <![CDATA[~]]></Description>"
              "</RegistrationInfo></Task>"_s,
              Place::Stays),
        inRegistration(u"Author"_s),
        inRegistration(u"Source"_s),
        inRegistration(u"Documentation"_s),
        inRegistration(u"Version"_s),
        inRegistration(u"SecurityDescriptor"_s),
        inAction(u"Command"_s),
        inAction(u"Arguments"_s),
        inAction(u"WorkingDirectory"_s),
        inAction(u"Data"_s),
        field(u"attribute of a task"_s, u"<Task note=\"~\"><Settings/></Task>"_s),
        field(u"message"_s, u"<Task><Actions><ShowMessage><Title>~</Title></ShowMessage></Actions></Task>"_s),
        field(u"address"_s, u"<Task><Actions><SendEmail><To>~</To></SendEmail></Actions></Task>"_s),
        field(u"user of a trigger"_s, trigger.arg(u"t"_s, u"UserId"_s, u"~"_s)),
        field(u"question of a trigger"_s, trigger.arg(u"t"_s, u"Subscription"_s, u"~"_s)),
        field(u"name of a trigger"_s, trigger.arg(u"~"_s, u"Enabled"_s, u"true"_s)),
        field(u"switch that is none"_s, trigger.arg(u"t"_s, u"Enabled"_s, u"~"_s)),
        field(u"user"_s, principal.arg(u"p"_s, u"UserId"_s, u"~"_s)),
        field(u"group"_s, principal.arg(u"p"_s, u"GroupId"_s, u"~"_s)),
        field(u"shown name"_s, principal.arg(u"p"_s, u"DisplayName"_s, u"~"_s)),
        field(u"name of a principal"_s, principal.arg(u"~"_s, u"RunLevel"_s, u"HighestAvailable"_s)),
        field(u"level that is none"_s, principal.arg(u"p"_s, u"RunLevel"_s, u"~"_s)),
        field(u"unknown field"_s, u"<Task><Settings><Note>~</Note></Settings></Task>"_s),
        field(u"comment"_s, u"<Task><!-- ~ --><Settings><Enabled>true</Enabled></Settings></Task>"_s),
        field(u"instruction"_s, u"<Task><?x ~?><Settings/></Task>"_s),
    };
}

QList<Place> placesOfFiles()
{
    return {
        {u"string of a library"_s, Place::Stays,
         [](Machine &machine, const QString &text) {
             machine.setDllStrings(u"C:\\Texts\\a.dll"_s, {{7, text}});
             setValue(machine, servicesKey + u"\\Texts"_s, u"Description"_s, RegistryType::String,
                      registryText(u"@C:\\Texts\\a.dll,-7"_s));
             QDir().mkpath(QFileInfo(machine.hostPath(u"C:\\Texts\\a.dll"_s)).path());
             QFile(machine.hostPath(u"C:\\Texts\\a.dll"_s)).open(QIODevice::WriteOnly);
         }},
        {u"path of a library"_s, Place::Stays,
         [](Machine &machine, const QString &text) {
             const QString path = u"C:\\Texts\\"_s + text + u"\\b.dll"_s;
             machine.setDllStrings(path, {{7, u"b"_s}});
             setValue(machine, servicesKey + u"\\Paths"_s, u"Description"_s, RegistryType::String,
                      registryText(u'@' + path + u",-7"_s));
             QDir().mkpath(QFileInfo(machine.hostPath(path)).path());
             QFile(machine.hostPath(path)).open(QIODevice::WriteOnly);
         }},
        {u"path of a program"_s, Place::Stays,
         [](Machine &machine, const QString &text) {
             const QString path = u"C:\\Programs\\"_s + text + u"\\c.exe"_s;
             setValue(machine, WindowsKey::userRun, u"c"_s, RegistryType::String, registryText(u'"' + path + u'"'));
             QDir().mkpath(QFileInfo(machine.hostPath(path)).path());
             QFile file(machine.hostPath(path));
             file.open(QIODevice::WriteOnly);
             file.write("MZ");
         }},
        {u"content of a file"_s, Place::Stays,
         [](Machine &machine, const QString &text) {
             const QString path = machine.hostPath(encoderFolder + u"\\config"_s);
             QDir().mkpath(QFileInfo(path).path());
             QFile file(path);
             file.open(QIODevice::WriteOnly);
             file.write("[RTSS]\r\nA=" + text.toUtf8() + "\r\nB=" + utf16(text) + "\r\nEnableEncoderServer=1\r\n");
         }},
        {u"address of a network"_s, Place::Goes,
         [](Machine &machine, const QString &) {
             setValue(machine, interfaceKey, u"DhcpIPAddress"_s, RegistryType::String, registryText(u"192.168.77.5"_s));
         }},
    };
}

QList<Place> allPlaces()
{
    return placesOfTexts() + placesOfNames() + placesOfBytes() + placesOfCommands() + placesOfTasks() + placesOfFiles();
}

/** A built-in machine of somebody else. */
void renameUser(Machine &machine)
{
    QMap<QString, QString> variables = machine.environment();
    for (QString &each : variables)
        each.replace(u"ALEX-DESKTOP"_s, u"BOX-7QX"_s).replace(u"Alex"_s, u"Kimberley"_s);
    machine.setEnvironment(variables);
    RegistryStore &store = machine.registry();
    const QString profiles = WindowsKey::currentVersion + u"\\ProfileList\\"_s;
    const auto profile = [&](const QString &account, const QString &folder) {
        setValue(machine, profiles + account, u"ProfileImagePath"_s, RegistryType::ExpandString, registryText(folder));
    };
    profile(u"S-1-5-18"_s, u"%systemroot%\\system32\\config\\systemprofile"_s);
    profile(u"S-1-5-21-11-22-33-1001"_s, u"C:\\Users\\Kimberley"_s);
    profile(u"S-1-5-21-11-22-33-1002"_s, u"C:\\Users\\Leonora"_s);
    store.make(u"HKEY_CURRENT_USER\\Software\\Microsoft\\IdentityCRL\\UserExtendedProperties\\kim.quist@example.org"_s);
}

/** All bytes that a machine consists of, names of files too, in lower case. */
QByteArray allBytes(const QString &folder)
{
    Machine::open(folder)->database().execute("PRAGMA wal_checkpoint(TRUNCATE); VACUUM");
    QByteArray bytes;
    QDirIterator files(folder, QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        constexpr qint64 enough = qint64{64} * 1024; // the rest of a file is a hole
        bytes += files.next().sliced(folder.size()).toUtf8() + '\n';
        QFile file(files.filePath());
        if (files.fileInfo().isFile() && file.open(QIODevice::ReadOnly))
            bytes += file.read(file.fileName().contains(u"machine.sqlite"_s) ? file.size() : enough);
    }
    return bytes.toLower();
}

/** Each place with its mark, which is its number: "p17q". */
QString markOf(qsizetype place)
{
    return u"p%1q"_s.arg(place);
}

bool contains(const QByteArray &bytes, const QString &text)
{
    return bytes.contains(text.toUtf8()) || bytes.contains(utf16(text));
}

Ended rehearse(const QStringList &arguments)
{
    constexpr int patience = 150000; // milliseconds
    QProcess process;
    process.start(builtProgram(u"kestrune-rehearse"_s), arguments);
    process.waitForFinished(patience);
    return {0, process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

} // namespace

class TestCaptureNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noPlaceHoldsAName();
    void whatIsLeftIsTold();
    void everyTableAndFileIsSearched();
    void shortNamesAreSoughtAlone();
    void namesStayWhereAsked();
    void keysOfTheProgramStay();
    void commands_data();
    void commands();
    void tasksKeepWhatTheJobsRead();
    void rehearsalIsTheSame_data();
    void rehearsalIsTheSame();

private:
    QTemporaryDir folder_;
    QString place(const QString &name) const { return folder_.filePath(name); }
    QString make(const QString &builtIn, const QString &name);
};

QString TestCaptureNames::make(const QString &builtIn, const QString &name)
{
    makeMachine(place(name), QCoreApplication::applicationDirPath() + u"/machines/"_s + builtIn, Existing::Replace);
    return place(name);
}

void TestCaptureNames::noPlaceHoldsAName()
{
    const QString pc = make(u"windows11"_s, u"full"_s);
    const QList<Place> places = allPlaces();
    QVERIFY2(places.size() >= 60, qPrintable(QString::number(places.size())));
    {
        const auto machine = Machine::open(pc);
        renameUser(*machine);
        for (qsizetype i = 0; i < places.size(); ++i) {
            const QString half = places.at(i).what == "half of a pair"_L1 ? QString(QChar(0xd800)) : QString();
            places.at(i).plant(*machine, markOf(i) + u"; "_s + everybody + half);
        }
        setValue(*machine, interfaceKey, u"DhcpNetworkHint"_s, RegistryType::String, registryText(u"6485d796f6d6"_s));
    }
    const QString captured = place(u"emptied"_s);
    const CaptureReport report = captureMachine(pc, captured, Names::Replace, {}, Existing::Keep, {}, namesOfUser);

    QVERIFY2(report.notRead.isEmpty(), qPrintable(report.notRead.value(0).reason));

    const QByteArray bytes = allBytes(captured);
    QStringList found;
    for (const QString &word : words) {
        for (const QByteArray &form : {word.toUtf8(), utf16(word)}) {
            for (qsizetype at = bytes.indexOf(form); at >= 0; at = bytes.indexOf(form, at + 1))
                found.append(word + u": "_s + QString::fromLatin1(bytes.mid(std::max<qsizetype>(at - 60, 0), 120)));
        }
    }
    QVERIFY2(found.isEmpty(), qPrintable(QString::number(found.size()) + u" places hold a name:\n"_s
                                         + found.mid(0, 20).join(u'\n').remove(QChar(0))));
    QCOMPARE(report.left, QStringList());
    // What was beside the names is there, or gone where it isn't needed.
    for (qsizetype i = 0; i < places.size(); ++i) {
        const QString mark = markOf(i);
        if (places.at(i).what == "address of a network"_L1)
            continue;
        // The path of a field's task has its mark, too, and so has the name of a command.
        const QString before = QString(mark).prepend(u"of "_s);
        QByteArray rest = bytes;
        rest.replace(before.toUtf8(), QByteArray()).replace(utf16(before), QByteArray());
        QVERIFY2(contains(rest, mark) == (places.at(i).fate == Place::Stays),
                 qPrintable(mark + u' ' + places.at(i).what));
    }
}

void TestCaptureNames::whatIsLeftIsTold()
{
    const QString pc = make(u"windows11"_s, u"told"_s);
    {
        const auto machine = Machine::open(pc);
        renameUser(*machine);
        setValue(*machine, WindowsKey::userRun, u"KimberleysNotes"_s, RegistryType::String, registryText(u"x.exe"_s));
        setValue(*machine, servicesKey + u"\\Spooler"_s, u"DisplayName"_s, RegistryType::String,
                 registryText(u"MyBox-7qxs"_s));
    }
    const CaptureReport report =
        captureMachine(pc, place(u"telling"_s), Names::Replace, {}, Existing::Keep, {}, namesOfUser);
    QCOMPARE(report.left,
             (QStringList{u"BOX-7QX: registry value "_s + servicesKey + u"\\Spooler | DisplayName"_s,
                          u"Kimberley: registry value "_s + WindowsKey::userRun + u" | KimberleysNotes"_s}));
    QCOMPARE(leftNamesText(report.left), u"names that are left, as parts of other words for the most part:\n  "_s
                                             + report.left.join("\n  "_L1) + u'\n');
    QCOMPARE(leftNamesText({}), u"searched for the names that were replaced: none is left\n"_s);
    const QStringList many(52, u"a\x1b[0m"_s);
    QVERIFY(leftNamesText(many).endsWith("\n  a\\x1b[0m\n  and in 2 more places\n"_L1));
    // A way back and a capture with names don't look.
    QCOMPARE(captureMachine(pc, place(u"named"_s), Names::Keep, {}, Existing::Keep, {}, namesOfUser).left,
             QStringList());
}

/** By the tables as they are made: one that is added later is searched, too, or this fails. */
void TestCaptureNames::everyTableAndFileIsSearched()
{
    const auto machine = Machine::create(place(u"tables"_s));
    machine->registry().make(u"HKEY_CURRENT_USER\\x"_s);
    static const QRegularExpression tables(u"CREATE TABLE (\\w+) \\((.*?)\\)( WITHOUT ROWID)?;"_s,
                                           QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression inner(u"\\([^)]*\\)"_s); // keys of several columns
    static const QRegularExpression column(u"(?:^|,)\\s*([a-z]+)(?: (TEXT|BLOB|INTEGER))?"_s);
    int planted = 0;
    for (auto table = tables.globalMatch(QString::fromUtf8(machineSchema)); table.hasNext();) {
        const QRegularExpressionMatch match = table.next();
        QStringList names;
        QStringList types;
        for (auto each = column.globalMatch(match.captured(2).remove(inner)); each.hasNext();) {
            const QRegularExpressionMatch one = each.next();
            names.append(one.captured(1));
            types.append(one.captured(2));
        }
        QVERIFY2(!names.isEmpty(), qPrintable(match.captured(1)));
        for (qsizetype i = 0; i < names.size(); ++i) {
            if (types.at(i) == "INTEGER"_L1)
                continue;
            ++planted;
            QStringList values;
            for (qsizetype k = 0; k < names.size(); ++k) {
                const bool isText = types.at(k) != "INTEGER"_L1;
                const QString text = k == i ? u"'of Kimberley %1'"_s.arg(planted) : u"'t%1'"_s.arg(planted);
                values.append(isText ? text : QString::number(k == 0 ? 1000 + planted : 1));
            }
            machine->database().execute(
                u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(match.captured(1), names.join(u','), values.join(u','))
                    .toUtf8()
                    .constData());
            const QStringList left = findNames(*machine, {u"kimberley"_s}, {});
            QVERIFY2(left.size() == planted, qPrintable(match.captured(1) + u'.' + names.at(i)));
        }
    }
    QVERIFY2(planted > 25, qPrintable(QString::number(planted)));

    const auto files = Machine::create(place(u"files"_s));
    QDir().mkpath(files->driveFolder() + u"/Users/Kimberley"_s);
    QDir().mkpath(files->programFolder());
    QFile content(files->programFolder() + u"/log.txt"_s);
    QVERIFY(content.open(QIODevice::WriteOnly));
    content.write(QByteArray(200000, '\0') + utf16(u"kImBeRlEy"_s));
    content.close();
    QCOMPARE(
        findNames(*files, {u"Kimberley"_s}, {}),
        (QStringList{u"Kimberley: name of the file drive_c/Users/Kimberley"_s, u"Kimberley: file program/log.txt"_s}));
}

void TestCaptureNames::shortNamesAreSoughtAlone()
{
    const auto machine = Machine::create(place(u"short"_s));
    machine->setProcesses({u"kimono.exe"_s, u"akimbo.exe"_s, u"KIM.exe"_s, u"Jörgen.exe"_s});
    QCOMPARE(findNames(*machine, {u"Kim"_s, u"JÖRGEN"_s}, {}),
             (QStringList{u"Kim: process KIM.exe"_s, u"JÖRGEN: process Jörgen.exe"_s}));
    // As bytes a name ends where no letter follows.
    setValue(*machine, u"HKEY_CURRENT_USER\\x"_s, u"a"_s, RegistryType::Binary, utf16(u"xkim"_s));
    setValue(*machine, u"HKEY_CURRENT_USER\\x"_s, u"b"_s, RegistryType::Binary, '\x01' + utf16(u" kim!"_s));
    QCOMPARE(findNames(*machine, {u"Kim"_s}, {}),
             (QStringList{u"Kim: registry value HKEY_CURRENT_USER\\x | b"_s, u"Kim: process KIM.exe"_s}));
}

void TestCaptureNames::namesStayWhereAsked()
{
    const QString pc = make(u"windows11"_s, u"asked"_s);
    const QString command = u"\"C:\\x.exe\" --user=Kimberley"_s;
    {
        const auto machine = Machine::open(pc);
        renameUser(*machine);
        setValue(*machine, WindowsKey::userRun, u"Kimberley"_s, RegistryType::String,
                 registryText(command) + registryText(u"more"_s));
    }
    const CaptureReport report = captureMachine(pc, place(u"asked-for"_s));
    QVERIFY(report.replaced.isEmpty());
    const auto value = Machine::open(place(u"asked-for"_s))->registry().value(WindowsKey::userRun, u"Kimberley"_s);
    QVERIFY(value);
    QCOMPARE(value->data, registryText(command) + registryText(u"more"_s));
}

/** Somebody whose name is a part of what the program itself looks for. */
void TestCaptureNames::keysOfTheProgramStay()
{
    const QString pc = make(u"windows11"_s, u"control"_s);
    {
        const auto machine = Machine::open(pc);
        QMap<QString, QString> variables = machine->environment();
        for (QString &each : variables)
            each.replace(u"Alex"_s, u"Control"_s);
        machine->setEnvironment(variables);
        setValue(*machine, WindowsKey::control + u"\\Power"_s, u"HibernateEnabled"_s, RegistryType::DWord,
                 registryDWord(1));
    }
    captureMachine(pc, place(u"controlled"_s), Names::Replace);
    const auto machine = Machine::open(place(u"controlled"_s));
    QVERIFY(machine->registry().value(WindowsKey::control + u"\\Power"_s, u"HibernateEnabled"_s));
    for (const QString &key : {WindowsKey::priorityControl, WindowsKey::displayAdapters, WindowsKey::networkInterfaces})
        QVERIFY2(machine->registry().find(key), qPrintable(key));
}

void TestCaptureNames::commands_data()
{
    addColumns<QString, QString>("command", "kept");
    QTest::newRow("quoted") << u"\"C:\\a b\\x.exe\" -p secret"_s << u"\"C:\\a b\\x.exe\""_s;
    QTest::newRow("alone") << u"\"C:\\a b\\x.exe\""_s << u"\"C:\\a b\\x.exe\""_s;
    QTest::newRow("bare, with blanks") << u"C:\\a b\\x.EXE -p secret"_s << u"C:\\a b\\x.EXE"_s;
    QTest::newRow("bare, a word") << u"program secret"_s << u"program"_s;
    QTest::newRow("ends in a point") << u"C:\\x.exe.config\\y.cmd secret"_s << u"C:\\x.exe.config\\y.cmd"_s;
    QTest::newRow("a variable") << u"%windir%\\system32\\x.exe"_s << u"%windir%\\system32\\x.exe"_s;
    QTest::newRow("quotes that don't end") << u"\"C:\\x.exe -p secret"_s << u"\"C:\\x.exe"_s;
    // A record ends at the first "=", so that it matters whether there is one.
    QTest::newRow("an equals sign") << u"\"C:\\x.exe\" --p=secret"_s << u"\"C:\\x.exe\" ="_s;
    QTest::newRow("one in the path") << u"\"C:\\a=b\\x.exe\" --p=secret"_s << u"\"C:\\a=b\\x.exe\" ="_s;
    // Restore looks for what stands in the first quotes.
    QTest::newRow("a file in quotes") << u"rundll32.exe \"C:\\a\\y.dll\",Secret"_s
                                      << u"rundll32.exe \"C:\\a\\y.dll\""_s;
    QTest::newRow("no file in quotes") << u"cmd /c \"secret words\""_s << u"cmd"_s;
    QTest::newRow("both") << u"x.exe a=1 \"C:\\y.dll\" b"_s << u"x.exe = \"C:\\y.dll\""_s;
    QTest::newRow("both, the other way") << u"x.exe \"C:\\y.dll\" b=1"_s << u"x.exe \"C:\\y.dll\" ="_s;
    QTest::newRow("nothing") << QString() << QString();
}

void TestCaptureNames::commands()
{
    QFETCH(QString, command);
    QFETCH(QString, kept);
    QCOMPARE(withoutArguments(command), kept);
}

void TestCaptureNames::tasksKeepWhatTheJobsRead()
{
    const QString pc = make(u"windows10"_s, u"tasks"_s);
    const auto captured = [&](const QString &document) {
        Machine::open(pc)->setTask({u"\\Backup"_s, document});
        captureMachine(pc, place(u"tasks-captured"_s), Names::Replace, {}, Existing::Replace);
        return Machine::open(place(u"tasks-captured"_s))->task(u"\\Backup"_s)->document;
    };
    QCOMPARE(
        captured(u"<Task version=\"1.3\" xmlns=\"http://schemas.microsoft.com/windows/2004/02/mit/task\">\n"
                 "  <RegistrationInfo>\n    <Date>2020</Date>\n    <Author>x</Author>\n"
                 "    <Description>a &amp; b &lt;i&gt; \"c\"</Description>\n    <URI>\\Backup</URI>\n"
                 "  </RegistrationInfo>\n  <Triggers>\n    <LogonTrigger id=\"x\">\n      <Enabled>false</Enabled>\n"
                 "      <UserId>x</UserId>\n    </LogonTrigger>\n    <OfNobody />\n    <TimeTrigger>\n"
                 "      <StartBoundary>2020</StartBoundary>\n    </TimeTrigger>\n  </Triggers>\n  <Principals>\n"
                 "    <Principal id=\"x\">\n      <UserId>S-1-5-18</UserId>\n"
                 "      <RunLevel>HighestAvailable</RunLevel>\n    </Principal>\n  </Principals>\n  <Settings>\n"
                 "    <Enabled>false</Enabled>\n    <Hidden>true</Hidden>\n  </Settings>\n"
                 "  <Actions Context=\"x\"><Exec><Command>x</Command></Exec></Actions>\n</Task>"_s),
        u"<Task version=\"1.3\" xmlns=\"http://schemas.microsoft.com/windows/2004/02/mit/task\">\n"
        "  <RegistrationInfo>\n    <Description>a &amp; b &lt;i&gt; \"c\"</Description>\n    <URI>\\Backup</URI>\n"
        "  </RegistrationInfo>\n  <Triggers>\n    <LogonTrigger>\n      <Enabled>false</Enabled>\n"
        "    </LogonTrigger>\n    <TimeTrigger>\n    </TimeTrigger>\n  </Triggers>\n  <Principals>\n    <Principal>\n"
        "      <UserId>S-1-5-18</UserId>\n      <RunLevel>HighestAvailable</RunLevel>\n    </Principal>\n"
        "  </Principals>\n  <Settings>\n    <Enabled>false</Enabled>\n  </Settings>\n</Task>"_s);
    QCOMPARE(captured(u"<Task note=\"x\"/>"_s), u"<Task>\n</Task>"_s);
}

void TestCaptureNames::rehearsalIsTheSame_data()
{
    addColumns<QString>("builtIn");
    QTest::newRow("Windows 11") << u"windows11"_s;
    QTest::newRow("Windows 10") << u"windows10"_s;
}

/** Whether somebody's names are in a machine makes no difference to what Analyze finds and a preview says. */
void TestCaptureNames::rehearsalIsTheSame()
{
    QFETCH(QString, builtIn);
    const QString pc = make(builtIn, builtIn);
    const QString captured = place(builtIn + u"-neutral"_s);
    QVERIFY(!captureMachine(pc, captured, Names::Replace).replaced.isEmpty());
    NeutralNames names(Machine::open(pc)->environment());

    const auto analyzed = [](const QString &machine) {
        const Ended ended = rehearse({u"run"_s, machine, u"analyze"_s});
        return ended.exitCode == 0 ? QString::fromUtf8(ended.output) : QString::fromUtf8(ended.errors);
    };
    const QStringList expected = names.text(analyzed(pc)).split(u'\n');
    const QStringList lines = analyzed(captured).split(u'\n');
    QVERIFY(expected.size() > 100);
    for (qsizetype i = 0; i < std::min(expected.size(), lines.size()); ++i)
        QCOMPARE(lines.at(i), expected.at(i));
    QCOMPARE(lines.size(), expected.size());

    static const QRegularExpression account(u"100000000\\d"_s); // numbered as they come
    const auto previewed = [&](const QString &machine) {
        const QString file = machine + u".json"_s;
        if (const Ended ended = rehearse({u"preview"_s, machine, u"--json"_s, file}); ended.exitCode != 0)
            return QStringList(QString::fromUtf8(ended.errors));
        QFile report(file);
        report.open(QIODevice::ReadOnly);
        QStringList items;
        for (const QJsonValue item : QJsonDocument::fromJson(report.readAll()).object()[u"items"_s].toArray()) {
            QStringList parts;
            for (const QString &part : {u"group"_s, u"title"_s, u"name"_s, u"before"_s, u"optimized"_s, u"restored"_s,
                                        u"comesBack"_s, u"why"_s})
                parts.append(item[part].toString());
            items.append(names.text(parts.join(u" | "_s)).toLower().replace(account, u"1000000000"_s));
        }
        // The copies of removed programs are as long as their commands, and those are cut.
        items.removeIf([](const QString &item) { return item.contains(u"log and backups"_s); });
        // By name, which sorts otherwise when it is another.
        items.sort();
        return items;
    };
    const QStringList ofPc = previewed(pc);
    const QStringList ofCopy = previewed(captured);
    QVERIFY(ofPc.size() > 100);
    for (qsizetype i = 0; i < std::min(ofPc.size(), ofCopy.size()); ++i)
        QCOMPARE(ofCopy.at(i), ofPc.at(i));
    QCOMPARE(ofCopy.size(), ofPc.size());
}

KESTRUNE_SUITE(TestCaptureNames)
#include "tst_capturenames.moc"
