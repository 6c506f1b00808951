#include "app/ouverture.h"

#include "fenetres/sablier.h"
#include "garde/reprise.h"
#include "garde/restauration.h"
#include "garde/sauvegarde.h"
#include "outils/mots_copies.h"
#include "partage/base.h"

#include <QDir>

using store::Erreur;

namespace {

const QString saut = u"\r\n"_qs;

void ouvre(Partage &partage)
{
    partage.BaseDonnees = partage.EspaceTravail->OpenDatabase(QDir(partage.DossierProgramme).filePath(nomBase), false,
                                                              false, connexionBase);
}

/// A file that is no base to work with, whatever is done to its rights.
bool estRefusee(const Erreur &erreur)
{
    return erreur.numero() == Erreur::FichierAbsent || erreur.numero() == Erreur::FichierEtranger
        || erreur.numero() == Erreur::MotDePasse || erreur.numero() == Erreur::FichierEndommage;
}

/// Offers the safety copies in the place of the refused base. Gives what there is to tell once the base is open.
QString remetUneCopie(const Contexte &contexte, const Erreur &erreur)
{
    const Partage &partage = contexte.partage;
    const std::vector<CopieSaine> copies = CopiesSaines(partage.DossierProgramme);
    if (copies.empty())
        throw Erreur(erreur.numero(),
                     erreur.phrase() + saut + saut
                         + u"Le dossier %1 n'a pas de copie complète : fermez le programme, mettez une de vos copies à "
                           u"la place sous le nom %2, puis relancez-le."_qs.arg(dossierSauvegardes, nomBase));
    BoiteListe liste{
        .Texte = erreur.phrase() + saut + saut
            + u"Voici les copies de sécurité complètes, la dernière d'abord : laquelle remettre à la place ?"_qs + saut
            + u"Ce qui est refusé reste dans le dossier, sous un autre nom. Quitter ne change rien."_qs,
        .Entetes = MotsCopies::entetes(),
        .Lignes = {},
        .Accepter = u"Remettre à la place"_qs,
        .Renoncer = u"Quitter"_qs,
    };
    for (const CopieSaine &saine : copies)
        liste.Lignes.push_back(MotsCopies::ligne(partage, saine.copie, saine.inventaire));
    const std::optional<int> choisie = contexte.boites.Choisit(liste);
    if (!choisie)
        throw DepartRenonce();
    const Sablier sablier;
    const QString copie = copies[std::size_t(*choisie)].copie.fichier;
    const QString ecartee = RemetCopie(partage, copie);
    const QString faite = u"La copie %1 est en place."_qs.arg(QFileInfo(copie).fileName());
    return ecartee.isEmpty() ? faite : faite + u" Le fichier refusé s'appelle %1."_qs.arg(ecartee);
}

/// Puts right what \p erreur has found; throws when nothing can. Gives what there is to tell.
QString remedie(const Contexte &contexte, const Erreur &erreur)
{
    const Partage &partage = contexte.partage;
    if (erreur.numero() == Erreur::JournalEtranger)
        return erreur.phrase()
            + u" Ce journal n'y est pas repris : il est gardé dans %1."_qs.arg(EcarteJournaux(partage));
    if (!estRefusee(erreur))
        throw erreur;
    if (erreur.numero() == Erreur::FichierAbsent && ReprendPurge(partage.DossierProgramme))
        return u"Une remise à zéro avait été interrompue : la base, restée complète dans %1, est reprise sous le nom "
               u"%2."_qs.arg(nomBaseTemporaire, nomBase);
    return remetUneCopie(contexte, erreur);
}

} // namespace

void OuvreBase(const Contexte &contexte)
{
    contexte.partage.EspaceTravail = &contexte.partage.moteurBase.Workspaces(0);
    AbandonneRestauration(contexte.partage.DossierProgramme);
    QStringList nouvelles;
    // Each remedy takes away what it stands against, so that the next one meets something else.
    for (;;) {
        try {
            ouvre(contexte.partage);
            break;
        } catch (const Erreur &erreur) {
            nouvelles += remedie(contexte, erreur);
        }
    }
    if (!nouvelles.isEmpty())
        contexte.boites.MsgBox(nouvelles.join(saut + saut), vbExclamation);
}
