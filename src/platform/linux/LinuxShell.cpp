#include "platform/linux/LinuxShell.h"

#include "platform/Addresses.h"
#include "platform/RuntimeError.h"
#include "platform/linux/Opener.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace platform {

namespace {

enum : int { kNotFound = 2, kNoDirectory = 3, kDenied = 5, kNoProgram = 31, kStarted = 42 };

struct Calculator {
    const char* program;
    const char* desktop; // as XDG_CURRENT_DESKTOP names it
};
constexpr Calculator kCalculators[] = {
    {"gnome-calculator", "GNOME"}, {"kcalc", "KDE"},
    {"mate-calc", "MATE"},         {"galculator", "LXDE"},
    {"qalculate-qt", "LXQt"},      {"qalculate-gtk", "XFCE"},
    {"gnome-calculator", "Unity"}, {"gnome-calculator", "X-Cinnamon"},
    {"speedcrunch", ""},           {"xcalc", ""},
};

// Whether the program came to run. It has a session of its own and no terminal, and its end is
// nobody's concern: the process between the two is gone at once.
bool startDetached(const QString& program) {
    QProcess process;
    process.setProgram(program);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

} // namespace

int LinuxShell::ShellExecuteA(std::uintptr_t /*window*/, const char* operation, const char* file,
                              const char* /*parameters*/, const char* directory, int /*show*/) {
    if (!file || !*file)
        return kNotFound;
    const std::string address = addressToOpen(file);
    if ((operation && std::string_view(operation) != "open") || address.empty())
        return kNoProgram;
    const QString where = directory ? QString::fromUtf8(directory) : QString();
    if (!where.isEmpty() && !QDir(where).exists())
        return kNoDirectory;
    const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (opener.isEmpty())
        return kNoProgram;
    switch (open(opener.toStdString(), address, where.toStdString())) {
    case 0:
        return kStarted;
    case 126:
        return kDenied;
    case 127:
        return kNotFound;
    default:
        return kNoProgram;
    }
}

std::vector<std::string> LinuxShell::calculators() const {
    const char* const desktops = std::getenv("XDG_CURRENT_DESKTOP");
    const QStringList ours =
        QString::fromUtf8(desktops ? desktops : "").split(QLatin1Char(':'), Qt::SkipEmptyParts);
    std::vector<std::string> names;
    for (const bool own : {true, false})
        for (const Calculator& it : kCalculators)
            if (ours.contains(QLatin1String(it.desktop)) == own &&
                std::find(names.begin(), names.end(), it.program) == names.end())
                names.emplace_back(it.program);
    return names;
}

void LinuxShell::start(const std::string& path) {
    const QString program = QString::fromStdString(path);
    if (startDetached(program))
        return;
    throw RuntimeError(QFileInfo::exists(program) ? PermissionDenied : FileNotFound);
}

} // namespace platform
