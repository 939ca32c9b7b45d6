// SPDX-License-Identifier: GPL-3.0-or-later

#include "profile.h"

#include "console/printable.h"
#include "work/keepfeatures.h"
#include "work/packages/packages.h"
#include "work/services/services.h"
#include "work/tasks/tasks.h"
#include "work/tweaks/tweakcatalogue.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int formatVersion = 1;
constexpr qsizetype mostTexts = 1000; ///< in one array, all of which are compared with each other

/** "line:column" of a byte. */
QString jsonPlace(const QByteArray &json, qsizetype offset)
{
    const QByteArray before = json.first(std::clamp<qsizetype>(offset, 0, json.size()));
    return u"%1:%2"_s.arg(before.count('\n') + 1).arg(before.size() - before.lastIndexOf('\n'));
}

/** Where the parts of a document stand that is known to be JSON, down to the deepest ones of a profile. */
class JsonPlaces
{
public:
    explicit JsonPlaces(const QByteArray &json);

    /**
     * "line:column" of a part, both from 1, columns in bytes; of the whole document where there is no such part.
     * @param path "/tweaks/ssd1" of a key, "/never/0" of an element
     */
    QString of(const QString &path) const { return places_.value(path, QStringLiteral("1:1")); }
    /** Paths of keys that stand in one object twice. */
    QStringList twice() const { return twice_; }

private:
    static constexpr int deepest = 2; ///< levels of a path

    void readValue(const QString &path, int level);
    void readObject(const QString &path, int level);
    void readArray(const QString &path, int level);
    QString readText();
    void skipBlanks();
    QString here();

    const QByteArray json_;
    qsizetype at_ = 0;
    // Of what has been counted so far: the place moves on and never back.
    qsizetype counted_ = 0;
    qsizetype line_ = 1;
    qsizetype lineStart_ = 0;
    QHash<QString, QString> places_;
    QStringList twice_;
};

JsonPlaces::JsonPlaces(const QByteArray &json)
    : json_(json)
{
    readValue({}, 0);
}

QString JsonPlaces::here()
{
    for (; counted_ < std::min(at_, json_.size()); ++counted_) {
        if (json_.at(counted_) == '\n') {
            ++line_;
            lineStart_ = counted_ + 1;
        }
    }
    return u"%1:%2"_s.arg(line_).arg(at_ - lineStart_ + 1);
}

void JsonPlaces::skipBlanks()
{
    while (at_ < json_.size() && QByteArrayView(" \t\r\n").contains(json_.at(at_)))
        ++at_;
}

void JsonPlaces::readValue(const QString &path, int level)
{
    skipBlanks();
    if (level <= deepest && !places_.contains(path))
        places_.insert(path, here());
    const char first = at_ < json_.size() ? json_.at(at_) : '\0';
    if (first == '{') {
        readObject(path, level);
    } else if (first == '[') {
        readArray(path, level);
    } else if (first == '"') {
        readText();
    } else {
        while (at_ < json_.size() && !QByteArrayView(",]} \t\r\n").contains(json_.at(at_)))
            ++at_;
    }
}

void JsonPlaces::readObject(const QString &path, int level)
{
    ++at_;
    for (skipBlanks(); at_ < json_.size() && json_.at(at_) != '}'; skipBlanks()) {
        const QString place = here();
        const QString name = readText();
        QString key;
        if (level < deepest) {
            key = path + u'/' + name;
            if (places_.contains(key))
                twice_.append(key);
            places_.insert(key, place);
        }
        skipBlanks();
        ++at_; // the colon
        readValue(key, level + 1);
        skipBlanks();
        if (at_ < json_.size() && json_.at(at_) == ',')
            ++at_;
    }
    ++at_;
}

void JsonPlaces::readArray(const QString &path, int level)
{
    ++at_;
    qsizetype index = 0;
    for (skipBlanks(); at_ < json_.size() && json_.at(at_) != ']'; skipBlanks()) {
        readValue(level < deepest ? path + u'/' + QString::number(index) : QString(), level + 1);
        ++index;
        skipBlanks();
        if (at_ < json_.size() && json_.at(at_) == ',')
            ++at_;
    }
    ++at_;
}

QString JsonPlaces::readText()
{
    const qsizetype start = at_;
    ++at_;
    while (at_ < json_.size() && json_.at(at_) != '"')
        at_ += json_.at(at_) == '\\' ? 2 : 1;
    ++at_;
    const QByteArray text = json_.sliced(start, std::min(at_, json_.size()) - start);
    return QJsonDocument::fromJson('[' + text + ']').array().at(0).toString();
}

