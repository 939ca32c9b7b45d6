// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-cli as the process it is.

#include "machine/compare/machinediff.h"
#include "preview/preview.h"
#include "support/rehearsing.h"
#include "support/smallmachine.h"
#include "support/suite.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int notAsWished = 1;
constexpr int unreadable = 3;
constexpr int noRights = 5;
#ifdef Q_OS_WIN
constexpr int restartWanted = 3010;
#else
constexpr int restartWanted = 3010 & 0xff; // which is all that a process can say here
#endif

Ended cli(const QStringList &arguments)
{
    return runProgram(builtProgram(u"kestrune-cli"_s), arguments);
}

/** A copy of a built-in PC, beside a copy that nobody changes. */
class Pc
{
public:
    explicit Pc(const QString &builtIn)
    {
        makeMachine(folder(), QCoreApplication::applicationDirPath() + u"/machines/"_s + builtIn, Existing::Keep);
        keep();
    }

    QString folder() const { return place_.filePath(u"pc"_s); }
    QString beside(const QString &name) const { return place_.filePath(name); }
    /** From now on this is what it was. */
    void keep()
    {
        before_.reset();
        QDir(beside(u"before"_s)).removeRecursively();
        copyMachine(*Machine::open(folder()), beside(u"before"_s));
        before_ = Machine::open(beside(u"before"_s));
    }
    Machine &before() { return *before_; }

    Ended run(const QStringList &arguments) { return cli(arguments + QStringList{u"--machine"_s, folder()}); }
    QJsonObject json(const QStringList &arguments)
    {
        const Ended ended = run(arguments + QStringList{u"--json"_s, u"-"_s});
        const QJsonObject document = QJsonDocument::fromJson(ended.output).object();
        if (document.isEmpty())
            qWarning("%s", ended.errors.constData());
        return document;
    }

    QString profile(const QJsonObject &profile) const
    {
        QJsonObject document = profile;
        document.insert(u"formatVersion"_s, 1);
        writeFile(beside(u"profile.json"_s), QJsonDocument(document).toJson());
        return beside(u"profile.json"_s);
    }

    /** What isn't as on the copy. */
    QStringList allDifferences()
    {
        QStringList texts;
        for (const DiffRow &row : compareMachines(*before_, *Machine::open(folder())))
            texts.append(kindName(row.kind) + u' ' + row.path + u' ' + row.name);
        return texts;
    }
    /** The same without the program's own records and files. */
    QStringList differences()
    {
        QStringList texts = allDifferences();
        texts.removeIf([](const QString &text) {
            return text.contains(" HKEY_CURRENT_USER\\Software\\Kestrune"_L1) || text.contains(" program\\"_L1)
                   || text.contains("\\Temp\\tasks.xml"_L1);
        });
        return texts;
    }

private:
    QTemporaryDir place_;
    std::unique_ptr<Machine> before_;
};

/** "services/diagtrack" of each item that a document says has changed, or would. */
QSet<QString> changedItems(const QJsonObject &document)
{
    QSet<QString> names;
    for (const QJsonValue item : document.value("items"_L1).toArray()) {
        if (item["changed"_L1].toBool() || item["state"_L1] == "would-change"_L1)
            names.insert(item["group"_L1].toString() + u'/' + item["name"_L1].toString().toLower());
    }
    return names;
}

/** The same as two machines have it; options and programs at logon by their titles. */
QSet<QString> changedThings(Machine &before, Machine &now)
{
    static const QMap<PreviewGroup, QString> groups{
        {PreviewGroup::Services, u"services/"_s}, {PreviewGroup::Tasks, u"tasks/"_s},
        {PreviewGroup::Packages, u"packages/"_s}, {PreviewGroup::Autorun, u"startup/"_s},
        {PreviewGroup::Tweaks, u"tweaks/"_s},     {PreviewGroup::Files, u"files/"_s}};
    QSet<QString> names;
    for (const PreviewItem &item : previewItems(before, now, now)) {
        if (!groups.contains(item.group))
            continue;
        QString name =
            item.group == PreviewGroup::Autorun || item.group == PreviewGroup::Tweaks ? item.title : item.name;
        if (name.startsWith(u'\\'))
            name = name.sliced(1);
        if (item.group == PreviewGroup::Files)
            name = item.title == "config"_L1 ? u"RivaTuner Statistics Server\\Profiles\\config"_s : item.title;
        if (name == "OneDrive"_L1 && item.group == PreviewGroup::Packages)
            name = u"MS OneDrive"_s;
        names.insert(groups.value(item.group) + name.toLower());
    }
    return names;
}

/** By titles where the machines know no names. */
QSet<QString> byTitles(const QJsonObject &document)
{
    QSet<QString> names;
    for (const QJsonValue item : document.value("items"_L1).toArray()) {
        if (!item["changed"_L1].toBool())
            continue;
        const QString group = item["group"_L1].toString();
        const bool byTitle = group == "tweaks"_L1 || group == "startup"_L1;
        names.insert(group + u'/' + item[byTitle ? "title"_L1 : "name"_L1].toString().toLower());
    }
    return names;
}

