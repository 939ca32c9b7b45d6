// SPDX-License-Identifier: GPL-3.0-or-later

#include "capturesteps.h"

#include "console/console.h"
#include "machine/source/toolreport.h"
#include "platform/platform.h"
#include "work/command.h"

#include <QRegularExpression>
#include <QStringDecoder>
#include <QXmlStreamReader>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

/** What a tool printed; nothing where it failed, which is reported then. */
std::optional<QByteArray> outputOf(const QString &program, const QStringList &arguments, const QString &what,
                                   QList<NotRead> &notRead)
{
    Command command;
    command.start(program, arguments);
    if (command.failedToStart()) {
        notRead.append({what, u"%1 can't be started"_s.arg(program)});
        return std::nullopt;
    }
    command.waitForFinished();
    const QByteArray output = command.readAllStandardOutput();
    command.close(); // reads as a failure where it still ran
    if (const int code = command.exitCode(); code != 0) {
        notRead.append({what, u"%1 ended with code %2"_s.arg(program).arg(code)});
        return std::nullopt;
    }
    return output;
}

QString decoded(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringConverter::encodingForData(bytes).value_or(QStringConverter::Utf8));
    const QString text = decoder(bytes);
    return decoder.hasError() ? consoleText(bytes) : text;
}

/** What is kept of the text of a task's field. */
enum class Kept {
    Fields, ///< the fields in it that are kept
    All,
    Switch, ///< "true" or "false"
    Level,  ///< of rights
    System, ///< one of the system's own accounts
};

struct TaskField
{
    QLatin1StringView path; ///< of names, each without what tells triggers apart
    Kept kept;
};

// clang-format off
constexpr TaskField taskFields[] = {
    {"Task"_L1,                              Kept::Fields},
    {"Task/RegistrationInfo"_L1,             Kept::Fields},
    {"Task/RegistrationInfo/URI"_L1,         Kept::All},
    {"Task/RegistrationInfo/Description"_L1, Kept::All},
    {"Task/Triggers"_L1,                     Kept::Fields},
    {"Task/Triggers/Trigger"_L1,             Kept::Fields},
    {"Task/Triggers/Trigger/Enabled"_L1,     Kept::Switch},
    {"Task/Principals"_L1,                   Kept::Fields},
    {"Task/Principals/Principal"_L1,         Kept::Fields},
    {"Task/Principals/Principal/UserId"_L1,  Kept::System},
    {"Task/Principals/Principal/RunLevel"_L1, Kept::Level},
    {"Task/Settings"_L1,                     Kept::Fields},
    {"Task/Settings/Enabled"_L1,             Kept::Switch},
};
constexpr QLatin1StringView triggers[] = {
    "BootTrigger"_L1, "CalendarTrigger"_L1, "EventTrigger"_L1, "IdleTrigger"_L1, "LogonTrigger"_L1,
    "RegistrationTrigger"_L1, "SessionStateChangeTrigger"_L1, "TimeTrigger"_L1, "WnfStateChangeTrigger"_L1,
};
// clang-format on

bool isKept(Kept kept, const QString &text)
{
    static const QStringList switches{u"true"_s, u"false"_s, u"1"_s, u"0"_s};
    static const QStringList levels{u"HighestAvailable"_s, u"LeastPrivilege"_s};
    static const QStringList systems{u"S-1-5-18"_s,
                                     u"S-1-5-19"_s,
                                     u"S-1-5-20"_s,
                                     u"SYSTEM"_s,
                                     u"LOCAL SERVICE"_s,
                                     u"NETWORK SERVICE"_s,
                                     u"NT AUTHORITY\\SYSTEM"_s};

    switch (kept) {
    case Kept::Switch:
        return switches.contains(text);
    case Kept::Level:
        return levels.contains(text);
    case Kept::System:
        return systems.contains(text, Qt::CaseInsensitive);
    default:
        return true;
    }
}

/** Writes a task's document anew, with the fields that are kept and nothing else, not even their attributes. */
class TaskWriter
{
public:
    explicit TaskWriter(const QString &document)
        : document_(document)
        , reader_(document)
    {
    }

