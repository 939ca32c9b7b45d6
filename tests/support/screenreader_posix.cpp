// SPDX-License-Identifier: GPL-3.0-or-later

#include "screenreader.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDir>
#include <QStandardPaths>

#include <csignal>
#include <sys/prctl.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 60000; // milliseconds

const QString registry = u"org.a11y.atspi.Registry"_s;
const QString accessible = u"org.a11y.atspi.Accessible"_s;

QVariantList answersOf(const QDBusConnection &bus, const QString &program, const QString &path,
                       const QString &interface, const QString &method, const QVariantList &arguments)
{
    QDBusMessage question = QDBusMessage::createMethodCall(program, path, interface, method);
    question.setArguments(arguments);
    const QDBusMessage answer = bus.call(question, QDBus::Block, patience);
    return answer.type() == QDBusMessage::ReplyMessage ? answer.arguments() : QVariantList();
}

/** Of an array of pairs: the name of the program on the bus, and the path. */
QList<std::pair<QString, QString>> placesIn(const QVariantList &answers)
{
    QList<std::pair<QString, QString>> places;
    const auto array = answers.value(0).value<QDBusArgument>();
    if (answers.isEmpty())
        return places;
    array.beginArray();
    while (!array.atEnd()) {
        QString program;
        QDBusObjectPath path;
        array.beginStructure();
        array >> program >> path;
        array.endStructure();
        places.append({program, path.path()});
    }
    array.endArray();
    return places;
}

} // namespace

ScreenReader::~ScreenReader()
{
    QDBusConnection::disconnectFromBus(bus_.name());
    // Those that the buses have started end with them.
    for (QProcess *process : {&sessionBus_, &windowManager_, &display_}) {
        process->terminate();
        if (!process->waitForFinished(patience))
            process->kill();
        process->waitForFinished(patience);
    }
}

QString ScreenReader::start()
{
    for (const QString &name :
         {u"HOME"_s, u"TMPDIR"_s, u"XDG_CONFIG_HOME"_s, u"XDG_CACHE_HOME"_s, u"XDG_DATA_HOME"_s, u"XDG_RUNTIME_DIR"_s})
        environment_.insert(name, home_.path());
    for (const QString &name : {u"WAYLAND_DISPLAY"_s, u"XAUTHORITY"_s, u"SESSION_MANAGER"_s, u"AT_SPI_BUS_ADDRESS"_s})
        environment_.remove(name);
    environment_.insert(u"GSETTINGS_BACKEND"_s, u"memory"_s);
    environment_.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    environment_.insert(u"QT_LINUX_ACCESSIBILITY_ALWAYS_ON"_s, u"1"_s);
    if (const QString reason = startDisplay(); !reason.isEmpty())
        return reason;
    return startBuses();
}

QString ScreenReader::startDisplay()
{
    if (const QString reason = startProgram(display_, u"Xvfb"_s, u"xvfb"_s,
                                            {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"1280x1024x24"_s,
                                             u"-nolisten"_s, u"tcp"_s, u"-noreset"_s});
        !reason.isEmpty())
        return reason;
    while (!display_.canReadLine()) {
        if (!display_.waitForReadyRead(patience))
            return u"Xvfb names no display: "_s + QString::fromUtf8(display_.readAllStandardError());
    }
    environment_.insert(u"DISPLAY"_s, u':' + QString::fromLatin1(display_.readLine().trimmed()));
    // Without one no window ever gets the keyboard.
    return startProgram(windowManager_, u"matchbox-window-manager"_s, u"matchbox-window-manager"_s, {});
}

