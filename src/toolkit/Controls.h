// The plain controls.
#pragma once

#include "toolkit/CommandButton.h"
#include "toolkit/ControlArray.h"
#include "toolkit/Frame.h"
#include "toolkit/Label.h"
#include "toolkit/Line.h"
#include "toolkit/Menu.h"
#include "toolkit/OptionButton.h"
#include "toolkit/PictureControl.h"
#include "toolkit/StatusBar.h"
#include "toolkit/TextBox.h"
#include "toolkit/Timer.h"
#include "toolkit/Toolbar.h"
