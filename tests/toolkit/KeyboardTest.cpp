// The way of a key through a form, and where the keyboard goes.
#include "tests/toolkit/ToolkitTest.h"

namespace {

using namespace tests;
using namespace toolkit;

class KeyboardTest : public ToolkitTest {};

TEST_F(KeyboardTest, TabVisitsWhatTakesTheFocusAndOneOptionOfAGroup) {
    Page& form = page();
    form.keys(4).Enabled = false;
    form.keys(5).Visible = false;
    form.picture.TabIndex = 999;
    Texts there{form.focused()}, back;
    for (int i = 0; i < 13; ++i) {
        EXPECT_TRUE(userKey(form, key::Tab));
        there.push_back(form.focused());
    }
    EXPECT_EQ(there, (Texts{"opt1", "keys0", "keys1", "keys2", "keys3", "keys6", "keys7", "keys8",
                            "box", "grid", "close", "ok", "picture", "opt1"}));
    for (int i = 0; i < 13; ++i) {
        userKey(form, key::Tab, ShiftDown);
        back.push_back(form.focused());
    }
    std::ranges::reverse(back);
    EXPECT_EQ(back, Texts(there.begin(), there.end() - 1));
    EXPECT_FALSE(userKey(form, key::Tab, CtrlDown)); // the desktop's, to go to another page
    form.pad.Enabled = false;
    form.keys(0).SetFocus();
    EXPECT_EQ(focusTarget(form), &form.opt(1)); // what had the focus can't take it any more
    userKey(form, key::Tab);
    EXPECT_EQ(form.focused(), "box");
}

TEST_F(KeyboardTest, AKeyComesToTheFormThenToTheControlThenDoesItsWork) {
    struct Case {
        const char* focus;
        KeyStroke stroke;
        const char* told;
        bool used;
        const char* after; // where the focus is then
    };
    constexpr int L = 'L', F5 = key::F1 + 4;
    Page& form = page();
    form.dropCode = 'Q';
    const auto control = [&](const std::string& name) -> Control& {
        for (Control* const it : allControls(form))
            if (it->name() + (it->array() ? std::to_string(it->index()) : "") == name)
                return *it;
        throw std::runtime_error(name);
    };
    for (const Case& it : std::initializer_list<Case>{
             {"box", {.code = 'A', .character = 'a'}, "down65 press97", false, "box"},
             {"box", {.code = 'X', .character = 'x'}, "down88 press120", true, "box"},
             {"box", {.code = 'Q', .character = 'q'}, "", true, "box"},
             {"box", {.code = 'W', .character = 'w'}, "down87", true, "box"},
             {"box", {.code = 'C', .shift = CtrlDown, .copies = true}, "", false, "box"},
             {"box", {.code = key::Down}, "down40", false, "box"},
             {"box", {.code = key::Tab, .character = '\t'}, "", true, "grid"},
             {"box", {.code = key::Escape}, "close", true, "box"},
             {"box", {.code = key::Enter, .character = '\r'}, "ok", true, "box"},
             {"keys4", {.code = key::Enter}, "key4", true, "keys4"},
             {"keys4", {.code = key::Enter, .repeats = true}, "", true, "keys4"},
             {"box", {.code = key::Escape, .repeats = true}, "", true, "box"},
             {"box", {.code = L, .shift = AltDown}, "close", true, "close"},
             {"box", {.code = 'O', .shift = AltDown}, "ok", true, "ok"},
             {"box", {.code = 'D', .shift = AltDown}, "down68", false, "box"},
             {"box", {.code = 'K', .shift = AltDown}, "down75", false, "box"}, // not on the form
             {"box", {.code = '3', .shift = AltDown}, "down51", false, "box"}, // no letter
             {"box", {.code = L, .shift = AltDown | CtrlDown}, "down76", false, "box"},
             {"box", {.code = F5}, "draw", true, "box"},
             {"box", {.code = F5, .repeats = true}, "", true, "box"},
             {"box", {.code = F5, .shift = CtrlDown}, "down116", false, "box"},
             {"keys4", {.code = key::Down}, "", true, "keys7"},
             {"keys7", {.code = key::Down}, "", true, "keys7"},
             {"keys4", {.code = key::Up}, "", true, "keys1"},
             {"keys4", {.code = key::Left}, "", true, "keys3"},
             {"keys3", {.code = key::Left}, "", true, "keys3"},
             {"keys4", {.code = key::Right}, "", true, "keys5"},
             {"close", {.code = key::Right}, "", true, "ok"},
             {"opt1", {.code = key::Down}, "opt2", true, "opt2"},
             {"opt2", {.code = key::Down}, "", true, "opt2"},
             {"opt2", {.code = key::Up}, "opt1", true, "opt1"},
             {"picture", {.code = key::Space}, "double", true, "picture"},
             {"picture", {.code = key::Space, .repeats = true}, "", true, "picture"},
             {"picture", {.code = key::Down}, "", false, "picture"},
             {"grid", {.code = key::Down}, "", true, "grid"},
             {"grid", {.code = key::Enter}, "row2", true, "grid"},
             {"grid", {.code = key::Space, .repeats = true}, "", true, "grid"},
             {"grid", {.code = key::Left}, "", false, "grid"}}) {
        control(it.focus).SetFocus();
        EXPECT_EQ(pressKey(form, it.stroke), it.used) << it.focus << " " << it.stroke.code;
        EXPECT_EQ(form.take(), it.told) << it.focus << " " << it.stroke.code;
        EXPECT_EQ(form.focused(), it.after) << it.focus << " " << it.stroke.code;
    }
    EXPECT_TRUE(comesBeforeMenus(form, {.code = L, .shift = AltDown}));
    EXPECT_FALSE(comesBeforeMenus(form, {.code = 'M', .shift = AltDown}));
    form.minimized = true;
    EXPECT_FALSE(pressKey(form, {.code = key::Escape})); // would close what can't be seen
    EXPECT_TRUE(pressKey(form, {.code = F5}));           // its menu stands in the bar
    EXPECT_EQ(form.take(), "draw");
    form.draw.Enabled = false;
    EXPECT_FALSE(comesBeforeMenus(form, {.code = F5}));
}

TEST_F(KeyboardTest, TheKeysOfAGridMoveItsRowByOneOrByWhatIsInView) {
    Page& form = page();
    form.grid.SetFocus();
    EXPECT_THROW(form.grid.Row = 21, platform::RuntimeError);
    form.grid.Row = 0; // six rows high, and one of them is the header
    const std::pair<int, int> moves[]{{key::Up, 1},   {key::Down, 2},      {key::PageDown, 6},
                                      {key::End, 20}, {key::PageDown, 20}, {key::PageUp, 16},
                                      {key::Home, 1}, {key::Down, 2},      {key::PageUp, 1}};
    for (const auto& [code, row] : moves) {
        EXPECT_TRUE(userKey(form, code));
        EXPECT_EQ(form.grid.Row, row) << code;
    }
    EXPECT_EQ(form.take(), "");
}

TEST_F(KeyboardTest, ComposedTextIsTypedCharacterByCharacter) {
    Page& form = page();
    EXPECT_EQ(typeText(form.box, "axy\u00e9\U0001F600"), "az\u00e9\U0001F600");
    EXPECT_EQ(form.take(), "press97 press120 press121 press233 press128512");
}

TEST_F(KeyboardTest, AnOptionThatIsSelectedTakesTheFocusFromItsGroupAlone) {
    Page& form = page();
    form.opt(0).Value = true;
    EXPECT_EQ(form.focused(), "opt0");
    form.box.SetFocus();
    form.opt(2).Value = true;
    EXPECT_EQ(form.focused(), "box");
    EXPECT_EQ(form.take(), "opt0 opt2");
    form.opt(2).Value = false;
    EXPECT_EQ(form.take(), "");
}

TEST_F(ToolkitTest, AClickOnARowBeginsAndEndsThere) {
    MSFlexGrid& grid = page().grid;
    for (const auto& [pressed, released, told] :
         {std::tuple(3, 3, "row3"), {4, 5, ""}, {-1, 4, ""}, {0, 0, "row4"}, {0, 1, ""}}) {
        grid.press(pressed);
        grid.release(released);
        EXPECT_EQ(page().take(), told);
    }
    EXPECT_EQ(grid.row(), 4);
    grid.press(4);
    grid.doubleClickRow(4);
    grid.release(4);
    EXPECT_EQ(page().take(), "");
}

} // namespace
