// SPDX-License-Identifier: GPL-3.0-or-later
// What "sc query state= all" prints.

#include "toolreport.h"

#include "machine/machineerror.h"

#include <QRegularExpression>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

// The labels are translated on PCs in other languages; the numbers and the words of states aren't.
const QRegularExpression &stateLine()
{
    static const QRegularExpression expression(
        u"^\\s+\\S.*:\\s+([1-7])\\s+(?:STOPPED|(?:START|STOP|CONTINUE|PAUSE)_PENDING|RUNNING|PAUSED)\\b"_s);
    return expression;
}

/** "        TYPE               : 20  WIN32_SHARE_PROCESS  ", a hexadecimal number */
const QRegularExpression &typeLine()
{
    static const QRegularExpression expression(u"^\\s+\\S[^:]*:\\s+([0-9a-f]{1,4})\\s+[A-Z]"_s);
    return expression;
}

/** "        WIN32_EXIT_CODE    : 1077  (0x435)" */
const QRegularExpression &exitCodeLine()
{
    static const QRegularExpression expression(u"^\\s+\\S.*:\\s+(\\d+)\\s+\\(0x"_s);
    return expression;
}

constexpr int stateStopped = 1;
constexpr int stateStopPending = 3;
constexpr int neverStarted = 1077;

/** Goes through the lines; a record begins with an unindented "LABEL: name" after an empty line. */
class ReportParser
{
public:
    explicit ReportParser(const QString &fileName)
        : fileName_(fileName)
    {
    }

    void take(const QString &line)
    {
        ++line_;
        const bool blank = line.trimmed().isEmpty();
        if (!blank && !line.at(0).isSpace() && afterBlank_)
            beginRecord(line);
        else if (!blank && !line.at(0).isSpace() && record_ && record_->displayName.isEmpty())
            record_->displayName = valueOf(line);
        else if (const auto state = stateLine().match(line); record_ && !hasState_ && state.hasMatch())
            takeState(state.capturedView(1).toInt());
        else if (const auto type = typeLine().match(line); record_ && !hasState_ && type.hasMatch())
            record_->type = type.capturedView(1).toUInt(nullptr, 16);
        else if (const auto code = exitCodeLine().match(line); hasState_ && !hasExitCode_ && code.hasMatch())
            takeExitCode(code.capturedView(1).toInt());
        afterBlank_ = blank;
    }

    QList<ServiceReport> finish()
    {
        endRecord();
        return reports_;
    }

private:
    /** What stands after the label, which has no colon. */
    static QString valueOf(const QString &line) { return line.section(u": "_s, 1).trimmed(); }

    void beginRecord(const QString &line)
    {
        endRecord();
        if (!line.contains(": "_L1))
            return;
        record_ = ServiceReport{valueOf(line)};
        recordLine_ = line_;
        if (record_->name.isEmpty())
            throw MachineError{u"%1:%2: a service without a name"_s.arg(fileName_).arg(line_)};
    }

    void takeState(int state)
    {
        hasState_ = true;
        record_->running = state != stateStopped && state != stateStopPending;
    }

    void takeExitCode(int code)
    {
        hasExitCode_ = true;
        record_->everRan = record_->running || code != neverStarted;
    }

    void endRecord()
    {
        if (record_ && !hasState_)
            throw MachineError{
                u"%1:%2: the service \"%3\" has no state"_s.arg(fileName_).arg(recordLine_).arg(record_->name)};
        if (record_)
            reports_.append(*record_);
        record_.reset();
        hasState_ = false;
        hasExitCode_ = false;
    }

    QString fileName_;
    QList<ServiceReport> reports_;
    std::optional<ServiceReport> record_;
    int line_ = 0;
    int recordLine_ = 0;
    bool afterBlank_ = true;
    bool hasState_ = false;
    bool hasExitCode_ = false;
};

} // namespace

bool isServiceReport(const QString &text)
{
    // Line by line, as it is read: over blank lines the expression would look ahead from each to the last.
    for (const QStringView line : qTokenize(text, u'\n')) {
        if (stateLine().match(line.toString()).hasMatch())
            return true;
    }
    return false;
}

QList<ServiceReport> parseServiceReport(const QString &text, const QString &fileName)
{
    ReportParser parser(fileName);
    for (QString line : text.split(u'\n')) {
        while (line.endsWith(u'\r'))
            line.chop(1);
        parser.take(line);
    }
    return parser.finish();
}
