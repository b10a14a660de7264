#include "desktop/shots/stage.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QTimer>
#include <map>

#include "desktop/ports/toolkit_language.h"
#include "lang/language_pack.h"
#include "shell/wiring.h"
#include "store/city_search.h"
#include "store/location_files.h"
#include "store/location_record.h"
#include "store/settings_files.h"
#include "store/settings_record.h"
#include "store/stored_values.h"
#include "support/program_copy.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

struct Land {
    const char* locale;   // of a user who reads the pack
    std::int16_t column;  // of the numbered texts
};

Land LandOf(const std::string& language) {
    static const std::map<std::string, Land> lands = {
        {"Arabic", {"ar_EG", 4}},  {"Bengali", {"bn_BD", 1}}, {"English", {"en_US", 1}},
        {"French", {"fr_FR", 2}},  {"German", {"de_DE", 3}},  {"Indonesian", {"id_ID", 1}},
        {"Spanish", {"es_ES", 5}}, {"Turkish", {"tr_TR", 1}}, {"Urdu", {"ur_PK", 1}},
    };
    return lands.at(language);
}

constexpr UtcSeconds kHour = 3600;

UtcSeconds UtcOf(Date date) {
    return static_cast<UtcSeconds>((date - DateSerial(1970, 1, 1)) * kSecondsPerDay);
}

void AddZones(FixedZoneRules& zones) {
    zones.Add("Africa/Cairo", {2 * kHour, false});
    zones.Turn("Africa/Cairo", UtcOf(DateSerial(2026, 4, 23)) + 22 * kHour, {3 * kHour, true});
    zones.Turn("Africa/Cairo", UtcOf(DateSerial(2026, 10, 29)) + 21 * kHour, {2 * kHour, false});
    zones.Add("Europe/Oslo", {1 * kHour, false});
    zones.Turn("Europe/Oslo", UtcOf(DateSerial(2026, 3, 29)) + 1 * kHour, {2 * kHour, true});
    zones.Turn("Europe/Oslo", UtcOf(DateSerial(2026, 10, 25)) + 1 * kHour, {1 * kHour, false});
}

/// This computer's clock, which stands where the city is.
void SetLocalClock(TestPlatform& ports, const Setting& setting) {
    const std::string zone = setting.city == "Oslo" ? "Europe/Oslo" : "Africa/Cairo";
    const ZoneOffset offset = ports.zoneRules.OffsetAt(zone, UtcOf(setting.now));
    ports.clock.Set(setting.now);
    ports.clock.SetOffset(0.0, {static_cast<double>(offset.seconds) / kHour, offset.daylight});
}

/// Sounds of the athan, so that the program offers them.
void AddSounds(MemoryFiles& files) {
    for (const char* sound : {"athan", "fagr_athan"}) {
        files.WriteWhole(std::string("/program/Athan/") + sound + ".mp3", Bytes(1));
    }
}

std::int16_t CityNamed(const std::string& text) {
    static std::map<std::string, std::int16_t> known;
    const auto [city, isNew] = known.try_emplace(text);
    if (isNew) {
        city->second = SearchCities(ListCities(), text).at(0).city->cityIndex;
    }
    return city->second;
}

/// What a user of the city has stored, whose clock is the city's own.
void StoreSettings(const Setting& setting, std::int16_t column) {
    LoadActiveSettings();
    ActiveSettings.Language = column;
    ActiveSettings.CityIndex = CityNamed(setting.city);
    ActiveSettings.FajrAngle = 19.5;
    ActiveSettings.AthanType = kSoundAthan;
    SaveActiveSettings();
    Settings = ActiveSettings;
    SaveWorkingSettings();
    IshaAngle = 17.5;
    SaveIshaAngle();
    SaveOption(option::kAutomaticZone, 1);
    SaveOption(option::kHighLatitudeRule, setting.rule);
}

QMenu* OpenMenu() {
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

/// Goes down to an entry and inwards. Returns the menu that opens.
QMenu* OpenInner(QMenu& menu, int entry) {
    menu.setActiveAction(menu.actions().at(entry));
    QKeyEvent press(QEvent::KeyPress, menu.isRightToLeft() ? Qt::Key_Left : Qt::Key_Right,
                    Qt::NoModifier);
    QApplication::sendEvent(&menu, &press);
    return OpenMenu();
}

}  // namespace

Stage::Stage(const std::string& language, const Setting& setting, Camera camera)
    : camera_(std::move(camera)),
      formats_(QLocale(LandOf(language).locale)),
      face_(SpeakLanguageOfPack),
      windows_(AllLayouts()),
      platform_{clock_,          ports.loop,
                ports.files,     ports.folder,
                formats_,        ports.dialogs,
                ports.registry,  ports.instanceGuard,
                face_,           desk_,
                ports.tray,      ports.shell,
                ports.network,   athanFace_,
                ports.audioFile, ports.audioPlayer,
                ports.zoneRules, ports.whereabouts,
                ports.notices,   ports.mediaPlayers,
                ports.session,   ports.almanac,
                ports.broadcast} {
    InstallPlatform(&platform_);
    CopyBuiltProgramFolder(ports.files);
    AddSounds(ports.files);
    AddZones(ports.zoneRules);
    SetLocalClock(ports, setting);
    StoreSettings(setting, LandOf(language).column);
    SaveStoredLanguage(language);
    BindWindows();
    frmMain->Load();
    Tick();
}

Stage::~Stage() {
    windows_.reset();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::setFont(usual_);
}

Layouts Stage::AllLayouts() {
    Layouts layouts = DrawnLayouts();
    layouts["frmMain"] = [this](QWidget& window) { face_.Fill(window); };
    layouts["frmAzan"] = [this](QWidget& window) { athanFace_.Fill(window); };
    return layouts;
}

void Stage::Tick() {
    frmMain->tmrUpdate.Tick();
}

// Twice, for what is shown is laid out behind it.
void Stage::Settle() {
    QApplication::processEvents();
    QApplication::processEvents();
    // A choice takes the size of its longest text a little later; its place is given back to it.
    QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

void Stage::Look(const std::vector<QWidget*>& windows) {
    Settle();
    camera_(windows);
}

void Stage::Visit(const std::function<void()>& open, Form& form, const std::function<void()>& act) {
    QTimer::singleShot(0, [&] {
        Settle();
        QApplication::setActiveWindow(&WindowOf(form));  // no window manager does
        Settle();
        act();
        form.Unload();
    });
    open();
    Settle();
}

void Stage::VisitDialog(const std::function<void()>& open) {
    QTimer::singleShot(0, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        Look({dialog});
        dialog->close();
    });
    open();
}

void Stage::VisitMenu(const std::function<void()>& open, std::optional<int> entry) {
    QTimer::singleShot(0, [&] { LookIntoMenu(entry); });
    open();
}

void Stage::LookIntoMenu(std::optional<int> entry) {
    std::vector<QWidget*> windows;
    if (frmMain->Visible()) {
        windows.push_back(&WindowOf(*frmMain));
    }
    QMenu* menu = OpenMenu();
    windows.push_back(menu);
    if (entry) {
        windows.push_back(OpenInner(*menu, *entry));
    }
    Look(windows);
    while (QWidget* popup = QApplication::activePopupWidget()) {
        popup->close();
    }
}

}  // namespace horavex