bool isIn(const QStringList &names, const QString &name)
{
    return names.contains(name, Qt::CaseInsensitive);
}

const KeepFeature *featureOf(const QString &name)
{
    const auto found = std::find_if(keepFeatures.begin(), keepFeatures.end(),
                                    [&name](const KeepFeature &each) { return each.name == name; });
    return found == keepFeatures.end() ? nullptr : &*found;
}

bool isKnownService(const QString &name)
{
    return isIn(nonVitalServiceNames(), name) || isIn(manualStartServiceNames(), name) || isIn(criticalServices, name)
           || std::any_of(keepFeatures.begin(), keepFeatures.end(),
                          [&name](const KeepFeature &each) { return isIn(each.services, name); });
}

bool isKnownTask(const QString &path)
{
    const QString name = path.section(u'\\', -1);
    const QStringList prefixes = nonVitalTaskPrefixes();
    return isIn(nonVitalTaskNames(), name)
           || std::any_of(prefixes.cbegin(), prefixes.cend(),
                          [&name](const QString &each) { return name.startsWith(each, Qt::CaseInsensitive); })
           || std::any_of(keepFeatures.begin(), keepFeatures.end(),
                          [&name](const KeepFeature &each) { return each.hasTask(name); });
}

bool isKnownPackage(const QString &name)
{
    return isIn(removablePackageNames(), name)
           || std::any_of(keepFeatures.begin(), keepFeatures.end(),
                          [&name](const KeepFeature &each) { return isIn(each.packages, name); });
}

/** What starts at logon is in no catalogue: it comes with the programs of a PC. */
bool isKnownStartup(const QString &)
{
    return true;
}

QString withoutBackslash(const QString &path)
{
    return path.startsWith(u'\\') ? path.sliced(1) : path;
}

/** Letters as names are compared, without regard to case; each stays one. */
QList<uint> foldedLetters(const QString &text)
{
    QList<uint> letters = text.toUcs4();
    for (uint &letter : letters)
        letter = QChar::toCaseFolded(letter);
    return letters;
}

/** Whether a pattern means a name: "*" stands for any letters, "?" for one. A backslash is a letter like any other. */
bool meansName(const QList<uint> &pattern, const QList<uint> &name)
{
    qsizetype at = 0;
    qsizetype done = 0;  // of the name
    qsizetype star = -1; // the last one, and
    qsizetype end = 0;   // where what it stands for ends so far: an earlier one needn't take more
    while (done < name.size()) {
        if (at < pattern.size() && pattern.at(at) == u'*') {
            star = at++;
            end = done;
        } else if (at < pattern.size() && (pattern.at(at) == u'?' || pattern.at(at) == name.at(done))) {
            ++at;
            ++done;
        } else if (star >= 0) {
            at = star + 1;
            done = ++end;
        } else {
            return false;
        }
    }
    return std::all_of(pattern.cbegin() + at, pattern.cend(), [](uint letter) { return letter == u'*'; });
}

struct NamesRow
{
    QLatin1StringView key;
    QStringList Profile::*names;
    bool (*isKnown)(const QString &name);
    QLatin1StringView thing;
};

// clang-format off
constexpr NamesRow namesRows[] = {
    {"services"_L1, &Profile::services, isKnownService, "service"_L1},
    {"tasks"_L1,    &Profile::tasks,    isKnownTask,    "scheduled task"_L1},
    {"packages"_L1, &Profile::packages, isKnownPackage, "package"_L1},
    {"startup"_L1,  &Profile::startup,  isKnownStartup, "program at logon"_L1},
};

constexpr QLatin1StringView otherKeys[] = {
    "$schema"_L1, "$comment"_L1, "formatVersion"_L1, "description"_L1, "user"_L1, "keep"_L1, "programs"_L1, "features"_L1,
    "tweaks"_L1, "never"_L1,
};
// clang-format on

QStringList featureNames()
{
    QStringList names;
    for (const KeepFeature &feature : keepFeatures)
        names.append(feature.name);
    return names;
}

QStringList tweakNames()
{
    QStringList names;
    for (const TweakBox &box : tweakBoxes())
        names.append(tweakName(box.name));
    return names;
}

