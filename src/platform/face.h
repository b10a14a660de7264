#pragma once

#include <functional>
#include <string>

namespace horavex {

struct DayView;

/// What a face looks like.
struct FaceShape {
    bool small = false;        // one line
    bool fillsScreen = false;  // whatever else

    bool operator==(const FaceShape&) const = default;
};

/// A painted face behind a boundary of texts: the system sets variables and gets commands.
class Face {
public:
    virtual ~Face() = default;

    /// Brings the face up. What is set before is dropped without an error.
    virtual void LoadMovie(int layer, const std::string& url) = 0;

    /// Hands a value over; a face without a variable of that name ignores it.
    virtual void SetVariable(const std::string& name, const std::string& value) = 0;

    /// Hands the day over as a value, behind the variables of the same tick. A face that paints
    /// by its variables alone ignores it.
    virtual void ShowDay(const DayView& /*day*/) {}

    /// Takes a shape; one that fills the screen comes to the front. A face of one alone ignores it.
    virtual void TakeShape(const FaceShape& /*shape*/) {}

    /// Starts the face's own motion.
    virtual void Play() = 0;

    /// Where the face lies in its window, in the units of that window.
    virtual void Place(double left, double top) = 0;

    /// A command of the user with its arguments. Set by the window that holds the face.
    std::function<void(const std::string& command, const std::string& arguments)> onFSCommand;
};

}  // namespace horavex