QStringList sorted(const QSet<QString> &names)
{
    QStringList list(names.cbegin(), names.cend());
    list.sort();
    return list;
}

template<typename List>
QString anyOf(const List &list, QRandomGenerator &random)
{
    return QString(list[random.bounded(static_cast<int>(std::size(list)))]);
}

/** A profile that leaves some things out and asks for others. */
QJsonObject anyProfile(QRandomGenerator &random)
{
    static constexpr QLatin1StringView features[] = {
        "printer"_L1, "bluetooth-audio"_L1, "files-sharing"_L1, "xbox-app"_L1, "upnp"_L1, "proxy-vpn"_L1,
        "nfc"_L1,     "xbox-game-bar"_L1,   "codecs"_L1};
    static constexpr QLatin1StringView patterns[] = {"*Xbox*"_L1,       "Microsoft.Bing*"_L1, "D*"_L1,       "ssd?"_L1,
                                                     "*\\Customer*"_L1, "Steam"_L1,           "windows*"_L1, "W*"_L1};
    static constexpr QLatin1StringView tweaks[] = {"ssd1"_L1,     "ssd7"_L1,     "gaming3"_L1,
                                                   "gaming14"_L1, "windows7"_L1, "windows12"_L1};
    QJsonObject keep;
    QJsonObject options;
    QJsonArray never;
    for (int i = random.bounded(4); i > 0; --i)
        keep.insert(anyOf(features, random), random.bounded(2) == 1);
    for (int i = random.bounded(3); i > 0; --i) {
        if (const QString pattern = anyOf(patterns, random); !never.contains(pattern))
            never.append(pattern);
    }
    const bool withFeatures = random.bounded(4) > 0;
    for (int i = random.bounded(3); i > 0 && withFeatures && never.isEmpty(); --i)
        options.insert(anyOf(tweaks, random), random.bounded(2) == 1);
    return {{u"keep"_s, keep},
            {u"never"_s, never},
            {u"tweaks"_s, options},
            {u"programs"_s, random.bounded(4) > 0},
            {u"features"_s, withFeatures}};
}

bool isThorough()
{
    return qEnvironmentVariableIsSet("KESTRUNE_THOROUGH");
}

} // namespace

class TestCli : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void help_data();
    void help();
    void refusals_data();
    void refusals();
    void statusChangesNothing();
    void planIsWhatApplyDoesAndDiffFinds_data();
    void planIsWhatApplyDoesAndDiffFinds();
    void toolsWithinChangeWhatToolsThatAreProcessesChange();
    void planTakesBackByTheJournal();
    void reportsTellWhatStopsWorking();
    void planLeavesWhatWasDoneBefore();
    void manyPcsAreTriedInOneTable();
    void aProfileIsTriedOnACapturedPc();
    void anEndInTheMiddleIsTakenBack_data();
    void anEndInTheMiddleIsTakenBack();
    void applyWithoutRightsIsRefused();
    void neverAndOffAreLeftAlone();
    void namesAreSwitchedOffBesides();
    void theWalkWantsAYes();
    void whatIsRefusedSaysWhy();
    void filesOfASession();
    void anotherAccountChangesNothingOfAUser_data();
    void anotherAccountChangesNothingOfAUser();
    void verifyTellsByItsExitCode();
    void whyFindsServicesByWords();
    void completionsHaveEachCommandAndOption();
    void aResourceOfDsc();
    void whatDscExportsIsInForce();
    void dscTellsWhatIsWrong();
    void profilesAreMadeAndChecked();
};

void TestCli::help_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("program") << QStringList{u"--help"_s};
    for (const char *command : {"status", "plan", "apply", "verify", "undo", "profile", "why", "dsc"})
        QTest::newRow(command) << QStringList{QString::fromLatin1(command), u"--help"_s};
}

void TestCli::help()
{
    QFETCH(QStringList, arguments);
    const Ended ended = cli(arguments);
    QCOMPARE(ended.exitCode, done);
    QVERIFY(ended.output.startsWith("Usage: kestrune-cli "));
    QVERIFY(
        ended.output.contains("kestrune-cli " + (arguments.size() == 1 ? "status" : arguments.constFirst().toUtf8())));
    for (const QByteArray &line : ended.output.split('\n'))
        QVERIFY2(QString::fromUtf8(line).size() <= 120, line.constData());
}

void TestCli::refusals_data()
{
    addColumns<QStringList, int, QByteArray>("arguments", "exitCode", "error");
    QTest::newRow("no command") << QStringList{} << badArguments << QByteArray("missing command");
    QTest::newRow("unknown command") << QStringList{u"aply"_s} << badArguments << QByteArray("Did you mean 'apply'?");
    QTest::newRow("no machine") << QStringList{u"status"_s, u"--machine"_s, u"/nowhere/at/all"_s} << unreadable
                                << QByteArray("at/all");
#ifndef Q_OS_WIN
    QTest::newRow("no Windows") << QStringList{u"status"_s} << badArguments << QByteArray("this is no Windows");
    QTest::newRow("nothing to copy") << QStringList{u"plan"_s} << badArguments << QByteArray("and this is none");
#endif
    QTest::newRow("profile that isn't there")
        << QStringList{u"profile"_s, u"check"_s, u"/nowhere.json"_s} << badArguments << QByteArray("/nowhere.json: ");
    QTest::newRow("verb") << QStringList{u"profile"_s, u"fix"_s} << badArguments << QByteArray("'fix' is neither");
}

