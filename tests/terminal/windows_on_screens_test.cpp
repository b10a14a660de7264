// Every window of the whole program, in every language, on screens of all sizes.

#include <gmock/gmock.h>

#include <algorithm>
#include <clocale>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <tuple>

#include "config/settings_window.h"
#include "config/wizard.h"
#include "forms/focusable.h"
#include "forms/list.h"
#include "geo/city_picker.h"
#include "moon/moon_window.h"
#include "platform/platform.h"
#include "shell/wiring.h"
#include "store/settings_files.h"
#include "store/settings_record.h"
#include "store/stored_values.h"
#include "support/build_folder.h"
#include "support/opened_window.h"
#include "support/program_copy.h"
#include "support/shipped_languages.h"
#include "terminal/desk_screen.h"
#include "terminal/face/athan_sheet.h"
#include "terminal/face/face_sheet.h"
#include "terminal/forms/widget.h"
#include "terminal/ports/pack_formats.h"
#include "terminal/ports/terminal_windows.h"
#include "terminal/screen/glyphs.h"
#include "timetables/month_window.h"
#include "windows/f_country.h"
#include "windows/f_message.h"
#include "windows/f_qibla.h"
#include "windows/frm_about.h"
#include "windows/frm_adjust.h"
#include "windows/frm_athan.h"
#include "windows/frm_crescent.h"
#include "windows/frm_date_convert.h"
#include "windows/frm_distance.h"
#include "windows/frm_main.h"
#include "windows/frm_month.h"
#include "windows/frm_ramadan.h"
#include "windows/frm_reminders.h"
#include "windows/frm_sky.h"
#include "windows/frm_times.h"
#include "windows/frm_wizard.h"
#include "windows/horavex_main_form.h"
#include "windows/moon_phases.h"
#include "windows/new_coordinates.h"

namespace horavex {
namespace {

struct ScreenSize {
    int columns;
    int rows;
};

std::string NameOf(const ScreenSize& size) {
    return std::to_string(size.columns) + "x" + std::to_string(size.rows);
}

/// Of the numbered texts, which are there in five languages.
std::int16_t ColumnOf(const std::string& language) {
    static const std::map<std::string, std::int16_t> columns = {
        {"French", 2}, {"German", 3}, {"Arabic", 4}, {"Spanish", 5}};
    const auto found = columns.find(language);
    return found == columns.end() ? 1 : found->second;
}

std::vector<Opened> AllWindows() {
    return {{*HoravexMainForm, ShowSettingsWindow},
            {*frmWizard, ShowWizard},
            {*fMessage, Shown(*fMessage)},
            {*NewCoordinates, Shown(*NewCoordinates)},
            {*fCountry,
             [] {
                 LoadCityPicker();
                 fCountry->Show();
             }},
            {*frmAthan, By(frmMain->mnuAthanSettings)},
            {*frmTimes, By(frmMain->mnuPrayerTimes)},
            {*frmMonth, ShowMonthWindow},
            {*frmDateConvert, By(frmMain->mnuDateConversion)},
            {*fQibla, By(frmMain->mnuQibla)},
            {*frmDistance, By(frmMain->mnuDistance)},
            {*Moon_Phases, By(frmMain->mnuMoonPhases)},
            {*frmRamadan, ShowRamadanHelp},
            {*frmAbout, By(frmMain->mnuAbout)},
            {*frmAdjust, By(frmMain->mnuAdjustments)},
            {*frmReminders, By(frmMain->mnuReminders)},
            {*frmSky, By(frmMain->mnuSky)},
            {*frmCrescent, By(frmMain->mnuCrescent)}};
}

/// The names that a layout has for its parts.
void AddNames(const LayoutNode& node, std::set<std::string>& names) {
    names.insert(node.name);
    for (const LayoutNode& child : node.children) {
        AddNames(child, names);
    }
}

bool IsShown(const Control& control) {
    const auto* parent = dynamic_cast<const Control*>(&control.Parent());
    return (!control.Has(Property::kVisible) || control.Visible()) &&
           (parent == nullptr || parent->Kind() == ControlKind::kForm || IsShown(*parent));
}

/// The controls of a form that its layout has and that are on view now.
std::vector<Control*> ControlsOnView(const Form& form) {
    std::set<std::string> names;
    AddNames(ReadLayout(LayoutFileOf(form.Name())), names);
    std::vector<Control*> shown;
    for (Control* control : form.Controls()) {
        const std::string name = control->Has(Property::kIndex)
                                     ? control->Name() + "_" + std::to_string(control->Index())
                                     : control->Name();
        if (names.contains(name) && IsShown(*control)) {
            shown.push_back(control);
        }
    }
    return shown;
}

TabStrip* TabsOf(const Form& form) {
    for (Control* control : form.Controls()) {
        if (control->Kind() == ControlKind::kTabStrip) {
            return static_cast<TabStrip*>(control);
        }
    }
    return nullptr;
}

/// Words as a screen has them, without the invisible signs between them.
std::vector<std::string> WordsOf(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> words;
    for (std::string word; stream >> word;) {
        words.emplace_back();
        for (const Glyph& glyph : GlyphsOf(word)) {
            words.back() += glyph.text;
        }
    }
    return words;
}

/// What a walk through a window by the Tab key has come by.
struct Walk {
    std::set<const Control*> reached;
    std::vector<std::string> screens;
    int unmarked = 0;  // stops without a sign of where the keys go

