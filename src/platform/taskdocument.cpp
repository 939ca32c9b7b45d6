// SPDX-License-Identifier: GPL-3.0-or-later

#include "taskdocument.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <iterator>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestTag = 4096;
constexpr int mostLevels = 64;

const QString switchedOff = u"<Enabled>false</Enabled>"_s;

/** A stretch of a text; it isn't there while its start is negative. */
struct Stretch
{
    qsizetype start = -1;
    qsizetype end = -1;

    bool isThere() const { return start >= 0; }
};

/** Where the parts of a document stand that its switch is about. */
struct Places
{
    Stretch settings; ///< between the tags
    Stretch enabled;  ///< the whole element of Settings
    qsizetype behindBatteryRules = -1;
    bool emptySettings = false; ///< "<Settings/>": its stretch is the whole element
};

/** Reads the elements directly below the one that was just begun, telling each when it has ended. */
template<typename Take>
void readChildren(QXmlStreamReader &reader, Take take)
{
    while (!reader.atEnd() && reader.readNextStartElement())
        take(reader.name());
}

qsizetype offset(const QXmlStreamReader &reader)
{
    return static_cast<qsizetype>(reader.characterOffset());
}

void findInSettings(QXmlStreamReader &reader, const QString &document, Places &places)
{
    readChildren(reader, [&](QStringView name) {
        const bool isEnabled = name == "Enabled"_L1;
        const bool isBatteryRule = name == "DisallowStartIfOnBatteries"_L1 || name == "StopIfGoingOnBatteries"_L1;
        const qsizetype start = document.lastIndexOf(u'<', offset(reader) - 1);
        reader.skipCurrentElement();
        if (isEnabled)
            places.enabled = {start, offset(reader)};
        if (isBatteryRule)
            places.behindBatteryRules = offset(reader);
    });
}

/** Empty where the document is malformed. */
std::optional<Places> findPlaces(const QString &document)
{
    Places places;
    if (!taskExtent(document).problem.isEmpty())
        return std::nullopt;
    QXmlStreamReader reader(document);
    if (!reader.readNextStartElement())
        return std::nullopt;
    readChildren(reader, [&](QStringView name) {
        if (name != "Settings"_L1) {
            reader.skipCurrentElement();
            return;
        }
        const qsizetype behindTag = offset(reader);
        places.emptySettings = document.at(behindTag - 2) == u'/';
        findInSettings(reader, document, places);
        const qsizetype end = document.lastIndexOf(u'<', offset(reader) - 1);
        places.settings = places.emptySettings ? Stretch{end, behindTag} : Stretch{behindTag, end};
    });
    // After its end, too, nothing else stands.
    while (!reader.atEnd())
        reader.readNext();
    return reader.hasError() ? std::nullopt : std::optional(places);
}

void readPrincipal(QXmlStreamReader &reader, TaskFacts &facts)
{
    static constexpr QLatin1StringView systemNames[] = {"S-1-5-18"_L1, "SYSTEM"_L1, "NT AUTHORITY\\SYSTEM"_L1};

    readChildren(reader, [&](QStringView name) {
        const bool isUser = name == "UserId"_L1;
        const bool isRunLevel = name == "RunLevel"_L1;
        const QString text = reader.readElementText(QXmlStreamReader::IncludeChildElements).trimmed();
        if (isRunLevel && text == "HighestAvailable"_L1)
            facts.forAdministrators = true;
        for (const QLatin1StringView system : systemNames) {
            if (isUser && text.compare(system, Qt::CaseInsensitive) == 0)
                facts.forAdministrators = true;
        }
    });
}

void readRegistrationInfo(QXmlStreamReader &reader, TaskFacts &facts)
{
    readChildren(reader, [&](QStringView name) {
        QString *fact = name == "URI"_L1 ? &facts.uri : name == "Description"_L1 ? &facts.description : nullptr;
        const QString text = reader.readElementText(QXmlStreamReader::IncludeChildElements).trimmed();
        if (fact != nullptr)
            *fact = text;
    });
}

void readPrincipals(QXmlStreamReader &reader, TaskFacts &facts)
{
    readChildren(reader, [&](QStringView name) {
        if (name == "Principal"_L1)
            readPrincipal(reader, facts);
        else
            reader.skipCurrentElement();
    });
}

void readSettings(QXmlStreamReader &reader, TaskFacts &facts)
{
    readChildren(reader, [&](QStringView name) {
        const bool isEnabled = name == "Enabled"_L1;
        const QString text = reader.readElementText(QXmlStreamReader::IncludeChildElements).trimmed();
        if (isEnabled)
            facts.enabled = text != "false"_L1 && text != "0"_L1;
    });
}

