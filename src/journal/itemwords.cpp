// SPDX-License-Identifier: GPL-3.0-or-later

#include "takeback.h"

#include "machine/registrydisplay.h"
#include "platform/windowsfacts.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

/** In the language of the program, which is English where it has installed none. */
class Words
{
    Q_DECLARE_TR_FUNCTIONS(Kestrune)
};

/** What sessions are called, and the window's page that they belong to; some to none. */
struct SessionRow
{
    const char *what;
    QLatin1StringView page;
};

// clang-format off
constexpr SessionRow sessionRows[] = {
    {QT_TRANSLATE_NOOP("Kestrune", "Analyze"), "Optimizer"_L1},
    {QT_TRANSLATE_NOOP("Kestrune", "Apply a profile"), {}},
    {QT_TRANSLATE_NOOP("Kestrune", "Apply features"), "Features"_L1},
    {QT_TRANSLATE_NOOP("Kestrune", "Before the journal, not exact"), {}},
    {QT_TRANSLATE_NOOP("Kestrune", "Clean-up of the WinSxS folder"), "Features"_L1},
    {QT_TRANSLATE_NOOP("Kestrune", "Content indexing off"), "Features"_L1},
    {QT_TRANSLATE_NOOP("Kestrune", "Content indexing on"), "Features"_L1},
    {QT_TRANSLATE_NOOP("Kestrune", "Disable programs"), "Programs"_L1},
    {QT_TRANSLATE_NOOP("Kestrune", "Disable services"), "Services"_L1},
    {QT_TRANSLATE_NOOP("Kestrune", "Enable programs"), "Programs"_L1},
    {QT_TRANSLATE_NOOP("Kestrune", "Enable services"), "Services"_L1},
    {QT_TRANSLATE_NOOP("Kestrune", "Looking around"), {}},
    {QT_TRANSLATE_NOOP("Kestrune", "Optimize"), "Optimizer"_L1},
    {QT_TRANSLATE_NOOP("Kestrune", "Packages"), "Programs"_L1},
    {QT_TRANSLATE_NOOP("Kestrune", "Restore"), "Optimizer"_L1},
    {QT_TRANSLATE_NOOP("Kestrune", "Start of services"), "Services"_L1},
    {QT_TRANSLATE_NOOP("Kestrune", "Take back"), "Options"_L1},
    {QT_TRANSLATE_NOOP("Kestrune", "Tasks"), "Tasks"_L1},
    {QT_TRANSLATE_NOOP("Kestrune", "Tweaks"), "Features"_L1},
};

// What others have written in English, here for the translation only.
[[maybe_unused]] constexpr const char *translatedWords[] = {
    // Why something isn't back
    QT_TRANSLATE_NOOP("Kestrune", "Windows keeps no copy of what this removes"),
    QT_TRANSLATE_NOOP("Kestrune", "a later session has changed it, too"),
    QT_TRANSLATE_NOOP("Kestrune", "it didn't come back"),
    QT_TRANSLATE_NOOP("Kestrune", "its files are gone from this PC; get it from the Store"),
    QT_TRANSLATE_NOOP("Kestrune", "something else has changed it since"),
    QT_TRANSLATE_NOOP("Kestrune", "the file is at neither place"),
};
// clang-format on

/** The service whose value of that name the item is. */
std::optional<QString> serviceOfValue(const Item &item, QLatin1StringView name)
{
    const bool isValue = item.kind == ItemKind::Value && item.name.compare(name, Qt::CaseInsensitive) == 0;
    return isValue ? serviceOfKey(item.subject) : std::nullopt;
}

/** The value in which a service's start mode stands. */
std::optional<QString> serviceOfStart(const Item &item)
{
    return serviceOfValue(item, "Start"_L1);
}

QString startText(const ItemState &state)
{
    const QStringList modes{Words::tr("at boot"), Words::tr("by the system"), Words::tr("automatic"),
                            Words::tr("manual"), Words::tr("disabled")};
    const auto mode = state.data.isEmpty() ? modes.size() : static_cast<unsigned char>(state.data.front());
    return modes.value(mode, Words::tr("unknown"));
}

