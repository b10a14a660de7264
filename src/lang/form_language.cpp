#include "lang/form_language.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "base/fault.h"
#include "base/int16.h"
#include "lang/language_pack.h"
#include "platform/platform.h"

namespace horavex {

namespace {

struct MenuTitle {
    const char* variable;
    const char* key;  // in the section of the face's window
};

constexpr MenuTitle kTitles[] = {{"_root.azan", "mnuAthan"},
                                 {"_root.settings", "mnuSettings"},
                                 {"_root.tools", "mnuTools"},
                                 {"_root.help", "mnuHelp"}};

constexpr std::string_view kRuntimePrefixes[] = {"mnuL", "lblTime", "lblShown"};

constexpr std::string_view kRuntimeNames[] = {
    "lblLocationLat", "lblCity",  "lblLocationLon", "lblTimeZone", "lblQibla",
    "lblDepr",        "lblDepr1", "lblAlarm",       "lblBegin",    "lblEnd"};

bool IsTranslatedKind(ControlKind kind) {
    switch (kind) {
        case ControlKind::kFrame:
        case ControlKind::kLabel:
        case ControlKind::kCommandButton:
        case ControlKind::kMenuItem:
        case ControlKind::kCheckBox:
        case ControlKind::kOptionButton:
        case ControlKind::kSkinLabel:
            return true;
        default:
            return false;
    }
}

/// The section of a pack that belongs to one form.
class FormSection {
public:
    FormSection(const std::string& packPath, const std::string& formName)
        : packPath_(packPath), name_(formName) {}

    std::string Read(const std::string& key, const std::string& defaultText) const {
        return ReadPackString(packPath_, name_, key, defaultText, kPackTextBuffer);
    }

private:
    const std::string& packPath_;
    const std::string& name_;
};

// A key that is missing empties the tooltip: there is no way back to the definition's.
void TranslateToolTip(Control& control, const FormSection& section) {
    if (HasToolTip(control)) {
        control.SetToolTipText(section.Read(ToolTipKey(control), ""));
    }
}

void TranslateCaption(Control& control, const FormSection& section) {
    const std::string text = section.Read(CaptionKey(control), "");
    if (HasCaption(control)) {
        control.SetCaption(text);
    } else {
        control.SetText(text);
    }
}

// A property that one step cannot reach does not keep the next from running.
void TranslateControl(Control& control, const FormSection& section) {
    RunStep([&] { TranslateToolTip(control, section); });
    RunStep([&] { TranslateCaption(control, section); });
    if (control.Kind() == ControlKind::kCommandButton) {
        control.Refresh();
    }
}

// The two labels come from the current pack whatever pack the form is given.
void TranslateFace(const std::string& packPath) {
    SetMenuBar(packPath);
    Ports().face.SetVariable("qibla", GetLangString("other", "14", "Qibla"));
    Ports().face.SetVariable("prayer_time", GetLangString("other", "13", "Prayer Times"));
}

}  // namespace

void SetMenuBar(const std::string& packPath) {
    for (const MenuTitle& title : kTitles) {
        Ports().face.SetVariable(
            title.variable, ReadPackString(packPath, "frmMain", title.key, "", kPackNameBuffer));
    }
}

std::string ControlIndexSuffix(const Control& control) {
    return control.Has(Property::kIndex) ? "_" + std::to_string(control.Index()) : "";
}

bool HasCaption(const Control& control) {
    return control.Has(Property::kCaption);
}

bool HasToolTip(const Control& control) {
    return control.Has(Property::kToolTipText) && !control.ToolTipText().empty();
}

bool IsRuntimeControl(const Control& control) {
    const std::string_view name = control.Name();
    return std::ranges::any_of(kRuntimePrefixes,
                               [&](auto prefix) { return name.starts_with(prefix); }) ||
           std::ranges::find(kRuntimeNames, name) != std::end(kRuntimeNames);
}

bool TakesPackTexts(const Control& control) {
    return !IsRuntimeControl(control) && IsTranslatedKind(control.Kind());
}

std::string CaptionKey(const Control& control) {
    return control.Name() + ControlIndexSuffix(control);
}

std::string ToolTipKey(const Control& control) {
    return control.Name() + "TTIP" + ControlIndexSuffix(control);
}

void LoadFormLanguage(Form& form, const std::string& packPath) {
    const FormSection section(packPath, form.Name());
    form.SetCaption(section.Read(form.Name(), form.Name()));
    for (Control* control : form.Controls()) {
        if (TakesPackTexts(*control)) {
            TranslateControl(*control, section);
        }
    }
    if (form.Name() == "frmMain") {
        TranslateFace(packPath);
    }
}

void TranslateOnLoad(Form& form) {
    if (languageFilesPresent != kFalse) {
        LoadFormLanguage(form, LanguagePackPath(currentLanguage));
    }
}

}  // namespace horavex
