// SPDX-License-Identifier: GPL-3.0-or-later
// The program: on Windows it works on the real machine, elsewhere, and as kestrune-rehearsal, on a rehearsal machine.

#include "window/kestrune.h"

#include "journal/takeback.h"
#include "machine/machineerror.h"
#include "platform/processground.h"
#include "window/messagebox.h"
#ifdef KESTRUNE_REAL_MACHINE
#include "journal/programrecords.h"
#include "journal/realjournal.h"
#include "linkopener.h"
#include "realpreview.h"
#else
#include "journal/machinejournal.h"
#include "journal/programrecords.h"
#include "machine/seam/scriptopener.h"
#include "pictures.h"
#endif
#ifndef Q_OS_WIN
#include "standinfonts.h"
#include "window/contrast.h"
#endif

#include <QApplication>
#include <QScreen>
#include <QStandardPaths>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

#ifdef KESTRUNE_REAL_MACHINE

bool choosePlatform()
{
    setPlatform(openRealPlatform());
    settleBrokenOff();
    return true;
}

#else

/** How pictures are asked for; the rest of the arguments is what takePictures() takes. */
bool isForPictures()
{
    return QCoreApplication::arguments().value(1) == "--pictures"_L1;
}

/** The environment names the machine; kestrune-rehearse sets it. */
bool choosePlatform()
{
    const QString folder = qEnvironmentVariable("KESTRUNE_MACHINE");
    if (folder.isEmpty()) {
        qCritical("kestrune: works on a rehearsal machine here; start it by 'kestrune-rehearse gui DIR'");
        return false;
    }
    try {
        MachineOptions options;
        options.elevated = qEnvironmentVariable("KESTRUNE_ELEVATED", u"1"_s) != "0"_L1;
        options.pace = isForPictures() ? 0 : 1;
        options.opener = ScriptOpener::make;
        setPlatform(openMachinePlatform(folder, options));
        settleBrokenOff();
    } catch (const MachineError &error) {
        qCritical("kestrune: %s", qUtf8Printable(error.message));
        return false;
    }
#ifndef Q_OS_WIN
    useStandInFonts();
    QApplication::setStyle(new OutlineStyle);
#endif
    return true;
}

/** The machine that the window works on: a preview makes copies of it. */
PreviewPlace previewPlace()
{
    const QString name = u"kestrune-rehearse"_s;
    const QString program = QStandardPaths::findExecutable(name, {QCoreApplication::applicationDirPath()});
    PreviewPlace place{.program = program, .machine = qEnvironmentVariable("KESTRUNE_MACHINE")};
    if (program.isEmpty())
        place.failure = Kestrune::tr("There is no preview: %1").arg(u"the program %1 is missing"_s.arg(name));
    return place;
}

#endif

/** Said once, before the window: it opens all the same, to look at the PC and its settings. */
void tellOfJournal()
{
    const Journal *journal = journalInForce();
    if (journal == nullptr)
        return;
    if (!journal->putAside().isEmpty())
        tell(journal->putAside().join(u'\n'));
    if (const QString why = platform().takeFailure(); !why.isEmpty())
        tell(u"What is changed can't be noted, so nothing is changed.\n\n"_s + why);
}

/**
 * The answer to whoever removes the program: 0 where nothing is in force that could be taken back, 1 where something
 * is, 2 where that is unknown for want of rights, or of a journal that can be read.
 */
int changesInForce()
{
    constexpr int none = 0;
    constexpr int some = 1;
    constexpr int unknown = 2;

    const Journal *journal = journalInForce();
    if (journal == nullptr)
        return unknown;
    return guarded(unknown, [journal] {
        const QList<TakenItem> items = planWayBack(*journal, {});
        return std::any_of(items.cbegin(), items.cend(),
                           [](const TakenItem &item) {
                               // Keys without anything in them come by looking at them, too.
                               return item.verdict == WayBack::Open && item.item.kind != ItemKind::Key;
                           })
                   ? some
                   : none;
    });
}

} // namespace

/** Qt's own entry point calls it on Windows, by another name. */
int main(int argc, char **argv);

int main(int argc, char **argv)
{
    constexpr int noMachine = 3;

    prepareProcess();
    QApplication application(argc, argv);
    QCoreApplication::setApplicationVersion(u"0.3.14"_s);
    if (!choosePlatform())
        return noMachine;
#ifndef KESTRUNE_REAL_MACHINE
    if (isForPictures())
        return takePictures(QCoreApplication::arguments().sliced(2));
#else
    const auto links = platform().isElevated() ? std::make_unique<LinkOpener>() : nullptr;
#endif

    if (QCoreApplication::arguments().contains("--changes-in-force"_L1))
        return changesInForce();
    tellOfJournal();
    Kestrune window;
    if (window.hasLeft())
        return 0;
    window.appVersion = QCoreApplication::applicationVersion();
#ifdef KESTRUNE_REAL_MACHINE
    window.screenName = window.screen()->name();
#else
    window.screenName = rehearsalScreen;
#endif
    window.previewPlace = previewPlace;
    window.show();
    if (QCoreApplication::arguments().contains("--way-back"_L1))
        window.showWayBack();
    return QApplication::exec();
}
