#include "platform/linux/Pictures.h"

#include "platform/Picture.h"

#include <algorithm>
#include <iterator>

namespace platform {

namespace {

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// The letters of a picture for `count` times the letter of a pattern.
std::string fieldOf(char letter, std::size_t count) {
    switch (letter) {
    case 'y':
    case 'u':
        return "yyyy";
    case 'L':
    case 'M':
        return std::string(std::min<std::size_t>(count, 4), 'M');
    case 'd':
        return std::string(count, 'd');
    case 'E':
    case 'c':
        return count == 4 ? "dddd" : "ddd";
    case 'a':
    case 'b':
    case 'B':
        return "tt";
    case 'K':
        return std::string(count, 'h');
    case 'k':
        return std::string(count, 'H');
    case 'h':
    case 'H':
    case 'm':
    case 's':
        return std::string(count, letter);
    default:
        return {};
    }
}

// A picture needs quotes around every text that isn't plain punctuation.
void appendText(std::string& picture, const std::string& text) {
    const bool plain =
        std::none_of(text.begin(), text.end(), [](char c) { return isLetter(c) || (c & 0x80); });
    picture += plain ? text : "'" + text + "'";
}

std::string trimmed(const std::string& text) {
    constexpr const char* kEdges = " ,";
    const std::size_t first = std::min(text.find_first_not_of(kEdges), text.size());
    return text.substr(first, text.find_last_not_of(kEdges) + 1 - first);
}

// "¤ #,##0.00;¤-#,##0.00" as {"$ 1", "$-1"}, and without a second half as {.., "-$ 1"}.
struct CurrencyForms {
    std::string positive, negative;
};

CurrencyForms currencyForms(std::string_view pattern) {
    std::string forms[2];
    std::size_t which = 0;
    for (std::size_t at = 0; at < pattern.size(); ++at) {
        std::string& form = forms[which];
        if (pattern[at] == ';')
            which = 1;
        else if (pattern.substr(at).starts_with("¤"))
            form += '$';
        else if (pattern.substr(at).starts_with("\u00A0"))
            form += ' ';
        else if (pattern[at] == '#' || pattern[at] == '0')
            form += form.ends_with('1') ? "" : "1";
        else if (std::string_view(" -()").find(pattern[at]) != std::string_view::npos)
            form += pattern[at];
    }
    return {forms[0], forms[1].empty() ? "-" + forms[0] : forms[1]};
}

template <std::size_t N>
int indexOf(const std::string& form, const char* const (&forms)[N]) {
    const auto it = std::find(std::begin(forms), std::end(forms), form);
    return it == std::end(forms) ? -1 : static_cast<int>(it - std::begin(forms));
}

} // namespace

std::string pictureOf(std::string_view pattern) {
    std::string picture, text;
    const auto endText = [&] {
        appendText(picture, text);
        text.clear();
    };
    for (const PictureToken& token : tokensOf(pattern)) {
        if (token.letter != '\0') {
            endText();
            picture += fieldOf(token.letter, token.count);
        } else if (token.text == "'") {
            text += "''"; // one quote, in a picture too
        } else if (token.quoted) {
            text += token.text;
        } else {
            for (const char c : token.text) {
                if (c != ' ' && c != ',') {
                    text += c;
                    continue;
                }
                endText();
                picture += c;
            }
        }
    }
    endText();
    return trimmed(picture);
}

std::string withoutDayName(std::string_view picture) {
    std::string rest(picture);
    const std::size_t at = rest.find("dddd");
    if (at == std::string::npos)
        return rest;
    return trimmed(rest.erase(at, 4));
}

std::string separatorOf(std::string_view picture) {
    const std::string_view fields =
        picture.substr(std::min(picture.find_first_of("dMyhH"), picture.size()));
    const auto from = std::find_if_not(fields.begin(), fields.end(), isLetter);
    return {from, std::find_if(from, fields.end(), isLetter)};
}

int dateOrder(std::string_view picture) {
    const std::string letters = dateLetters(picture);
    if (letters.starts_with('y'))
        return 2;
    return letters.find('M') < letters.find('d') ? 0 : 1;
}

std::string groupingOf(std::string_view pattern) {
    pattern.remove_prefix(std::min(pattern.find_first_of("#0"), pattern.size()));
    std::string_view digits = pattern.substr(0, pattern.find_first_not_of("#0,"));
    std::size_t sizes[2] = {};
    for (std::size_t& size : sizes) {
        const std::size_t comma = digits.rfind(',');
        if (comma == std::string_view::npos)
            break;
        size = digits.size() - comma - 1;
        digits = digits.substr(0, comma);
    }
    const auto [first, next] = sizes;
    const std::string grouping = std::to_string(first > 0 ? first : 3);
    return next > 0 && next != first ? grouping + ";" + std::to_string(next) + ";0"
                                     : grouping + ";0";
}

int positiveCurrencyMode(std::string_view pattern) {
    return std::max(indexOf(currencyForms(pattern).positive, {"$1", "1$", "$ 1", "1 $"}), 0);
}

int negativeCurrencyMode(std::string_view pattern) {
    const int mode = indexOf(currencyForms(pattern).negative,
                             {"($1)", "-$1", "$-1", "$1-", "(1$)", "-1$", "1-$", "1$-", "-1 $",
                              "-$ 1", "1 $-", "$ 1-", "$ -1", "1- $", "($ 1)", "(1 $)"});
    return mode < 0 ? 1 : mode;
}

} // namespace platform
