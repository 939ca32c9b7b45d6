// SPDX-License-Identifier: GPL-3.0-or-later

#include "trialpc.h"

#include "journal/realjournal.h"
#include "machine/source/toolreport.h"
#include "platform/windows/windowsplatform.h"
#include "windows/standin/standinkeys.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QPixmap>
#include <QScreen>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QByteArray sourceOfPc(const QString &fileName)
{
    QFile file(QCoreApplication::applicationDirPath() + u"/machines/"_s + qEnvironmentVariable("KESTRUNE_TRIAL_MACHINE")
               + u'/' + fileName);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s can't be read", qUtf8Printable(file.fileName()));
    return file.readAll();
}

QStringList texts(const QJsonValue &array)
{
    QStringList result;
    for (const QJsonValue text : array.toArray())
        result.append(text.toString());
    return result;
}

} // namespace

TrialPc::TrialPc()
    : description_(QJsonDocument::fromJson(sourceOfPc(u"machine.json"_s)).object())
{
    auto journal = openRealJournal(realJournalFolder());
    journal_ = journal.get();
    setPlatform(std::move(journal));
    qputenv("KESTRUNE_STANDIN", "1");
    forgetCommands();
}

TrialPc::~TrialPc()
{
    setPlatform(nullptr);
}

void TrialPc::startServices(const QStringList &only) const
{
    const auto states = WindowsPlatform().openKey(standInStates);
    emptyKey(standInStates);
    for (const QString &service : texts(description_[u"running"_s])) {
        if (only.isEmpty() || only.contains(service))
            states->setValue(service, 1);
    }
}

void TrialPc::startProcesses() const
{
    WindowsPlatform().openKey(standInProcesses)->setValue(u"Names"_s, texts(description_[u"processes"_s]));
}

void TrialPc::registerTasks(const QStringList &only) const
{
    const auto key = WindowsPlatform().openKey(standInTasks);
    emptyKey(standInTasks);
    qsizetype place = 0;
    for (const ScheduledTask &task : parseTaskExport(sourceOfPc(u"tasks.xml"_s), u"tasks.xml"_s)) {
        if (only.isEmpty() || only.contains(task.path))
            key->setValue(standInTaskName(place++), task.path + u'\n' + task.document);
    }
}

bool isWindows11Pc()
{
    return qEnvironmentVariable("KESTRUNE_TRIAL_MACHINE") == "windows11"_L1;
}

void layFile(const QString &path)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite))
        qFatal("%s can't be made", qUtf8Printable(path));
}

void layStandIn(const QString &path)
{
    QDir().mkpath(QFileInfo(path).path());
    if (!QFile::exists(path) && !QFile::copy(platform().programFile(u"sc"_s), path))
        qFatal("%s can't be made", qUtf8Printable(path));
}

void emptyKey(const QString &path)
{
    const auto key = WindowsPlatform().openKey(path);
    for (const QString &name : key->childKeys())
        key->removeOwnValue(name);
    key->remove(u"."_s);
    for (const QString &name : key->childGroups())
        key->remove(name);
}

QList<QStringList> commandsOf(const QString &tool)
{
    const auto key = WindowsPlatform().openKey(standInCommands);
    QList<QStringList> commands;
    for (int number = 1; number <= key->value(standInCount, 0).toInt(); ++number) {
        QStringList command = key->value(QString::number(number)).toStringList();
        if (!command.isEmpty() && command.takeFirst() == tool && command.value(0) != "/enum"_L1)
            commands.append(command);
    }
    return commands;
}

void forgetCommands()
{
    emptyKey(standInCommands);
}

void takePicture(const QString &name)
{
    QTest::qWait(150);
    const QString file = qEnvironmentVariable("KESTRUNE_TRIAL_PICTURES") + u'/' + name + u".png"_s;
    QVERIFY2(QGuiApplication::primaryScreen()->grabWindow(0).save(file), qPrintable(file));
}
