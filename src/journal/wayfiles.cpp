// SPDX-License-Identifier: GPL-3.0-or-later

#include "takeback.h"

#include "machine/machineerror.h"
#include "platform/platform.h"
#include "platform/windowsfacts.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString scriptName = u"way-back.reg"_s;

constexpr char howTo[] = "How to go back without Kestrune\r\n"
                         "\r\n"
                         "Each folder here belongs to one session. With what is in it, Windows' own tools take\r\n"
                         "back what the session changed, in Safe Mode too. The highest number is the newest\r\n"
                         "session. Go back from the newest to the oldest.\r\n"
                         "\r\n"
                         "1. Open way-back.reg with a double click, and confirm.\r\n"
                         "2. Restart the PC.\r\n"
                         "3. Open a command prompt as administrator, go to the folder (cd /d \"...\"), and run the\r\n"
                         "   commands that are in way-back-commands.txt.\r\n"
                         "\r\n"
                         "In Kestrune, \"Way back...\" on the Options page does all of this, and says what came\r\n"
                         "back.\r\n";

/** Turns a plan into steps. */
class ScriptOfPlan
{
public:
    ScriptOfPlan(const Journal &journal, const QList<TakenItem> &plan)
        : journal_(journal)
        , script_(u"way-back-files"_s)
    {
        for (const TakenItem &item : plan) {
            if (item.verdict == WayBack::Open)
                add(item.item, item.before);
            else if (item.verdict != WayBack::AsItWas)
                leaveOut(item.item, whyText(item));
        }
    }

    const WayBackScript &script() const { return script_; }

private:
    void leaveOut(const Item &item, const QString &why) { script_.leaveOut(itemTitle(item) + u": "_s + why); }

    void add(const Item &item, const ItemState &before)
    {
        switch (item.kind) {
        case ItemKind::Value:
            return addValue(item, before);
        case ItemKind::Key:
            return addKey(item, before);
        case ItemKind::RunState:
            return script_.startService(item.subject, before.there);
        case ItemKind::Task:
            return script_.enableTask(item.subject, before.there);
        case ItemKind::Package:
            return addPackage(item.subject, before.there);
        case ItemKind::BootOption:
            return script_.setBootOption(item.subject,
                                         before.there ? std::optional(QString::fromUtf8(before.data)) : std::nullopt);
        case ItemKind::Hibernation:
            return script_.switchHibernation(before.there);
        case ItemKind::Security:
            return addSecurity(item, before);
        case ItemKind::Attributes:
            if (before.there && script_.takesFile(DiffKind::Attribute, item.subject))
                script_.setAttributes(item.subject, before.type);
            return;
        case ItemKind::Content:
            return addContent(item, before);
        case ItemKind::Move:
            return addMove(item);
        case ItemKind::OneWay:
            return; // never open
        }
    }

    void addValue(const Item &item, const ItemState &before)
    {
        const RegistryValue value{item.name, static_cast<RegistryType>(before.type), before.data};
        removedValues_.insert(foldedItem(item));
        script_.edit(
            {before.there ? RegistryEdit::Kind::SetValue : RegistryEdit::Kind::RemoveValue, item.subject, value});
    }

    /** A script removes a key with all that it holds, so it must hold nothing that stays. The lowest comes first. */
    void addKey(const Item &item, const ItemState &before)
    {
        if (before.there) {
            script_.edit({RegistryEdit::Kind::MakeKey, item.subject, {}});
            return;
        }
        const KeyContent content = journal_.system().key(item.subject);
        const bool isEmptied =
            std::all_of(content.values.cbegin(), content.values.cend(),
                        [&](const RegistryValue &value) {
                            return removedValues_.contains(foldedItem({ItemKind::Value, item.subject, value.name}));
                        })
            && std::all_of(content.subkeys.cbegin(), content.subkeys.cend(), [&](const QString &name) {
                   return removedKeys_.contains(foldedItem({ItemKind::Key, item.subject + u'\\' + name}));
               });
        if (!isEmptied) {
            leaveOut(item, u"something else has put values or keys into it"_s);
            return;
        }
        removedKeys_.insert(foldedItem(item));
        script_.edit({RegistryEdit::Kind::RemoveKey, item.subject, {}});
    }

    void addPackage(const QString &name, bool installed)
    {
        if (name == oneDriveName) {
            const QString setup = oneDriveSetup([](const QString &path) {
                return QFileInfo::exists(platform().hostPath(qEnvironmentVariable("WINDIR") + path));
            });
            return installed ? script_.installOneDrive(setup) : script_.removeOneDrive(setup);
        }
        return installed ? script_.installPackage(name) : script_.removePackage(name);
    }

    void addSecurity(const Item &item, const ItemState &before)
    {
        if (!before.there || !script_.takesFile(DiffKind::Security, item.subject))
            return;
        const SecurityWords words = journal_.system().securityWords(before.data);
        if (words.descriptor.isEmpty())
            script_.setRights(item.subject, words.rights);
        else
            script_.restoreRights(item.subject, words.descriptor);
        script_.setOwner(item.subject, words.owner);
    }

    void addContent(const Item &item, const ItemState &before)
    {
        if (!script_.takesFile(DiffKind::File, item.subject))
            return;
        if (before.there)
            script_.putContent(item.subject, before.data);
        else
            script_.removeFile(item.subject);
    }

    /** The program gives files other names and never other folders. */
    void addMove(const Item &item)
    {
        if (script_.takesFile(DiffKind::File, item.name))
            script_.renameFile(item.name, item.subject.section(u'\\', -1));
    }

    const Journal &journal_;
    WayBackScript script_;
    QSet<QString> removedValues_;
    QSet<QString> removedKeys_;
};

/** "000012-Disable-services" */
QString folderName(const Session &session)
{
    return QString::number(session.id).rightJustified(6, u'0') + u'-' + QString(session.what).replace(u' ', u'-');
}

void explain(const QString &folder)
{
    QFile file(folder + u"/how-to-go-back.txt"_s);
    if (!file.exists() && file.open(QIODevice::WriteOnly))
        file.write(howTo);
}

void keepLast(const QString &folder)
{
    constexpr qsizetype kept = 10;

    const QStringList names = QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (qsizetype i = 0; i < names.size() - kept; ++i)
        QDir(folder + u'/' + names.at(i)).removeRecursively();
}

} // namespace

WayBackScript wayBackScript(const Journal &journal, const Selection &selection)
{
    return ScriptOfPlan(journal, planWayBack(journal, selection)).script();
}

WrittenWayBack writeWayBack(const Journal &journal, const Selection &selection, const QString &folder)
{
    if (!QDir().mkpath(folder))
        throw MachineError{u"%1: the folder can't be made"_s.arg(QDir::toNativeSeparators(folder))};
    return wayBackScript(journal, selection)
        .write(folder + u'/' + scriptName, u"The way back to what was there before Kestrune changed it."_s);
}

QString wayBackFolder(const Journal &journal, qint64 session)
{
    const QList<Session> sessions = journal.store().sessions();
    const auto found =
        std::find_if(sessions.cbegin(), sessions.cend(), [session](const Session &each) { return each.id == session; });
    if (found == sessions.cend() || found->changes == 0)
        return {};
    return QFileInfo(journal.store().file()).path() + u"/files/"_s + folderName(*found);
}

void keepWayBack(const Journal &journal, qint64 session)
{
    const QString folder = wayBackFolder(journal, session);
    if (folder.isEmpty())
        return;
    writeWayBack(journal, {.firstSession = session, .lastSession = session}, folder);
    explain(QFileInfo(folder).path());
    keepLast(QFileInfo(folder).path());
}
