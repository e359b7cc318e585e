#include "tests/support/ListPages.h"

namespace {

using toolkit::Printer;
using toolkit::Tab;

class PrinterTest : public tests::ProgramTest {};

TEST_F(PrinterTest, EachLineStandsALineHeightBelowTheOneBefore) {
    Printer.CurrentY = 500;
    Printer.FontSize = 18;
    Printer.Print(Tab{4}, "first");
    Printer.FontSize = 8;
    Printer.FontItalic = true;
    Printer.Print();
    Printer.Print("third");
    Printer.EndDoc();

    ASSERT_EQ(desk.printed.size(), 1U);
    const auto& page = desk.printed[0];
    ASSERT_EQ(page.size(), 3U);
    EXPECT_EQ(page[0].left, 3 * 180); // three characters from the edge
    EXPECT_EQ(page[0].top, 500);
    EXPECT_FALSE(page[0].font.italic);
    EXPECT_EQ(page[1].top, 500 + 23 * 18);
    EXPECT_EQ(page[2].top, 500 + 23 * 18 + 23 * 8);
    EXPECT_EQ(page[2].left, 0);
    EXPECT_EQ(page[2].text, "third");
    EXPECT_TRUE(page[2].font.italic);
    EXPECT_EQ(Printer.CurrentY, 0);
}

TEST_F(PrinterTest, ADocumentSurvivesAFailedHandOver) {
    Printer.Print("kept");
    desk.printerFault = [](const std::string&) {
        throw platform::RuntimeError(platform::PrinterError);
    };
    EXPECT_THROW(Printer.EndDoc(), platform::RuntimeError);
    EXPECT_THROW(Printer.Print("lost"), platform::RuntimeError);
    desk.printerFault = nullptr;
    Printer.EndDoc();
    Printer.EndDoc();
    ASSERT_EQ(desk.printed.size(), 1U);
    ASSERT_EQ(desk.printed[0].size(), 1U);
    EXPECT_EQ(desk.printed[0][0].text, "kept");
}

TEST_F(PrinterTest, ADocumentGivenUpReachesNoPrinter) {
    Printer.Print("half");
    Printer.KillDoc();
    Printer.EndDoc();
    EXPECT_TRUE(desk.printed.empty());
    Printer.Print("next");
    Printer.EndDoc();
    ASSERT_EQ(desk.printed.size(), 1U);
    EXPECT_EQ(desk.printed[0].size(), 1U);
    EXPECT_EQ(desk.printed[0][0].top, 0);
}

class PrintFavoriteNumbersTest : public PrinterTest {
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
    const std::string report =
        "An error has occured: 482\r\nPrinter error\r\nfrmFavorites.PrintFavoriteNumbers";
};

TEST_F(PrintFavoriteNumbersTest, ThePageShowsTheStoredTextsInTheirPlaces) {
    quorvanta::gstrFavorites[1] = "5;9;14;22;36;44;";
    quorvanta::gstrFavorites[10] = "odd text";
    print("", {});
    quorvanta::frmFavorites::the().grd1.TextMatrix(1, 1) = "7"; // not what is stored
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
        EXPECT_EQ(text.left, line.left) << text.text;
        EXPECT_EQ(text.top, line.top) << text.text;
        EXPECT_EQ(text.font.size, line.size) << text.text;
        EXPECT_EQ(text.font.bold, line.bold) << text.text;
        EXPECT_TRUE(text.font.italic && !text.font.underline) << text.text;
        EXPECT_EQ(text.colour, line.colour) << text.text;
    }
}

TEST_F(PrintFavoriteNumbersTest, AMissingPrinterIsMetAtOnceAndRetryFindsItAgain) {
    print("newPrinterDevice", {1, 2}, {toolkit::Retry, toolkit::Retry});
    EXPECT_EQ(desk.takeBoxes(), (std::vector<std::string>{report, report}));
    ASSERT_EQ(desk.printed.size(), 1U);
    EXPECT_EQ(desk.printed[0].size(), 16U);
}

TEST_F(PrintFavoriteNumbersTest, AbortLeavesNoHalfJobBehind) {
    print("lineHeight", {9}, {toolkit::Abort});
    print("print", {1}, {toolkit::Ignore}); // the last step: nothing can be handed over any more
    print("print", {1}, {toolkit::Abort});
    EXPECT_TRUE(desk.printed.empty());
    EXPECT_EQ(desk.takeBoxes(), (std::vector<std::string>{report, report, report}));
    print("", {});
    ASSERT_EQ(desk.printed.size(), 1U);
    EXPECT_EQ(desk.printed[0].size(), 16U);
    EXPECT_EQ(desk.printed[0][0].top, 0);
}

TEST_F(PrintFavoriteNumbersTest, IgnoreGoesOnWithTheNextStep) {
    print("lineHeight", {2, 7}, {toolkit::Ignore, toolkit::Ignore});
    ASSERT_EQ(desk.printed.size(), 1U);
    const auto all = texts();
    ASSERT_EQ(all.size(), 14U); // without the header and the first row
    EXPECT_EQ(all[2], "7/25/2005");
    EXPECT_EQ(all[5], "2. ");
    EXPECT_EQ(desk.printed[0][5].top, 3300 + 2 * 230);
}

} // namespace
