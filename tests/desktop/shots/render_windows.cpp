// Renders the face and the windows into PNG files, to be looked at by the people who draw them:
//
//     QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=2 render_windows FOLDER [dark]
#include <QApplication>
#include <QPalette>

#include "base/int16.h"
#include "config/about_window.h"
#include "config/help_topics.h"
#include "desktop/face/azan_face.h"
#include "desktop/face/qt_face.h"
#include "desktop/face_values.h"
#include "desktop/form_window/form_windows.h"
#include "desktop/ports/help_window.h"
#include "engine/progress_window.h"
#include "lang/form_language.h"
#include "lang/language_pack.h"
#include "store/settings_record.h"
#include "support/build_folder.h"
#include "support/program_copy.h"
#include "support/run_program.h"
#include "support/shipped_languages.h"
#include "support/test_platform.h"
#include "windows/f_message.h"
#include "windows/frm_about.h"
#include "windows/frm_athan.h"
#include "windows/frm_azan.h"
#include "windows/frm_main.h"
#include "windows/horavex_main_form.h"

namespace {

using namespace horavex;

QString folder;
QtFace face;
AzanFace athanFace;

void Save(const FormWindows& windows, const Form& form, const QString& name) {
    QApplication::processEvents();
    QWidget* window = windows.Find(&form);
    const auto scale = QString::number(window->devicePixelRatioF());
    window->grab().save(folder + "/" + name + "-" + scale + "x.png");
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
    say(form.optAthanType(kMuteAthan), "Mute", "صامت");
    say(form.optAthanType(kBuzzerAthan), "Buzzard", "جرس");
    say(form.optAthanType(kSoundAthan), "Sound", "صوت");
    form.optAthanType(kSoundAthan).SetValue(true);
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

/// The athan windows with the packs of a language.
void RenderAthan(const FormWindows& windows, const std::string& language) {
    const std::string pack = LanguagePackPath(language);
    frmAthan->Load();
    LoadFormLanguage(*frmAthan, pack);
    frmAthan->lblCustomFajr.SetCaption("/home/user/Music/athan/a quiet call for the dawn.ogg");
    frmAthan->lblCustomOther.SetCaption("");
    frmAthan->DessamFajr.SetValue(true);
    frmAthan->optCustomAll.SetValue(true);
    frmAthan->Show();
    Save(windows, *frmAthan, QString::fromStdString("athan-settings-" + language));
    frmAzan->Load();
    frmAzan->SetTop(0.0);
    athanFace.LoadMovie(0, "");
    athanFace.SetVariable("_root.character_textField", ReadPackString(pack, "Azan", "4", "", 200));
    frmAzan->Show();
    Save(windows, *frmAzan, QString::fromStdString("athan-" + language));
    frmAthan->Unload();
    frmAzan->Unload();
}

void ShowAbout(bool arabic) {
    const std::string pack = ContentOf(BuiltProgramFolder() + "/lang/Arabic.ini");
    Ports().programFolder.WriteWhole("lang\\Arabic.ini", BytesOf(pack));
    currentLanguage = "Arabic";
    languageFilesPresent = arabic ? kTrue : kFalse;
    BindAboutWindow();
    frmAbout->Unload();
    frmAbout->Show();
}

/// Every page of the help, as the built program folder has it.
void RenderHelp(const std::string& language) {
    const std::string help = BuiltProgramFolder() + "/help/" + language + "/";
    HelpView view{.owner = "",
                  .place = {0, 0, 1024, 1024},
                  .title = "Help",
                  .contents = "",
                  .back = "Back",
                  .forward = "Forward",
                  .pages = {},
                  .page = 0};
    for (const std::string& page :
         HelpTopics(ContentOf(BuiltProgramFolder() + "/Horavex.HLP")).Pages()) {
        const std::string text = ContentOf(help + page);
        const std::size_t title = text.find("<title>") + 7;
        view.pages.push_back({text.substr(title, text.find("</title>") - title), help + page});
    }
    HelpWindow window;
    for (; view.page < view.pages.size(); ++view.page) {
        window.Show(view);
        window.resize(820, 620);
        QApplication::processEvents();
        window.grab().save(folder + "/help-" + QString::fromStdString(language) +
                           QString::number(view.page) + ".png");
    }
}

void RenderAll(const FormWindows& windows, bool arabic) {
    const QString language = arabic ? "arabic" : "english";
    arabic ? TellArabic(face) : TellEnglish(face);
    Save(windows, *frmMain, "face-" + language);
    ShowSettings(arabic);
    Save(windows, *HoravexMainForm, "settings-" + language);
    ShowAbout(arabic);
    Save(windows, *frmAbout, "about-" + language);
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
    CopyBuiltProgramFolder(platform.files);
    folder = QString::fromLocal8Bit(argv[1]);
    Layouts layouts = DrawnLayouts();
    layouts["frmMain"] = [](QWidget& window) { face.Fill(window); };
    layouts["frmAzan"] = [](QWidget& window) { athanFace.Fill(window); };
    const FormWindows windows(layouts);
    face.LoadMovie(0, "");
    frmMain->Show();
    RenderAll(windows, false);
    RenderAll(windows, true);
    for (const std::string& language : kShippedLanguages) {
        RenderAthan(windows, language);
    }
    RenderHelp("English");
    RenderHelp("Arabic");
    return 0;
}
