// SPDX-License-Identifier: GPL-3.0-or-later
// The real window, driven by the names of its widgets.

#pragma once

#include "testmachine.h"
#include "window/kestrune.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>

#include <memory>

/** How long a wait for a job lasts at most, in milliseconds. */
constexpr int patience = 20000;

/** A machine on which this process has no administrator rights. */
inline MachineOptions notElevated()
{
    MachineOptions options;
    options.elevated = false;
    return options;
}

/** A machine on which the first deliberate pause of a job lasts until the job is asked to end. */
inline MachineOptions endlessPauses()
{
    MachineOptions options;
    options.pace = 1e6;
    return options;
}

/** Builds the window on the platform in force and shows it; the platform must outlive it. */
class WindowDriver
{
public:
    WindowDriver();
    ~WindowDriver();
    Q_DISABLE_COPY_MOVE(WindowDriver)

    Kestrune &window() const { return *window_; }
    /** Ends the window, as the end of the program does. */
    void end() { window_.reset(); }

    /** The widget of that name; ends the test program where there is none. */
    template<typename Widget>
    Widget *get(const QString &name) const
    {
        auto *widget = window_->findChild<Widget *>(name);
        if (widget == nullptr)
            qFatal("the window has no %s", qUtf8Printable(name));
        return widget;
    }
    QPushButton *button(const QString &name) const { return get<QPushButton>(name); }
    QTableWidget *services() const { return get<QTableWidget>(QStringLiteral("tblSvc")); }
    QProgressBar *bar() const { return get<QProgressBar>(QStringLiteral("pgrBar")); }
    QString status() const { return get<QLabel>(QStringLiteral("lblStatus"))->text(); }

    /** The workers, in the order in which they were made: ordinary jobs, WinSxS, monitor. */
    WorkThread &worker() const { return *workers().at(0); }
    WorkThread &winSxsWorker() const { return *workers().at(1); }
    QList<WorkThread *> workers() const;

    /** Asks the running job to end and waits for it, however slow the computer is. */
    bool endJob() const
    {
        worker().requestInterruption();
        return worker().wait(patience);
    }

    /** Clicks a button with the mouse. */
    void click(const QString &name) const;
    /** Calls a slot of the window by its name. */
    void call(const char *slot) const;

    /** Shows the Services page by its menu button; false where its list doesn't come. */
    bool openServices() const;
    /** Shows the Tasks page by its menu button; false where its list doesn't come. */
    bool openTasks() const;
    /** Shows the Packages page; false where its list doesn't come. */
    bool openPackages() const;
    /**
     * Waits until a listing has come that none of the earlier calls has waited for, and nothing runs any more. False
     * where the status doesn't begin with this word then.
     */
    bool waitForList(const QString &summary = QStringLiteral("Services:")) const;
    /** Fills the Services table with these rows, as the closing line of a listing does. */
    void list(const QList<ServiceRow> &rows) const;

    /** The cell of a service by the name in its tool tip; null where it has no row. */
    QTableWidgetItem *cell(const QString &service, int column = 0) const;
    /** The names of the listed services, from top to bottom. */
    QStringList listed() const;
    /** The names of the services whose rows are checked, from top to bottom. */
    QStringList checked() const;
    /** Clicks the check box of a service's row with the mouse. */
    void clickCheckBox(const QString &service) const;
    /** Clicks an item's check box with the mouse. */
    static void clickCheckBox(QTableWidget *table, const QTableWidgetItem *item);

    /** The table of that name, and what stands in one of its columns from top to bottom. */
    QTableWidget *table(const QString &name) const { return get<QTableWidget>(name); }
    QStringList column(const QString &tableName, int column) const;
    /** The texts of the first cells that are checked, from top to bottom. */
    QStringList checkedIn(const QString &tableName) const;
    /** The first cell of the row that begins with this text; null where there is none. */
    QTableWidgetItem *firstCell(const QString &tableName, const QString &text) const;

private:
    std::unique_ptr<Kestrune> window_;
    int listings_ = 0;
    mutable int awaited_ = 0;
};

/** The machine of a window, which must be there first. */
class MachineOfWindow
{
protected:
    explicit MachineOfWindow(const MachineOptions &options)
        : machine_(TestMachine::Windows::Eleven, options)
    {
    }

private:
    TestMachine machine_;
};

/** The window on a small machine that the test itself has nothing to do with. */
class WindowOnPc : private MachineOfWindow, public WindowDriver
{
public:
    explicit WindowOnPc(const MachineOptions &options = {})
        : MachineOfWindow(options)
    {
    }
};

/** The window with the Services page open and its list there. */
class ServicesPage : public WindowDriver
{
public:
    ServicesPage()
    {
        if (!openServices())
            qFatal("the services aren't listed");
    }
};
