// SPDX-License-Identifier: GPL-3.0-or-later
// Values of the registry and what is made of them: settings, descriptions, programs at logon, packages, neutral names.

#include "capture/neutralnames.h"
#include "fuzztarget.h"
#include "machine/machinekey.h"
#include "machine/registrydisplay.h"
#include "machine/seam/machineplatform.h"
#include "work/autorun/autorun.h"
#include "work/packages/packages.h"
#include "work/services/services.h"
#include "work/workthread.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/** An empty machine in force, which all inputs share. */
Machine &machineInForce()
{
    static const QTemporaryDir folder;
    static const bool isMade = [] {
        Machine::create(folder.filePath(u"machine"_s));
        setPlatform(std::make_unique<MachinePlatform>(folder.filePath(u"machine"_s), MachineOptions{}));
        return true;
    }();
    Q_UNUSED(isMade)
    return static_cast<MachinePlatform &>(platform()).machine();
}

} // namespace

/** Whatever bytes a value has, what is read of them can be written, and then reads the same. */
FUZZ_TARGET(registrybytes)
{
    if (input.isEmpty())
        return;
    const RegistryValue value{u"v"_s, RegistryType(quint32(quint8(input.at(0)) % 13)), input.sliced(1)};
    const QVariant read = variantOf(value);
    valueText(value);
    rawValueText(value);
    const QVariant again = variantOf(registryValueOf(u"v"_s, read));
    // Numbers in lists are texts then, so the texts of both are what counts.
    FUZZ_VERIFY(read.toStringList() == again.toStringList());
    FUZZ_VERIFY(textsOf(value.data).size() <= value.data.size());
}

FUZZ_TARGET(dllreference)
{
    const QString text = QString::fromUtf8(input);
    Machine &machine = machineInForce();
    expandResourceString(text);
    resolveResourceText(machine, text);
}

/** A program at logon is found again by what is shown and recorded of it. */
FUZZ_TARGET(autorunentry)
{
    machineInForce();
    const QString row = QString::fromUtf8(input);
    const AutorunEntry entry = autorunEntry(row);
    FUZZ_VERIFY(row.startsWith(entry.path));
    FUZZ_VERIFY(entry.path.endsWith(entry.name));
    const AutorunEntry shown = shownAutorunEntry(row);
    FUZZ_VERIFY(shown.path == entry.path);
    FUZZ_VERIFY(registryName(registryName(row)) == row);
    const RunValue value = runValueAt(entry.path);
    FUZZ_VERIFY(entry.path.isEmpty() || entry.path.endsWith(value.name));
    isPackagedTask(entry.name);
    hasPartedName(entry.path);
}

FUZZ_TARGET(packagename)
{
    const QString name = QString::fromUtf8(input);
    packageNameOf(name);
    packageComment(name);
    FUZZ_VERIFY(name.startsWith(recordedPackage(name)));
}

/** Of the keys of packages, whatever their names, those are listed that can be removed. */
FUZZ_TARGET(packagelist)
{
    RegistryStore &registry = machineInForce().registry();
    if (const auto key = registry.find(WindowsKey::userPackages))
        registry.removeKey(*key);
    for (const QString &name : QString::fromUtf8(input).split(u'\n'))
        registry.make(WindowsKey::userPackages + u'\\' + name);
    WorkThread worker;
    worker.analyzeRunning = 1; // nobody takes its lines
    worker.PackageGetList();
    const QStringList removable = worker.nonVitalPackages;
    for (const PackageRow &row : std::as_const(worker.packages)) {
        FUZZ_VERIFY(removable.contains(row.name));
        FUZZ_VERIFY(isPackageInstalled(row.name));
    }
}

/** No name of the PC or its users is left in what was captured. */
FUZZ_TARGET(neutralnames)
{
    NeutralNames names({{u"USERNAME"_s, u"Kimberley"_s},
                        {u"COMPUTERNAME"_s, u"ZEPHYR-PC"_s},
                        {u"USERPROFILE"_s, u"C:\\Users\\Kimberley"_s}});
    if (input.isEmpty())
        return;
    const RegistryType type = RegistryType(quint32(quint8(input.at(0)) % 8));
    MachineContents contents;
    contents.registry.append(
        {RegistryEdit::Kind::SetValue, u"HKEY_CURRENT_USER\\a"_s, RegistryValue{u"v"_s, type, input.sliced(1)}});
    names.replaceIn(contents);
    const QByteArray after = contents.registry.constFirst().value.data;
    // In a text itself a name that is part of another word stays, and the capture says so.
    const bool isText =
        type == RegistryType::String || type == RegistryType::ExpandString || type == RegistryType::MultiString;
    for (const TextForm form : {TextForm::Bytes, TextForm::Utf16}) {
        const QRegularExpression name = namesInBytes({u"Kimberley"_s, u"ZEPHYR-PC"_s}, form);
        for (auto found = name.globalMatch(QString::fromLatin1(after)); found.hasNext();)
            FUZZ_VERIFY(found.next().capturedStart() % 2 == 0 && isText && form == TextForm::Utf16);
    }
}
