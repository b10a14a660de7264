#include "desktop/ports/pack_font.h"

#include <QApplication>
#include <QFontDatabase>
#include <QGlyphRun>
#include <QRawFont>
#include <QSet>
#include <QTextLayout>

#include "lang/language_pack.h"

namespace horavex {

namespace {

constexpr const char* kFamily = "packFontFamily";  // of the application: what was put in front

/// Those of the pack's longest text, which has nearly every one.
QString LettersOfPack() {
    const QString text = QString::fromStdString(GetLangString("frmRamadan", "Text1", ""));
    QString letters;
    std::copy_if(text.begin(), text.end(), std::back_inserter(letters),
                 [](QChar c) { return c.isLetter(); });
    return letters;
}

bool ComeFromOneFont(const QString& letters, const QFont& font) {
    QTextLayout layout(letters, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    QSet<QString> families;
    for (const QGlyphRun& run : layout.glyphRuns()) {
        families.insert(run.rawFont().familyName());
    }
    return families.size() <= 1;
}

QFont Behind(const QString& family, QFont font) {
    font.setFamilies(QStringList(family) + font.families());
    return font;
}

/// The letters of scripts other than the Arabic do not join, or lie in one font.
QString FamilyWith(const QString& letters, const QFont& font) {
    const QStringList families = QStringList(QStringLiteral("Noto Sans Arabic")) +
                                 QFontDatabase::families(QFontDatabase::Arabic);
    const auto fits = [&](const QString& family) {
        return ComeFromOneFont(letters, Behind(family, font));
    };
    const auto found = std::find_if(families.begin(), families.end(), fits);
    return found == families.end() ? QString() : *found;
}

QFont WithoutFamilyOfPack(QFont font) {
    QStringList families = font.families();
    families.removeAll(qApp->property(kFamily).toString());
    font.setFamilies(families);
    return font;
}

}  // namespace

void UseFontOfPack() {
    const QString letters = LettersOfPack();
    QFont font = WithoutFamilyOfPack(QApplication::font());
    const QString family = ComeFromOneFont(letters, font) ? QString() : FamilyWith(letters, font);
    qApp->setProperty(kFamily, family);
    if (!family.isEmpty()) {
        font = Behind(family, font);
    }
    if (font.families() != QApplication::font().families()) {
        QApplication::setFont(font);
    }
}

}  // namespace horavex
