// SPDX-License-Identifier: GPL-3.0-or-later
// A rehearsal machine behind the seam.

#include "machineplatform.h"

#include "console/programinterruption.h"
#include "folderwalk.h"
#include "machine/environment.h"
#include "machine/folderlock.h"
#include "machine/machineerror.h"
#include "machine/machinekey.h"
#include "platform/filebelow.h"
#include "platform/programname.h"
#include "platform/windowsfacts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QThread>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 errorModuleNotFound = 126;
constexpr quint32 errorBadImage = 193;
constexpr qint32 wmiInvalidClass = -2147217392; // WBEM_E_INVALID_CLASS
constexpr int pauseSlice = 10;                  // milliseconds
constexpr qsizetype mostProcesses = 1024;
constexpr qsizetype foundAtOnce = 250; // few enough for a walk to end at once when it is asked to
constexpr QStringView tools[] = {u"sc",  u"schtasks", u"powershell", u"taskkill", u"onedrivesetup",
                                 u"cmd", u"powercfg", u"bcdedit",    u"takeown",  u"icacls"};

#ifdef Q_OS_WIN
constexpr QLatin1StringView executableSuffix(".exe");
#else
constexpr QLatin1StringView executableSuffix("");
#endif

constexpr int exitNotDone = 3; ///< of a tool that couldn't read the machine, or change it

/** "sc" of "C:\Windows\System32\SC.EXE". */
QString toolOf(const QString &program)
{
    const qsizetype start = std::max(program.lastIndexOf(u'/'), program.lastIndexOf(u'\\')) + 1;
    QString name = program.sliced(start);
    if (name.endsWith(u".exe", Qt::CaseInsensitive))
        name.chop(4);
    for (const QStringView tool : tools) {
        if (tool.compare(name, Qt::CaseInsensitive) == 0)
            return tool.toString();
    }
    return {};
}

/** A property as the text of what its VARIANT holds, read as a text or else as 32 bits. */
QString propertyText(const QJsonObject &instance, const QString &name)
{
    QJsonValue value;
    for (auto each = instance.begin(); each != instance.end(); ++each) {
        if (each.key().compare(name, Qt::CaseInsensitive) == 0)
            value = each.value();
    }
    if (value.isString())
        return value.toString();
    if (value.isBool())
        return value.toBool() ? u"65535"_s : u"0"_s; // VARIANT_TRUE is 16 bits, all set
    if (value.isDouble()) {
        const qint64 number = value.toInteger(qint64(std::clamp(value.toDouble(), -9e18, 9e18)));
        return QString::number(qint32(quint32(number)));
    }
    return u"0"_s;
}

} // namespace

MachinePlatform::MachinePlatform(const QString &machineFolder, MachineOptions options)
    : machine_(Machine::open(machineFolder))
    , options_(std::move(options))
    , attributes_(*machine_)
    , opener_(options_.opener ? options_.opener(*machine_, options_.elevated) : nullptr)
{
    if (options_.resourceFolder.isEmpty())
        options_.resourceFolder = QCoreApplication::applicationDirPath();
    if (options_.stockTool.isEmpty())
        options_.stockTool = QCoreApplication::applicationDirPath() + u"/kestrune-stocktool"_s + executableSuffix;
    enterEnvironment(machine_->environment());
    // For this program when it is started anew; the second for the tools, too.
    qputenv("KESTRUNE_MACHINE", machine_->folder().toLocal8Bit());
    qputenv("KESTRUNE_ELEVATED", options_.elevated ? "1" : "0");
}

MachinePlatform::~MachinePlatform() = default;

QList<int> MachinePlatform::takePauses() const
{
    const std::lock_guard lock(pausesLock_);
    return std::exchange(pauses_, {});
}

std::unique_ptr<RegistryKey> MachinePlatform::openKey(const QString &path) const
{
    return std::make_unique<MachineKey>(machine_->registry(), path, options_.elevated);
}

QList<RegistryValue> MachinePlatform::registryValues(const QString &keyPath) const
{
    return guarded(QList<RegistryValue>(), [&] {
        const auto key = machine_->registry().find(keyPath);
        return key ? machine_->registry().values(*key) : QList<RegistryValue>();
    });
}

QString MachinePlatform::hostPath(const QString &windowsPath) const
{
    return machine_->hostPath(windowsPath);
}

bool MachinePlatform::isOnFixedDrive(const QString &windowsPath) const
{
    // All drives of a machine are built in. A file whose links are followed lies somewhere else than it says.
    const QString file = hostPath(windowsPath);
    return isDrivePath(windowsPath) && QFileInfo::exists(file) && machine_->linksOnTheWay(file).isEmpty();
}

