#include "forms/control_array.h"

#include "forms/form.h"

namespace horavex {

RuntimeMembers::RuntimeMembers(Form& form) {
    form.arrays_.push_back(this);
}

}  // namespace horavex
