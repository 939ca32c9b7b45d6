// SPDX-License-Identifier: GPL-3.0-or-later
// Looks through a finished machine for names that were replaced.

#include "capture.h"

#include "console/printable.h"
#include "machine/database.h"
#include "machine/machine.h"
#include "neutralnames.h"

#include <QDirIterator>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

enum class Label { Text, Key, ValueOfKey };

struct TableRow
{
    QLatin1StringView what;
    Label label;       ///< what the first column is: a text that names the row, or the number of a key
    int columns;       ///< that are searched, after the first one
    const char *query; ///< gives the column that names the row, and those that are searched
};

// clang-format off
/** All tables with texts. The second column of a value is its name. */
constexpr TableRow tableRows[] = {
    {"machine's own"_L1,  Label::Text,       2, "SELECT name, name, value FROM meta"},
    {"registry key"_L1,   Label::Key,        2, "SELECT id, name, fold FROM key"},
    {"registry value"_L1, Label::ValueOfKey, 3, "SELECT key, name, fold, data FROM value"},
    {"variable"_L1,       Label::Text,       2, "SELECT name, name, value FROM environment"},
    {"state of service"_L1, Label::Text,     2, "SELECT service, service, fold FROM runstate"},
    {"process"_L1,        Label::Text,       1, "SELECT name, name FROM process"},
    {"scheduled task"_L1, Label::Text,       3, "SELECT path, path, fold, document FROM task"},
    {"DLL"_L1,            Label::Text,       1, "SELECT fold, fold FROM dll"},
    {"string of DLL"_L1,  Label::Text,       2, "SELECT fold, fold, text FROM dllstring"},
    {"WMI class"_L1,      Label::Text,       2, "SELECT name, name, fold FROM wmiclass"},
    {"WMI class"_L1,      Label::Text,       2, "SELECT fold, fold, properties FROM wmi"},
    {"attributes of"_L1,  Label::Text,       2, "SELECT path, path, fold FROM attribute"},
    {"boot option"_L1,    Label::Text,       2, "SELECT name, name, value FROM bootoption"},
    {"rights to"_L1,      Label::Text,       4, "SELECT path, path, fold, owner, rights FROM filesecurity"},
    {"fault of"_L1,       Label::Text,       2, "SELECT fold, fold, output FROM fault"},
};
// clang-format on

constexpr int stepSize = 500; // rows

class Search
{
public:
    Search(Machine &machine, const QStringList &names, const std::function<void()> &goOn)
        : machine_(machine)
        , names_(names)
        , goOn_(goOn)
        , inBytes_(namesInBytes(names, TextForm::Bytes))
        , inUtf16_(namesInBytes(names, TextForm::Utf16))
    {
    }

    QStringList found()
    {
        for (const TableRow &table : tableRows)
            searchTable(table);
        searchFiles();
        found_.removeDuplicates();
        return found_;
    }

private:
    void searchTable(const TableRow &table)
    {
        auto row = machine_.database().query(table.query);
        while (row.next()) {
            goOn();
            QByteArray texts;
            for (int column = 1; column <= table.columns; ++column)
                texts += row.bytes(column) + '\n';
            if (mayHold(texts))
                note(texts, QString(table.what) + u' ' + placeOf(table.label, row));
        }
    }

    QString placeOf(Label label, const Database::Query &row) const
    {
        if (label == Label::Text)
            return row.text(0);
        const QString path = machine_.registry().path(row.integer(0));
        return label == Label::Key ? path : path + u" | "_s + row.text(1);
    }

    void searchFiles()
    {
        constexpr auto everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

        QStringList paths;
        QDirIterator files(machine_.folder(), everything, QDirIterator::Subdirectories);
        while (files.hasNext())
            paths.append(files.next().sliced(machine_.folder().size() + 1));
        paths.sort();
        for (const QString &path : std::as_const(paths)) {
            goOn();
            // Below a folder that is named already the names go on.
            if (mayHold(path.toUtf8()) && !mayHold(QFileInfo(path).path().toUtf8()))
                note(path.toUtf8(), u"name of the file "_s + path);
            const QFileInfo file(machine_.folder() + u'/' + path);
            if (file.isFile() && !path.startsWith("machine.sqlite"_L1)) // whose tables are searched
                searchFile(file.filePath(), u"file "_s + path);
        }
    }

    /** What a machine's file holds stands at its start. */
    void searchFile(const QString &path, const QString &place)
    {
        constexpr qint64 most = qint64{1024} * 1024;
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return;
        const QByteArray content = file.read(most);
        if (content.count('\0') < content.size() && mayHold(content))
            note(content, place);
    }

    bool mayHold(const QByteArray &bytes) const
    {
        const QString text = QString::fromLatin1(bytes);
        return inBytes_.match(text).hasMatch() || inUtf16_.match(text).hasMatch();
    }

    void note(const QByteArray &bytes, const QString &place)
    {
        const QString text = QString::fromLatin1(bytes);
        for (const QString &name : names_) {
            if (namesInBytes({name}, TextForm::Bytes).match(text).hasMatch()
                || namesInBytes({name}, TextForm::Utf16).match(text).hasMatch())
                found_.append(name + u": "_s + place);
        }
    }

    void goOn()
    {
        if (goOn_ && ++steps_ % stepSize == 0)
            goOn_();
    }

    Machine &machine_;
    const QStringList &names_;
    const std::function<void()> &goOn_;
    QRegularExpression inBytes_;
    QRegularExpression inUtf16_;
    QStringList found_;
    int steps_ = 0;
};

} // namespace

QStringList findNames(Machine &machine, const QStringList &names, const std::function<void()> &goOn)
{
    return Search(machine, names, goOn).found();
}

QString leftNamesText(const QStringList &left)
{
    constexpr qsizetype most = 50; // places; what is left is often left alike

    if (left.isEmpty())
        return u"searched for the names that were replaced: none is left\n"_s;
    QString text = u"names that are left, as parts of other words for the most part:\n"_s;
    for (const QString &place : left.first(std::min(left.size(), most)))
        text += u"  "_s + printable(place) + u'\n';
    if (left.size() > most)
        text += u"  and in %1 more places\n"_s.arg(left.size() - most);
    return text;
}