    QString kept()
    {
        if (reader_.readNextStartElement())
            takeElement(QString(), QString());
        return result_.trimmed();
    }

private:
    void takeElement(const QString &above, const QString &indentation)
    {
        const QString name = reader_.name().toString();
        const bool isTrigger = std::find(std::begin(triggers), std::end(triggers), name) != std::end(triggers);
        const QString path = above + (isTrigger ? u"Trigger"_s : name);
        const auto *field = std::find_if(std::begin(taskFields), std::end(taskFields),
                                         [&](const TaskField &each) { return each.path == path; });
        if (field == std::end(taskFields))
            reader_.skipCurrentElement();
        else if (field->kept == Kept::Fields)
            takeFields(name, path, indentation);
        else
            takeText(name, field->kept, indentation);
    }

    void takeFields(const QString &name, const QString &path, const QString &indentation)
    {
        const QString tag = name + (indentation.isEmpty() ? attributesOfTask() : QString());
        result_ += u"%1<%2>\n"_s.arg(indentation, tag);
        while (reader_.readNextStartElement())
            takeElement(path + u'/', indentation + u"  "_s);
        result_ += u"%1</%2>\n"_s.arg(indentation, name);
    }

    /** As it is written in the document, since the jobs read it so. */
    void takeText(const QString &name, Kept kept, const QString &indentation)
    {
        const auto start = static_cast<qsizetype>(reader_.characterOffset());
        const QString text = reader_.readElementText(QXmlStreamReader::IncludeChildElements);
        const qsizetype end = document_.lastIndexOf("</"_L1, static_cast<qsizetype>(reader_.characterOffset()) - 1);
        QString written = document_.sliced(start, std::max(end - start, qsizetype(0)));
        // A name could be written so that nobody finds it.
        if (written.contains(u'<') || written.contains("&#"_L1))
            written = text.toHtmlEscaped();
        if (isKept(kept, text.trimmed()))
            result_ += u"%1<%2>"_s.arg(indentation, name) + written + u"</%1>\n"_s.arg(name);
    }

    QString attributesOfTask() const
    {
        static const QRegularExpression number(u"^\\d+\\.\\d+$"_s);
        const QString space = u"http://schemas.microsoft.com/windows/2004/02/mit/task"_s;

        const QString version = reader_.attributes().value("version"_L1).toString();
        return (number.match(version).hasMatch() ? u" version=\"%1\""_s.arg(version) : QString())
               + (reader_.namespaceUri() == space ? u" xmlns=\"%1\""_s.arg(space) : QString());
    }

    const QString &document_;
    QXmlStreamReader reader_;
    QString result_;
};

} // namespace

QList<ScheduledTask> captureTasks(QList<NotRead> &notRead)
{
    const QString what = u"scheduled tasks"_s;
    const auto output = outputOf(u"schtasks"_s, {u"/query"_s, u"/xml"_s}, what, notRead);
    if (!output)
        return {};
    QList<ScheduledTask> tasks;
    try {
        tasks = parseTaskExport(decoded(*output).toUtf8(), u"schtasks"_s);
    } catch (const MachineError &error) {
        notRead.append({what, output->trimmed().isEmpty() ? u"schtasks printed none"_s : error.message});
    }
    for (ScheduledTask &task : tasks)
        task.document = TaskWriter(task.document).kept();
    return tasks;
}

QMap<QString, QString> captureBootOptions(QList<NotRead> &notRead)
{
    // The names aren't translated on PCs in other languages.
    static const QRegularExpression line(u"^(useplatformclock|disabledynamictick)[ \\t]+(\\S+)"_s,
                                         QRegularExpression::MultilineOption);

    const QString what = u"boot options"_s;
    if (!platform().isElevated()) {
        notRead.append({what, u"they need administrator rights"_s});
        return {};
    }
    QMap<QString, QString> options;
    const auto output = outputOf(u"bcdedit"_s, {u"/enum"_s, u"{current}"_s}, what, notRead);
    const QString text = decoded(output.value_or(QByteArray()));
    for (auto matches = line.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        options.insert(match.captured(1), match.captured(2));
    }
    return options;
}
