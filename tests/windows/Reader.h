// What the two halves of the reader share: one asks from outside, the other answers inside the
// program.
#pragma once

#include <windows.h>

namespace reader {

// Sent to a window of the program: its description goes into the answer below.
inline UINT question() {
    return RegisterWindowMessageW(L"Quorvanta.Reader");
}

struct Answer {
    unsigned length;
    char json[1 << 20]; // UTF-8
};
constexpr wchar_t kAnswer[] = L"Quorvanta.Reader.Answer";

} // namespace reader