QString MachinePlatform::programFolder() const
{
    return machine_->programFolder();
}

QString MachinePlatform::resourceFolder() const
{
    return options_.resourceFolder;
}

bool MachinePlatform::writeFile(const QString &folder, const QString &name, const QByteArray &content,
                                IfThere ifThere) const
{
    const QString file = folder + u'/' + name;
    if (isReadOnly(file) || !writeFileBelow(folder, name, content, ifThere))
        return false;
    // What is written is all that there is.
    if (!content.isEmpty())
        guarded(false, [&] {
            machine_->setFileSize(file, content.size());
            return true;
        });
    return true;
}

bool MachinePlatform::appendLine(const QString &folder, const QString &name, const QString &line) const
{
    return !isReadOnly(folder + u'/' + name) && appendLineBelow(folder, name, line);
}

bool MachinePlatform::isReadOnly(const QString &file) const
{
    const quint32 word = fileAttributes(file);
    return word != invalidAttributes && (word & AttributeReadOnly) != 0;
}

void MachinePlatform::walk(const QString &windowsPath, const std::function<bool(const WalkEntry &)> &visit) const
{
    const AttributeWords::Walk together(attributes_);
    const QStringList hidden = guarded(QStringList(), [this] { return machine_->pathsWithAttribute(AttributeHidden); });
    const QHash<QString, qint64> sizes = guarded(QHash<QString, qint64>(), [this] { return machine_->givenSizes(); });
    QList<WalkEntry> found;
    const auto visitFound = [&] {
        guarded(false, [&] {
            attributes_.readAhead(found);
            return true;
        });
        const QList<WalkEntry> entries = std::exchange(found, {});
        return std::all_of(entries.cbegin(), entries.cend(), visit);
    };
    walkFolder(
        hostPath(windowsPath), QSet<QString>(hidden.cbegin(), hidden.cend()),
        [this](const QString &link) { return machine_->leadsOut(link); },
        [&](const WalkEntry &entry) {
            const qint64 given = sizes.isEmpty() ? 0 : sizes.value(machine_->pathKey(entry.path));
            found.append({entry.path, std::max(entry.size, given)});
            return found.size() < foundAtOnce || visitFound();
        });
    visitFound();
}

quint32 MachinePlatform::fileAttributes(const QString &file) const
{
    return guarded(invalidAttributes, [&] { return attributes_.read(file).value_or(invalidAttributes); });
}

void MachinePlatform::setFileAttributes(const QString &file, quint32 word) const
{
    attributes_.write(file, word);
}

void MachinePlatform::setAllFileAttributes(const QList<FileAttributes> &files) const
{
    const AttributeWords::Walk together(attributes_);
    Platform::setAllFileAttributes(files);
}

qint64 MachinePlatform::fileSize(const QString &file) const
{
    return guarded(Platform::fileSize(file), [&] { return machine_->fileSize(file); });
}

bool MachinePlatform::renameFile(const QString &from, const QString &to) const
{
    // What was granted stays with a file of the system, and is noted by the name that it was granted under.
    const bool isGranted = guarded(false, [&] {
        const QStringList names{machine_->windowsPath(from), machine_->windowsPath(to)};
        return !isOfWindows(names.first()) || std::any_of(names.begin(), names.end(), [this](const QString &name) {
            return !machine_->security(name).rights.isEmpty();
        });
    });
    if (!isGranted || !Platform::renameFile(from, to))
        return false;
    guarded(false, [&] {
        machine_->copyFileSize(from, to);
        return true;
    });
    return true;
}

QString MachinePlatform::programFile(const QString &program) const
{
    return guarded(QString(), [&] { return resolvedProgram(withoutQuotes(program)); });
}

QString MachinePlatform::resolvedProgram(const QString &program) const
{
    const QString tool = toolOf(program);
    if (tool.isEmpty())
        return {};
    const std::optional<ToolFault> fault = machine_->fault(tool);
    if (fault && fault->missing)
        return {};
    if (!isBareName(program)) {
        const bool present = QFileInfo(hostPath(program)).isFile() || QFileInfo(hostPath(program + u".exe"_s)).isFile();
        if (!present)
            return {};
    }
    if (!QFileInfo(options_.stockTool).isFile())
        throw MachineError{
            u"%1: missing; it stands for all tools of a machine"_s.arg(QDir::toNativeSeparators(options_.stockTool))};
    return options_.stockTool;
}

QStringList MachinePlatform::wordsToStart(const QString &program) const
{
    return {machine_->folder(), toolOf(program)};
}

