// SPDX-License-Identifier: GPL-3.0-or-later
// The way back of a registry: applied as a script to what a machine has become, it gives the machine before.

#include "support/registryvalues.h"
#include "support/smallmachine.h"
#include "support/suite.h"

#include "machine/compare/machinediff.h"
#include "preview/preview.h"

#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

const QString key = u"HKEY_CURRENT_USER\\Software\\Undo"_s;

void removeValue(Machine &machine, const QString &path, const QString &name)
{
    machine.registry().removeValue(*machine.registry().find(path), name);
}

void removeKey(Machine &machine, const QString &path)
{
    machine.registry().removeKey(*machine.registry().find(path));
}

/** What both machines start with, besides their sources. */
void prepare(Machine &machine)
{
    setNumber(machine, key, u"number"_s, 7);
    setText(machine, key, u""_s, u"unnamed"_s);
    setValue(machine, key, {u"expand"_s, RegistryType::ExpandString, registryText(u"%windir%\\x"_s)});
    setValue(machine, key, {u"multi"_s, RegistryType::MultiString, registryTexts({u"a"_s, u"b"_s})});
    setValue(machine, key, {u"big"_s, RegistryType::QWord, registryQWord(1)});
    setValue(machine, key, {u"odd \"name\" \\ here"_s, RegistryType::Binary, QByteArray("\1\2")});
    setText(machine, key + u"\\tree\\below"_s, u"leaf"_s, u"line\r\nbreak"_s);
    setNumber(machine, key + u"\\quoted\""_s, u"Start"_s, 2);
}

struct Pair
{
    Pair()
    {
        prepare(*before);
        prepare(*after);
    }

    QList<RegistryEdit> wayBack() { return registryUndo(before->registry(), after->registry()); }

    SmallMachine before;
    SmallMachine after;
};

using Change = std::function<void(Machine &)>;

} // namespace

Q_DECLARE_METATYPE(Change)

class TestRegistryUndo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equalRegistriesGiveNoEdits();
    void scriptGivesTheRegistryBefore_data();
    void scriptGivesTheRegistryBefore();
    void newKeyIsRemovedOnceWithAllBelowIt();
    void keyWhoseNameBeginsLikeARemovedOneIsNotLost();
};

void TestRegistryUndo::equalRegistriesGiveNoEdits()
{
    SmallMachine before;
    SmallMachine after;
    QVERIFY(registryUndo(before->registry(), after->registry()).isEmpty());
}

void TestRegistryUndo::scriptGivesTheRegistryBefore_data()
{
    QTest::addColumn<Change>("change");

    const auto row = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
    row("a number changes", [](Machine &machine) { setNumber(machine, key, u"number"_s, 8); });
    row("a type changes", [](Machine &machine) { setText(machine, key, u"number"_s, u"7"_s); });
    row("the unnamed value changes", [](Machine &machine) { setText(machine, key, u""_s, u"x"_s); });
    row("a text with variables goes", [](Machine &machine) { removeValue(machine, key, u"expand"_s); });
    row("a list of texts goes", [](Machine &machine) { removeValue(machine, key, u"multi"_s); });
    row("a long number goes", [](Machine &machine) { removeValue(machine, key, u"big"_s); });
    row("a value with an odd name goes",
        [](Machine &machine) { removeValue(machine, key, u"odd \"name\" \\ here"_s); });
    row("a value comes", [](Machine &machine) { setNumber(machine, key, u"new \"one\""_s, 1); });
    row("a key comes", [](Machine &machine) { setNumber(machine, key + u"\\new\\below"_s, u"x"_s, 1); });
    row("an empty key comes", [](Machine &machine) { machine.registry().make(key + u"\\new"_s); });
    row("a key goes with its tree", [](Machine &machine) { removeKey(machine, key + u"\\tree"_s); });
    row("a key with a quote in its name goes", [](Machine &machine) { removeKey(machine, key + u"\\quoted\""_s); });
    row("a key with a quote in its name comes",
        [](Machine &machine) { setNumber(machine, key + u"\\new\""_s, u"Start"_s, 4); });
    row("everything goes", [](Machine &machine) { removeKey(machine, key); });
}

void TestRegistryUndo::scriptGivesTheRegistryBefore()
{
    QFETCH(Change, change);
    Pair pair;
    change(*pair.after);
    QVERIFY(!compareMachines(*pair.before, *pair.after).isEmpty());

    const QString script = writeRegistryEdits(pair.wayBack());
    applyRegistryScript(pair.after->database(), pair.after->registry(),
                        parseRegistryScript(script.toUtf8(), u"undo.reg"_s));

    QCOMPARE(compareMachines(*pair.before, *pair.after), QList<DiffRow>());
}

void TestRegistryUndo::newKeyIsRemovedOnceWithAllBelowIt()
{
    Pair pair;
    setNumber(*pair.after, key + u"\\new\\below\\deep"_s, u"x"_s, 1);

    const QList<RegistryEdit> edits = pair.wayBack();

    QCOMPARE(edits.size(), 1);
    QCOMPARE(edits.first().kind, RegistryEdit::Kind::RemoveKey);
    QCOMPARE(edits.first().key, key + u"\\new"_s);
}

void TestRegistryUndo::keyWhoseNameBeginsLikeARemovedOneIsNotLost()
{
    Pair pair;
    setNumber(*pair.before, key + u"\\newer"_s, u"x"_s, 1);
    setNumber(*pair.after, key + u"\\newer"_s, u"x"_s, 2);
    setNumber(*pair.after, key + u"\\new"_s, u"x"_s, 1);

    const QString script = writeRegistryEdits(pair.wayBack());

    QVERIFY2(script.contains(u"[-"_s + key + u"\\new]"_s), qPrintable(script));
    QVERIFY2(script.contains(u"["_s + key + u"\\newer]\n\"x\"=dword:00000001"_s), qPrintable(script));
}

KESTRUNE_SUITE(TestRegistryUndo)
#include "tst_registryundo.moc"
