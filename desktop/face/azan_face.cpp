#include "desktop/face/azan_face.h"

#include <QVBoxLayout>

#include "desktop/fault_box.h"

namespace horavex {

void AzanFace::SetVariable(const std::string& name, const std::string& value) {
    if (loaded_ && view_ != nullptr) {
        view_->SetVariable(name, QString::fromStdString(value));
    }
}

void AzanFace::Fill(QWidget& window) {
    window.setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    window.setAttribute(Qt::WA_ShowWithoutActivating);
    window.setProperty("placedByProgram", true);
    view_ = new AzanView;
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
