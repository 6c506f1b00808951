#include "store/base_native.h"
#include "store/erreur.h"

#include <QFile>

#include <sqlite3.h>

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

void BaseNative::copieVers(const QString &cible)
{
    if (QFile::exists(cible))
        throw Erreur(Erreur::DossierProtege, u"Le fichier %1 existe déjà."_qs.arg(cible));
    if (m_ouvertureCopiste.valid())
        m_copiste = m_ouvertureCopiste.get();
    (m_copiste ? *m_copiste : *this).exporte(cible);
    m_changementsCopies = changements();
}

void BaseNative::exporte(const QString &cible)
{
    {
        // Without a key of its own the file takes the one that this base has already derived from its password: deriving
        // it anew would take longer than all the rest. The same password opens both.
        Instruction attache(*this, u"attach ? as cible"_qs);
        attache.lie(1, cible);
        attache.avance();
    }
    try {
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
    // No journal: a part of a copy is worth nothing. In one group, the copy is one moment of the base and goes to the disk
    // once.
    executeScript(u"pragma cible.journal_mode = off; begin"_qs);
    execute(u"select sqlcipher_export('cible')"_qs);
    for (const QStringView marque : {u"application_id", u"user_version"})
        executeScript(u"pragma cible.%1 = %2"_qs.arg(marque, valeurUnique(u"pragma %1"_qs.arg(marque)).texte()));
    execute(u"commit"_qs);
}

} // namespace store
