#include "platform/qt_user_store.h"

#include "base/failure.h"
#include "platform/qt_path.h"

#include <QDir>
#include <QDirIterator>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace loftwing {

namespace {

QString StoreFile() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           "/loftwing/store.ini";
}

QString KeyOf(const std::string &section, const std::string &key) {
    return "iLoftwing/" + Q(section) + "/" + Q(key);
}

QString DocumentsFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + "/Loftwing";
}

bool CopyOne(const QString &from, const QString &to) {
    if (!QFile::copy(from, to)) {
        return false;
    }
    // The bundled file may be read-only; its copy is the user's to change.
    return QFile::setPermissions(to, QFile::permissions(to) | QFile::WriteOwner);
}

/// Copies what lies in a folder and below it into a folder that is there.
bool CopyContent(const QDir &from, const QDir &to) {
    constexpr auto kAll = QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks;
    QDirIterator each(from.path(), kAll, QDirIterator::Subdirectories);
    while (each.hasNext()) {
        const QString path = each.next();
        const QString target = to.filePath(from.relativeFilePath(path));
        const bool made = each.fileInfo().isDir()
                              ? to.mkpath(target)
                              : to.mkpath(QFileInfo(target).path()) && CopyOne(path, target);
        if (!made) {
            return false;
        }
    }
    return true;
}

/// The user's copy of a folder that comes with the program. It is made under another name and takes
/// its own when it is whole. What is there already stays as it is.
QString OwnCopy(const QDir &bundled, const QString &name) {
    const QDir documents(DocumentsFolder());
    QString folder = documents.filePath(name);
    if (QFileInfo(folder).isDir()) {
        return folder;
    }
    if (!bundled.exists() || QFileInfo::exists(folder) || !documents.mkpath(".")) {
        return {};
    }
    QTemporaryDir copy(documents.filePath(name + ".XXXXXX"));
    if (!copy.isValid() || !CopyContent(bundled, QDir(copy.path()))) {
        return {};
    }
    // The temporary folder was for its owner alone; the copy is a folder like others.
    QFile::setPermissions(copy.path(), QFile::permissions(documents.path()));
    if (!QDir().rename(copy.path(), folder)) {
        return {};
    }
    copy.setAutoRemove(false);
    return folder;
}

/// With the library come the samples that lie beside it. Later on a user may have thrown them away,
/// and they stay away.
QString AirfoilFolder(const QDir &bundled) {
    const bool fresh = !QFileInfo::exists(QDir(DocumentsFolder()).filePath("airfoils"));
    QString folder = OwnCopy(bundled, "airfoils");
    if (fresh && !folder.isEmpty()) {
        OwnCopy(QDir(bundled.filePath("../samples")), "samples");
    }
    return folder;
}

QString RibSetFolder() {
    const QDir documents(DocumentsFolder());
    return documents.mkpath("rib sets") ? documents.filePath("rib sets") : QString();
}

} // namespace

std::string UserStore::Value(const std::string &section, const std::string &key) const {
    const QSettings store(StoreFile(), QSettings::IniFormat);
    const QString stored = store.value(KeyOf(section, key)).toString();
    if (!stored.isEmpty() || section != "Install") {
        return S(stored);
    }
    if (key == "RepAirfoil") {
        return Path(AirfoilFolder(QDir(Q(bundled_))));
    }
    return key == "RepEvol" ? Path(RibSetFolder()) : std::string();
}

void UserStore::SetValue(const std::string &section, const std::string &key,
                         const std::string &value) {
    QSettings store(StoreFile(), QSettings::IniFormat);
    store.setValue(KeyOf(section, key), Q(value));
    store.sync();
    if (store.status() != QSettings::NoError) {
        throw MakeFailure(kPathFileAccess, Path(StoreFile()));
    }
}

} // namespace loftwing
