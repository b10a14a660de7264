#pragma once

#include <QDate>
#include <QLocale>
#include <QTime>
#include <QWidget>
#include <array>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desktop/face/sky_ground.h"

namespace horavex {

class CaptionButton;
class ClockDial;
class Compass;
class CountdownLine;
class DayArc;
class SignButton;
class TextLine;
class TimesView;
struct DaySky;
struct FaceDay;

/// The face. It knows its variables and commands by their names and nothing of what they mean
/// elsewhere. The hands of its clock move with the countdown. The names of the day and the month
/// are told in the desktop's language and in English; the face shows them in that of its captions.
class FaceView : public QWidget {
public:
    /// The language of the captions; nothing where the toolkit does not have it, and names are
    /// then shown as they are told.
    using Language = std::function<std::optional<QLocale>()>;

    explicit FaceView(std::function<QTime()> now = QTime::currentTime, Language language = {});

    /// Takes a value over; a variable that the face does not have is ignored.
    void SetVariable(const std::string& name, const QString& value);

    /// The day as a value: times, place, countdown, and the sky over it all.
    void ShowDay(const FaceDay& day);

    QString Weekday() const;
    QString DateText() const;
    QString HijriText() const;

    /// Names the two buttons that bear signs, for assistive tools and whoever points at them.
    void NameSigns(const QString& minimise, const QString& close);

    /// What the user asks for.
    std::function<void(const std::string& command)> onCommand;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct MenuButton {
        const char* variable;
        const char* command;
        CaptionButton* button;
    };

    using Reaction = void (FaceView::*)();

    /// The date in the language of the captions, of what was told.
    struct WrittenDate {
        QString told;
        QString day;
        QString date;
    };

    /// What each variable changes.
    static const std::map<std::string, Reaction>& Reactions();

    template <class Widget>
    Widget* Place(Widget* widget, const QRect& place);
    template <class Button>
    Button* Place(Button* button, const QRect& place, const char* command);
    void MakeButtons();
    CaptionButton* MakeMenu(std::size_t menu);
    void OpenMenu(std::size_t menu);
    void TakeKeys();
    void MakeTexts();
    void ShowDefaults();

    QString Value(const char* variable) const;
    void Tell(const char* command);

    QString ToldDateText() const;
    QDate ToldDate() const;
    void ShowDate();
    WrittenDate WriteDate() const;
    void ShowHijriDate();
    void ShowNext();
    void ShowRemaining();
    void ShowBearing();
    void ShowMenu();
    void ShowCaptions();
    void ShowSky(const FaceDay& day);

    std::function<QTime()> now_;
    SkyGround ground_;
    std::shared_ptr<const DaySky> sky_;
    Language language_;
    std::optional<QLocale> names_;           // of days and months
    std::map<std::string, QString> values_;  // by variable
    WrittenDate writtenDate_;
    QString toldHijriDate_;

    ClockDial* clock_;
    CaptionButton* day_;
    std::array<MenuButton, 4> menu_ = {{{"_root.azan", "IDC_FS_azan", nullptr},
                                        {"_root.settings", "IDC_FS_settings", nullptr},
                                        {"_root.tools", "IDC_FS_tools", nullptr},
                                        {"_root.help", "IDC_FS_help", nullptr}}};
    CaptionButton* allTimes_;
    CaptionButton* qibla_;
    SignButton* minimise_;
    SignButton* close_;

    TextLine* date_;
    TextLine* hijriDate_;
    TextLine* place_;
    std::optional<QPoint> pressedAt_;  // on the place, as long as it may become a click
    TextLine* next_;
    CountdownLine* remaining_;
    TextLine* clocks_;
    TextLine* iqama_;
    DayArc* arc_;
    TimesView* times_;
    Compass* compass_;
};

}  // namespace horavex
