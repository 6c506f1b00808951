#include "garde/restauration.h"

#include "partage/base.h"
#include "partage/concours_courant.h"
#include "store/base_native.h"
#include "store/fichiers.h"
#include "store/preuve.h"

#include <QDir>
#include <QFile>

using store::BaseNative;
using store::Erreur;

namespace {

const QString saut = u"\r\n"_qs;

QString cheminBase(const QString &dossier)
{
    return QDir(dossier).filePath(nomBase);
}

QString cheminPrepare(const QString &dossier)
{
    return cheminBase(dossier) + u".reprise"_qs;
}

/// Not the pages alone: tables and indexes are compared too.
void prouve(const QString &fichier)
{
    BaseNative base(fichier, motDePasseBase, BaseNative::Mode::LectureSeule);
    store::verifieNature(base, store::Schema(base));
    if (base.valeurUnique(u"pragma integrity_check(1)"_qs).texte() != u"ok")
        throw Erreur(Erreur::FichierEndommage,
                     u"Le fichier %1 est endommagé."_qs.arg(QDir::toNativeSeparators(fichier)));
}

/// The competition at hand may not be in the restored base, or stand at another round there.
void retrouveConcours(Partage &partage)
{
    if (partage.ConcoursCourant != 0 && donnees::TrouveConcours(partage.BaseDonnees, partage.ConcoursCourant)) {
        ChargeConcours(partage, partage.ConcoursCourant);
    } else {
        partage.ConcoursCourant = 0;
        partage.TourCourant = 0;
    }
}

/// Opens the base that the copy has not replaced, and tells how it stands.
QString reprendAncienne(Partage &partage, const FichiersBase &fichiers, const QString &base)
{
    AbandonneRestauration(partage.DossierProgramme);
    try {
        partage.BaseDonnees = fichiers.ouvre(*partage.EspaceTravail, base);
    } catch (const Erreur &) {
        return u"La base est restée telle qu'elle était, mais ne s'ouvre plus : fermez le programme et relancez-le."_qs;
    }
    return u"La base est restée telle qu'elle était."_qs;
}

} // namespace

void PrepareRestauration(const Partage &partage, const QString &copie)
{
    AbandonneRestauration(partage.DossierProgramme);
    const QString prepare = cheminPrepare(partage.DossierProgramme);
    if (!store::recopie(copie, prepare))
        throw Erreur(Erreur::DossierProtege,
                     u"La copie %1 ne peut pas être recopiée : regardez la place et les droits du dossier."_qs.arg(
                         QDir::toNativeSeparators(copie)));
    try {
        prouve(prepare);
    } catch (const Erreur &erreur) {
        AbandonneRestauration(partage.DossierProgramme);
        throw Erreur(erreur.numero(), u"La copie %1 n'est pas complète."_qs.arg(QDir::toNativeSeparators(copie)));
    }
}

void AbandonneRestauration(const QString &dossierProgramme)
{
    QFile::remove(cheminPrepare(dossierProgramme));
}

void Restaure(Partage &partage, const FichiersBase &fichiers)
{
    const QString base = cheminBase(partage.DossierProgramme);
    bool enPlace = false;
    try {
        partage.BaseDonnees.native().consolide();
        partage.BaseDonnees.Close();
        fichiers.supprimeJournaux(base);
        fichiers.renomme(cheminPrepare(partage.DossierProgramme), base);
        enPlace = true;
        partage.BaseDonnees = fichiers.ouvre(*partage.EspaceTravail, base);
    } catch (const Erreur &erreur) {
        const QString suite = enPlace
            ? u"La copie est en place mais ne s'ouvre pas : fermez le programme et relancez-le."_qs
            : reprendAncienne(partage, fichiers, base);
        throw Erreur(erreur.numero(), erreur.phrase() + saut + saut + suite);
    }
    partage.EtatBaseDit = store::EtatFichier::Intact;
    retrouveConcours(partage);
}
