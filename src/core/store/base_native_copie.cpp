#include "store/base_native.h"
#include "store/droits.h"
#include "store/erreur.h"

#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

#include <sqlite3.h>

#include <algorithm>
#include <cstring>

namespace store {

static_assert(Erreur::DisquePlein == SQLITE_FULL);

void BaseNative::prepareCopies(const QString &motDePasse)
{
    if (m_copiste || m_ouvertureCopiste.valid())
        return;
    m_ouvertureCopiste = std::async(std::launch::async, [fichier = m_fichier, motDePasse] {
        return std::make_unique<BaseNative>(fichier, motDePasse, Mode::DejaVerifiee);
    });
}

BaseNative &BaseNative::copiste()
{
    if (m_ouvertureCopiste.valid())
        m_copiste = m_ouvertureCopiste.get();
    // Once somebody else has written into the file, what this connection remembers of it is all that is left.
    return m_copiste && etatFichier() != EtatFichier::Reecrit ? *m_copiste : *this;
}

void BaseNative::copieVers(const QString &cible)
{
    if (QFile::exists(cible))
        throw Erreur(Erreur::DossierProtege, u"Le fichier %1 existe déjà."_qs.arg(cible));
    if (etatFichier() == EtatFichier::Reecrit)
        verifie();
    libereLectures();
    // The engine takes an empty file for a new one; its own would be everybody's to read.
    if (!QFile(cible).open(QIODevice::WriteOnly | QIODevice::NewOnly, droitsReserves))
        throw Erreur(Erreur::DossierProtege, u"Le fichier %1 ne peut pas être créé."_qs.arg(cible));
    copiste().exporte(cible);
}

void BaseNative::exporte(const QString &cible)
{
    {
        // Without a key of its own the file takes the one that this base has already derived from its password:
        // deriving it anew would take longer than all the rest. The same password opens both.
        Instruction attache(*this, u"attach ? as cible"_qs);
        attache.lie(1, cible);
        attache.avance();
    }
    try {
        // The export does not look again by itself when tables have been changed by another connection.
        valeurUnique(u"select count(*) from main.sqlite_master"_qs);
        remplitCible();
    } catch (...) {
        if (!horsTransaction())
            sqlite3_exec(m_base, "rollback", nullptr, nullptr, nullptr);
        sqlite3_exec(m_base, "detach cible", nullptr, nullptr, nullptr);
        throw;
    }
    execute(u"detach cible"_qs);
}

/// Fills the new file that is attached as `cible`.
void BaseNative::remplitCible()
{
    // No journal: a part of a copy is worth nothing. In one group, the copy is one moment of the base and goes to the
    // disk once.
    executeScript(u"pragma cible.journal_mode = off; begin"_qs);
    execute(u"select sqlcipher_export('cible')"_qs);
    for (const QStringView marque : {u"application_id", u"user_version"})
        executeScript(u"pragma cible.%1 = %2"_qs.arg(marque, valeurUnique(u"pragma %1"_qs.arg(marque)).texte()));
    execute(u"commit"_qs);
}

void BaseNative::retientCopie(const QString &copie)
{
    const QFileInfo infos(copie);
    m_copieConnue = {copie, infos.size(), infos.lastModified(), changements()};
}

bool BaseNative::estDans(const QString &copie)
{
    const QFileInfo infos(copie);
    if (m_copieConnue == EmpreinteCopie{copie, infos.size(), infos.lastModified(), changements()})
        return true;
    if (!infos.isFile())
        return false;
    try {
        if (!copiste().memeContenu(copie))
            return false;
    } catch (const Erreur &) {
        return false;
    }
    retientCopie(copie);
    return true;
}

/// A copy bears the salt of its base, so that the derived key opens it too; a file of another base does not open, and
/// that tells enough.
bool BaseNative::memeContenu(const QString &copie)
{
    {
        Instruction attache(*this, u"attach ? as copie"_qs);
        attache.lie(1, copie);
        attache.avance();
    }
    const auto detache = qScopeGuard([this] { sqlite3_exec(m_base, "detach copie", nullptr, nullptr, nullptr); });
    for (const QString &marque : {u"pragma %1.user_version"_qs,
                                  u"select type, name, tbl_name, sql from %1.sqlite_master order by type, name"_qs}) {
        if (!memesLignes(marque))
            return false;
    }
    // Two copies of a day differ in the results first.
    QStringList tables;
    Instruction noms(*this,
                     u"select name from main.sqlite_master where type = 'table' "
                     u"order by name <> 'scores', rowid"_qs);
    while (noms.avance())
        tables += noms.valeur(0).texte();
    return std::all_of(tables.cbegin(), tables.cend(), [this](const QString &table) {
        return memesLignes(u"select * from %1.["_qs + table + u"] order by rowid"_qs);
    });
}

/// Whether \p requete gives the same rows on the base as on the attached copy; "%1" stands in it for the one or the
/// other.
bool BaseNative::memesLignes(const QString &requete)
{
    Instruction ici(*this, requete.arg(u"main"_qs));
    Instruction la(*this, requete.arg(u"copie"_qs));
    for (;;) {
        const bool ligne = ici.avance();
        if (ligne != la.avance())
            return false;
        if (!ligne)
            return true;
        for (int i = 0; i < ici.colonnes(); ++i) {
            if (!ici.memeValeur(la, i))
                return false;
        }
    }
}

bool Instruction::memeValeur(const Instruction &autre, int colonne) const
{
    const int type = sqlite3_column_type(m_stmt, colonne);
    if (type != sqlite3_column_type(autre.m_stmt, colonne))
        return false;
    switch (type) {
    case SQLITE_NULL:
        return true;
    case SQLITE_INTEGER:
        return nombre(colonne) == autre.nombre(colonne);
    case SQLITE_FLOAT:
        return sqlite3_column_double(m_stmt, colonne) == sqlite3_column_double(autre.m_stmt, colonne);
    default: {
        const void *octets = sqlite3_column_blob(m_stmt, colonne);
        const void *autres = sqlite3_column_blob(autre.m_stmt, colonne);
        const int taille = sqlite3_column_bytes(m_stmt, colonne);
        return taille == sqlite3_column_bytes(autre.m_stmt, colonne)
            && (taille == 0 || std::memcmp(octets, autres, std::size_t(taille)) == 0);
    }
    }
}

} // namespace store
