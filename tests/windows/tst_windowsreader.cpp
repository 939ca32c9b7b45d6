// SPDX-License-Identifier: GPL-3.0-or-later
// The real registry read as it is, and a capture that leaves it as it is.

#include "nativecontract.h"
#include "platform/windows/windowsplatform.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <windows.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QString testKey = u"HKEY_CURRENT_USER\\Software\\KestruneReaderTest"_s;

/** Each key with the time of its last change, its values and their types. By the system's functions alone. */
class Snapshot
{
public:
    Snapshot()
    {
        take(HKEY_LOCAL_MACHINE, u"HKLM"_s);
        take(HKEY_USERS, u"HKU"_s);
    }

    qsizetype size() const { return keys_.size(); }

    /** Keys that have come, gone or changed since, but for those that the system writes by itself. */
    QStringList changesUntil(const Snapshot &later) const
    {
        // Wine counts the starts of services, and lists network cards when it is first asked for one.
        static const QRegularExpression ofSystem(u"\\\\(ServiceCurrent|NetworkCards(\\\\\\d+)?)$"_s);
        QStringList changed;
        for (auto it = keys_.begin(); it != keys_.end(); ++it) {
            if (later.keys_.value(it.key()) != it.value())
                changed.append(it.key());
        }
        for (auto it = later.keys_.begin(); it != later.keys_.end(); ++it) {
            if (!keys_.contains(it.key()))
                changed.append(it.key());
        }
        changed.removeIf([](const QString &key) { return ofSystem.match(key).hasMatch(); });
        return changed;
    }

private:
    void take(HKEY key, const QString &path)
    {
        FILETIME written{};
        RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                         &written);
        QCryptographicHash hash(QCryptographicHash::Sha256);
        hash.addData(QByteArray::number(qulonglong(written.dwHighDateTime) << 32 | written.dwLowDateTime));
        addValues(key, hash);
        keys_.insert(path, hash.result());

        std::vector<wchar_t> name(1024);
        for (DWORD index = 0;; ++index) {
            auto length = static_cast<DWORD>(name.size());
            if (RegEnumKeyExW(key, index, name.data(), &length, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS)
                return;
            HKEY below = nullptr;
            if (RegOpenKeyExW(key, name.data(), 0, KEY_READ | KEY_WOW64_64KEY, &below) != ERROR_SUCCESS)
                continue;
            take(below, path + u'\\' + QString::fromWCharArray(name.data(), static_cast<qsizetype>(length)));
            RegCloseKey(below);
        }
    }

    static void addValues(HKEY key, QCryptographicHash &hash)
    {
        std::vector<wchar_t> name(16384);
        std::vector<char> data(1024 * 1024);
        for (DWORD index = 0;; ++index) {
            auto length = static_cast<DWORD>(name.size());
            auto size = static_cast<DWORD>(data.size());
            DWORD type = 0;
            if (RegEnumValueW(key, index, name.data(), &length, nullptr, &type, reinterpret_cast<BYTE *>(data.data()),
                              &size)
                != ERROR_SUCCESS)
                return;
            hash.addData(QByteArray::number(type) + '=' + QByteArray::number(size));
            hash.addData(QByteArrayView(reinterpret_cast<const char *>(name.data()), qsizetype(2 * length)));
            hash.addData(QByteArrayView(data.data(), qsizetype(size)));
        }
    }

    QMap<QString, QByteArray> keys_;
};

} // namespace

class TestWindowsReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\KestruneReaderTest"); }

    void valuesHaveTheirTypesAndBytes();
    void subkeysAreListed();
    void absentKeyIsNotMade();
    void servicesHaveStates();
    void captureChangesNoKey();
};

