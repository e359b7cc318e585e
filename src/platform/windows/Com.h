// COM on the calling thread, for as long as the object lasts: the shell hands over to components
// that need it.
#pragma once

#include "platform/windows/System.h"

#include <objbase.h>

namespace platform {

class Com {
public:
    Com() : begun_(SUCCEEDED(CoInitializeEx(nullptr, kMode))) {}
    ~Com() {
        if (begun_)
            CoUninitialize();
    }
    Com(const Com&) = delete;

private:
    static constexpr DWORD kMode = COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE;
    bool begun_;
};

} // namespace platform
