#pragma once

#include <QPointer>
#include <QVBoxLayout>
#include <QWidget>
#include <string>

#include "platform/face.h"
#include "platform/fault_box.h"

namespace horavex {

/// A face that a view paints. The view has no margin that would lie outside its window, so that it
/// fills it wherever it is placed, and its motion is that of its variables. A view takes variables
/// by SetVariable and sends commands by onCommand.
template <class View>
class PaintedFace : public Face {
public:
    void LoadMovie(int, const std::string&) override { loaded_ = true; }
    void SetVariable(const std::string& name, const std::string& value) override {
        if (View* view = LoadedView()) {
            view->SetVariable(name, QString::fromStdString(value));
        }
    }
    void Play() override {}
    void Place(double, double) override {}

protected:
    /// The view once the movie is loaded; nullptr before, and when its window has gone.
    View* LoadedView() const { return loaded_ ? view_.data() : nullptr; }

    /// Puts the view alone into a window, which takes its size.
    void FillWithView(QWidget& window, View* view = new View) {
        view_ = view;
        view_->onCommand = [this](const std::string& command) {
            if (onFSCommand) {
                RunGuarded([&] { onFSCommand(command, {}); });
            }
        };
        auto* layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSizeConstraint(QLayout::SetFixedSize);
        layout->addWidget(view_);
    }

private:
    bool loaded_ = false;
    QPointer<View> view_;  // belongs to the window
};

}  // namespace horavex
