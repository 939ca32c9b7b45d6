// SPDX-License-Identifier: GPL-3.0-or-later
// The way back of a registry: applied as a script to what a machine has become, it gives the machine before.

#include "support/smallmachine.h"
#include "support/suite.h"

#include "machine/compare/machinediff.h"
#include "preview/registryundo.h"

#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

const QString key = u"HKEY_CURRENT_USER\\Software\\Undo"_s;

RegistryValue number(const QString &name, quint32 value)
{
    return {name, RegistryType::DWord, registryDWord(value)};
}

RegistryValue text(const QString &name, const QString &value)
{
    return {name, RegistryType::String, registryText(value)};
}

void set(Machine &machine, const QString &path, const RegistryValue &value)
{
    RegistryStore &store = machine.registry();
    store.setValue(*store.make(path), value);
}

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
    set(machine, key, number(u"number"_s, 7));
    set(machine, key, text(u""_s, u"unnamed"_s));
    set(machine, key, {u"expand"_s, RegistryType::ExpandString, registryText(u"%windir%\\x"_s)});
    set(machine, key, {u"multi"_s, RegistryType::MultiString, registryTexts({u"a"_s, u"b"_s})});
    set(machine, key, {u"big"_s, RegistryType::QWord, registryQWord(1)});
    set(machine, key, {u"odd \"name\" \\ here"_s, RegistryType::Binary, QByteArray("\1\2")});
    set(machine, key + u"\\tree\\below"_s, text(u"leaf"_s, u"line\r\nbreak"_s));
    set(machine, key + u"\\quoted\""_s, number(u"Start"_s, 2));
}

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
    row("a number changes", [](Machine &machine) { set(machine, key, number(u"number"_s, 8)); });
    row("a type changes", [](Machine &machine) { set(machine, key, text(u"number"_s, u"7"_s)); });
    row("the unnamed value changes", [](Machine &machine) { set(machine, key, text(u""_s, u"x"_s)); });
    row("a text with variables goes", [](Machine &machine) { removeValue(machine, key, u"expand"_s); });
    row("a list of texts goes", [](Machine &machine) { removeValue(machine, key, u"multi"_s); });
    row("a long number goes", [](Machine &machine) { removeValue(machine, key, u"big"_s); });
    row("a value with an odd name goes",
        [](Machine &machine) { removeValue(machine, key, u"odd \"name\" \\ here"_s); });
    row("a value comes", [](Machine &machine) { set(machine, key, number(u"new \"one\""_s, 1)); });
    row("a key comes", [](Machine &machine) { set(machine, key + u"\\new\\below"_s, number(u"x"_s, 1)); });
    row("an empty key comes", [](Machine &machine) { machine.registry().make(key + u"\\new"_s); });
    row("a key goes with its tree", [](Machine &machine) { removeKey(machine, key + u"\\tree"_s); });
    row("a key with a quote in its name goes", [](Machine &machine) { removeKey(machine, key + u"\\quoted\""_s); });
    row("a key with a quote in its name comes",
        [](Machine &machine) { set(machine, key + u"\\new\""_s, number(u"Start"_s, 4)); });
    row("everything goes", [](Machine &machine) { removeKey(machine, key); });
}

void TestRegistryUndo::scriptGivesTheRegistryBefore()
{
    QFETCH(Change, change);
    SmallMachine before;
    SmallMachine after;
    prepare(*before);
    prepare(*after);
    change(*after);
    QVERIFY(!compareMachines(*before, *after).isEmpty());

    const QString script = writeRegistryEdits(registryUndo(before->registry(), after->registry()));
    applyRegistryScript(after->database(), after->registry(), parseRegistryScript(script.toUtf8(), u"undo.reg"_s));

    QCOMPARE(compareMachines(*before, *after), QList<DiffRow>());
}

void TestRegistryUndo::newKeyIsRemovedOnceWithAllBelowIt()
{
    SmallMachine before;
    SmallMachine after;
    prepare(*before);
    prepare(*after);
    set(*after, key + u"\\new\\below\\deep"_s, number(u"x"_s, 1));

    const QList<RegistryEdit> edits = registryUndo(before->registry(), after->registry());

    QCOMPARE(edits.size(), 1);
    QCOMPARE(edits.first().kind, RegistryEdit::Kind::RemoveKey);
    QCOMPARE(edits.first().key, key + u"\\new"_s);
}

void TestRegistryUndo::keyWhoseNameBeginsLikeARemovedOneIsNotLost()
{
    SmallMachine before;
    SmallMachine after;
    prepare(*before);
    prepare(*after);
    set(*before, key + u"\\newer"_s, number(u"x"_s, 1));
    set(*after, key + u"\\newer"_s, number(u"x"_s, 2));
    set(*after, key + u"\\new"_s, number(u"x"_s, 1));

    const QString script = writeRegistryEdits(registryUndo(before->registry(), after->registry()));

    QVERIFY2(script.contains(u"[-"_s + key + u"\\new]"_s), qPrintable(script));
    QVERIFY2(script.contains(u"["_s + key + u"\\newer]\n\"x\"=dword:00000001"_s), qPrintable(script));
}

KESTRUNE_SUITE(TestRegistryUndo)
#include "tst_registryundo.moc"
