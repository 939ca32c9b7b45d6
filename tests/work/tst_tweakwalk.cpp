// SPDX-License-Identifier: GPL-3.0-or-later
// The walk that keeps files out of the content index, or takes them in again.

#include "fakeplatform.h"
#include "joblines.h"
#include "support/suite.h"
#include "support/testmachine.h"

#include <QDir>
#include <QTest>

#ifdef Q_OS_LINUX
#include <linux/capability.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 notIndexed = 0x2000;

/** Gives entries for ever. */
class EndlessDrive : public FakePlatform
{
public:
    void walk(const QString &, const std::function<bool(const WalkEntry &)> &visit) const override
    {
        while (visit({u"C:/file"_s, 1})) {
        }
    }
};

/** Writes down what it is asked; its one file can't be read. */
class UnreadableDrive : public FakePlatform
{
public:
    void walk(const QString &, const std::function<bool(const WalkEntry &)> &visit) const override
    {
        visit({QString(), 0});
        visit({u"C:/file"_s, 1});
    }
    void setFileAttributes(const QString &file, quint32 word) const override { written.append({file, word}); }

    mutable QList<std::pair<QString, quint32>> written;
};

#ifdef Q_OS_LINUX
/** As long as the object lives, permissions of files hold for this thread even where it is the superuser's. */
class PermissionsInForce
{
public:
    PermissionsInForce()
    {
        if (syscall(SYS_capget, &header_, sets_) != 0)
            qFatal("the thread's capabilities can't be read");
        __user_cap_data_struct fewer[_LINUX_CAPABILITY_U32S_3] = {sets_[0], sets_[1]};
        fewer[0].effective &= ~(1U << CAP_DAC_OVERRIDE | 1U << CAP_DAC_READ_SEARCH);
        use(fewer);
    }
    ~PermissionsInForce() { use(sets_); }
    Q_DISABLE_COPY_MOVE(PermissionsInForce)

private:
    void use(const __user_cap_data_struct *sets)
    {
        if (syscall(SYS_capset, &header_, sets) != 0)
            qFatal("the thread's capabilities can't be changed");
    }

    __user_cap_header_struct header_{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct sets_[_LINUX_CAPABILITY_U32S_3] = {};
};
#endif

} // namespace

class TestTweakWalk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFileAndFolderOfTheDrive();
    void hiddenAndSystemEntriesStayWithAllBelow();
    void linksAreMarkedAndTheirTargetsArent();
    void namesOfAnyKind();
    void manyFilesAllStay();
    void unreadableFolderIsPassedOver();
    void treeThatChangesMeanwhile();
    void invalidWordIsHandedOn();
    void underOptimizeTheClosingLineIsTheAutomatizers();
    void endsWhenAsked();
    void whatWasDoneByThenStays();

private:
    static quint32 wordOf(const TestMachine &machine, const QString &file)
    {
        return machine.machine().attributes(file);
    }
};

void TestTweakWalk::everyFileAndFolderOfTheDrive()
{
    TestMachine machine;
    const QStringList files{u"C:\\top.txt"_s, u"C:\\Users\\Test\\a\\b\\c.txt"_s, u"C:\\Windows\\System32\\x.dll"_s};
    for (const QString &file : files)
        machine.addFile(file);
    WorkThread worker;
    JobLines lines(worker);
    QVERIFY(runJob(worker, JobTweakApply));
    for (const QString &file : files)
        QCOMPARE(wordOf(machine, file), 0x20 | notIndexed);
    for (const QString &folder : {u"C:\\Users"_s, u"C:\\Users\\Test\\a\\b"_s})
        QCOMPARE(wordOf(machine, folder), 0x10 | notIndexed);
    QCOMPARE(lines.all().size(), 1);
    QVERIFY(runJob(worker, JobTweakReset));
    for (const QString &file : files)
        QCOMPARE(wordOf(machine, file), 0x20u);
    QCOMPARE(lines.all(), QStringList(2, u"page: WorkThread::TweakSSD::RemoveIndexedAttrib"_s));
    QCOMPARE(worker.needReboot, 0);
}

void TestTweakWalk::hiddenAndSystemEntriesStayWithAllBelow()
{
    TestMachine machine;
    const QStringList left{u"C:\\hidden.txt"_s,        u"C:\\system.txt"_s, u"C:\\Hidden"_s,
                           u"C:\\Hidden\\below.txt"_s, u"C:\\System"_s,     u"C:\\System\\below\\deep.txt"_s};
    for (const QString &file : {left.at(0), left.at(1), left.at(3), left.at(5), u"C:\\Systematic\\file.txt"_s})
        machine.addFile(file);
    for (const QString &file : {left.at(0), left.at(2)})
        machine.machine().setAttributes(file, 0x2);
    for (const QString &file : {left.at(1), left.at(4)})
        machine.machine().setAttributes(file, 0x4);
    WorkThread worker;
    worker.TweakSSD(1, 8);
    for (const QString &file : left)
        QVERIFY2((wordOf(machine, file) & notIndexed) == 0, qPrintable(file));
    // Its name only begins like that of the folder that is left out.
    QCOMPARE(wordOf(machine, u"C:\\Systematic\\file.txt"_s), 0x20 | notIndexed);
}

