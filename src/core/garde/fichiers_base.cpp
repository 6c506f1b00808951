#include "garde/fichiers_base.h"

#include "partage/base.h"
#include "store/base_native.h"
#include "store/fichiers.h"

#include <QDir>
#include <QFile>

using store::Erreur;

namespace {

QString affiche(const QString &fichier)
{
    return QDir::toNativeSeparators(fichier);
}

void supprimeFichier(const QString &fichier)
{
    if (QFile::exists(fichier) && !QFile::remove(fichier))
        throw Erreur(Erreur::DossierProtege, u"Le fichier %1 ne peut pas être supprimé."_qs.arg(affiche(fichier)));
}

} // namespace

FichiersBase::~FichiersBase() = default;

void FichiersBase::supprime(const QString &fichier) const
{
    for (const QString &suffixe : store::suffixesJournaux)
        supprimeFichier(fichier + suffixe);
    supprimeFichier(fichier);
}

void FichiersBase::supprimeJournaux(const QString &fichier) const
{
    if (QFile(fichier + store::suffixesJournaux.constFirst()).size() > 0)
        throw Erreur(Erreur::DossierProtege, u"La base %1 est encore occupée."_qs.arg(affiche(fichier)));
    for (const QString &suffixe : store::suffixesJournaux)
        supprimeFichier(fichier + suffixe);
}

void FichiersBase::compacte(const QString &source, const QString &cible) const
{
    try {
        store::DBEngine::CompactDatabase(source, cible, u";pwd="_qs + motDePasseBase);
        const store::BaseNative relue(cible, motDePasseBase, store::BaseNative::Mode::LectureSeule);
    } catch (const Erreur &) {
        QFile::remove(cible);
        throw;
    }
}

void FichiersBase::renomme(const QString &ancien, const QString &nouveau) const
{
    if (!store::renomme(ancien, nouveau))
        throw Erreur(Erreur::DossierProtege, u"Le fichier %1 ne peut pas être renommé."_qs.arg(affiche(ancien)));
}

store::Database FichiersBase::ouvre(const store::Workspace &espace, const QString &fichier) const
{
    return espace.OpenDatabase(fichier, false, false, connexionBase);
}
