// What the windows look like, against pictures of them that were found good. A look that is changed
// on purpose renews them by the target keep_pictures.

#include <QApplication>
#include <QDir>
#include <QPainter>

#include "desktop/picture_comparison.h"
#include "support/build_folder.h"
#include "support/run_program.h"

namespace horavex {
namespace {

// Of a square of 32 x 32; digits of the smallest texts differ by 8.
constexpr int kToleratedDots = 6;

QDir KeptPictures() {
    return {QString::fromStdString(SourcePath("tests/desktop/pictures"))};
}

/// A folder of kept pictures: one language in one theme, "Arabic-dark".
class KeptPicturesTest : public testing::TestWithParam<std::string> {
protected:
    QDir Kept() const { return {KeptPictures().filePath(QString::fromStdString(GetParam()))}; }
    std::string Drawn() const { return BuildPath("kept-pictures/" + GetParam()); }

    /// Draws the scenes of these files.
    void Draw(const QStringList& files) const {
        const std::size_t dash = GetParam().find('-');
        std::vector<std::string> words = {"--language", GetParam().substr(0, dash),
                                          "--theme",    GetParam().substr(dash + 1),
                                          "--output",   Drawn()};
        for (const QString& file : files) {
            words.insert(words.end(), {"--scene", QFileInfo(file).baseName().toStdString()});
        }
        const ProgramRun run = RunProgram("render_windows", words, {});
        ASSERT_EQ(run.status, 0) << run.err;
    }

    void ExpectAsKept(const QString& file) const {
        const QDir drawn(QString::fromStdString(Drawn()));
        const auto difference =
            Compare(QImage(Kept().filePath(file)), QImage(drawn.filePath(file)));
        const QString marked = drawn.filePath("difference-" + file);
        if (difference.dots > kToleratedDots) {
            difference.marked.save(marked);
        }
        EXPECT_LE(difference.dots, kToleratedDots) << "see " << marked.toStdString();
    }
};

TEST_P(KeptPicturesTest, WindowsLookAsTheyWereKept) {
    const QStringList files = Kept().entryList({"*.png"});
    ASSERT_FALSE(files.isEmpty());
    Draw(files);
    for (const QString& file : files) {
        ExpectAsKept(file);
    }
}

const std::string kFolders[] = {"Arabic-light", "Bengali-light", "English-contrast",
                                "English-dark", "English-light", "German-light",
                                "Urdu-light"};

INSTANTIATE_TEST_SUITE_P(Folders, KeptPicturesTest, testing::ValuesIn(kFolders),
                         [](const auto& test) {
                             std::string name = test.param;
                             std::erase(name, '-');
                             return name;
                         });

TEST(KeptPictures, EveryFolderOfThemIsCompared) {
    QStringList compared;
    for (const std::string& folder : kFolders) {
        compared << QString::fromStdString(folder);
    }
    EXPECT_EQ(KeptPictures().entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name), compared);
}

// Else what it left there the last time would be compared for ever.
TEST(KeptPictures, ASceneThatIsGoneIsNotDrawn) {
    const ProgramRun run = RunProgram(
        "render_windows", {"--output", BuildPath("kept-pictures/none"), "--scene", "gone"}, {});
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.err, testing::HasSubstr("no scene gone"));
}

TEST(PictureComparison, CountsDotsThatDifferByMoreThanAStep) {
    QImage kept(10, 10, QImage::Format_RGB32);
    kept.fill(qRgb(100, 100, 100));
    QImage present = kept;
    present.setPixel(2, 3, qRgb(100, 116, 100));
    EXPECT_EQ(Compare(kept, present).dots, 0);
    present.setPixel(4, 5, qRgb(100, 100, 83));
    const PictureDifference difference = Compare(kept, present);
    EXPECT_EQ(difference.dots, 1);
    EXPECT_EQ(difference.marked.pixel(4, 5), qRgb(255, 0, 0));
    EXPECT_NE(difference.marked.pixel(2, 3), qRgb(255, 0, 0));
}

TEST(PictureComparison, CountsWhatLiesCloseTogether) {
    QImage kept(100, 100, QImage::Format_RGB32);
    kept.fill(Qt::white);
    QImage present = kept;
    present.setPixel(15, 15, 0);
    present.setPixel(16, 16, 0);
    present.setPixel(99, 99, 0);
    EXPECT_EQ(Compare(kept, present).dots, 2);
}

QImage Written(const QString& text, int left) {
    QImage image(200, 100, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(QApplication::font());
    painter.drawText(left, 50, text);
    return image;
}

TEST(PictureComparison, OneDigitIsSeenWhereverItStands) {
    for (int left = 100; left < 132; ++left) {
        EXPECT_GT(Compare(Written("4:33", left), Written("4:38", left)).dots, kToleratedDots);
        EXPECT_GT(Compare(Written("٢", left), Written("٣", left)).dots, kToleratedDots);
    }
}

TEST(PictureComparison, AnotherSizeIsAnotherPicture) {
    EXPECT_EQ(Compare(QImage(2, 3, QImage::Format_RGB32), QImage(3, 2, QImage::Format_RGB32)).dots,
              32 * 32);
}

}  // namespace
}  // namespace horavex
