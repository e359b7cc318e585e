#include "common/NumberText.h"

#include "common/LocaleText.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace quorvanta {

namespace {

constexpr int kDigits = 15;

// A number's decimal digits: 0.d1d2d3... times 10 to the power of `point`.
struct Decimal {
    bool negative = false;
    std::string digits; // without zeros at the end, empty for 0
    int point = 0;
};

// `toText` writes a number's size in the scientific form.
template <class ToText>
Decimal decimalOf(double value, ToText toText) {
    if (!std::isfinite(value))
        throw platform::RuntimeError(platform::Overflow);
    char text[32];
    char* const end = toText(std::fabs(value), text, text + sizeof text).ptr;
    Decimal result;
    result.negative = value < 0;
    char* const letter = std::find(text, end, 'e');
    std::copy_if(text, letter, std::back_inserter(result.digits), [](char c) { return c != '.'; });
    result.digits.erase(result.digits.find_last_not_of('0') + 1);
    std::from_chars(letter[1] == '+' ? letter + 2 : letter + 1, end, result.point);
    ++result.point;
    return result;
}

Decimal fifteenDigits(double value) {
    // Above this the fifteenth digit would round up to a text that no double can hold.
    static constexpr double kLargest = 1.79769313486231e308;
    return decimalOf(value, [](double size, char* to, char* end) {
        return std::to_chars(to, end, std::min(size, kLargest), std::chars_format::scientific,
                             kDigits - 1);
    });
}

// As few digits as read back as the number: those that were typed, up to 15 of them.
Decimal shortest(double value) {
    return decimalOf(value, [](double size, char* to, char* end) {
        return std::to_chars(to, end, size, std::chars_format::scientific);
    });
}

// The digits with `decimals` of them behind the separator, zeros where the number has none.
std::string fixed(const Decimal& number, int decimals, const std::string& thousands) {
    const auto digitAt = [&](int place) {
        return place >= 0 && place < static_cast<int>(number.digits.size()) ? number.digits[place]
                                                                            : '0';
    };
    std::string text = number.negative ? "-" : "";
    if (number.point <= 0)
        text += '0';
    for (int place = 0; place < number.point; ++place) {
        if (place > 0 && (number.point - place) % 3 == 0)
            text += thousands;
        text += digitAt(place);
    }
    if (decimals > 0)
        text += decimalSeparator();
    for (int place = number.point; place < number.point + decimals; ++place)
        text += digitAt(place);
    return text;
}

std::string exponentForm(const Decimal& number) {
    const int exponent = number.point - 1;
    const std::string power = std::to_string(std::abs(exponent));
    std::string text = number.negative ? "-" : "";
    text += number.digits.front();
    if (number.digits.size() > 1)
        text.append(decimalSeparator()).append(number.digits, 1);
    text += exponent < 0 ? "E-" : "E+";
    return text.append(power.size() < 2 ? "0" : "").append(power);
}

// Rounds to `decimals` places, halves away from zero.
void round(Decimal& number, int decimals) {
    const int kept = number.point + decimals;
    if (kept >= static_cast<int>(number.digits.size()))
        return;
    const bool up = kept >= 0 && number.digits[kept] >= '5';
    number.digits.resize(std::max(kept, 0));
    if (up) {
        const std::size_t last = number.digits.find_last_not_of('9');
        if (last == std::string::npos) {
            number.digits.assign(1, '1');
            ++number.point;
        } else {
            ++number.digits[last];
            number.digits.resize(last + 1);
        }
    }
    if (number.digits.empty())
        number = {};
}

} // namespace

std::string decimalSeparator() {
    const std::string separator = localeText(platform::LOCALE_SDECIMAL);
    return separator.empty() ? "." : separator;
}

std::string CStr(double value) {
    const Decimal number = fifteenDigits(value);
    if (number.digits.empty())
        return "0";
    const int decimals = std::max(static_cast<int>(number.digits.size()) - number.point, 0);
    if (number.point > kDigits || decimals > kDigits)
        return exponentForm(number);
    return fixed(number, decimals, {});
}

std::string FormatMoney(double value) {
    Decimal number = shortest(value);
    round(number, 2);
    return fixed(number, 2, localeText(platform::LOCALE_STHOUSAND));
}

} // namespace quorvanta
