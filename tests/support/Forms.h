// The end of a run that raises no events.
#pragma once

#include "toolkit/Form.h"

namespace tests {

// Drops all forms, those too that were being unloaded, as the end of a process does.
inline void dropForms() {
    struct Access : toolkit::Form {
        using toolkit::Form::forget;
    };
    for (int i = 0; i < toolkit::Forms.Count(); ++i) {
        toolkit::Forms(i).attach(nullptr);
        (toolkit::Forms(i).*&Access::forget)();
    }
    toolkit::Screen = {};
    toolkit::Forms = {};
}

} // namespace tests
