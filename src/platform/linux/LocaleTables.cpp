#include "platform/linux/LocaleTables.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <string_view>

namespace platform {

std::string telephoneCode(const std::string& country) {
    // Numbers of the telephone union, for the countries with a desktop locale of their own.
    constexpr struct {
        const char* country;
        const char* code;
    } kCodes[] = {
        {"AE", "971"}, {"AL", "355"}, {"AM", "374"}, {"AR", "54"},  {"AT", "43"},  {"AU", "61"},
        {"AZ", "994"}, {"BA", "387"}, {"BD", "880"}, {"BE", "32"},  {"BG", "359"}, {"BO", "591"},
        {"BR", "55"},  {"BY", "375"}, {"CA", "1"},   {"CH", "41"},  {"CL", "56"},  {"CN", "86"},
        {"CO", "57"},  {"CR", "506"}, {"CU", "53"},  {"CY", "357"}, {"CZ", "420"}, {"DE", "49"},
        {"DK", "45"},  {"DO", "1"},   {"DZ", "213"}, {"EC", "593"}, {"EE", "372"}, {"EG", "20"},
        {"ES", "34"},  {"ET", "251"}, {"FI", "358"}, {"FO", "298"}, {"FR", "33"},  {"GB", "44"},
        {"GE", "995"}, {"GL", "299"}, {"GR", "30"},  {"GT", "502"}, {"HK", "852"}, {"HN", "504"},
        {"HR", "385"}, {"HU", "36"},  {"ID", "62"},  {"IE", "353"}, {"IL", "972"}, {"IN", "91"},
        {"IQ", "964"}, {"IR", "98"},  {"IS", "354"}, {"IT", "39"},  {"JM", "1"},   {"JO", "962"},
        {"JP", "81"},  {"KE", "254"}, {"KH", "855"}, {"KR", "82"},  {"KW", "965"}, {"KZ", "7"},
        {"LA", "856"}, {"LB", "961"}, {"LI", "423"}, {"LK", "94"},  {"LT", "370"}, {"LU", "352"},
        {"LV", "371"}, {"LY", "218"}, {"MA", "212"}, {"MC", "377"}, {"MD", "373"}, {"ME", "382"},
        {"MK", "389"}, {"MN", "976"}, {"MO", "853"}, {"MT", "356"}, {"MX", "52"},  {"MY", "60"},
        {"NG", "234"}, {"NI", "505"}, {"NL", "31"},  {"NO", "47"},  {"NP", "977"}, {"NZ", "64"},
        {"OM", "968"}, {"PA", "507"}, {"PE", "51"},  {"PH", "63"},  {"PK", "92"},  {"PL", "48"},
        {"PR", "1"},   {"PT", "351"}, {"PY", "595"}, {"QA", "974"}, {"RO", "40"},  {"RS", "381"},
        {"RU", "7"},   {"SA", "966"}, {"SE", "46"},  {"SG", "65"},  {"SI", "386"}, {"SK", "421"},
        {"SN", "221"}, {"SV", "503"}, {"SY", "963"}, {"TH", "66"},  {"TN", "216"}, {"TR", "90"},
        {"TW", "886"}, {"UA", "380"}, {"US", "1"},   {"UY", "598"}, {"UZ", "998"}, {"VE", "58"},
        {"VN", "84"},  {"YE", "967"}, {"ZA", "27"},
    };
    for (const auto& entry : kCodes)
        if (country == entry.country)
            return entry.code;
    return {};
}

int oemCodePage(int ansiCodePage, const std::string& country) {
    switch (ansiCodePage) {
    case 1250:
        return 852;
    case 1251:
        return 866;
    case 1252:
        return country == "US" ? 437 : 850;
    case 1253:
        return 737;
    case 1254:
        return 857;
    case 1255:
        return 862;
    case 1256:
        return 720;
    case 1257:
        return 775;
    default:
        return ansiCodePage; // the Asian ones and 1258 serve both
    }
}

std::string languageAbbreviation(const std::string& locale, const std::string& iso) {
    // The language's ISO code ends in a letter for the country, where there is more than one; some
    // languages have letters of their own.
    constexpr struct {
        const char* locale;
        const char* letters;
    } kAbbreviations[] = {
        {"bg_BG", "BGR"}, {"cs_CZ", "CSY"}, {"de_AT", "DEA"}, {"de_CH", "DES"}, {"de_LI", "DEC"},
        {"de_LU", "DEL"}, {"en_AU", "ENA"}, {"en_CA", "ENC"}, {"en_GB", "ENG"}, {"en_IE", "ENI"},
        {"en_IN", "ENN"}, {"en_NZ", "ENZ"}, {"en_US", "ENU"}, {"en_ZA", "ENS"}, {"es_ES", "ESN"},
        {"es_MX", "ESM"}, {"et_EE", "ETI"}, {"fr_BE", "FRB"}, {"fr_CA", "FRC"}, {"fr_CH", "FRS"},
        {"fr_LU", "FRL"}, {"it_CH", "ITS"}, {"lt_LT", "LTH"}, {"lv_LV", "LVI"}, {"nb_NO", "NOR"},
        {"nl_BE", "NLB"}, {"pl_PL", "PLK"}, {"pt_BR", "PTB"}, {"pt_PT", "PTG"}, {"ro_RO", "ROM"},
        {"sk_SK", "SKY"}, {"sv_FI", "SVF"}, {"sv_SE", "SVE"}, {"tr_TR", "TRK"}, {"vi_VN", "VIT"},
        {"zh_CN", "CHS"}, {"zh_HK", "ZHH"}, {"zh_SG", "ZHI"}, {"zh_TW", "CHT"},
    };
    for (const auto& entry : kAbbreviations)
        if (locale == entry.locale)
            return entry.letters;
    std::string letters = iso;
    std::transform(letters.begin(), letters.end(), letters.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return letters;
}

bool longDateWithoutDayName(const std::string& locale) {
    // ICU's full date has the name of the day everywhere, its long date nowhere.
    constexpr std::string_view kWithout[] = {
        "bg_", "cs_", "da_", "en_CA", "en_GB", "en_IE", "en_IN", "en_ZA",
        "et_", "fi_", "hr_", "ja_",   "lt_",   "nb_",   "pl_",   "pt_PT",
        "ru_", "sk_", "sv_", "th_",   "uk_",   "vi_",   "zh_",
    };
    return std::any_of(std::begin(kWithout), std::end(kWithout),
                       [&](std::string_view it) { return locale.starts_with(it); });
}

} // namespace platform