void TestCli::refusals()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QFETCH(QByteArray, error);
    const Ended ended = cli(arguments);
    QCOMPARE(ended.exitCode, exitCode);
    QVERIFY2(QDir::fromNativeSeparators(QString::fromUtf8(ended.errors)).contains(QString::fromUtf8(error)),
             ended.errors.constData());
}

void TestCli::statusChangesNothing()
{
    Pc pc(u"windows11"_s);
    for (const QStringList &arguments : {QStringList{u"status"_s}, QStringList{u"status"_s, u"--not-elevated"_s},
                                         QStringList{u"verify"_s}, QStringList{u"plan"_s}})
        QVERIFY2(pc.run(arguments).exitCode <= notAsWished, qPrintable(arguments.constFirst()));
    QCOMPARE(pc.allDifferences().join(u'\n'), QString());
}

void TestCli::planIsWhatApplyDoesAndDiffFinds_data()
{
    addColumns<QString, quint32>("builtIn", "seed");
    for (const QString &builtIn : {u"windows10"_s, u"windows11"_s}) {
        const quint32 seeds = isThorough() ? 25 : builtIn == "windows11"_L1 ? 1 : 0;
        for (quint32 seed = 0; seed <= seeds; ++seed)
            QTest::addRow("%s, %u", qPrintable(builtIn), seed) << builtIn << seed;
    }
}

void TestCli::planIsWhatApplyDoesAndDiffFinds()
{
    QFETCH(QString, builtIn);
    QFETCH(quint32, seed);
    Pc pc(builtIn);
    QStringList profile;
    if (seed > 0) {
        QRandomGenerator random(seed);
        profile = {u"--profile"_s, pc.profile(anyProfile(random))};
    }

    const QJsonObject plan = pc.json(QStringList{u"plan"_s} + profile);
    QVERIFY(!plan.isEmpty());
    const QJsonObject applied = pc.json(QStringList{u"apply"_s} + profile);
    QCOMPARE(sorted(changedItems(plan)), sorted(changedItems(applied)));
    QVERIFY(!changedItems(applied).isEmpty());
    const auto now = Machine::open(pc.folder());
    QSet<QString> found = changedThings(pc.before(), *now);
    found.remove(u"packages/microsoft.onedrivesync"_s); // it goes with OneDrive
    found.remove(u"files/tasks.xml"_s);                 // the program's own
    QSet<QString> said = byTitles(applied);
    // Without the options Optimize writes one value of that option.
    if (said.remove(u"registry/waittokillservicetimeout"_s))
        said.insert(u"tweaks/reduces certain delays"_s);
    said.remove(u"packages/microsoft.onedrivesync"_s);
    QCOMPARE(sorted(found - said).join(u' '), QString());
    QCOMPARE(sorted(said - found).join(u' '), QString());
    QCOMPARE(plan.value("notBack"_L1).toArray().size(), 0);

    const Ended again = pc.run(QStringList{u"apply"_s} + profile);
    QVERIFY2(again.output.contains("nothing was changed"), again.output.constData());
    QCOMPARE(pc.run(QStringList{u"verify"_s, u"--quiet"_s} + profile).exitCode, done);
    QCOMPARE(pc.run({u"undo"_s}).exitCode, done);
    QCOMPARE(pc.differences(), QStringList());
}

void TestCli::toolsWithinChangeWhatToolsThatAreProcessesChange()
{
    Pc processes(u"windows11"_s);
    Pc within(u"windows11"_s);
    for (Pc *pc : {&processes, &within}) {
        if (pc == &within)
            qputenv("KESTRUNE_TOOLS_WITHIN", "1");
        const auto restore = qScopeGuard([] { qunsetenv("KESTRUNE_TOOLS_WITHIN"); });
        QVERIFY(!changedItems(pc->json({u"apply"_s})).isEmpty());
        QCOMPARE(pc->run({u"undo"_s}).exitCode, done);
    }
    const QByteArray commands = readFile(processes.folder() + u"/commands.log"_s);
    QVERIFY(!commands.isEmpty());
    QCOMPARE(readFile(within.folder() + u"/commands.log"_s), commands);
    QCOMPARE(compareMachines(*Machine::open(processes.folder()), *Machine::open(within.folder())).size(), 0);
    // A fault needs a process, which it may keep from ending.
    Machine::open(within.folder())->setFault(u"sc"_s, {.exitCode = 5});
    qputenv("KESTRUNE_TOOLS_WITHIN", "1");
    const auto restore = qScopeGuard([] { qunsetenv("KESTRUNE_TOOLS_WITHIN"); });
    within.run({u"apply"_s});
    QVERIFY(readFile(within.folder() + u"/commands.log"_s).sliced(commands.size()).contains("\"exitCode\":5}"));
}

