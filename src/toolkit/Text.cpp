#include "toolkit/Text.h"

namespace toolkit {

namespace {

constexpr char32_t kNoCharacter = 0xFFFD;

bool continues(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

// Bytes that a lead byte announces behind it; none behind one that leads nothing.
std::size_t behind(unsigned char lead) {
    return lead < 0xC2U ? 0 : lead < 0xE0U ? 1 : lead < 0xF0U ? 2 : lead < 0xF5U ? 3 : 0;
}

} // namespace

std::u32string codePoints(const std::string& text) {
    std::u32string all;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto lead = static_cast<unsigned char>(text[at]);
        const std::size_t more = behind(lead);
        char32_t character = more == 0 ? lead : lead & (0x3FU >> more);
        std::size_t read = 0;
        while (read < more && at + read + 1 < text.size() && continues(text[at + read + 1]))
            character = character << 6U | (static_cast<unsigned char>(text[at + ++read]) & 0x3FU);
        const bool whole = read == more && (more > 0 || lead < 0x80U);
        all += whole ? character : kNoCharacter;
        at += whole ? more : 0;
    }
    return all;
}

int characters(const std::string& text) {
    return static_cast<int>(codePoints(text).size());
}

int units(const std::string& text, int characters) {
    int count = 0;
    for (const char32_t it : codePoints(text).substr(0, static_cast<std::size_t>(characters)))
        count += it < 0x10000U ? 1 : 2;
    return count;
}

int charactersIn(const std::string& text, int units) {
    int count = 0;
    for (const char32_t it : codePoints(text)) {
        units -= it < 0x10000U ? 1 : 2;
        if (units < 0)
            break;
        ++count;
    }
    return count;
}

std::string utf8(char32_t character) {
    const auto byte = [](char32_t bits) { return static_cast<char>(bits); };
    const auto next = [&](unsigned shift) { return byte(0x80U | (character >> shift & 0x3FU)); };
    if (character < 0x80U)
        return {byte(character)};
    if (character < 0x800U)
        return {byte(0xC0U | character >> 6U), next(0)};
    if (character < 0x10000U)
        return {byte(0xE0U | character >> 12U), next(6), next(0)};
    return {byte(0xF0U | character >> 18U), next(12), next(6), next(0)};
}

} // namespace toolkit
