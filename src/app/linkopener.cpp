// SPDX-License-Identifier: GPL-3.0-or-later

#include "linkopener.h"

#include "platform/windows/desktopshell.h"
#include "platform/windows/heldfile.h"
#include "platform/windows/systemfolders.h"
#include "startmodescript.h"

#include <QDesktopServices>
#include <QDir>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

constexpr DWORD longestScript = 1 << 20; // bytes; a PC has some hundred services
const QString schemes[] = {u"file"_s, u"http"_s, u"https"_s, u"mailto"_s};

/** Starts the registry editor, which asks the user; the file stays as it was looked at until the editor has ended. */
void openByRegistryEditor(const std::shared_ptr<HeldFile> &script)
{
    auto *editor = new QProcess; // without a parent, which would end it with the program
    const auto forget = [editor, script] { editor->deleteLater(); };
    QObject::connect(editor, &QProcess::finished, editor, forget);
    QObject::connect(editor, &QProcess::errorOccurred, editor, forget);
    editor->setProgram(windowsFolder() + u"\\regedit.exe"_s);
    editor->setNativeArguments(u'"' + script->place() + u'"');
    editor->start();
}

} // namespace

LinkOpener::LinkOpener()
{
    for (const QString &scheme : schemes)
        QDesktopServices::setUrlHandler(scheme, this, "open");
}

LinkOpener::~LinkOpener()
{
    for (const QString &scheme : schemes)
        QDesktopServices::unsetUrlHandler(scheme);
}

void LinkOpener::open(const QUrl &address)
{
    if (!address.isLocalFile()) {
        openByDesktop(QString::fromLatin1(address.toEncoded()));
        return;
    }
    const QString file = QDir::toNativeSeparators(address.toLocalFile());
    const auto script = std::make_shared<HeldFile>(file);
    const std::optional<QByteArray> content = script->read(longestScript);
    if (!script->place().isEmpty() && content && setsStartModesOnly(*content))
        openByRegistryEditor(script);
    else
        openByDesktop(file);
}