    bool HasSeen(const std::string& word) const {
        return std::any_of(screens.begin(), screens.end(), [&word](const std::string& screen) {
            return screen.find(word) != screen.npos;
        });
    }
};

bool ShowsFocus(const Cells& cells) {
    if (cells.Cursor()) {
        return true;
    }
    for (int row = 0; row < cells.Rows(); ++row) {
        for (int column = 0; column < cells.Columns(); ++column) {
            if (cells.At(row, column).look.tone == Tone::kFocus) {
                return true;
            }
        }
    }
    return false;
}

/// By the page keys, to the beginning of the window and to its end.
void ReadAll(Walk& walk, DeskScreen& screen) {
    constexpr int kMostPages = 30;
    for (const KeyCode key : {KeyCode::kPageUp, KeyCode::kPageDown}) {
        for (int page = 0; page < kMostPages; ++page) {
            screen.Press(key);
            const std::string text = screen.Text();
            if (text == walk.screens.back()) {
                break;
            }
            walk.screens.push_back(text);
        }
    }
}

/// From control to control, until all of them have come, and then from page to page.
Walk WalkThrough(const Form& form, DeskScreen& screen) {
    constexpr int kMostSteps = 150;
    Walk walk;
    const Control* first = nullptr;
    for (int step = 0; step < kMostSteps; ++step) {
        walk.screens.push_back(screen.Text());
        walk.unmarked += ShowsFocus(screen.Shown()) ? 0 : 1;
        const Control* const holder = form.FocusHolder();
        if (holder != nullptr && holder == first) {
            break;
        }
        first = first == nullptr ? holder : first;
        walk.reached.insert(holder);
        screen.Press(KeyCode::kTab);
    }
    ReadAll(walk, screen);
    return walk;
}

/// Whether a caption can be read: all its words where there is room, else its beginning.
bool IsRead(const Walk& walk, const std::string& caption, bool whole) {
    const std::vector<std::string> words = WordsOf(WithoutKey(caption));
    const auto end = whole || words.empty() ? words.end() : words.begin() + 1;
    return std::all_of(words.begin(), end,
                       [&walk](const std::string& word) { return walk.HasSeen(word); });
}

bool IsForKeys(const Control& control) {
    return dynamic_cast<const Focusable*>(&control) != nullptr && control.AcceptsUser() &&
           control.Kind() != ControlKind::kProgressBar;
}

/// Walks through what is on view, and expects to have come by all of it.
Walk ExpectAllIsThere(const Form& form, DeskScreen& screen, bool whole) {
    std::vector<const Control*> forKeys;
    std::map<std::string, std::string> captions;  // by the control's name
    for (const Control* control : ControlsOnView(form)) {
        if (IsForKeys(*control)) {
            forKeys.push_back(control);
        }
        if (control->Has(Property::kCaption)) {
            captions[control->Name()] = control->Caption();
        }
    }
    Walk walk = WalkThrough(form, screen);
    EXPECT_EQ(walk.unmarked, 0) << form.Name();
    for (const Control* control : forKeys) {
        EXPECT_TRUE(walk.reached.contains(control)) << form.Name() << " " << control->Name();
    }
    for (const auto& [name, caption] : captions) {
        EXPECT_TRUE(IsRead(walk, caption, whole)) << form.Name() << " " << name << ": " << caption;
    }
    return walk;
}

/// The program in one language, on a screen of one size.
class WindowsOnScreensTest : public testing::TestWithParam<std::tuple<std::string, ScreenSize>> {
protected:
    WindowsOnScreensTest() {
        std::setlocale(LC_CTYPE, "C.UTF-8");
        InstallPlatform(&platform);
        CopyBuiltProgramFolder(ports.files);
        LoadActiveSettings();
        ActiveSettings.Language = ColumnOf(std::get<0>(GetParam()));
        SaveActiveSettings();
        CopyActiveToWorking();  // of which the settings window speaks
        SaveWorkingSettings();
        IshaAngle = 18.0;  // whoever has one gets no wizard
        SaveIshaAngle();
        SaveStoredLanguage(std::get<0>(GetParam()));
        BindWindows();
        face.LoadMovie(0, "");
        athanFace.LoadMovie(0, "");
        frmMain->Load();
        frmMain->tmrUpdate.Tick();
    }

