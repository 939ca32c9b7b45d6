// SPDX-License-Identifier: GPL-3.0-or-later
// One instance at a time changes the PC, and nobody without administrator rights keeps it from doing so.

#include "platform/windows/changelock.h"
#include "platform/windows/systemobjects.h"
#include "platform/windows/windowsplatform.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTest>

#include <sddl.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

/** The user of this process, in the form of security descriptors. */
QString ownUser()
{
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token))
        return {};
    const Handle owner(token);
    DWORD size = 0;
    GetTokenInformation(token, TokenUser, nullptr, 0, &size);
    std::vector<BYTE> user(size);
    LPWSTR text = nullptr;
    if (!GetTokenInformation(token, TokenUser, user.data(), size, &size)
        || !ConvertSidToStringSidW(reinterpret_cast<const TOKEN_USER *>(user.data())->User.Sid, &text))
        return {};
    const QString sid = QString::fromWCharArray(text);
    LocalFree(text);
    return sid;
}

/** What a program of the user makes under the name, with these rights. */
Handle squat(const QString &rights, bool isEvent)
{
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    const QString text = u"O:%1G:%1D:"_s.arg(ownUser()) + rights;
    if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(wide(text), SDDL_REVISION_1, &descriptor, nullptr))
        return {};
    SECURITY_ATTRIBUTES attributes{sizeof(attributes), descriptor, FALSE};
    Handle made(isEvent ? CreateEventW(&attributes, TRUE, FALSE, changeLockName)
                        : CreateMutexW(&attributes, FALSE, changeLockName));
    LocalFree(descriptor);
    return made;
}

} // namespace

class TestChangeLock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { setPlatform(nullptr); }

    void secondOneIsKeptOutUntilTheFirstHasGone();
    void programsThatWereStartedKeepNobodyOut();
    void squattersKeepNobodyOut_data();
    void squattersKeepNobodyOut();
};

void TestChangeLock::initTestCase()
{
    setPlatform(std::make_unique<WindowsPlatform>());
    QVERIFY(platform().isElevated());
}

void TestChangeLock::secondOneIsKeptOutUntilTheFirstHasGone()
{
    std::shared_ptr<void> first = platform().lockOthersOut();
    QVERIFY(first);
    QVERIFY(!platform().lockOthersOut());
    QVERIFY(!platform().lockOthersOut());
    first.reset();
    QVERIFY(platform().lockOthersOut());
}

void TestChangeLock::programsThatWereStartedKeepNobodyOut()
{
    QProcess program;
    {
        const std::shared_ptr<void> lock = platform().lockOthersOut();
        program.start(QCoreApplication::applicationDirPath() + u"/exitwith.exe"_s, {u"0"_s, u"120000"_s});
        QVERIFY(program.waitForStarted());
    }
    QVERIFY(platform().lockOthersOut());
    QCOMPARE(program.state(), QProcess::Running);
    program.kill();
    QVERIFY(program.waitForFinished());
}

void TestChangeLock::squattersKeepNobodyOut_data()
{
    addColumns<QString, bool>("rights", "isEvent");
    QTest::newRow("open to all") << u"(A;;GA;;;WD)"_s << false;
    QTest::newRow("closed to all") << u"(D;;GA;;;WD)"_s << false;
    QTest::newRow("not even a mutex") << u"(A;;GA;;;WD)"_s << true;
}

void TestChangeLock::squattersKeepNobodyOut()
{
    QFETCH(const QString, rights);
    QFETCH(const bool, isEvent);
    const Handle squatter = squat(rights, isEvent);
    QVERIFY(squatter);
    QVERIFY(platform().lockOthersOut());
    QVERIFY(platform().lockOthersOut());
}

KESTRUNE_SUITE(TestChangeLock)
#include "tst_changelock.moc"
