// SPDX-License-Identifier: GPL-3.0-or-later
// The Options page and the About page.

#include "kestrune.h"
#include "themestyles.h"
#include "work/settings.h"
#include "work/windowsname.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

/** The signal of a check box that was changed, by whichever name Qt has it. */
#if QT_VERSION >= QT_VERSION_CHECK(6, 7, 0)
constexpr auto checkStateChanged = &QCheckBox::checkStateChanged;
#else
constexpr auto checkStateChanged = &QCheckBox::stateChanged;
#endif

void store(const QString &key, int state)
{
    openSettings()->setValue(key, state == Qt::Checked ? 1 : 0);
}

} // namespace

void Kestrune::showOptionsPage()
{
    ui.wgtInfo->hide();
    loadTheme();
    loadLanguage();
    loadCheckBox(ui.chkOptionsStartAsAdmin, u"StartAsAdmin"_s, 0, &Kestrune::onChkOptionsStartAsAdminStateChanged);
    loadCheckBox(ui.chkOptionsCheckUpdate, u"CheckUpdate"_s, 0, &Kestrune::onChkOptionsCheckUpdateStateChanged);
    loadCheckBox(ui.chkOptionsGetWinSxsSize, u"GetWinSxsSize"_s, 1, &Kestrune::onChkOptionsGetWinSxsSizeStateChanged);
    loadCheckBox(ui.chkOptionsMonitor, u"Monitor"_s, 0, &Kestrune::onChkOptionsMonitorStateChanged);
    loadComboBox(ui.cbOptionsMonitorInterval, openSettings()->value(u"MonitorInterval"_s, 0).toInt(),
                 &Kestrune::onCbOptionsMonitorIntervalSelectionChanged);
    loadCheckBox(ui.chkOptionsMonitorThreadAndHandle, u"MonitorThreadAndHandle"_s, 0,
                 &Kestrune::onChkOptionsMonitorThreadAndHandleStateChanged);
}

void Kestrune::loadCheckBox(QCheckBox *box, const QString &key, int fallback, void (Kestrune::*slot)(int))
{
    disconnect(box, checkStateChanged, this, slot);
    box->setChecked(openSettings()->value(key, fallback).toInt() == 1);
    connect(box, checkStateChanged, this, slot);
}

void Kestrune::loadComboBox(QComboBox *box, int index, void (Kestrune::*slot)(int))
{
    disconnect(box, &QComboBox::currentIndexChanged, this, slot);
    box->setCurrentIndex(index);
    connect(box, &QComboBox::currentIndexChanged, this, slot);
}

void Kestrune::loadTheme()
{
    const bool onWindows10 = isWindows10(workThread->winName);
    const QString stored = storedTheme();
    int index = ui.cbOptionsTheme->currentIndex();
    if (!onWindows10 && stored == "dark"_L1)
        index = 0;
    else if (stored == "light"_L1)
        index = 1;
    else if (stored == "system"_L1)
        index = 2;
    // Windows 10 has no dark theme. A style sheet draws the row like the others unless it has a colour of its own.
    if (onWindows10) {
        ui.cbOptionsTheme->setItemData(0, 0, Qt::UserRole - 1);
        ui.cbOptionsTheme->setItemData(0, QBrush(Qt::gray), Qt::ForegroundRole);
    }
    loadComboBox(ui.cbOptionsTheme, index, &Kestrune::onCbOptionsThemeSelectionChanged);
}

void Kestrune::loadLanguage()
{
    const QString stored = openSettings()->value(u"lang"_s, u"auto"_s).toString();
    int index = ui.cbOptionsLang->currentIndex();
    if (stored == "en"_L1)
        index = English;
    else if (stored == "fr"_L1)
        index = French;
    else if (stored == "auto"_L1)
        index = Auto;
    // Here alone the slot runs when the index changes: a choice that couldn't be carried out is taken back in full.
    loadComboBox(ui.cbOptionsLang, ui.cbOptionsLang->currentIndex(), &Kestrune::onCbOptionsLangSelectionChanged);
    ui.cbOptionsLang->setCurrentIndex(index);
}

void Kestrune::onChkOptionsStartAsAdminStateChanged(int state)
{
    store(u"StartAsAdmin"_s, state);
}

void Kestrune::onChkOptionsGetWinSxsSizeStateChanged(int state)
{
    store(u"GetWinSxsSize"_s, state);
}

void Kestrune::onChkOptionsCheckUpdateStateChanged(int state)
{
    store(u"CheckUpdate"_s, state);
    if (state == Qt::Checked)
        checkUpdate();
}

void Kestrune::showAboutPage()
{
    // The day of the build, as it is written in the language
    const QString buildDate = currentLang.startsWith("fr"_L1) ? u"11.03.2025"_s : u"03.11.2025"_s;
    QString html = ui.txtAbout->toHtml();
    html.replace("%version"_L1, QCoreApplication::applicationVersion());
    html.replace("%buildDate"_L1, buildDate);
    ui.txtAbout->setHtml(html);
}
