#include "maintenance/purge.h"

#include "fenetres/copie_prealable.h"
#include "fenetres/patience.h"
#include "partage/base.h"

#include <QDir>
#include <QFile>

using store::Erreur;

namespace {

const QString saut = u"\r\n"_qs;
const QString question = u"Attention cette opération est irréversible"_qs + saut + u"Avez vous fait une sauvegarde?"_qs
    + saut + u"Vous allez supprimer des informations"_qs;

QString chemin(const Partage &partage, const QString &fichier)
{
    return QDir(partage.DossierProgramme).filePath(fichier);
}

QString affiche(const QString &fichier)
{
    return QDir::toNativeSeparators(fichier);
}

void videTables(store::Database &base)
{
    base.EcritEnGroupe([&] {
        base.Execute(u"delete * from scores");
        base.Execute(u"delete * from evolution");
        base.Execute(u"delete * from concours");
        base.Execute(u"delete * from equipes where concours<>0");
        base.Execute(u"delete * from tnequipes");
        base.Execute(u"delete * from tirages_pro");
    });
}

/// Puts the compacted file into the place of the closed base. Whatever step fails, one of the two is complete.
void remplaceFichier(const FichiersBase &fichiers, const QString &base, const QString &temporaire)
{
    if (QFile::exists(temporaire))
        fichiers.supprime(temporaire);
    fichiers.compacte(base, temporaire);
    fichiers.supprimeJournaux(base);
    fichiers.supprime(base);
    fichiers.renomme(temporaire, base);
}

/// Where a failed swap leaves the operator. The program goes on with the old file when it still stands.
QString suiteDeLEchec(Partage &partage, const FichiersBase &fichiers, const QString &base, const QString &temporaire)
{
    if (!QFile::exists(base))
        return QFile::exists(temporaire)
            ? u"La base est complète dans le fichier %1. Fermez le programme et relancez-le : il reprendra ce "
              u"fichier."_qs.arg(affiche(temporaire))
            : u"Il n'y a plus de base dans ce dossier : fermez le programme et remettez-y votre sauvegarde."_qs;
    try {
        partage.BaseDonnees = fichiers.ouvre(*partage.EspaceTravail, base);
    } catch (const Erreur &) {
        return u"La base est complète dans le fichier %1, mais elle ne s'ouvre plus : fermez le programme et "
               u"relancez-le."_qs.arg(affiche(base));
    }
    return u"Les concours sont effacés et le programme continue avec la base ; son fichier n'est peut-être pas réduit, "
           u"vous pourrez recommencer plus tard."_qs;
}

void reduitFichier(Partage &partage, const FichiersBase &fichiers)
{
    const QString base = chemin(partage, nomBase);
    const QString temporaire = chemin(partage, nomBaseTemporaire);
    partage.BaseDonnees.Close();
    try {
        remplaceFichier(fichiers, base, temporaire);
        partage.BaseDonnees = fichiers.ouvre(*partage.EspaceTravail, base);
    } catch (const Erreur &erreur) {
        throw Erreur(erreur.numero(),
                     erreur.phrase() + saut + saut + suiteDeLEchec(partage, fichiers, base, temporaire));
    }
}

} // namespace

void Torvik_mnu_base_Click(const Contexte &contexte, const std::vector<NomForme> &formesDeConcours)
{
    PurgeBase(contexte, FichiersBase(), formesDeConcours);
}

void PurgeBase(const Contexte &contexte, const FichiersBase &fichiers, const std::vector<NomForme> &formesDeConcours)
{
    if (contexte.boites.MsgBox(question, vbYesNo + vbExclamation) != ReponseBoite::Oui
        || !GardeUneCopie(contexte, RaisonCopie::Purge)) {
        contexte.boites.MsgBox(u"Opération annulée"_qs);
        return;
    }
    // Their competitions are about to go: a form left open would go on storing into them.
    contexte.formulaires.Decharge(formesDeConcours);
    {
        const Patience alerte(contexte, u"  Opération en cours....Patientez"_qs);
        videTables(contexte.partage.BaseDonnees);
        reduitFichier(contexte.partage, fichiers);
        DoEvents();
    }
    contexte.boites.MsgBox(u"Opération réussie"_qs);
}
