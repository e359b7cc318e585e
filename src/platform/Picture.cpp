#include "platform/Picture.h"

#include <algorithm>

namespace platform {

namespace {

bool isAsciiLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

} // namespace

std::vector<PictureToken> tokensOf(std::string_view picture) {
    std::vector<PictureToken> tokens;
    bool quoted = false;
    while (!picture.empty()) {
        const char c = picture.front();
        std::size_t length = 1;
        if (picture.starts_with("''")) {
            tokens.push_back({'\0', 0, "'", quoted});
            length = 2;
        } else if (c == '\'') {
            quoted = !quoted;
        } else if (isAsciiLetter(c) && !quoted) {
            length = std::min(picture.find_first_not_of(c), picture.size());
            tokens.push_back({c, length, {}, false});
        } else {
            const auto ends = [&](char it) { return it == '\'' || (isAsciiLetter(it) && !quoted); };
            length =
                static_cast<std::size_t>(std::ranges::find_if(picture, ends) - picture.begin());
            tokens.push_back({'\0', 0, std::string(picture.substr(0, length)), quoted});
        }
        picture.remove_prefix(length);
    }
    return tokens;
}

std::string dateLetters(std::string_view picture) {
    std::string letters;
    for (const PictureToken& token : tokensOf(picture)) {
        const bool dayName = token.letter == 'd' && token.count > 2;
        if (!dayName && token.letter != '\0' &&
            std::string_view("dMy").find(token.letter) != std::string_view::npos &&
            letters.find(token.letter) == std::string::npos)
            letters += token.letter;
    }
    return letters;
}

} // namespace platform
