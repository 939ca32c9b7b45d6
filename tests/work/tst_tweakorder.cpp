// SPDX-License-Identifier: GPL-3.0-or-later
// In which order the tweaks write their values: a run that is broken off leaves the first of them.

#include "platform/forwardingplatform.h"
#include "support/suite.h"
#include "support/testmachine.h"
#include "support/tweakrows.h"
#include "work/workthread.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/** A key that notes each write. */
class WatchedKey final : public RegistryKey
{
public:
    WatchedKey(std::unique_ptr<RegistryKey> inner, const QString &path, QStringList &writes)
        : inner_(std::move(inner))
        , path_(path)
        , writes_(writes)
    {
    }

    void setValue(const QString &name, const QVariant &value) override
    {
        writes_.append(path_ + u'|' + name + u'|' + value.toString());
        inner_->setValue(name, value);
    }
    void remove(const QString &name) override
    {
        writes_.append(path_ + u'|' + name + u"|removed"_s);
        inner_->remove(name);
    }
    void setOwnValue(const QString &name, const QString &text) override { inner_->setOwnValue(name, text); }
    void removeOwnValue(const QString &name) override { inner_->removeOwnValue(name); }
    QVariant value(const QString &name, const QVariant &fallback) const override
    {
        return inner_->value(name, fallback);
    }
    QVariant ownValue(const QString &name) const override { return inner_->ownValue(name); }
    bool contains(const QString &name) const override { return inner_->contains(name); }
    QStringList allKeys() const override { return inner_->allKeys(); }
    QStringList childKeys() const override { return inner_->childKeys(); }
    QStringList childGroups() const override { return inner_->childGroups(); }
    void beginGroup(const QString &name) override { inner_->beginGroup(name); }
    void endGroup() override { inner_->endGroup(); }

private:
    std::unique_ptr<RegistryKey> inner_;
    QString path_;
    QStringList &writes_;
};

class WatchedPlatform final : public ForwardingPlatform
{
public:
    WatchedPlatform(std::unique_ptr<Platform> inner, QStringList &writes)
        : ForwardingPlatform(std::move(inner))
        , writes_(writes)
    {
    }
    std::unique_ptr<RegistryKey> openKey(const QString &path) const override
    {
        return std::make_unique<WatchedKey>(ForwardingPlatform::openKey(path), path, writes_);
    }

private:
    QStringList &writes_;
};

/** The plain values of a box in the order of the rows. */
QStringList expectedWrites(const QString &box, bool apply)
{
    QStringList writes;
    for (const TweakRow &row : tweakRows()) {
        const std::optional<QVariant> &value = apply ? row.applied : row.reset;
        if (row.box == box && value)
            writes.append(row.key + u'|' + row.name + u'|' + (value->isValid() ? value->toString() : u"removed"_s));
    }
    return writes;
}

} // namespace

class TestTweakOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesAreWrittenInTheirOrder_data();
    void valuesAreWrittenInTheirOrder();
};

void TestTweakOrder::valuesAreWrittenInTheirOrder_data()
{
    addColumns<QString, bool>("box", "apply");
    QStringList boxes;
    for (const TweakRow &row : tweakRows()) {
        if (!boxes.contains(row.box))
            boxes.append(row.box);
    }
    for (const QString &box : boxes) {
        QTest::newRow(qPrintable(u"apply "_s + box)) << box << true;
        QTest::newRow(qPrintable(u"reset "_s + box)) << box << false;
    }
}

void TestTweakOrder::valuesAreWrittenInTheirOrder()
{
    QFETCH(const QString, box);
    QFETCH(const bool, apply);
    QStringList writes;
    const TestMachine machine;
    setPlatform(nullptr); // one machine's platform at a time
    setPlatform(std::make_unique<WatchedPlatform>(std::make_unique<MachinePlatform>(machine.folder(), MachineOptions()),
                                                  writes));
    WorkThread worker;
    worker.winName = u"Windows 11 Home"_s;
    const auto run = [&](const QString &group, void (WorkThread::*tweak)(quint8, quint32)) {
        if (box.startsWith(group))
            (worker.*tweak)(apply ? 1 : 0, box.mid(group.size()).toUInt());
    };
    run(u"chkSsd"_s, &WorkThread::TweakSSD);
    run(u"chkGaming"_s, &WorkThread::TweakGaming);
    run(u"chkWindows"_s, &WorkThread::TweakWindows);
    QCOMPARE(writes, expectedWrites(box, apply));
}

KESTRUNE_SUITE(TestTweakOrder)
#include "tst_tweakorder.moc"
