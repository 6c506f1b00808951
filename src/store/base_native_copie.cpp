#include "store/base_native.h"
#include "store/erreur.h"

#include <QFile>

#include <sqlite3.h>

namespace store {

static_assert(Erreur::DisquePlein == SQLITE_FULL);

void BaseNative::copieVers(const QString &cible, const QString &motDePasse)
{
    if (QFile::exists(cible))
        throw Erreur(Erreur::DossierProtege, u"Le fichier %1 existe déjà."_qs.arg(cible));
    BaseNative copie(cible, motDePasse, Mode::Creation, m_formatCourant);
    sqlite3_backup *transfert = sqlite3_backup_init(copie.m_base, "main", m_base, "main");
    if (transfert == nullptr)
        copie.echoue(sqlite3_errcode(copie.m_base));
    // In one step: nothing can be written in between, and the copy is one moment of the base.
    sqlite3_backup_step(transfert, -1);
    const int code = sqlite3_backup_finish(transfert);
    if (code != SQLITE_OK)
        copie.echoue(code);
    m_changementsCopies = changements();
}

} // namespace store
