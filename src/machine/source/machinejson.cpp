// SPDX-License-Identifier: GPL-3.0-or-later

#include "machinejson.h"

#include "jsonreader.h"
#include "platform/windowsfacts.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Attribute
{
    QLatin1StringView name;
    quint32 bit;
};

// clang-format off
constexpr std::array attributeWords{
    Attribute{"readonly"_L1,    AttributeReadOnly},
    Attribute{"hidden"_L1,      AttributeHidden},
    Attribute{"system"_L1,      AttributeSystem},
    Attribute{"not-indexed"_L1, AttributeNotIndexed},
};
// clang-format on

/** Reads one document, part by part. */
class MachineJsonParser
{
public:
    explicit MachineJsonParser(const QString &fileName)
        : read_(fileName)
    {
    }

    MachineDescription parse(const QByteArray &bytes);

private:
    using Section = void (MachineJsonParser::*)(const QJsonValue &value, const QString &key);
    struct SectionRow
    {
        QLatin1StringView key;
        Section read;
    };
    static const std::array<SectionRow, 12> sections;

    void readFormatVersion(const QJsonValue &value, const QString &key);
    void readName(const QJsonValue &value, const QString &key);
    void readFacts(const QJsonValue &value, const QString &key);
    void readEnvironment(const QJsonValue &value, const QString &key);
    void readRunning(const QJsonValue &value, const QString &key);
    void readProcesses(const QJsonValue &value, const QString &key);
    void readWmi(const QJsonValue &value, const QString &key);
    void readHardware(const QJsonValue &value, const QString &key);
    void readFiles(const QJsonValue &value, const QString &key);
    void readBootOptions(const QJsonValue &value, const QString &key);
    void readDlls(const QJsonValue &value, const QString &key);
    void readFaults(const QJsonValue &value, const QString &key);

    QString windowsPath(const QString &path, const QString &key) const;
    FileDescription file(const QJsonValue &value, const QString &key) const;
    quint32 attributes(const QJsonValue &value, const QString &key, bool folder) const;
    std::optional<ToolFault> fault(const QJsonValue &value, const QString &key) const;

    JsonReader read_;
    MachineDescription result_;
};

// clang-format off
const std::array<MachineJsonParser::SectionRow, 12> MachineJsonParser::sections{{
    {"formatVersion"_L1, &MachineJsonParser::readFormatVersion},
    {"name"_L1,          &MachineJsonParser::readName},
    {"facts"_L1,         &MachineJsonParser::readFacts},
    {"environment"_L1,   &MachineJsonParser::readEnvironment},
    {"running"_L1,       &MachineJsonParser::readRunning},
    {"processes"_L1,     &MachineJsonParser::readProcesses},
    {"wmi"_L1,           &MachineJsonParser::readWmi},
    {"hardware"_L1,      &MachineJsonParser::readHardware},
    {"files"_L1,         &MachineJsonParser::readFiles},
    {"bootOptions"_L1,   &MachineJsonParser::readBootOptions},
    {"dlls"_L1,          &MachineJsonParser::readDlls},
    {"faults"_L1,        &MachineJsonParser::readFaults},
}};
// clang-format on

MachineDescription MachineJsonParser::parse(const QByteArray &bytes)
{
    const QJsonObject document = read_.document(bytes);
    std::array<QLatin1StringView, sections.size()> known;
    for (std::size_t i = 0; i < sections.size(); ++i)
        known[i] = sections[i].key;
    // The version first: a newer file may well have keys that this program doesn't know.
    readFormatVersion(document.value(sections[0].key), sections[0].key);
    read_.checkKeys(document, QString(), known);
    for (const SectionRow &section : sections) {
        if (document.contains(section.key))
            (this->*section.read)(document.value(section.key), section.key);
    }
    return result_;
}

void MachineJsonParser::readFormatVersion(const QJsonValue &value, const QString &key)
{
    if (value.isUndefined())
        read_.fail(key, u"missing"_s);
    if (read_.integer(value, key, 1) > Machine::formatVersion)
        read_.fail(key, u"made for a newer version of this program"_s);
}

