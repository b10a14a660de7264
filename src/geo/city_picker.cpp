#include "geo/city_picker.h"

#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "base/int16.h"
#include "base/program_state.h"
#include "base/text.h"
#include "engine/center_on_screen.h"
#include "engine/progress_window.h"
#include "geo/world_map.h"
#include "lang/form_language.h"
#include "store/best_cities.h"
#include "store/location_files.h"
#include "store/text_table.h"
#include "windows/f_country.h"
#include "windows/f_message.h"
#include "windows/frm_wizard.h"
#include "windows/horavex_main_form.h"

namespace horavex {

std::int16_t CancelLoad = kFalse;

namespace {

constexpr std::size_t kHitsShown = 200;  // more would not be read, and cost time at each key

/// Number of the fill that was begun last. A fill yields after each item, and whatever begins
/// another one meanwhile ends it.
int lastFill = 0;

/// While the picker is loaded its lists yield to the user, who may ask for it once more.
bool isLoading = false;

/// All cities, made ready for a search at each key.
struct Gazetteer {
    CityList cities = ListCities();
    BestCities best{cities};
};

/// That of the picker, as long as it is open, and the cities that lstFound shows.
std::unique_ptr<const Gazetteer> gazetteer;
std::vector<std::int16_t> hits;

void ForgetCities() {
    gazetteer.reset();
    hits = {};
}

const ProgramStateReset reset([] {
    CancelLoad = kFalse;
    lastFill = 0;
    isLoading = false;
    ForgetCities();
});

class Loading {
public:
    Loading() { isLoading = true; }
    ~Loading() { isLoading = false; }
    Loading(const Loading&) = delete;
    Loading& operator=(const Loading&) = delete;
};

/// One fill of a list, numbered.
class ListFill {
public:
    ListFill() : number_(++lastFill) {}

    /// False once another fill has begun or the pick is over.
    bool IsLast() const { return number_ == lastFill; }

    bool GoesOn() const { return IsLast() && CancelLoad == kFalse; }

private:
    int number_;
};

/// Ends the fill that runs, if any.
void EndFill() {
    ++lastFill;
}

std::int64_t CountCountries() {
    OpenCountryFiles();
    return CountryCount();
}

/// Files are opened again before each read: what a handler did meanwhile may have closed them.
void AddCountry(std::int16_t number) {
    OpenCountryFiles();
    CountryRecord country;
    fCountry->lstcountry.AddItem(ReadCountry(number, country));
}

void AddCity(std::int16_t cityIndex) {
    OpenLocationFiles();
    CityRecord city;
    fCountry->lstcity.AddItem(ReadCity(cityIndex, city));
}

std::int16_t CountryOf(std::int16_t cityIndex) {
    OpenCountryFiles();
    const std::int16_t number = FindCountryOfCity(cityIndex);
    CloseCountryFiles();
    return number;
}

CountryRecord SelectedCountry() {
    OpenCountryFiles();
    CountryRecord country;
    ReadCountry(ToInt16(fCountry->lstcountry.ListIndex() + 1), country);
    CloseCountryFiles();
    return country;
}

void SelectCountryOf(std::int16_t cityIndex) {
    const int row = CountryOf(cityIndex) - 1;
    if (row < fCountry->lstcountry.ListCount()) {
        fCountry->lstcountry.SetListIndex(row);
    }
}

void AddCities(const CountryRecord& country, const ListFill& fill) {
    for (std::int32_t city = 0; city < country.CityCount && fill.GoesOn(); ++city) {
        AddCity(ToInt16(country.FirstCity + city));
        ReportProgress((city + 1) * 100.0 / country.CityCount);
    }
}

void SelectCityOfSettings(const CountryRecord& country) {
    const int row = Settings.CityIndex - country.FirstCity;
    if (row >= 0 && row < fCountry->lstcity.ListCount()) {
        fCountry->lstcity.SetListIndex(row);
    }
}

/// Shuts the list of countries while its cities are filled in. The keyboard, which leaves a list
/// that is shut, comes back to it.
class ShutCountries {
public:
    explicit ShutCountries(const ListFill& fill)
        : fill_(fill), hadFocus_(fCountry->lstcountry.HasFocus()) {
        fCountry->lstcountry.SetEnabled(false);
    }
    ~ShutCountries() {
        if (fill_.IsLast()) {
            fCountry->lstcountry.SetEnabled(true);
        }
    }
    ShutCountries(const ShutCountries&) = delete;
    ShutCountries& operator=(const ShutCountries&) = delete;

