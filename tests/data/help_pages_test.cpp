// The help as it is built: every number has a page, every link an end, every window a topic.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <regex>
#include <set>

#include "base/text.h"
#include "base/utf8.h"
#include "config/help.h"
#include "config/help_topics.h"
#include "lang/pack_keys.h"
#include "support/build_folder.h"
#include "support/run_program.h"

namespace horavex {
namespace {

namespace fs = std::filesystem;

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

HelpTopics Topics() {
    return HelpTopics(ContentOf(BuiltProgramFolder() + "/Horavex.HLP"));
}

/// What the groups of a pattern match, one after the other.
std::vector<std::smatch> Matches(const std::string& text, const std::string& pattern) {
    const std::regex regex(pattern);
    return {std::sregex_iterator(text.begin(), text.end(), regex), {}};
}

/// The pages of one language.
class HelpPagesTest : public testing::TestWithParam<std::string> {
protected:
    static std::string Folder() { return BuiltProgramFolder() + "/help/" + GetParam(); }
    static std::string Text(const std::string& page) { return ContentOf(Folder() + "/" + page); }

    /// What the pack of the language says of its pages.
    static std::string PackValue(const std::string& key) {
        const std::string pack = ContentOf(BuiltProgramFolder() + "/lang/" + GetParam() + ".ini");
        const auto line = Matches(pack, "\n" + key + "=([^\n]*)");
        return line.empty() ? "" : line[0][1].str();
    }
};

TEST(HelpFileTest, KnowsTheNumbersThatButtonsAndWindowsAskFor) {
    const std::vector<int> numbers = Topics().Numbers();
    for (const int number : {kHelpIndex, kHelpSettings, kHelpQibla, kHelpDateConversion}) {
        EXPECT_THAT(numbers, Contains(number));
    }
    for (int column = 1; column <= 6; ++column) {
        EXPECT_EQ(Topics().PageOf(column * 1000), "settings.html");
        EXPECT_EQ(Topics().PageOf(column * 1000 + 200), "settings.html");
    }
    EXPECT_EQ(numbers.front(), kHelpIndex);
}

TEST(HelpFileTest, WindowsThatTranslateThemselvesHaveATopicOfTheirOwn) {
    const std::string file = ContentOf(BuiltProgramFolder() + "/Horavex.HLP");
    const std::vector<int> numbers = Topics().Numbers();
    for (const auto& form : PackForms()) {
        EXPECT_THAT(file, HasSubstr("\n" + form->Name() + "="));
        EXPECT_THAT(numbers, Contains(Topics().NumberOf(form->Name()))) << form->Name();
    }
}

TEST_P(HelpPagesTest, EveryTopicHasItsPage) {
    for (const int number : Topics().Numbers()) {
        EXPECT_TRUE(fs::exists(Folder() + "/" + Topics().PageOf(number))) << number;
    }
}

TEST_P(HelpPagesTest, EveryPageIsInTheContents) {
    for (const auto& entry : fs::directory_iterator(Folder())) {
        EXPECT_THAT(Topics().Pages(), Contains(entry.path().filename().string()));
    }
}

TEST_P(HelpPagesTest, EveryLinkLeadsToAPage) {
    for (const std::string& page : Topics().Pages()) {
        const std::string text = Text(page);
        for (const std::smatch& link : Matches(text, "href=\"([^\"]*)\"")) {
            EXPECT_THAT(Topics().Pages(), Contains(link[1].str())) << page;
        }
    }
}

TEST_P(HelpPagesTest, IndexLinksToEveryOtherPage) {
    std::set<std::string> linked{"index.html"};
    const std::string index = Text("index.html");
    for (const std::smatch& link : Matches(index, "href=\"([^\"]*)\"")) {
        linked.insert(link[1]);
    }
    for (const std::string& page : Topics().Pages()) {
        EXPECT_THAT(linked, Contains(page));
    }
}

TEST_P(HelpPagesTest, PagesAreUtf8SayTheirLanguageAndHaveOneTitle) {
    const std::string start =
        "<html lang=\"" + PackValue("Code") + "\" dir=\"" + PackValue("Direction") + "\">";
    std::set<std::string> titles;
    for (const std::string& page : Topics().Pages()) {
        const std::string text = Text(page);
        EXPECT_TRUE(IsUtf8(text)) << page;
        EXPECT_THAT(text, HasSubstr(start)) << page;
        EXPECT_THAT(text, HasSubstr("<meta charset=\"utf-8\">"));
        const auto title = Matches(text, "<title>([^<]+)</title>");
        const auto heading = Matches(text, "<h1>([^<]+)</h1>");
        ASSERT_EQ(title.size(), 1U) << page;
        ASSERT_EQ(heading.size(), 1U) << page;
        EXPECT_EQ(title[0][1].str(), heading[0][1].str());
        EXPECT_TRUE(titles.insert(title[0][1]).second) << page;
    }
}

/// Digits before words of Latin letters would else come to stand behind them.
TEST_P(HelpPagesTest, PagesFromTheRightSetApartWhatIsQuotedFromTheLeft) {
    const std::regex isolated("&#8294;[^&<]*&#8297;");
    for (const std::string& page : Topics().Pages()) {
        if (PackValue("Direction") == "rtl") {
            const std::string others = std::regex_replace(Text(page), isolated, "");
            EXPECT_THAT(Matches(others, "[0-9] [a-z]"), testing::IsEmpty()) << page;
        }
    }
}

TEST_P(HelpPagesTest, EveryElementThatOpensCloses) {
    for (const std::string& page : Topics().Pages()) {
        std::vector<std::string> open;
        const std::string text = Text(page);
        for (const std::smatch& tag : Matches(text, "<(/?)([a-z0-9]+)[^>]*>")) {
            if (tag[1].length() == 0) {
                if (tag[2] != "meta") {
                    open.push_back(tag[2]);
                }
                continue;
            }
            ASSERT_FALSE(open.empty()) << page;
            EXPECT_EQ(open.back(), tag[2].str()) << page;
            open.pop_back();
        }
        EXPECT_TRUE(open.empty()) << page;
    }
}

// The face gives each menu the first letter of its title that no title before it has.
TEST_P(HelpPagesTest, KeysOfTheMenusAreLettersOfTheirTitles) {
    std::string keys;
    for (const char* title : {"mnuAthan", "mnuSettings", "mnuTools", "mnuHelp"}) {
        const std::string letters = AsciiLower(PackValue(title));
        keys += letters.at(letters.find_first_not_of(keys));
    }
    std::string told;
    const std::string text = Text("program.html");
    for (const std::smatch& key : Matches(text, "Alt\\+([A-Z])")) {
        told += AsciiLower(key[1].str());
    }
    EXPECT_TRUE(told.empty() || told == keys) << told << " for " << keys;
}

TEST_P(HelpPagesTest, NothingComesFromTheNetwork) {
    for (const std::string& page : Topics().Pages()) {
        EXPECT_THAT(Text(page), Not(HasSubstr("://"))) << page;
    }
}

// A line must not break in front of a mark that belongs to the word before it.
TEST(FrenchHelpTest, MarksStandBehindNoBreakSpacesAndApostrophesAreCurved) {
    for (const auto& page : fs::directory_iterator(BuiltProgramFolder() + "/help/French")) {
        const std::string text = ContentOf(page.path().string());
        for (const char* plain : {" :", " ;", " !", " ?", " %", " »", "« ", "'", "\n:", "\n;"}) {
            EXPECT_THAT(text, Not(HasSubstr(plain))) << page.path().filename();
        }
    }
}

/// What users would not expect of the program, in each language's own words.
struct Surprise {
    const char* page;
    std::map<std::string, const char*> words;
};

const Surprise kSurprises[] = {
    {"settings.html",
     {{"Arabic", "<b>صامت</b> و<b>رنين</b>: تظهر النافذة بلا صوت"},
      {"Bengali", "<b>Mute</b> ও <b>Buzzard</b> দুটিতেই উইন্ডোটি শব্দ ছাড়া দেখা যায়"},
      {"English", "<b>Mute</b> and <b>Buzzard</b> both show the window without a sound"},
      {"French",
       "<b>Silencieux</b> et <b>Sonnerie</b> affichent tous deux la fenêtre sans aucun son"},
      {"German", "<b>Stumm</b> und <b>Signalton</b> zeigen beide das Fenster ohne Ton"},
      {"Indonesian", "<b>Mute</b> dan <b>Buzzard</b> sama-sama menampilkan jendela tanpa suara"},
      {"Spanish", "<b>Silencio</b> y <b>Zumbador</b> muestran ambos la ventana sin sonido"},
      {"Turkish", "<b>Mute</b> ve <b>Buzzard</b> pencereyi sessiz gösterir"},
      {"Urdu", "<b>Mute</b> اور <b>Buzzard</b> دونوں میں ونڈو بغیر آواز کے آتی ہے"}}},
    {"settings.html",
     {{"Arabic", "ويأتي كل يوم سواء أكان المربع معلَّمًا أم لا"},
      {"Bengali", "ঘরে টিক থাকুক বা না থাকুক, এটি প্রতিদিন আসে"},
      {"English", "It comes every day, whether the box is ticked or not"},
      {"French", "L’alarme revient chaque jour, que la case soit cochée ou non"},
      {"German", "Er kommt jeden Tag, ob das Häkchen gesetzt ist oder nicht"},
      {"Indonesian", "Alarm datang setiap hari, baik kotaknya dicentang maupun tidak"},
      {"Spanish", "Llega todos los días, esté o no marcada la casilla"},
      {"Turkish", "Kutu işaretli olsun olmasın her gün gelir"},
      {"Urdu", "یہ ہر روز آتا ہے، خانے میں نشان ہو یا نہ ہو"}}},
    {"settings.html",
     {{"Arabic", "وتبقى زاوية العشاء واللغة كما هما"},
      {"Bengali", "এশার কোণ ও ভাষা আগের মতোই থাকে"},
      {"English", "the Isha angle and the language stay"},
      {"French", "l’angle de l’Icha et la langue restent inchangés"},
      {"German", "der Winkel für Ischa und die Sprache bleiben"},
      {"Indonesian", "sudut Isya dan bahasa tetap seperti semula"},
      {"Spanish", "el ángulo del Isha y el idioma se conservan"},
      {"Turkish", "yatsı açısı ve dil olduğu gibi kalır"},
      {"Urdu", "عشاء کا زاویہ اور زبان نہیں بدلتے"}}},
    {"athan.html",
     {{"Arabic", "وإن لم يكن لها صوت بقيت حتى تضغط زر الإيقاف"},
      {"Bengali", "শব্দ না থাকলে আপনি ওই বোতাম না চাপা পর্যন্ত উইন্ডোটি থাকে"},
      {"English", "Without a sound it stays until you press <b>Stop</b>"},
      {"French", "Sans son, elle reste jusqu’à ce que vous cliquiez sur ce bouton"},
      {"German", "Ohne Ton bleibt es, bis Sie auf die Stopptaste klicken"},
      {"Indonesian", "Tanpa suara, jendela itu bertahan sampai Anda menekan <b>Hentikan</b>"},
      {"Spanish", "Sin sonido, permanece hasta que usted pulsa el botón de detener"},
      {"Turkish", "Sessizse siz <b>Durdur</b> düğmesine basana kadar kalır"},
      {"Urdu", "آواز نہ ہو تو وہ آپ کے <b>روکیں</b> دبانے تک رہتی ہے"}}},
    {"athan.html",
     {{"Arabic", "حين تُغلق نافذة رسالة أو نافذة تقدم"},
      {"Bengali", "যখন কোনো বার্তা বা অগ্রগতির উইন্ডো বন্ধ হয়"},
      {"English", "when a message or a progress window closes"},
      {"French", "quand un message ou une fenêtre de progression se ferme"},
      {"German", "wenn sich ein Meldungs- oder Fortschrittsfenster schließt"},
      {"Indonesian", "ketika sebuah pesan atau jendela kemajuan ditutup"},
      {"Spanish", "cuando se cierra un mensaje o una ventana de progreso"},
      {"Turkish", "Bir ileti veya ilerleme penceresi kapanınca"},
      {"Urdu", "جب کوئی پیغام یا پیش رفت کی ونڈو بند ہو"}}},
    {"athan.html",
     {{"Arabic", "أما المؤذن الثالث للصلوات الأخرى فيُستمع إليه فقط"},
      {"Bengali", "বাকি চার নামাজের তৃতীয় মুয়াজ্জিনকে কেবল শোনা যায়"},
      {"English", "The third reciter of the other prayers can be listened to and no more"},
      {"French", "Le troisième muezzin des autres prières peut être écouté, et rien de plus"},
      {"German", "Den dritten Muezzin der übrigen Gebete können Sie anhören, mehr nicht"},
      {"Indonesian", "Muazin ketiga untuk salat lainnya hanya dapat didengarkan"},
      {"Spanish", "El tercer almuédano de las demás oraciones solo se puede escuchar"},
      {"Turkish", "Öbür namazların üçüncü müezzini yalnızca dinlenebilir"},
      {"Urdu", "دوسری نمازوں کا تیسرا مؤذن صرف سنا جا سکتا ہے"}}},
    {"athan.html",
     {{"Arabic", "يُفتح مربع الحوار على نوع نادر"},
      {"Bengali", "ফাইল বাছাইয়ের উইন্ডো একটি কম প্রচলিত ধরন নিয়ে খোলে"},
      {"English", "The dialogue opens on one of the rare types"},
      {"French", "La boîte de dialogue s’ouvre sur l’un des types rares"},
      {"German", "Der Dialog öffnet sich mit einem der seltenen Dateitypen"},
      {"Indonesian", "Dialognya terbuka dengan salah satu jenis yang langka"},
      {"Spanish", "El cuadro de diálogo se abre con uno de los tipos poco comunes"},
      {"Turkish", "İletişim kutusu az rastlanan türlerden biriyle açılır"},
      {"Urdu", "ڈائیلاگ کسی کمیاب قسم پر کھلتا ہے"}}},
    {"athan.html",
     {{"Arabic", "النسخة هي التي تُسمع عند الصلاة"},
      {"Bengali", "নামাজের সময় কপিটিই বাজে"},
      {"English", "At the prayer it is the copy that plays"},
      {"French", "À l’heure de la prière, c’est la copie qui est jouée"},
      {"German", "Zum Gebet erklingt die Kopie"},
      {"Indonesian", "Pada waktu salat, yang diputar adalah salinannya"},
      {"Spanish", "En la oración suena la copia"},
      {"Turkish", "Namaz vaktinde çalan, kopyadır"},
      {"Urdu", "نماز پر یہی نقل چلتی ہے"}}},
    {"dates.html",
     {{"Arabic", "وتُعد أشهر النافذة الرئيسية والجداول كلها بهذا الحساب"},
      {"Bengali", "মূল উইন্ডো ও সময়সূচির সব মাসই এভাবে গোনা হয়"},
      {"English", "The face and the timetables count all their months in that way"},
      {"French",
       "La fenêtre principale et les tableaux d’horaires comptent tous leurs mois de cette façon"},
      {"German", "Das Hauptfenster und die Tabellen zählen alle ihre Monate auf diese Weise"},
      {"Indonesian", "Jendela utama dan jadwal menghitung semua bulannya dengan cara itu"},
      {"Spanish", "La ventana principal y los horarios calculan todos sus meses de ese modo"},
      {"Turkish", "bütün ayları bu biçimde sayar"},
      {"Urdu", "مرکزی ونڈو اور جدول اپنے تمام مہینے اسی طرح گنتے ہیں"}}},
    {"index.html",
     {{"Arabic", "والزر الذي تحت البوصلة يفتح القبلة"},
      {"Bengali", "কম্পাসের নিচের বোতামটি কিবলা খোলে"},
      {"English", "the button below the compass opens the qibla"},
      {"French", "le bouton placé sous la boussole ouvre la qibla"},
      {"German", "die Schaltfläche unter dem Kompass öffnet die Qibla"},
      {"Indonesian", "tombol di bawah kompas membuka kiblat"},
      {"Spanish", "el botón situado bajo la brújula abre la alquibla"},
      {"Turkish", "pusulanın altındaki düğme kıbleyi açar"},
      {"Urdu", "قطب نما کے نیچے والا بٹن قبلہ کھولتا ہے"}}},
};

TEST_P(HelpPagesTest, WhatSurprisesIsTold) {
    for (const Surprise& surprise : kSurprises) {
        const std::string text = std::regex_replace(Text(surprise.page), std::regex("\\s+"), " ");
        EXPECT_THAT(text, HasSubstr(surprise.words.at(GetParam())));
    }
}

const std::vector<std::string> kLanguages = {
    "Arabic", "Bengali", "English", "French", "German", "Indonesian", "Spanish", "Turkish", "Urdu",
};

INSTANTIATE_TEST_SUITE_P(Languages, HelpPagesTest, testing::ValuesIn(kLanguages),
                         [](const auto& language) { return language.param; });

TEST(HelpLanguagesTest, HaveTheSameShape) {
    for (const std::string& page : Topics().Pages()) {
        std::map<std::string, std::size_t> counts;
        for (const std::string& language : kLanguages) {
            const std::string text =
                ContentOf(BuiltProgramFolder() + "/help/" + language + "/" + page);
            counts[language] = Matches(text, "<(h2|li|p|tr)>").size();
        }
        for (const std::string& language : kLanguages) {
            EXPECT_EQ(counts[language], counts["English"]) << language << " " << page;
        }
    }
}

}  // namespace
}  // namespace horavex
