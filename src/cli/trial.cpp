// SPDX-License-Identifier: GPL-3.0-or-later

#include "trial.h"

#include "journal/item.h"
#include "journal/journalkey.h"
#include "machine/machinekey.h"
#include "platform/forwardingplatform.h"
#include "platform/registryplace.h"
#include "platform/systemstate.h"

#include <QFileInfo>
#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/** What has been asked for so far. */
class Findings
{
public:
    explicit Findings(const SystemState &system)
        : system_(system)
    {
    }

    /** @param value nothing where it is to go */
    void wantValue(const QString &key, const QString &name, const std::optional<RegistryValue> &value)
    {
        // What is written twice is as it was written last.
        const Item item{ItemKind::Value, key, name};
        isOfUser_ = isOfUser_ || key.startsWith("HKEY_CURRENT_USER"_L1);
        values_.insert(foldedItem(item), {item, value});
    }
    void wantNoKey(const QString &key)
    {
        if (system_.hasKey(key))
            change();
    }
    bool isOfUser() const { return isOfUser_; }
    void change() { changes_ = true; }
    void unknown() { isUnknown_ = true; }

    TrialResult result() const
    {
        const bool differs = std::any_of(values_.cbegin(), values_.cend(), [this](const WantedValue &wanted) {
            const auto present = system_.value(wanted.item.subject, wanted.item.name);
            return present.has_value() != wanted.value.has_value()
                   || (present && (present->type != wanted.value->type || present->data != wanted.value->data));
        });
        return changes_ || differs ? TrialResult::Changes
               : isUnknown_        ? TrialResult::Unknown
                                   : TrialResult::ChangesNothing;
    }

private:
    struct WantedValue
    {
        Item item{};
        std::optional<RegistryValue> value{};
    };

    const SystemState &system_;
    QHash<QString, WantedValue> values_;
    bool changes_ = false;
    bool isUnknown_ = false;
    bool isOfUser_ = false;
};

/** A boot option by one of its words: "Yes", "True" and "On" are the same. */
QString bootOptionValue(const QString &word)
{
    static const QStringList yes{u"yes"_s, u"true"_s, u"on"_s, u"1"_s};
    static const QStringList no{u"no"_s, u"false"_s, u"off"_s, u"0"_s};
    const QString lower = word.toLower();
    return yes.contains(lower) ? yes.constFirst() : no.contains(lower) ? no.constFirst() : lower;
}

/** A key that is read and not made, and into which nothing is written. */
class TrialKey final : public RegistryKey
{
public:
    /** @param key null where there is no such key */
    TrialKey(Findings &findings, QString path, std::unique_ptr<RegistryKey> key)
        : findings_(findings)
        , path_(std::move(path))
        , key_(std::move(key))
    {
    }

    QVariant value(const QString &name, const QVariant &fallback) const override
    {
        return key_ ? key_->value(name, fallback) : fallback;
    }
    void setValue(const QString &name, const QVariant &value) override
    {
        const RegistryPlace place = placeOf(name);
        findings_.wantValue(keyOf(place), place.name, registryValueOf(place.name, value));
    }
    void remove(const QString &name) override
    {
        const RegistryPlace place = placeOf(name);
        findings_.wantValue(keyOf(place), place.name, std::nullopt);
        findings_.wantNoKey(path_ + u'\\' + swapSlashes(prefix_ + normalisedName(name)));
    }
    bool contains(const QString &name) const override { return key_ && key_->contains(name); }
    QVariant ownValue(const QString &name) const override { return key_ ? key_->ownValue(name) : QVariant(); }
    void setOwnValue(const QString &name, const QString &text) override
    {
        findings_.wantValue(ownKey(), swapSlashes(name), registryValueOf(name, text));
    }
    void removeOwnValue(const QString &name) override
    {
        findings_.wantValue(ownKey(), swapSlashes(name), std::nullopt);
    }
    QStringList allKeys() const override { return key_ ? key_->allKeys() : QStringList(); }
    QStringList childKeys() const override { return key_ ? key_->childKeys() : QStringList(); }
    QStringList childGroups() const override { return key_ ? key_->childGroups() : QStringList(); }
    void beginGroup(const QString &name) override
    {
        groups_.append(prefix_);
        if (const QString group = normalisedName(name); !group.isEmpty())
            prefix_ += group + u'/';
        if (key_)
            key_->beginGroup(name);
    }
    void endGroup() override
    {
        if (!groups_.isEmpty())
            prefix_ = groups_.takeLast();
        if (key_)
            key_->endGroup();
    }

private:
    RegistryPlace placeOf(const QString &name) const { return registryPlaceOf(normalisedName(prefix_ + name)); }
    QString keyOf(const RegistryPlace &place) const { return place.key.isEmpty() ? path_ : path_ + u'\\' + place.key; }
    QString ownKey() const { return prefix_.isEmpty() ? path_ : path_ + u'\\' + swapSlashes(prefix_.chopped(1)); }

