// SPDX-License-Identifier: GPL-3.0-or-later
// What tools print, machines are described by and the program's host answers, in both readers where there are two.

#include "fuzztarget.h"
#include "machine/source/machinesource.h"
#include "platform/taskdocument.h"
#include "window/webhost.h"
#include "work/services/services.h"
#include "work/tasks/tasks.h"
#include "work/wmi.h"

#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

bool isWellFormed(const QString &document)
{
    QXmlStreamReader reader(document);
    while (!reader.atEnd())
        reader.readNext();
    return !reader.hasError();
}

/** Calls a reader; what it throws names the input. */
template<typename Read>
void readOrRefuse(Read read)
{
    try {
        read();
    } catch (const MachineError &error) {
        FUZZ_VERIFY(error.message.startsWith("input:"_L1));
    }
}

} // namespace

FUZZ_TARGET(servicereport)
{
    const QString text = QString::fromUtf8(input);
    readOrRefuse([&] {
        const bool isReport = isServiceReport(text);
        const QList<ServiceReport> services = parseServiceReport(text, u"input"_s);
        FUZZ_VERIFY(services.isEmpty() || isReport);
        for (const ServiceReport &service : services)
            FUZZ_VERIFY(!service.name.isEmpty() && !service.name.contains(u'\n'));
    });
    for (const QString &name : runningServices(text))
        FUZZ_VERIFY(text.contains(name) && !name.contains("SERVICE_NAME: "_L1));
}

FUZZ_TARGET(taskexport)
{
    readOrRefuse([&] {
        for (const ScheduledTask &task : parseTaskExport(input, u"input"_s)) {
            FUZZ_VERIFY(task.path.startsWith(u'\\'));
            FUZZ_VERIFY(isWellFormed(task.document));
        }
    });
    tasksOf(QString::fromUtf8(input));
}

/** Switched off and on again a document is well-formed, and says what was asked for. */
FUZZ_TARGET(taskswitch)
{
    const QString document = QString::fromUtf8(input);
    const TaskExtent extent = taskExtent(document);
    taskFacts(document);
    const QString off = withTaskEnabled(document, false);
    const QString on = withTaskEnabled(off, true);
    if (!extent.problem.isEmpty() || !isWellFormed(document)) {
        FUZZ_VERIFY(isWellFormed(document) || off == document);
        return;
    }
    FUZZ_VERIFY(extent.end >= 0);
    FUZZ_VERIFY(isWellFormed(off));
    FUZZ_VERIFY(isWellFormed(on));
    FUZZ_VERIFY(taskFacts(on).enabled);
}

FUZZ_TARGET(machinejson)
{
    readOrRefuse([&] {
        for (const FileDescription &file : parseMachineJson(input, u"input"_s).files) {
            FUZZ_VERIFY(!file.path.contains(QChar(0)));
            FUZZ_VERIFY(file.size.value_or(0) >= 0 && file.size.value_or(0) <= Machine::largestFile);
        }
    });
}

FUZZ_TARGET(wmifields)
{
    const QString answer = QString::fromUtf8(input);
    for (const QString &property : {u"Caption"_s, u"DriverDate"_s, answer.left(3)}) {
        wmiField(answer, property, FieldEnd::Line);
        wmiField(answer, property, FieldEnd::Text);
    }
    const QString date = wmiDate(answer);
    FUZZ_VERIFY(date == answer || date.count(u'/') == 2);
}

/** Of an answer no more is shown than fits on a screen, and no character of it is cut in two. */
FUZZ_TARGET(updateanswer)
{
    const QString present = u"0.3.14"_s;
    const std::optional<QString> shown = otherVersion(input, present);
    FUZZ_VERIFY(!otherVersion(present.toUtf8(), present));
    // As much as libFuzzer gives, and more than it does
    for (const QByteArray &answer : {input, input.repeated(5000 / std::max<qsizetype>(input.size(), 1) + 1)}) {
        const std::optional<QString> each = otherVersion(answer, present);
        FUZZ_VERIFY(!each || (each->size() <= 4096 && each->isValidUtf16()));
    }
    FUZZ_VERIFY(!otherVersion(input.leftJustified(longestAnswer + 1), present));
    FUZZ_VERIFY(shown || QString::fromUtf8(input) == present || input.size() > longestAnswer);
}
