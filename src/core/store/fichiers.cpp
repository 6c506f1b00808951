#include "store/fichiers.h"

#include "store/droits.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <filesystem>

#if defined(Q_OS_UNIX)
#include <fcntl.h>
#include <unistd.h>
#endif

namespace store {

namespace {

/// A name is on the disk when its folder is. Where folders cannot be synchronised the system sees to it by itself.
void synchroniseDossier(const QString &fichier)
{
#if defined(Q_OS_UNIX)
    const int dossier = ::open(QFile::encodeName(QFileInfo(fichier).absolutePath()).constData(), O_RDONLY | O_CLOEXEC);
    if (dossier < 0)
        return;
    ::fsync(dossier);
    ::close(dossier);
#else
    Q_UNUSED(fichier)
#endif
}

} // namespace

bool renomme(const QString &ancien, const QString &nouveau)
{
    std::error_code echec;
    std::filesystem::rename(QFileInfo(ancien).filesystemFilePath(), QFileInfo(nouveau).filesystemFilePath(), echec);
    if (!echec)
        synchroniseDossier(nouveau);
    return !echec;
}

bool garde(const QString &source, const QString &cible)
{
    std::error_code echec;
    std::filesystem::create_hard_link(QFileInfo(source).filesystemFilePath(), QFileInfo(cible).filesystemFilePath(),
                                      echec);
    if (echec)
        return recopie(source, cible);
    synchroniseDossier(cible);
    return true;
}

bool recopie(const QString &source, const QString &cible)
{
    constexpr qint64 bloc = 1024 * 1024;
    QFile lue(source);
    QSaveFile ecrite(cible);
    if (!lue.open(QIODevice::ReadOnly) || !ecrite.open(QIODevice::WriteOnly))
        return false;
    while (!lue.atEnd()) {
        const QByteArray octets = lue.read(bloc);
        if (octets.isEmpty() || ecrite.write(octets) != octets.size())
            return false;
    }
    if (!ecrite.setPermissions(droitsReserves) || !ecrite.commit())
        return false;
    synchroniseDossier(cible);
    return true;
}

void relitDuDisque(const QString &fichier)
{
#if defined(Q_OS_LINUX)
    const int ouvert = ::open(QFile::encodeName(fichier).constData(), O_RDONLY | O_CLOEXEC);
    if (ouvert < 0)
        return;
    ::fsync(ouvert);
    ::posix_fadvise(ouvert, 0, 0, POSIX_FADV_DONTNEED);
    ::close(ouvert);
#else
    Q_UNUSED(fichier)
#endif
}

} // namespace store
