// How a routine meets a failing step. A trapped routine reports the failure and does what the user
// answers: repeat the step, go on with the next one, or leave the routine. Its caller doesn't learn
// of the failure.
//
//     void cLotto::SetAllButtons() {
//         trapped("cLotto.SetAllButtons", [&](auto step) {
//             for (int i = prpMinNumber; i <= prpHighNumber; ++i)
//                 step([&] { (*prpControl)(i).FontBold = true; });
//         });
//     }
//
// What a failing step would have set keeps its value when the step is passed over.
#pragma once

#include "common/ErrorReport.h"
#include "platform/RuntimeError.h"

#include <new>
#include <string>

namespace quorvanta {

namespace trap {

struct LeaveRoutine {};

// Runs one step, and asks `decide` what to do as often as it fails.
template <class Decide>
class Step {
public:
    explicit Step(Decide& decide) : decide_(&decide) {}

    template <class Body>
    void operator()(Body&& body) const {
        for (;;) {
            try {
                body();
                return;
            } catch (const platform::RuntimeError& error) {
                if (!again(error))
                    return;
            } catch (const std::bad_alloc&) {
                if (!again(platform::RuntimeError(platform::OutOfMemory)))
                    return;
            }
        }
    }

private:
    // True to repeat the step, false to go on behind it. Any answer but these two leaves.
    bool again(const platform::RuntimeError& error) const {
        switch ((*decide_)(error)) {
        case Answer::Retry:
            return true;
        case Answer::Ignore:
            return false;
        default:
            throw LeaveRoutine{};
        }
    }

    Decide* decide_;
};

} // namespace trap

// Runs `body`, which takes the step function; `decide` maps a RuntimeError to an Answer.
template <class Decide, class Body>
void trappedWith(Decide decide, Body&& body) {
    try {
        body(trap::Step<Decide>(decide));
    } catch (const trap::LeaveRoutine&) {
    }
}

// The routine reports its failures under `label`.
template <class Body>
void trapped(const char* label, Body&& body) {
    trappedWith(
        [label](const platform::RuntimeError& error) {
            return ShowErrorBox(error.number, error.description, label);
        },
        body);
}

// The routine runs with failures switched off: a failing step is skipped without a word.
template <class Body>
void failuresOff(Body&& body) {
    trappedWith([](const platform::RuntimeError&) { return Answer::Ignore; }, body);
}

} // namespace quorvanta
