// SPDX-License-Identifier: GPL-3.0-or-later

#include "machinesource.h"

#include "console/programinterruption.h"
#include "filechanges.h"
#include "machine/database.h"
#include "machine/folderlock.h"
#include "machine/workfolder.h"
#include "platform/processground.h"
#include "platform/windowsfacts.h"
#include "toolreport.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

QByteArray readFile(const QString &path)
{
    QFile file(absolutePath(path));
    if (QFileInfo(file).isDir())
        throw MachineError{u"%1: a folder, not a file"_s.arg(path)};
    if (!file.open(QIODevice::ReadOnly))
        throw MachineError{u"%1: %2"_s.arg(path, file.errorString())};
    return file.readAll();
}

bool isRegistryScript(const QString &file, const QString &text)
{
    return file.endsWith(".reg"_L1, Qt::CaseInsensitive) || text.startsWith("Windows Registry Editor"_L1)
           || text.startsWith("REGEDIT4"_L1);
}

/** Imports files and descriptions; all of it stands once commit() was called. */
class Import
{
public:
    Import(Machine &machine, const ProgressCallback &progress, uint codePage = 0)
        : machine_(machine)
        , progress_(progress)
        , codePage_(codePage)
        , transaction_(machine.database())
    {
    }

    void file(const QString &path);
    void contents(const MachineContents &contents)
    {
        applyRegistryScript(machine_.database(), machine_.registry(), contents.registry);
        apply(contents.services);
        apply(contents.tasks);
        apply(contents.description);
    }
    /** @return what was guessed and made up, a line each */
    QStringList commit()
    {
        const QStringList told = guesses_ + makeReported();
        transaction_.commit();
        files_.commit();
        return told;
    }

private:
    void apply(const MachineDescription &description);
    void apply(const QList<FileDescription> &files);
    void apply(const QList<ServiceReport> &services);
    void apply(const QList<ScheduledTask> &tasks);
    QStringList makeReported();
    void addVariables(const QMap<QString, QString> &added);
    void addDll(const QString &path, const QMap<uint, QString> &strings);

    Machine &machine_;
    const ProgressCallback &progress_;
    uint codePage_; ///< of what tools have printed; 0 where nobody has named it
    Database::Transaction transaction_;
    FileChanges files_;
    QList<ServiceReport> reported_; ///< by all files
    QStringList guesses_;           ///< a line each
};

void Import::file(const QString &path)
{
    const QByteArray bytes = readFile(path);
    const ToolText printed = readToolText(bytes, codePage_);
    const QString &text = printed.text;
    const bool isTasks = isTaskExport(path, bytes);
    if (isRegistryScript(path, text)) {
        applyRegistryScript(machine_.database(), machine_.registry(), parseRegistryScript(bytes, path),
                            stopIfInterrupted);
    } else if (!isTasks && (path.endsWith(".json"_L1, Qt::CaseInsensitive) || text.trimmed().startsWith(u'{'))) {
        apply(parseMachineJson(bytes, path));
    } else if (isTasks || isServiceReport(text)) {
        if (isTasks)
            apply(parseTaskExport(text, path));
        else
            apply(parseServiceReport(text, path));
        if (printed.isGuess)
            guesses_.append(
                u"%1: taken for code page 850, which is a guess. Where letters are wrong, import it once more "
                "and name the page by --code-page."_s.arg(path));
    } else {
        throw MachineError{
            u"%1: neither a registry script, nor scheduled tasks, nor a machine.json, nor a list of services by sc"_s
                .arg(path)};
    }
}

