// SPDX-License-Identifier: GPL-3.0-or-later
// A rehearsal with administrator rights, which goes by the machine's variables and by nobody else's.

#include "machine/machine.h"
#include "machine/source/machinesource.h"
#include "platform/windows/processtoken.h"
#include "support/rehearsing.h"
#include "support/suite.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString search = u"C:\\Windows\\SystemApps\\MicrosoftWindows.Client.CBS_cw5n1h2txyewy\\SearchHost.exe"_s;
const QString disabledSearch = QString(search).replace(u".exe"_s, u"_disable.exe"_s);

} // namespace

class TestElevatedRehearsal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toolsGoByTheMachinesVariables();
};

/** The one that renames the search gives its file to the user that two variables name. */
void TestElevatedRehearsal::toolsGoByTheMachinesVariables()
{
    QVERIFY(isElevatedProcess());
    const QTemporaryDir folder;
    const QString pc = folder.filePath(u"pc"_s);
    makeMachine(pc, QCoreApplication::applicationDirPath() + u"/machines/windows11"_s, Existing::Keep);
    const Variables variables{
        {u"USERNAME"_s, u"Somebody"_s}, {u"USERDOMAIN"_s, u"ELSEWHERE"_s}, {u"windir"_s, u"D:\\W"_s}};
    const Ended ended = rehearse({u"run"_s, pc, u"tweak"_s, u"windows"_s, u"10"_s, u"on"_s}, variables);
    QVERIFY2(ended.exitCode == done, ended.errors.constData());
    const std::unique_ptr<Machine> machine = Machine::open(pc);
    QVERIFY(QFile::exists(machine->hostPath(disabledSearch)));
    const QMap<QString, FileSecurity> changed = machine->changedSecurity();
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first().owner, u"ALEX-DESKTOP\\Alex"_s);
    QCOMPARE(changed.first().rights, u"ALEX-DESKTOP\\Alex:F"_s);
}

KESTRUNE_SUITE(TestElevatedRehearsal)
#include "tst_elevatedrehearsal.moc"
