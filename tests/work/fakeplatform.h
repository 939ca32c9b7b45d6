// SPDX-License-Identifier: GPL-3.0-or-later
// A platform whose answers a test gives one by one, for failures that a rehearsal machine doesn't know.

#pragma once

#include "platform/filebelow.h"

#include <QFile>
#include <QTemporaryDir>

/** A key that holds nothing but the wish for an error log. */
class FakeKey : public RegistryKey
{
public:
    QVariant value(const QString &name, const QVariant &fallback) const override
    {
        return name == QLatin1StringView("LogError") ? QVariant(1) : fallback;
    }
    void setValue(const QString &, const QVariant &) override {}
    void remove(const QString &) override {}
    QVariant ownValue(const QString &) const override { return {}; }
    void setOwnValue(const QString &, const QString &) override {}
    void removeOwnValue(const QString &) override {}
    bool contains(const QString &) const override { return false; }
    QStringList allKeys() const override { return {}; }
    QStringList childKeys() const override { return {}; }
    QStringList childGroups() const override { return {}; }
    void beginGroup(const QString &) override {}
    void endGroup() override {}
};

/** A system where nothing is there and everything may be written down. */
class FakePlatform : public Platform
{
public:
    std::unique_ptr<RegistryKey> openKey(const QString &) const override { return std::make_unique<FakeKey>(); }
    QList<RegistryValue> registryValues(const QString &) const override { return {}; }
    QString hostPath(const QString &windowsPath) const override { return windowsPath; }
    bool isOnFixedDrive(const QString &) const override { return false; }
    QString programFolder() const override { return folder_.path(); }
    QString resourceFolder() const override { return folder_.path(); }
    bool writeFile(const QString &folder, const QString &name, const QByteArray &content,
                   IfThere ifThere) const override
    {
        return writeFileBelow(folder, name, content, ifThere);
    }
    bool appendLine(const QString &folder, const QString &name, const QString &line) const override
    {
        return appendLineBelow(folder, name, line);
    }
    void walk(const QString &, const std::function<bool(const WalkEntry &)> &) const override {}
    quint32 fileAttributes(const QString &) const override { return invalidAttributes; }
    void setFileAttributes(const QString &, quint32) const override {}
    QString programFile(const QString &) const override { return {}; }
    std::optional<AdmittedProgram> admitProgram(const QString &program, const QStringList &) const override
    {
        return AdmittedProgram{program, {}};
    }
    int exitCode(qint64, int reported) const override { return reported; }
    bool isElevated() const override { return true; }
    std::shared_ptr<void> lockOthersOut() const override { return std::make_shared<char>(); }
    void shellExecute(const ShellStart &) const override {}
    QStringList processNames() const override { return {}; }
    DllString dllString(const QString &, uint) const override { return {}; }
    WmiAnswer queryWmi(const QString &, const QStringList &) const override { return {}; }
    std::optional<bool> seekPenalty(const QString &) const override { return {}; }
    std::optional<int> colorSpace() const override { return {}; }
    QSize screenSize() const override { return {0, 0}; }
    ProcessorTimes processorTimes() const override { return {}; }
    QList<quint32> processIds() const override { return {}; }
    int threadCount() const override { return 0; }
    quint64 freeMemory() const override { return 0; }
    RootDrive rootDrive() const override { return {}; }
    void pause(int) const override {}

    /** The lines of log.txt, without date and time. */
    QStringList errorLog() const
    {
        QFile file(folder_.path() + QStringLiteral("/log.txt"));
        if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
            return {};
        QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
        for (QString &line : lines)
            line = line.sliced(line.indexOf(QStringLiteral(": ")) + 2);
        return lines;
    }

private:
    QTemporaryDir folder_;
};

/** Puts a platform in force and takes it away again. */
template<typename Fake>
class PlatformInForce
{
public:
    PlatformInForce()
    {
        auto fake = std::make_unique<Fake>();
        fake_ = fake.get();
        setPlatform(std::move(fake));
    }
    ~PlatformInForce() { setPlatform(nullptr); }
    Q_DISABLE_COPY_MOVE(PlatformInForce)

    Fake *operator->() const { return fake_; }

private:
    Fake *fake_ = nullptr;
};
