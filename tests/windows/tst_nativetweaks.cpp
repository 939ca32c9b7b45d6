// SPDX-License-Identifier: GPL-3.0-or-later
// The values of the tweaks, written to the real registry: every row, below a key of the tests.

#include "nativecontract.h"
#include "support/suite.h"

#include "work/tweaks/tweakvalues.h"

#include <QTest>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QString testsKey = u"HKEY_CURRENT_USER\\Software\\KestruneTest"_s;

/** Rows whose keys lie below the key of the tests, with the texts that they refer to. */
struct MovedRows
{
    std::vector<QByteArray> keys;
    std::vector<TweakValue> rows;

    explicit MovedRows(std::span<const TweakValue> original)
    {
        keys.reserve(original.size()); // the rows refer to them
        for (const TweakValue &row : original) {
            keys.push_back((testsKey + u"\\Tweaks\\"_s + row.key).toLatin1());
            TweakValue moved = row;
            moved.key = QLatin1StringView(keys.back());
            rows.push_back(moved);
        }
    }
};

/** What a form leaves of each value: keys and names are one whatever their case, and the last row counts. */
QMap<QString, const TweakValue *> lastRows(const MovedRows &moved, bool apply)
{
    QMap<QString, const TweakValue *> last;
    for (const TweakValue &row : moved.rows) {
        if (!std::holds_alternative<NotTouched>(apply ? row.apply : row.reset))
            last.insert((QString(row.key) + u'|' + row.name).toUpper(), &row);
    }
    return last;
}

std::optional<RegistryValue> expectedValue(const TweakValue &row, bool apply)
{
    const TweakData &data = apply ? row.apply : row.reset;
    if (const int *number = std::get_if<int>(&data))
        return RegistryValue{row.name, RegistryType::DWord, registryDWord(static_cast<quint32>(*number))};
    if (const auto *text = std::get_if<QLatin1StringView>(&data))
        return RegistryValue{row.name, RegistryType::String, registryText(*text)};
    return std::nullopt;
}

} // namespace

class TestNativeTweaks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { platform().openKey(testsKey)->remove(u"Tweaks"_s); }
    void cleanup() { platform().openKey(testsKey)->remove(u"Tweaks"_s); }

    void everyRowIsWritten_data();
    void everyRowIsWritten();

private:
    ContractPlatform contract_;
};

void TestNativeTweaks::everyRowIsWritten_data()
{
    addColumns<int, bool>("group", "apply");
    for (int group = 0; group < 4; ++group) {
        for (const bool apply : {true, false})
            QTest::addRow("table %d %s", group, apply ? "applied" : "reset") << group << apply;
    }
}

void TestNativeTweaks::everyRowIsWritten()
{
    QFETCH(const int, group);
    QFETCH(const bool, apply);
    const std::span<const TweakValue> tables[] = {ssdValues(), gamingValues(), windowsValues(), telemetryValues()};
    const MovedRows moved(tables[group]);
    for (const TweakValue &row : moved.rows)
        contract_.writeRaw(row.key, {row.name, RegistryType::String, registryText(u"before"_s)});
    for (quint32 id = 1; id <= 14; ++id)
        writeTweakValues(moved.rows, id, apply);
    for (const TweakValue *row : lastRows(moved, apply))
        QCOMPARE(contract_.readRaw(row->key, row->name), expectedValue(*row, apply));
}

KESTRUNE_SUITE(TestNativeTweaks)
#include "tst_nativetweaks.moc"