QString valueTitle(const Item &item)
{
    if (const auto service = serviceOfStart(item))
        return Words::tr("Service %1: start mode").arg(*service);
    if (const auto service = serviceOfValue(item, "DelayedAutostart"_L1))
        return Words::tr("Service %1: delayed start").arg(*service);
    if (WindowsKey::runKeys.contains(item.subject, Qt::CaseInsensitive))
        return Words::tr("Program started at logon: %1").arg(item.name);
    return Words::tr("Registry value %1")
        .arg(item.subject + u'\\' + (item.name.isEmpty() ? u"(default)"_s : item.name));
}

} // namespace

QString itemTitle(const Item &item)
{
    switch (item.kind) {
    case ItemKind::Value:
        return valueTitle(item);
    case ItemKind::Key:
        return Words::tr("Registry key %1").arg(item.subject);
    case ItemKind::RunState:
        return Words::tr("Service %1: run state").arg(item.subject);
    case ItemKind::Task:
        return Words::tr("Scheduled task %1").arg(item.subject);
    case ItemKind::Package:
        return Words::tr("Package %1").arg(item.subject);
    case ItemKind::BootOption:
        return Words::tr("Boot option %1").arg(item.subject);
    case ItemKind::Hibernation:
        return Words::tr("Hibernation");
    case ItemKind::Security:
        return Words::tr("Owner and rights of %1").arg(item.subject);
    case ItemKind::Attributes:
        return Words::tr("Attributes of %1").arg(item.subject);
    case ItemKind::Content:
        return Words::tr("File %1").arg(item.subject);
    case ItemKind::Move:
        return Words::tr("Place of the file %1").arg(item.subject);
    case ItemKind::OneWay:
        return translatedText(item.subject);
    }
    return {};
}

QString stateText(const Item &item, const ItemState &state)
{
    switch (item.kind) {
    case ItemKind::RunState:
        return state.there ? Words::tr("running") : Words::tr("stopped");
    case ItemKind::Task:
        return state.there ? Words::tr("enabled") : Words::tr("disabled");
    case ItemKind::Package:
        return state.there ? Words::tr("installed") : Words::tr("absent");
    case ItemKind::Hibernation:
        return state.there ? Words::tr("on") : Words::tr("off");
    case ItemKind::Move:
        return state.there ? item.subject : item.name;
    case ItemKind::OneWay:
        return {};
    default:
        break;
    }
    if (!state.there)
        return Words::tr("absent");
    if (serviceOfStart(item))
        return startText(state);
    switch (item.kind) {
    case ItemKind::Value:
        return valueText({item.name, static_cast<RegistryType>(state.type), state.data});
    case ItemKind::BootOption:
        return QString::fromUtf8(state.data);
    case ItemKind::Attributes:
        return u"0x"_s + QString::number(state.type, 16);
    case ItemKind::Content:
        return Words::tr("%1 bytes").arg(state.data.size());
    default:
        return Words::tr("there");
    }
}

QString verdictText(WayBack verdict)
{
    switch (verdict) {
    case WayBack::AsItWas:
        return Words::tr("as it was");
    case WayBack::Open:
        return Words::tr("changed");
    case WayBack::Changed:
        return Words::tr("changed again");
    case WayBack::Impossible:
        return Words::tr("not possible");
    }
    return {};
}

QString sessionStateText(SessionState state)
{
    switch (state) {
    case SessionState::UnderWay:
        return Words::tr("under way");
    case SessionState::Finished:
        return Words::tr("finished");
    case SessionState::BrokenOff:
        return Words::tr("broken off");
    }
    return {};
}

QString pageOfSession(const QString &what)
{
    for (const SessionRow &row : sessionRows) {
        if (what == QLatin1StringView(row.what))
            return row.page;
    }
    return {};
}

QString translatedText(const QString &english)
{
    return Words::tr(english.toUtf8().constData());
}

QString whyText(const TakenItem &item)
{
    return translatedText(item.why) + (item.storeLink.isEmpty() ? QString() : u": "_s + item.storeLink);
}
