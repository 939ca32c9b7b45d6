// SPDX-License-Identifier: GPL-3.0-or-later
// A person's way through the Features page on the built-in PCs: every box is clicked and applied, then every box is
// taken back and applied. A second PC is changed by hand as the tweaks ought to change it, and the two are compared
// as a whole.

#include "machine/compare/machinediff.h"
#include "machine/source/machinesource.h"
#include "platform/taskdocument.h"
#include "support/boxes.h"
#include "support/suite.h"
#include "support/tweakrows.h"
#include "support/windowdriver.h"
#include "work/tweaks/tweakcatalogue.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QDirIterator>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 hiddenOrSystem = 0x2 | 0x4;
constexpr quint32 notIndexed = 0x2000;
const QString control = u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control"_s;
const QString interfacesKey = servicesKey + u"\\Tcpip\\Parameters\\Interfaces"_s;

/** The same kind of PC, on which a test does by hand what the tweaks ought to do. */
class ExpectedPc
{
public:
    explicit ExpectedPc(const QString &builtIn)
        : windows11_(builtIn == "windows11"_L1)
    {
        makeMachine(folder_.path() + u"/expected"_s, QCoreApplication::applicationDirPath() + u"/machines/"_s + builtIn,
                    Existing::Keep);
        machine_ = Machine::open(folder_.path() + u"/expected"_s);
    }

    /** Every box is checked, but for these, and applied; or every box is unchecked and applied. */
    void apply(bool on, const QStringList &notClicked)
    {
        applyValues(on, notClicked);
        applyClassicMenu(on);
        applyClock(on);
        applyNetwork(on);
        applyMemoryLimit(on);
        applyPriority(on);
        if (!notClicked.contains(u"chkGaming14"_s))
            applyAdapters(on);
        applySearch(on);
        applyCloudBackup(on);
        applyAttributes(on);
        for (const TweakBox &box : tweakBoxes())
            set(settingsKey + u"\\Tweak"_s, box.name, on && !notClicked.contains(box.name) ? u"true"_s : u"false"_s);
        set(settingsKey + u"\\Tweak"_s, u"cbWin32PrioritySeparation"_s, 3);
    }

    /** The tools that run, with all arguments, in order. */
    QStringList commands(bool on) const
    {
        QStringList lines{u"powercfg -h "_s + (on ? u"OFF"_s : u"ON"_s)};
        if (windows11_) {
            lines.append(u"bcdedit /set useplatformclock "_s + (on ? u"False"_s : u"True"_s));
            lines.append(u"bcdedit /set disabledynamictick "_s + (on ? u"Yes"_s : u"No"_s));
        }
        if (on) {
            const QMap<QString, QString> environment = machine_->environment();
            lines.append(u"takeown /f "_s + searchFile());
            lines.append(u"icacls "_s + searchFile() + u" /grant:r "_s + environment[u"USERDOMAIN"_s] + u'\\'
                         + environment[u"USERNAME"_s] + u":F /L"_s);
            lines.append(u"taskkill /im "_s + searchFile().section(u'\\', -1) + u" /f /t"_s);
        } else {
            lines.append(u"icacls "_s + searchFile() + u" /reset"_s);
        }
        if (!cloudService().isEmpty()) {
            for (const char *task : {"Backup", "Restore"})
                lines.append(u"schtasks /CHANGE /TN \\Microsoft\\Windows\\CloudRestore\\"_s + QLatin1String(task)
                             + (on ? u" /DISABLE"_s : u" /ENABLE"_s));
        }
        return lines;
    }

    Machine &machine() const { return *machine_; }

private:
    void set(const QString &key, const QString &name, const QVariant &value)
    {
        RegistryStore &registry = machine_->registry();
        const auto id = *registry.make(key);
        if (value.typeId() == QMetaType::Int)
            registry.setValue(id, {name, RegistryType::DWord, registryDWord(static_cast<quint32>(value.toInt()))});
        else
            registry.setValue(id, {name, RegistryType::String, registryText(value.toString())});
    }

    void remove(const QString &key, const QString &name)
    {
        if (const auto id = machine_->registry().find(key))
            machine_->registry().removeValue(*id, name);
    }

    void setOrRemove(const QString &key, const QString &name, const QVariant &value)
    {
        if (value.isValid())
            set(key, name, value);
        else
            remove(key, name);
    }

    QString text(const QString &key, const QString &name) const
    {
        const auto id = machine_->registry().find(key);
        const auto value = id ? machine_->registry().value(*id, name) : std::nullopt;
        return value ? textOf(value->data) : QString();
    }

    QStringList subkeys(const QString &key) const
    {
        const auto id = machine_->registry().find(key);
        return id ? machine_->registry().subkeys(*id) : QStringList();
    }

