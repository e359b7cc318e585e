// The plain controls, and the grid.
#pragma once

#include "toolkit/CommandButton.h"
#include "toolkit/ControlArray.h"
#include "toolkit/Frame.h"
#include "toolkit/Label.h"
#include "toolkit/Line.h"
#include "toolkit/MSFlexGrid.h"
#include "toolkit/Menu.h"
#include "toolkit/OptionButton.h"
#include "toolkit/PictureControl.h"
#include "toolkit/StatusBar.h"
#include "toolkit/TextBox.h"
#include "toolkit/Timer.h"
#include "toolkit/Toolbar.h"

namespace toolkit {

template <class... Kinds, class Call>
void asOneOf(Control& control, const Call& call) {
    const auto isKind = [&]<class Kind>(Kind* it) {
        if (it)
            call(*it);
        return it != nullptr;
    };
    static_cast<void>((isKind(dynamic_cast<Kinds*>(&control)) || ...));
}

// Calls with the control as the kind that it is, so that a desktop may have a routine for each.
template <class Call>
void asItsKind(Control& control, const Call& call) {
    asOneOf<Label, CommandButton, OptionButton, Frame, Image, PictureBox, Line, TextBox, StatusBar,
            Toolbar, MSFlexGrid, Timer>(control, call);
}

} // namespace toolkit
