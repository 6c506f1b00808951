#include "registration/equipe_inscrite.h"

#include "app/routines.h"
#include "platform/formulaire.h"

using store::Recordset;
using store::Valeur;

namespace {

constexpr int tableauPrincipal = 1;
constexpr int premierTour = 1;
constexpr int sansAdversaire = 0;
constexpr int longueurNom = 20;
constexpr int longueurSociete = 30;

Recordset ouvreExemption(Partage &partage, qint32 concours)
{
    Recordset scores = partage.BaseDonnees.OpenRecordset(u"scores", store::dbOpenTable);
    scores.Index(u"Equipekey2");
    scores.Seek(u"=", {concours, tableauPrincipal, premierTour, sansAdversaire});
    return scores;
}

Recordset ouvreEvolution(Partage &partage, qint32 concours, qint64 numero)
{
    Recordset evolution = partage.BaseDonnees.OpenRecordset(u"Evolution", store::dbOpenTable);
    evolution.Index(u"PrimaryKey");
    evolution.Seek(u"=", {concours, numero});
    return evolution;
}

void effaceScores(Recordset &scores)
{
    scores[u"score_1"] = nullptr;
    scores[u"score_2"] = nullptr;
}

/// The latecomer becomes the opponent of the free team, whose number is given.
qint64 prendExemption(Partage &partage, const EquipeSaisie &equipe)
{
    Recordset scores = ouvreExemption(partage, equipe.concours);
    const qint64 adversaire = scores[u"Equipe_1"].entier();
    scores.Edit();
    scores[u"Equipe_2"] = equipe.numero;
    effaceScores(scores);
    scores.Update();
    return adversaire;
}

/// The latecomer has a free match of its own, behind the others, its scores still open.
void ajouteExemption(Partage &partage, const EquipeSaisie &equipe)
{
    const Valeur derniere = ValeurUnique(
        partage, u"select max(rencontre) as nbres from scores where tableau = 1 and tour=1 and concours=%1"_qs
                     .arg(equipe.concours));
    Recordset scores = partage.BaseDonnees.OpenRecordset(u"scores", store::dbOpenTable);
    scores.AddNew();
    scores[u"concours"] = equipe.concours;
    scores[u"Equipe_1"] = equipe.numero;
    scores[u"Equipe_2"] = sansAdversaire;
    scores[u"rencontre"] = derniere.entier() + 1;
    scores[u"tableau"] = tableauPrincipal;
    scores[u"tour"] = premierTour;
    effaceScores(scores);
    scores.Update();
}

void ajouteMembre(Partage &partage, const EquipeSaisie &equipe, std::size_t place)
{
    const Membre &membre = equipe.membres[place];
    Recordset equipes = partage.BaseDonnees.OpenRecordset(RequeteEquipe(equipe.concours, equipe.numero));
    equipes.AddNew();
    equipes[u"concours"] = equipe.concours;
    equipes[u"equipe"] = equipe.numero;
    equipes[u"doublon"] = qint64(place);
    equipes[u"nom"] = membre.nom;
    equipes[u"prenom"] = membre.prenom;
    equipes[u"Licence"] = membre.licence;
    equipes[u"societe"] = equipe.societe;
    equipes[u"tableau"] = u"A";
    equipes[u"engage"] = 1;
    equipes.Update();
}

void poseCompteurs(Recordset &evolution)
{
    evolution[u"principal"] = 1;
    evolution[u"complement"] = 0;
}

void poseEvolution(Partage &partage, const EquipeSaisie &equipe)
{
    Recordset evolution = ouvreEvolution(partage, equipe.concours, equipe.numero);
    if (evolution.NoMatch()) {
        evolution.AddNew();
        evolution[u"concours"] = equipe.concours;
        evolution[u"equipe"] = equipe.numero;
    } else {
        evolution.Edit();
    }
    poseCompteurs(evolution);
    evolution.Update();
}

/// Takes back the rows of a team that could not be written whole: half a team would count as known, and never be drawn.
void efface(Partage &partage, const EquipeSaisie &equipe)
{
    for (const QStringView table : {u"equipes", u"evolution"})
        PasseErreur([&] {
            partage.BaseDonnees.Execute(u"delete * from %1 where concours = %2 and equipe = %3"_qs.arg(table)
                                            .arg(equipe.concours)
                                            .arg(equipe.numero));
        });
}

void corrigeMembre(Recordset &equipes, const Membre &membre, const QString &societe)
{
    equipes.Edit();
    equipes[u"nom"] = membre.nom.left(longueurNom);
    equipes[u"prenom"] = membre.prenom.left(longueurNom);
    equipes[u"Licence"] = membre.licence.left(longueurNom);
    equipes[u"societe"] = societe.left(longueurSociete);
    equipes[u"tableau"] = u"A";
    equipes[u"engage"] = 1;
    equipes.Update();
}

void remetCompteurs(Partage &partage, const EquipeSaisie &equipe)
{
    Recordset evolution = ouvreEvolution(partage, equipe.concours, equipe.numero);
    if (evolution.NoMatch())
        return;
    evolution.Edit();
    poseCompteurs(evolution);
    evolution.Update();
}

} // namespace

