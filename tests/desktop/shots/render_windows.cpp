// Renders the face and the windows into PNG files, to be looked at by the people who draw them:
//
//     QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=2 render_windows FOLDER [dark]
#include <QApplication>
#include <QDialog>
#include <QPalette>
#include <QTimer>

#include "base/flag.h"
#include "desktop/face/qt_face.h"
#include "desktop/face_values.h"
#include "desktop/form_window/form_windows.h"
#include "desktop/printing/document_desk.h"
#include "engine/current_year.h"
#include "engine/day_driver.h"
#include "engine/progress.h"
#include "geo/qibla.h"
#include "lang/language_pack.h"
#include "linux/posix_files.h"
#include "store/location_record.h"
#include "store/settings_record.h"
#include "support/program_copy.h"
#include "support/test_platform.h"
#include "timetables/month_window.h"
#include "timetables/times_window.h"
#include "windows/f_message.h"
#include "windows/frm_main.h"
#include "windows/frm_month.h"
#include "windows/frm_times.h"
#include "windows/horavex_main_form.h"

namespace {

using namespace horavex;

/// Calculates a year without any window.
class SilentHost : public DayHost {
public:
    void ReportProgress(double) override {}
    void ComputeQibla() override { horavex::ComputeQibla(); }
    void RunSetAction() override {}
    void SetFlashVariables() override {}
};

QString folder;
QtFace face;

void Save(const FormWindows& windows, const Form& form, const QString& name) {
    QApplication::processEvents();
    QWidget* window = windows.Find(&form);
    const auto scale = QString::number(window->devicePixelRatioF());
    window->grab().save(folder + "/" + name + "-" + scale + "x.png");
}

/// The print preview that is open, which closes then.
void SavePreview(const QString& name) {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    dialog->resize(900, 900);
    QApplication::processEvents();
    dialog->grab().save(folder + "/" + name + ".png");
    dialog->reject();
}

void ShowSettings(bool arabic) {
    SettingsForm& form = *HoravexMainForm;
    const auto say = [arabic](Control& control, const char* english, const char* inArabic) {
        control.SetCaption(arabic ? inArabic : english);
    };
    form.SetCaption(arabic ? "إعدادات Horavex" : "Horavex Settings");
    say(form.fraCity, "Location", "الموقع");
    say(form.lblCityBanner, "City", "المدينة");
    form.lblCity.SetCaption("Cairo, Egypt");
    say(form.lblLocationLat, "Latitude: 30:03 N", "خط العرض: 30:03 شمالاً");
    say(form.lblLocationLon, "Longitude: 31:15 E", "خط الطول: 31:15 شرقاً");
    say(form.cmdChangeCity, "Change &City", "تغيير المدينة");
    say(form.lblTimeZone, "Time Zone", "المنطقة الزمنية");
    form.txtTimeZone.SetText("+2.00");
    say(form.fraAngles, "Depression angles", "زوايا الانخفاض");
    say(form.lblFajrAngle, "Fajr angle", "زاوية الفجر");
    say(form.lblIshaAngle, "Isha angle", "زاوية العشاء");
    for (ScrollBar* bar : {&form.hsDepr, &form.hsDepr2}) {
        bar->SetMin(12);
        bar->SetMax(21);
        bar->SetValue(18);
    }
    form.hsDepr1.SetValue(3);
    for (Label* label : {&form.lblDeprMin, &form.Label7}) {
        label->SetCaption("12");
    }
    for (Label* label : {&form.lblDeprMax, &form.Label6}) {
        label->SetCaption("21");
    }
    say(form.lblDepr, "Degrees 18.75", "درجة 18.75");
    say(form.lblDepr1, "Degrees 18", "درجة 18");
    say(form.fraAsr, "Asr ratio", "نسبة العصر");
    say(form.optAsrRatio(1), "Shafaii Asr Ratio", "عصر الشافعي");
    say(form.optAsrRatio(2), "Hanafi Asr Ratio", "عصر الحنفي");
    say(form.fraDayLT, "Daylight Saving", "التوقيت الصيفي");
    say(form.chkDayLT, "Daylight Saving", "التوقيت الصيفي");
    say(form.lblBeginAt, "Begins on", "يبدأ في");
    say(form.lblEndAT, "Ends on", "ينتهي في");
    form.lblBegin.SetCaption("Friday, May 1, 2026");
    form.lblEnd.SetCaption("Wednesday, September 30, 2026");
    say(form.fraAthan, "Athan", "الأذان");
    say(form.optAthanType(1), "Mute", "صامت");
    say(form.optAthanType(2), "Buzzard", "جرس");
    say(form.optAthanType(3), "Sound", "صوت");
    form.optAthanType(3).SetValue(true);
    form.optAsrRatio(1).SetValue(true);
    form.optQiblaMethod(1).SetValue(true);
    say(form.cmdAthan, "&Athan", "الأذان");
    say(form.fraAlarm, "Alarm", "المنبه");
    say(form.chkAlarm, "Alarm", "المنبه");
    say(form.lblAlarmAt, "Alarm at", "المنبه الساعة");
    form.hsAlarm.SetValue(78);
    form.lblAlarm.SetCaption("06:30 AM");
    say(form.fraQibla, "Qibla", "القبلة");
    say(form.optQiblaMethod(1), "Qibla Method 1", "طريقة القبلة 1");
    say(form.optQiblaMethod(2), "Qibla Method 2", "طريقة القبلة 2");
    say(form.lblQibla, "Qibla: 136 Degrees, 8 Minutes East of North",
        "القبلة: 136 درجة و 8 دقيقة الى الشرق من الشمال");
    say(form.cmdQibla, "&Qibla", "القبلة");
    say(form.fraLanguage, "Language", "اللغة");
    form.lstLanguage.SetListIndex(arabic ? 3 : 0);
    say(form.chkAddToStartup, "Add Horavex to Startup", "تشغيل Horavex مع بدء الجلسة");
    say(form.cmdDefault, "&Default", "افتراضي");
    say(form.SettingsSet, "&Set", "تعيين");
    form.Show();
}

void ShowMessage(bool arabic) {
    fMessage->Load();
    fMessage->lblMessage1.SetCaption(arabic ? "يتم حساب مواقيت سنة 2026"
                                            : "Calculating the times of 2026");
    fMessage->lblMessage2.SetCaption(arabic ? "يرجى الانتظار" : "Please wait");
    fMessage->Show();
    ReportProgress(60.0);
}

/// The year of Cairo with a summer of daylight saving, as the windows of timetables show it.
void TakeCairo(TestPlatform& platform, bool arabic) {
    CopyBuiltProgramFolder(platform.files);
    currentLanguage = arabic ? "Arabic" : "English";
    languageFilesPresent = kTrue;
    Location.City.Latitude = 3005;
    Location.City.Longitude = 3125;
    ActiveLocation = Location;
    ActiveCityText = "Cairo - Egypt";
    Settings.TimeZone = 2.0;
    Settings.FajrAngle = 19.5;
    Settings.AsrRatio = 1.0;
    Settings.DstEnabled = 1;
    Settings.DstStart = 115;
    Settings.DstEnd = 302;
    ActiveSettings = Settings;
    IshaAngle = 17.5;
    CurrentYear = 2026;
    RecalculateYear();
}

/// The chart on view as the month window saves it.
void SaveChart(TestPlatform& platform, const QString& name) {
    PosixFiles disk;
    for (const std::string suffix : {".svg", ".png"}) {
        platform.dialogs.savedFile = "/chart" + suffix;
        frmMonth->cmdSave.UserClick();
        disk.WriteWhole((folder + "/" + name).toStdString() + suffix,
                        platform.files.Contents("/chart" + suffix));
    }
}

void RenderTimetables(TestPlatform& platform, const FormWindows& windows, bool arabic) {
    const QString language = arabic ? "arabic" : "english";
    TakeCairo(platform, arabic);
    frmTimes->Load();
    frmTimes->Show();
    Save(windows, *frmTimes, "times-" + language);
    frmMonth->Load();
    frmMonth->Show();
    Save(windows, *frmMonth, "month-" + language);
    frmMonth->grdMonth.UserPage(-1);
    Save(windows, *frmMonth, "month-change-" + language);
    QTimer::singleShot(0, [&language] { SavePreview("preview-" + language); });
    frmMonth->cmdPreview.UserClick();
    frmMonth->tabPages.UserSelect(1);
    Save(windows, *frmMonth, "year-" + language);
    SaveChart(platform, "year-" + language);
    frmMonth->Unload();
    frmTimes->Unload();
}

void RenderAll(const FormWindows& windows, bool arabic) {
    const QString language = arabic ? "arabic" : "english";
    arabic ? TellArabic(face) : TellEnglish(face);
    Save(windows, *frmMain, "face-" + language);
    ShowSettings(arabic);
    Save(windows, *HoravexMainForm, "settings-" + language);
    ShowMessage(arabic);
    Save(windows, *fMessage, "progress-" + language);
}

}  // namespace

/// Light texts on dark ground, as a desktop at night has them.
QPalette Dark() {
    QPalette palette(QColor(45, 48, 53));
    palette.setColor(QPalette::Base, QColor(30, 32, 36));
    palette.setColor(QPalette::AlternateBase, QColor(52, 56, 62));
    palette.setColor(QPalette::Highlight, QColor(42, 118, 188));
    return palette;
}

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    if (argc > 2) {
        QApplication::setPalette(Dark());
    }
    TestPlatform platform;
    folder = QString::fromLocal8Bit(argv[1]);
    Layouts layouts = DrawnLayouts();
    layouts["frmMain"] = [](QWidget& window) { face.Fill(window); };
    const FormWindows windows(layouts);
    face.LoadMovie(0, "");
    frmMain->Show();
    RenderAll(windows, false);
    RenderAll(windows, true);
    SilentHost host;
    InstallDayHost(&host);
    BindTimesWindow();
    BindMonthWindow();
    InstallDesktopDocuments();
    RenderTimetables(platform, windows, false);
    RenderTimetables(platform, windows, true);
    return 0;
}
