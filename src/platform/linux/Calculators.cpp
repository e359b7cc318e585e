#include "platform/linux/Calculators.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QProcess>
#include <QSet>
#include <QStandardPaths>

namespace platform {

namespace {

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

const QString kEntryEnding = QStringLiteral(".desktop");

QStringList programNames() {
    const QStringList ours = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':');
    QStringList names;
    for (const bool own : {true, false})
        for (const Calculator& it : kCalculators)
            if (*it.desktop && ours.contains(QLatin1String(it.desktop)) ? own : !own)
                names << QLatin1String(it.program);
    names.removeDuplicates();
    return names;
}

// The keys of the entry itself, without those of its actions.
QMap<QString, QString> keysOf(const QString& path) {
    QMap<QString, QString> keys;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return keys;
    bool ofEntry = false;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        if (line.startsWith(u'['))
            ofEntry = line.trimmed() == QLatin1String("[Desktop Entry]");
        else if (ofEntry && line.contains(u'='))
            keys.insert(line.section(u'=', 0, 0).trimmed(), line.section(u'=', 1).trimmed());
    }
    return keys;
}

bool isTrue(const QString& value) {
    return value == QLatin1String("true");
}

bool isThere(const QString& program) {
    return !QStandardPaths::findExecutable(program).isEmpty();
}

bool isCalculator(const QMap<QString, QString>& entry) {
    return entry[QStringLiteral("Categories")].split(u';').contains(QLatin1String("Calculator")) &&
           !isTrue(entry[QStringLiteral("Hidden")]) &&
           !isTrue(entry[QStringLiteral("NoDisplay")]) &&
           !isTrue(entry[QStringLiteral("Terminal")]);
}

// In the order of the data directories: an entry of the user's own stands for one of the same name
// in the system's, also where it hides it.
QStringList menuEntries() {
    QStringList entries;
    QSet<QString> known;
    for (const QString& directory :
         QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation)) {
        QDirIterator it(directory, {u'*' + kEntryEnding}, QDir::Files,
                        QDirIterator::Subdirectories | QDirIterator::FollowSymlinks);
        while (it.hasNext()) {
            const QString path = it.next(), name = path.mid(directory.size());
            if (known.contains(name))
                continue;
            known.insert(name);
            if (isCalculator(keysOf(path)) && !commandOf(path.toStdString()).isEmpty())
                entries << path;
        }
    }
    return entries;
}

} // namespace

std::vector<std::string> calculatorPaths(const std::string& directory) {
    std::vector<std::string> paths;
    const bool ofUser = directory == "/usr/bin";
    for (const QString& name : programNames()) {
        paths.push_back(directory + "/" + name.toStdString());
        if (ofUser)
            paths.push_back("/usr/local/bin/" + name.toStdString());
    }
    if (ofUser)
        for (const QString& entry : menuEntries())
            paths.push_back(entry.toStdString());
    return paths;
}

QStringList commandOf(const std::string& path) {
    const QString file = QString::fromStdString(path);
    if (!file.endsWith(kEntryEnding))
        return {file};
    const QMap<QString, QString> entry = keysOf(file);
    const QString needed = entry[QStringLiteral("TryExec")];
    QStringList command = QProcess::splitCommand(entry[QStringLiteral("Exec")]);
    // "%U" and its like stand for files to open, of which there are none.
    command.removeIf([](const QString& it) { return it.size() == 2 && it[0] == u'%'; });
    if (command.isEmpty() || !isThere(command.first()) || (!needed.isEmpty() && !isThere(needed)))
        return {};
    return command;
}

} // namespace platform