/** What a page counts as coming back in some way: "exactly", "otherwise". */
static int countOnPage(const QByteArray &page, const QByteArray &verdict)
{
    const QByteArray mark = "data-count=\"" + verdict + "\">";
    const qsizetype at = page.indexOf(mark);
    return at < 0 ? -1 : page.sliced(at + mark.size()).split('<').constFirst().toInt();
}

/** Not by the records of the program, which know no service that was started by hand. */
void TestCli::planTakesBackByTheJournal()
{
    Pc pc(u"windows11"_s);
    const QString file = pc.profile({{u"services"_s, QJsonArray{u"TabletInputService"_s}}});
    const QString page = pc.beside(u"plan.html"_s);
    const QJsonObject plan = pc.json({u"plan"_s, u"--profile"_s, file, u"--html"_s, page});
    QVERIFY(changedItems(plan).contains(u"services/tabletinputservice"_s));
    QCOMPARE(plan.value("notBack"_L1).toArray(), QJsonArray());
    const QByteArray html = readFile(page);
    QVERIFY(html.contains("What Apply would change"));
    QVERIFY(html.contains("After Undo"));
    QVERIFY(countOnPage(html, "exactly") > 100);
    QCOMPARE(countOnPage(html, "otherwise"), 0);
    QCOMPARE(countOnPage(html, "not-at-all"), 1); // the list of tasks that the program leaves in the Temp folder
    QCOMPARE(countOnPage(html, "unasked"), 0);
    QCOMPARE(pc.allDifferences(), QStringList());
}

void TestCli::reportsTellWhatStopsWorking()
{
    Pc pc(u"windows11"_s);
    const QString file = pc.profile({{u"services"_s, QJsonArray{u"Spooler"_s}}});
    const auto toldOf = [](const QJsonObject &document, const QString &name) {
        for (const QJsonValue item : document[u"items"_s].toArray()) {
            if (item[u"name"_s] == name)
                return item[u"without"_s].toString();
        }
        return u"there is no such item"_s;
    };
    const QJsonObject plan = pc.json({u"plan"_s, u"--profile"_s, file});
    QCOMPARE(toldOf(plan, u"Spooler"_s), u"No printing, not even to PDF."_s);
    // What stays, but doesn't start by itself, isn't switched off.
    QCOMPARE(toldOf(plan, u"Wcmsvc"_s), QString());
    QCOMPARE(toldOf(plan, u"ssd1"_s), QString());
    const QByteArray line = "\tSpooler\tdisabled\tWithout it: No printing, not even to PDF.\n";
    for (const auto &[command, state] : {std::pair{u"plan"_s, "would change"},
                                         {u"status"_s, "not in force"},
                                         {u"apply"_s, "in force"},
                                         {u"status"_s, "in force"}}) {
        const QByteArray text = pc.run({command, u"--profile"_s, file}).output;
        QVERIFY2(text.contains(QByteArray(state) + "\tservice" + line), text.constData());
    }
}

void TestCli::planLeavesWhatWasDoneBefore()
{
    Pc pc(u"windows11"_s);
    const QString careful = QStringLiteral(KESTRUNE_PROFILES "/careful.json");
    QVERIFY(pc.run({u"apply"_s, u"--profile"_s, careful}).exitCode != notAsWished);
    pc.keep();
    const QString page = pc.beside(u"plan.html"_s);
    const QJsonObject plan = pc.json({u"plan"_s, u"--html"_s, page});
    QVERIFY(!changedItems(plan).contains(u"services/tabletinputservice"_s));
    QVERIFY(!changedItems(plan).isEmpty());
    const QByteArray html = readFile(page);
    QCOMPARE(countOnPage(html, "unasked"), 0);
    QCOMPARE(countOnPage(html, "otherwise"), 0);
    QCOMPARE(pc.allDifferences(), QStringList());
}

