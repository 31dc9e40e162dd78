#include "qt/window_place.h"

#include "platform/paths.h"
#include "platform/profile.h"

#include <QFile>
#include <QSettings>

namespace orrelix {

namespace {

// Empty when the user has no folder.
QString PlacesFile(bool bCreateFolder) {
    const CString folder = GetSettingsFolder(bCreateFolder);
    return folder.IsEmpty() ? QString() : QFile::decodeName(SystemSpelling(folder).c_str()) + "/windows.ini";
}

QString KeyOf(QString name) {
    return "Places/" + name.replace('/', ' ');
}

} // namespace

void RestorePlace(QWidget& window, const QString& name) {
    const QString file = PlacesFile(false);
    if (!file.isEmpty() && QFile::exists(file))
        window.restoreGeometry(QSettings(file, QSettings::IniFormat).value(KeyOf(name)).toByteArray());
}

void KeepPlace(const QWidget& window, const QString& name) {
    const QString file = PlacesFile(true);
    if (file.isEmpty())
        return;
    QSettings places(file, QSettings::IniFormat);
    const QByteArray place = window.saveGeometry();
    if (places.value(KeyOf(name)) != place)
        places.setValue(KeyOf(name), place);
}

} // namespace orrelix
