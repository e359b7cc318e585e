#include "platform/linux/IcuCodePage.h"

#include "platform/linux/LocaleData.h"

#include <unicode/ucnv.h>
#include <unicode/uniset.h>

namespace platform {

namespace {

// In an order in which the first of several that would do is the one in use.
constexpr int kCandidates[] = {1252, 1250, 1251, 1253, 1254, 1255, 1256,
                               1257, 1258, 874,  932,  949,  950,  936};

UConverter* openConverter(int number) {
    UErrorCode status = U_ZERO_ERROR;
    const std::string name = "windows-" + std::to_string(number);
    return ucnv_open(name.c_str(), &status);
}

icu::UnicodeSet lettersOf(const std::string& locale) {
    UErrorCode status = U_ZERO_ERROR;
    const std::string letters = LocaleData(locale).text("ExemplarCharacters");
    icu::UnicodeSet set(icu::UnicodeString::fromUTF8(letters), status);
    return set.removeAllStrings();
}

int lettersMissing(const icu::UnicodeSet& letters, int number) {
    UErrorCode status = U_ZERO_ERROR;
    UConverter* converter = openConverter(number);
    icu::UnicodeSet covered;
    ucnv_getUnicodeSet(converter, covered.toUSet(), UCNV_ROUNDTRIP_SET, &status);
    ucnv_close(converter);
    return icu::UnicodeSet(letters).removeAll(covered).size();
}

class IcuTable final : public CodePageTable {
public:
    explicit IcuTable(int number) : converter_(openConverter(number)) {
        UErrorCode status = U_ZERO_ERROR;
        ucnv_setFallback(converter_.get(), true);
        ucnv_setToUCallBack(converter_.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr,
                            &status);
        ucnv_setFromUCallBack(converter_.get(), UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr,
                              nullptr, &status);
    }

    bool isLeadByte(unsigned char byte) const override {
        const char only = static_cast<char>(byte);
        UErrorCode status = U_ZERO_ERROR;
        decode({&only, 1}, status);
        return status == U_TRUNCATED_CHAR_FOUND;
    }

    char16_t character(std::string_view bytes) const override {
        UErrorCode status = U_ZERO_ERROR;
        const char16_t c = decode(bytes, status);
        return U_FAILURE(status) ? u'\0' : c;
    }

    std::string bytes(char16_t character) const override {
        char answer[8] = {};
        UErrorCode status = U_ZERO_ERROR;
        const int length = ucnv_fromUChars(converter_.get(), answer, 8, &character, 1, &status);
        return U_FAILURE(status) ? std::string() : std::string(answer, answer + length);
    }

private:
    char16_t decode(std::string_view bytes, UErrorCode& status) const {
        UChar answer[4] = {};
        const int length = ucnv_toUChars(converter_.get(), answer, 4, bytes.data(),
                                         static_cast<int>(bytes.size()), &status);
        return length == 1 ? answer[0] : u'\0';
    }

    struct Close {
        void operator()(UConverter* it) const { ucnv_close(it); }
    };
    std::unique_ptr<UConverter, Close> converter_;
};

} // namespace

int ansiCodePage(const std::string& locale) {
    // Where the letters fit into another code page too, or into none.
    constexpr struct {
        const char* locale;
        int number;
    } kExceptions[] = {{"et_", 1257},  {"sq_", 1250},  {"vi_", 1258},
                       {"zh_TW", 950}, {"zh_HK", 950}, {"zh_MO", 950}};
    for (const auto& exception : kExceptions)
        if (locale.starts_with(exception.locale))
            return exception.number;

    const icu::UnicodeSet letters = lettersOf(locale);
    int best = 0, fewest = 0;
    for (const int number : kCandidates) {
        const int missing = lettersMissing(letters, number);
        if (missing == 0)
            return number;
        if (best == 0 || missing < fewest) {
            best = number;
            fewest = missing;
        }
    }
    return best;
}

std::unique_ptr<CodePageTable> icuCodePage(int number) {
    return std::make_unique<IcuTable>(number);
}

} // namespace platform
