// SPDX-License-Identifier: GPL-3.0-or-later
// A platform that writes down what the logic asks of it.

#pragma once

#include "platform/forwardingplatform.h"
#include "platform/programname.h"

#include <QSet>

#include <mutex>

/** What was asked of a platform. */
struct Questions
{
    QSet<std::pair<QString, QString>> values; ///< key and name, read or written
    QSet<QString> keys;                       ///< that were opened
    QSet<QString> listedSubkeys;              ///< keys whose subkeys were listed
    QSet<QString> listedValues;               ///< keys whose own values were listed
    QSet<QString> files;
    QSet<QString> walks;
    QSet<std::pair<QString, uint>> strings;    ///< of DLLs
    QSet<std::pair<QString, QStringList>> wmi; ///< class and properties
    std::mutex lock;
};

class RecordingKey final : public RegistryKey
{
public:
    RecordingKey(std::unique_ptr<RegistryKey> inner, const QString &path, Questions &questions)
        : inner_(std::move(inner))
        , path_(path)
        , questions_(questions)
    {
    }

    QVariant value(const QString &name, const QVariant &fallback) const override
    {
        note(name);
        return inner_->value(name, fallback);
    }
    void setValue(const QString &name, const QVariant &value) override
    {
        note(name);
        inner_->setValue(name, value);
    }
    void remove(const QString &name) override
    {
        note(name);
        inner_->remove(name);
    }
    QVariant ownValue(const QString &name) const override
    {
        noteOwn(name);
        return inner_->ownValue(name);
    }
    void setOwnValue(const QString &name, const QString &text) override
    {
        noteOwn(name);
        inner_->setOwnValue(name, text);
    }
    void removeOwnValue(const QString &name) override
    {
        noteOwn(name);
        inner_->removeOwnValue(name);
    }
    bool contains(const QString &name) const override
    {
        note(name);
        return inner_->contains(name);
    }
    QStringList allKeys() const override { return inner_->allKeys(); }
    QStringList childKeys() const override
    {
        const std::lock_guard lock(questions_.lock);
        questions_.listedValues.insert(here());
        return inner_->childKeys();
    }
    QStringList childGroups() const override
    {
        const std::lock_guard lock(questions_.lock);
        questions_.listedSubkeys.insert(here());
        return inner_->childGroups();
    }
    void beginGroup(const QString &name) override
    {
        groups_.append(name);
        inner_->beginGroup(name);
    }
    void endGroup() override
    {
        groups_.removeLast();
        inner_->endGroup();
    }

private:
    QString here() const { return (QStringList(path_) + groups_).join(u'\\'); }
    void note(const QString &name) const
    {
        QStringList levels = name.split(u'/');
        QString last = levels.takeLast();
        if (last == QLatin1StringView("Default") || last == QLatin1StringView("."))
            last.clear();
        const std::lock_guard lock(questions_.lock);
        // A backslash in the name of a value is stored as "/".
        questions_.values.insert({(QStringList(here()) + levels).join(u'\\'), last.replace(u'\\', u'/')});
    }

    void noteOwn(const QString &name) const
    {
        QString exact = name;
        for (QChar &unit : exact)
            unit = unit == u'\\' ? u'/' : unit == u'/' ? u'\\' : unit;
        const std::lock_guard lock(questions_.lock);
        questions_.values.insert({here(), exact});
    }

    std::unique_ptr<RegistryKey> inner_;
    QString path_;
    QStringList groups_;
    Questions &questions_;
};

class RecordingPlatform final : public ForwardingPlatform
{
public:
    RecordingPlatform(std::unique_ptr<Platform> inner, Questions &questions)
        : ForwardingPlatform(std::move(inner))
        , questions_(questions)
    {
    }

    std::unique_ptr<RegistryKey> openKey(const QString &path) const override
    {
        const std::lock_guard lock(questions_.lock);
        questions_.keys.insert(path);
        return std::make_unique<RecordingKey>(ForwardingPlatform::openKey(path), path, questions_);
    }
    QString hostPath(const QString &windowsPath) const override
    {
        note(questions_.files, windowsPath);
        return ForwardingPlatform::hostPath(windowsPath);
    }
    bool isOnFixedDrive(const QString &windowsPath) const override
    {
        if (isDrivePath(windowsPath))
            note(questions_.files, windowsPath);
        return ForwardingPlatform::isOnFixedDrive(windowsPath);
    }
    QString programFile(const QString &program) const override
    {
        if (program.contains(u'\\') || program.contains(u'/'))
            note(questions_.files, QString(program).remove(u'"'));
        return ForwardingPlatform::programFile(program);
    }
    void walk(const QString &windowsPath, const std::function<bool(const WalkEntry &)> &visit) const override
    {
        note(questions_.walks, windowsPath);
        ForwardingPlatform::walk(windowsPath, visit);
    }
    DllString dllString(const QString &windowsPath, uint id) const override
    {
        {
            const std::lock_guard lock(questions_.lock);
            questions_.strings.insert({windowsPath, id});
        }
        return ForwardingPlatform::dllString(windowsPath, id);
    }
    WmiAnswer queryWmi(const QString &className, const QStringList &properties) const override
    {
        {
            const std::lock_guard lock(questions_.lock);
            questions_.wmi.insert({className, properties});
        }
        return ForwardingPlatform::queryWmi(className, properties);
    }

private:
    void note(QSet<QString> &set, const QString &text) const
    {
        const std::lock_guard lock(questions_.lock);
        set.insert(text);
    }

    Questions &questions_;
};
