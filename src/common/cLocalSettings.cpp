#include "common/cLocalSettings.h"

#include "common/NumberText.h"
#include "common/SystemBuffer.h"
#include "common/Trap.h"
#include "platform/Platform.h"

#include <algorithm>

namespace quorvanta {

namespace {

constexpr int kBufferLength = 99; // one less than the buffer, which so always ends in a blank

std::string asText(const std::string& bytes) {
    return platform::current().locale.fromBytes(bytes);
}

std::string directoryFrom(cLocalSettings::Name::Question ask, const char* label) {
    std::string directory;
    trapped(label, [&](auto step) {
        std::string buffer(255, ' ');
        int count = 0;
        step([&] { count = fill(buffer, (platform::current().machine.*ask)()); });
        step([&] {
            if (count != 0)
                directory = asText(cLocalSettings::StringFromBuffer(buffer));
        });
    });
    return directory;
}

} // namespace

const std::string& cLocalSettings::Name::operator()() {
    std::string buffer(256, '\0');
    fill(buffer, (platform::current().machine.*ask_)());
    *this = asText(StringFromBuffer(buffer));
    return VariantProperty::operator()();
}

std::string cLocalSettings::prpMetrics() {
    const std::string value = read(platform::LOCALE_IMEASURE);
    const double system = CDbl(value);
    if (system == 0)
        return "Metric";
    return system == 1 ? "US" : value;
}

std::string cLocalSettings::StringFromBuffer(std::string_view buffer) {
    const std::size_t end = buffer.find('\0');
    return std::string(buffer.substr(0, end == std::string_view::npos ? 0 : end));
}

std::string cLocalSettings::read(platform::LocaleItem item) {
    const platform::Locale& locale = platform::current().locale;
    const int count = fill(std::span(mstrBuffer).first<kBufferLength>(),
                           locale.GetLocaleInfoA(platform::LOCALE_USER_DEFAULT, item));
    mstrLocaleLength = std::to_string(count);
    mstrLocaleValue = StringFromBuffer({mstrBuffer.data(), mstrBuffer.size()});
    const auto rest = std::copy(mstrLocaleValue.begin(), mstrLocaleValue.end(), mstrBuffer.begin());
    std::fill(rest, mstrBuffer.end(), ' ');
    return asText(mstrLocaleValue);
}

std::string cLocalSettings::GetWindowsDir() {
    return directoryFrom(&platform::Machine::GetWindowsDirectoryA, "cLocalSettings.GetWindowsDir");
}

std::string cLocalSettings::GetWindowsSysDir() {
    return directoryFrom(&platform::Machine::GetSystemDirectoryA,
                         "cLocalSettings.GetWindowsSysDir");
}

} // namespace quorvanta