void TestCli::manyPcsAreTriedInOneTable()
{
    const QTemporaryDir place;
    const QString machines = QCoreApplication::applicationDirPath() + u"/machines/"_s;
    const QStringList names{u"first"_s, u"second"_s};
    makeMachine(place.filePath(names.first()), machines + u"windows10"_s, Existing::Keep);
    makeMachine(place.filePath(names.last()), machines + u"windows11"_s, Existing::Keep);
    writeFile(place.filePath(u"third/machine.sqlite"_s), "none");
    QVERIFY(QDir(place.path()).mkpath(u"no machine"_s));

    const QString profile = QStringLiteral(KESTRUNE_PROFILES "/office.json");
    const QString json = place.filePath(u"all.json"_s);
    const QString page = place.filePath(u"all.html"_s);
    const Ended ended = rehearse(
        {u"preview"_s, u"--all"_s, place.path(), u"--profile"_s, profile, u"--json"_s, json, u"--html"_s, page});
    QCOMPARE(ended.exitCode, notAsWished); // the third one
    const QList<QByteArray> lines = ended.output.trimmed().split('\n');
    QCOMPARE(lines.size(), 5);
    QCOMPARE(QString::fromUtf8(lines.at(0)), page);
    QVERIFY(lines.at(1).startsWith("PC "));
    QVERIFY2(lines.at(4).startsWith("third   not tried: ") && lines.at(4).endsWith("damaged"), lines.at(4).constData());
    const QJsonArray pcs = QJsonDocument::fromJson(readFile(json))[u"pcs"_s].toArray();
    QCOMPARE(pcs.size(), 3);
    for (int i = 0; i < names.size(); ++i) {
        const Ended plan =
            cli({u"plan"_s, u"--machine"_s, place.filePath(names.at(i)), u"--profile"_s, profile, u"--json"_s, u"-"_s});
        QCOMPARE(pcs.at(i)[u"pc"_s].toString(), names.at(i));
        QCOMPARE(pcs.at(i)[u"plan"_s].toObject(), QJsonDocument::fromJson(plan.output).object());
        const int changes = static_cast<int>(changedItems(pcs.at(i)[u"plan"_s].toObject()).size());
        int sum = 0;
        const QList<QByteArray> cells = lines.at(i + 2).simplified().split(' ');
        QCOMPARE(cells.constFirst(), names.at(i).toUtf8());
        for (int cell = 1; cell <= 6; ++cell)
            sum += cells.at(cell).toInt();
        QCOMPARE(sum, changes);
    }
    QVERIFY(pcs.at(2)[u"plan"_s].isNull());
    QVERIFY(readFile(page).contains("<td>second</td>"));
    QVERIFY(readFile(page).contains("<td colspan=\"9\">not tried: "));
    const Ended none = rehearse({u"preview"_s, u"--all"_s, place.filePath(u"no machine"_s)});
    QCOMPARE(none.exitCode, badArguments);
}

void TestCli::aProfileIsTriedOnACapturedPc()
{
    Pc pc(u"windows10"_s);
    const QString file = pc.profile({{u"programs"_s, false}});
    const Ended here = pc.run({u"plan"_s, u"--profile"_s, file});
    const Ended there = rehearse({u"preview"_s, pc.folder(), u"--profile"_s, file});
    QCOMPARE(there.exitCode, done);
    QCOMPARE(there.output, here.output);
    QVERIFY(there.output.contains("would change"));
    const Ended keep = rehearse({u"preview"_s, pc.folder(), u"--profile"_s, file, u"--keep"_s, u"nfc=0"_s});
    QCOMPARE(keep.exitCode, badArguments);
    writeFile(file, "{\"formatVersion\": 1, \"servces\": []}");
    const Ended bad = rehearse({u"preview"_s, pc.folder(), u"--profile"_s, file});
    QCOMPARE(bad.exitCode, badArguments);
    QVERIFY2(bad.errors.startsWith("kestrune-rehearse: ") && bad.errors.contains("unknown key 'servces'"),
             bad.errors.constData());
}

void TestCli::anEndInTheMiddleIsTakenBack_data()
{
    QTest::addColumn<bool>("killed");
    QTest::newRow("asked to end") << false;
    QTest::newRow("killed") << true;
}

void TestCli::anEndInTheMiddleIsTakenBack()
{
    constexpr int interrupted = 130;
    constexpr qsizetype someRuns = 20; // of tools, of more than a hundred

    QFETCH(bool, killed);
    Pc pc(u"windows11"_s);
    QProcess process;
    process.start(builtProgram(u"kestrune-cli"_s), {u"apply"_s, u"--machine"_s, pc.folder()});
    QVERIFY(process.waitForStarted());
    while (process.state() != QProcess::NotRunning && readFile(pc.folder() + u"/commands.log"_s).count('\n') < someRuns)
        process.waitForFinished(1);
    killed ? process.kill() : process.terminate();
    QVERIFY(process.waitForFinished(-1));
    if (!killed)
        QVERIFY2(process.exitCode() == interrupted || process.exitCode() == 128 + 15,
                 qPrintable(QString::number(process.exitCode())));
    QVERIFY(!pc.differences().isEmpty());
    const Ended list = pc.run({u"undo"_s, u"--list"_s});
    QVERIFY2(list.output.contains("Apply a profile\tbroken off"), list.output.constData());
    QCOMPARE(pc.run({u"undo"_s}).exitCode, done);
    QCOMPARE(pc.differences().join(u'\n'), QString());
}

void TestCli::applyWithoutRightsIsRefused()
{
    Pc pc(u"windows11"_s);
    for (const QString &command : {u"apply"_s, u"undo"_s}) {
        const Ended ended = pc.run({command, u"--not-elevated"_s});
        QCOMPARE(ended.exitCode, noRights);
        QVERIFY(ended.errors.contains("administrator rights are needed"));
    }
    QCOMPARE(pc.allDifferences().join(u'\n'), QString());
}