    bool HadFocus() const { return hadFocus_; }

private:
    const ListFill& fill_;
    bool hadFocus_;
};

void FillCities(const ListFill& fill) {
    const CountryRecord country = SelectedCountry();
    AddCities(country, fill);
    if (fill.GoesOn()) {
        SelectCityOfSettings(country);
    }
    if (fill.IsLast()) {
        CloseLocationFiles();
    }
}

// Nothing selected in the list of cities is row -1, and with that the last city of the country
// before. Kept: CityPickerTest.EmptySelectionIsTheCityBeforeTheCountrysFirst.
std::int16_t PickedCity() {
    return ToInt16(SelectedCountry().FirstCity + fCountry->lstcity.ListIndex());
}

std::optional<GeoPoint> SelectedPlace() {
    if (fCountry->lstcity.ListIndex() < 0) {
        return std::nullopt;
    }
    LocationRecord place;
    LookupLocation(PickedCity(), place);
    return GeoPoint{place.City.Latitude / 100.0, place.City.Longitude / 100.0};
}

void ShowOnMap() {
    Picture& map = fCountry->picMap;
    map.drawing = PlaceMap(map.ScaleWidth(), map.ScaleHeight(), SelectedPlace());
    map.Refresh();
}

/// A user who goes to the lists has done with the search.
void EndSearchFrom(const ListBox& list) {
    if (list.HasFocus()) {
        fCountry->txtSearch.SetText("");
    }
}

void lstcountry_Click() {
    EndSearchFrom(fCountry->lstcountry);
    fCountry->lstcity.Clear();
    ShowOnMap();
    const ListFill fill;
    bool hadFocus = false;
    {
        const ShutCountries shut(fill);
        hadFocus = shut.HadFocus();
        FillCities(fill);
    }
    if (hadFocus && fill.IsLast()) {
        fCountry->lstcountry.SetFocus();
    }
}

void lstcity_Click() {
    EndSearchFrom(fCountry->lstcity);
    ShowOnMap();
}

CityPick PickOf(std::int16_t cityIndex) {
    CityPick pick{Settings, {}, {}};
    pick.PickSettings.CityIndex = cityIndex;
    pick.PickCityText = LookupLocation(cityIndex, pick.PickLocation);
    return pick;
}

bool IsForDistance() {
    return fCountry->openedFromDistance != kFalse;
}

void Take(std::int16_t cityIndex) {
    const auto& take = IsForDistance() ? fCountry->onPickForDistance : fCountry->onPick;
    if (take) {
        take(cityIndex);
    }
}

void ShowHits() {
    CountryForm& form = *fCountry;
    form.lstFound.Clear();
    hits.clear();
    if (gazetteer) {
        for (const CityHit& hit : gazetteer->best.Find(form.txtSearch.Text(), kHitsShown)) {
            form.lstFound.AddItem(DisplayText(hit));
            hits.push_back(hit.city->cityIndex);
        }
    }
    const bool asks = !Trim(form.txtSearch.Text()).empty();
    form.lstFound.SetVisible(asks && !hits.empty());
    form.lblNothing.SetVisible(asks && hits.empty());
}

/// Country and city of a hit become the selected ones of the lists.
void lstFound_Click() {
    const int hit = fCountry->lstFound.ListIndex();
    if (hit < 0) {
        return;
    }
    const std::int16_t cityIndex = hits.at(static_cast<std::size_t>(hit));
    SelectCountryOf(cityIndex);
    if (fCountry->lstFound.ListIndex() != hit) {
        return;  // another hit was chosen while the cities came in
    }
    const int row = cityIndex - SelectedCountry().FirstCity;
    if (row >= 0 && row < fCountry->lstcity.ListCount()) {
        fCountry->lstcity.SetListIndex(row);
    }
}

/// Hits of which none is chosen: the best one is meant, and shown in the lists first.
bool ChooseBestHit() {
    ListBox& found = fCountry->lstFound;
    if (!found.Visible() || found.ListCount() == 0 || found.ListIndex() >= 0) {
        return false;
    }
    found.SetListIndex(0);
    return true;
}

/// While cities come in the selection is not the user's yet: an OK would take a city of another
/// country.
bool IsFilling() {
    return !fCountry->lstcountry.Enabled();
}

void cmdOK_Click() {
    if (IsFilling() || ChooseBestHit()) {
        return;
    }
    const std::int16_t cityIndex = PickedCity();
    EndFill();
    Take(cityIndex);
    fCountry->Hide();
    ForgetCities();
    SetEgyptianAngles();
    if (!IsForDistance() && fCountry->onPickDone) {
        fCountry->onPickDone();
    }
}

void FillCountriesInView() {
    ShowProgressWindow(TextItem(TextEntry::kLoadingCountries, Settings.Language),
                       TextItem(TextEntry::kPleaseWait, Settings.Language));
    FillCountries();
    fMessage->Unload();
}

void fCountry_Load() {
    TranslateOnLoad(*fCountry);
    const std::string title = TextItem(TextEntry::kChooseCity, Settings.Language);
    fCountry->SetCaption(title.empty() ? "Chose a City" : title);
    CenterOnScreen(*fCountry);
}

}  // namespace

void FillCountries() {
    const ListFill fill;
    const std::int64_t count = CountCountries();
    for (std::int64_t number = 1; number <= count; ++number) {
        AddCountry(ToInt16(number));
        ReportProgress(static_cast<double>(number) * 100.0 / static_cast<double>(count));
        if (!fill.GoesOn()) {
            break;
        }
    }
    CloseCountryFiles();
}

bool LoadCityPicker() {
    if (isLoading) {
        return false;
    }
    const Loading loading;
    CancelLoad = kFalse;  // the user may have closed any progress window before
    fCountry->Unload();   // one of an earlier pick lies hidden
    fCountry->openedFromDistance = kFalse;
    fCountry->Load();
    FillCountriesInView();
    if (CancelLoad != kFalse) {
        fCountry->Unload();
        return false;
    }
    gazetteer = std::make_unique<Gazetteer>();
    SelectCountryOf(Settings.CityIndex);
    return true;
}

void PickCityForDistance(Form& owner, std::function<void(const CityPick& pick)> take) {
    if (!LoadCityPicker()) {
        return;
    }
    fCountry->openedFromDistance = kTrue;
    fCountry->onPickForDistance = [take = std::move(take)](std::int16_t cityIndex) {
        take(PickOf(cityIndex));
    };
    fCountry->ShowModal(&owner);
}

bool NamesEgypt(const std::string& text) {
    return AsciiLower(text).find("egypt") != std::string::npos;
}

void SetEgyptianAngles() {
    if (!NamesEgypt(HoravexMainForm->lblCity.Caption())) {
        return;
    }
    SetEgyptianPair(*frmWizard);
    SetEgyptianPair(*HoravexMainForm);
}

void BindCityPicker() {
    CountryForm& form = *fCountry;
    form.onLoad = fCountry_Load;
    form.onCloseRequest = [](CloseRequest&) { EndFill(); };
    form.onUnload = ForgetCities;
    form.txtSearch.onChange = ShowHits;
    form.lstFound.onClick = lstFound_Click;
    form.lstFound.onDblClick = cmdOK_Click;
    form.lstcountry.onClick = lstcountry_Click;
    form.lstcountry.onDblClick = cmdOK_Click;
    form.lstcity.onClick = lstcity_Click;
    form.lstcity.onDblClick = cmdOK_Click;
    form.cmdOK.onClick = cmdOK_Click;
    form.cmdCancel.onClick = [] { fCountry->Unload(); };
}

}  // namespace horavex
