// SPDX-License-Identifier: GPL-3.0-or-later

#include "capture.h"

#include "capturesteps.h"
#include "neutralnames.h"
#include "platform/taskdocument.h"
#include "platform/windowsfacts.h"
#include "readingplatform.h"
#include "work/services/services.h"

using namespace Qt::StringLiterals;

namespace {

/** Reads part after part. */
class PcReader
{
public:
    PcReader(const ReadingPlatform &pc, const SystemReader &system, Names names, CaptureReport &report,
             const ProgressCallback &progress)
        : pc_(pc)
        , system_(system)
        , names_(names)
        , report_(report)
        , progress_(progress)
    {
    }

    MachineContents read()
    {
        report_.elevated = platform().isElevated();
        readDescription();
        tell(u"registry"_s);
        registry_ = captureRegistry(system_, names_ == Names::Keep);
        for (const QString &key : std::as_const(registry_.refused))
            report_.notRead.append({u"registry key "_s + key, u"access denied"_s});
        readServices();
        tell(u"scheduled tasks"_s);
        contents_.tasks = captureTasks(report_.notRead);
        tell(u"names and descriptions"_s);
        resolveTexts();
        tell(u"files"_s);
        const QStringList named = pc_.askedFiles() + filesOfProgram(system_, registry_.commands);
        contents_.description.files = captureFiles(named) + captureFolders([this] { tellAgain(u"component store"_s); });
        contents_.registry = registry_.edits;
        report_.replaced = registry_.replaced;
        return contents_;
    }

private:
    void tell(const QString &step)
    {
        tellAgain(step);
        ++step_;
    }

    void tellAgain(const QString &step) const
    {
        constexpr int steps = 8;
        if (progress_)
            progress_(step, step_, steps);
    }

    void readDescription()
    {
        MachineDescription &description = contents_.description;
        description.environment = captureEnvironment();
        tell(u"hardware"_s);
        description.hardware = captureHardware();
        description.processes = platform().processNames();
        description.wmi = captureWmi(report_.notRead);
        tell(u"boot options"_s);
        description.bootOptions = captureBootOptions(report_.notRead);
        description.name = u"Captured PC with Windows, build %1"_s.arg(
            registryTextOf(system_, WindowsKey::currentVersion, u"CurrentBuild"_s));
    }

    void readServices()
    {
        tell(u"services"_s);
        if (const auto services = system_.serviceReports())
            contents_.services = *services;
        else
            report_.notRead.append({u"which services run"_s, u"the service manager doesn't tell"_s});
    }

    /** Lets the logic itself find the DLLs behind its texts, which are remembered on the way. */
    void resolveTexts()
    {
        for (const QString &text : std::as_const(registry_.serviceTexts))
            expandResourceString(text);
        for (const ScheduledTask &task : std::as_const(contents_.tasks)) {
            if (const QString text = taskFacts(task.document).description; text.startsWith("$(@"_L1))
                expandResourceString(text);
        }
        for (const AskedDll &dll : pc_.askedDlls())
            contents_.description.dlls.insert(dll.path, dll.strings);
    }

    const ReadingPlatform &pc_;
    const SystemReader &system_;
    Names names_;
    CaptureReport &report_;
    const ProgressCallback &progress_;
    int step_ = 0;
    CapturedRegistry registry_;
    MachineContents contents_;
};

QString counted(qsizetype number, const QString &singular, const QString &plural)
{
    return u"%1 %2"_s.arg(number).arg(number == 1 ? singular : plural);
}

QStringList countsOf(const MachineContents &contents)
{
    const auto values = std::count_if(contents.registry.begin(), contents.registry.end(), [](const RegistryEdit &edit) {
        return edit.kind == RegistryEdit::Kind::SetValue;
    });
    return {counted(contents.services.size(), u"service"_s, u"services"_s),
            counted(contents.tasks.size(), u"scheduled task"_s, u"scheduled tasks"_s),
            counted(values, u"registry value"_s, u"registry values"_s),
            counted(contents.description.files.size(), u"file"_s, u"files"_s),
            counted(contents.description.dlls.size(), u"DLL"_s, u"DLLs"_s)};
}

} // namespace

MachineContents readPc(const ReadingPlatform &pc, const SystemReader &system, Names names, CaptureReport &report,
                       const ProgressCallback &progress)
{
    MachineContents contents = PcReader(pc, system, names, report, progress).read();
    if (names == Names::Replace) {
        QMap<QString, QString> variables = contents.description.environment;
        // These name the user and the PC, and aren't read by the program.
        for (const char *name : {"USERPROFILE", "COMPUTERNAME", "USERDNSDOMAIN"})
            variables.insert(QString::fromLatin1(name), qEnvironmentVariable(name));
        NeutralNames neutral(variables);
        const PersonalNames more = personalNames(system);
        for (const QString &name : more.hosts)
            neutral.addHost(name);
        for (const QString &name : more.persons)
            neutral.addPerson(name);
        for (const QString &folder : more.others)
            neutral.addOther(folder);
        neutral.replaceIn(contents);
        report.replaced += neutral.replaced();
    }
    return contents;
}

CaptureReport capturePc(const QString &folder, Existing existing, const ReadingPlatform &pc, const SystemReader &system,
                        Names names, const ProgressCallback &progress)
{
    CaptureReport report;
    makeMachine(folder, existing, [&](Machine &machine) {
        const MachineContents contents = readPc(pc, system, names, report, progress);
        report.counts = countsOf(contents);
        importContents(machine, contents, progress);
        report.left = findNames(machine, report.replaced, [&progress] {
            if (progress)
                progress(u"names that are left"_s, 1, 1);
        });
    });
    return report;
}
