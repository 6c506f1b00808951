#include "printing/imprime_detail.h"

#include "app/routines.h"
#include "engine/clubs.h"
#include "platform/flexgrid.h"
#include "printing/cadre.h"
#include "store/collation.h"

#include <algorithm>
#include <vector>

using store::Recordset;

namespace {

// Twips
constexpr int gaucheTour = 150;
constexpr int gauchePhrase = 300;
constexpr int gaucheNom = 700;
constexpr int gaucheLicence = 4100;
constexpr int gaucheClub = 5100;
constexpr int ecartColonnes = 120;
constexpr int margeScore = 800;
constexpr int avantLigne = 50;
constexpr int avantTour = 150;
constexpr int avantMembre = 100;
constexpr int hauteurTour = 300; ///< Of the line that names a round.
// Points
constexpr int tailleTexte = 12;
constexpr int tailleEntreEquipes = 14;

const QString bat = u" bat "_qs;

struct Membre
{
    QString licence;
    QString nom;
    QString societe;
};

class FeuilleDetail
{
public:
    FeuilleDetail(const Contexte &contexte, Cadre &cadre, Orientation orientation)
        : m_partage(contexte.partage)
        , m_cadre(cadre)
        , m_papier(cadre.papier())
        , m_orientation(orientation)
    {
        m_cadre.setEntete([this] { entete(); });
    }

    void equipes();
    void palmares(const ZonePalmares &zone, MembresMontres montres);

private:
    void entete();
    void equipe(Recordset &joueurs);
    void tour(const QString &nom);
    void rencontre(const QString &phrase, const QString &score);
    void membresDuGagnant(const QString &phrase, MembresMontres montres);
    void membres(const QString &phrase);
    void ligneMembre(const QString &puce, const Membre &membre);
    static Membre lit(const Recordset &joueur);
    QString clubConnu(const Membre &membre) const;
    int limite() const { return m_papier.ScaleHeight() - Cadre::margePage; }