QString RequeteEquipe(qint32 concours, qint64 numero)
{
    return u"SELECT * FROM [Equipes] Where [concours] = %1 and equipe = %2"_qs.arg(concours).arg(numero);
}

bool EquipeExiste(Partage &partage, qint32 concours, qint64 numero)
{
    return !partage.BaseDonnees.OpenRecordset(RequeteEquipe(concours, numero)).Eof();
}

std::optional<qint64> PlusHautNumero(Partage &partage, qint32 concours)
{
    const Valeur maxe =
        ValeurUnique(partage, u"SELECT max(Equipe) as maxe from Equipes Where [concours] = %1"_qs.arg(concours));
    return maxe.estNull() ? std::nullopt : std::optional(maxe.entier());
}

QString NumeroAffiche(qint64 numero)
{
    constexpr qsizetype largeur = 4;
    const QString chiffres = QString::number(numero);
    return ZeroPad(chiffres, int(std::max(chiffres.size(), largeur)));
}

std::vector<qint64> NumerosDesEquipes(Partage &partage, qint32 concours)
{
    std::vector<qint64> numeros;
    Recordset equipes = partage.BaseDonnees.OpenRecordset(
        u"SELECT distinct Concours, Equipe FROM [Equipes] Where [concours] = %1"_qs.arg(concours));
    for (; !equipes.Eof(); equipes.MoveNext())
        numeros.push_back(equipes[u"Equipe"].entier());
    return numeros;
}

EtatTirage EtatDuTirage(Partage &partage, qint32 concours)
{
    Recordset scores = partage.BaseDonnees.OpenRecordset(u"scores", store::dbOpenTable);
    scores.Index(u"tirage");
    scores.Seek(u"=", {concours, tableauPrincipal, premierTour});
    if (scores.NoMatch())
        return EtatTirage::PasTire;
    const Valeur resultats =
        ValeurUnique(partage, u"select count(tour) as nbres from scores where tableau = 1 and "
                              u"(not isnull(score_1) and not isnull(score_2)) and concours=%1"_qs.arg(concours));
    if (resultats.entier() > 0)
        return EtatTirage::Commence;
    return ouvreExemption(partage, concours).NoMatch() ? EtatTirage::SansExemption : EtatTirage::Exemption;
}

std::optional<qint64> AjouteEquipe(Partage &partage, const EquipeSaisie &equipe, Retardataire entree)
{
    qint64 adversaire = sansAdversaire;
    const auto ecritTout = [&] {
        for (std::size_t place = 0; place < equipe.membres.size(); ++place)
            ajouteMembre(partage, equipe, place);
        poseEvolution(partage, equipe);
        if (entree == Retardataire::PrendExemption)
            adversaire = prendExemption(partage, equipe);
        else if (entree == Retardataire::NouvelleExemption)
            ajouteExemption(partage, equipe);
    };
    bool ecrite = false;
    const bool durable = PasseErreur([&] {
        partage.BaseDonnees.EcritEnGroupe([&] {
            ecrite = PasseErreur(ecritTout);
            if (!ecrite)
                efface(partage, equipe);
        });
    });
    return ecrite && durable ? std::optional(adversaire) : std::nullopt;
}

bool CorrigeEquipe(Partage &partage, const EquipeSaisie &equipe)
{
    bool complete = true;
    const auto etape = [&complete](const std::function<void()> &ecriture) {
        if (!PasseErreur(ecriture))
            complete = false;
    };
    etape([&] {
        partage.BaseDonnees.EcritEnGroupe([&] {
            Recordset equipes = partage.BaseDonnees.OpenRecordset(RequeteEquipe(equipe.concours, equipe.numero));
            for (const Membre &membre : equipe.membres) {
                etape([&] { corrigeMembre(equipes, membre, equipe.societe); });
                etape([&] { equipes.MoveNext(); });
            }
            etape([&] { remetCompteurs(partage, equipe); });
        });
    });
    return complete;
}

bool RetireEquipe(Partage &partage, qint32 concours, qint64 numero)
{
    bool retiree = false;
    partage.BaseDonnees.EcritEnGroupe([&] {
        Recordset equipes = partage.BaseDonnees.OpenRecordset(RequeteEquipe(concours, numero));
        while (equipes.RecordCount() > 0) {
            equipes.MoveFirst();
            equipes.Delete();
        }
        Recordset evolution = ouvreEvolution(partage, concours, numero);
        retiree = !evolution.NoMatch();
        if (retiree)
            evolution.Delete();
    });
    return retiree;
}
