// SPDX-License-Identifier: GPL-3.0-or-later
// Putting a theme in force: palette, style sheets and the coloured texts.

#include "contrast.h"
#include "kestrune.h"

#include "platform/platform.h"
#include "themestyles.h"
#include "work/settings.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>

using namespace Qt::StringLiterals;

namespace {

/** A style sheet that is set is worked through with all below the widget, also where nothing of it changes. */
void wear(QWidget *widget, const QString &style)
{
    if (widget->styleSheet() != style)
        widget->setStyleSheet(style);
}

QString linkColor()
{
    return QGuiApplication::palette().color(QPalette::Link).name();
}

} // namespace

void Kestrune::applyPalette()
{
    prepareForm();
    buildKeepList();
    wearTheme();
}

void Kestrune::wearTheme()
{
    // With nothing stored, Windows 10 gets light and Windows 11 dark; Windows 10 has no dark theme at all.
    const bool onWindows10 = workThread->winName.contains("Windows 10"_L1, Qt::CaseInsensitive);
    const bool onWindows11 = workThread->winName.contains("Windows 11"_L1, Qt::CaseInsensitive);
    const QString stored = storedTheme();
    const bool nothingStored = !openSettings()->contains(u"palette"_s);
    hasContrastTheme_ = platform().hasContrastTheme();
    if (hasContrastTheme_)
        wearSystemLook();
    else if (stored == "light"_L1 || (onWindows10 && nothingStored))
        applyLightTheme();
    else if (onWindows11 && meansDark(stored))
        applyDarkTheme();
    else if (stored == "system"_L1)
        applySystemTheme();
    widenKeepLists();
    colorTexts();
    for (QWidget *window : QApplication::topLevelWidgets())
        themeTitleBar(window);
}

bool Kestrune::isViewButton(const QPushButton *button) const
{
    return button == ui.btnSvcViewDisabled || button == ui.btnPackagesViewDisabled
           || button == ui.btnAutorunViewDisabled;
}

void Kestrune::styleButtons(const QString &viewStyle, const QString &actionStyle, bool flat)
{
    for (QPushButton *button : ui.wgtMain->findChildren<QPushButton *>()) {
        const bool view = isViewButton(button);
        if (!view)
            button->setFlat(flat);
        wear(button, view ? viewStyle : actionStyle);
    }
}

void Kestrune::styleTables(const QString &style)
{
    for (QTableWidget *table : {ui.tblSvc, ui.tblTasks, ui.tblAutorun, ui.tblPackages})
        wear(table, style);
}

template<typename Widget>
void Kestrune::styleAll(const QString &style)
{
    for (Widget *widget : ui.wgtMain->findChildren<Widget *>())
        wear(widget, style);
}

void Kestrune::applyLightTheme()
{
    const QPalette palette = lightPalette();
    QApplication::setPalette(palette);
    const QColor link = palette.color(QPalette::Link);
    const ButtonColors buttons{palette.color(QPalette::Button), QColor(220, 220, 220), palette.color(QPalette::Text),
                               link};
    styleButtons(viewButtonStyle(buttons), actionButtonStyle(buttons), true);
    styleAll<QComboBox>(lightComboBoxStyle(platform().resourceFolder(), link));
    styleAll<QCheckBox>(lightCheckBoxStyle(workThread->winName.contains("Windows 10"_L1, Qt::CaseInsensitive), link));
    wear(ui.txtAutomatizer, u"border-radius: 6px; border: 1px solid "_s + QColor(220, 220, 220).name() + u';');
    wear(ui.txtAutomatizer->verticalScrollBar(), lightScrollBarStyle());
    styleTables(tableSelectionStyle(u"lightGray"_s));
    openSettings()->setValue(u"palette"_s, u"light"_s);
    currentTheme = LightTheme;
}

void Kestrune::applyDarkTheme()
{
    const QPalette palette = darkPalette();
    QApplication::setPalette(palette);
    const ButtonColors buttons{QColor(50, 50, 50), QColor(56, 56, 56), palette.color(QPalette::Text),
                               palette.color(QPalette::Link)};
    styleButtons(viewButtonStyle(buttons), actionButtonStyle(buttons), true);
    styleAll<QCheckBox>(QString());
    wear(ui.txtAutomatizer, QString());
    wear(ui.txtAutomatizer->verticalScrollBar(), QString());
    styleTables(tableSelectionStyle(QColor(35, 35, 35).name()));
    openSettings()->setValue(u"palette"_s, u"dark"_s);
    currentTheme = DarkTheme;
}

