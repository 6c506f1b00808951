#include "garde/sauvegarde.h"

#include "partage/base.h"
#include "store/base_native.h"
#include "store/droits.h"
#include "store/erreur.h"
#include "store/fichiers.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr std::size_t copiesGardees = 20;
constexpr int largeurOrdre = 6;
const QString formatJour = u"yyyyMMdd"_qs;
const QString formatHeure = u"HHmmss"_qs;
const QString finProvisoire = u".encours"_qs;

struct MotRaison
{
    RaisonCopie raison;
    QStringView mot;
};

constexpr MotRaison motsRaisons[] = {
    {RaisonCopie::Depart, u"depart"},           {RaisonCopie::Purge, u"purge"},
    {RaisonCopie::Suppression, u"suppression"}, {RaisonCopie::Tirage, u"tirage"},
    {RaisonCopie::Annulation, u"annulation"},   {RaisonCopie::Restauration, u"restauration"},
    {RaisonCopie::Demande, u"demande"},         {RaisonCopie::Secours, u"secours"},
};

QStringView motDe(RaisonCopie raison)
{
    return std::ranges::find(motsRaisons, raison, &MotRaison::raison)->mot;
}

std::optional<RaisonCopie> raisonDe(QStringView mot)
{
    const auto *const trouve = std::ranges::find(motsRaisons, mot, &MotRaison::mot);
    return trouve == std::end(motsRaisons) ? std::nullopt : std::optional(trouve->raison);
}

QString nomCopie(const Horloge &horloge, qint64 ordre, RaisonCopie raison)
{
    return u"VarloBase-%1-%2-%3-%4.mdb"_qs
        .arg(horloge.jour().toString(formatJour), horloge.heure().toString(formatHeure))
        .arg(ordre, largeurOrdre, 10, QChar(u'0'))
        .arg(motDe(raison));
}

/// What the name of \p fichier tells; nothing when the program gives no such names. The older ones have no order, but a
/// number from 2 on where several were made in one second.
std::optional<Copie> lisNom(const QFileInfo &fichier)
{
    static const QRegularExpression forme(u"^VarloBase-(?<jour>\\d{8})-(?<heure>\\d{6})"
                                          u"(?:-\\d{2,3}|-(?<ordre>\\d{6,15})-(?<raison>[a-z]+))?\\.mdb$"_qs);
    const QRegularExpressionMatch lu = forme.match(fichier.fileName());
    const QDate jour = QDate::fromString(lu.captured(u"jour"), formatJour);
    const QTime heure = QTime::fromString(lu.captured(u"heure"), formatHeure);
    if (!jour.isValid() || !heure.isValid())
        return std::nullopt;
    return Copie{fichier.filePath(), jour, heure, lu.captured(u"ordre").toLongLong(),
                 raisonDe(lu.capturedView(u"raison"))};
}

/// The order is that of making: a clock that jumps must not make the newest copies the first to go.
void retireLesPlusVieilles(const std::vector<Copie> &copies, QDate jour)
{
    if (copies.size() <= copiesGardees)
        return;
    const auto duJour = std::ranges::find(copies, jour, &Copie::jour);
    const auto derniere = std::prev(copies.end());
    std::size_t restent = copies.size();
    for (auto copie = copies.begin(); copie != derniere && restent > copiesGardees; ++copie) {
        if (copie != duJour && QFile::remove(copie->fichier))
            --restent;
    }
}

/// What copies that were cut short have left: nobody else writes here.
void retireLesRestes(QDir &dossier)
{
    const QStringList restes = dossier.entryList({u"VarloBase-*"_qs + finProvisoire + u'*'}, QDir::Files);
    for (const QString &reste : restes)
        dossier.remove(reste);
}

