#include "tests/support/ProgramTest.h"

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

} // namespace
