// The way to the user's own browser and mail program. Nothing here speaks with the network, and
// nothing waits for a program that it starts.
#pragma once

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

// Opens a web page or a new mail. A caller sets the window and what to open, and then writes the
// action with let_prpAction, which carries it out at once. For each member let_ and set_ store a
// value alike; only let_prpAction does more.
class cInternet {
public:
    // The handle of the window that owns the launch.
    void let_prpHwnd(std::uintptr_t window) { mvarHwnd = window; }
    void set_prpHwnd(std::uintptr_t window) { mvarHwnd = window; }
    std::uintptr_t prpHwnd() const { return mvarHwnd; }

    // "url" opens prpURL, "email" writes to prpMailTo, in capitals or not. Other words do nothing.
    // A failure is reported to the user.
    void let_prpAction(const std::string& word);
    void set_prpAction(const std::string& word) { mvarAction = word; }
    const std::string& prpAction() const { return mvarAction; }

    void let_prpURL(const std::string& address) { mvarURL = address; }
    void set_prpURL(const std::string& address) { mvarURL = address; }
    const std::string& prpURL() const { return mvarURL; }

    // A mail address without a scheme.
    void let_prpMailTo(const std::string& address) { mvarMailTo = address; }
    void set_prpMailTo(const std::string& address) { mvarMailTo = address; }
    const std::string& prpMailTo() const { return mvarMailTo; }

private:
    void GoOnline() const;
    void SendEmail() const;

    std::uintptr_t mvarHwnd = 0;
    std::string mvarAction;
    std::string mvarURL;
    std::string mvarMailTo;
};

} // namespace quorvanta
