// SPDX-License-Identifier: GPL-3.0-or-later
// What opens the registry scripts of a rehearsal, as the registry editor does on Windows.

#include "scriptopener.h"

#include "machine.h"
#include "regfile.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

const ScriptOpener *current = nullptr; // a later one takes over before the former goes

} // namespace

ScriptOpener::ScriptOpener(Machine &machine, bool elevated)
    : machine_(machine)
    , elevated_(elevated)
{
    QDesktopServices::setUrlHandler(u"file"_s, this, "open");
    current = this;
}

ScriptOpener::~ScriptOpener()
{
    // After the application Qt's own list of handlers is gone, too.
    if (current != this || !QCoreApplication::instance())
        return;
    QDesktopServices::unsetUrlHandler(u"file"_s);
    current = nullptr;
}

void ScriptOpener::open(const QUrl &address)
{
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
