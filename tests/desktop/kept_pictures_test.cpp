// What the windows look like, against pictures of them that were found good. A look that is changed
// on purpose renews them by the target keep_pictures.

#include <QDir>

#include "desktop/picture_comparison.h"
#include "support/build_folder.h"
#include "support/run_program.h"

namespace horavex {
namespace {

constexpr double kToleratedShare = 0.001;

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
        if (difference.share > kToleratedShare) {
            difference.marked.save(marked);
        }
        EXPECT_LE(difference.share, kToleratedShare) << "see " << marked.toStdString();
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

const std::string kFolders[] = {"Arabic-light", "English-contrast", "English-dark", "English-light",
                                "German-light"};

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

TEST(PictureComparison, CountsDotsThatDifferByMoreThanAStep) {
    QImage kept(10, 10, QImage::Format_RGB32);
    kept.fill(qRgb(100, 100, 100));
    QImage present = kept;
    present.setPixel(2, 3, qRgb(100, 116, 100));
    EXPECT_EQ(Compare(kept, present).share, 0.0);
    present.setPixel(4, 5, qRgb(100, 100, 83));
    const PictureDifference difference = Compare(kept, present);
    EXPECT_DOUBLE_EQ(difference.share, 0.01);
    EXPECT_EQ(difference.marked.pixel(4, 5), qRgb(255, 0, 0));
    EXPECT_NE(difference.marked.pixel(2, 3), qRgb(255, 0, 0));
}

TEST(PictureComparison, AnotherSizeIsAnotherPicture) {
    EXPECT_EQ(Compare(QImage(2, 3, QImage::Format_RGB32), QImage(3, 2, QImage::Format_RGB32)).share,
              1.0);
}

}  // namespace
}  // namespace horavex
