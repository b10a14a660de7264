#include "desktop/form_window/widget_names.h"

#include <algorithm>
#include <string_view>

#include "forms/form.h"

namespace horavex {

namespace {

struct UnseenControl {
    std::string_view form;
    std::string_view control;
};

// The face covers all of frmMain.
constexpr UnseenControl kUnseen[] = {
    {"frmMain", "lblZoritName"},
    {"frmMain", "lblZoritNameArabic"},
    {"frmMain", "lblTime"},
    {"frmMain", "lblDate"},
    {"frmMain", "lblCurrTime"},
    {"frmMain", "Label1"},
    {"frmMain", "lblNextAthan"},
    {"frmMain", "Label3"},
    {"frmMain", "lblRemaining"},
    {"frmMain", "lblCity"},
    {"frmMain", "lblQibla"},
    {"frmMain", "traypic"},
    {"HoravexMainForm", "lblZoritName"},
};

}  // namespace

QString WidgetNameOf(const Control& control) {
    const QString name = QString::fromStdString(control.Name());
    if (!control.Has(Property::kIndex)) {
        return name;
    }
    return name + QStringLiteral("_%1").arg(control.Index());
}

bool HasWidget(Control& control) {
    if (control.Kind() == ControlKind::kTimer || control.Kind() == ControlKind::kMenuItem) {
        return false;
    }
    const std::string& form = control.OwnerForm().Name();
    return std::none_of(std::begin(kUnseen), std::end(kUnseen), [&](const UnseenControl& unseen) {
        return unseen.form == form && unseen.control == control.Name();
    });
}

}  // namespace horavex