void Import::apply(const MachineDescription &description)
{
    if (description.name)
        machine_.setName(*description.name);
    if (description.namesReplaced)
        machine_.setReplacedNames();
    addVariables(description.environment);
    for (const QString &service : description.running)
        machine_.setRunning(service, true);
    if (description.processes)
        machine_.setProcesses(*description.processes);
    for (auto it = description.wmi.begin(); it != description.wmi.end(); ++it)
        machine_.setWmiInstances(it.key(), it.value());
    if (!description.hardware.isEmpty())
        machine_.setHardware(description.hardware);
    apply(description.files);
    for (auto it = description.bootOptions.begin(); it != description.bootOptions.end(); ++it)
        machine_.setBootOption(it.key(), it.value());
    for (auto it = description.dlls.begin(); it != description.dlls.end(); ++it)
        addDll(it.key(), it.value());
    for (auto it = description.faults.begin(); it != description.faults.end(); ++it) {
        if (it.value())
            machine_.setFault(it.key(), *it.value());
        else
            machine_.clearFault(it.key());
    }
}

void Import::addVariables(const QMap<QString, QString> &added)
{
    if (added.isEmpty())
        return;
    QMap<QString, QString> variables = machine_.environment();
    for (auto it = added.begin(); it != added.end(); ++it) {
        // Names of variables are one whatever their case.
        variables.removeIf([&it](std::pair<const QString &, QString &> entry) {
            return entry.first.compare(it.key(), Qt::CaseInsensitive) == 0;
        });
        variables.insert(it.key(), it.value());
    }
    machine_.setEnvironment(variables);
}

void Import::apply(const QList<FileDescription> &files)
{
    int done = 0;
    for (const FileDescription &file : files) {
        stopIfInterrupted();
        if (progress_)
            progress_(file.path, done++, static_cast<int>(files.size()));
        const QString host = machine_.hostPath(file.path);
        if (file.folder) {
            files_.makeFolder(host);
        } else {
            const QByteArray content = file.content.value_or(QByteArray());
            files_.write(host, content);
            machine_.setFileSize(file.path, file.size.value_or(content.size()));
        }
        if (file.attributes)
            machine_.setAttributes(file.path, *file.attributes);
        if (file.security)
            machine_.setSecurity(file.path, *file.security);
        if (file.isSigned)
            machine_.setUnsigned(file.path, !*file.isSigned);
    }
}

void Import::apply(const QList<ServiceReport> &services)
{
    for (const ServiceReport &service : services) {
        // One that never ran has no run state at all, unless the machine already gives it one.
        if (service.everRan || machine_.isRunning(service.name))
            machine_.setRunning(service.name, service.running);
    }
    reported_.append(services);
}

/** Without a key nothing would know of a service. */
QStringList Import::makeReported()
{
    QStringList made;
    for (const ServiceReport &service : std::as_const(reported_)) {
        const bool isName = !service.name.contains(u'\\') && service.name.size() <= RegistryStore::longestName;
        const QString path = WindowsKey::services + u'\\' + service.name;
        if (!isName || service.type == 0 || machine_.registry().find(path))
            continue;
        const auto key = machine_.registry().make(path);
        machine_.registry().setValue(*key, {u"Type"_s, RegistryType::DWord, registryDWord(service.type)});
        machine_.registry().setValue(*key, {u"Start"_s, RegistryType::DWord, registryDWord(StartOnDemand)});
        machine_.registry().setValue(*key, {u"DisplayName"_s, RegistryType::String, registryText(service.displayName)});
        made.append(service.name);
    }
    if (made.isEmpty())
        return {};
    return {made.join(u", "_s)
            + u": made from what sc says. What they start by, need and say of themselves isn't in that; they are taken "
              "to start on demand."_s};
}

void Import::apply(const QList<ScheduledTask> &tasks)
{
    for (const ScheduledTask &task : tasks) {
        stopIfInterrupted();
        machine_.setTask(task);
    }
}

void Import::addDll(const QString &path, const QMap<uint, QString> &strings)
{
    machine_.setDllStrings(path, strings);
    if (const QString host = machine_.hostPath(path); !QFileInfo::exists(host))
        files_.write(host, QByteArray());
}

