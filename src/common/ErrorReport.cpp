#include "common/ErrorReport.h"

#include "common/Trap.h"
#include "frame/modConstants.h"
#include "platform/Platform.h"
#include "toolkit/Form.h"

#include <cstdio>

namespace quorvanta {

namespace {

std::string quoted(const std::string& line) {
    return '"' + line + '"';
}

// The form that reads the same in every locale.
std::string universal(const platform::DateTime& when) {
    char text[40];
    std::snprintf(text, sizeof text, "#%04d-%02d-%02d %02d:%02d:%02d#", when.year, when.month,
                  when.day, when.hour, when.minute, when.second);
    return text;
}

} // namespace

void WriteDebugLog(int number, const std::string& text, const std::string& description,
                   const platform::DateTime& when) {
    failuresOff([&](auto step) {
        auto& files = platform::current().files;
        const std::string path = files.join(toolkit::App.Path, "DebugLog.TXT");
        std::unique_ptr<platform::OutputFile> log;
        const auto write = [&](const std::string& line) {
            if (log)
                step([&] { log->writeLine(platform::current().locale.toBytes(line)); });
        };

        if (!mblnLogStarted)
            step([&] { files.remove(path); });
        step([&] { log = files.openForAppend(path); });
        write(quoted(text));
        if (!mblnLogStarted)
            write(quoted("Version " + std::to_string(toolkit::App.Major) + "." +
                         std::to_string(toolkit::App.Minor) + "." +
                         std::to_string(toolkit::App.Revision)));
        if (number > 0)
            write(quoted("Number: " + std::to_string(number)));
        if (!description.empty())
            write(quoted("Description: " + description));
        if (when != platform::DateTime{})
            write(universal(when));
        write("");
        if (log)
            step([&] { log->close(); });
        mblnLogStarted = true;
    });
}

Answer ShowErrorBox(int number, const std::string& description, const std::string& label) {
    int button = 0;
    failuresOff([&](auto step) {
        step([&] { WriteDebugLog(number, label, description, platform::current().clock.now()); });
        const std::string prompt = "An error has occured: " + std::to_string(number) + "\r\n" +
                                   description + "\r\n" + label;
        step([&] {
            button = toolkit::MsgBox({.text = prompt,
                                      .title = kProductTitle,
                                      .buttons = toolkit::MessageBox::Buttons::AbortRetryIgnore,
                                      .icon = toolkit::MessageBox::Icon::Critical});
        });
    });
    return static_cast<Answer>(button);
}

void ReportUntrapped(const platform::RuntimeError& error, const std::string& where) {
    WriteDebugLog(error.number, where, error.description, platform::current().clock.now());
    toolkit::MsgBox({.text = "An error has occured: " + std::to_string(error.number) + "\r\n" +
                             error.description + "\r\n" + where,
                     .title = kProductTitle,
                     .buttons = toolkit::MessageBox::Buttons::OK,
                     .icon = toolkit::MessageBox::Icon::Critical});
}

} // namespace quorvanta
