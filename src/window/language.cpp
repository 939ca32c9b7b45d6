// SPDX-License-Identifier: GPL-3.0-or-later
// Which language the window speaks.

#include "kestrune.h"

#include "platform/platform.h"
#include "work/settings.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

/** The one that is installed, or was and found nothing to load. */
std::unique_ptr<QTranslator> translator;

/** The file for a language tag; Qt drops the country where there is no file for both. */
QString translationFile(const QString &tag)
{
    return platform().resourceFolder() + u"/Translations/lang_"_s + tag + u".qm"_s;
}

/** A file that can't be read leaves the form's English. */
bool install(const QString &file)
{
    // A worker may be asking the installed translator at this moment: it stays as it is until it is taken out.
    auto fresh = std::make_unique<QTranslator>();
    const bool loaded = fresh->load(file);
    if (translator)
        QCoreApplication::removeTranslator(translator.get());
    translator = std::move(fresh);
    // A language without texts, which is English, isn't installed in Qt's eyes, and is seen all the same.
    if (loaded)
        QCoreApplication::installTranslator(translator.get());
    return loaded;
}

/** Whether texts may be other ones than the form's English. */
bool isTranslated()
{
    return translator != nullptr && !translator->isEmpty();
}

} // namespace

void Kestrune::speak(const QString &tag, const QString &stored)
{
    if (!install(translationFile(tag)))
        return;
    openSettings()->setValue(u"lang"_s, stored);
    currentLang = tag;
}

void Kestrune::speakChosen(int index)
{
    // Without its file a language that was chosen by name changes nothing; under Auto there is English then.
    if (index == English && QFile::exists(translationFile(u"en_US"_s)))
        speak(u"en_US"_s, u"en"_s);
    else if (index == French && QFile::exists(translationFile(u"fr_FR"_s)))
        speak(u"fr_FR"_s, u"fr"_s);
    else if (index == Auto)
        speak(QLocale::system().name(), u"auto"_s);
}

void Kestrune::onCbOptionsLangSelectionChanged(int index)
{
    speakChosen(index);
    sayAllAnew();
}

void Kestrune::sayAllAnew()
{
    ui.retranslateUi(this);
    growRichTexts();
    explainTweaks();
    applyPalette();
    if (currentPage() == 7)
        showPage(7);
}

void Kestrune::startLanguage()
{
    const QString stored = openSettings()->value(u"lang"_s, u"auto"_s).toString();
    const std::pair<QLatin1StringView, LanguageChoice> choices[] = {
        {"en"_L1, English},
        {"fr"_L1, French},
        {"auto"_L1, Auto},
    };
    for (const auto &[name, language] : choices) {
        if (stored != name)
            continue;
        ui.cbOptionsLang->setCurrentIndex(language);
        // The form is English by itself, and all of it has just been made.
        if (language == English)
            continue;
        const bool wasTranslated = isTranslated();
        speakChosen(language);
        if (wasTranslated || isTranslated())
            sayAllAnew();
    }
}
