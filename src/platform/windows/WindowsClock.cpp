#include "platform/windows/WindowsClock.h"

#include "platform/windows/System.h"

namespace platform {

DateTime WindowsClock::now() const {
    SYSTEMTIME local;
    GetLocalTime(&local);
    return {local.wYear, local.wMonth, local.wDay, local.wHour, local.wMinute, local.wSecond};
}

} // namespace platform
