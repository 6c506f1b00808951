#include "app/sauvegarde.h"

#include "app/base.h"
#include "store/base_native.h"
#include "store/erreur.h"
#include "store/fichiers.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr qsizetype copiesGardees = 20;
const QString debutNom = u"VarloBase-"_qs;
const QString finNom = u".mdb"_qs;
const QString finProvisoire = u".encours"_qs;

/// Names of the copies that begin with \p debut, the oldest first.
QStringList copies(const QDir &dossier, const QString &debut)
{
    QStringList noms = dossier.entryList({debut + u'*' + finNom}, QDir::Files);
    for (QString &nom : noms)
        nom.chop(finNom.size());
    // Without its end the name of the first copy of a second is shorter, and so comes before the next ones.
    noms.sort();
    return noms;
}

QString nomLibre(const QDir &dossier, const QString &moment)
{
    QString nom = debutNom + moment;
    for (int suite = 2; dossier.exists(nom + finNom); ++suite)
        nom = u"%1%2-%3"_qs.arg(debutNom, moment).arg(suite, 2, 10, QChar(u'0'));
    return nom;
}

void retireLesPlusVieilles(QDir &dossier, const QString &gardee, const QString &jour)
{
    const QStringList duJour = copies(dossier, debutNom + jour);
    QStringList toutes = copies(dossier, debutNom);
    qsizetype enTrop = toutes.size() - copiesGardees;
    for (const QString &nom : std::as_const(toutes)) {
        if (enTrop <= 0)
            return;
        if (nom == gardee || nom == duJour.value(0))
            continue;
        if (dossier.remove(nom + finNom))
            --enTrop;
    }
}

/// What copies that were cut short have left: nobody else writes here.
void retireLesRestes(QDir &dossier)
{
    const QStringList restes = dossier.entryList({debutNom + u'*' + finProvisoire + u'*'}, QDir::Files);
    for (const QString &reste : restes)
        dossier.remove(reste);
}

/// Whether the last run has left the base as its last copy has it. A copy from the future tells that the clock has been
/// put back: no date means anything then.
bool copieeParLeDernier(Partage &partage, const QDir &dossier)
{
    const store::BaseNative &base = partage.BaseDonnees.native();
    const QStringList noms = copies(dossier, debutNom);
    if (noms.isEmpty() || base.changements() > 0 || QFileInfo(base.fichier() + u"-wal"_qs).size() > 0)
        return false;
    const QDateTime copie = QFileInfo(dossier, noms.back() + finNom).lastModified();
    return QFileInfo(base.fichier()).lastModified() < copie && copie <= QDateTime::currentDateTime();
}

QString phrase(const QString &cause)
{
    return u"La copie de sécurité n'a pas pu être faite : %1\r\nLe travail continue sans elle."_qs.arg(cause);
}

} // namespace

void PrepareSauvegardes(Partage &partage)
{
    if (partage.AvecCopies)
        partage.BaseDonnees.native().prepareCopies(motDePasseBase);
}

QString SauveBase(Partage &partage)
{
    if (!partage.AvecCopies || !partage.BaseDonnees.estOuverte()
        || !partage.BaseDonnees.native().changeeDepuisCopie())
        return {};
    QDir dossier(partage.DossierProgramme);
    if (!dossier.mkpath(dossierSauvegardes) || !dossier.cd(dossierSauvegardes))
        return phrase(u"le dossier %1 ne peut pas être créé."_qs.arg(dossierSauvegardes));
    if (copieeParLeDernier(partage, dossier))
        return {};

    const QString jour = partage.horloge.jour().toString(u"yyyyMMdd"_qs);
    const QString nom = nomLibre(dossier, jour + u'-' + partage.horloge.heure().toString(u"HHmmss"_qs));
    // A copy bears its name only when it is whole.
    const QString provisoire = dossier.filePath(nom + finProvisoire);
    retireLesRestes(dossier);
    QString cause;
    try {
        PrepareSauvegardes(partage);
        partage.BaseDonnees.native().copieVers(provisoire);
        if (!store::renomme(provisoire, dossier.filePath(nom + finNom)))
            cause = u"le fichier ne peut pas être nommé."_qs;
    } catch (const store::Erreur &erreur) {
        cause = erreur.numero() == store::Erreur::DisquePlein
            ? u"le disque est plein."_qs
            : u"le dossier %1 ne peut pas être écrit."_qs.arg(dossierSauvegardes);
    }
    if (!cause.isEmpty()) {
        QFile::remove(provisoire);
        return phrase(cause);
    }
    retireLesPlusVieilles(dossier, nom, jour);
    return {};
}
