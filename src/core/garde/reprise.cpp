#include "garde/reprise.h"

#include "partage/base.h"
#include "store/fichiers.h"
#include "store/preuve.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

using store::Erreur;

namespace {

bool estSaine(const QString &fichier)
{
    try {
        store::BaseNative base(fichier, motDePasseBase, store::BaseNative::Mode::LectureSeule);
        store::verifieNature(base, store::Schema(base));
    } catch (const Erreur &) {
        return false;
    }
    return true;
}

QString moment(const Partage &partage)
{
    return partage.horloge.jour().toString(u"yyyyMMdd"_qs) + partage.horloge.heure().toString(u"-HHmmss"_qs);
}

/// \p nom, with a number behind it when \p dossier has a file that begins so.
QString nomLibre(const QDir &dossier, const QString &nom)
{
    QString libre = nom;
    for (int suite = 2; !dossier.entryList({libre + u'*'}, QDir::Files).isEmpty(); ++suite)
        libre = u"%1-%2"_qs.arg(nom).arg(suite);
    return libre;
}

void deplace(const QString &ancien, const QString &nouveau)
{
    if (QFile::exists(ancien) && !store::renomme(ancien, nouveau))
        throw Erreur(Erreur::DossierProtege,
                     u"Le fichier %1 ne peut pas être renommé."_qs.arg(QDir::toNativeSeparators(ancien)));
}

} // namespace

bool ReprendPurge(const QString &dossierProgramme)
{
    const QDir dossier(dossierProgramme);
    const QString temporaire = dossier.filePath(nomBaseTemporaire);
    if (dossier.exists(nomBase) || !estSaine(temporaire))
        return false;
    deplace(temporaire, dossier.filePath(nomBase));
    return true;
}

std::vector<CopieSaine> CopiesSaines(const QString &dossierProgramme)
{
    std::vector<CopieSaine> saines;
    for (const Copie &copie : ListeCopies(dossierProgramme)) {
        try {
            saines.push_back({copie, InventaireDe(copie.fichier)});
        } catch (const Erreur &) {
            continue; // not offered
        }
    }
    std::ranges::reverse(saines);
    return saines;
}

QString RemetCopie(const Partage &partage, const QString &copie)
{
    const QDir dossier(partage.DossierProgramme);
    const QString base = dossier.filePath(nomBase);
    const QString nouvelle = base + u".reprise"_qs;
    if (!store::recopie(copie, nouvelle))
        throw Erreur(Erreur::DossierProtege,
                     u"La copie %1 ne peut pas être recopiée : regardez la place et les droits "
                     u"du dossier."_qs.arg(QDir::toNativeSeparators(copie)));
    const QString ecartee = nomLibre(dossier, u"VarloBase-refusee-"_qs + moment(partage)) + u".mdb"_qs;
    const bool ancienne = QFile::exists(base);
    // The base's own name is never without a file: an empty base must not be put there in the meantime.
    if (ancienne && !store::garde(base, dossier.filePath(ecartee)))
        throw Erreur(Erreur::DossierProtege,
                     u"Le fichier %1 ne peut pas être mis de côté."_qs.arg(QDir::toNativeSeparators(base)));
    for (const QString &suffixe : store::suffixesJournaux)
        deplace(base + suffixe, dossier.filePath(ecartee) + suffixe);
    deplace(nouvelle, base);
    return ancienne ? ecartee : QString();
}

QString EcarteJournaux(const Partage &partage)
{
    const QDir dossier(partage.DossierProgramme);
    const QString base = dossier.filePath(nomBase);
    const QString ecarte = nomLibre(dossier, u"VarloBase-journal-"_qs + moment(partage)) + u".mdb"_qs;
    QStringList noms;
    for (const QString &suffixe : store::suffixesJournaux) {
        if (!QFile::exists(base + suffixe))
            continue;
        deplace(base + suffixe, dossier.filePath(ecarte) + suffixe);
        noms += ecarte + suffixe;
    }
    return noms.value(0);
}