QString ScreenReader::startBuses()
{
    if (const QString reason = startProgram(sessionBus_, u"dbus-daemon"_s, u"dbus-daemon"_s,
                                            {u"--session"_s, u"--nofork"_s, u"--nopidfile"_s, u"--print-address"_s,
                                             u"--address=unix:path="_s + home_.filePath(u"bus"_s)});
        !reason.isEmpty())
        return reason;
    while (!sessionBus_.canReadLine()) {
        if (!sessionBus_.waitForReadyRead(patience))
            return u"dbus-daemon names no address: "_s + QString::fromUtf8(sessionBus_.readAllStandardError());
    }
    const QString address = QString::fromLatin1(sessionBus_.readLine().trimmed());
    environment_.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, address);

    const QDBusConnection session = QDBusConnection::connectToBus(address, u"session"_s);
    const QString readers =
        answersOf(session, u"org.a11y.Bus"_s, u"/org/a11y/bus"_s, u"org.a11y.Bus"_s, u"GetAddress"_s, {})
            .value(0)
            .toString();
    QDBusConnection::disconnectFromBus(session.name());
    if (readers.isEmpty())
        return u"there is no accessibility bus (Debian's package at-spi2-core)"_s;
    bus_ = QDBusConnection::connectToBus(readers, u"readers"_s);
    return bus_.isConnected() ? QString() : bus_.lastError().message();
}

QString ScreenReader::startProgram(QProcess &process, const QString &name, const QString &package,
                                   const QStringList &arguments)
{
    const QString program = QStandardPaths::findExecutable(name);
    if (program.isEmpty())
        return u"%1 isn't in PATH (Debian's package %2)"_s.arg(name, package);
    process.setProcessEnvironment(environment_);
    process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    process.start(program, arguments);
    return process.waitForStarted(patience) ? QString() : name + u": "_s + process.errorString();
}

QList<Shown> ScreenReader::look() const
{
    QList<Shown> seen;
    lookBelow(registry, u"/org/a11y/atspi/accessible/root"_s, 0, seen);
    return seen;
}

void ScreenReader::lookBelow(const QString &program, const QString &path, int depth, QList<Shown> &seen) const
{
    // The desktop and the programs on it have no place on the screen themselves.
    constexpr int windowDepth = 2;

    const auto states = qdbus_cast<QList<uint>>(ask(program, path, accessible, u"GetState"_s).value(0));
    Shown shown{.program = program, .path = path};
    if (states.size() == 2)
        shown.states = states.at(0) | quint64(states.at(1)) << 32;
    if (depth >= windowDepth) {
        if (!shown.is(Shown::Showing))
            return;
        shown.role = ask(program, path, accessible, u"GetRoleName"_s).value(0).toString();
        shown.name = ask(program, path, u"org.freedesktop.DBus.Properties"_s, u"Get"_s, {accessible, u"Name"_s})
                         .value(0)
                         .value<QDBusVariant>()
                         .variant()
                         .toString();
        seen.append(shown);
    }
    for (const auto &[place, below] : placesIn(ask(program, path, accessible, u"GetChildren"_s)))
        lookBelow(place, below, depth + 1, seen);
}

std::optional<Shown> ScreenReader::find(const QString &role, const QString &name) const
{
    for (const Shown &shown : look()) {
        if (shown.role == role && shown.name == name)
            return shown;
    }
    return std::nullopt;
}

std::optional<Shown> ScreenReader::focused() const
{
    std::optional<Shown> found;
    for (const Shown &shown : look()) {
        if (shown.is(Shown::Focused))
            found = shown;
    }
    return found;
}

bool ScreenReader::press(const QString &role, const QString &name) const
{
    const std::optional<Shown> shown = find(role, name);
    return shown && ask(shown->program, shown->path, u"org.a11y.atspi.Action"_s, u"DoAction"_s, {0}).value(0).toBool();
}

void ScreenReader::strike(int key) const
{
    constexpr uint bySymbol = 3; // pressed and let go

    ask(registry, u"/org/a11y/atspi/registry/deviceeventcontroller"_s, u"org.a11y.atspi.DeviceEventController"_s,
        u"GenerateKeyboardEvent"_s, {key, QString(), bySymbol});
}

QVariantList ScreenReader::ask(const QString &program, const QString &path, const QString &interface,
                               const QString &method, const QVariantList &arguments) const
{
    return answersOf(bus_, program, path, interface, method, arguments);
}
