// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse tour: pictures of all pages, with the machine left as it was.

#include "machine/compare/machinediff.h"
#include "machine/machine.h"
#include "machine/source/machinesource.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Result
{
    int code = -1;
    QStringList lines;
    QString errors;
};

Result tour(const QStringList &arguments)
{
    constexpr int patience = 120000; // milliseconds
    QProcess process;
    process.start(QCoreApplication::applicationDirPath() + u"/kestrune-rehearse"_s, QStringList{u"tour"_s} + arguments);
    if (!process.waitForFinished(patience))
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts),
            QString::fromUtf8(process.readAllStandardError())};
}

} // namespace

class TestTour : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPageInBothThemes_data();
    void everyPageInBothThemes();
    void folderForThePicturesMustBeNamed();
    void unwritableFolderIsTold();
};

void TestTour::everyPageInBothThemes_data()
{
    QTest::addColumn<QString>("second");
    QTest::newRow("windows11") << u"dark"_s;
    QTest::newRow("windows10") << u"system"_s; // it has no dark theme
}

void TestTour::everyPageInBothThemes()
{
    QFETCH(QString, second);
    const QTemporaryDir folder;
    const QString pc = folder.filePath(u"pc"_s);
    makeMachine(pc,
                QCoreApplication::applicationDirPath() + u"/machines/"_s + QString::fromLatin1(QTest::currentDataTag()),
                Existing::Keep);
    copyMachine(*Machine::open(pc), folder.filePath(u"as-it-was"_s));

    const Result result = tour({pc, u"--out"_s, folder.filePath(u"pictures"_s)});

    QVERIFY2(result.code == 0, qPrintable(result.errors));
    QCOMPARE(result.lines.size(), 18);
    QCOMPARE(result.lines.filter(u"/light-"_s).size(), 9);
    QCOMPARE(result.lines.filter(u'/' + second + u'-').size(), 9);
    QList<QImage> pictures;
    for (const QString &file : result.lines) {
        const QImage picture(file);
        QVERIFY2(!picture.isNull(), qPrintable(file));
        QVERIFY2(!pictures.contains(picture), qPrintable(file + u" shows what another one shows"_s));
        pictures.append(picture);
    }
    QCOMPARE(compareMachines(*Machine::open(folder.filePath(u"as-it-was"_s)), *Machine::open(pc)), QList<DiffRow>());
}

void TestTour::folderForThePicturesMustBeNamed()
{
    const Result result = tour({u"/nowhere"_s});
    QCOMPARE(result.code, 2);
    QVERIFY2(result.errors.contains(u"'--out'"_s), qPrintable(result.errors));
}

void TestTour::unwritableFolderIsTold()
{
    const QTemporaryDir folder;
    makeMachine(folder.filePath(u"pc"_s), QString(), Existing::Keep);
    QFile file(folder.filePath(u"file"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));

    const Result result = tour({folder.filePath(u"pc"_s), u"--out"_s, folder.filePath(u"file/pictures"_s)});

    QCOMPARE(result.code, 1);
    QVERIFY2(result.errors.contains(u"can't be made"_s), qPrintable(result.errors));
}

KESTRUNE_SUITE(TestTour)
#include "tst_tour.moc"
