#include "store/droits.h"

#include <QFileInfo>

namespace store {

void reserve(const QString &chemin)
{
    constexpr QFile::Permissions duProprietaire = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    constexpr QFile::Permissions desAutres =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    const QFile::Permissions droits = QFileInfo(chemin).permissions();
    if (droits & desAutres)
        QFile::setPermissions(chemin, droits & duProprietaire);
}

void reserveBase(const QString &fichier)
{
    for (const QString &suffixe : {QString(), u"-wal"_qs, u"-shm"_qs, u"-journal"_qs})
        reserve(fichier + suffixe);
}

} // namespace store
