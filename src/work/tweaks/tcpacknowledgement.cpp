// SPDX-License-Identifier: GPL-3.0-or-later
// The delayed acknowledgement of TCP, which is set for each network interface.

#include "gamingtweaks.h"
#include "platform/platform.h"

using namespace Qt::StringLiterals;

namespace {

const QString interfacesKey =
    u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters\\Interfaces"_s;

/**
 * The braced names that values lie below, each once. One that lies below no brace gives the empty name, which stands
 * for the key of all interfaces.
 */
QStringList interfaceNames()
{
    QStringList names;
    for (const QString &value : platform().openKey(interfacesKey)->allKeys()) {
        const QString name = value.left(value.indexOf(u'}') + 1);
        if (!names.contains(name))
            names.append(name);
    }
    return names;
}

void changeKey(RegistryKey &key, bool apply)
{
    for (const QString &name : {u"TcpAckFrequency"_s, u"TCPNoDelay"_s}) {
        if (apply)
            key.setValue(name, 1);
        else
            key.remove(name);
    }
}

void changeInterface(const QString &path, bool apply)
{
    constexpr qsizetype shortestHint = 22;
    constexpr qsizetype usedOfHint = 12;

    const auto key = platform().openKey(path);
    const QString address = key->value(u"DhcpIPAddress"_s, QString()).toString();
    if (!address.isEmpty() && address != "0.0.0.0"_L1)
        changeKey(*key, apply);
    // The subkey of the wireless network that was joined last, whatever the address.
    const QString hint = key->value(u"DhcpNetworkHint"_s, QString()).toString();
    if (hint.size() >= shortestHint)
        changeKey(*platform().openKey(path + u'\\' + hint.left(usedOfHint)), apply);
}

} // namespace

void setTcpAcknowledgementTweak(bool apply)
{
    for (const QString &name : interfaceNames())
        changeInterface(interfacesKey + u'\\' + name, apply);
}
