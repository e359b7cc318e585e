#include "common/modZWMsg.h"

#include "common/Trap.h"
#include "frame/Shared.h"
#include "toolkit/Desktop.h"

#include <string>

namespace quorvanta {

using toolkit::MessageBox;

int msgExit() {
    int answer = 0;
    failuresOff([&](auto step) {
        step([&] {
            answer = toolkit::MsgBox({.text = std::string("Exiting ") + kProductTitle,
                                      .title = kProductTitle,
                                      .buttons = MessageBox::Buttons::YesNo,
                                      .icon = MessageBox::Icon::Question});
        });
    });
    return answer;
}

} // namespace quorvanta
