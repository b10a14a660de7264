#pragma once

#include <QWidget>
#include <functional>
#include <string>

#include "desktop/face/sky_ground.h"

namespace horavex {

class SignButton;
class TextLine;
struct DaySky;
struct FaceDay;

/// The face in one line: the next prayer, its time, and the countdown. A button brings the whole
/// face back; anything else is a handle to move the window by.
class StripView : public QWidget {
public:
    StripView();

    void ShowDay(const FaceDay& day);

    /// Names the button, for assistive tools and whoever points at it.
    void NameSign(const QString& whole);

    /// What the user asks for.
    std::function<void(const std::string& command)> onCommand;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void PlaceTexts();
    void Tell(const char* command);

    SkyGround ground_;
    std::shared_ptr<const DaySky> sky_;
    TextLine* name_;
    TextLine* time_;
    TextLine* countdown_;
    SignButton* whole_;
};

}  // namespace horavex
