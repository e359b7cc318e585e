#include "tests/support/ProgramTest.h"

namespace {

using toolkit::Retry, toolkit::Ignore, toolkit::Abort;

struct PrintTest : tests::ProgramTest {
    // Prints from the page, with the printer failing at the given calls of an operation, and gives
    // the count of reports.
    std::size_t print(const std::string& operation = "", std::vector<int> failures = {},
                      std::deque<int> answers = {}) {
        int calls = 0;
        desk.printerFault = [=](const std::string& name) mutable {
            if (name == operation && std::ranges::count(failures, ++calls) > 0)
                throw platform::RuntimeError(platform::PrinterError);
        };
        desk.answers = std::move(answers);
        tests::open<quorvanta::frmFavorites>().mnuPrint.click();
        const auto reports = desk.takeReports();
        EXPECT_EQ(std::ranges::count(reports, "482 frmFavorites.PrintFavoriteNumbers"),
                  std::ssize(reports));
        return reports.size();
    }
};

TEST_F(PrintTest, ThePageShowsTheStoredTextsInTheirPlaces) {
    quorvanta::gstrFavorites[1] = "5;9;14;22;36;44;";
    quorvanta::gstrFavorites[10] = "odd text";
    tests::open<quorvanta::frmFavorites>().grd1.TextMatrix(1, 1) = "7"; // not what is stored
    EXPECT_EQ(print(), 0U);
    ASSERT_EQ(desk.printed.at(0).size(), 16U);
    const auto told = [&](std::size_t index) {
        const toolkit::PrintedText& it = desk.printed[0].at(index);
        std::ostringstream text;
        text << it.left << " " << it.top << " " << it.font.size << (it.font.bold ? " bold" : "")
             << (it.font.italic ? " italic" : "") << (it.font.underline ? " underlined" : "")
             << (it.colour == toolkit::kBlue    ? " blue "
                 : it.colour == toolkit::kBlack ? " "
                                                : " ? ")
             << it.text;
        return text.str();
    };
    EXPECT_EQ(told(1), "540 500 18 bold italic blue Quor Vanta \xAE Version 3.5");
    EXPECT_EQ(told(3), "240 1334 8 bold italic 7/25/2005");
    EXPECT_EQ(told(6), "300 3760 10 italic 1. 5;9;14;22;36;44;");
    EXPECT_EQ(told(15), "300 5830 10 italic 10. odd text");
}

TEST_F(PrintTest, AFailureIsRetriedPassedOverOrGivesUpTheWholePage) {
    EXPECT_EQ(print("lineHeight", {9}, {Abort}), 1U);
    EXPECT_EQ(print("print", {1}, {Ignore}), 1U); // nothing can be handed over any more
    EXPECT_TRUE(desk.printed.empty());
    EXPECT_EQ(print("newPrinterDevice", {1, 2}, {Retry, Retry}), 2U);
    ASSERT_EQ(desk.printed.size(), 1U);
    EXPECT_EQ(desk.printed[0].size(), 16U);
    EXPECT_EQ(desk.printed[0][0].top, 0);
    EXPECT_EQ(print("lineHeight", {2, 7}, {Ignore, Ignore}), 2U);
    const auto& page = desk.printed.at(1);
    ASSERT_EQ(page.size(), 14U); // without the header and the first row
    EXPECT_EQ(page[2].text + page[5].text, "7/25/20052. ");
    EXPECT_EQ(page[5].top, 3300 + 2 * 230);
}

} // namespace