void TestCli::neverAndOffAreLeftAlone()
{
    Pc pc(u"windows11"_s);
    const QString file = pc.profile({{u"never"_s, QJsonArray{u"Steam"_s, u"DiagTrack"_s, u"*"_s}}});
    const Ended ended = pc.run({u"apply"_s, u"--profile"_s, file});
    QCOMPARE(ended.exitCode, done);
    QVERIFY(ended.output.contains("nothing was changed"));
    QCOMPARE(pc.differences(), QStringList());

    const QString other = pc.profile({{u"tweaks"_s, QJsonObject{{u"windows10"_s, false}}}, {u"programs"_s, false}});
    QVERIFY(pc.run({u"apply"_s, u"--profile"_s, other}).exitCode != notAsWished);
    const QStringList differences = pc.differences();
    QVERIFY(!differences.isEmpty());
    QVERIFY(differences.filter(u"SearchHost"_s).isEmpty());
    QVERIFY(differences.filter(u"WindowsApps"_s).isEmpty());
}

void TestCli::namesAreSwitchedOffBesides()
{
    Pc pc(u"windows11"_s);
    const QJsonObject profile{{u"never"_s, QJsonArray{u"ssd*"_s, u"gaming*"_s, u"windows*"_s, u"\\Microsoft*"_s}},
                              {u"programs"_s, false},
                              {u"services"_s, QJsonArray{u"Themes"_s}}};
    const QJsonObject applied = pc.json({u"apply"_s, u"--profile"_s, pc.profile(profile)});
    QVERIFY(changedItems(applied).contains(u"services/themes"_s));
    QVERIFY(!pc.differences().filter(u"Themes"_s, Qt::CaseInsensitive).isEmpty());
}

void TestCli::theWalkWantsAYes()
{
    Pc pc(u"windows11"_s);
    const QString file = pc.profile({{u"never"_s, QJsonArray{u"gaming*"_s, u"windows*"_s, u"*\\*"_s}},
                                     {u"tweaks"_s, QJsonObject{{u"ssd8"_s, true}}},
                                     {u"programs"_s, false}});
    const Ended refused = pc.run({u"apply"_s, u"--profile"_s, file});
    QCOMPARE(refused.exitCode, badArguments);
    QVERIFY(refused.errors.contains("say --yes to that"));
    QCOMPARE(pc.differences().join(u'\n'), QString());
    const QJsonObject applied = pc.json({u"apply"_s, u"--yes"_s, u"--profile"_s, file});
    bool isTold = false;
    for (const QJsonValue item : applied.value("items"_L1).toArray())
        isTold = isTold || item["why"_L1].toString().startsWith("the walk over all files came to its end"_L1);
    QVERIFY(isTold);
    QVERIFY(!pc.differences().filter(u"attribute C:"_s).isEmpty());
    QCOMPARE(pc.run({u"undo"_s}).exitCode, done);
    QCOMPARE(pc.differences().join(u'\n'), QString());
}

void TestCli::whatIsRefusedSaysWhy()
{
    Pc pc(u"windows11"_s);
    {
        const auto machine = Machine::open(pc.folder());
        machine->setFault(u"sc config DiagTrack"_s, {.exitCode = 5});
    }
    const QString file = pc.profile({{u"programs"_s, false}, {u"features"_s, false}});
    const Ended ended = pc.run({u"apply"_s, u"--profile"_s, file});
    QVERIFY2(ended.exitCode == notAsWished, ended.output.constData());
    QVERIFY2(ended.output.contains("refused\tservice\tDiagTrack\tdisabled\taccess denied (sc: 5)\n"),
             ended.output.constData());
}

void TestCli::filesOfASession()
{
    Pc pc(u"windows11"_s);
    const Ended ended = pc.run({u"apply"_s, u"--log"_s, pc.beside(u"log.txt"_s)});
    QCOMPARE(ended.exitCode, restartWanted);
    const QString folder = pc.folder() + u"/journal/files/000001-Apply-a-profile/"_s;
    QVERIFY(ended.output.contains("'kestrune-cli undo --session 1' takes it back"));
    for (const QString &file : {u"plan.json"_s, u"result.json"_s, u"log.txt"_s, u"way-back.reg"_s})
        QVERIFY2(QFile::exists(folder + file), qPrintable(file));
    QCOMPARE(readFile(pc.beside(u"log.txt"_s)), readFile(folder + u"log.txt"_s));
    QVERIFY(readFile(folder + u"log.txt"_s).contains("DiagTrack"));
    const QJsonObject result = QJsonDocument::fromJson(readFile(folder + u"result.json"_s)).object();
    QCOMPARE(result.value("session"_L1), QJsonValue(1));
    QCOMPARE(result.value("restartWanted"_L1), QJsonValue(true));
}

void TestCli::anotherAccountChangesNothingOfAUser_data()
{
    addColumns<QString, QByteArray, QByteArray>("user", "signedIn", "account");
    QTest::newRow("the system") << u"SYSTEM"_s << QByteArray("SYSTEM") << QByteArray("the system");
    QTest::newRow("an administrator who gave a password")
        << u"Alex"_s << QByteArray("Kim") << QByteArray("an account other than the one signed in");
}

