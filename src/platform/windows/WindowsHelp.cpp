#include "platform/windows/WindowsHelp.h"

#include "platform/HelpPage.h"
#include "platform/RuntimeError.h"
#include "platform/windows/Com.h"
#include "platform/windows/WindowsFiles.h"

#include <shellapi.h>

namespace platform {

namespace {

std::string contentOf(const std::string& path) {
    const auto file = WindowsFiles().openForInput(path);
    std::string text;
    for (std::string line; file->readLine(line);)
        text += line + "\n";
    return text;
}

void write(const std::string& path, const std::string& text) {
    const Handle file = Handle::open(path, GENERIC_WRITE, CREATE_ALWAYS);
    if (file.write(text) < text.size())
        raiseError(GetLastError(), path);
}

// In the user's folder of temporary files. By its ending the system knows the browser.
std::string copyForBrowser() {
    wchar_t folder[MAX_PATH + 1] = L"";
    GetTempPathW(MAX_PATH + 1, folder);
    return narrow(folder) + "Quorvanta-help.html";
}

std::string meaningOf(DWORD error) {
    wchar_t text[512] = L"";
    const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS |
                                            FORMAT_MESSAGE_MAX_WIDTH_MASK, // on one line
                                        nullptr, error, 0, text, 512, nullptr);
    return length > 0 ? narrow(text) : "error " + std::to_string(error);
}

void open(const std::string& path, HWND owner) {
    const Com com;
    const std::wstring file = wide(path);
    SHELLEXECUTEINFOW what{};
    what.cbSize = sizeof what;
    what.fMask = SEE_MASK_FLAG_NO_UI;
    what.hwnd = owner;
    what.lpFile = file.c_str();
    what.nShow = SW_SHOWNORMAL;
    if (ShellExecuteExW(&what))
        return;
    const bool noProgram = reinterpret_cast<INT_PTR>(what.hInstApp) == SE_ERR_NOASSOC;
    throw RuntimeError(DeviceError, meaningOf(noProgram ? ERROR_NO_ASSOCIATION : GetLastError()));
}

} // namespace

bool WindowsHelp::WinHelpA(std::uintptr_t window, const char* file, unsigned command,
                           std::uintptr_t /*data*/) {
    if (command != HELP_TAB)
        return false;
    HWND const owner = reinterpret_cast<HWND>(window);
    std::string path = file;
    const char* done = "read";
    try {
        const std::string page = helpPage(contentOf(path));
        path = copyForBrowser();
        done = "written";
        write(path, page);
        done = "opened";
        open(path, owner);
    } catch (const RuntimeError& failure) {
        const std::string text = "The help can't be shown.\r\n\r\nThis file can't be " +
                                 std::string(done) + ":\r\n" + path +
                                 "\r\n\r\nReason: " + failure.description;
        MessageBoxW(owner, wide(text).c_str(), L"Quor Vanta  - Help", MB_OK | MB_ICONWARNING);
    }
    return true;
}

} // namespace platform