void Kestrune::followSystem()
{
    previousLinkColor = QGuiApplication::palette().color(QPalette::Link);
    // Without a palette of the program's own there is the system's.
    QApplication::setPalette(QPalette());
    startPalette = QGuiApplication::palette();
    wearTheme();
    selectMenuButton(pageButton(currentPage()));
    markActiveMenuButton(currentPage());
}

void Kestrune::wearSystemLook()
{
    QApplication::setPalette(startPalette);
    styleButtons(QString(), QString(), false);
    styleComboBoxes({}, {});
    styleAll<QCheckBox>(QString());
    wear(ui.txtAutomatizer, QString());
    wear(ui.txtAutomatizer->verticalScrollBar(), QString());
    styleTables(QString());
}

void Kestrune::applySystemTheme()
{
    wearSystemLook();
    openSettings()->setValue(u"palette"_s, u"system"_s);
    currentTheme = SystemTheme;
}

void Kestrune::onCbOptionsThemeSelectionChanged(int index)
{
    previousLinkColor = QGuiApplication::palette().color(QPalette::Link);
    const bool onWindows10 = workThread->winName.contains("Windows 10"_L1, Qt::CaseInsensitive);
    const bool onWindows11 = workThread->winName.contains("Windows 11"_L1, Qt::CaseInsensitive);
    const auto settings = openSettings();
    if (index == 0 && onWindows11) {
        settings->setValue(u"palette"_s, u"dark"_s);
        styleComboBoxes({}, {});
    } else if (index == 1) {
        settings->setValue(u"palette"_s, u"light"_s);
        if (onWindows10)
            styleComboBoxes(plainLightComboBoxStyle(platform().resourceFolder()),
                            u"background-color: #FFFFFF; color: black; "_s);
        else
            styleComboBoxes({}, {});
    } else if (index == 2) {
        settings->setValue(u"palette"_s, u"system"_s);
        if (onWindows10)
            styleComboBoxes({}, {});
    }
    applyPalette();
    showPage(7);
}

void Kestrune::styleComboBoxes(const QString &style, const QString &listStyle)
{
    for (QComboBox *box : ui.wgtMain->findChildren<QComboBox *>()) {
        wear(box, style);
        wear(box->view(), listStyle);
    }
}

void Kestrune::colorTexts()
{
    QTextBrowser *const browsers[] = {ui.txtAbout,    ui.txtInfo,     ui.txtGaming011,
                                      ui.txtGaming11, ui.txtGaming12, ui.txtSsd8};
    QLabel *const headings[] = {ui.lblSvcTop,  ui.lblTaskTop,  ui.lblPackageTop, ui.lblAutorunTop, ui.lblTweakTop,
                                ui.lblHomeTop, ui.lblAboutTop, ui.lblInfoTop,    ui.lblOptionsTop};
    const QString window = QGuiApplication::palette().color(QPalette::Window).name();
    const QString link = linkColor();
    for (QTextBrowser *browser : browsers)
        wear(browser, u"background-color: "_s + window);
    for (QLabel *heading : headings)
        wear(heading, u"color: "_s + link);
    for (QTextBrowser *browser : browsers)
        colorText(browser);
}

void Kestrune::colorText(QTextBrowser *browser)
{
    // The form's texts carry black where they follow the theme; after a change of theme they carry the last one's
    // colour. Their characters are coloured where they stand: reading all six texts anew takes longer than the rest of
    // the theme.
    const QString link = linkColor();
    QTextCharFormat followingTheme;
    followingTheme.setForeground(QColor(link));
    const auto follows = [this](const QTextCharFormat &format) {
        if (!format.hasProperty(QTextFormat::ForegroundBrush))
            return false;
        const QColor color = format.foreground().color();
        return color == Qt::black || color.name() == previousLinkColor.name();
    };
    QTextCursor cursor(browser->document());
    for (QTextBlock block = browser->document()->begin(); block.isValid(); block = block.next()) {
        cursor.setPosition(block.position());
        if (follows(block.charFormat()))
            cursor.mergeBlockCharFormat(followingTheme);
        // An edit may join pieces of text: where they are is noted before the first one.
        QList<std::pair<int, int>> places;
        for (auto each = block.begin(); !each.atEnd(); ++each) {
            if (follows(each.fragment().charFormat()))
                places.emplace_back(each.fragment().position(), each.fragment().length());
        }
        for (const auto &[position, length] : places) {
            cursor.setPosition(position);
            cursor.setPosition(position + length, QTextCursor::KeepAnchor);
            cursor.mergeCharFormat(followingTheme);
        }
    }
}
