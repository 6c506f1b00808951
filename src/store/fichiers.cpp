#include "store/fichiers.h"

#include <QFileInfo>

#include <filesystem>

namespace store {

bool renomme(const QString &ancien, const QString &nouveau)
{
    std::error_code echec;
    std::filesystem::rename(QFileInfo(ancien).filesystemFilePath(), QFileInfo(nouveau).filesystemFilePath(), echec);
    return !echec;
}

} // namespace store
