// SPDX-License-Identifier: GPL-3.0-or-later

#include "realpreview.h"

#include "journal/realjournal.h"
#include "machine/workfolder.h"
#include "platform/platform.h"
#include "platform/windows/adminfolder.h"
#include "platform/windows/processtoken.h"
#include "window/kestrune.h"

#include <QCoreApplication>
#include <QDir>

using namespace Qt::StringLiterals;

namespace {

PreviewPlace failed(const QString &why)
{
    PreviewPlace place;
    place.failure = why;
    return place;
}

/** A folder of administrators in which what was captured stays as long as it is held. */
struct CaptureFolder
{
    ~CaptureFolder()
    {
        if (!machine.isEmpty())
            QDir(machine).removeRecursively();
    }

    std::shared_ptr<void> above;  ///< the program's own folder
    std::shared_ptr<void> folder; ///< in it
    QString machine;
};

PreviewPlace placeWithRights(PreviewPlace place)
{
    if (!isForAdministratorsAlone(place.program)) {
        return failed(
            Kestrune::tr("With Admin rights a preview needs a copy of this app that nobody else can change, such "
                         "as the installer makes in the folder for programs. Without Admin rights it works "
                         "from any folder."));
    }
    const QString own = realJournalFolder();
    const QString folder = own + u"\\preview"_s;
    const auto hold = std::make_shared<CaptureFolder>();
    hold->above = holdAdminFolder(own);
    hold->folder = holdAdminFolder(folder, sidOfUser());
    if (own.isEmpty() || !hold->above || !hold->folder)
        return failed(Kestrune::tr("There is no preview: %1").arg(folder));
    hold->machine = folder + u"\\machine"_s;
    place.machine = hold->machine;
    place.hold = hold;
    return place;
}

PreviewPlace placeOfUser(PreviewPlace place)
{
    const auto folder = std::make_shared<WorkFolder>();
    if (!folder->isValid())
        return failed(Kestrune::tr("There is no preview: %1").arg(folder->errorString()));
    place.machine = folder->filePath(u"machine"_s);
    place.isWhole = false;
    place.hold = folder;
    return place;
}

} // namespace

PreviewPlace previewPlace()
{
    const QString program = QCoreApplication::applicationDirPath() + u"/rehearse/kestrune-rehearse.exe"_s;
    if (!QFile::exists(program))
        return failed(Kestrune::tr("A preview needs the folder “rehearse” of this app, which isn't there."));
    PreviewPlace place{.program = program, .machine = {}, .isCaptured = true};
    return platform().isElevated() ? placeWithRights(place) : placeOfUser(place);
}