struct SectionRow
{
    QLatin1StringView name;
    void (*read)(QXmlStreamReader &reader, TaskFacts &facts);
};

// clang-format off
constexpr SectionRow sections[] = {
    {"RegistrationInfo"_L1, readRegistrationInfo},
    {"Principals"_L1,       readPrincipals},
    {"Settings"_L1,         readSettings},
};
// clang-format on

/** The place after the next @p part; negative where there is none. */
qsizetype placeAfter(QStringView text, QLatin1StringView part, qsizetype from)
{
    const qsizetype found = text.indexOf(part, from);
    return found < 0 ? -1 : found + part.size();
}

/** The place after a tag, whose values may have brackets of their own; negative where it doesn't end. */
qsizetype endOfTag(QStringView text, qsizetype start)
{
    const qsizetype last = std::min(text.size(), start + longestTag);
    QChar quote;
    for (qsizetype at = start; at < last; ++at) {
        const QChar unit = text.at(at);
        if (!quote.isNull())
            quote = unit == quote ? QChar() : quote;
        else if (unit == u'"' || unit == u'\'')
            quote = unit;
        else if (unit == u'>')
            return at + 1;
    }
    return -1;
}

/** The line break and the blanks before a place. */
qsizetype startOfIndentation(const QString &document, qsizetype place)
{
    while (place > 0 && document.at(place - 1).isSpace())
        --place;
    return place;
}

} // namespace

TaskExtent taskExtent(QStringView text)
{
    int level = 0;
    for (qsizetype at = text.indexOf(u'<'); at >= 0; at = text.indexOf(u'<', at)) {
        const QStringView rest = text.sliced(at);
        const qsizetype start = at;
        const bool isComment = rest.startsWith("<!--"_L1);
        const bool isText = rest.startsWith("<![CDATA["_L1);
        const bool isTag = !isComment && !isText && !rest.startsWith("<?"_L1);
        if (isComment)
            at = placeAfter(text, "-->"_L1, start + 4);
        else if (isText)
            at = placeAfter(text, "]]>"_L1, start);
        else
            at = isTag ? endOfTag(text, start) : placeAfter(text, "?>"_L1, start);
        if (at < 0 && isTag && rest.size() > longestTag)
            return {start, u"a tag of more than %1 characters"_s.arg(longestTag)};
        if (at < 0)
            return {};
        if (!isTag)
            continue;
        if (text.at(start + 1) == u'/')
            --level;
        else if (text.at(at - 2) != u'/')
            ++level;
        if (level > mostLevels)
            return {start, u"elements of more than %1 levels"_s.arg(mostLevels)};
        if (level <= 0)
            return {at};
    }
    return {};
}

TaskFacts taskFacts(const QString &document)
{
    TaskFacts facts;
    if (!taskExtent(document).problem.isEmpty())
        return facts;
    QXmlStreamReader reader(document);
    if (!reader.readNextStartElement())
        return facts;
    readChildren(reader, [&](QStringView name) {
        const auto section = std::find_if(std::begin(sections), std::end(sections),
                                          [&](const SectionRow &row) { return row.name == name; });
        if (section != std::end(sections))
            section->read(reader, facts);
        else
            reader.skipCurrentElement();
    });
    return facts;
}

QString withTaskEnabled(const QString &document, bool enabled)
{
    const std::optional<Places> places = findPlaces(document);
    QString result = document;
    if (!places)
        return result;
    if (places->enabled.isThere()) {
        const qsizetype start = enabled ? startOfIndentation(document, places->enabled.start) : places->enabled.start;
        return result.replace(start, places->enabled.end - start, enabled ? QString() : switchedOff);
    }
    if (enabled)
        return result;
    if (places->behindBatteryRules >= 0)
        return result.insert(places->behindBatteryRules, u"\n    "_s + switchedOff);
    const QString settings = u"<Settings>\n    "_s + switchedOff + u"\n  </Settings>"_s;
    if (places->emptySettings)
        return result.replace(places->settings.start, places->settings.end - places->settings.start, settings);
    if (places->settings.isThere())
        return result.insert(places->settings.start, u"\n    "_s + switchedOff);
    const qsizetype end = startOfIndentation(document, document.lastIndexOf("</Task>"_L1));
    return result.insert(end, u"\n  "_s + settings);
}
