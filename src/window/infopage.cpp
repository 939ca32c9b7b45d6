// SPDX-License-Identifier: GPL-3.0-or-later
// The System information page: a template whose marks give way to the texts that the job has gathered.

#include "kestrune.h"

#include "work/statusline.h"
#include "work/sysinfo/systeminfo.h"

#include <QGuiApplication>
#include <QMap>
#include <QPalette>

using namespace Qt::StringLiterals;

namespace {

struct InfoStep
{
    QLatin1StringView value;
    const char *words;
    const char *subject;
};

// clang-format off
constexpr InfoStep infoSteps[] = {
    {"1"_L1, QT_TRANSLATE_NOOP("Kestrune", "Get system info:"),  QT_TRANSLATE_NOOP("Kestrune", "Windows")},
    {"2"_L1, QT_TRANSLATE_NOOP("Kestrune", "Get system info:"),  QT_TRANSLATE_NOOP("Kestrune", "MotherBoard")},
    {"3"_L1, QT_TRANSLATE_NOOP("Kestrune", "Get system info:"),  QT_TRANSLATE_NOOP("Kestrune", "GPU")},
    {"4"_L1, QT_TRANSLATE_NOOP("Kestrune", "Get system info:"),  QT_TRANSLATE_NOOP("Kestrune", "DISK")},
    {"5"_L1, QT_TRANSLATE_NOOP("Kestrune", "Get system info:"),  QT_TRANSLATE_NOOP("Kestrune", "MEM")},
    {"6"_L1, QT_TRANSLATE_NOOP("Kestrune", "Load system info:"), QT_TRANSLATE_NOOP("Kestrune", "CPU")},
    {"7"_L1, QT_TRANSLATE_NOOP("Kestrune", "Load system info:"), QT_TRANSLATE_NOOP("Kestrune", "finished")},
};
// clang-format on

/** The disks' text, in which nothing is markup but the breaks between its lines. */
QString diskText(const QString &diskInfo)
{
    return diskInfo.toHtmlEscaped().replace("&lt;br&gt;"_L1, "<br>"_L1);
}

/** The HTML with the texts of a part of the report in the place of their marks. */
QString withTexts(QString html, ReportPart part, const WorkThread &worker)
{
    // In their turns: a text may hold the mark of a later one.
    QMap<int, const ReportText *> marks;
    for (const ReportText &text : reportTexts()) {
        if (text.part == part && text.turn > 0)
            marks.insert(text.turn, &text);
    }
    for (const ReportText *mark : std::as_const(marks))
        html.replace(u'%' + QString(mark->name), (worker.*(mark->text)).toHtmlEscaped());
    return html;
}

/** In the form's black, from which each report takes the theme's colour: until then the theme may change twice. */
QString uncoloured(QString html)
{
    const QString link = QGuiApplication::palette().color(QPalette::Link).name();
    return html.replace(u"color:"_s + link, u"color:#000000"_s);
}

/** The three pieces of a date in another order; a text that is no such date stays as it is. */
QString reordered(const QString &date, int first, int second, int third)
{
    if (!date.contains(u'/'))
        return date;
    const QStringList pieces = date.split(u'/');
    return pieces.value(first) + u'/' + pieces.value(second) + u'/' + pieces.value(third);
}

} // namespace

void Kestrune::showInfoPage()
{
    ui.wgtInfo->hide();
    workThread->startJob(JobGetSystemInfo);
}

void Kestrune::onInfoJobLine(QString &line)
{
    if (StatusLine::isProgress(line))
        ui.pgrBar->show();
    if (const auto steps = StatusLine::maximumOf(line)) {
        line = *steps;
        ui.pgrBar->setMaximum(line.toInt());
        return;
    }
    const auto reached = StatusLine::stepOf(line);
    if (!reached)
        return;
    line = *reached;
    ui.pgrBar->setValue(line.toInt());
    if (line == infoSteps[std::size(infoSteps) - 1].value) {
        showSystemReport();
        ui.wgtInfo->show();
    }
    for (const InfoStep &step : infoSteps) {
        if (line == step.value)
            ui.lblStatus->setText(tr(step.words) + u' ' + tr(step.subject));
    }
}

void Kestrune::showSystemReport()
{
    // The first report keeps the template, which later ones start from; a change of language doesn't reach it any more.
    if (infoTemplate.isEmpty())
        infoTemplate = uncoloured(ui.txtInfo->toHtml());
    ui.txtInfo->setHtml(infoTemplate);
    colorText(ui.txtInfo);

    // The job fills the dates anew before each report, so that they are never turned twice.
    if (currentLang.startsWith("fr"_L1)) {
        workThread->mbBiosDate = reordered(workThread->mbBiosDate, 1, 0, 2);
        workThread->gpuDriverDate = reordered(workThread->gpuDriverDate, 2, 1, 0);
    }
    // One group at a time, so that what an earlier text has brought in is well-formed when the next marks are looked
    // for.
    for (const ReportPart part : {ReportPart::Windows, ReportPart::Motherboard, ReportPart::Processor})
        ui.txtInfo->setHtml(withTexts(ui.txtInfo->toHtml(), part, *workThread));

    QString html = withTexts(ui.txtInfo->toHtml(), ReportPart::Graphics, *workThread);
    ui.txtInfo->setHtml(html.replace(tr("loading screen info..."), screenName.toHtmlEscaped()));
    html = withTexts(ui.txtInfo->toHtml(), ReportPart::Memory, *workThread);
    const QString pageFile = workThread->memVSize + tr("on drive") + u' ' + workThread->memVSizeDrive.toUpper();
    ui.txtInfo->setHtml(html.replace("%memVSize"_L1, pageFile.toHtmlEscaped()));
    html = ui.txtInfo->toHtml();
    ui.txtInfo->setHtml(html.replace(tr("loading disk info..."), diskText(workThread->diskInfo)));
}
