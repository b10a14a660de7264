#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "terminal/forms/form_sheet.h"

namespace horavex {

/// All windows of the program on one desk. Installed as the forms' host as long as it lives.
class FormSheets : public FormHost {
public:
    /// Makes what shows a form; nullptr for a form whose controls show it.
    using Maker = std::function<std::shared_ptr<FormSheet>(Form&, FormSheet::Host&)>;

    struct Timing {
        std::function<void(Form&)> begin;  // the form has loaded: its timers run
        std::function<void(Form&)> end;
    };

    FormSheets(FormSheet::Host host, Timing timing, Maker special);
    ~FormSheets() override;
    FormSheets(const FormSheets&) = delete;
    FormSheets& operator=(const FormSheets&) = delete;

    /// nullptr for a form that is not loaded.
    std::shared_ptr<FormSheet> Find(const std::string& form) const;

    FormSheet::Host& Surroundings() { return host_; }

    void Loaded(Form& form) override;
    void Unloaded(Form& form) override;
    void BroughtUp(Form& form) override;
    void RunModal(Form& form) override;

private:
    FormSheet::Host host_;
    Timing timing_;
    Maker special_;
    std::map<const Form*, std::shared_ptr<FormSheet>> sheets_;
};

}  // namespace horavex