void MachineJsonParser::readName(const QJsonValue &value, const QString &key)
{
    result_.name = read_.name(value, key);
    if (result_.name->contains(u'\n'))
        read_.fail(key, u"must be one line"_s);
}

void MachineJsonParser::readFacts(const QJsonValue &value, const QString &key)
{
    result_.facts = read_.names(value, key);
}

void MachineJsonParser::readEnvironment(const QJsonValue &value, const QString &key)
{
    const QJsonObject variables = read_.object(value, key);
    for (auto it = variables.begin(); it != variables.end(); ++it) {
        const QString below = keyBelow(key, it.key());
        if (it.key().isEmpty() || it.key().contains(u'='))
            read_.fail(below, u"not a name of a variable"_s);
        result_.environment.insert(it.key(), read_.text(it.value(), below));
    }
}

void MachineJsonParser::readRunning(const QJsonValue &value, const QString &key)
{
    result_.running = read_.names(value, key);
}

void MachineJsonParser::readProcesses(const QJsonValue &value, const QString &key)
{
    result_.processes = read_.names(value, key);
}

void MachineJsonParser::readWmi(const QJsonValue &value, const QString &key)
{
    const QJsonObject classes = read_.object(value, key);
    for (auto it = classes.begin(); it != classes.end(); ++it) {
        const QString below = keyBelow(key, it.key());
        QList<QJsonObject> instances;
        for (const QJsonValue instance : read_.array(it.value(), below))
            instances.append(read_.object(instance, keyAt(below, instances.size())));
        result_.wmi.insert(it.key(), instances);
    }
}

void MachineJsonParser::readHardware(const QJsonValue &value, const QString &key)
{
    result_.hardware = readHardwareJson(read_, value, key);
}

void MachineJsonParser::readFiles(const QJsonValue &value, const QString &key)
{
    for (const QJsonValue entry : read_.array(value, key))
        result_.files.append(file(entry, keyAt(key, result_.files.size())));
}

void MachineJsonParser::readBootOptions(const QJsonValue &value, const QString &key)
{
    const QJsonObject options = read_.object(value, key);
    for (auto it = options.begin(); it != options.end(); ++it)
        result_.bootOptions.insert(it.key(), read_.text(it.value(), keyBelow(key, it.key())));
}

void MachineJsonParser::readDlls(const QJsonValue &value, const QString &key)
{
    const QJsonObject dlls = read_.object(value, key);
    for (auto dll = dlls.begin(); dll != dlls.end(); ++dll) {
        const QString below = keyBelow(key, dll.key());
        const QJsonObject table = read_.object(dll.value(), below);
        QMap<uint, QString> strings;
        for (auto it = table.begin(); it != table.end(); ++it) {
            bool isNumber = false;
            const uint id = it.key().toUInt(&isNumber);
            if (!isNumber)
                read_.fail(keyBelow(below, it.key()), u"not the number of a string"_s);
            strings.insert(id, read_.text(it.value(), keyBelow(below, it.key())));
        }
        result_.dlls.insert(windowsPath(dll.key(), below), strings);
    }
}

void MachineJsonParser::readFaults(const QJsonValue &value, const QString &key)
{
    const QJsonObject faults = read_.object(value, key);
    for (auto it = faults.begin(); it != faults.end(); ++it)
        result_.faults.insert(it.key(), fault(it.value(), keyBelow(key, it.key())));
}

/** Checks a path: with a drive, and staying on it. */
QString MachineJsonParser::windowsPath(const QString &path, const QString &key) const
{
    const bool hasDrive =
        path.size() > 3 && path.at(0).isLetter() && path.at(1) == u':' && (path.at(2) == u'\\' || path.at(2) == u'/');
    if (!hasDrive)
        read_.fail(key, u"not a path with a drive, such as C:\\Windows\\explorer.exe"_s);
    if (path.contains(QChar(0)))
        read_.fail(key, u"has a zero in it"_s);
    QString clean = path;
    clean.replace(u'/', u'\\');
    for (const QString &part : clean.mid(3).split(u'\\')) {
        if (part == "."_L1 || part == ".."_L1 || part.contains(u':'))
            read_.fail(key, u"the part \"%1\" can't be in a path"_s.arg(part));
    }
    return clean;
}

