// Draws the program's windows into PNG files, one a scene, and what they have on one sheet, for
// people who look at them. The bytes are the same at each run.
//
//     render_windows --output FOLDER [--language English] [--theme light]
//                    [--scale 1|2] [--font-scale 1.5] [--scene NAME]... [--sheet FILE] [--list]
//
// Ends with 1 where a picture cannot be drawn, with 2 for a scene that there is not.
#include <QCommandLineParser>
#include <QDir>
#include <QFont>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>

#include "desktop/application.h"
#include "desktop/look/look.h"
#include "desktop/shots/contact_sheet.h"
#include "desktop/shots/scenes.h"
#include "desktop/shots/shot.h"

namespace {

using namespace horavex;

constexpr double kPointSize = 10.0;
constexpr int kWrongUse = 2;  // the exit status

void Pin(const char* variable, const std::string& value) {
    setenv(variable, value.c_str(), 1);
}

/// What the toolkit reads as it starts: nothing of the desktop around counts.
void PinSurroundings(bool twofold) {
    const std::string here = SHOTS_FOLDER;
    Pin("TZ", "UTC");
    Pin("LC_ALL", "C.UTF-8");
    Pin("FONTCONFIG_FILE", here + "/fonts.conf");
    Pin("QT_QPA_PLATFORM",
        "offscreen:configfile=" + here + (twofold ? "/screens_2x.json" : "/screens.json"));
    Pin("QT_SCALE_FACTOR", twofold ? "2" : "1");
    Pin("HORAVEX_TEST_BINARY_DIR", BUILD_FOLDER);
    unsetenv("QT_STYLE_OVERRIDE");
    unsetenv("QT_QPA_PLATFORMTHEME");
}

/// The toolkit takes the scale before it can read a command line.
bool AsksForTwofold(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        const std::string word = argv[i];
        if (word == "--scale=2" || (word == "--scale" && i + 1 < argc && argv[i + 1][0] == '2')) {
            return true;
        }
    }
    return false;
}

void DescribeOptions(QCommandLineParser& parser) {
    parser.setApplicationDescription("Draws the windows of Horavex.");
    parser.addHelpOption();
    parser.addOptions({
        {"output", "Folder of the pictures.", "folder"},
        {"language", "Name of a language pack.", "name", "English"},
        {"theme", "light, dark, contrast or light-contrast.", "theme", "light"},
        {"scale", "Dots a pixel: 1 or 2.", "dots", "1"},
        {"font-scale", "Size of the texts, 1 for usual.", "factor", "1"},
        {"scene", "This scene alone; may be given again.", "name"},
        {"sheet", "Also puts all pictures onto one.", "file"},
        {"list", "Prints the names of the scenes."},
    });
}

void UseFont(double scale) {
    QFont font("Noto Sans");
    font.setPointSizeF(kPointSize * scale);
    font.setHintingPreference(QFont::PreferNoHinting);
    QApplication::setFont(font);
}

/// Throws std::invalid_argument for a name that no scene has.
std::vector<Scene> ChosenScenes(const QStringList& names) {
    if (names.isEmpty()) {
        return Scenes();
    }
    std::vector<Scene> chosen;
    for (const QString& name : names) {
        const auto scene = std::ranges::find(Scenes(), name.toStdString(), &Scene::name);
        if (scene == Scenes().end()) {
            throw std::invalid_argument("no scene " + name.toStdString());
        }
        chosen.push_back(*scene);
    }
    return chosen;
}

int Draw(const QCommandLineParser& options) {
    const std::string language = options.value("language").toStdString();
    const QDir folder(options.value("output"));
    std::vector<Shot> shots;
    for (const Scene& scene : ChosenScenes(options.values("scene"))) {
        Shot shot = ShotOf(scene, language);
        const QString file = folder.filePath(shot.name + ".png");
        if (!Save(shot.image, file)) {
            std::fprintf(stderr, "render_windows: cannot write %s\n", qPrintable(file));
            return EXIT_FAILURE;
        }
        shots.push_back(std::move(shot));
    }
    const QString sheet = options.value("sheet");
    return sheet.isEmpty() || ContactSheet(shots).save(sheet) ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
    PinSurroundings(AsksForTwofold(argc, argv));
    Application application(argc, argv);
    QCommandLineParser options;
    DescribeOptions(options);
    options.process(application);
    if (options.isSet("list")) {
        for (const Scene& scene : Scenes()) {
            std::puts(scene.name.c_str());
        }
        return EXIT_SUCCESS;
    }
    look::Use(look::ThemeNamed(options.value("theme")));
    look::AllowMotion(false);
    QApplication::setCursorFlashTime(0);
    UseFont(options.value("font-scale").toDouble());
    QDir().mkpath(options.value("output"));
    try {
        return Draw(options);
    } catch (const std::invalid_argument& fault) {
        std::fprintf(stderr, "render_windows: %s\n", fault.what());
        return kWrongUse;
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "render_windows: %s\n", fault.what());
        return EXIT_FAILURE;
    }
}