    void applyValues(bool on, const QStringList &notClicked)
    {
        QStringList notRun = notClicked;
        if (!windows11_)
            notRun += {u"chkGaming8"_s, u"chkWindows5"_s, u"chkWindows9"_s};
        for (const TweakRow &row : tweakRows()) {
            const std::optional<QVariant> &value = on ? row.applied : row.reset;
            if (value && !notRun.contains(row.box))
                setOrRemove(row.key, row.name, *value);
        }
    }

    void applyClassicMenu(bool on)
    {
        // Taking it back leaves the key with its empty value.
        if (windows11_ && on)
            set(u"HKEY_CURRENT_USER\\Software\\Classes\\CLSID\\{86ca1aa0-34aa-4e8b-a509-50c905bae2a2}\\InprocServer32"_s,
                QString(), QString());
    }

    void applyClock(bool on)
    {
        if (!windows11_)
            set(servicesKey + u"\\Hpet"_s, u"Start"_s, on ? 4 : 2);
    }

    void applyNetwork(bool on)
    {
        constexpr int shortestHint = 22;
        constexpr int subkeyLength = 12;
        const auto change = [&](const QString &key) {
            for (const char *name : {"TcpAckFrequency", "TCPNoDelay"})
                setOrRemove(key, QString::fromLatin1(name), on ? QVariant(1) : QVariant());
        };
        for (const QString &name : subkeys(interfacesKey)) {
            const QString key = interfacesKey + u'\\' + name;
            const QString address = text(key, u"DhcpIPAddress"_s);
            if (!address.isEmpty() && address != "0.0.0.0"_L1)
                change(key);
            const QString hint = text(key, u"DhcpNetworkHint"_s);
            if (hint.size() >= shortestHint)
                change(key + u'\\' + hint.left(subkeyLength));
        }
    }

    void applyMemoryLimit(bool on)
    {
        const QString key = control + u"\\Session Manager\\Memory Management"_s;
        const auto computers = machine_->wmiInstances(u"Win32_ComputerSystem"_s);
        const qint64 size = computers.value(0).value(u"TotalPhysicalMemory"_s).toString().toLongLong() / 1068000000LL;
        const QMap<qint64, int> limits{{4, 4000000}, {8, 8000000}, {16, 10000000}, {32, 10000000}};
        if (!on)
            remove(key, u"IoPageLockLimit"_s);
        else if (limits.contains(size))
            set(key, u"IoPageLockLimit"_s, limits.value(size));
    }

    void applyPriority(bool on)
    {
        setOrRemove(control + u"\\PriorityControl"_s, u"Win32PrioritySeparation"_s, on ? QVariant(38) : QVariant());
    }

    void applyAdapters(bool on)
    {
        for (const QString &name : subkeys(control + u"\\Video"_s)) {
            for (int number = 0; number <= 5; ++number)
                set(control + u"\\Video\\"_s + name + u"\\000"_s + QString::number(number), u"EnableUlps"_s,
                    on ? 0 : 1);
        }
    }

    QString searchFile() const
    {
        return windows11_ ? u"C:\\Windows\\SystemApps\\MicrosoftWindows.Client.CBS_cw5n1h2txyewy\\SearchHost.exe"_s
                          : u"C:\\Windows\\SystemApps\\Microsoft.Windows.Search_cw5n1h2txyewy\\SearchApp.exe"_s;
    }

    void applySearch(bool on)
    {
        const QString file = machine_->hostPath(searchFile());
        QString disabled = file;
        disabled.replace(u".exe"_s, u"_disable.exe"_s);
        const QString &from = on ? file : disabled;
        const QString &to = on ? disabled : file;
        QVERIFY(QFile::rename(from, to));
        machine_->copyFileSize(from, to);
    }

    /** The service with its number, and with the value after Type where there is one; empty where there is none. */
    QString cloudService() const
    {
        QString last;
        for (const QString &name : subkeys(servicesKey)) {
            if (!name.startsWith("CloudBackupRestoreSvc_"_L1))
                continue;
            const auto id = *machine_->registry().find(servicesKey + u'\\' + name);
            QStringList values = machine_->registry().valuePaths(id);
            values.sort();
            if (values.isEmpty())
                continue;
            // Listed with "/" between levels, which in the path of a key is an ordinary character; one that is part of
            // a name, as this tweak makes it, is listed as a backslash.
            last = QString(name).replace(u'/', u'\\') + u'/' + values.constLast();
            last.remove(u"/Type"_s);
        }
        return last;
    }

    void applyCloudBackup(bool on)
    {
        const QString service = cloudService();
        if (service.isEmpty())
            return;
        set(servicesKey + u'\\' + service, u"Start"_s, on ? 4 : 3);
        for (const char *name : {"Backup", "Restore"}) {
            auto task = machine_->task(u"\\Microsoft\\Windows\\CloudRestore\\"_s + QLatin1String(name));
            if (!task)
                continue;
            task->document = withTaskEnabled(task->document, !on);
            machine_->setTask(*task);
        }
    }

