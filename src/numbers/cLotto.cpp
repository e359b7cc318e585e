#include "numbers/cLotto.h"

#include "common/NumberText.h"
#include "common/Trap.h"
#include "platform/Platform.h"
#include "toolkit/Desktop.h"

#include <array>
#include <cmath>
#include <span>

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

toolkit::Control& cLotto::control(int index) const {
    if (!prpControl)
        throw RuntimeError(platform::InvalidCall);
    return (*prpControl)(index);
}

void cLotto::run(int action) {
    action_ = action;
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
        for (int i = 1; i <= prpDrawNumber; ++i)
            step([&] {
                // With all 49 drawn every further draw would hit: the missing slot is met first.
                int& free = slot(i);
                int number = drawOne();
                while (among({slots.data(), static_cast<std::size_t>(i)}, number))
                    number = drawOne();
                free = number;
            });
        for (int i = 1; i <= prpDrawNumber; ++i)
            step([&] { control(slot(i)).ForeColor = toolkit::kRed; });
    });
}

void cLotto::PlayCustomNumbers() {
    trapped("cLotto.PlayCustomNumbers", [&](auto step) {
        std::array<int, kDrawn> slots{};
        // The events that DoEvents runs may drop this object's page and all it refers to.
        const auto board = prpControl;
        int drawn = 0;
        while (drawn < kDrawn) {
            bool left = false;
            step([&] { left = board ? anyLeft(*board, slots) : control(0).Enabled; });
            if (!left)
                break;
            const int number = drawOne();
            step([&] { toolkit::DoEvents(); });
            if (among(slots, number))
                continue;
            bool enabled = true;
            step([&] { enabled = (*board)(number).Enabled; });
            if (enabled)
                slots[static_cast<std::size_t>(drawn++)] = number;
        }
        for (int i = 0; i < drawn; ++i)
            step([&] { (*board)(slots[static_cast<std::size_t>(i)]).ForeColor = toolkit::kRed; });
    });
}

void cLotto::SetCmdButtons() {
    trapped("cLotto.SetCmdButtons", [&](auto step) {
        step([&] {
            auto& key = control(mintFrmButtons);
            key.FontBold = !key.FontBold;
        });
    });
}

void cLotto::SetAllButtons() {
    trapped("cLotto.SetAllButtons", [&](auto step) {
        for (int i = prpMinNumber; i <= prpHighNumber; ++i)
            step([&] { control(i).FontBold = true; });
    });
}

void cLotto::SetAllButtonsNoBold() {
    trapped("cLotto.SetAllButtonsNoBold", [&](auto step) {
        for (int i = prpMinNumber; i <= prpHighNumber; ++i)
            step([&] { control(i).FontBold = false; });
    });
}

void cLotto::SetCustomNumbers() {
    trapped("cLotto.SetCustomNumbers", [&](auto step) {
        // Enabled while it is blackened: that clears a red mark on a disabled control too.
        for (int i = prpMinNumber; i <= prpHighNumber; ++i) {
            step([&] { control(i).Enabled = true; });
            step([&] { control(i).ForeColor = toolkit::kBlack; });
            step([&] { control(i).Enabled = false; });
        }
        if (prpRowNumber == 0) {
            for (int i = prpMinNumber; i <= prpHighNumber; ++i)
                step([&] { control(i).Enabled = true; });
            return;
        }
        for (int i = prpMinNumber; i <= prpHighNumber; ++i) {
            std::string cell;
            step([&] {
                if (!prpGrid)
                    throw RuntimeError(platform::InvalidCall);
                cell = trimmed(prpGrid->TextMatrix(prpRowNumber, i));
            });
            if (cell.empty())
                break; // the first empty cell ends the row
            step([&] { control(CInt(cell)).Enabled = true; });
        }
    });
}

} // namespace quorvanta
