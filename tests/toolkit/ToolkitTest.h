// A form with a control of each kind that takes the keyboard, on a desktop without windows, and a
// record of the events that it raises.
#pragma once

#include "tests/support/FakeDesktop.h"

#include <gtest/gtest.h>

namespace tests {

struct Page : toolkit::FormOf<Page> {
    std::string told; // the events since the last look
    int dropCode = 0; // the key that Form_KeyDown drops

    toolkit::Frame group{*this, "group", "", {0, 0, 3000, 900}};
    toolkit::ControlArray<toolkit::OptionButton> opt{*this, "opt"};
    toolkit::Frame pad{*this, "pad", "Keys", {0, 1000, 3000, 3000}};
    toolkit::ControlArray<toolkit::CommandButton> keys{*this, "keys"};
    toolkit::TextBox box{*this, "box", "", {0, 4000, 900, 300}};
    toolkit::MSFlexGrid grid{*this, "grid", {0, 4500, 900, 1440}};
    toolkit::PictureBox picture{*this, "picture", "", {0, 6000, 300, 300}};
    toolkit::CommandButton close{*this, "close", "C&lose", {0, 6500, 900, 300}};
    toolkit::CommandButton ok{*this, "ok", "R&&D &OK", {1000, 6500, 900, 300}};
    toolkit::CommandButton aside{*this, "aside", "&Kept", {9000, 0, 900, 300}};
    toolkit::Label label{*this, "label", "&Label", {0, 7000, 900, 300}};
    toolkit::Timer timer{*this, "timer"};
    toolkit::Menu menu{*this, "menu", "&Menu"};
    toolkit::Menu draw{menu, "draw", "Draw"};

    explicit Page(Kind theKind = Kind::TopLevel) : FormOf(theKind, "Page", 6000, 9000) {
        KeyPreview = true;
        for (int i = 0; i < 3; ++i)
            opt.load(i, group, std::to_string(i), toolkit::Place{0, 300.0 * i, 900, 300});
        for (int i = 0; i < 9; ++i)
            keys.load(i, pad, std::to_string(i),
                      toolkit::Place{600.0 * (i % 3), 400.0 * (i / 3), 510, 315});
        keys.Click = [this](int Index) { tell("key" + std::to_string(Index)); };
        opt.Click = [this](int Index) { tell("opt" + std::to_string(Index)); };
        opt(1).select(true);
        for (toolkit::Control* it :
             std::initializer_list<toolkit::Control*>{&box, &grid, &picture, &close, &ok, &aside})
            it->TabIndex += 100; // behind the arrays
        close.Cancel = true;
        ok.Default = true;
        draw.Shortcut = "F5";
        for (toolkit::Control* it : std::initializer_list<toolkit::Control*>{
                 &close, &ok, &aside, &draw, &grid, &box, &picture})
            it->Click = [this, it] { tell(it->name()); };
        grid.Rows = 21;
        grid.Click = [this] { tell("row" + std::to_string(grid.row())); };
        picture.DblClick = [this] { tell("double"); };
        box.KeyDown = [this](int& code, int) {
            tell("down" + std::to_string(code));
            code = code == 'W' ? 0 : code;
        };
        box.KeyPress = [this](int& character) {
            tell("press" + std::to_string(character));
            character = character == 'x' ? 0 : character == 'y' ? 'z' : character;
        };
        told.clear();
    }

    void tell(const std::string& what) { told += (told.empty() ? "" : " ") + what; }
    std::string take() { return std::exchange(told, {}); }
    std::string focused() const {
        const toolkit::Control* const it = ActiveControl;
        return !it ? "" : it->name() + (it->array() ? std::to_string(it->index()) : "");
    }

    void Form_KeyDown(int& code, int) override {
        if (code == dropCode)
            code = 0;
    }
};

struct ToolkitTest : ::testing::Test {
    FakeDesktop desk;
    ToolkitTest() { toolkit::install(&desk); }
    ~ToolkitTest() override {
        unloadAll();
        toolkit::install(nullptr);
    }
    static void unloadAll() {
        while (toolkit::Forms.Count() > 0)
            toolkit::Forms(0).Unload();
    }
    static Page& page() {
        Page::the().Show();
        return Page::the();
    }
};

} // namespace tests
