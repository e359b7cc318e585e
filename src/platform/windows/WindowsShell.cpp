#include "platform/windows/WindowsShell.h"

#include "platform/Addresses.h"
#include "platform/RuntimeError.h"
#include "platform/windows/Com.h"

#include <shellapi.h>

namespace platform {

namespace {

// The text as UTF-16, or a null pointer for none.
class Argument {
public:
    explicit Argument(const char* text) : given_(text), text_(wide(text ? text : "")) {}
    const wchar_t* get() const { return given_ ? text_.c_str() : nullptr; }

private:
    bool given_;
    std::wstring text_;
};

} // namespace

int WindowsShell::ShellExecuteA(std::uintptr_t window, const char* operation, const char* file,
                                const char* parameters, const char* directory, int show) {
    if (!file || !*file)
        return ERROR_FILE_NOT_FOUND;
    const std::string address = addressToOpen(file);
    if (address.empty())
        return SE_ERR_NOASSOC;
    const Com com;
    return static_cast<int>(reinterpret_cast<std::intptr_t>(ShellExecuteW(
        reinterpret_cast<HWND>(window), Argument(operation).get(), wide(address).c_str(),
        Argument(parameters).get(), Argument(directory).get(), show)));
}

void WindowsShell::start(const std::string& path) {
    const std::wstring program = wide(path);
    std::wstring command = L"\"" + program + L"\"";
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = SW_SHOWNORMAL;
    PROCESS_INFORMATION started{};
    if (!CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                        nullptr, &startup, &started))
        throw RuntimeError(GetLastError() == ERROR_FILE_NOT_FOUND ? FileNotFound
                                                                  : PermissionDenied);
    CloseHandle(started.hThread);
    CloseHandle(started.hProcess);
}

} // namespace platform
