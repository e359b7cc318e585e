// ICU's code pages.
#pragma once

#include "platform/CodePage.h"

namespace platform {

// The code page that files of a locale are written in, by its number: 1250 to 1258, 874, 932, 936,
// 949 or 950. `locale` is ICU's name.
int ansiCodePage(const std::string& locale);

std::unique_ptr<CodePageTable> icuCodePage(int number);

} // namespace platform
