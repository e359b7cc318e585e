#pragma once

#include "platform/CodePage.h"
#include "platform/Locale.h"

namespace platform {

// What the system's own GetLocaleInfoA answers, in the ANSI code page that goes with the user's
// locale; but it makes a "?" of the narrow blank that groups digits in some locales and is in no
// code page, and here that is the no-break space. A locale without a code page has that of the
// system's programs.
class WindowsLocale final : public Locale {
public:
    // `number` is the system's own of a locale.
    explicit WindowsLocale(int number = LOCALE_USER_DEFAULT);

    std::optional<std::string> GetLocaleInfoA(int locale, int item) const override;
    std::string upperCase(std::string_view text) const override;
    std::string fromBytes(std::string_view bytes) const override;
    std::string toBytes(std::string_view text) const override;

private:
    int number_;
    CodePage codePage_;
};

} // namespace platform
