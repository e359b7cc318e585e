#include "common/LocaleText.h"
#include "common/NumberText.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <vector>

namespace quorvanta {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

constexpr std::string_view kBlanks[] = {" ", "\t", "\u00A0", "\u202F", "\u2009"};
constexpr std::string_view kApostrophes[] = {"'", "’"};

template <std::size_t N>
std::vector<std::string_view> alike(std::string_view it, const std::string_view (&all)[N]) {
    if (std::find(std::begin(all), std::end(all), it) == std::end(all))
        return {};
    return {std::begin(all), std::end(all)};
}

// Takes `token` from the front of the text.
bool take(std::string_view& text, std::string_view token) {
    if (token.empty() || !text.starts_with(token))
        return false;
    text.remove_prefix(token.size());
    return true;
}

template <class Tokens>
bool takeAny(std::string_view& text, const Tokens& tokens) {
    return std::any_of(std::begin(tokens), std::end(tokens),
                       [&](std::string_view token) { return take(text, token); });
}

void skipBlanks(std::string_view& text) {
    while (takeAny(text, kBlanks)) {
    }
}

void cutBlanksAtEnd(std::string_view& text) {
    const auto endsBlank = [&](std::string_view blank) {
        if (!text.ends_with(blank))
            return false;
        text.remove_suffix(blank.size());
        return true;
    };
    while (std::any_of(std::begin(kBlanks), std::end(kBlanks), endsBlank)) {
    }
}

// Reads one number off the front of a text of any length, keeping only the digits that can still
// decide how a double is rounded.
class NumberReader {
public:
    NumberReader() {
        const std::string group = localeText(platform::LOCALE_STHOUSAND);
        for (const auto& others : {alike(group, kBlanks), alike(group, kApostrophes)})
            groups_.insert(groups_.end(), others.begin(), others.end());
        if (groups_.empty() && !group.empty())
            groups_.push_back(group);
    }

    double read(std::string_view text) {
        skipBlanks(text);
        cutBlanksAtEnd(text);
        const bool negative = take(text, "-") || take(text, "−");
        if (!negative)
            take(text, "+");
        skipBlanks(text);
        readDigits(text);
        if (!seen_ || (takeAny(text, std::array{"e", "E"}) && !readExponent(text)) || !text.empty())
            throw platform::RuntimeError(platform::TypeMismatch);
        return negative ? -value() : value();
    }

private:
    void readDigits(std::string_view& text) {
        const std::string decimal = decimalSeparator();
        const auto readPart = [&](bool whole) {
            for (;;) {
                if (!text.empty() && isDigit(text.front())) {
                    add(text.front(), whole);
                    text.remove_prefix(1);
                } else if (!whole || !seen_ || text.starts_with(decimal) ||
                           !takeAny(text, groups_)) {
                    return;
                }
            }
        };
        readPart(true);
        if (take(text, decimal))
            readPart(false);
    }

    void add(char digit, bool whole) {
        seen_ = true;
        if (digits_.empty() && digit == '0') {
            power_ -= !whole;
        } else if (digits_.size() < kEnough) {
            digits_ += digit;
            power_ -= !whole;
        } else {
            inexact_ |= digit != '0';
            power_ += whole;
        }
    }

    bool readExponent(std::string_view& text) {
        constexpr long long kFar = 1'000'000'000'000; // no text has that many digits to make up
        const bool negative = take(text, "-");
        if (!negative)
            take(text, "+");
        if (text.empty() || !isDigit(text.front()))
            return false;
        long long exponent = 0;
        for (; !text.empty() && isDigit(text.front()); text.remove_prefix(1))
            exponent = std::min(exponent * 10 + (text.front() - '0'), kFar);
        power_ += negative ? -exponent : exponent;
        return true;
    }

    double value() const {
        const long long size = static_cast<long long>(digits_.size()) + power_;
        if (digits_.empty() || size < -400)
            return 0;
        double result = 0;
        if (size < 400) {
            std::string text = digits_;
            text.append(inexact_ ? "1e" : "e").append(std::to_string(power_ - inexact_));
            const auto read = std::from_chars(text.data(), text.data() + text.size(), result);
            if (read.ec == std::errc() && std::isfinite(result))
                return result;
        }
        if (size < 0)
            return 0;
        throw platform::RuntimeError(platform::Overflow);
    }

    static constexpr std::size_t kEnough = 800;
    std::vector<std::string> groups_;
    std::string digits_;
    long long power_ = 0;
    bool seen_ = false;
    bool inexact_ = false;
};

} // namespace

double CDbl(std::string_view text) {
    return NumberReader().read(text);
}

std::optional<double> ReadNumber(std::string_view text) {
    try {
        return CDbl(text);
    } catch (const platform::RuntimeError&) {
        return std::nullopt;
    }
}

int CInt(std::string_view text) {
    const double whole = std::nearbyint(CDbl(text));
    if (whole < -32768 || whole > 32767)
        throw platform::RuntimeError(platform::Overflow);
    return static_cast<int>(whole);
}

} // namespace quorvanta
