#include "platform/Addresses.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(Addresses, OnlyThoseOfTheWebAndOfMailAreOpened) {
    const std::pair<std::string, std::string> rows[] = {
        {"https://a.example/?q=$(x)&`id`;'\"|*>#%20", "https://a.example/?q=$(x)&`id`;'\"|*>#%20"},
        {"HTTP://a.example", "HTTP://a.example"},
        {"mailto:a@a.example", "mailto:a@a.example"},
        {"www.a.example/b", "http://www.a.example/b"},
        {"WWW.a.example", "http://WWW.a.example"},
        {"www.", ""},
        {"wwwa.example", ""},
        {"file:///etc/passwd", ""},
        {"/bin/sh", ""},
        {"--help", ""},
        {"javascript:x()", ""},
        {"https://a.example/\n--help", ""},
        {"www.a.example x", ""}};
    for (const auto& [text, address] : rows)
        EXPECT_EQ(platform::addressToOpen(text), address) << text;
}

} // namespace