std::optional<AdmittedProgram> MachinePlatform::admitProgram(const QString &program, const QStringList &arguments) const
{
    const QString path = withoutQuotes(program);
    if (options_.elevated && !isBareName(path) && guarded(true, [&] { return machine_->isUnsigned(path); }))
        return {};
    AdmittedProgram admitted{programFile(program), {}, wordsToStart(path)};
    const QString tool = toolOf(path);
    if (options_.tools && !guarded(true, [&] { return machine_->fault(tool, arguments).has_value(); })) {
        admitted.within = [this, tool, arguments] {
            return guarded(ProgramAnswer{exitNotDone},
                           [&] { return options_.tools(*machine_, tool, arguments, options_.elevated); });
        };
    }
    return admitted;
}

void MachinePlatform::startFailed(const QString &program, const QString &reason) const
{
    MachineFailures::say({u"%1 can't be started: %2"_s.arg(program, reason)});
}

int MachinePlatform::exitCode(qint64 processId, int reported) const
{
    return guarded(reported, [&] {
        const std::optional<int> code = machine_->takeExitCode(processId);
        // A tool leaves it as its last change. Whoever ends this program may end its tools, too.
        if (!code && !isInterrupted())
            throw MachineError{u"a tool ended without having done its work"_s};
        return code.value_or(reported);
    });
}

QString MachinePlatform::takeFailure() const
{
    const QString failure = MachineFailures::take();
    // A database that has been removed can be written to all the same, but nobody reads it any more.
    const QString folder = machine_->folder();
    if (!QFileInfo::exists(folder + u"/machine.sqlite"_s))
        return u"%1: the machine has been removed"_s.arg(QDir::toNativeSeparators(folder));
    return failure;
}

bool MachinePlatform::isElevated() const
{
    return options_.elevated;
}

std::shared_ptr<void> MachinePlatform::lockOthersOut() const
{
    return lockFolder(machine_->folder());
}

void MachinePlatform::shellExecute(const ShellStart &start) const
{
    if (options_.launcher) {
        options_.launcher(start);
        return;
    }
    const QString own = QCoreApplication::applicationFilePath();
    const bool isOwn = QFileInfo(start.file) == QFileInfo(own);
    QProcess process;
    process.setProgram(isOwn ? own : programFile(start.file));
    if (process.program().isEmpty())
        return;
    process.setArguments((isOwn ? QStringList() : wordsToStart(start.file)) + QProcess::splitCommand(start.parameters));
    if (start.verb.compare(u"runas", Qt::CaseInsensitive) == 0) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"KESTRUNE_ELEVATED"_s, u"1"_s);
        process.setProcessEnvironment(environment);
    }
    process.startDetached();
}

QStringList MachinePlatform::processNames() const
{
    return guarded(QStringList(), [this] { return machine_->processes().mid(0, mostProcesses); });
}

DllString MachinePlatform::dllString(const QString &windowsPath, uint id) const
{
    // Windows looks for a bare name in its system folder.
    const QString path = isBareName(windowsPath) ? u"C:\\Windows\\System32\\"_s + windowsPath : windowsPath;
    DllString result;
    if (!QFileInfo(hostPath(path)).isFile()) {
        result.error = errorModuleNotFound;
        return result;
    }
    const auto found = guarded(std::optional<std::optional<QString>>(), [&] { return machine_->dllString(path, id); });
    result.loaded = found.has_value();
    if (found)
        result.text = *found;
    else
        result.error = errorBadImage;
    return result;
}

WmiAnswer MachinePlatform::queryWmi(const QString &className, const QStringList &properties) const
{
    const WmiAnswer invalidClass{{}, {{WmiStep::Query, wmiInvalidClass}}};
    return guarded(invalidClass, [&] {
        if (!machine_->hasWmiClass(className))
            return invalidClass;
        WmiAnswer answer;
        for (const QJsonObject &instance : machine_->wmiInstances(className)) {
            QStringList texts;
            for (const QString &property : properties)
                texts << propertyText(instance, property);
            answer.instances << texts;
        }
        return answer;
    });
}

void MachinePlatform::pause(int milliseconds) const
{
    {
        const std::lock_guard lock(pausesLock_);
        pauses_ << milliseconds;
    }
    const auto length = qint64(milliseconds * options_.pace);
    for (qint64 left = length; left > 0; left -= pauseSlice) {
        if (QThread::currentThread()->isInterruptionRequested())
            return;
        QThread::msleep(static_cast<unsigned long>(std::min<qint64>(left, pauseSlice)));
    }
}
