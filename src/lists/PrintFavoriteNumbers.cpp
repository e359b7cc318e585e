#include "common/DateText.h"
#include "common/Trap.h"
#include "lists/frmFavorites.h"
#include "platform/Platform.h"
#include "toolkit/Printer.h"

#include <string>

namespace quorvanta {

using toolkit::Printer;
using toolkit::Tab;

namespace {

// The product, the character that the user's code page has at 174 (a registered mark in Western
// ones), and the version.
std::string header() {
    return std::string(kProductTitle) + platform::current().locale.fromBytes("\xAE") + " Version " +
           std::to_string(toolkit::App.Major) + "." + std::to_string(toolkit::App.Minor);
}

} // namespace

// Positions are in twips. The italics stay on to the end of the page.
void frmFavorites::PrintFavoriteNumbers() {
    trapped("frmFavorites.PrintFavoriteNumbers", [&](auto step) {
        step([&] { Printer.Print(" "); });
        Printer.CurrentY = 500;
        Printer.FontItalic = true;
        Printer.FontBold = true;
        Printer.FontUnderline = false;
        Printer.FontSize = 18;
        Printer.ForeColor = toolkit::kBlue;
        step([&] { Printer.Print(Tab{4}, header()); });
        Printer.FontSize = 8;
        Printer.ForeColor = toolkit::kBlack;
        Printer.CurrentY = 1150;
        step([&] { Printer.Print(); });
        step([&] { Printer.Print(Tab{4}, ShortDate(platform::current().clock.now())); });
        Printer.FontBold = false;
        Printer.FontSize = 10;
        Printer.CurrentY = 3300;
        step([&] { Printer.Print(); });
        step([&] { Printer.Print(); });
        for (std::size_t r = 1; r <= kRows; ++r)
            step([&] { Printer.Print(Tab{4}, std::to_string(r) + ". " + gstrFavorites.at(r)); });
        step([&] { Printer.EndDoc(); });
    });
    Printer.KillDoc(); // what was not handed over
}

} // namespace quorvanta
