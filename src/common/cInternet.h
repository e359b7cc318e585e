// The way to the user's own browser and mail program. Nothing here speaks with the network, and
// nothing waits for a program that it starts.
#pragma once

#include "common/WorkerProperty.h"
#include "toolkit/Form.h"

#include <cstdint>
#include <string>

namespace quorvanta {

// Hands a web or mail address to the program that the system has for it. Gives a number above
// platform::kShellFailure, or why nothing was opened.
int OpenAddress(std::uintptr_t window, const std::string& address);

// Opens the product page, as from a menu of `frm`. If that can't be done, a dialog offers the
// links to copy, and the call returns when it is closed.
void OpenProductWebsite(toolkit::Form& frm);

// Opens a web page or a new mail. A caller sets the window and what to open, and then writes
// prpAction, which carries it out at once.
class cInternet {
    void run(const std::string& word);

public:
    VariantProperty<std::uintptr_t> prpHwnd; // the window that owns the launch
    // "url" opens prpURL, "email" writes to prpMailTo, in capitals or not. Other words do nothing.
    // A failure is reported to the user. Its Set keeps the word and carries nothing out.
    KeptJobProperty<VariantProperty<std::string>, cInternet, std::string, &cInternet::run>
        prpAction{*this};
    VariantProperty<std::string> prpURL;
    VariantProperty<std::string> prpMailTo; // a mail address without a scheme

private:
    void GoOnline() const;
    void SendEmail() const;
};

} // namespace quorvanta
