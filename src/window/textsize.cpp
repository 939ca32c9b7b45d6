// SPDX-License-Identifier: GPL-3.0-or-later
// Texts as large as the user wants them. The system lets its own font grow; the form's fonts, and what is as high and
// as wide as its texts need, have sizes of their own.

#include "kestrune.h"

#include "platform/platform.h"

#include <QApplication>
#include <QRegularExpression>
#include <QScreen>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/** As it was when the window was made: what is set in pixels later must suit what has grown then. */
double textScale = 1;

/** At least as large as that of Windows would be. */
void growApplicationFont()
{
    constexpr double usualSize = 9; // points

    QFont font = QApplication::font();
    font.setPointSizeF(std::max(font.pointSizeF(), usualSize * textScale));
    QApplication::setFont(font);
}

/** Those with a size of their own, with the size. */
QList<std::pair<QWidget *, double>> ownFontSizes(const QList<QWidget *> &widgets)
{
    QList<std::pair<QWidget *, double>> sizes;
    for (QWidget *widget : widgets) {
        if (widget->testAttribute(Qt::WA_SetFont) && (widget->font().resolveMask() & QFont::SizeResolved) != 0)
            sizes.append({widget, widget->font().pointSizeF()});
    }
    return sizes;
}

} // namespace

int grown(int pixels)
{
    return std::min(qRound(pixels * textScale), QWIDGETSIZE_MAX);
}

QSize grown(const QSize &size)
{
    return {grown(size.width()), grown(size.height())};
}

QSize grownWindow(const QSize &size)
{
    const QSize room = QGuiApplication::primaryScreen()->availableSize();
    return grown(size).boundedTo(room.expandedTo(size));
}

void Kestrune::growForm()
{
    textScale = platform().textScale() / static_cast<double>(usualTextScale);
    if (textScale == 1.0)
        return;
    growApplicationFont();
    QList<QWidget *> widgets = findChildren<QWidget *>();
    // The parts that a widget of the toolkit is made of follow it.
    widgets.removeIf([](const QWidget *widget) {
        return widget->objectName().isEmpty() || widget->objectName().startsWith("qt_"_L1);
    });
    const auto sizes = ownFontSizes(widgets);
    // All others take that of the window, also where a style sheet keeps the application's from them.
    setFont(QApplication::font());
    for (const auto &[widget, size] : sizes) {
        QFont font = widget->font();
        font.setPointSizeF(size * textScale);
        widget->setFont(font);
    }
    for (QWidget *widget : widgets) {
        widget->setMinimumSize(grown(widget->minimumSize()));
        widget->setMaximumSize(grown(widget->maximumSize()));
        if (widget->parentWidget() == ui.wgtOptions || widget->parentWidget() == ui.frame)
            widget->setGeometry(
                QRect(grown(widget->x()), grown(widget->y()), grown(widget->width()), grown(widget->height())));
    }
    setMinimumSize(grown(minimumSize()));
    resize(minimumSize());
    growRichTexts();
}

void Kestrune::growRichTexts()
{
    static const QRegularExpression fontSize(u"font-size:([0-9.]+)pt"_s);

    if (textScale == 1.0)
        return;
    for (QTextBrowser *browser :
         {ui.txtAbout, ui.txtInfo, ui.txtGaming011, ui.txtGaming11, ui.txtGaming12, ui.txtSsd8}) {
        const QString html = browser->toHtml();
        // The body's size is the widget's, which has grown.
        const qsizetype body = html.indexOf(u'>', html.indexOf("<body"_L1));
        QString grownHtml = html.first(body);
        qsizetype end = body;
        for (auto matches = fontSize.globalMatch(html, body); matches.hasNext();) {
            const QRegularExpressionMatch match = matches.next();
            grownHtml += html.sliced(end, match.capturedStart(1) - end)
                         + QString::number(match.capturedView(1).toDouble() * textScale);
            end = match.capturedEnd(1);
        }
        browser->setHtml(grownHtml + html.sliced(end));
    }
}