/** Takes a document apart and keeps what is wrong with it. */
class ProfileReader
{
public:
    ProfileReader(const QByteArray &json, const QString &fileName, ProfileMistakes &mistakes,
                  bool (*isOnPc)(const QString &key, const QString &name))
        : json_(json)
        , fileName_(fileName)
        , mistakes_(mistakes)
        , isOnPc_(isOnPc)
    {
    }

    Profile read()
    {
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(json_, &error);
        if (error.error != QJsonParseError::NoError) {
            add(jsonPlace(json_, error.offset), error.errorString());
            return {};
        }
        places_.emplace(json_);
        if (!document.isObject()) {
            complain({}, u"must be an object"_s);
            return {};
        }
        for (const QString &path : places_->twice())
            complain(path, u"'%1' stands here for the second time"_s.arg(path.section(u'/', -1)));
        root_ = document.object();
        checkKeys();
        readSettings();
        readNames();
        checkContradictions();
        return profile_;
    }

private:
    void add(const QString &place, const QString &what)
    {
        mistakes_.append(fileName_ + u':' + place + u": "_s + printable(what));
    }
    void complain(const QString &path, const QString &what) { add(places_->of(path), what); }

    void checkKeys()
    {
        QStringList known(std::begin(otherKeys), std::end(otherKeys));
        for (const NamesRow &row : namesRows)
            known.append(row.key);
        for (const QString &key : root_.keys()) {
            if (!known.contains(key))
                complain(u'/' + key, u"unknown key '%1'"_s.arg(key));
        }
    }

    void readSettings()
    {
        if (!root_.contains("formatVersion"_L1))
            complain({}, u"'formatVersion' is missing: it is %1"_s.arg(formatVersion));
        else if (root_.value("formatVersion"_L1) != formatVersion)
            complain(u"/formatVersion"_s, u"must be %1"_s.arg(formatVersion));
        for (const QLatin1StringView key : {"$schema"_L1, "$comment"_L1, "description"_L1}) {
            if (root_.contains(key) && !root_.value(key).isString())
                complain(u'/' + key, u"must be a text"_s);
        }
        if (root_.contains("user"_L1)) {
            const QString rule = root_.value("user"_L1).toString();
            if (rule != "refuse"_L1 && rule != "skip"_L1)
                complain(u"/user"_s, u"must be \"refuse\" or \"skip\""_s);
            profile_.user = rule == "skip"_L1 ? UserRule::Skip : UserRule::Refuse;
        }
        readSwitch(u"programs"_s, profile_.programs);
        readSwitch(u"features"_s, profile_.features);
        profile_.keep = readSwitches(u"keep"_s, featureNames(), u"feature"_s);
        profile_.tweaks = readSwitches(u"tweaks"_s, tweakNames(), u"option"_s);
    }

    void readSwitch(const QString &key, bool &into)
    {
        if (!root_.contains(key))
            return;
        if (root_.value(key).isBool())
            into = root_.value(key).toBool();
        else
            complain(u'/' + key, u"must be true or false"_s);
    }

    QMap<QString, bool> readSwitches(const QString &key, const QStringList &known, const QString &thing)
    {
        QMap<QString, bool> switches;
        if (!root_.contains(key))
            return switches;
        if (!root_.value(key).isObject()) {
            complain(u'/' + key, u"must be an object"_s);
            return switches;
        }
        const QJsonObject object = root_.value(key).toObject();
        for (auto each = object.constBegin(); each != object.constEnd(); ++each) {
            const QString path = u'/' + key + u'/' + each.key();
            if (!known.contains(each.key()))
                complain(path, u"there is no %1 '%2'; there are %3"_s.arg(thing, each.key(), known.join(", "_L1)));
            else if (!each.value().isBool())
                complain(path, u"must be true or false"_s);
            else
                switches.insert(each.key(), each.value().toBool());
        }
        return switches;
    }

    /** An array of the document; empty where there is none, or one that is too long. */
    QJsonArray arrayOf(const QString &key) const
    {
        const QJsonArray array = root_.value(key).toArray();
        return array.size() > mostTexts ? QJsonArray() : array;
    }

    QStringList readTexts(const QString &key)
    {
        QStringList texts;
        const QJsonValue value = root_.value(key);
        if (value.isUndefined())
            return texts;
        if (!value.isArray())
            complain(u'/' + key, u"must be an array of texts"_s);
        if (value.toArray().size() > mostTexts)
            complain(u'/' + key, u"must have at most %1 texts"_s.arg(mostTexts));
        const QJsonArray array = arrayOf(key);
        for (qsizetype i = 0; i < array.size(); ++i) {
            const QString path = u"/%1/%2"_s.arg(key).arg(i);
            const QString text = array.at(i).toString();
            if (text.isEmpty())
                complain(path, u"must be a text that isn't empty"_s);
            else if (isIn(texts, text))
                complain(path, u"'%1' stands here for the second time"_s.arg(text));
            else
                texts.append(text);
        }
        return texts;
    }