void TestCli::anotherAccountChangesNothingOfAUser()
{
    QFETCH(const QString, user);
    QFETCH(const QByteArray, signedIn);
    QFETCH(const QByteArray, account);
    qputenv("KESTRUNE_SIGNED_IN", signedIn);
    const auto forget = qScopeGuard([] { qunsetenv("KESTRUNE_SIGNED_IN"); });
    Pc pc(u"windows11"_s);
    {
        const auto machine = Machine::open(pc.folder());
        QMap<QString, QString> variables = machine->environment();
        variables.insert(u"USERNAME"_s, user);
        machine->setEnvironment(variables);
    }
    pc.keep();
    const Ended refused = pc.run({u"apply"_s});
    QCOMPARE(refused.exitCode, badArguments);
    QVERIFY2(refused.errors.contains("belongs to a user, and this runs as " + account), refused.errors.constData());
    QCOMPARE(pc.differences().join(u'\n'), QString());

    const QString file = pc.profile({{u"user"_s, u"skip"_s}});
    QVERIFY(pc.run({u"apply"_s, u"--profile"_s, file}).exitCode != notAsWished);
    QStringList differences = pc.differences();
    QVERIFY(!differences.isEmpty());
    differences.removeIf([](const QString &text) { return !text.contains("HKEY_CURRENT_USER"_L1); });
    QCOMPARE(differences.join(u'\n'), QString());
    QVERIFY(pc.run({u"apply"_s, u"--profile"_s, file}).output.contains("nothing was changed"));
    QVERIFY(pc.run({u"status"_s}).output.contains("this runs as " + account));
}

void TestCli::verifyTellsByItsExitCode()
{
    Pc pc(u"windows11"_s);
    const QString file = pc.profile({{u"programs"_s, false}, {u"features"_s, false}});
    const Ended before = pc.run({u"verify"_s, u"--quiet"_s, u"--profile"_s, file});
    QCOMPARE(before.exitCode, notAsWished);
    QCOMPARE(before.output, QByteArray());
    QVERIFY(pc.run({u"apply"_s, u"--profile"_s, file}).exitCode != notAsWished);
    QCOMPARE(pc.run({u"verify"_s, u"--profile"_s, file}).exitCode, done);
}

void TestCli::whyFindsServicesByWords()
{
    Pc pc(u"windows11"_s);
    QCOMPARE(pc.run({u"why"_s, u"printer"_s}).exitCode, notAsWished);
    const QString file =
        pc.profile({{u"keep"_s, QJsonObject{{u"printer"_s, false}}}, {u"programs"_s, false}, {u"features"_s, false}});
    QVERIFY(pc.run({u"apply"_s, u"--profile"_s, file}).exitCode != notAsWished);
    const Ended why = pc.run({u"why"_s, u"printer"_s});
    QCOMPARE(why.exitCode, done);
    QVERIFY2(why.output.contains("Spooler"), why.output.constData());
    const QByteArray mark = "kestrune-cli undo --item ";
    const qsizetype at = why.output.indexOf(mark, why.output.indexOf("Spooler"));
    QVERIFY(at > 0);
    const QByteArray number = why.output.sliced(at + mark.size()).split('\n').constFirst();
    QCOMPARE(pc.run({u"undo"_s, u"--item"_s, QString::fromUtf8(number)}).exitCode, done);
}

void TestCli::completionsHaveEachCommandAndOption()
{
    const QByteArray script = cli({u"--completions"_s}).output;
    QCOMPARE(script.count('{'), script.count('}'));
    QCOMPARE(script.count('\'') % 2, 0);
    QVERIFY(script.contains("-CommandName 'kestrune-cli', 'kestrune-cli.exe'"));
    const QByteArray help = cli({u"--help"_s}).output;
    int commands = 0;
    for (const QByteArray &line : help.mid(help.indexOf("Commands:")).split('\n').mid(1)) {
        if (line.isEmpty())
            break;
        const QByteArray command = line.simplified().split(' ').constFirst();
        const qsizetype at = script.indexOf("    '" + command + "' = [ordered]@{\n");
        QVERIFY2(at > 0, command.constData());
        const QByteArray words = script.mid(at, script.indexOf("\n    }", at) - at);
        const QByteArray itsHelp = cli({QString::fromUtf8(command), u"--help"_s}).output;
        for (const QByteArray &option : itsHelp.split('\n')) {
            if (option.startsWith("  --"))
                QVERIFY2(words.contains("'" + option.simplified().split(' ').constFirst() + "' = "),
                         option.constData());
        }
        ++commands;
    }
    QCOMPARE(commands, 8);
}

static QJsonObject instanceOf(const Ended &ended)
{
    return QJsonDocument::fromJson(ended.output).object();
}

/** What the resource answers for a machine when it is given an instance. */
static Ended dscOf(const char *verb, const QString &machine, const QByteArray &instance)
{
    return runProgram(builtProgram(u"kestrune-cli"_s), {u"dsc"_s, QString::fromLatin1(verb), u"--machine"_s, machine},
                      {}, instance);
}