/// Makes the copy \p fichier, which bears its name only when it is whole. Gives the cause of a failure, empty
/// otherwise.
QString copieSous(Partage &partage, const QString &fichier)
{
    store::BaseNative &base = partage.BaseDonnees.native();
    const QString provisoire = fichier + finProvisoire;
    QString cause;
    try {
        PrepareSauvegardes(partage);
        base.copieVers(provisoire);
        if (store::renomme(provisoire, fichier)) {
            base.retientCopie(fichier);
            return {};
        }
        cause = u"le fichier ne peut pas être nommé."_qs;
    } catch (const store::Erreur &erreur) {
        cause = erreur.numero() == store::Erreur::DisquePlein ? u"le disque est plein."_qs
            : erreur.numero() == store::Erreur::FichierEndommage
            ? u"ce qui reste de la base est endommagé."_qs
            : u"le dossier %1 ne peut pas être écrit."_qs.arg(dossierSauvegardes);
    }
    QFile::remove(provisoire);
    return cause;
}

bool estSaine(const QString &fichier)
{
    try {
        const store::BaseNative relue(fichier, motDePasseBase, store::BaseNative::Mode::LectureSeule);
    } catch (const store::Erreur &) {
        return false;
    }
    return true;
}

} // namespace

void PrepareSauvegardes(Partage &partage)
{
    if (partage.AvecCopies)
        partage.BaseDonnees.native().prepareCopies(motDePasseBase);
}

BilanCopie SauveBase(Partage &partage, RaisonCopie raison)
{
    if (!partage.AvecCopies || !partage.BaseDonnees.estOuverte())
        return {};
    QDir dossier(partage.DossierProgramme);
    if (!dossier.mkpath(dossierSauvegardes) || !dossier.cd(dossierSauvegardes))
        return {.fichier = {}, .cause = u"le dossier %1 ne peut pas être créé."_qs.arg(dossierSauvegardes)};
    const std::vector<Copie> copies = ListeCopies(partage.DossierProgramme);
    store::reserve(dossier.path());
    for (const Copie &copie : copies)
        store::reserve(copie.fichier);
    PrepareSauvegardes(partage);
    if (!copies.empty() && partage.BaseDonnees.native().estDans(copies.back().fichier))
        return {.fichier = copies.back().fichier, .cause = {}};

    retireLesRestes(dossier);
    const qint64 ordre = copies.empty() ? 1 : copies.back().ordre + 1;
    const QString fichier = dossier.filePath(nomCopie(partage.horloge, ordre, raison));
    if (const QString cause = copieSous(partage, fichier); !cause.isEmpty())
        return {.fichier = {}, .cause = cause};
    retireLesPlusVieilles(ListeCopies(partage.DossierProgramme), partage.horloge.jour());
    return {.fichier = fichier, .cause = {}};
}

std::optional<EchecCopieVers> CopieVers(Partage &partage, const QString &fichier)
{
    if (QFileInfo(fichier).canonicalFilePath() == QFileInfo(partage.BaseDonnees.fichier()).canonicalFilePath())
        return EchecCopieVers::BaseElleMeme;
    store::BaseNative &base = partage.BaseDonnees.native();
    const QString provisoire = fichier + finProvisoire;
    try {
        base.prepareCopies(motDePasseBase);
        QFile::remove(provisoire);
        base.copieVers(provisoire);
        store::relitDuDisque(provisoire);
        if (!estSaine(provisoire) || !base.estDans(provisoire)) {
            QFile::remove(provisoire);
            return EchecCopieVers::Relecture;
        }
        if (store::renomme(provisoire, fichier))
            return {};
    } catch (const store::Erreur &) {
        // Told by what is given back: nothing of the copy bears its name.
    }
    QFile::remove(provisoire);
    return EchecCopieVers::Ecriture;
}

std::vector<Copie> ListeCopies(const QString &dossierProgramme)
{
    const QDir dossier(QDir(dossierProgramme).filePath(dossierSauvegardes));
    const QFileInfoList fichiers = dossier.entryInfoList({u"VarloBase-*.mdb"_qs}, QDir::Files);
    std::vector<Copie> copies;
    for (const QFileInfo &fichier : fichiers) {
        if (const std::optional<Copie> copie = lisNom(fichier))
            copies.push_back(*copie);
    }
    // Without its end the name of the first copy of a second is shorter, and so comes before the next ones.
    std::ranges::sort(copies, {}, [](const Copie &copie) {
        return std::pair(copie.ordre, QFileInfo(copie.fichier).completeBaseName());
    });
    return copies;
}
