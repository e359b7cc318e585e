#include "platform/linux/LinuxSettings.h"

#include "platform/RuntimeError.h"

#include <QFileInfo>
#include <QSettings>

namespace platform {

namespace {

QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

// The section's trailing blank would be lost in a group's name.
QString keyPath(const std::string& section, const std::string& key) {
    return text(section).trimmed() + QLatin1Char('/') + text(key);
}

// QSettings takes a file that it can't read for one without settings, and the default that it then
// gives would be saved over what stands there.
bool unread(const QSettings& store) {
    return store.status() == QSettings::AccessError ||
           (store.allKeys().isEmpty() && QFileInfo(store.fileName()).size() > 0);
}

} // namespace

std::string LinuxSettings::get(const std::string& application, const std::string& section,
                               const std::string& key, const std::string& fallback) const {
    const QSettings store(QSettings::IniFormat, QSettings::UserScope, text(application),
                          QStringLiteral("quorvanta"));
    if (unread(store))
        throw RuntimeError(PathAccess);
    return store.value(keyPath(section, key), text(fallback)).toString().toStdString();
}

void LinuxSettings::save(const std::string& application, const std::string& section,
                         const std::string& key, const std::string& value) {
    QSettings store(QSettings::IniFormat, QSettings::UserScope, text(application),
                    QStringLiteral("quorvanta"));
    store.setValue(keyPath(section, key), text(value));
    store.sync(); // the run may end without another chance
    if (store.status() != QSettings::NoError)
        throw RuntimeError(PathAccess);
}

} // namespace platform