void TestTweakWalk::linksAreMarkedAndTheirTargetsArent()
{
    TestMachine machine;
    const QString target = machine.folder() + u"/program/target"_s;
    QVERIFY(QDir().mkpath(target));
    QFile(target + u"/file.txt"_s).open(QIODevice::WriteOnly);
    machine.addFile(u"C:\\Data\\plain.txt"_s);
    const QString link = machine.machine().hostPath(u"C:\\Data"_s) + u"/link"_s;
    QVERIFY(QFile::link(target, link));
    WorkThread worker;
    worker.TweakSSD(1, 8);
    QVERIFY((wordOf(machine, u"C:\\Data\\link"_s) & notIndexed) != 0);
    QCOMPARE(machine.machine().attributes(target), 0x10u);
    QCOMPARE(machine.machine().attributes(target + u"/file.txt"_s), 0x20u);
    QCOMPARE(machine.machine().pathsWithAttribute(notIndexed).size(), 3);
}

void TestTweakWalk::namesOfAnyKind()
{
    TestMachine machine;
    const QStringList files{u"C:\\Größe 日本 \U0001f600.txt"_s, u"C:\\a b\\%1 & $(x) 'q'.txt"_s, u"C:\\.dot"_s,
                            u"C:\\"_s + QString(200, u'n')};
    for (const QString &file : files)
        machine.addFile(file);
    WorkThread worker;
    worker.TweakSSD(1, 8);
    for (const QString &file : files)
        QCOMPARE(wordOf(machine, file), 0x20 | notIndexed);
}

void TestTweakWalk::manyFilesAllStay()
{
    constexpr int count = 6234; // more than are stored at once, and no multiple
    TestMachine machine;
    for (int i = 0; i < count; ++i)
        machine.addFile(u"C:\\Many\\file%1"_s.arg(i));
    WorkThread worker;
    worker.TweakSSD(1, 8);
    QCOMPARE(machine.machine().pathsWithAttribute(notIndexed).size(), count + 1);
    worker.TweakSSD(0, 8);
    QCOMPARE(machine.machine().pathsWithAttribute(notIndexed).size(), 0);
}

void TestTweakWalk::unreadableFolderIsPassedOver()
{
#ifdef Q_OS_LINUX
    TestMachine machine;
    const QString file = machine.addFile(u"C:\\Locked\\file.txt"_s);
    machine.addFile(u"C:\\Open\\file.txt"_s);
    const QByteArray folder = QFile::encodeName(QFileInfo(file).path());
    chmod(folder.constData(), 0);
    {
        const PermissionsInForce permissions;
        QVERIFY(!QFile(file).open(QIODevice::ReadOnly));
        WorkThread worker;
        worker.TweakSSD(1, 8);
    }
    chmod(folder.constData(), 0700);
    QCOMPARE(wordOf(machine, u"C:\\Locked"_s), 0x10 | notIndexed);
    QCOMPARE(wordOf(machine, u"C:\\Locked\\file.txt"_s), 0x20u);
    QCOMPARE(wordOf(machine, u"C:\\Open\\file.txt"_s), 0x20 | notIndexed);
#else
    QSKIP("access is another thing here");
#endif
}

void TestTweakWalk::treeThatChangesMeanwhile()
{
    TestMachine machine;
    for (int i = 0; i < 300; ++i)
        machine.addFile(u"C:\\Tree\\folder%1\\file.txt"_s.arg(i));
    machine.addFile(u"C:\\Stays\\file.txt"_s);
    WorkThread worker;
    JobLines lines(worker);
    worker.startJob(JobTweakApply);
    QDir(machine.machine().hostPath(u"C:\\Tree"_s)).removeRecursively();
    machine.addFile(u"C:\\New\\file.txt"_s);
    QVERIFY(worker.wait(30000));
    QCOMPARE(lines.all().size(), 1);
    QCOMPARE(wordOf(machine, u"C:\\Stays\\file.txt"_s), 0x20 | notIndexed);
}

void TestTweakWalk::invalidWordIsHandedOn()
{
    const PlatformInForce<UnreadableDrive> platform;
    WorkThread worker;
    worker.TweakSSD(1, 8);
    worker.TweakSSD(0, 8);
    const QList<std::pair<QString, quint32>> expected{{u"C:/file"_s, 0xffffffff}, {u"C:/file"_s, 0xffffdfff}};
    QCOMPARE(platform->written, expected);
}

void TestTweakWalk::underOptimizeTheClosingLineIsTheAutomatizers()
{
    const TestMachine machine;
    WorkThread worker;
    worker.optimizeRunning = 1;
    JobLines lines(worker);
    QVERIFY(runJob(worker, JobTweakApply));
    QCOMPARE(lines.all(), QStringList(u"automatizer: RemoveIndexedAttrib_end"_s));
}

void TestTweakWalk::endsWhenAsked()
{
    const PlatformInForce<EndlessDrive> platform;
    WorkThread worker;
    JobLines lines(worker);
    worker.startJob(JobTweakApply);
    QVERIFY(!worker.wait(50));
    worker.requestInterruption();
    QVERIFY(worker.wait(60000));
    QCOMPARE(lines.all(), QStringList());
}

void TestTweakWalk::whatWasDoneByThenStays()
{
    TestMachine machine;
    const QString file = machine.addFile(u"C:\\Data\\file.txt"_s);
    machine.platform().walk(u"C:"_s, [&](const WalkEntry &entry) {
        platform().setFileAttributes(entry.path, notIndexed);
        // It reads as it was set before it is stored.
        return entry.path != file && platform().fileAttributes(entry.path) == (0x10 | notIndexed);
    });
    QCOMPARE(Machine::open(machine.folder())->attributes(file), notIndexed);
}

KESTRUNE_SUITE(TestTweakWalk)
#include "tst_tweakwalk.moc"
