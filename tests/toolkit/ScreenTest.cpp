// Which form stands in front, where the focus goes, and what a peer and a screen reader are told.
#include "tests/toolkit/ToolkitTest.h"

namespace {

using namespace tests;
using namespace toolkit;

struct Sheet : Form {
    TextBox first{*this, "first", "", {0, 0, 900, 300}};
    TextBox second{*this, "second", "", {0, 400, 900, 300}};
    explicit Sheet(Kind theKind = Kind::MDIChild) : Form(theKind, "Sheet", 3000, 3000) {}
};

struct RecordingPeer : Peer {
    std::vector<Prop>& told;
    explicit RecordingPeer(std::vector<Prop>& to) : told(to) {}
    void changed(Prop which) override { told.push_back(which); }
    void cellChanged(int /*row*/, int /*column*/) override { told.push_back(Prop::Text); }
};

struct ScreenTest : ToolkitTest {
    std::string told; // of the focus, as "+0.first"
    std::vector<std::shared_ptr<Sheet>> sheets;

    Sheet& sheet(Form::Kind kind = Form::Kind::MDIChild) {
        sheets.push_back(std::make_shared<Sheet>(kind));
        const auto n = std::to_string(sheets.size() - 1);
        for (TextBox* box : {&sheets.back()->first, &sheets.back()->second}) {
            box->GotFocus = [=, this] { told += "+" + n + box->name()[0]; };
            box->LostFocus = [=, this] { told += "-" + n + box->name()[0]; };
        }
        sheets.back()->Show();
        return *sheets.back();
    }
    std::string take() { return std::exchange(told, {}); }
    ~ScreenTest() override { unloadAll(); }
};

TEST_F(ScreenTest, ThePageBelowComesForwardWhenAPageGoes) {
    Sheet& frame = sheet(Form::Kind::MDIFrame);
    for (int i = 0; i < 4; ++i)
        sheet();
    sheets[3]->hWnd = 7;
    EXPECT_EQ(Forms.withWindow(7), sheets[3].get());
    EXPECT_EQ(Forms.withWindow(8), nullptr);
    EXPECT_EQ(Forms.frame(), &frame);
    sheets[2]->Show();            // from the back: 1 3 4 2
    sheets[4]->second.SetFocus(); // 1 3 2 4
    take();
    std::string front;
    for (const int gone : {3, 4, 2, 1}) {
        sheets[static_cast<std::size_t>(gone)]->Unload();
        for (std::size_t i = 0; i < sheets.size(); ++i)
            front += Screen.ActiveForm() == sheets[i].get() ? std::to_string(i) : "";
    }
    EXPECT_EQ(front, "4210");
    EXPECT_EQ(take(), "+2f+1f"); // a page that has gone loses nothing
    EXPECT_EQ(Screen.ActiveForm(), &frame);
    EXPECT_EQ(desk.loopsEnded, 0);
    const Sheet& page = sheet();
    frame.Unload();
    EXPECT_FALSE(page.loaded());
    sheet();
    desk.runWaiting();
    EXPECT_EQ(desk.loopsEnded, 0); // another form was shown meanwhile
    sheets.back()->Unload();
    desk.runWaiting();
    EXPECT_EQ(desk.loopsEnded, 1);
}

TEST_F(ScreenTest, APageThatTakesTheFocusBackStaysInFront) {
    Sheet& first = sheet();
    take();
    first.first.LostFocus = [&] { first.first.SetFocus(); };
    sheet();
    EXPECT_EQ(Screen.ActiveForm(), &first);
    EXPECT_EQ(first.ActiveControl, &first.first);
    EXPECT_EQ(take(), "+0f"); // the other was told nothing
    Screen.focusMovedBySystem(sheets[1]->first);
    Screen.activated(*sheets[1]); // as the system goes on
    EXPECT_EQ(take(), "+0f");
    desk.runWaiting();
    EXPECT_EQ(Screen.ActiveForm(), &first);
    first.first.LostFocus = [&] { first.Unload(); };
    sheets[1]->Show();
    EXPECT_EQ(Screen.ActiveForm(), sheets[1].get());
    EXPECT_EQ(take(), "+1f");
}

TEST_F(ScreenTest, AFormThatAnEventUnloadsIsToldNoMore) {
    Sheet& form = sheet();
    form.first.LostFocus = [&] { form.Unload(); };
    take();
    form.second.SetFocus();
    EXPECT_EQ(take(), "");
    EXPECT_FALSE(form.loaded());
    Screen.activated(form); // as a window tells that goes late
    EXPECT_EQ(Screen.ActiveForm(), nullptr);
}

TEST_F(ScreenTest, APeerHearsOfEachChangeOnce) {
    Page& form = page();
    std::vector<Prop> heard;
    for (Control* it : std::initializer_list<Control*>{&form.label, &form.box, &form.grid})
        it->attach(std::make_unique<RecordingPeer>(heard));
    for (int times = 1; times <= 2; ++times) {
        form.label.ForeColor = kRed;
        form.box.SelLength = 1;
        form.box.Text = "x";
        form.grid.Row = 7;
        form.grid.setColWidth(1, 7);
        form.grid.setRowHeight(1, 7);
        form.grid.TextMatrix(1, 1) = "x";
    }
    EXPECT_EQ(heard, (std::vector{Prop::ForeColor, Prop::Selection, Prop::Text, Prop::Row,
                                  Prop::ColWidth, Prop::RowHeight, Prop::Text}));
}

TEST_F(ScreenTest, WhatAScreenReaderSays) {
    Page& form = page();
    EXPECT_EQ(form.ok.spoken(), "R&D OK");
    EXPECT_EQ(form.grid.spoken(), "");
    form.grid.spokenAs = "Rows";
    EXPECT_EQ(form.grid.spoken(), "Rows");
    form.picture.ToolTipText = "Site";
    EXPECT_EQ(form.picture.spoken(), "Site");
    form.label.speaks = [](const Control& it) {
        return std::string(it.ForeColor == kRed ? "red" : "not");
    };
    form.label.ForeColor = kRed;
    EXPECT_EQ(form.label.spoken(), "red");
    form.label.isShadow = true;
    EXPECT_EQ(form.label.spoken(), "");
    form.label.announce("Drawn");
    const auto keep = form.shared_from_this();
    form.Unload();
    form.label.announce("late");
    EXPECT_EQ(desk.announced, Texts{"Drawn"});
}

TEST_F(ScreenTest, OnlyADataRowTakesADoubleClickAndBecomesCurrent) {
    Page& form = page();
    form.grid.DblClick = [&] { form.tell("double"); };
    for (const auto& [row, says] : {std::pair(3, "row3 double"), {0, "row3"}, {21, ""}, {-1, ""}}) {
        userDoubleClickRow(form.grid, row);
        EXPECT_EQ(form.take(), says) << row;
    }
    form.picture.Enabled = false;
    form.picture.doubleClick();
    EXPECT_EQ(form.take(), "");
}

TEST_F(ScreenTest, NoTimerFiresWhileOneOfTheWindowsComesUp) {
    Page& form = page();
    form.timer.Tick = [&] { form.tell("tick"); };
    {
        const TimersHeld outer;
        { const TimersHeld inner; }
        form.timer.fire();
    }
    EXPECT_EQ(form.take(), "");
    form.timer.fire();
    EXPECT_EQ(form.take(), "tick");
}

TEST_F(ScreenTest, AMessageBoxHasItsButtonsInOrderAndAnAnswerToEscWhereOneIsHarmless) {
    using Buttons = MessageBox::Buttons;
    const std::tuple<Buttons, const char*, int> boxes[]{
        {Buttons::OK, "OK", OK},
        {Buttons::YesNo, "&Yes&No", No},
        {Buttons::YesNoCancel, "&Yes&NoCancel", Cancel},
        {Buttons::AbortRetryIgnore, "&Abort&Retry&Ignore", 0}};
    for (const auto& [buttons, labels, escape] : boxes) {
        MessageBox box;
        box.buttons = buttons;
        std::string shown;
        for (const Button answer : box.answers())
            shown += labelOf(answer);
        EXPECT_EQ(shown, labels);
        EXPECT_EQ(box.escapeAnswer(), escape);
    }
}

} // namespace
