#pragma once

#include <memory>

#include "base/program_state.h"

namespace horavex {

/// The one instance of a class of windows for the life of the process, made unloaded at its
/// first use:
///
///     inline const FormInstance<FrmTimes> frmTimes;
///     frmTimes->ShowModal(&*frmMain);
///
/// ResetProgramState throws it away with all handlers, as a fresh process has none.
template <class F>
class FormInstance {
public:
    F& operator*() const {
        std::unique_ptr<F>& form = Holder();
        if (form == nullptr) {
            form = std::make_unique<F>();
        }
        return *form;
    }

    F* operator->() const { return &**this; }

private:
    static std::unique_ptr<F>& Holder() {
        static std::unique_ptr<F> form;
        static const ProgramStateReset reset([] { Holder().reset(); });
        return form;
    }
};

}  // namespace horavex
