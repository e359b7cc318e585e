#include "numbers/cLotto.h"

#include "common/NumberText.h"
#include "common/Trap.h"
#include "frame/modConstants.h"
#include "platform/Platform.h"

#include <array>
#include <cmath>
#include <span>
#include <string>

namespace quorvanta {

using platform::RuntimeError;

namespace {

// A number from 1 to 49. Even the largest single-precision value below 1 gives 49.
int drawOne() {
    const double r = platform::current().random.next();
    return static_cast<int>(std::floor(kNumbers * r + 1));
}

bool among(std::span<const int> slots, int number) {
    for (const int drawn : slots)
        if (drawn == number)
            return true;
    return false;
}

// Whether the board has a number that a draw can still take. Without one, drawing on would never
// end.
bool anyLeft(const toolkit::ControlArrayBase& board, std::span<const int> slots) {
    for (int n = 1; n <= kNumbers; ++n)
        if (board.has(n) && board(n).Enabled && !among(slots, n))
            return true;
    return false;
}

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    return first == std::string::npos ? ""
                                      : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

} // namespace

void cLotto::run(const int& action) {
    switch (action) {
    case Draw:
        return Lotto49();
    case ToggleKey:
        return SetCmdButtons();
    case PickAll:
        return SetAllButtons();
    case PickNone:
        return SetAllButtonsNoBold();
    case ShowRow:
        return SetCustomNumbers();
    case DrawFromEnabled:
        return PlayCustomNumbers();
    default:
        return;
    }
}

void cLotto::Lotto49() {
    trapped("cLotto.Lotto49", [&](auto step) {
        std::array<int, kNumbers> slots{};
        const auto slot = [&](int i) -> int& {
            if (i > kNumbers)
                throw RuntimeError(platform::SubscriptOutOfRange);
            return slots[static_cast<std::size_t>(i - 1)];
        };
        for (int i = 1; i <= prpDrawNumber(); ++i)
            step([&] {
                // With all 49 drawn every further draw would hit: the missing slot is met first.
                int& free = slot(i);
                int number = drawOne();
                while (among({slots.data(), static_cast<std::size_t>(i)}, number))
                    number = drawOne();
                free = number;
            });
        for (int i = 1; i <= prpDrawNumber(); ++i)
            step([&] { prpControl()(slot(i)).ForeColor = toolkit::kRed; });
    });
}

void cLotto::PlayCustomNumbers() {
    trapped("cLotto.PlayCustomNumbers", [&](auto step) {
        std::array<int, kDrawn> slots{};
        std::size_t drawn = 0;
        while (drawn < kDrawn) {
            bool left = false;
            step([&] { left = anyLeft(prpControl(), slots); });
            if (!left)
                break;
            int number = 0; // counts as drawn, as long as a slot is free
            step([&] { number = drawOne(); });
            step([&] { toolkit::DoEvents(); });
            if (among(slots, number))
                continue;
            bool enabled = true;
            step([&] { enabled = prpControl()(number).Enabled; });
            if (enabled)
                slots[drawn++] = number;
        }
        for (std::size_t i = 0; i < drawn; ++i)
            step([&] { prpControl()(slots[i]).ForeColor = toolkit::kRed; });
    });
}

void cLotto::SetCmdButtons() {
    trapped("cLotto.SetCmdButtons", [&](auto step) {
        step([&] {
            auto& key = prpControl()(mintFrmButtons);
            key.FontBold = !key.FontBold;
        });
    });
}

void cLotto::SetAllButtons() {
    trapped("cLotto.SetAllButtons", [&](auto step) {
        for (int i = prpMinNumber(); i <= prpHighNumber(); ++i)
            step([&] { prpControl()(i).FontBold = true; });
    });
}

void cLotto::SetAllButtonsNoBold() {
    trapped("cLotto.SetAllButtonsNoBold", [&](auto step) {
        for (int i = prpMinNumber(); i <= prpHighNumber(); ++i)
            step([&] { prpControl()(i).FontBold = false; });
    });
}

void cLotto::SetCustomNumbers() {
    trapped("cLotto.SetCustomNumbers", [&](auto step) {
        // Enabled while it is blackened: that clears a red mark on a disabled control too.
        for (int i = prpMinNumber(); i <= prpHighNumber(); ++i) {
            step([&] { prpControl()(i).Enabled = true; });
            step([&] { prpControl()(i).ForeColor = toolkit::kBlack; });
            step([&] { prpControl()(i).Enabled = false; });
        }
        if (prpRowNumber() == 0) {
            for (int i = prpMinNumber(); i <= prpHighNumber(); ++i)
                step([&] { prpControl()(i).Enabled = true; });
            return;
        }
        for (int i = prpMinNumber(); i <= prpHighNumber(); ++i) {
            std::string cell;
            step([&] { cell = trimmed(prpGrid().TextMatrix(prpRowNumber(), i)); });
            if (cell.empty())
                break; // the first empty cell ends the row
            step([&] { prpControl()(CInt(cell)).Enabled = true; });
        }
    });
}

} // namespace quorvanta