    void readNames()
    {
        for (const NamesRow &row : namesRows) {
            const QStringList names = readTexts(row.key);
            for (const QString &name : names) {
                const bool isKnown = row.isKnown(name) || (isOnPc_ != nullptr && isOnPc_(row.key, name));
                if (!isKnown)
                    complain(pathOf(row.key, name),
                             u"no catalogue knows the %1 '%2', and this PC doesn't have it"_s.arg(row.thing, name));
                (profile_.*row.names).append(row.key == "tasks"_L1 ? withoutBackslash(name) : name);
            }
        }
        profile_.never = readTexts(u"never"_s);
    }

    /** The place of a name in an array. */
    QString pathOf(const QString &key, const QString &name) const
    {
        const QJsonArray array = arrayOf(key);
        qsizetype index = 0;
        while (index < array.size() && array.at(index).toString() != name)
            ++index;
        return u"/%1/%2"_s.arg(key).arg(index);
    }

    void checkContradictions()
    {
        for (const NamesRow &row : namesRows) {
            const QJsonArray array = arrayOf(row.key);
            for (qsizetype i = 0; i < array.size(); ++i) {
                const QString name = array.at(i).toString();
                if (!name.isEmpty() && profile_.isLeftAlone(name))
                    complain(u"/%1/%2"_s.arg(row.key).arg(i), u"'%1' is in 'never', too"_s.arg(name));
            }
        }
        for (const QString &name : std::as_const(profile_.services)) {
            if (isIn(criticalServices, name))
                complain(pathOf(u"services"_s, name), u"Windows can't do without the service '%1'"_s.arg(name));
        }
        for (auto each = profile_.tweaks.cbegin(); each != profile_.tweaks.cend(); ++each) {
            const QString path = u"/tweaks/"_s + each.key();
            if (each.value() && !profile_.features)
                complain(path, u"'features' is false, so no option is put in force"_s);
            if (each.value() && profile_.isLeftAlone(each.key()))
                complain(path, u"'%1' is in 'never', too"_s.arg(each.key()));
        }
        for (const QLatin1StringView key : {"packages"_L1, "startup"_L1}) {
            if (!profile_.programs && !root_.value(key).toArray().isEmpty())
                complain(u'/' + key, u"'programs' is false, so none of these is switched off"_s);
        }
        for (auto each = profile_.keep.cbegin(); each != profile_.keep.cend(); ++each) {
            if (each.value())
                checkKept(*featureOf(each.key()));
        }
    }

    /** Nothing of a feature that is kept may be named to be switched off. */
    void checkKept(const KeepFeature &feature)
    {
        for (const QString &name : std::as_const(profile_.services)) {
            if (isIn(feature.services, name))
                complainKept(u"services"_s, name, feature);
        }
        for (const QString &name : std::as_const(profile_.packages)) {
            if (isIn(feature.packages, name))
                complainKept(u"packages"_s, name, feature);
        }
    }

    void complainKept(const QString &key, const QString &name, const KeepFeature &feature)
    {
        complain(pathOf(key, name), u"'%1' belongs to '%2', which is kept"_s.arg(name, feature.name));
    }

    QByteArray json_;
    QString fileName_;
    ProfileMistakes &mistakes_;
    bool (*isOnPc_)(const QString &key, const QString &name);
    std::optional<JsonPlaces> places_;
    QJsonObject root_;
    Profile profile_;
};

QJsonObject textsSchema(const QString &description)
{
    return {{u"description"_s, description},
            {u"type"_s, u"array"_s},
            {u"uniqueItems"_s, true},
            {u"maxItems"_s, int(mostTexts)},
            {u"items"_s, QJsonObject{{u"type"_s, u"string"_s}, {u"minLength"_s, 1}}}};
}

QJsonObject switchesSchema(const QStringList &names, const QString &description)
{
    QJsonObject properties;
    for (const QString &name : names)
        properties.insert(name, QJsonObject{{u"type"_s, u"boolean"_s}});
    return {{u"description"_s, description},
            {u"type"_s, u"object"_s},
            {u"additionalProperties"_s, false},
            {u"properties"_s, properties}};
}