FileDescription MachineJsonParser::file(const QJsonValue &value, const QString &key) const
{
    static constexpr std::array known{"path"_L1,  "size"_L1,   "text"_L1,  "attributes"_L1,
                                      "owner"_L1, "rights"_L1, "signed"_L1};

    const QJsonObject entry = read_.object(value, key);
    read_.checkKeys(entry, key, known);
    FileDescription file;
    const QString pathKey = keyBelow(key, u"path"_s);
    file.path = windowsPath(read_.text(entry.value("path"_L1), pathKey), pathKey);
    file.folder = file.path.endsWith(u'\\');
    if (file.folder)
        file.path.chop(1);
    if (entry.contains("text"_L1))
        file.content = read_.text(entry.value("text"_L1), keyBelow(key, u"text"_s)).toUtf8();
    if (entry.contains("size"_L1)) {
        const qint64 least = file.content ? file.content->size() : 0;
        file.size = read_.integer(entry.value("size"_L1), keyBelow(key, u"size"_s), least, Machine::largestFile);
    }
    if (file.folder && (file.content || file.size))
        read_.fail(key, u"a folder has neither text nor size"_s);
    if (entry.contains("attributes"_L1))
        file.attributes = attributes(entry.value("attributes"_L1), keyBelow(key, u"attributes"_s), file.folder);
    if (entry.contains("owner"_L1) || entry.contains("rights"_L1)) {
        const auto text = [&](const QString &name) {
            return entry.contains(name) ? read_.text(entry.value(name), keyBelow(key, name)) : QString();
        };
        file.security = FileSecurity{text(u"owner"_s), text(u"rights"_s)};
    }
    if (entry.contains("signed"_L1))
        file.isSigned = read_.boolean(entry.value("signed"_L1), keyBelow(key, u"signed"_s));
    return file;
}

quint32 MachineJsonParser::attributes(const QJsonValue &value, const QString &key, bool folder) const
{
    quint32 word = folder ? AttributeFolder : AttributeArchive;
    qsizetype index = 0;
    for (const QString &name : read_.names(value, key)) {
        const auto row = std::find_if(attributeWords.begin(), attributeWords.end(),
                                      [&name](const Attribute &attribute) { return attribute.name == name; });
        if (row == attributeWords.end())
            read_.fail(keyAt(key, index), u"unknown attribute \"%1\""_s.arg(name));
        word |= row->bit;
        ++index;
    }
    return word;
}

std::optional<ToolFault> MachineJsonParser::fault(const QJsonValue &value, const QString &key) const
{
    static constexpr std::array known{"missing"_L1, "hang"_L1, "exitCode"_L1, "output"_L1, "repeat"_L1};
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();

    const QJsonObject entry = read_.object(value, key);
    read_.checkKeys(entry, key, known);
    if (entry.isEmpty())
        return std::nullopt;
    ToolFault fault;
    for (auto it = entry.begin(); it != entry.end(); ++it) {
        const QString below = keyBelow(key, it.key());
        if (it.key() == "missing"_L1)
            fault.missing = read_.boolean(it.value(), below);
        else if (it.key() == "hang"_L1)
            fault.hang = read_.boolean(it.value(), below);
        else if (it.key() == "exitCode"_L1)
            fault.exitCode = static_cast<int>(read_.integer(it.value(), below, least, most));
        else if (it.key() == "output"_L1)
            fault.output = read_.text(it.value(), below);
        else
            fault.repeat = static_cast<int>(read_.integer(it.value(), below, 1, most));
    }
    if (fault.output.value_or(QString()).toUtf8().size() * fault.repeat > ToolFault::mostPrinted)
        read_.fail(key, u"prints more than 256 MB"_s);
    return fault;
}

} // namespace

MachineDescription parseMachineJson(const QByteArray &bytes, const QString &fileName)
{
    return MachineJsonParser(fileName).parse(bytes);
}
