#pragma once

#include <QDBusConnection>
#include <QLocale>
#include <memory>

#include "desktop/ports/location_question.h"
#include "platform/whereabouts.h"

namespace horavex {

/// The zone of the system, the country of the user's locale, and the desktop's location service.
class QtWhereabouts : public Whereabouts {
public:
    static constexpr int kPatience = 20000;  // milliseconds until a question is given up

    /// bus: where the service is.
    explicit QtWhereabouts(QDBusConnection bus = QDBusConnection::systemBus(),
                           int patience = kPatience, QLocale locale = QLocale::system());

    std::vector<std::string> ZoneNames() const override;
    std::string Country() const override;
    bool CanLocate() const override;
    void Locate(Answer answer) override;
    void StopLocating() override;

private:
    QDBusConnection bus_;
    int patience_;
    QLocale locale_;
    std::unique_ptr<LocationQuestion> question_;
};

}  // namespace horavex
