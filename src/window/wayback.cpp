// SPDX-License-Identifier: GPL-3.0-or-later
// The buttons that lead to the way back.

#include "elevation.h"
#include "journal/takeback.h"
#include "kestrune.h"
#include "machine/machineerror.h"
#include "messagebox.h"
#include "waybackdialog.h"
#include "work/settings.h"

using namespace Qt::StringLiterals;

namespace {

// By its begin, since a journal that is begun anew counts from 1 again.
const QString seenKey = u"BrokenOffSeen"_s;

bool isBrokenOff(const Session &session)
{
    return session.state == SessionState::BrokenOff && session.changes > 0 && session.what != lookingAround;
}

/** The last session that was broken off; nothing where there is none. */
std::optional<Session> lastBrokenOff(const Journal *journal)
{
    if (journal == nullptr)
        return std::nullopt;
    const auto sessions = guarded(QList<Session>(), [journal] { return journal->store().sessions(); });
    const auto last = std::find_if(sessions.crbegin(), sessions.crend(), isBrokenOff);
    return last != sessions.crend() ? std::optional(*last) : std::nullopt;
}

} // namespace

void Kestrune::showBrokenOff()
{
    constexpr int rim = 12; // left and right of the text, where a theme leaves none

    const auto session = lastBrokenOff(journalInForce());
    const bool isNew = session && openSettings()->value(seenKey, 0).toLongLong() < session->begun.toMSecsSinceEpoch();
    // The button stands at the right end of a strip as wide as the window, whatever else is in it.
    ui.wgtStatus->setSizePolicy(isNew ? QSizePolicy::Expanding : QSizePolicy::Preferred, QSizePolicy::Preferred);
    ui.btnBrokenOff->setMinimumWidth(ui.btnBrokenOff->fontMetrics().horizontalAdvance(ui.btnBrokenOff->text())
                                     + 2 * rim);
    ui.btnBrokenOff->setVisible(isNew);
}

void Kestrune::on_btnBrokenOff_clicked()
{
    const auto session = lastBrokenOff(journalInForce());
    openWayBack(session ? session->id : 0);
}

void Kestrune::showWayBack()
{
    const Journal *journal = journalInForce();
    const auto sessions = journal != nullptr
                              ? guarded(QList<Session>(), [journal] { return journal->store().sessions(); })
                              : QList<Session>();
    openWayBack(sessions.isEmpty() ? 0 : sessions.first().id, true);
}

void Kestrune::openWayBack(qint64 session, bool withLater)
{
    if (workThread->isRunning())
        return;
    const Journal *journal = journalInForce();
    if (journal == nullptr && !isProcessElevated()) {
        const auto answer =
            ask({.text = tr("The way back needs Admin rights: only what was changed with them is noted."),
                 .informativeText = tr("Do you want to start this app with Admin rights?")});
        if (answer == QMessageBox::Yes)
            moveToElevatedInstance(this);
        return;
    }
    if (journal == nullptr) {
        tell(tr("What was changed on this PC isn't noted, so there is no way back by notes."));
        return;
    }
    auto *dialog = new WayBackDialog(*journal, session, withLater, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::finished, this, [this, journal] {
        // All that was broken off has stood in the dialog's list.
        if (const auto seen = lastBrokenOff(journal))
            openSettings()->setValue(seenKey, seen->begun.toMSecsSinceEpoch());
        showBrokenOff();
    });
    dialog->open();
}

void Kestrune::tellFailure()
{
    const QString failure = platform().takeFailure();
    if (failure.isEmpty() || failure == toldFailure)
        return;
    toldFailure = failure;
    tell(tr("Not everything was done.") + u"\n\n"_s + failure);
}
