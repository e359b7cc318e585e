#include "tests/support/ListPages.h"

namespace {

class PrintTest : public tests::ProgramTest {
protected:
    // Prints from the page, with the printer failing at the given calls of an operation.
    void print(const std::string& operation, std::vector<int> failures,
               std::deque<int> answers = {}) {
        int calls = 0;
        desk.printerFault = [=, this](const std::string& name) mutable {
            if (name == operation && std::count(failures.begin(), failures.end(), ++calls) > 0)
                throw platform::RuntimeError(platform::PrinterError);
        };
        desk.answers = std::move(answers);
        quorvanta::frmFavorites::the().Show();
        quorvanta::frmFavorites::the().mnuPrint.click();
    }
    std::vector<std::string> texts() const {
        std::vector<std::string> all;
        for (const auto& line : desk.printed.at(0))
            all.push_back(line.text);
        return all;
    }
    const std::string report = "482 frmFavorites.PrintFavoriteNumbers";
};

TEST_F(PrintTest, ThePageShowsTheStoredTextsInTheirPlaces) {
    quorvanta::gstrFavorites[1] = "5;9;14;22;36;44;";
    quorvanta::gstrFavorites[10] = "odd text";
    quorvanta::frmFavorites::the().Show();
    quorvanta::frmFavorites::the().grd1.TextMatrix(1, 1) = "7"; // not what is stored
    print("", {});
    ASSERT_EQ(desk.printed.size(), 1U);
    const auto& page = desk.printed[0];
    ASSERT_EQ(page.size(), 16U);
    EXPECT_EQ(texts(),
              (std::vector<std::string>{" ", "Quor Vanta \xAE Version 3.5", "", "7/25/2005", "", "",
                                        "1. 5;9;14;22;36;44;", "2. ", "3. ", "4. ", "5. ", "6. ",
                                        "7. ", "8. ", "9. ", "10. odd text"}));
    struct Line {
        std::size_t index;
        double left, top, size;
        bool bold;
        toolkit::Colour colour;
    };
    for (const Line& line : {Line{1, 540, 500, 18, true, toolkit::kBlue},
                             Line{3, 240, 1150 + 184, 8, true, toolkit::kBlack},
                             Line{6, 300, 3300 + 2 * 230, 10, false, toolkit::kBlack},
                             Line{15, 300, 3300 + 11 * 230, 10, false, toolkit::kBlack}}) {
        const toolkit::PrintedText& text = page[line.index];
        EXPECT_EQ(std::tuple(text.left, text.top, text.font.size, text.font.bold, text.colour),
                  std::tuple(line.left, line.top, line.size, line.bold, line.colour))
            << text.text;
        EXPECT_TRUE(text.font.italic && !text.font.underline) << text.text;
    }
}

TEST_F(PrintTest, AMissingPrinterIsMetAtOnceAndRetryFindsItAgain) {
    print("newPrinterDevice", {1, 2}, {toolkit::Retry, toolkit::Retry});
    EXPECT_EQ(desk.takeReports(), (std::vector<std::string>{report, report}));
    ASSERT_EQ(desk.printed.size(), 1U);
    EXPECT_EQ(desk.printed[0].size(), 16U);
}

TEST_F(PrintTest, AbortLeavesNoHalfJobBehind) {
    print("lineHeight", {9}, {toolkit::Abort});
    print("print", {1}, {toolkit::Ignore}); // the last step: nothing can be handed over any more
    print("print", {1}, {toolkit::Abort});
    EXPECT_TRUE(desk.printed.empty());
    EXPECT_EQ(desk.takeReports(), (std::vector<std::string>{report, report, report}));
    print("", {});
    ASSERT_EQ(desk.printed.size(), 1U);
    EXPECT_EQ(desk.printed[0].size(), 16U);
    EXPECT_EQ(desk.printed[0][0].top, 0);
}

TEST_F(PrintTest, IgnoreGoesOnWithTheNextStep) {
    print("lineHeight", {2, 7}, {toolkit::Ignore, toolkit::Ignore});
    ASSERT_EQ(desk.printed.size(), 1U);
    const auto all = texts();
    ASSERT_EQ(all.size(), 14U); // without the header and the first row
    EXPECT_EQ(all[2], "7/25/2005");
    EXPECT_EQ(all[5], "2. ");
    EXPECT_EQ(desk.printed[0][5].top, 3300 + 2 * 230);
}

} // namespace
