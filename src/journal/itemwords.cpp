// SPDX-License-Identifier: GPL-3.0-or-later

#include "itemwords.h"

#include "machine/registrydisplay.h"
#include "platform/windowsfacts.h"

using namespace Qt::StringLiterals;

namespace {

/** The value in which a service's start mode stands. */
std::optional<QString> serviceOfStart(const Item &item)
{
    const bool isStart = item.kind == ItemKind::Value && item.name.compare("Start"_L1, Qt::CaseInsensitive) == 0;
    return isStart ? serviceOfKey(item.subject) : std::nullopt;
}

QString startText(const ItemState &state)
{
    static const QStringList modes{u"at boot"_s, u"by the system"_s, u"automatic"_s, u"manual"_s, u"disabled"_s};
    const auto mode = state.data.isEmpty() ? modes.size() : static_cast<unsigned char>(state.data.front());
    return modes.value(mode, u"unknown"_s);
}

QString switchText(const ItemState &state, QLatin1StringView on, QLatin1StringView off)
{
    return state.there ? on : off;
}

} // namespace

QString itemTitle(const Item &item)
{
    if (const auto service = serviceOfStart(item))
        return u"service %1: how it starts"_s.arg(*service);
    switch (item.kind) {
    case ItemKind::Value:
        return u"registry %1: %2"_s.arg(item.subject, item.name.isEmpty() ? u"(default)"_s : item.name);
    case ItemKind::Key:
        return u"registry key %1"_s.arg(item.subject);
    case ItemKind::RunState:
        return u"service %1: whether it runs"_s.arg(item.subject);
    case ItemKind::Task:
        return u"task %1"_s.arg(item.subject);
    case ItemKind::Package:
        return u"package %1"_s.arg(item.subject);
    case ItemKind::BootOption:
        return u"boot option %1"_s.arg(item.subject);
    case ItemKind::Hibernation:
        return u"hibernation"_s;
    case ItemKind::Security:
        return u"owner and rights of %1"_s.arg(item.subject);
    case ItemKind::Attributes:
        return u"attributes of %1"_s.arg(item.subject);
    case ItemKind::Content:
        return u"file %1"_s.arg(item.subject);
    case ItemKind::Move:
        return u"name of %1"_s.arg(item.subject);
    }
    return {};
}

QString stateText(const Item &item, const ItemState &state)
{
    switch (item.kind) {
    case ItemKind::RunState:
        return switchText(state, "running"_L1, "stopped"_L1);
    case ItemKind::Task:
        return switchText(state, "enabled"_L1, "disabled"_L1);
    case ItemKind::Package:
        return switchText(state, "installed"_L1, "absent"_L1);
    case ItemKind::Hibernation:
        return switchText(state, "on"_L1, "off"_L1);
    case ItemKind::Move:
        return state.there ? item.subject : item.name;
    default:
        break;
    }
    if (!state.there)
        return u"absent"_s;
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
        return u"%1 bytes"_s.arg(state.data.size());
    default:
        return u"there"_s;
    }
}

QString verdictText(WayBack verdict)
{
    switch (verdict) {
    case WayBack::AsItWas:
        return u"as it was"_s;
    case WayBack::Open:
        return u"changed"_s;
    case WayBack::Changed:
        return u"changed again"_s;
    case WayBack::Impossible:
        return u"not possible"_s;
    }
    return {};
}

QString sessionStateText(SessionState state)
{
    switch (state) {
    case SessionState::UnderWay:
        return u"under way"_s;
    case SessionState::Finished:
        return u"finished"_s;
    case SessionState::BrokenOff:
        return u"broken off"_s;
    }
    return {};
}
