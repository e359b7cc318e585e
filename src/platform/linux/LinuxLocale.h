// The user's locale, answered by ICU. It works for locales that the machine has not generated.
#pragma once

#include "platform/Locale.h"
#include "platform/linux/LocaleCategories.h"
#include "platform/linux/LocaleDates.h"
#include "platform/linux/LocaleNumbers.h"

#include <map>
#include <memory>
#include <string>

namespace platform {

class CodePage;

// Each item follows one category of the environment: numbers, the digits and the list separator
// LC_NUMERIC; dates, times and the names in them LC_TIME; amounts LC_MONETARY; the system of
// measures LC_MEASUREMENT; the language's names and numbers LC_MESSAGES; the country's LC_ADDRESS;
// both code pages LC_CTYPE. The categories are those at construction.
//
// Names are given in the user's own language. A white space in a separator is the no-break space
// U+00A0, where the code page has it, and a plain blank in a picture.
class LinuxLocale final : public Locale {
public:
    explicit LinuxLocale(LocaleCategories categories = LocaleCategories::fromEnvironment());
    ~LinuxLocale() override;

    std::optional<std::string> GetLocaleInfoA(int locale, int item) const override;
    std::string upperCase(std::string_view text) const override;
    std::string fromBytes(std::string_view bytes) const override;
    std::string toBytes(std::string_view text) const override;

private:
    const CodePage& codePage() const;
    const std::string& itemText(int item) const;
    std::string makeText(int item) const;
    std::string separator(std::string text) const;

    LocaleCategories categories_;
    LocaleNumbers numbers_;
    LocaleMoney money_;
    LocaleDates dates_;

    // Opened and worked out at the first need, since most runs need little of it.
    mutable std::unique_ptr<CodePage> codePage_;
    mutable int codePageNumber_ = 0;
    mutable std::map<int, std::string> items_;
};

} // namespace platform
