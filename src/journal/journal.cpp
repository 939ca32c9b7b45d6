// SPDX-License-Identifier: GPL-3.0-or-later

#include "journal.h"

#include "item.h"
#include "journalkey.h"
#include "machine/machineerror.h"
#include "machine/registrystore.h"
#include "platform/windowsfacts.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString currentUser = u"HKEY_CURRENT_USER"_s;

const QString policies = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Policies"_s;
const QString policiesOf32 = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Wow6432Node\\Policies"_s;

/** How many attribute words are noted together. */
constexpr qsizetype mostWords = 5000;

const QString componentCleanup = u"Clean-up of the WinSxS folder"_s;

/** The words that the walk of this thread has still to set; null while none is under way. */
thread_local QList<FileAttributes> *waitingWords = nullptr;
/** Their files' present words. */
thread_local QList<quint32> *presentWords = nullptr;
/** What was read last on this thread: what is read is mostly written next. */
thread_local FileAttributes lastRead;

ItemState stateOfValue(const std::optional<RegistryValue> &value)
{
    return value ? ItemState{true, static_cast<quint32>(value->type), value->data} : ItemState{};
}

bool isRunning(const SystemState &system, const QString &service)
{
    const auto services = system.serviceReports();
    if (!services)
        return false;
    const auto found = std::find_if(services->cbegin(), services->cend(), [&service](const ServiceReport &each) {
        return each.name.compare(service, Qt::CaseInsensitive) == 0;
    });
    return found != services->cend() && found->running;
}

