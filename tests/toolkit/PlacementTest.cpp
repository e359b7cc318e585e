// Windows stay within reach.
#include "toolkit/Placement.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using toolkit::Form;
using toolkit::Place;
using toolkit::ShownPlace;
using Numbers = std::array<double, 4>;

Numbers numbers(const Place& place) {
    return {place.Left, place.Top, place.Width, place.Height};
}

TEST(Placement, KeepsAWindowInTheFreeAreaSmallerIfItCanBeResized) {
    struct Case {
        Place window, area;
        bool canBeResized;
        Numbers shown;
    };
    const Place screen{0, 0, 1366, 728};
    for (const Case& it :
         {Case{{100, 90, 700, 500}, screen, true, {100, 90, 700, 500}},
          {{-40, -100, 1454, 1068}, screen, true, {0, 0, 1366, 728}},
          {{700, 300, 700, 500}, screen, true, {666, 228, 700, 500}},
          {{-40, -100, 1454, 600}, screen, false, {0, 0, 1454, 600}},
          {{-40, 500, 300, 900}, screen, false, {0, 0, 300, 900}},
          // a second screen with a bar on its left
          {{1300, 5, 300, 200}, {1400, 30, 800, 570}, false, {1400, 30, 300, 200}}})
        EXPECT_EQ(numbers(insideArea(it.window, it.area, it.canBeResized)), it.shown);
}

TEST(Placement, BringsAPageIntoViewIfLessThanHalfOfItsTitleIsSeen) {
    const Place view{0, 0, 700, 400};
    struct Case {
        Place page;
        Numbers shown;
    };
    for (const Case& it : {Case{{350, 0, 500, 380}, {350, 0, 500, 380}},
                           {{500, 0, 500, 380}, {200, 0, 500, 380}},
                           {{-240, 10, 500, 380}, {-240, 10, 500, 380}},
                           {{-260, 10, 500, 380}, {0, 10, 500, 380}},
                           {{100, 385, 500, 380}, {100, 20, 500, 380}},
                           {{100, -10, 500, 380}, {100, 0, 500, 380}},
                           {{-50, 0, 800, 380}, {-50, 0, 800, 380}}, // wider than the frame
                           {{600, 0, 800, 380}, {0, 0, 800, 380}}})
        EXPECT_EQ(numbers(intoView(it.page, view, 25)), it.shown);
}

// Steps of one window, at 20 twips a pixel: what the program reads back as its form's place.
TEST(Placement, TheProgramReadsBackWhatItHasAskedForUntilTheUserMovesTheWindow) {
    for (const auto kind : {Form::Kind::MDIFrame, Form::Kind::TopLevel}) {
        Form form(kind, "form", 20000, 10000);
        const Place asked{-500, 100, 20000, 10000};
        form.Left = asked.Left;
        form.Top = asked.Top;
        ShownPlace place;
        const bool fits = kind == Form::Kind::MDIFrame; // it is made smaller
        const Place shown = place.within({0, 10, 800, 590}, form, 20);
        EXPECT_EQ(numbers(shown), (Numbers{0, 10, fits ? 800.0 : 1000, 500}));
        const auto readBack = [&](const Place& now) {
            place.moved(now, form, 20);
            return Numbers{form.Left, form.Top, form.Width, form.Height};
        };
        EXPECT_EQ(readBack(shown), numbers(asked));
        EXPECT_EQ(readBack({30, 40, 700, 500}), (Numbers{600, 800, 14000, 10000}));
        EXPECT_EQ(readBack(shown), numbers(asked)) << "on its way there";
        // Another area, as where a bar goes: it is shown where it was asked for, as far as it can.
        EXPECT_EQ(numbers(place.within({-100, 0, 1100, 600}, form, 20)),
                  (Numbers{-25, 5, 1000, 500}));
    }
}

} // namespace
