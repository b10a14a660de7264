#include "desktop/documents/picture_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QBuffer>

#include "linux/posix_files.h"
#include "support/temporary_folder.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

class PictureFileTest : public testing::Test {
protected:
    PictureFileTest() { InstallPlatform(&ports); }

    TemporaryFolder disk;
    PosixFiles files;
    TestPlatform platform;
    const ProgramFolder folder{files, disk.Path(), disk.Path()};
    const Platform& own = Ports();
    const Platform ports{own.clock,     own.eventLoop,   own.files,     folder,
                         own.formats,   own.dialogs,     own.registry,  own.instanceGuard,
                         own.face,      own.windows,     own.tray,      own.shell,
                         own.network,   own.athanFace,   own.audioFile, own.audioPlayer,
                         own.zoneRules, own.whereabouts, own.notices,   own.mediaPlayers,
                         own.session,   own.almanac,     own.broadcast};
};

TEST_F(PictureFileTest, PictureOfTheProgramFolderIsReadWhateverTheCaseOfItsName) {
    QImage(24, 16, QImage::Format_RGB32).save(QString::fromStdString(disk / "map.png"));
    EXPECT_EQ(PictureAt("Map.PNG").size(), QSize(24, 16));
}

TEST_F(PictureFileTest, WhatIsNoPictureIsEmptyAndAPipeIsNoWait) {
    files.WriteWhole(disk / "text.png", BytesOf("text"));
    ASSERT_EQ(::mkfifo((disk / "pipe.png").c_str(), 0600), 0);
    for (const char* name : {"text.png", "pipe.png", "missing.png"}) {
        EXPECT_TRUE(PictureAt(name).isNull()) << name;
    }
}

}  // namespace
}  // namespace horavex