QStringList sourceFiles(const QString &sources)
{
    const QDir folder(absolutePath(sources));
    const QDir named(sources); // as it was given, for messages
    if (!folder.exists())
        throw MachineError{u"%1: there is no such folder"_s.arg(sources)};
    QStringList files;
    for (const QString &name : folder.entryList({u"*.reg"_s}, QDir::Files, QDir::Name))
        files.append(named.filePath(name));
    for (const QString &name : {u"tasks.xml"_s, u"machine.json"_s}) {
        if (folder.exists(name))
            files.append(named.filePath(name));
    }
    if (files.isEmpty())
        throw MachineError{u"%1: has neither .reg files nor a tasks.xml nor a machine.json"_s.arg(sources)};
    return files;
}

bool isMachine(const QString &folder)
{
    return QFileInfo(folder + u"/machine.sqlite"_s).isFile();
}

/** Says why a machine can't come to be in that place, by throwing. */
void checkPlace(const QString &folder, Existing existing)
{
    const QFileInfo place(folder);
    if (!place.exists())
        return;
    if (!place.isDir())
        throw MachineError{u"%1: not a folder"_s.arg(folder)};
    if (isMachine(folder)) {
        if (existing == Existing::Keep)
            throw MachineError{u"%1: there is a machine already"_s.arg(folder)};
    } else if (!QDir(folder).isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System)) {
        throw MachineError{u"%1: the folder isn't empty"_s.arg(folder)};
    }
}

/** Puts a finished machine where it is wanted. The one that is there goes last, so that there is always one. */
void moveIntoPlace(const QString &made, const QString &folder, const QString &staging)
{
    const QString former = staging + u"/former"_s;
    const bool replaces = QFileInfo::exists(folder);
    if (replaces && !lockFolder(folder + u"/drive_c"_s))
        throw MachineError{u"%1: in use, by an open window for example"_s.arg(folder)};
    if (replaces && !QDir().rename(folder, former))
        throw MachineError{u"%1: can't be replaced"_s.arg(folder)};
    if (!QDir().rename(made, folder)) {
        if (replaces)
            QDir().rename(former, folder);
        throw MachineError{u"%1: the folder can't be made"_s.arg(folder)};
    }
}

} // namespace

void placeMachine(const QString &folder, Existing existing, const std::function<void(const QString &made)> &make)
{
    const QString place = QDir::cleanPath(absolutePath(folder));
    checkPlace(place, existing);
    const QString parent = QFileInfo(place).path();
    if (!QFileInfo(parent).isDir())
        throw MachineError{u"%1: there is no such folder"_s.arg(parent)};
    // Made beside its place, so that nobody ever sees half a machine.
    removeLeftovers(parent);
    const WorkFolder staging(parent);
    if (!staging.isValid())
        throw MachineError{u"%1: %2"_s.arg(parent, staging.errorString())};
    const QString made = staging.filePath(u"machine"_s);
    make(made);
    moveIntoPlace(made, place, staging.path());
}

void makeMachine(const QString &folder, Existing existing, const std::function<void(Machine &)> &fill)
{
    placeMachine(folder, existing, [&fill](const QString &made) { fill(*Machine::create(made)); });
}

void makeMachine(const QString &folder, const QString &sources, Existing existing, const ProgressCallback &progress)
{
    makeMachine(folder, existing, [&](Machine &machine) {
        importFiles(machine, sources.isEmpty() ? QStringList() : sourceFiles(sources), progress);
    });
}

void importFile(Machine &machine, const QString &file, const ProgressCallback &progress)
{
    importFiles(machine, {file}, progress);
}

QStringList importFiles(Machine &machine, const QStringList &files, const ProgressCallback &progress, uint codePage)
{
    Import import(machine, progress, codePage);
    int done = 0;
    for (const QString &file : files) {
        stopIfInterrupted();
        if (progress)
            progress(file, done++, static_cast<int>(files.size()));
        import.file(file);
    }
    return import.commit();
}

void importContents(Machine &machine, const MachineContents &contents, const ProgressCallback &progress)
{
    Import import(machine, progress);
    import.contents(contents);
    import.commit();
}
