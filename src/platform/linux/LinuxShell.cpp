#include "platform/linux/LinuxShell.h"

#include "platform/Addresses.h"
#include "platform/RuntimeError.h"
#include "platform/linux/Calculators.h"
#include "platform/linux/Opener.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <string_view>

namespace platform {

namespace {

enum : int { kNotFound = 2, kNoDirectory = 3, kDenied = 5, kNoProgram = 31, kStarted = 42 };

// Whether the program came to run. It has a session of its own and no terminal, and its end is
// nobody's concern: the process between the two is gone at once.
bool startDetached(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
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

std::vector<std::string> LinuxShell::calculators(const std::string& directory) const {
    return calculatorPaths(directory);
}

void LinuxShell::start(const std::string& path) {
    const QStringList command = commandOf(path);
    if (command.isEmpty() || !QFileInfo::exists(QString::fromStdString(path)))
        throw RuntimeError(FileNotFound);
    if (!startDetached(command.first(), command.mid(1)))
        throw RuntimeError(PermissionDenied);
}

} // namespace platform
