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

constexpr const char* kFamily = "packFontFamily";  // of the application: what was added to its own

/// Those of the pack's longest text, which has nearly every one.
QString LettersOfPack() {
    const QString text = QString::fromStdString(GetLangString("frmRamadan", "Text1", ""));
    QString letters;
    std::copy_if(text.begin(), text.end(), std::back_inserter(letters),
                 [](QChar c) { return c.isLetter(); });
    return letters;
}

/// Where there is no font the toolkit draws boxes, by one that must not be asked for its name.
bool IsOfAFile(const QRawFont& font) {
    return !font.fontTable("head").isEmpty();
}

bool ComeFromOneFont(const QString& letters, const QFont& font) {
    QTextLayout layout(letters, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    QSet<QString> families;
    for (const QGlyphRun& run : layout.glyphRuns()) {
        if (const QRawFont used = run.rawFont(); IsOfAFile(used)) {
            families.insert(used.familyName());
        }
    }
    return families.size() <= 1;
}

/// One that writes what a font does not have, as high as its own lines are.
QFont FollowedBy(const QString& family, QFont font) {
    font.setFamilies(font.families() + QStringList(family));
    return font;
}

/// One that also writes what a font has in part. Its lines may be half as high again.
QFont LedBy(const QString& family, QFont font) {
    font.setFamilies(QStringList(family) + font.families());
    return font;
}

/// A font in which these letters come from one family, the desktop's own where they do already. The
/// letters of scripts other than the Arabic do not join, or lie in one font.
QFont FontWith(const QString& letters, const QFont& own) {
    if (ComeFromOneFont(letters, own)) {
        return own;
    }
    // The first has lines hardly higher than those of Latin letters.
    const QStringList families =
        QStringList{QStringLiteral("Noto Naskh Arabic"), QStringLiteral("Noto Sans Arabic")} +
        QFontDatabase::families(QFontDatabase::Arabic);
    for (const auto& with : {FollowedBy, LedBy}) {
        for (const QString& family : families) {
            if (const QFont font = with(family, own); ComeFromOneFont(letters, font)) {
                qApp->setProperty(kFamily, family);
                return font;
            }
        }
    }
    return own;
}

QFont WithoutFamilyOfPack(QFont font) {
    QStringList families = font.families();
    families.removeAll(qApp->property(kFamily).toString());
    font.setFamilies(families);
    return font;
}

}  // namespace

void UseFontOfPack() {
    const QFont own = WithoutFamilyOfPack(QApplication::font());
    qApp->setProperty(kFamily, QString());
    const QFont font = FontWith(LettersOfPack(), own);
    if (font.families() != QApplication::font().families()) {
        QApplication::setFont(font);
    }
}

}  // namespace horavex