/** As the user has it; empty where he has none of that name. */
QString fullNameOfPackage(const SystemState &system, const QString &name)
{
    const QStringList packages = system.key(WindowsKey::userPackages).subkeys;
    const auto found = std::find_if(packages.cbegin(), packages.cend(), [&name](const QString &fullName) {
        return packageNameOf(fullName).compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == packages.cend() ? QString() : *found;
}

} // namespace

QString windowsBuild(const SystemState &system)
{
    const auto build = system.value(WindowsKey::currentVersion, u"CurrentBuild"_s);
    return build ? textOf(build->data) : QString();
}

/** Gathers the words that are set while a walk is under way, and sets them some thousands at a time. */
class Journal::Walk
{
public:
    explicit Walk(const Journal &journal)
        : journal_(journal)
        , outerWords_(std::exchange(waitingWords, &words_))
        , outerPresent_(std::exchange(presentWords, &present_))
    {
    }

    ~Walk()
    {
        set();
        waitingWords = outerWords_;
        presentWords = outerPresent_;
    }
    Q_DISABLE_COPY_MOVE(Walk)

    void setMany()
    {
        if (words_.size() >= mostWords)
            set();
    }

private:
    void set()
    {
        journal_.setWords(words_, present_);
        words_.clear();
        present_.clear();
    }

    const Journal &journal_;
    QList<FileAttributes> words_;
    QList<quint32> present_;
    QList<FileAttributes> *outerWords_;
    QList<quint32> *outerPresent_;
};

Journal::Journal(std::unique_ptr<Platform> inner, std::unique_ptr<SystemState> system, JournalOptions options)
    : ForwardingPlatform(std::move(inner))
    , system_(std::move(system))
    , options_(std::move(options))
{
    if (!options_.shut.isEmpty()) {
        failed(options_.shut);
        return;
    }
    store_ = openStore(options_.file, options_.durability, options_.isForeign, options_.putAside);
    store_->keepDays(options_.keptDays);
}

Journal::~Journal()
{
    endSession(SessionState::Finished);
}

JournalStore &Journal::store() const
{
    if (!store_)
        throw MachineError{options_.shut};
    return *store_;
}

QString Journal::takeFailure() const
{
    const std::lock_guard lock(lock_);
    const QString ofInner = inner().takeFailure();
    return failure_.isEmpty() ? ofInner : std::exchange(failure_, QString());
}

bool Journal::failed(const QString &reason) const
{
    if (failure_.isEmpty())
        failure_ = reason;
    return false;
}

ItemState Journal::stateOf(const Item &item) const
{
    switch (item.kind) {
    case ItemKind::Value:
        return stateOfValue(system_->value(item.subject, item.name));
    case ItemKind::Key:
        return {system_->hasKey(item.subject)};
    case ItemKind::RunState:
        return {isRunning(*system_, item.subject)};
    case ItemKind::Task:
        return {system_->isTaskEnabled(item.subject).value_or(false)};
    case ItemKind::Package: {
        if (item.subject == oneDriveName)
            return {QFileInfo::exists(
                hostPath(qEnvironmentVariable("LOCALAPPDATA") + u"\\Microsoft\\OneDrive\\OneDrive.exe"_s))};
        return {!fullNameOfPackage(*system_, item.subject).isEmpty()};
    }
    case ItemKind::BootOption: {
        const QMap<QString, QString> options = system_->bootOptions().value_or(QMap<QString, QString>());
        return {options.contains(item.subject), 0, options.value(item.subject).toUtf8()};
    }
    case ItemKind::Hibernation:
        return {QFileInfo::exists(hostPath(qEnvironmentVariable("systemdrive") + u"\\hiberfil.sys"_s))};
    case ItemKind::Security: {
        const auto security = system_->fileSecurity(item.subject);
        return {security.has_value(), 0, security.value_or(QByteArray())};
    }
    case ItemKind::Attributes: {
        const quint32 word = inner().fileAttributes(hostPath(item.subject));
        return {word != invalidAttributes, word == invalidAttributes ? 0 : word};
    }
    case ItemKind::Content: {
        QFile file(hostPath(item.subject));
        if (!file.open(QIODevice::ReadOnly))
            return {};
        return {true, 0, file.readAll()};
    }
    case ItemKind::Move:
    case ItemKind::OneWay:
        return {};
    }
    return {};
}

QString Journal::commonPath(const QString &key) const
{
    // Noted by each of its names, one value would be taken back twice, to what it was before and to what was between.
    if (options_.sharesPolicies && (key + u'\\').startsWith(policiesOf32 + u'\\', Qt::CaseInsensitive))
        return policies + key.sliced(policiesOf32.size());
    const bool isUsers = key == currentUser || key.startsWith(currentUser + u'\\', Qt::CaseInsensitive);
    return isUsers && !options_.userKey.isEmpty() ? options_.userKey + key.sliced(currentUser.size()) : key;
}

QString Journal::ownPath(const QString &key) const
{
    const bool isUsers = !options_.userKey.isEmpty() && key.startsWith(options_.userKey + u'\\', Qt::CaseInsensitive);
    return isUsers ? currentUser + key.sliced(options_.userKey.size()) : key;
}

ItemState Journal::stateToNote(const Item &item) const
{
    ItemState state = stateOf(item);
    if (item.kind == ItemKind::Package && state.there)
        state.data = fullNameOfPackage(*system_, item.subject).toUtf8();
    return state;
}

OwnPlace Journal::placeOf(const Item &item) const
{
    const bool isOfRegistry = item.kind == ItemKind::Value || item.kind == ItemKind::Key;
    if (!isOfRegistry || options_.ownPlace == nullptr)
        return OwnPlace::None;
    return options_.ownPlace(ownPath(item.subject), item.kind == ItemKind::Value ? item.name : QString());
}

qint64 Journal::sessionFor(bool own) const
{
    // Records may follow a job that is over; they belong to it.
    const bool takesIt = depth_ > 0 || own || (what_ == lookingAround && !ended_);
    return takesIt ? session_ : 0;
}

void Journal::openSession(bool own) const
{
    if (sessionFor(own) != 0)
        return;
    endSession(SessionState::Finished);
    if (depth_ == 0)
        what_ = lookingAround;
    Session session;
    session.what = what_;
    session.user = options_.user;
    session.version = options_.version;
    session.windows = windowsBuild(*system_);
    session_ = store().beginSession(session);
    ended_ = false;
}

bool Journal::note(const QList<Item> &items) const
{
    const std::lock_guard lock(lock_);
    try {
        QList<Note> notes;
        bool own = true;
        for (const Item &item : items) {
            const OwnPlace place = placeOf(item);
            if (place == OwnPlace::Setting)
                continue;
            Note note;
            note.item = item;
            note.own = place == OwnPlace::Record;
            own = own && note.own;
            notes.append(note);
        }
        if (!notes.isEmpty())
            openSession(own);
        notes.removeIf([this](const Note &note) {
            return note.item.kind != ItemKind::Move && noted_.contains(foldedItem(note.item));
        });
        if (notes.isEmpty())
            return true;
        for (Note &note : notes)
            note.before = stateToNote(note.item);
        store().add(session_, notes);
        for (const Note &note : std::as_const(notes))
            noted_.insert(foldedItem(note.item));
        return true;
    } catch (const MachineError &error) {
        return failed(error.message);
    }
}

bool Journal::noteIfThere(const Item &item) const
{
    return !stateOf(item).there || note({item});
}

bool Journal::noteMaking(const QString &key) const
{
    const std::lock_guard lock(lock_);
    QList<Item> made;
    QString path = key;
    while (!path.isEmpty() && !present_.contains(foldName(path)) && !system_->hasKey(path)) {
        made.prepend({ItemKind::Key, path});
        path = path.left(std::max<qsizetype>(path.lastIndexOf(u'\\'), 0));
    }
    if (!made.isEmpty() && !note(made))
        return false;
    present_.insert(foldName(key));
    return true;
}

void Journal::collectRemoval(const QString &key, QList<Item> &items) const
{
    const KeyContent content = system_->key(key);
    if (!content.isThere)
        return;
    items.append({ItemKind::Key, key});
    for (const RegistryValue &value : content.values)
        items.append({ItemKind::Value, key, value.name});
    for (const QString &subkey : content.subkeys)
        collectRemoval(key + u'\\' + subkey, items);
}

bool Journal::noteRemoval(const QString &key) const
{
    const std::lock_guard lock(lock_);
    QList<Item> items;
    collectRemoval(key, items);
    if (!items.isEmpty() && !note(items))
        return false;
    const QString gone = foldName(key);
    present_.removeIf([&gone](const QString &each) { return each == gone || each.startsWith(gone + u'\\'); });
    return true;
}

std::unique_ptr<RegistryKey> Journal::openKey(const QString &path) const
{
    std::unique_ptr<RegistryKey> key = inner().openKey(path);
    const std::optional<QString> fullPath = fullKeyPath(path);
    if (!fullPath) // outside the hives, where nothing is made
        return key;
    return std::make_unique<JournalKey>(*this, std::move(key), commonPath(*fullPath));
}

void Journal::walk(const QString &windowsPath, const std::function<bool(const WalkEntry &)> &visit) const
{
    Walk walk(*this);
    inner().walk(windowsPath, [&](const WalkEntry &entry) {
        const bool goesOn = visit(entry);
        walk.setMany();
        return goesOn;
    });
}

quint32 Journal::fileAttributes(const QString &file) const
{
    const quint32 word = inner().fileAttributes(file);
    lastRead = {file, word};
    return word;
}

void Journal::setFileAttributes(const QString &file, quint32 word) const
{
    const quint32 present = lastRead.file == file ? lastRead.word : inner().fileAttributes(file);
    if (waitingWords != nullptr) {
        waitingWords->append({file, word});
        presentWords->append(present);
    } else {
        setWords({{file, word}}, {present});
    }
    lastRead = {};
}

void Journal::setAllFileAttributes(const QList<FileAttributes> &files) const
{
    QList<quint32> present;
    for (const FileAttributes &each : files)
        present.append(inner().fileAttributes(each.file));
    setWords(files, present);
}

bool Journal::setWords(const QList<FileAttributes> &words, const QList<quint32> &before) const
{
    const std::lock_guard lock(lock_);
    QList<WordNote> notes;
    for (qsizetype i = 0; i < words.size(); ++i) {
        const FileAttributes &each = words.at(i);
        if (before.at(i) != each.word && before.at(i) != invalidAttributes)
            notes.append({system_->windowsPath(each.file), before.at(i), each.word});
    }
    if (!notes.isEmpty()) {
        try {
            openSession(false);
            store().addWords(session_, notes);
        } catch (const MachineError &error) {
            return failed(error.message);
        }
    }
    inner().setAllFileAttributes(words);
    return true;
}

bool Journal::renameFile(const QString &from, const QString &to) const
{
    return note({{ItemKind::Move, system_->windowsPath(from), system_->windowsPath(to)}})
           && inner().renameFile(from, to);
}

bool Journal::removeFile(const QString &file) const
{
    return note({{ItemKind::Content, system_->windowsPath(file)}}) && inner().removeFile(file);
}

bool Journal::writeFile(const QString &folder, const QString &name, const QByteArray &content, IfThere ifThere) const
{
    // The others are the program's own: its backups, and the list that it leaves in the folder for temporary files.
    const bool isOfSystem = ifThere == IfThere::Exchange && folder != programFolder();
    if (isOfSystem && !note({{ItemKind::Content, system_->windowsPath(folder + u'/' + name)}}))
        return false;
    return inner().writeFile(folder, name, content, ifThere);
}

void Journal::shellExecute(const ShellStart &start) const
{
    // The clean-up runs in a window of its own, and is over when the user closes that.
    if (start.parameters.contains("/StartComponentCleanup"_L1)) {
        beginChanges(componentCleanup);
        const bool isNoted = note({{ItemKind::OneWay, componentCleanup}});
        endChanges(true);
        if (!isNoted)
            return;
    }
    inner().shellExecute(start);
}

std::optional<AdmittedProgram> Journal::admitProgram(const QString &program, const QStringList &arguments) const
{
    const std::optional<AdmittedProgram> admitted = inner().admitProgram(program, arguments);
    if (!admitted)
        return admitted;
    QList<Item> subjects = subjectsOf(program, arguments, *system_);
    for (Item &each : subjects) {
        if (each.kind == ItemKind::Value || each.kind == ItemKind::Key)
            each.subject = commonPath(each.subject);
    }
    return subjects.isEmpty() || note(subjects) ? admitted : std::nullopt;
}

void Journal::beginChanges(const QString &what) const
{
    const std::lock_guard lock(lock_);
    if (depth_++ > 0)
        return;
    endSession(SessionState::Finished);
    what_ = what;
    broken_ = false;
}

void Journal::endChanges(bool finished) const
{
    const std::lock_guard lock(lock_);
    broken_ = broken_ || !finished;
    if (--depth_ > 0)
        return;
    noteOutcome();
    if (session_ != 0 && !ended_) {
        try {
            store().endSession(session_, broken_ ? SessionState::BrokenOff : SessionState::Finished);
            if (options_.afterSession != nullptr)
                options_.afterSession(*this, session_);
        } catch (const MachineError &error) {
            failed(error.message);
        }
    }
    ended_ = true;
}

void Journal::endSession(SessionState state) const
{
    if (session_ == 0)
        return;
    noteOutcome();
    try {
        if (!ended_)
            store().endSession(session_, state);
    } catch (const MachineError &error) {
        failed(error.message);
    }
    session_ = 0;
    ended_ = true;
    noted_.clear();
    present_.clear();
}

void Journal::resume(qint64 session) const
{
    const std::lock_guard lock(lock_);
    endSession(SessionState::Finished);
    session_ = session;
    noteOutcome();
}

void Journal::noteOutcome() const
{
    if (session_ == 0)
        return;
    try {
        QList<Note> notes = store().notes(session_);
        notes.removeIf([](const Note &note) {
            return note.after || note.item.kind == ItemKind::Move || note.item.kind == ItemKind::OneWay;
        });
        for (Note &note : notes)
            note.after = stateOf(note.item);
        store().setAfter(notes);
    } catch (const MachineError &error) {
        failed(error.message);
    }
}
