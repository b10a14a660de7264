#include "config/authorities.h"

#include <algorithm>
#include <iterator>

#include "base/fold.h"

namespace horavex {

namespace {

// Read in November 2026. Where an authority publishes times and no figures, the figures are those
// that its own tables bear out; docs/methods.md tells which, and how well they do. The order of the
// margins is Fajr, Shurooq, Zuhr, Asr, Maghrib, Isha.
constexpr Authority kAuthorities[] = {
    {.key = "algeria",
     .name = "Ministry of Religious Affairs and Wakfs, Algeria",
     .fajrAngle = 18.0,
     .ishaAngle = 17.0,
     .source = "Statement of the ministry, by Algérie Presse Service, "
               "https://djazairess.com/fr/liberte/224850"},
    {.key = "brunei",
     .name = "Ministry of Religious Affairs, Brunei",
     .fajrAngle = 20.0,
     .ishaAngle = 18.0,
     .margins = {0, 0, 1, 0, 0, 0},
     .source = "The ministry's times of 2026, https://www.mora.gov.bn"},
    {.key = "canada",
     .name = "Fiqh Council of North America, Canada",
     .fajrAngle = 13.0,
     .ishaAngle = 13.0,
     .source = "Fiqh Council of North America, The suggested calculation method for Fajr and Isha, "
               "https://fiqhcouncil.org/the-suggested-calculation-method-for-fajr-and-isha/"},
    {.key = "dubai",
     .name = "Dubai, United Arab Emirates",
     .fajrAngle = 18.2,
     .ishaAngle = 18.2,
     .margins = {0, -3, 3, 3, 3, 0},
     .source = "Adhan, Calculation Parameters Guide, "
               "https://github.com/batoulapps/adhan-js/blob/master/METHODS.md"},
    {.key = "egypt",
     .name = "Egyptian General Authority of Survey",
     .fajrAngle = 19.5,
     .ishaAngle = 17.5,
     .source = "Dar al-Ifta of Egypt, fatwa 4021, 20 March 2017, "
               "https://www.dar-alifta.org/ar/fatwa/details/13816"},
    {.key = "france",
     .name = "Union des organisations islamiques de France",
     .fajrAngle = 12.0,
     .ishaAngle = 12.0,
     .source = "Saphirnews, Horaires de prières: 12 ou 18 degrés, 22 June 2016, "
               "https://saphirnews.com/Horaires-de-prieres-12-ou-18-degres-pourquoi-choisir_"
               "a22568.html"},
    {.key = "gulf",
     .name = "Gulf region",
     .fajrAngle = 19.5,
     .ishaInterval = 90,
     .ishaIntervalRamadan = 90,
     .source = "AlAdhan, Methods, https://api.aladhan.com/v1/methods"},
    {.key = "indonesia",
     .name = "Kementerian Agama, Indonesia",
     .fajrAngle = 20.0,
     .ishaAngle = 18.0,
     .margins = {2, -2, 3, 2, 2, 2},
     .asrRatio = 1.0,
     .source = "Kementerian Agama Temanggung, Standar baku hisab rukyat, 24 October 2022, "
               "https://temanggung.kemenag.go.id/bimbingan-masyarakat-islam/standar-baku-hisab-"
               "rukyat-dalam-pelatihan-perhitungan-jadwal-shalat/"},
    {.key = "isna",
     .name = "Islamic Society of North America",
     .fajrAngle = 15.0,
     .ishaAngle = 15.0,
     .source = "Fiqh Council of North America, The suggested calculation method for Fajr and Isha, "
               "https://fiqhcouncil.org/the-suggested-calculation-method-for-fajr-and-isha/"},
    {.key = "jafari",
     .name = "Shia Ithna-Ashari, Leva Institute, Qum",
     .fajrAngle = 16.0,
     .ishaAngle = 14.0,
     .maghribAngle = 4.0,
     .source = "Pray Times, Calculation Methods, http://praytimes.org/wiki/Calculation_Methods"},
    {.key = "jordan",
     .name = "Ministry of Awqaf, Jordan",
     .fajrAngle = 18.0,
     .ishaAngle = 18.0,
     .margins = {0, 0, 0, 0, 5, 0},
     .source = "AlAdhan, Methods, https://api.aladhan.com/v1/methods"},
    {.key = "karachi",
     .name = "University of Islamic Sciences, Karachi",
     .fajrAngle = 18.0,
     .ishaAngle = 18.0,
     .asrRatio = 2.0,
     .source = "Jamia Banuri Town, Karachi, fatwas 144707100380 and 143409200025, "
               "https://www.banuri.edu.pk/readquestion/144707100380/25-12-2025"},
    {.key = "kuwait",
     .name = "Ministry of Awqaf and Islamic Affairs, Kuwait",
     .fajrAngle = 18.0,
     .ishaAngle = 17.5,
     .source = "AlAdhan, Methods, https://api.aladhan.com/v1/methods"},
    // Dawn stood at 20 degrees until November 2019. Noon is told when the whole disc is past the
    // meridian, 64 seconds after its centre.
    {.key = "malaysia",
     .name = "Jabatan Kemajuan Islam Malaysia",
     .fajrAngle = 18.0,
     .ishaAngle = 18.0,
     .margins = {0, 0, 1, 0, 0, 0},
     .asrRatio = 1.0,
     .source = "Mufti of Perlis, Penetapan perubahan waktu permulaan solat Subuh, 30 December "
               "2019, https://mufti.perlis.gov.my/index.php/himpunan-fatwa-negeri/215"},
    // In full its twilights go by the season and the latitude, later than 18 degrees at dawn and
    // earlier at nightfall; what angles can say of it is their outer bound.
    {.key = "moonsighting",
     .name = "Moonsighting Committee Worldwide, without its seasons",
     .fajrAngle = 18.0,
     .ishaAngle = 18.0,
     .margins = {0, 0, 5, 0, 3, 0},
     .source = "Moonsighting.com, How we calculate, https://www.moonsighting.com/how-we.html"},
    {.key = "morocco",
     .name = "Ministry of Habous and Islamic Affairs, Morocco",
     .fajrAngle = 19.0,
     .ishaAngle = 17.0,
     .margins = {0, -3, 5, 0, 4, 0},
     .source = "AlAdhan, Methods, https://api.aladhan.com/v1/methods; margins by the ministry's "
               "times of Rabat in 2026, https://www.habous.gov.ma"},
    {.key = "mwl",
     .name = "Muslim World League",
     .fajrAngle = 18.0,
     .ishaAngle = 17.0,
     .source = "Muslim World League, Prayer Times, "
               "https://portal.themwl.org/en/applications/prayer-times"},
    {.key = "oman",
     .name = "Ministry of Awqaf and Religious Affairs, Oman",
     .fajrAngle = 18.0,
     .ishaAngle = 18.0,
     .margins = {0, 0, 5, 5, 5, 0},
     .source = "M. Kundakci, Oman MARA: evidence audit, after https://www.mara.gov.om, "
               "https://github.com/MelikhanKundakci/prayer-times-research"},
    {.key = "paris",
     .name = "Grande Mosquée de Paris",
     .fajrAngle = 18.0,
     .ishaAngle = 18.0,
     .source = "Saphirnews, Horaires de prières: 12 ou 18 degrés, 22 June 2016, "
               "https://saphirnews.com/Horaires-de-prieres-12-ou-18-degres-pourquoi-choisir_"
               "a22568.html"},
    {.key = "portugal",
     .name = "Comunidade Islâmica de Lisboa",
     .fajrAngle = 18.0,
     .ishaInterval = 77,
     .ishaIntervalRamadan = 77,
     .margins = {0, 0, 5, 0, 3, 3},
     .source = "AlAdhan, Methods, https://api.aladhan.com/v1/methods"},
    {.key = "qatar",
     .name = "Qatar Calendar House",
     .fajrAngle = 18.0,
     .ishaInterval = 90,
     .ishaIntervalRamadan = 90,
     .source = "AlAdhan, Methods, https://api.aladhan.com/v1/methods"},
    {.key = "russia",
     .name = "Spiritual Administration of Muslims of Russia",
     .fajrAngle = 16.0,
     .ishaAngle = 15.0,
     .source = "AlAdhan, Methods, https://api.aladhan.com/v1/methods"},
    {.key = "singapore",
     .name = "Majlis Ugama Islam Singapura",
     .fajrAngle = 20.0,
     .ishaAngle = 18.0,
     .margins = {0, 0, 1, 0, 0, 0},
     .source = "AlAdhan, Methods, https://api.aladhan.com/v1/methods; margin by the Muslim Prayer "
               "Timetable of 2026, https://data.gov.sg"},
    {.key = "tehran",
     .name = "Institute of Geophysics, University of Tehran",
     .fajrAngle = 17.7,
     .ishaAngle = 14.0,
     .maghribAngle = 4.5,
     .source = "Pray Times, Calculation Methods, http://praytimes.org/wiki/Calculation_Methods"},
    {.key = "tunisia",
     .name = "Institut National de la Météorologie, Tunisia",
     .fajrAngle = 18.0,
     .ishaAngle = 18.0,
     .margins = {0, 0, 7, 0, 2, 0},
     .asrRatio = 1.0,
     .source = "INM Prayer-Time Formula, after https://www.meteo.tn, "
               "https://github.com/bsafwen/TunisianPrayerTimes"},
    {.key = "turkey",
     .name = "Diyanet İşleri Başkanlığı, Turkey",
     .fajrAngle = 18.0,
     .ishaAngle = 17.0,
     .margins = {0, -7, 5, 4, 7, 0},
     .asrRatio = 1.0,
     .source = "Diyanet İşleri Başkanlığı, İbadet vakitlerinde temkin, "
               "https://vakithesaplama.diyanet.gov.tr/temkin.php"},
    {.key = "umm-al-qura",
     .name = "Umm al-Qura University, Mecca",
     .fajrAngle = 18.5,
     .ishaInterval = 90,
     .ishaIntervalRamadan = 120,
     .source = "Pray Times, Calculation Methods, http://praytimes.org/wiki/Calculation_Methods"},
};

struct Usual {
    std::string_view country;
    const char* key;
};

// By country. A country that no source names is not here.
constexpr Usual kUsual[] = {
    {"Afghanistan", "karachi"},
    {"Algeria", "algeria"},
    {"Austria", "mwl"},
    {"Bangladesh", "karachi"},
    {"Belgium", "mwl"},
    {"Brunei", "brunei"},
    {"Bulgaria", "mwl"},
    {"Canada", "canada"},
    {"China", "mwl"},
    {"Croatia", "mwl"},
    {"Czechia", "mwl"},
    {"Denmark", "mwl"},
    {"Egypt", "egypt"},
    {"Finland", "mwl"},
    {"France", "france"},
    {"Germany", "mwl"},
    {"Greece", "mwl"},
    {"Hong Kong", "mwl"},
    {"Hungary", "mwl"},
    {"India", "karachi"},
    {"Indonesia", "indonesia"},
    {"Iran", "tehran"},
    {"Ireland", "mwl"},
    {"Italy", "mwl"},
    {"Japan", "mwl"},
    {"Jordan", "jordan"},
    {"Kuwait", "kuwait"},
    {"Lebanon", "egypt"},
    {"Luxembourg", "mwl"},
    {"Macau", "mwl"},
    {"Malaysia", "malaysia"},
    {"Morocco", "morocco"},
    {"Netherlands", "mwl"},
    {"Norway", "mwl"},
    {"Oman", "oman"},
    {"Pakistan", "karachi"},
    {"Poland", "mwl"},
    {"Portugal", "portugal"},
    {"Qatar", "qatar"},
    {"Romania", "mwl"},
    {"Russia", "russia"},
    {"Saudi Arabia", "umm-al-qura"},
    {"Singapore", "singapore"},
    {"South Korea", "mwl"},
    {"Spain", "mwl"},
    {"Sweden", "mwl"},
    {"Switzerland", "mwl"},
    {"Syria", "egypt"},
    {"Taiwan", "mwl"},
    {"Tunisia", "tunisia"},
    {"Turkey", "turkey"},
    {"United Arab Emirates", "dubai"},
    {"United Kingdom", "mwl"},
    {"United States", "isna"},
    {"Western Sahara", "morocco"},
};

template <class Predicate>
std::vector<const Authority*> Select(Predicate wanted) {
    std::vector<const Authority*> found;
    for (const Authority& authority : kAuthorities) {
        if (wanted(FoldForSearch(authority.key)) || wanted(FoldForSearch(authority.name))) {
            found.push_back(&authority);
        }
    }
    return found;
}

}  // namespace

std::span<const Authority> Authorities() {
    return kAuthorities;
}

const Authority* AuthorityOfKey(std::string_view key) {
    const auto* found =
        std::find_if(std::begin(kAuthorities), std::end(kAuthorities),
                     [&](const Authority& authority) { return authority.key == key; });
    return found == std::end(kAuthorities) ? nullptr : found;
}

std::vector<const Authority*> MatchingAuthorities(std::string_view text) {
    const std::string wanted = FoldForSearch(text);
    auto whole = Select([&](const std::string& folded) { return folded == wanted; });
    return whole.empty() ? Select([&](const std::string& folded) {
        return folded.find(wanted) != std::string::npos;
    })
                         : whole;
}

std::vector<std::string> CountriesOf(const Authority& authority) {
    std::vector<std::string> countries;
    for (const Usual& usual : kUsual) {
        if (usual.key == std::string_view(authority.key)) {
            countries.emplace_back(usual.country);
        }
    }
    return countries;
}

const Authority* AuthorityOfCountry(std::string_view country) {
    const auto* found = std::ranges::find(kUsual, country, &Usual::country);
    return found == std::end(kUsual) ? nullptr : AuthorityOfKey(found->key);
}

}  // namespace horavex
