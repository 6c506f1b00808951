#pragma once

#include "store/database.h"

#include <QTemporaryDir>

/// A base of the real schema in a folder of its own, gone with the object.
class BaseEssai
{
public:
    BaseEssai();

    QString fichier() const { return m_dossier.filePath(u"VarloBase.mdb"_qs); }
    QString dossier() const { return m_dossier.path(); }
    store::Database ouvre() const;

    static QString connexion() { return u";PWD=qz7tkn42"_qs; }

private:
    QTemporaryDir m_dossier;
};
