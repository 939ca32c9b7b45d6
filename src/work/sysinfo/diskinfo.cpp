// SPDX-License-Identifier: GPL-3.0-or-later
// The report's part on the disks.

#include "reportsteps.h"
#include "wmifield.h"
#include "work/wmi.h"

using namespace Qt::StringLiterals;

namespace {

/** What each disk has of a property; the last element is the place of the disk that comes next. */
struct DiskTexts
{
    QStringList names{QString()};
    QStringList interfaces{QString()};
    QStringList sizes{u"0"_s};
};

void store(QStringList &texts, const QString &text)
{
    texts.last() = text;
    texts.append(QString());
}

/** Cuts what stands before a colon, the colon, and two characters behind it. */
QString behindColon(const QString &value)
{
    const qsizetype colon = value.indexOf(u':');
    return colon < 0 ? value : value.mid(colon + 3);
}

void readLine(const QString &line, DiskTexts &disks)
{
    constexpr qsizetype longestDiskName = 28;
    constexpr qint64 bytesInGibibyte = 1073741824;

    const auto caption = wmiField(line, u"Caption"_s, FieldEnd::Text);
    if (caption && !line.startsWith(u' '))
        store(disks.names, behindColon(*caption).remove(u"device"_s, Qt::CaseInsensitive).left(longestDiskName));
    if (const auto interface = wmiField(line, u"InterfaceType"_s, FieldEnd::Text))
        store(disks.interfaces, *interface);
    if (const auto size = wmiField(line, u"Size"_s, FieldEnd::Text))
        store(disks.sizes, QString::number(behindColon(*size).toLongLong() / bytesInGibibyte) + u" Go"_s);
}

QString describe(const QString &name, const QString &size, const QString &interface)
{
    return WorkThread::tr("Name:") + u"   "_s + name + u"<br>"_s + WorkThread::tr("Capacity:") + u"   "_s + size
           + u"<br>"_s + WorkThread::tr("Interface type:") + u' ' + interface;
}

} // namespace

void collectDisks(WorkThread &worker)
{
    const QString answer = WmiQuery(u"Win32_DiskDrive"_s, {u"Caption"_s, u"InterfaceType"_s, u"Size"_s});
    DiskTexts disks;
    if (answer.contains("\r\n"_L1)) {
        for (const QString &line : answer.split(u"\r\n"_s))
            readLine(line, disks);
    }
    disks.names.removeLast();
    QStringList descriptions;
    for (qsizetype i = 0; i < disks.names.size(); ++i)
        descriptions.append(describe(disks.names.at(i), disks.sizes.value(i), disks.interfaces.value(i)));
    worker.diskInfo = descriptions.join(u"<br><br>"_s);
}
