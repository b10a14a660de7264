#include "desktop/form_window/step_labels.h"

#include <QApplication>
#include <QLabel>
#include <QScrollArea>

#include "desktop/form_window/form_windows.h"
#include "support/test_platform.h"
#include "windows/frm_wizard.h"

namespace horavex {
namespace {

/// The wizard on view, without what handlers do.
struct StepLabelsTest : testing::Test {
    StepLabelsTest() {
        frmWizard->Show();
        QApplication::processEvents();
    }

    const QLabel& Step(int number) {
        return *windows.Find(&*frmWizard)->findChild<QLabel*>("qt_step_" + QString::number(number));
    }

    QString StepsThatStandOut() {
        QApplication::processEvents();
        QString steps;
        for (int number = 1; number <= 4; ++number) {
            steps += Step(number).font().bold() ? QString::number(number) : QString();
        }
        return steps;
    }

    TestPlatform platform;
    FormWindows windows{DrawnLayouts()};
};

TEST_F(StepLabelsTest, WizardNamesItsFourStepsByTheirPages) {
    EXPECT_EQ(Step(1).text(), "1. City");
    EXPECT_EQ(Step(4).text(), "4. Angles");
    frmWizard->Frame2(4).SetCaption("Winkel");
    QApplication::processEvents();
    EXPECT_EQ(Step(4).text(), "4. Winkel");
}

TEST_F(StepLabelsTest, StepOfThePageOnViewStandsOut) {
    EXPECT_EQ(StepsThatStandOut(), "1");
    frmWizard->Frame2(1).SetVisible(false);
    frmWizard->Frame2(3).SetVisible(true);
    EXPECT_EQ(StepsThatStandOut(), "3");
}

TEST_F(StepLabelsTest, PageThatNeedsMoreRoomGetsIt) {
    FormWindow& window = *windows.Find(&*frmWizard);
    frmWizard->Frame2(1).SetVisible(false);
    frmWizard->Frame2(4).SetVisible(true);
    frmWizard->fraToday.SetVisible(false);
    frmWizard->lblTimeNote.SetCaption("1\n2\n3\n4\n5");
    frmWizard->lblTimeNote.SetVisible(true);
    for (int turn = 0; turn < 3; ++turn) {
        QApplication::processEvents();
    }
    const auto* content = window.findChild<QScrollArea*>("qt_content");
    EXPECT_EQ(content->viewport()->height(), content->widget()->height());
    window.resize(window.width(), 300);
    frmWizard->lblTime(1).SetCaption("5:12");
    QApplication::processEvents();
    EXPECT_EQ(window.height(), 300) << "what the user made small stays so";
}

}  // namespace
}  // namespace horavex
