#pragma once

#include <functional>
#include <memory>

#include "forms/form.h"
#include "terminal/screen/desk.h"

namespace horavex {

/// What shows one form on the desk, from the form's load to its unload.
class FormSheet : public Sheet,
                  public FormObserver,
                  public std::enable_shared_from_this<FormSheet> {
public:
    /// What happens around the sheet of a form.
    struct Host {
        Desk& desk;
        std::function<void(Control&)> timerChanged;
        std::function<void(const std::function<bool()>&)> runWhile;  // the event loop
        bool hasColours;
    };

    FormSheet(Form& form, Host& host);
    ~FormSheet() override;
    FormSheet(const FormSheet&) = delete;
    FormSheet& operator=(const FormSheet&) = delete;

    Form& Shown() const { return form_; }

    /// The form is unloaded: it is touched no more.
    void Retire();
    bool IsEnded() const { return retired_; }

    void ControlChanged(Control& control) override;
    void FormChanged() override;
    bool IsModal() const override { return !retired_ && form_.IsModal(); }

protected:
    Host& Around() const { return host_; }

private:
    Form& form_;
    Host& host_;
    bool retired_ = false;
};

}  // namespace horavex
