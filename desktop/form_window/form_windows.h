#pragma once

#include <map>
#include <memory>

#include "desktop/form_window/form_window.h"
#include "desktop/form_window/layouts.h"
#include "forms/form_host.h"

namespace horavex {

/// The windows of all loaded forms. Installed as the forms' host as long as it lives.
class FormWindows : public FormHost {
public:
    /// Each form that is ever loaded needs a layout.
    explicit FormWindows(Layouts layouts);
    ~FormWindows() override;
    FormWindows(const FormWindows&) = delete;
    FormWindows& operator=(const FormWindows&) = delete;

    /// nullptr for a form that is not loaded.
    FormWindow* Find(const Form* form) const;
    FormWindow* Find(const std::string& form) const;

    void Loaded(Form& form) override;
    void Unloaded(Form& form) override;
    void BroughtUp(Form& form) override;
    void RunModal(Form& form) override;

private:
    void ShowTextsAnew() const;

    // A window outlives its form by the event that it is in, so that it goes by Retire alone.
    struct RetireWindow {
        void operator()(FormWindow* window) const { window->Retire(); }
    };

    Layouts layouts_;
    std::map<const Form*, std::unique_ptr<FormWindow, RetireWindow>> windows_;
};

}  // namespace horavex
