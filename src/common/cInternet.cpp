#include "common/cInternet.h"

#include "common/Trap.h"
#include "common/frmURL.h"
#include "frame/modConstants.h"
#include "platform/Platform.h"

namespace quorvanta {

namespace {

// Only these letters make the words of prpAction.
std::string lowerCase(std::string word) {
    for (char& letter : word)
        if (letter >= 'A' && letter <= 'Z')
            letter = static_cast<char>(letter - 'A' + 'a');
    return word;
}

} // namespace

int OpenAddress(std::uintptr_t window, const std::string& address) {
    constexpr int SW_SHOWNORMAL = 1;
    return platform::current().shell.ShellExecuteA(window, "open", address.c_str(), nullptr,
                                                   nullptr, SW_SHOWNORMAL);
}

void OpenProductWebsite(toolkit::Form& frm) {
    bool opened = false;
    failuresOff([&](auto step) {
        step([&] { opened = OpenAddress(frm.hWnd, kProductPage) > platform::kShellFailure; });
    });
    if (!opened)
        frmURL::the().Show(true);
}

void cInternet::run(const std::string& word) {
    const std::string action = lowerCase(word);
    if (action == "email")
        SendEmail();
    else if (action == "url")
        GoOnline();
}

void cInternet::GoOnline() const {
    trapped("cHttp.GoOnline", [&](auto step) { step([&] { OpenAddress(prpHwnd(), prpURL()); }); });
}

void cInternet::SendEmail() const {
    trapped("SendEmail",
            [&](auto step) { step([&] { OpenAddress(prpHwnd(), "mailto:" + prpMailTo()); }); });
}

} // namespace quorvanta
