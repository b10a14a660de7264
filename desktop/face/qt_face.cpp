#include "desktop/face/qt_face.h"

#include <QVBoxLayout>

#include "desktop/fault_box.h"

namespace horavex {

void QtFace::LoadMovie(int, const std::string&) {
    loaded_ = true;
}

void QtFace::SetVariable(const std::string& name, const std::string& value) {
    if (loaded_ && view_ != nullptr) {
        view_->SetVariable(name, QString::fromStdString(value));
    }
}

void QtFace::Fill(QWidget& window) {
    window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint |
                          Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    view_ = new FaceView;
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

}  // namespace horavex
