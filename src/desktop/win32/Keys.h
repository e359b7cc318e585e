// A key of Windows as the toolkit takes it.
#pragma once

#include "desktop/win32/System.h"
#include "toolkit/Keyboard.h"

#include <vector>

namespace desktop_win32 {

// `typed` are the messages of the characters that the key types.
toolkit::KeyStroke keyStroke(const MSG& key, const std::vector<MSG>& typed);

} // namespace desktop_win32
