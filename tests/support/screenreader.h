// SPDX-License-Identifier: GPL-3.0-or-later
// A desktop that nobody sees, and on it what a screen reader does: it is told of programs by the accessibility bus,
// knows nothing else of them, and presses keys.

#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QProcess>
#include <QTemporaryDir>

#include <optional>

/** What a program shows, as the bus tells it. */
struct Shown
{
    /** The numbers that the bus has for them. */
    enum State { Active = 1, Checked = 4, Focused = 12, Showing = 25 };

    QString program; ///< name on the bus
    QString path;
    QString role{}; ///< such as "push button"
    QString name{};
    quint64 states = 0;

    bool is(State state) const { return (states >> state & 1) != 0; }
};

/**
 * A display, a window manager and the buses, all of which end with the object, or with the test, however that ends.
 * What they write lies in a folder of its own.
 */
class ScreenReader
{
public:
    ScreenReader() = default;
    ~ScreenReader();
    Q_DISABLE_COPY_MOVE(ScreenReader)

    /** Why there is no desktop; empty where there is one. */
    QString start();
    /** For programs that are to be read. */
    QProcessEnvironment environment() const { return environment_; }

    /** All that is seen now, from the top downwards, with what holds it together. */
    QList<Shown> look() const;
    /** The first that is seen with this role and name. */
    std::optional<Shown> find(const QString &role, const QString &name) const;
    /** What has the keyboard: the innermost of it. */
    std::optional<Shown> focused() const;
    /** Whether it was seen, and could be pressed. */
    bool press(const QString &role, const QString &name) const;
    /** Presses a key and lets it go, by its number in X11. */
    void strike(int key) const;

private:
    QString startDisplay();
    QString startBuses();
    QString startProgram(QProcess &process, const QString &name, const QString &package, const QStringList &arguments);
    void lookBelow(const QString &program, const QString &path, int depth, QList<Shown> &seen) const;
    /** The answers; none where what is asked has gone in the meantime. */
    QVariantList ask(const QString &program, const QString &path, const QString &interface, const QString &method,
                     const QVariantList &arguments = {}) const;

    QTemporaryDir home_;
    QProcessEnvironment environment_ = QProcessEnvironment::systemEnvironment();
    QProcess display_;
    QProcess windowManager_;
    QProcess sessionBus_;
    QDBusConnection bus_ = QDBusConnection(QString());
};
