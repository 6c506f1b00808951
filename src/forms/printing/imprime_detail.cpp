#include "printing/imprime_detail.h"

#include "donnees/clubs.h"
#include "donnees/equipes.h"
#include "grille/flexgrid.h"
#include "partage/partage.h"
#include "printing/feuille.h"
#include "store/passe_erreur.h"

#include <algorithm>
#include <array>
#include <span>
#include <vector>

namespace {

// Twips
constexpr int gaucheTour = 150;
constexpr int gauchePhrase = 300;
constexpr std::array colonnesMembre{700, 4100, 5100}; ///< Name, licence, club.
constexpr int ecartNumero = 20;
constexpr int margeScore = 800;
constexpr int avantLigne = 50;
constexpr int avantTour = 150;
constexpr int avantMembre = 100;
constexpr int hauteurTour = 300; ///< Of the line that names a round.
// Points
constexpr int tailleTexte = 12;
constexpr int tailleEntreEquipes = 14;

const QString bat = u" bat "_qs;

class FeuilleDetail
{
public:
    FeuilleDetail(const Contexte &contexte, Feuille &feuille, Orientation orientation)
        : m_partage(contexte.partage)
        , m_feuille(feuille)
        , m_papier(feuille.papier())
        , m_orientation(orientation)
    {
        m_feuille.setEntete([this] { entete(); });
    }

    void equipes();
    void palmares(const ZonePalmares &zone, MembresMontres montres);

private:
    void entete();
    void equipe(std::span<const donnees::Membre> membres);
    void tour(const QString &nom);
    void membresDeLaPhrase(const QString &phrase, MembresMontres montres);
    void membres(const QString &phrase);
    void ligneMembre(const QString &puce, const donnees::Membre &membre, const QString &club);
    QString clubConnu(const donnees::Membre &membre) const;

    Partage &m_partage;
    Feuille &m_feuille;
    Imprimante &m_papier;
    Orientation m_orientation;
    QString m_tour; ///< Name under which the current match stands.
};

void FeuilleDetail::entete()
{
    m_papier.setOrientation(m_orientation);
    m_feuille.ecritConcours(14, m_papier.Width() - 4500);
    m_feuille.ecritTitre(18, 4000, u"Liste des équipes"_qs);
    m_papier.FontSize = tailleTexte;
    m_papier.FontBold = false;
    m_papier.Print({});
}

/// The club that the licence has among the known players, or else the one entered with the team.
QString FeuilleDetail::clubConnu(const donnees::Membre &membre) const
{
    QString club = membre.club;
    PasseErreur([&] {
        if (const auto connu = donnees::JoueurConnu(m_partage.BaseDonnees, membre.licence))
            club = connu->club;
    });
    return club;
}

void FeuilleDetail::ligneMembre(const QString &puce, const donnees::Membre &membre, const QString &club)
{
    m_feuille.ecritLigne(colonnesMembre, {puce + membre.nom + u' ' + membre.prenom, membre.licence, club});
    m_feuille.saute();
}

void FeuilleDetail::equipes()
{
    m_feuille.commence();
    PasseErreur([&] {
        const std::vector<donnees::Membre> joueurs =
            donnees::MembresDuConcours(m_partage.BaseDonnees, m_partage.ConcoursCourant);
        const auto pas = std::size_t(std::max<int>(m_partage.NbJoueurs, 1));
        for (std::size_t i = 0; i < joueurs.size(); i += pas)
            equipe(std::span(joueurs).subspan(i, std::min(pas, joueurs.size() - i)));
    });
    m_feuille.termine();
}

/// The next players in the list, as many as a team has: a team that lacks one borrows from the team behind it.
void FeuilleDetail::equipe(std::span<const donnees::Membre> membres)
{
    m_papier.FontSize = tailleTexte;
    m_papier.CurrentY += avantMembre;
    m_feuille.ecrit(gauchePhrase, QString::number(membres.front().equipe), colonnesMembre.front() - ecartNumero);
    for (const donnees::Membre &membre : membres) {
        const QString club = clubConnu(membre);
        ligneMembre(u"- "_qs, membre, donnees::EstPanache(club) ? u"."_qs : club);
    }
    m_papier.FontSize = tailleEntreEquipes;
}

void FeuilleDetail::palmares(const ZonePalmares &zone, MembresMontres montres)
{
    m_feuille.commence();
    for (int ligne = zone.premiere; ligne <= zone.derniere; ++ligne) {
        const QString nomTour = zone.grille.TextMatrix(ligne, 0);
        const QString phrase = zone.grille.TextMatrix(ligne, 1);
        // A round and its first match stay together, and above the footer.
        if (!nomTour.isEmpty())
            m_feuille.garde(hauteurTour);
        m_papier.CurrentY += avantLigne;
        if (!nomTour.isEmpty())
            tour(nomTour);
        m_feuille.ecritRencontre(gauchePhrase, phrase, zone.grille.TextMatrix(ligne, 2), margeScore);
        PasseErreur([&] { membresDeLaPhrase(phrase, montres); });
        m_feuille.saute();
    }
    m_feuille.termine();
}

void FeuilleDetail::tour(const QString &nom)
{
    m_tour = nom;
    m_papier.FontBold = true;
    m_papier.CurrentY += avantTour;
    m_papier.CurrentX = gaucheTour;
    m_papier.Print(nom);
    m_papier.FontBold = false;
}

void FeuilleDetail::membresDeLaPhrase(const QString &phrase, MembresMontres montres)
{
    if (phrase.contains(bat)) {
        const QStringList cotes = phrase.split(bat);
        if (montres.gagnants)
            membres(cotes[0]);
        if (montres.perdants)
            membres(cotes[1]);
    } else if (m_tour == m_partage.mes(63)) {
        membres(phrase);
    }
}

/// Members of the team whose text, which begins with its number, is \p phrase.
void FeuilleDetail::membres(const QString &phrase)
{
    const QString numero = phrase.trimmed().section(u' ', 0, 0);
    if (store::Val(numero) <= 0)
        return;
    m_papier.FontSize = tailleTexte;
    for (const donnees::Membre &membre :
         donnees::MembresDeLEquipe(m_partage.BaseDonnees, m_partage.ConcoursCourant, numero.toLongLong())) {
        m_papier.CurrentY += avantMembre;
        ligneMembre(u"- "_qs + numero + u' ', membre, clubConnu(membre));
    }
}

} // namespace

bool ImprimeDetail(const Contexte &contexte)
{
    const std::unique_ptr<Feuille> feuille = Feuille::ouvre(contexte);
    if (feuille == nullptr)
        return false;
    FeuilleDetail(contexte, *feuille, Orientation::Portrait).equipes();
    return true;
}

bool ImprimeDetail(const Contexte &contexte, const ZonePalmares &zone, MembresMontres montres)
{
    const std::unique_ptr<Feuille> feuille = Feuille::ouvre(contexte);
    if (feuille == nullptr)
        return false;
    FeuilleDetail(contexte, *feuille, zone.paysage ? Orientation::Paysage : Orientation::Portrait)
        .palmares(zone, montres);
    return true;
}
