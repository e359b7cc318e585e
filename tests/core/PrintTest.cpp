#include "tests/support/ListPages.h"

namespace {

class PrintTest : public tests::ProgramTest {
protected:
    // Prints from the page, with the printer failing at the given calls of an operation.
    void print(const std::string& operation, std::vector<int> failures,
               std::deque<int> answers = {}) {
        int calls = 0;
        desk.printerFault = [=](const std::string& name) mutable {
            if (name == operation && std::ranges::count(failures, ++calls) > 0)
                throw platform::RuntimeError(platform::PrinterError);
        };
        desk.answers = std::move(answers);
        tests::open<quorvanta::frmFavorites>().mnuPrint.click();
    }
    // A page of 16 lines has been handed over, after so many reports.
    void expectOneWholePage(std::size_t reports) {
        const std::string report = "482 frmFavorites.PrintFavoriteNumbers";
        EXPECT_EQ(desk.takeReports(), std::vector<std::string>(reports, report));
        ASSERT_EQ(desk.printed.size(), 1U);
        EXPECT_EQ(desk.printed[0].size(), 16U);
        EXPECT_EQ(desk.printed[0][0].top, 0);
    }
};

TEST_F(PrintTest, ThePageShowsTheStoredTextsInTheirPlaces) {
    quorvanta::gstrFavorites[1] = "5;9;14;22;36;44;";
    quorvanta::gstrFavorites[10] = "odd text";
    tests::open<quorvanta::frmFavorites>().grd1.TextMatrix(1, 1) = "7"; // not what is stored
    print("", {});
    expectOneWholePage(0);
    const toolkit::Font title{"", 18, true, true}, date{"", 8, true, true},
        row{"", 10, false, true};
    using Line = std::pair<std::size_t, toolkit::PrintedText>; // at its index
    for (const auto& [index, line] :
         std::vector<Line>{{1, {540, 500, "Quor Vanta \xAE Version 3.5", title, toolkit::kBlue}},
                           {3, {240, 1150 + 184, "7/25/2005", date, toolkit::kBlack}},
                           {6, {300, 3300 + 2 * 230, "1. 5;9;14;22;36;44;", row, toolkit::kBlack}},
                           {7, {300, 3300 + 3 * 230, "2. ", row, toolkit::kBlack}},
                           {15, {300, 3300 + 11 * 230, "10. odd text", row, toolkit::kBlack}}}) {
        const auto properties = [](const toolkit::PrintedText& it) {
            return std::tuple(it.text, it.left, it.top, it.font.size, it.font.bold, it.font.italic,
                              it.font.underline, it.colour);
        };
        EXPECT_EQ(properties(desk.printed[0].at(index)), properties(line));
    }
}

TEST_F(PrintTest, AMissingPrinterIsMetAtOnceAndRetryFindsItAgain) {
    print("newPrinterDevice", {1, 2}, {toolkit::Retry, toolkit::Retry});
    expectOneWholePage(2);
}

TEST_F(PrintTest, AbortLeavesNoHalfJobBehind) {
    print("lineHeight", {9}, {toolkit::Abort});
    print("print", {1}, {toolkit::Ignore}); // the last step: nothing can be handed over any more
    print("print", {1}, {toolkit::Abort});
    EXPECT_TRUE(desk.printed.empty());
    print("", {});
    expectOneWholePage(3);
}

TEST_F(PrintTest, IgnoreGoesOnWithTheNextStep) {
    print("lineHeight", {2, 7}, {toolkit::Ignore, toolkit::Ignore});
    ASSERT_EQ(desk.printed.size(), 1U);
    const auto& page = desk.printed[0];
    ASSERT_EQ(page.size(), 14U); // without the header and the first row
    EXPECT_EQ(page[2].text + page[5].text, "7/25/20052. ");
    EXPECT_EQ(page[5].top, 3300 + 2 * 230);
}

} // namespace