    /// Opens each window in turn, acts in it and closes it.
    void VisitAll(const std::function<void(Form&)>& act) {
        for (const Opened& window : AllWindows()) {
            screen.whileWaiting = [&] {
                act(window.form);
                window.form.Unload();
            };
            window.open();
            if (screen.whileWaiting) {  // it waits for nobody
                std::exchange(screen.whileWaiting, nullptr)();
            }
        }
    }

    std::shared_ptr<FormSheet> Special(Form& form, FormSheet::Host& host) {
        if (&form == &*frmMain) {
            return std::make_shared<FaceSheet>(form, host, face);
        }
        return form.Name() == "frmAzan" ? std::make_shared<AthanSheet>(form, host, athanFace)
                                        : nullptr;
    }

    /// Keeps what was seen of a window to be looked at, in the folder of the pictures.
    void Keep(const Form& form, const std::vector<std::string>& seen) const {
        std::filesystem::create_directories(BuildPath("screenshots/terminal"));
        std::ofstream file(BuildPath("screenshots/terminal/" + form.Name() + "-" +
                                     std::get<0>(GetParam()) + "-" +
                                     NameOf(std::get<1>(GetParam())) + ".txt"));
        for (const std::string& text : seen) {
            file << text << "\n";
        }
    }

    TestPlatform ports;
    TerminalFace face;
    TerminalFace athanFace;
    DeskScreen screen{std::get<1>(GetParam()).rows, std::get<1>(GetParam()).columns,
                      [this](Form& form, FormSheet::Host& host) { return Special(form, host); }};
    PackFormats formats;
    TerminalWindows windows{screen.sheets, screen.desk};
    Platform platform{
        ports.clock,       ports.loop,      ports.failingFiles,  ports.folder,  formats,
        ports.dialogs,     ports.registry,  ports.instanceGuard, face,          windows,
        ports.tray,        ports.shell,     ports.network,       athanFace,     ports.audioFile,
        ports.audioPlayer, ports.zoneRules, ports.whereabouts,   ports.notices, ports.mediaPlayers,
        ports.session,     ports.almanac,   ports.broadcast};
};

TEST_P(WindowsOnScreensTest, EveryControlIsReachedAndEveryCaptionRead) {
    const bool whole = std::get<1>(GetParam()).columns >= 80;
    Keep(*frmMain, {screen.Text()});
    VisitAll([&](Form& form) {
        TabStrip* const tabs = TabsOf(form);
        std::vector<std::string> seen;
        for (int page = 0; page < (tabs == nullptr ? 1 : tabs->ListCount()); ++page) {
            if (tabs != nullptr) {
                tabs->UserSelect(page);
            }
            const Walk walk = ExpectAllIsThere(form, screen, whole);
            seen.insert(seen.end(), walk.screens.begin(), walk.screens.end());
        }
        Keep(form, seen);
    });
}

std::string NameOfCase(const testing::TestParamInfo<std::tuple<std::string, ScreenSize>>& test) {
    return std::get<0>(test.param) + NameOf(std::get<1>(test.param));
}

INSTANTIATE_TEST_SUITE_P(UsualSize, WindowsOnScreensTest,
                         testing::Combine(testing::ValuesIn(kLookedAtLanguages),
                                          testing::Values(ScreenSize{80, 24})),
                         NameOfCase);

// Long words, a script from the right, and letters of several characters.
INSTANTIATE_TEST_SUITE_P(SmallestSize, WindowsOnScreensTest,
                         testing::Combine(testing::Values("German", "Arabic", "Bengali"),
                                          testing::Values(ScreenSize{40, 16})),
                         NameOfCase);

}  // namespace
}  // namespace horavex
