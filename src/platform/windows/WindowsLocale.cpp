#include "platform/windows/WindowsLocale.h"

#include "platform/windows/System.h"

#include <algorithm>
#include <iterator>

namespace platform {

namespace {

class WindowsTable final : public CodePageTable {
public:
    explicit WindowsTable(UINT number) : number_(number) {}

    bool isLeadByte(unsigned char byte) const override { return IsDBCSLeadByteEx(number_, byte); }

    char16_t character(std::string_view bytes) const override {
        wchar_t answer[4] = {};
        const int length = MultiByteToWideChar(number_, MB_ERR_INVALID_CHARS, bytes.data(),
                                               static_cast<int>(bytes.size()), answer, 4);
        return length == 1 ? static_cast<char16_t>(answer[0]) : u'\0';
    }

    std::string bytes(char16_t character) const override {
        const auto unit = static_cast<wchar_t>(character);
        char answer[8] = {};
        BOOL unknown = FALSE;
        const int length =
            WideCharToMultiByte(number_, 0, &unit, 1, answer, sizeof answer, nullptr, &unknown);
        return unknown || length <= 0 ? std::string() : std::string(answer, answer + length);
    }

private:
    UINT number_;
};

constexpr UINT kWestern = 1252;

UINT ansiCodePage(int locale) {
    DWORD number = 0;
    GetLocaleInfoW(static_cast<LCID>(locale), LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                   reinterpret_cast<wchar_t*>(&number), sizeof number / sizeof(wchar_t));
    if (number == CP_ACP)
        number = GetACP();
    return number == CP_UTF8 ? kWestern : number; // UTF-8 is no code page of 8 bits
}

} // namespace

WindowsLocale::WindowsLocale(int number)
    : number_(number), codePage_(std::make_unique<WindowsTable>(ansiCodePage(number))) {}

std::optional<std::string> WindowsLocale::GetLocaleInfoA(int locale, int item) const {
    if (locale != LOCALE_USER_DEFAULT)
        return std::nullopt;
    wchar_t buffer[512];
    const int count = GetLocaleInfoW(static_cast<LCID>(number_), static_cast<LCTYPE>(item), buffer,
                                     static_cast<int>(std::size(buffer)));
    if (count <= 1)
        return std::nullopt;
    std::wstring text(buffer, static_cast<std::size_t>(count) - 1);
    std::ranges::replace(text, L'\x202F', L'\xA0');
    return fromBytes(toBytes(narrow(text)));
}

std::string WindowsLocale::upperCase(std::string_view text) const {
    const std::wstring from = wide(text);
    const int size = static_cast<int>(from.size());
    std::wstring to(from.size(), L'\0');
    const int length =
        LCMapStringW(static_cast<LCID>(number_), LCMAP_UPPERCASE | LCMAP_LINGUISTIC_CASING,
                     from.data(), size, to.data(), size);
    return length > 0 ? narrow(to) : std::string(text);
}

std::string WindowsLocale::fromBytes(std::string_view bytes) const {
    return codePage_.decode(bytes);
}

std::string WindowsLocale::toBytes(std::string_view text) const {
    return codePage_.encode(text);
}

} // namespace platform
