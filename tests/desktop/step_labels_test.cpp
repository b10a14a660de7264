#include "desktop/form_window/step_labels.h"

#include <QApplication>
#include <QLabel>

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

}  // namespace
}  // namespace horavex
