#include "donnees/inscription.h"

#include "donnees/requetes.h"
#include "store/passe_erreur.h"

using store::Database;
using store::Recordset;
using store::Valeur;

namespace donnees {

namespace {

constexpr int tableauPrincipal = 1;
constexpr int premierTour = 1;
constexpr int sansAdversaire = 0;
constexpr int longueurNom = 20;
constexpr int longueurSociete = 30;
constexpr int longueurLicence = 15; ///< Of a known player.

/// Rows of one team, in the order of its members; they can be changed.
Recordset ouvreEquipe(Database &base, qint32 concours, qint64 numero)
{
    return base.OpenRecordset(
        u"SELECT * FROM [Equipes] Where [concours] = %1 and equipe = %2"_qs.arg(concours).arg(numero));
}

Recordset ouvreExemption(Database &base, qint32 concours)
{
    Recordset scores = base.OpenRecordset(u"scores", store::dbOpenTable);
    scores.Index(u"Equipekey2");
    scores.Seek(u"=", {concours, tableauPrincipal, premierTour, sansAdversaire});
    return scores;
}

Recordset ouvreEvolution(Database &base, qint32 concours, qint64 numero)
{
    Recordset evolution = base.OpenRecordset(u"Evolution", store::dbOpenTable);
    evolution.Index(u"PrimaryKey");
    evolution.Seek(u"=", {concours, numero});
    return evolution;
}

void effaceScores(Recordset &scores)
{
    scores[u"score_1"] = nullptr;
    scores[u"score_2"] = nullptr;
}

/// The latecomer becomes the opponent of the team that has the bye, whose number is given.
qint64 prendExemption(Database &base, const Equipe &equipe)
{
    Recordset scores = ouvreExemption(base, equipe.concours);
    const qint64 adversaire = scores[u"Equipe_1"].entier();
    scores.Edit();
    scores[u"Equipe_2"] = equipe.numero;
    effaceScores(scores);
    scores.Update();
    return adversaire;
}

/// The latecomer has a bye of its own, behind the other matches, its scores still open.
void ajouteExemption(Database &base, const Equipe &equipe)
{
    const Valeur derniere =
        ValeurUnique(base,
                     u"select max(rencontre) as nbres from scores where tableau = 1 and tour=1 and concours=%1"_qs.arg(
                         equipe.concours));
    Recordset scores = base.OpenRecordset(u"scores", store::dbOpenTable);
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

void ajouteMembre(Database &base, const Equipe &equipe, std::size_t place)
{
    const Membre &membre = equipe.membres[place];
    Recordset equipes = ouvreEquipe(base, equipe.concours, equipe.numero);
    equipes.AddNew();
    equipes[u"concours"] = equipe.concours;
    equipes[u"equipe"] = equipe.numero;
    equipes[u"doublon"] = qint64(place);
    equipes[u"nom"] = membre.nom;
    equipes[u"prenom"] = membre.prenom;
    equipes[u"Licence"] = membre.licence;
    equipes[u"societe"] = equipe.club;
    equipes[u"tableau"] = u"A";
    equipes[u"engage"] = 1;
    equipes.Update();
}

void poseCompteurs(Recordset &evolution)
{
    evolution[u"principal"] = 1;
    evolution[u"complement"] = 0;
}

void poseEvolution(Database &base, const Equipe &equipe)
{
    Recordset evolution = ouvreEvolution(base, equipe.concours, equipe.numero);
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

void remetCompteurs(Database &base, const Equipe &equipe)
{
    Recordset evolution = ouvreEvolution(base, equipe.concours, equipe.numero);
    if (evolution.NoMatch())
        return;
    evolution.Edit();
    poseCompteurs(evolution);
    evolution.Update();
}

} // namespace

EtatTirage EtatDuTirage(Database &base, qint32 concours)
{
    Recordset scores = base.OpenRecordset(u"scores", store::dbOpenTable);
    scores.Index(u"tirage");
    scores.Seek(u"=", {concours, tableauPrincipal, premierTour});
    if (scores.NoMatch())
        return EtatTirage::PasTire;
    const Valeur resultats =
        ValeurUnique(base,
                     u"select count(tour) as nbres from scores where tableau = 1 and "
                     u"(not isnull(score_1) and not isnull(score_2)) and concours=%1"_qs.arg(concours));
    if (resultats.entier() > 0)
        return EtatTirage::Commence;
    return ouvreExemption(base, concours).NoMatch() ? EtatTirage::SansExemption : EtatTirage::Exemption;
}

qint64 AjouteEquipe(Database &base, const Equipe &equipe, Retardataire entree)
{
    qint64 adversaire = sansAdversaire;
    // Half a team would count as known, and never be drawn.
    base.EcritEnGroupe([&] {
        for (std::size_t place = 0; place < equipe.membres.size(); ++place)
            ajouteMembre(base, equipe, place);
        poseEvolution(base, equipe);
        if (entree == Retardataire::PrendExemption)
            adversaire = prendExemption(base, equipe);
        else if (entree == Retardataire::NouvelleExemption)
            ajouteExemption(base, equipe);
    });
    return adversaire;
}

bool CorrigeEquipe(Database &base, const Equipe &equipe)
{
    bool complete = true;
    const auto etape = [&complete](const std::function<void()> &ecriture) {
        if (!PasseErreur(ecriture))
            complete = false;
    };
    etape([&] {
        base.EcritEnGroupe([&] {
            Recordset equipes = ouvreEquipe(base, equipe.concours, equipe.numero);
            for (const Membre &membre : equipe.membres) {
                etape([&] { corrigeMembre(equipes, membre, equipe.club); });
                etape([&] { equipes.MoveNext(); });
            }
            etape([&] { remetCompteurs(base, equipe); });
        });
    });
    return complete;
}

bool RetireEquipe(Database &base, qint32 concours, qint64 numero)
{
    bool retiree = false;
    base.EcritEnGroupe([&] {
        Recordset equipes = ouvreEquipe(base, concours, numero);
        while (equipes.RecordCount() > 0) {
            equipes.MoveFirst();
            equipes.Delete();
        }
        Recordset evolution = ouvreEvolution(base, concours, numero);
        retiree = !evolution.NoMatch();
        if (retiree)
            evolution.Delete();
    });
    return retiree;
}

void AjouteJoueur(Database &base, const Membre &joueur)
{
    Recordset ligne = ouvreEquipe(base, fichierJoueurs, joueur.equipe);
    ligne.AddNew();
    ligne[u"concours"] = fichierJoueurs;
    ligne[u"equipe"] = joueur.equipe;
    ligne[u"nom"] = joueur.nom.left(longueurNom);
    ligne[u"prenom"] = joueur.prenom.left(longueurNom);
    ligne[u"Licence"] = joueur.licence.left(longueurLicence);
    ligne[u"societe"] = joueur.club;
    ligne[u"ne"] = joueur.ne;
    ligne[u"sexe"] = joueur.sexe;
    ligne.Update();
}

bool CorrigeJoueur(Database &base, const Membre &joueur)
{
    Recordset ligne = ouvreEquipe(base, fichierJoueurs, joueur.equipe);
    ligne.Edit();
    ligne[u"nom"] = joueur.nom;
    ligne[u"prenom"] = joueur.prenom;
    ligne[u"Licence"] = joueur.licence;
    ligne[u"societe"] = joueur.club;
    const bool dateAcceptee = PasseErreur([&] { ligne[u"ne"] = joueur.ne; });
    ligne[u"sexe"] = joueur.sexe;
    ligne.Update();
    return dateAcceptee;
}

void RetireJoueur(Database &base, qint64 numero)
{
    base.Execute(u"delete * from equipes where concours = %1 and equipe = %2"_qs.arg(fichierJoueurs).arg(numero));
}

} // namespace donnees
