// SPDX-License-Identifier: GPL-3.0-or-later

#include "toolreport.h"

#include "console/console.h"
#include "platform/taskdocument.h"

#include <QFileInfo>
#include <QStringDecoder>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

/** Goes through the text from one document to the next. */
class ExportParser
{
public:
    ExportParser(const QString &text, const QString &fileName)
        : text_(text)
        , fileName_(fileName)
    {
    }

    QList<ScheduledTask> parse()
    {
        for (skipBlanks(); place_ < text_.size(); skipBlanks()) {
            if (follows("<!--"_L1))
                takeComment();
            else if (follows("<?"_L1))
                skipBehind("?>"_L1, u"the declaration doesn't end"_s);
            else if (follows("<Tasks>"_L1) || follows("</Tasks>"_L1) || follows("<Tasks "_L1))
                skipBehind(">"_L1, u"the tag doesn't end"_s);
            else if (follows("<Task>"_L1) || follows("<Task "_L1) || follows("<Task\n"_L1))
                takeTask();
            else
                fail(place_, u"neither a task nor a comment"_s);
        }
        if (tasks_.isEmpty())
            fail(0, u"no task in it"_s);
        return tasks_;
    }

private:
    bool follows(QLatin1StringView part) const { return QStringView(text_).sliced(place_).startsWith(part); }

    void skipBlanks()
    {
        while (place_ < text_.size() && text_.at(place_).isSpace())
            ++place_;
    }

    qsizetype skipBehind(QLatin1StringView end, const QString &problem)
    {
        const qsizetype found = text_.indexOf(end, place_);
        if (found < 0)
            fail(place_, problem);
        place_ = found + end.size();
        return found;
    }

    void takeComment()
    {
        const qsizetype start = place_ + 4;
        const qsizetype end = skipBehind("-->"_L1, u"the comment doesn't end"_s);
        const QString comment = text_.sliced(start, std::max(end - start, qsizetype(0))).trimmed();
        if (comment.startsWith(u'\\'))
            path_ = comment;
    }

    void takeTask()
    {
        const qsizetype start = place_;
        const QString document = cutDocument();
        ScheduledTask task{path_.isEmpty() ? taskFacts(document).uri : path_, document};
        if (task.path.isEmpty())
            fail(start, u"the task has neither a comment with its path nor a URI"_s);
        if (!task.path.startsWith(u'\\'))
            task.path.prepend(u'\\');
        tasks_.append(task);
        path_.clear();
    }

    QString cutDocument()
    {
        const qsizetype start = place_;
        const TaskExtent extent = taskExtent(QStringView(text_).sliced(start));
        if (!extent.problem.isEmpty())
            fail(start + extent.end, extent.problem);
        place_ = extent.end < 0 ? text_.size() : start + extent.end;
        const QString document = text_.sliced(start, place_ - start);
        QXmlStreamReader reader(document);
        while (!reader.atEnd())
            reader.readNext();
        if (reader.error() == QXmlStreamReader::PrematureEndOfDocumentError)
            fail(start, u"the task doesn't end"_s);
        if (reader.hasError())
            fail(start + static_cast<qsizetype>(reader.characterOffset()) - 1, reader.errorString());
        return document;
    }

    [[noreturn]] void fail(qsizetype place, const QString &reason) const
    {
        const qsizetype line = QStringView(text_).first(std::min(place, text_.size())).count(u'\n') + 1;
        throw MachineError{u"%1:%2: %3"_s.arg(fileName_).arg(line).arg(reason)};
    }

    QString text_;
    QString fileName_;
    qsizetype place_ = 0;
    QString path_; ///< of the next document, by the comment before it
    QList<ScheduledTask> tasks_;
};

/** Lines ended by LF alone, also where a text mode has doubled the CR. */
QString withPlainLines(QString text)
{
    text.remove(u'\r');
    return text;
}

} // namespace

ToolText readToolText(const QByteArray &bytes, uint codePage)
{
    const std::optional<QStringConverter::Encoding> marked = QStringConverter::encodingForData(bytes);
    if (codePage != 0 && !marked) {
        const std::optional<QString> text = textOfCodePage(bytes, codePage);
        if (!text)
            throw MachineError{u"there is no code page %1 here"_s.arg(codePage)};
        return {*text};
    }
    QStringDecoder decoder(marked.value_or(QStringConverter::Utf8));
    const QString text = decoder(bytes);
    return decoder.hasError() ? ToolText{fromConsoleBytes(bytes), true} : ToolText{text};
}

bool isTaskExport(const QString &fileName, const QByteArray &bytes)
{
    if (fileName.endsWith(".xml"_L1, Qt::CaseInsensitive))
        return true;
    constexpr qsizetype enough = 4096;
    const QString start = readToolText(bytes.first(std::min(bytes.size(), enough))).text.trimmed();
    return start.startsWith("<!-- \\"_L1) || start.startsWith("<Task"_L1) || start.startsWith("<?xml"_L1);
}

QList<ScheduledTask> parseTaskExport(const QByteArray &bytes, const QString &fileName)
{
    return parseTaskExport(readToolText(bytes).text, fileName);
}

QList<ScheduledTask> parseTaskExport(const QString &text, const QString &fileName)
{
    return ExportParser(withPlainLines(text), fileName).parse();
}

QString taskExportText(const ScheduledTask &task)
{
    return u"<!-- "_s + task.path + u" -->\n<?xml version=\"1.0\" encoding=\"UTF-16\"?>\n"_s + task.document + u"\n"_s;
}
