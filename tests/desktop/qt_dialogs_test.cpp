#include "desktop/ports/qt_dialogs.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <fstream>

#include "lang/language_pack.h"
#include "support/program_copy.h"
#include "support/temporary_folder.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

struct QtDialogsTest : testing::Test {
    TestPlatform platform;
};

/// Shows a box, looks at it while it is open, and closes it.
template <class Look>
void Show(const std::string& text, const std::string& title, MessageIcon icon, Look look) {
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        look(*box);
        box->accept();
    });
    QtDialogs([] {}).ShowMessage(text, title, icon);
}

TEST_F(QtDialogsTest, BoxShowsTextTitleIconAndOneButton) {
    Show("a <b>text</b>", "A title", MessageIcon::kCritical, [](const QMessageBox& box) {
        EXPECT_EQ(box.text(), "a <b>text</b>");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.windowTitle(), "A title");
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
    });
}

TEST_F(QtDialogsTest, ButtonOfABoxSpeaksTheLanguageOfThePack) {
    CopyBuiltProgramFolder(platform.files);
    currentLanguage = "Urdu";
    Show("text", "", MessageIcon::kNone, [](const QMessageBox& box) {
        EXPECT_TRUE(box.button(QMessageBox::Ok)->text().contains("ٹھیک ہے"));
    });
    currentLanguage = "English";
}

TEST_F(QtDialogsTest, EmptyTitleIsTheApplications) {
    Show("text", "", MessageIcon::kNone, [](const QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "Horavex");
        EXPECT_EQ(box.icon(), QMessageBox::NoIcon);
    });
}

TEST_F(QtDialogsTest, ArabicTextTurnsTheBoxRound) {
    Show("خطأ في الإدخال", "", MessageIcon::kExclamation, [](const QMessageBox& box) {
        EXPECT_EQ(box.layoutDirection(), Qt::RightToLeft);
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
    });
}

TEST_F(QtDialogsTest, BeepIsWhatItWasGiven) {
    int beeps = 0;
    QtDialogs([&] { ++beeps; }).Beep();
    EXPECT_EQ(beeps, 1);
}

/// Opens the dialogue for a file, looks at it while it is open, and closes it with what look says.
template <class Look>
std::string Open(const FileRequest& request, Look look) {
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        look(*dialog);
    });
    return QtDialogs([] {}).OpenFile(request);
}

const FileRequest kRequest{"Open it", "All (*.*)|*.wav;*.mp+|Ogg files (*.ogg)|*.ogg|", 2};

TEST_F(QtDialogsTest, FileDialogueShowsItsTitleAndFilters) {
    const std::string chosen = Open(kRequest, [](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Open it");
        EXPECT_EQ(dialog.nameFilters(),
                  QStringList({"All (*.*) (*.wav *.mp+)", "Ogg files (*.ogg) (*.ogg)"}));
        EXPECT_EQ(dialog.selectedNameFilter(), "Ogg files (*.ogg)");
        EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
        dialog.reject();
    });
    EXPECT_EQ(chosen, "");
}

TEST_F(QtDialogsTest, FileDialogueAnswersTheRealPath) {
    const TemporaryFolder folder;
    const std::string path = folder / "نداء.ogg";
    std::ofstream(path) << "sound";
    const std::string chosen = Open(kRequest, [&](QFileDialog& dialog) {
        dialog.selectFile(QString::fromStdString(path));
        static_cast<QDialog&>(dialog).accept();
    });
    EXPECT_EQ(chosen, path);
}

const FileRequest kSaveRequest = {"Save",
                                  "Text Files (*.txt)|*.txt|HTML Files|*.html;*.htm|CSV|*.csv", 2};

/// Asks for a file to save, does something to the dialogue while it is open, and closes it.
template <class Action>
std::string Save(Action action, const FileRequest& request = kSaveRequest) {
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        action(*dialog);
    });
    return QtDialogs([] {}).SaveFile(request, ".txt");
}

void Accept(QFileDialog& dialog) {
    QMetaObject::invokeMethod(&dialog, "accept");
}

TEST_F(QtDialogsTest, SaveDialogueOffersTheTypesAndBeginsWithTheOneOfTheRequest) {
    const std::string path = Save([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Save");
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(dialog.nameFilters(), (QStringList{"Text Files (*.txt) (*.txt)",
                                                     "HTML Files (*.html *.htm)", "CSV (*.csv)"}));
        EXPECT_TRUE(dialog.selectedNameFilter() == "HTML Files");
        dialog.reject();
    });
    EXPECT_EQ(path, "");
}

TEST_F(QtDialogsTest, SaveDialogueBeginsInTheDocumentsAndProposesItsTitleAsTheName) {
    const TemporaryFolder home;
    const QByteArray former = qgetenv("HOME");
    qputenv("HOME", QByteArray::fromStdString(home / ""));
    QDir(QString::fromStdString(home / "")).mkdir("Documents");
    Save([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().path().toStdString(), home / "Documents");
        EXPECT_EQ(QFileInfo(dialog.selectedFiles().value(0)).completeBaseName(), "Save");
        dialog.reject();
    });
    qputenv("HOME", former);
}

TEST_F(QtDialogsTest, ProposedNameOfAPlaceWithAPointGetsItsSuffix) {
    const TemporaryFolder folder;
    FileRequest request = kSaveRequest;
    request.title = "Prayer times St. Louis 2026";
    const auto accept = [&](QFileDialog& dialog) {
        dialog.setDirectory(QString::fromStdString(folder / ""));
        Accept(dialog);
    };
    EXPECT_EQ(Save(accept, request), folder / "Prayer times St Louis 2026.txt");
}

TEST_F(QtDialogsTest, SavedNameWithoutASuffixGetsThatOfTheRequest) {
    const TemporaryFolder folder;
    EXPECT_EQ(Save([&](QFileDialog& dialog) {
                  dialog.selectFile(QString::fromStdString(folder / "year"));
                  Accept(dialog);
              }),
              folder / "year.txt");
    EXPECT_EQ(Save([&](QFileDialog& dialog) {
                  dialog.selectFile(QString::fromStdString(folder / "year.json"));
                  Accept(dialog);
              }),
              folder / "year.json");
}

TEST_F(QtDialogsTest, ChosenTypeOfOneSuffixGivesItsOwn) {
    const TemporaryFolder folder;
    EXPECT_EQ(Save([&](QFileDialog& dialog) {
                  Q_EMIT dialog.filterSelected("CSV");
                  dialog.selectFile(QString::fromStdString(folder / "year"));
                  Accept(dialog);
              }),
              folder / "year.csv");
}

}  // namespace
}  // namespace horavex