    void applyAttributes(bool on)
    {
        for (const QString &path : visited(machine_->driveFolder())) {
            const QString windowsPath = machine_->windowsPath(path);
            const quint32 word = machine_->attributes(windowsPath);
            machine_->setAttributes(windowsPath, on ? word | notIndexed : word & ~notIndexed);
        }
    }

    /** What a walk meets: hidden and system entries are passed over with all below them. */
    QStringList visited(const QString &folder) const
    {
        QStringList paths;
        QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
        while (entries.hasNext()) {
            const QString path = entries.next();
            if ((machine_->attributes(machine_->windowsPath(path)) & hiddenOrSystem) != 0)
                continue;
            paths.append(path);
            if (entries.fileInfo().isDir() && !entries.fileInfo().isSymLink())
                paths += visited(path);
        }
        return paths;
    }

    bool windows11_;
    QTemporaryDir folder_;
    std::unique_ptr<Machine> machine_;
};

/** What Windows' own tools keep, which goes by the commands: hibernation, boot options, owners and rights of files. */
bool isOfTools(const DiffRow &row)
{
    const QString kind = kindName(row.kind);
    return kind == "boot"_L1 || kind == "rights"_L1 || row.path.endsWith("hiberfil.sys"_L1)
           || row.name == "HibernateEnabled"_L1;
}

/** What differs beyond that, for a person to read; the options of the program itself and empty keys don't count. */
QStringList differences(Machine &expected, Machine &actual)
{
    QStringList rows;
    for (const DiffRow &row : compareMachines(expected, actual)) {
        if (row.path == settingsKey || isOfTools(row) || (row.kind == DiffKind::Registry && row.name.isEmpty()))
            continue;
        rows.append(kindName(row.kind) + u' ' + row.path + u" | "_s + row.name + u": "_s + row.before + u" -> "_s
                    + row.after);
    }
    return rows;
}

} // namespace

class TestFeaturesStory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyBoxIsAppliedAndTakenBack_data();
    void everyBoxIsAppliedAndTakenBack();
};

void TestFeaturesStory::everyBoxIsAppliedAndTakenBack_data()
{
    addColumns<QString, QStringList>("builtIn", "notClicked");
    QTest::newRow("Windows 11") << u"windows11"_s << QStringList{u"chkGaming14"_s};
    QTest::newRow("Windows 10") << u"windows10"_s << QStringList{u"chkGaming8"_s, u"chkWindows5"_s};
}

void TestFeaturesStory::everyBoxIsAppliedAndTakenBack()
{
    QFETCH(const QString, builtIn);
    QFETCH(const QStringList, notClicked);
    TestMachine machine(builtIn);
    machine.write(settingsKey, u"GetWinSxsSize"_s, 0);
    ExpectedPc expected(builtIn);
    QCOMPARE(differences(expected.machine(), machine.machine()).join(u'\n'), QString());
    const WindowDriver driver;
    driver.click(u"btnMenuTweak"_s);
    auto *page = driver.get<QScrollArea>(u"scrollArea"_s);

    Boxes boxes;
    qsizetype commandsBefore = 0;
    for (const bool on : {true, false}) {
        for (const TweakBox &box : tweakBoxes()) {
            auto *check = driver.get<QCheckBox>(box.name);
            page->ensureWidgetVisible(check);
            QTest::mouseClick(check, Qt::LeftButton, {}, QPoint(8, check->height() / 2));
            QCOMPARE(check->isChecked(), on && !notClicked.contains(box.name));
        }
        page->ensureWidgetVisible(driver.button(u"btnTweakApply"_s));
        boxes.answer(QMessageBox::Yes);
        driver.click(u"btnTweakApply"_s);
        const QString finished =
            on ? u"Remove indexing attribute of C: finished"_s : u"Add indexing attribute of C: finished"_s;
        QTRY_COMPARE_WITH_TIMEOUT(driver.status(), finished, patience);
        QTRY_VERIFY(!driver.worker().isRunning());

        QStringList commands;
        for (const LoggedCommand &command : machine.commands().mid(commandsBefore))
            commands.append(command.program + u' ' + command.arguments.join(u' '));
        commandsBefore += commands.size();
        QCOMPARE(commands, expected.commands(on));
        expected.apply(on, notClicked);
        QCOMPARE(differences(expected.machine(), machine.machine()).join(u'\n'), QString());
        QCOMPARE(QFile::exists(machine.platform().hostPath(u"C:\\hiberfil.sys"_s)), !on);
    }
}

KESTRUNE_WINDOW_SUITE(TestFeaturesStory)
#include "tst_featuresstory.moc"