    Partage &m_partage;
    Cadre &m_cadre;
    Imprimante &m_papier;
    Orientation m_orientation;
    QString m_tour; ///< Name under which the current match stands.
};

void FeuilleDetail::entete()
{
    m_papier.setOrientation(m_orientation);
    m_papier.FontBold = false;
    m_papier.FontSize = 14;
    m_papier.CurrentX = 400;
    m_papier.CurrentY = 300;
    m_cadre.ecritConcours(m_papier.Width() - 4500);
    m_papier.FontSize = 18;
    m_papier.FontBold = true;
    m_papier.CurrentX = 4000;
    m_papier.Print(u"Liste des équipes"_qs);
    m_papier.FontSize = tailleTexte;
    m_papier.FontBold = false;
    m_papier.Print({});
}

Membre FeuilleDetail::lit(const Recordset &joueur)
{
    return {joueur[u"licence"].texte(), joueur[u"nom"].texte() + u' ' + joueur[u"prenom"].texte(),
            joueur[u"societe"].texte()};
}

/// The club that the licence has among the known players, or else the one entered with the team.
QString FeuilleDetail::clubConnu(const Membre &membre) const
{
    QString club = membre.societe;
    PasseErreur([&] {
        const Recordset connu = m_partage.BaseDonnees.OpenRecordset(
            u"select * from equipes where concours= 0  and licence= "_qs + EntreApostrophes(membre.licence),
            store::dbOpenSnapshot);
        if (!connu.Eof())
            club = connu[u"societe"].texte();
    });
    return club;
}

void FeuilleDetail::ligneMembre(const QString &puce, const Membre &membre)
{
    m_papier.CurrentX = gaucheNom;
    ecritJusque(m_papier, puce + membre.nom, gaucheLicence - ecartColonnes);
    m_papier.CurrentX = gaucheLicence;
    ecritJusque(m_papier, membre.licence, gaucheClub - ecartColonnes);
    m_papier.CurrentX = gaucheClub;
    m_papier.Print(membre.societe);
    m_cadre.saute(limite());
}

void FeuilleDetail::equipes()
{
    m_cadre.commence();
    PasseErreur([&] {
        Recordset joueurs = m_partage.BaseDonnees.OpenRecordset(
            u"select * from equipes where concours= %1 order by equipe"_qs.arg(m_partage.ConcoursCourant),
            store::dbOpenSnapshot);
        while (!joueurs.Eof())
            equipe(joueurs);
    });
    m_cadre.termine();
}

/// The next players in the list, as many as a team has: a team that lacks one borrows from the team behind it.
void FeuilleDetail::equipe(Recordset &joueurs)
{
    const QString numero = joueurs[u"Equipe"].texte();
    std::vector<Membre> membresLus;
    const int nombre = std::max<int>(m_partage.NbJoueurs, 1);
    for (int i = 0; i < nombre && !joueurs.Eof(); ++i, joueurs.MoveNext())
        membresLus.push_back(lit(joueurs));
    m_papier.FontSize = tailleTexte;
    m_papier.CurrentY += avantMembre;
    m_papier.CurrentX = gauchePhrase;
    m_papier.Print(numero, false);
    for (Membre &membre : membresLus) {
        membre.societe = clubConnu(membre);
        if (store::CompareFrancais(membre.societe, moteur::clubPanache) == 0)
            membre.societe = u"."_qs;
        ligneMembre(u"- "_qs, membre);
    }
    m_papier.FontSize = tailleEntreEquipes;
}

void FeuilleDetail::palmares(const ZonePalmares &zone, MembresMontres montres)
{
    m_cadre.commence();
    for (int ligne = zone.premiere; ligne <= zone.derniere; ++ligne) {
        const QString nomTour = zone.grille.TextMatrix(ligne, 0);
        const QString phrase = zone.grille.TextMatrix(ligne, 1);
        // A round and its first match stay together, and above the footer.
        if (!nomTour.isEmpty())
            m_cadre.saute(limite() - hauteurTour);
        m_papier.CurrentY += avantLigne;
        if (!nomTour.isEmpty())
            tour(nomTour);
        rencontre(phrase, zone.grille.TextMatrix(ligne, 2));
        PasseErreur([&] { membresDuGagnant(phrase, montres); });
        m_cadre.saute(limite());
    }
    m_cadre.termine();
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

void FeuilleDetail::rencontre(const QString &phrase, const QString &score)
{
    const int gaucheScore = m_papier.Width() - (m_papier.TextWidth(score) + margeScore);
    m_papier.CurrentX = gauchePhrase;
    ecritJusque(m_papier, phrase, gaucheScore);
    m_papier.CurrentX = gaucheScore;
    m_papier.Print(score);
}

void FeuilleDetail::membresDuGagnant(const QString &phrase, MembresMontres montres)
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
    Recordset joueurs = m_partage.BaseDonnees.OpenRecordset(
        u"select * from equipes where concours= %1 and equipe=%2"_qs.arg(m_partage.ConcoursCourant).arg(numero),
        store::dbOpenSnapshot);
    for (; !joueurs.Eof(); joueurs.MoveNext()) {
        Membre membre = lit(joueurs);
        membre.societe = clubConnu(membre);
        m_papier.CurrentY += avantMembre;
        ligneMembre(u"- "_qs + numero + u' ', membre);
    }
}

} // namespace

bool ImprimeDetail(const Contexte &contexte)
{
    const std::unique_ptr<Cadre> cadre = Cadre::ouvre(contexte);
    if (cadre == nullptr)
        return false;
    FeuilleDetail(contexte, *cadre, Orientation::Portrait).equipes();
    return true;
}

bool ImprimeDetail(const Contexte &contexte, const ZonePalmares &zone, MembresMontres montres)
{
    const std::unique_ptr<Cadre> cadre = Cadre::ouvre(contexte);
    if (cadre == nullptr)
        return false;
    FeuilleDetail(contexte, *cadre, zone.paysage ? Orientation::Paysage : Orientation::Portrait)
        .palmares(zone, montres);
    return true;
}
