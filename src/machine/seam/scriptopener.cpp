// SPDX-License-Identifier: GPL-3.0-or-later
// What opens files and pages for the window of a rehearsal.

#include "scriptopener.h"

#include "machine/machine.h"
#include "machine/source/regfile.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

const ScriptOpener *current = nullptr; // a later one takes over before the former goes
// A page in the web would be shown by a program of the host's.
const QString schemes[] = {u"file"_s, u"http"_s, u"https"_s, u"mailto"_s};

} // namespace

ScriptOpener::ScriptOpener(Machine &machine, bool elevated)
    : machine_(machine)
    , elevated_(elevated)
{
    for (const QString &scheme : schemes)
        QDesktopServices::setUrlHandler(scheme, this, "open");
    current = this;
}

ScriptOpener::~ScriptOpener()
{
    // After the application Qt's own list of handlers is gone, too.
    if (current != this || !QCoreApplication::instance())
        return;
    for (const QString &scheme : schemes)
        QDesktopServices::unsetUrlHandler(scheme);
    current = nullptr;
}

void ScriptOpener::open(const QUrl &address)
{
    if (!address.isLocalFile()) {
        qInfo("A rehearsal opens no page of the web: %s", qUtf8Printable(address.toString()));
        return;
    }
    const QString path = address.toLocalFile();
    if (!elevated_ || !path.endsWith(u".reg", Qt::CaseInsensitive))
        return;
    QFile file(machine_.hostPath(path));
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("%s: %s", qUtf8Printable(file.fileName()), qUtf8Printable(file.errorString()));
        return;
    }
    try {
        const QList<RegistryEdit> edits = parseRegistryScript(file.readAll(), file.fileName());
        applyRegistryScript(machine_.database(), machine_.registry(), edits);
    } catch (const MachineError &error) {
        qWarning("%s", qUtf8Printable(error.message));
    }
}
