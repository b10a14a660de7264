#include "desktop/ports/pack_locale.h"

#include "lang/language_pack.h"

namespace horavex {

std::optional<QLocale> PackLocale() {
    const QLocale locale(QString::fromStdString(GetLangString("timetables", "Code", "")));
    return locale.language() == QLocale::C ? std::nullopt : std::optional(locale);
}

}  // namespace horavex
