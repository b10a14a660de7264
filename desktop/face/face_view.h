#pragma once

#include <QTime>
#include <QWidget>
#include <array>
#include <functional>
#include <map>
#include <string>

namespace horavex {

class CaptionButton;
class ClockDial;
class Compass;
class TextLine;
class TimesView;

/// The face. It knows its variables and commands by their names and nothing of what they mean
/// elsewhere. The hands of its clock move with the countdown.
class FaceView : public QWidget {
public:
    explicit FaceView(std::function<QTime()> now = QTime::currentTime);

    /// Takes a value over; a variable that the face does not have is ignored.
    void SetVariable(const std::string& name, const QString& value);

    /// What the user asks for.
    std::function<void(const std::string& command)> onCommand;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct MenuButton {
        const char* variable;
        CaptionButton* button;
    };

    using Reaction = void (FaceView::*)();

    /// What each variable changes.
    static const std::map<std::string, Reaction>& Reactions();

    template <class Widget>
    Widget* Place(Widget* widget, const QRect& place);
    template <class Button>
    Button* Place(Button* button, const QRect& place, const char* command);
    void MakeButtons();
    void MakeTexts();
    void ShowDefaults();

    QString Value(const char* variable) const;
    void Tell(const char* command);

    void ShowDay();
    void ShowDate();
    void ShowHijriDate();
    void ShowNext();
    void ShowRemaining();
    void ShowTimes();
    void ShowBearing();
    void ShowMenu();
    void ShowCaptions();

    std::function<QTime()> now_;
    std::map<std::string, QString> values_;  // by variable

    ClockDial* clock_;
    CaptionButton* day_;
    std::array<MenuButton, 4> menu_;
    CaptionButton* allTimes_;
    CaptionButton* qibla_;

    TextLine* date_;
    TextLine* hijriDate_;
    TextLine* next_;
    TextLine* remaining_;
    TimesView* times_;
    Compass* compass_;
};

}  // namespace horavex
