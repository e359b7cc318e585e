// Describes the windows of a program, as JSON, a line for each line that it reads:
//   windows PROGRAM     the numbers of the visible windows of a program file
//   describe NUMBER     one window; null if it has gone
//   end NUMBER          tells the windows of the window's thread that the session ends
//   press NUMBER        presses a button as readers do, without the mouse
//   heard SINCE         the texts that readers were given to say, but for so many first ones
#include "Reader.h"

#include <oleauto.h>

#include <filesystem>
#include <iostream>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace {

using Hook = LRESULT(CALLBACK*)(int, WPARAM, LPARAM);

constexpr UINT kPatience = 5000; // milliseconds

struct Search {
    std::wstring program, found;
};

BOOL CALLBACK ifOfProgram(HWND window, LPARAM to) {
    auto& search = *reinterpret_cast<Search*>(to);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    wchar_t file[MAX_PATH] = L"";
    DWORD length = MAX_PATH;
    HANDLE const handle = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, process);
    QueryFullProcessImageNameW(handle, 0, file, &length);
    CloseHandle(handle);
    if (IsWindowVisible(window) && lstrcmpiW(file, search.program.c_str()) == 0)
        search.found += (search.found.empty() ? L"" : L",") +
                        std::to_wstring(reinterpret_cast<LONG_PTR>(window));
    return TRUE;
}

std::string windows(const std::string& program) {
    Search search{std::filesystem::path(std::u8string(program.begin(), program.end())), {}};
    EnumWindows(ifOfProgram, reinterpret_cast<LPARAM>(&search));
    return "[" + std::string(search.found.begin(), search.found.end()) + "]";
}

std::string describe(HWND window, HMODULE inside, const reader::Answer& answer) {
    const auto entry =
        reinterpret_cast<HOOKPROC>(reinterpret_cast<void*>(GetProcAddress(inside, "hook")));
    const DWORD thread = GetWindowThreadProcessId(window, nullptr);
    HHOOK const hook = SetWindowsHookExW(WH_CALLWNDPROC, entry, inside, thread);
    DWORD_PTR result = 0;
    const_cast<volatile unsigned&>(answer.length) = 0;
    SendMessageTimeoutW(window, reader::question(), 0, 0, SMTO_NORMAL, kPatience, &result);
    UnhookWindowsHookEx(hook);
    return answer.length == 0 ? "null" : std::string(answer.json, answer.length);
}

BOOL CALLBACK endSession(HWND window, LPARAM /*nothing*/) {
    DWORD_PTR agreed = FALSE;
    SendMessageTimeoutW(window, WM_QUERYENDSESSION, 0, 0, SMTO_NORMAL, kPatience, &agreed);
    if (agreed)
        PostMessageW(window, WM_ENDSESSION, TRUE, 0);
    return TRUE;
}

std::vector<std::string> heard; // ASCII, as they stand in JSON
std::mutex hearing;

void CALLBACK hear(HWINEVENTHOOK /*hook*/, DWORD /*event*/, HWND window, LONG /*object*/,
                   LONG /*child*/, DWORD /*thread*/, DWORD /*time*/) {
    char text[256] = "";
    DWORD_PTR length = 0;
    SendMessageTimeoutA(window, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text),
                        SMTO_NORMAL, kPatience, &length);
    const std::lock_guard lock(hearing);
    heard.push_back('"' + std::string(text, length) + '"');
}

void hearAll() {
    SetWinEventHook(EVENT_OBJECT_LIVEREGIONCHANGED, EVENT_OBJECT_LIVEREGIONCHANGED, nullptr, hear,
                    0, 0, WINEVENT_OUTOFCONTEXT);
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchMessageW(&message);
}

std::string heardSince(std::size_t first) {
    const std::lock_guard lock(hearing);
    std::string all;
    for (; first < heard.size(); ++first)
        all += (all.empty() ? "" : ",") + heard[first];
    return "[" + all + "]";
}

} // namespace

int main() {
    std::thread(hearAll).detach();
    // Wine keeps the description of the interface with which accessible objects are asked, but
    // doesn't enter it.
    ITypeLib* library = nullptr;
    if (SUCCEEDED(LoadTypeLibEx(L"oleacc.dll", REGKIND_REGISTER, &library)))
        library->Release();
    HANDLE const memory = CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                             sizeof(reader::Answer), reader::kAnswer);
    auto* const answer =
        static_cast<reader::Answer*>(MapViewOfFile(memory, FILE_MAP_ALL_ACCESS, 0, 0, 0));
    HMODULE const inside = LoadLibraryW(L"inside.dll");
    if (!answer || !inside)
        return 1;
    for (std::string line; std::getline(std::cin, line);) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        const std::size_t blank = line.find(' ');
        const std::string what = line.substr(0, blank), of = line.substr(blank + 1);
        HWND const window = reinterpret_cast<HWND>(std::strtoll(of.c_str(), nullptr, 10));
        if (what == "windows")
            std::cout << windows(of);
        else if (what == "heard")
            std::cout << heardSince(std::stoul(of));
        else if (what == "end")
            std::cout << EnumThreadWindows(GetWindowThreadProcessId(window, nullptr), endSession,
                                           0);
        else if (what == "press")
            std::cout << PostMessageW(window, BM_CLICK, 0, 0);
        else
            std::cout << describe(window, inside, *answer);
        std::cout << std::endl;
    }
    return 0;
}
