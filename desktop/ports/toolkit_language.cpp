#include "desktop/ports/toolkit_language.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include "desktop/ports/pack_font.h"
#include "desktop/ports/pack_locale.h"

namespace horavex {

namespace {

constexpr const char* kLanguage = "toolkitLanguage";  // of the application, by the locale's name

QTranslator& Translator() {
    auto* translator = qApp->findChild<QTranslator*>();
    return translator != nullptr ? *translator : *new QTranslator(qApp);
}

/// Every widget hears of a translator that comes or goes, so that none does without need.
void Translate(const QLocale& language) {
    if (qApp->property(kLanguage).toString() == language.name()) {
        return;
    }
    qApp->setProperty(kLanguage, language.name());
    QCoreApplication::removeTranslator(&Translator());
    if (Translator().load(language, QStringLiteral("qtbase"), QStringLiteral("_"),
                          QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&Translator());
    }
}

}  // namespace

std::optional<QLocale> SpeakLanguageOfPack() {
    const std::optional<QLocale> language = PackLocale();
    Translate(language.value_or(QLocale(QLocale::English)));
    UseFontOfPack();
    return language;
}

}  // namespace horavex
