// A run of the program without a platform and without windows: each test begins one and ends it.
#pragma once

#include "frame/MainCode_ZW.h"
#include "tests/support/DataFile.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/Forms.h"

#include <gtest/gtest.h>

namespace tests {

class ProgramTest : public ::testing::Test {
protected:
    FakePlatform os;
    FakeDesktop desk;
    // Failures that no routine has met, by number. A test that expects none leaves it alone.
    std::vector<int> untrapped;

    ProgramTest() {
        forgetStored();
        quorvanta::gstrWinDirectory = quorvanta::gstrWinSysDirectory = "";
        quorvanta::gstrShortDateFormat = "";
        quorvanta::gintLanguage = 1;
        toolkit::App = {};
        toolkit::App.Path = "/app";
        toolkit::Printer = {};
        toolkit::install(&desk);
        toolkit::Form::untrapped = [this](const toolkit::Form&, const platform::RuntimeError& e) {
            untrapped.push_back(e.number);
        };
    }
    ~ProgramTest() override {
        dropForms();
        toolkit::Form::untrapped = nullptr;
        toolkit::Printer = {};
        toolkit::install(nullptr);
        EXPECT_TRUE(untrapped.empty());
    }
};

// Shows the page.
template <class Page>
Page& open() {
    Page::the().Show();
    return Page::the();
}

} // namespace tests
