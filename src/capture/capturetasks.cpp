// SPDX-License-Identifier: GPL-3.0-or-later

#include "capturesteps.h"

#include "console/console.h"
#include "machine/source/toolreport.h"
#include "platform/platform.h"
#include "work/command.h"

#include <QRegularExpression>
#include <QStringDecoder>

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

/** Who made a task and with which words it starts its program may be anything, also a password. */
QString withoutPrivateParts(QString document)
{
    static const QRegularExpression parts(u"[ \\t]*<(Author|Arguments|WorkingDirectory|Data)>.*?</\\1>[ \\t]*\\n?"_s,
                                          QRegularExpression::DotMatchesEverythingOption);
    return document.remove(parts);
}

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
        task.document = withoutPrivateParts(task.document);
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