void TestCli::aResourceOfDsc()
{
    Pc pc(u"windows11"_s);
    const QByteArray desired = R"({"formatVersion": 1, "features": true, "programs": false, "never": ["edgeupdate"],
        "services": ["SysMain", "Spooler"], "tweaks": {"ssd1": true, "ssd4": false}})";
    const auto dsc = [&](const char *verb) { return dscOf(verb, pc.folder(), desired); };
    const Ended before = dsc("test");
    QCOMPARE(before.exitCode, done);
    QCOMPARE(before.output.count('\n'), 1);
    QCOMPARE(instanceOf(before)[u"_inDesiredState"_s], QJsonValue(false));
    QCOMPARE(instanceOf(before)[u"services"_s], QJsonValue(QJsonArray()));
    QCOMPARE(instanceOf(before)[u"tweaks"_s][u"ssd1"_s], QJsonValue(false));
    QVERIFY(instanceOf(before)[u"_notInForce"_s].toArray().contains(u"services/Spooler"_s));
    QCOMPARE(dsc("get").output, before.output);
    QCOMPARE(pc.allDifferences(), QStringList());

    const Ended set = dsc("set");
    QCOMPARE(set.exitCode, done);
    QCOMPARE(set.output.count('\n'), 1);
    QCOMPARE(instanceOf(set)[u"_inDesiredState"_s], QJsonValue(true));
    QVERIFY(!instanceOf(set)[u"_metadata"_s][u"_restartRequired"_s].toArray().isEmpty());
    const Ended after = dsc("test");
    QCOMPARE(instanceOf(after)[u"_inDesiredState"_s], QJsonValue(true));
    QCOMPARE(instanceOf(after)[u"services"_s].toArray().size(), 2);
    QCOMPARE(instanceOf(after)[u"tweaks"_s][u"ssd1"_s], QJsonValue(true));
    // A second time there is nothing to do, and no restart is wanted.
    QVERIFY(!dsc("set").output.contains("_restartRequired"));
    QCOMPARE(pc.run({u"undo"_s}).exitCode, done);
    QCOMPARE(pc.differences(), QStringList());
}

void TestCli::whatDscExportsIsInForce()
{
    Pc pc(u"windows10"_s);
    const QString careful = QStringLiteral(KESTRUNE_PROFILES "/careful.json");
    QVERIFY(pc.run({u"apply"_s, u"--profile"_s, careful}).exitCode != notAsWished);
    pc.keep();
    const Ended exported = pc.run({u"dsc"_s, u"export"_s});
    QCOMPARE(exported.exitCode, done);
    QVERIFY(!instanceOf(exported)[u"never"_s].toArray().isEmpty());
    QCOMPARE(instanceOf(exported)[u"tweaks"_s].toObject().size(), 34);
    const auto dsc = [&](const char *verb) { return dscOf(verb, pc.folder(), exported.output); };
    QCOMPARE(instanceOf(dsc("test"))[u"_inDesiredState"_s], QJsonValue(true));
    QCOMPARE(dsc("set").exitCode, done);
    QCOMPARE(pc.differences(), QStringList());
}

void TestCli::dscTellsWhatIsWrong()
{
    const auto dsc = [](const QByteArray &input) { return dscOf("test", u"nowhere"_s, input); };
    QVERIFY(dsc("[1]").errors.contains("no JSON object"));
    QCOMPARE(dsc("[1]").exitCode, badArguments);
    QCOMPARE(dsc("{\"formatVersion\": 1}").exitCode, unreadable);
    QCOMPARE(cli({u"dsc"_s, u"tset"_s}).exitCode, badArguments);
    QVERIFY(instanceOf(cli({u"dsc"_s, u"schema"_s}))[u"properties"_s].toObject().contains(u"_inDesiredState"_s));
    QVERIFY(instanceOf(cli({u"dsc"_s, u"manifest"_s}))[u"type"_s] == u"Kestrune/Profile"_s);
}

void TestCli::profilesAreMadeAndChecked()
{
    const QTemporaryDir place;
    const QString file = place.filePath(u"new.json"_s);
    QCOMPARE(cli({u"profile"_s, u"new"_s, file}).exitCode, done);
    QCOMPARE(cli({u"profile"_s, u"check"_s, file}).exitCode, done);
    const Ended twice = cli({u"profile"_s, u"new"_s, file});
    QCOMPARE(twice.exitCode, badArguments);
    QVERIFY(twice.errors.contains("already exists"));
    writeFile(file, "{\"formatVersion\": 1,\n \"servces\": []}");
    const Ended bad = cli({u"profile"_s, u"check"_s, file});
    QCOMPARE(bad.exitCode, badArguments);
    QVERIFY2(bad.errors.contains("new.json:2:2: unknown key 'servces'"), bad.errors.constData());
    QVERIFY(!QJsonDocument::fromJson(cli({u"profile"_s, u"schema"_s}).output).isEmpty());
}

KESTRUNE_SUITE(TestCli)
#include "tst_cli.moc"
