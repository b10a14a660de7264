#pragma once

#include <QApplication>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "desktop/face/azan_face.h"
#include "desktop/face/qt_face.h"
#include "desktop/form_window/form_windows.h"
#include "desktop/ports/qt_formats.h"
#include "desktop/ports/qt_windows.h"
#include "store/options.h"
#include "support/test_platform.h"

namespace horavex {

/// When and where the program runs.
struct Setting {
    Date now = DateSerial(2026, 11, 21) + TimeSerial(14, 4, 32);
    std::string city = "Cairo";  // of Stage's zones; the first that a search finds
    HighLatitudeRule rule = HighLatitudeRule::kNone;
};

/// A clock set by hand in a zone that is not Greenwich.
class ZonedClock : public Clock {
public:
    explicit ZonedClock(const ManualClock& local) : local_(local) {}

    Date Now() const override { return local_.Now(); }
    Date UniversalNow() const override { return Now() - OffsetAt(Now()).hours / 24.0; }
    double SteadySeconds() const override { return local_.SteadySeconds(); }
    ClockOffset OffsetOn(Date day) const override { return local_.OffsetOn(day); }
    ClockOffset OffsetAt(Date local) const override { return local_.OffsetAt(local); }

private:
    const ManualClock& local_;
};

/// The whole program, set up for a city, in one language, with the real windows of the desktop over
/// ports in memory: nothing of the machine, its clock or its user comes into view. Its face is up.
/// One at a time.
class Stage {
public:
    /// Looks at windows that are open together; each lies in front of those before it.
    using Camera = std::function<void(const std::vector<QWidget*>&)>;

    /// language: the name of a pack of the built program folder.
    Stage(const std::string& language, const Setting& setting, Camera camera);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    /// Lets the program see what has changed around it, as it does every second.
    static void Tick();

    /// Looks at windows once they show all that is pending.
    void Look(const Form& form) { Look({&WindowOf(form)}); }
    void Look(const std::vector<QWidget*>& windows);

    /// Opens a window, modal or not, lets act look at it, and closes it.
    void Visit(const std::function<void()>& open, Form& form, const std::function<void()>& act);

    /// The same with one look.
    void Visit(const std::function<void()>& open, Form& form) {
        Visit(open, form, [&] { Look(form); });
    }

    /// Opens a dialogue without a form, such as a message box, and closes it after a look.
    void VisitDialog(const std::function<void()>& open);

    /// Opens a menu over the face, goes into what opens from an entry, 0-based, and closes all
    /// after a look.
    void VisitMenu(const std::function<void()>& open, std::optional<int> entry = {});

    FormWindow& WindowOf(const Form& form) { return *windows_->Find(&form); }

    /// Its dialogues note down what they are asked for and show nothing.
    TestPlatform ports;

private:
    Layouts AllLayouts();
    static void Settle();
    void LookIntoMenu(std::optional<int> entry);

    const QFont usual_ = QApplication::font();  // that of the pack ends with the stage
    Camera camera_;
    ZonedClock clock_{ports.clock};
    QtFormats formats_;
    QtFace face_;
    AzanFace athanFace_;
    std::optional<FormWindows> windows_;
    QtWindows desk_{*windows_};
    Platform platform_;
};

}  // namespace horavex