QJsonObject switchSchema(const QString &description)
{
    return {{u"description"_s, description}, {u"type"_s, u"boolean"_s}, {u"default"_s, true}};
}

} // namespace

bool Profile::leavesOut() const
{
    const auto isOff = [](bool on) { return !on; };
    return leavesOutUser || !never.isEmpty() || std::any_of(tweaks.cbegin(), tweaks.cend(), isOff);
}

bool Profile::isLeftAlone(const QString &name) const
{
    const QList<uint> letters = foldedLetters(withoutBackslash(name));
    return std::any_of(never.cbegin(), never.cend(), [&letters](const QString &pattern) {
        return meansName(foldedLetters(withoutBackslash(pattern)), letters);
    });
}

QString tweakName(const QString &box)
{
    return box.sliced(3).toLower();
}

QString boxOfTweak(const QString &name)
{
    for (const TweakBox &box : tweakBoxes()) {
        if (tweakName(box.name) == name)
            return box.name;
    }
    return {};
}

Profile parseProfile(const QByteArray &json, const QString &fileName, ProfileMistakes &mistakes,
                     bool (*isOnPc)(const QString &key, const QString &name))
{
    return ProfileReader(json, fileName, mistakes, isOnPc).read();
}

QByteArray profileTemplate()
{
    QString keep;
    for (const QString &name : featureNames())
        keep += u"%1\n    \"%2\": true"_s.arg(keep.isEmpty() ? QString() : u","_s, name);
    return (u"{\n"
            "  \"$schema\": \"profile.schema.json\",\n"
            "  \"formatVersion\": 1,\n"
            "  \"description\": \"What this profile is for\",\n"
            "  \"user\": \"refuse\",\n"
            "  \"keep\": {"_s
            + keep
            + u"\n  },\n"
              "  \"programs\": true,\n"
              "  \"features\": true,\n"
              "  \"tweaks\": {},\n"
              "  \"services\": [],\n"
              "  \"tasks\": [],\n"
              "  \"packages\": [],\n"
              "  \"startup\": [],\n"
              "  \"never\": []\n"
              "}\n"_s)
        .toUtf8();
}

QByteArray profileSchema()
{
    const QJsonObject properties{
        {u"$schema"_s, QJsonObject{{u"type"_s, u"string"_s}}},
        {u"$comment"_s, QJsonObject{{u"type"_s, u"string"_s}}},
        {u"formatVersion"_s, QJsonObject{{u"const"_s, formatVersion}}},
        {u"description"_s,
         QJsonObject{{u"description"_s, u"What the profile is for, for people"_s}, {u"type"_s, u"string"_s}}},
        {u"user"_s,
         QJsonObject{
             {u"description"_s,
              u"Run as the system, or as an account other than the one signed in: refuse the profile, or skip what belongs to a user"_s},
             {u"enum"_s, QJsonArray{u"refuse"_s, u"skip"_s}},
             {u"default"_s, u"refuse"_s}}},
        {u"keep"_s,
         switchesSchema(featureNames(), u"Features to keep or give up; others as in the Keep list of the PC"_s)},
        {u"programs"_s, switchSchema(u"Packaged applications and programs started at logon"_s)},
        {u"features"_s, switchSchema(u"The options"_s)},
        {u"tweaks"_s, switchesSchema(tweakNames(), u"Options: true puts in force, false leaves alone"_s)},
        {u"services"_s, textsSchema(u"Services to disable in addition, by their key names"_s)},
        {u"tasks"_s, textsSchema(u"Scheduled tasks to disable in addition, by their paths"_s)},
        {u"packages"_s, textsSchema(u"Packages to remove in addition, by their names"_s)},
        {u"startup"_s, textsSchema(u"Programs to keep from starting at logon in addition, by their names"_s)},
        {u"never"_s, textsSchema(u"What is left alone, whatever the other keys say; * and ? are wildcards"_s)},
    };
    return QJsonDocument(QJsonObject{{u"$schema"_s, u"https://json-schema.org/draft/2020-12/schema"_s},
                                     {u"title"_s, u"Kestrune profile"_s},
                                     {u"type"_s, u"object"_s},
                                     {u"required"_s, QJsonArray{u"formatVersion"_s}},
                                     {u"additionalProperties"_s, false},
                                     {u"properties"_s, properties}})
        .toJson();
}