    Findings &findings_;
    QString path_;
    std::unique_ptr<RegistryKey> key_;
    QString prefix_;
    QStringList groups_; ///< former prefixes
};

/** Passes questions on, and changes nothing. */
class TrialPlatform final : public ForwardingPlatform
{
public:
    TrialPlatform(std::unique_ptr<Platform> inner, const SystemState &system, Findings &findings)
        : ForwardingPlatform(std::move(inner))
        , system_(system)
        , findings_(findings)
    {
    }

    std::unique_ptr<Platform> release() { return takeInner(); }

    std::unique_ptr<RegistryKey> openKey(const QString &path) const override
    {
        const QString full = fullKeyPath(path).value_or(path);
        return std::make_unique<TrialKey>(findings_, full, system_.hasKey(full) ? inner().openKey(path) : nullptr);
    }
    bool writeFile(const QString &, const QString &, const QByteArray &, IfThere) const override
    {
        findings_.change();
        return false;
    }
    bool appendLine(const QString &, const QString &, const QString &) const override { return false; }
    void walk(const QString &, const std::function<bool(const WalkEntry &)> &) const override { findings_.unknown(); }
    void setFileAttributes(const QString &, quint32) const override { findings_.change(); }
    void setAllFileAttributes(const QList<FileAttributes> &) const override { findings_.change(); }
    bool renameFile(const QString &, const QString &) const override
    {
        findings_.change();
        return false;
    }
    bool removeFile(const QString &) const override
    {
        findings_.change();
        return false;
    }
    /** Where a tool is missing nobody knows what it would find. */
    QString programFile(const QString &program) const override
    {
        QString file = inner().programFile(program);
        if (file.isEmpty())
            findings_.unknown();
        return file;
    }
    std::optional<AdmittedProgram> admitProgram(const QString &program, const QStringList &arguments) const override
    {
        if (isListing(program, arguments))
            return inner().admitProgram(program, arguments);
        const QList<Item> subjects = subjectsOf(program, arguments, system_);
        if (!subjects.isEmpty())
            judge(subjects.constFirst(), arguments);
        return std::nullopt;
    }
    void shellExecute(const ShellStart &) const override { findings_.change(); }
    void pause(int) const override {}
    void beginChanges(const QString &) const override {}
    void endChanges(bool) const override {}

private:
    /** Of the services, which changes nothing. */
    static bool isListing(const QString &program, const QStringList &arguments)
    {
        return program == "sc"_L1 && arguments.value(0) == "query"_L1;
    }

    /** Whether what a tool is about is as its arguments ask for. */
    void judge(const Item &item, const QStringList &arguments) const
    {
        switch (item.kind) {
        case ItemKind::Task:
            // One that isn't there can't be changed, and needn't.
            if (const auto enabled = system_.isTaskEnabled(item.subject);
                enabled && *enabled != arguments.contains("/ENABLE"_L1))
                findings_.change();
            return;
        case ItemKind::BootOption:
            if (const auto options = system_.bootOptions(); !options)
                findings_.unknown();
            else if (bootOptionValue(options->value(item.subject)) != bootOptionValue(arguments.value(2)))
                findings_.change();
            return;
        case ItemKind::Hibernation: {
            const QFileInfo file(inner().hostPath(qEnvironmentVariable("systemdrive") + u"\\hiberfil.sys"_s));
            if (file.exists() != arguments.contains("ON"_L1))
                findings_.change();
            return;
        }
        default:
            findings_.change();
        }
    }

    const SystemState &system_;
    Findings &findings_;
};

} // namespace

TrialResult tryOut(SystemState &system, const std::function<void()> &routine, bool *ofUser)
{
    Findings findings(system);
    auto owned = std::make_unique<TrialPlatform>(takePlatform(), system, findings);
    TrialPlatform &trial = *owned;
    setPlatform(std::move(owned));
    const auto giveBack = [&trial] {
        std::unique_ptr<Platform> inner = trial.release();
        setPlatform(std::move(inner));
    };
    try {
        routine();
    } catch (...) {
        giveBack();
        throw;
    }
    giveBack();
    if (ofUser != nullptr)
        *ofUser = findings.isOfUser();
    return findings.result();
}