void TestWindowsReader::valuesHaveTheirTypesAndBytes()
{
    const ContractPlatform contract;
    QList<RegistryValue> written{
        {u""_s, RegistryType::String, registryText(u"unnamed"_s)},
        {u"Expanded"_s, RegistryType::ExpandString, registryText(u"%windir%\\é"_s)},
        {u"Texts"_s, RegistryType::MultiString, registryTexts({u"a"_s, u"b c"_s})},
        {u"Number"_s, RegistryType::DWord, registryDWord(0xfedcba98)},
        {u"Wide/number"_s, RegistryType::QWord, registryQWord(1ULL << 40)},
        {u"Bytes"_s, RegistryType::Binary, QByteArray("\0\1\xff", 3)},
        {u"Nothing"_s, RegistryType::None, QByteArray()},
        {u"Unfinished"_s, RegistryType::String, QByteArray("a\0b", 3)},
        {u"Large"_s, RegistryType::Binary, QByteArray(100000, 'x')},
    };
    for (const RegistryValue &value : std::as_const(written))
        contract.writeRaw(testKey, value);
    QList<RegistryValue> read = WindowsReader().key(testKey).values;
    const auto byName = [](const RegistryValue &left, const RegistryValue &right) { return left.name < right.name; };
    std::sort(written.begin(), written.end(), byName);
    std::sort(read.begin(), read.end(), byName);
    QCOMPARE(read.size(), written.size());
    for (qsizetype i = 0; i < read.size(); ++i)
        QVERIFY2(read.at(i) == written.at(i), qPrintable(written.at(i).name));
}

void TestWindowsReader::subkeysAreListed()
{
    const ContractPlatform contract;
    for (const QString &name : {u"b"_s, u"A longer name than the other"_s, u"quoted\""_s})
        contract.writeRaw(testKey + u'\\' + name, {u"x"_s, RegistryType::DWord, registryDWord(1)});
    const KeyContent content = WindowsReader().key(testKey);
    QVERIFY(content.isThere);
    QVERIFY(!content.isRefused);
    QStringList subkeys = content.subkeys;
    subkeys.sort();
    QCOMPARE(subkeys, (QStringList{u"A longer name than the other"_s, u"b"_s, u"quoted\""_s}));
    QVERIFY(content.values.isEmpty());
}

void TestWindowsReader::absentKeyIsNotMade()
{
    const KeyContent content = WindowsReader().key(testKey + u"\\absent"_s);
    QVERIFY(!content.isThere);
    QVERIFY(!content.isRefused);
    QVERIFY(!WindowsReader().key(testKey).isThere);
    QVERIFY(!WindowsReader().key(u"HKEY_NOWHERE\\Software"_s).isThere);
}

void TestWindowsReader::servicesHaveStates()
{
    const auto services = WindowsReader().serviceReports();
    QVERIFY(services);
    const auto isRunning = [](const ServiceReport &service) { return service.running; };
    QVERIFY(std::any_of(services->begin(), services->end(), isRunning));
    QVERIFY(!std::all_of(services->begin(), services->end(), isRunning));
    for (const ServiceReport &service : *services) {
        QVERIFY(!service.name.isEmpty());
        QVERIFY(service.everRan || !service.running);
    }
}

void TestWindowsReader::captureChangesNoKey()
{
    const QTemporaryDir folder;
    const Snapshot before;
    QVERIFY(before.size() > 100);
    QProcess program;
    program.start(QCoreApplication::applicationDirPath() + u"/kestrune-rehearse.exe"_s,
                  {u"capture"_s, folder.filePath(u"pc"_s)});
    QVERIFY(program.waitForFinished(100000));
    QVERIFY2(program.exitCode() == 0, program.readAllStandardError());
    QVERIFY(QFile::exists(folder.filePath(u"pc/machine.sqlite"_s)));
    const QStringList changed = before.changesUntil(Snapshot());
    QVERIFY2(changed.isEmpty(), qPrintable(changed.join(u'\n')));
}

KESTRUNE_SUITE(TestWindowsReader)
#include "tst_windowsreader.moc"
