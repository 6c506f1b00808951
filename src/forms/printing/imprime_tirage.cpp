#include "printing/imprime_tirage.h"

#include "donnees/clubs.h"
#include "donnees/equipes.h"
#include "donnees/rencontres.h"
#include "engine/rangs.h"
#include "engine/routines_tirage.h"
#include "partage/routines.h"
#include "printing/feuille.h"
#include "store/passe_erreur.h"

#include <array>

namespace {

// Twips
constexpr std::array colonnes{300, 900, 6000, 6500, 7000, 7500, 8500, 9500}; ///< Of the ranking.
constexpr int finPosition = 735;
constexpr int gaucheTiret = 764;
constexpr int traitGauche = 300;
constexpr int traitDroit = 10500;
constexpr int margeTerrain = 1800; ///< From the edge of the paper.
constexpr int gaucheMembre = 1450;
constexpr int pasRang = 350;
constexpr int hauteurRang = 322;
constexpr int hauteurMembre = 276;
constexpr int pasRencontre = 400;
constexpr int hauteurRencontre = 760;
// Characters
constexpr int largeurEquipe = 3;

constexpr MiseEnPage mise{.bordFin = MiseEnPage::Papier, .pied = 800};

/// A drawn sheet of one round or of the ranking.
class FeuilleTirage
{
public:
    FeuilleTirage(const Contexte &contexte, Feuille &feuille, ModeTirage mode, QString titre, QString etat)
        : m_contexte(contexte)
        , m_feuille(feuille)
        , m_papier(feuille.papier())
        , m_mode(mode)
        , m_titre(std::move(titre))
        , m_etat(std::move(etat))
    {
        m_feuille.setEntete([this] { entete(); });
    }

    void tirage(int tour);
    void classement(bool detail);

private:
    void entete();
    void titresColonnes();
    void rencontre(qint64 equipe1, qint64 equipe2);
    void cote(int x, const QString &numero, const QString &club, int fin);
    QString clubDe(qint64 equipe) const;
    void ligne(const moteur::LigneClassement &rang, const std::optional<int> &position);
    QStringList membres(qint64 equipe) const;
    void imprimeMembres(const QStringList &joueurs);
    QString noteClub(const QString &licence) const;

    const Contexte &m_contexte;
    Feuille &m_feuille;
    Imprimante &m_papier;
    ModeTirage m_mode;
    QString m_titre;
    QString m_etat;
};

void FeuilleTirage::entete()
{
    m_papier.setOrientation(Orientation::Portrait);
    m_feuille.ecritConcours(18, m_papier.ScaleWidth() - 4500);
    m_feuille.ecritTitre(28, 2800, m_titre);
    m_papier.FontSize = 14;
    m_papier.Print({});
    if (m_mode == ModeTirage::Tirage) {
        m_papier.CurrentX = m_papier.Width() - margeTerrain;
        m_papier.Print(u"Terrain"_qs, false);
    } else {
        m_papier.FontItalic = true;
        m_feuille.ecrit(traitGauche, m_etat, m_papier.ScaleWidth());
        m_papier.Print({});
        m_papier.FontItalic = false;
    }
    titresColonnes();
}

void FeuilleTirage::titresColonnes()
{
    const auto trait = [this] { m_papier.Line(traitGauche, m_papier.CurrentY, traitDroit, m_papier.CurrentY); };
    m_papier.CurrentY += 350;
    trait();
    m_papier.CurrentY += 120;
    if (m_mode == ModeTirage::Classement)
        m_feuille.ecritLigne(colonnes,
                             {u"Clt  "_qs, u"Equipe"_qs, u"J"_qs, u"G"_qs, u"P"_qs, u"Pp"_qs, u"Pc"_qs, u"Ga"_qs});
    trait();
    m_papier.CurrentY += 40;
    trait();
}

QString FeuilleTirage::clubDe(qint64 equipe) const
{
    Partage &partage = m_contexte.partage;
    const auto premier = donnees::PremierMembre(partage.BaseDonnees, partage.ConcoursCourant, equipe);
    return u" ("_qs + (premier ? premier->club : QString()) + u')';
}

void FeuilleTirage::tirage(int tour)
{
    Partage &partage = m_contexte.partage;
    m_feuille.commence();
    const std::vector<donnees::Rencontre> rencontres =
        donnees::RencontresDuTour(partage.BaseDonnees, partage.ConcoursCourant, tour, donnees::OrdreDuTour::Tirage);
    if (!rencontres.empty()) {
        m_papier.CurrentX = 0;
        m_papier.Print(u"        "_qs + QString::number(rencontres.size() * 2) + u" Equipes"_qs);
        m_papier.CurrentY += 150;
        bool premiere = true;
        for (const donnees::Rencontre &jouee : rencontres) {
            if (!premiere) {
                m_feuille.saute(pasRencontre + hauteurRencontre);
                m_papier.CurrentY += pasRencontre;
            }
            premiere = false;
            PasseErreur([&] { rencontre(jouee.equipe1, jouee.equipe2); });
        }
        m_feuille.saute();
    }
    m_feuille.termine();
}

void FeuilleTirage::rencontre(qint64 equipe1, qint64 equipe2)
{
    const bool exempt = equipe2 == 0;
    const int milieu = m_papier.Width() / 2;
    const auto numero = [](qint64 equipe) { return QString::number(equipe).rightJustified(largeurEquipe); };
    cote(100, numero(equipe1), clubDe(equipe1) + u' ', milieu - ecartTextes);
    m_papier.CurrentY -= 200;
    cote(milieu, exempt ? QString() : numero(equipe2), exempt ? m_contexte.partage.mes(42) : clubDe(equipe2) + u' ',
         m_papier.Width() - margeTerrain - ecartTextes);
    m_papier.Print({});
    m_papier.CurrentY += 150;
    m_papier.Line(0, m_papier.CurrentY, m_papier.Width(), m_papier.CurrentY);
}

/// One team: its number large, its club beside it a little lower.
void FeuilleTirage::cote(int x, const QString &numero, const QString &club, int fin)
{
    m_papier.CurrentX = x;
    m_papier.FontSize = 33;
    m_papier.FontBold = true;
    m_papier.Print(numero, false);
    m_papier.CurrentY += 200;
    m_papier.FontSize = 14;
    m_papier.FontBold = false;
    m_feuille.ecrit(m_papier.CurrentX, club, fin);
}

void FeuilleTirage::classement(bool detail)
{
    m_feuille.commence();
    m_papier.CurrentY += 550;
    const std::vector<moteur::LigneClassement> rangs = LitClassement(m_contexte.partage);
    const std::vector<std::optional<int>> positions = moteur::positionsParNiveau(rangs);
    for (std::size_t i = 0; i < rangs.size(); ++i) {
        QStringList joueurs;
        if (detail)
            PasseErreur([&] { joueurs = membres(rangs[i].equipe); });
        if (i > 0) {
            m_feuille.saute(pasRang + hauteurRang);
            // A team and its players stand on one page.
            if (!joueurs.empty())
                m_feuille.garde(2 * pasRang + hauteurRang + int(joueurs.size() - 1) * hauteurMembre);
            m_papier.CurrentY += pasRang;
        }
        PasseErreur([&] { ligne(rangs[i], positions[i]); });
        if (detail)
            imprimeMembres(joueurs);
    }
    m_feuille.saute();
    m_feuille.termine();
}

/// The dash has a place of its own: the blanks that align a position are narrower than its figures.
void FeuilleTirage::ligne(const moteur::LigneClassement &rang, const std::optional<int> &position)
{
    if (position)
        m_feuille.ecrit(colonnes[0], *position < 100 ? aligneDroite(*position, 4) : QString::number(*position),
                        finPosition);
    m_feuille.ecrit(gaucheTiret, u"-"_qs, colonnes[1]);
    m_feuille.ecrit(colonnes[1], aligneDroite(rang.equipe, 4), colonnes[2]);
    m_papier.FontSize = 10;
    m_feuille.ecrit(m_papier.CurrentX, clubDe(rang.equipe), colonnes[2] - ecartTextes);
    m_papier.FontSize = 14;
    const auto points = [](const std::optional<int> &nombre) {
        return aligneDroite(nombre ? QString::number(*nombre) : QString(), 4);
    };
    m_feuille.ecritLigne(std::span(colonnes).subspan(2),
                         {aligneDroite(rang.gagnées + rang.perdues, 2), aligneDroite(rang.gagnées, 2),
                          aligneDroite(rang.perdues, 2), points(rang.pp), points(rang.pc), points(rang.ga)});
}

/// A line for each player of a team.
QStringList FeuilleTirage::membres(qint64 equipe) const
{
    Partage &partage = m_contexte.partage;
    QStringList joueurs;
    for (const donnees::Membre &membre :
         donnees::MembresDeLEquipe(partage.BaseDonnees, partage.ConcoursCourant, equipe)) {
        const QString note = donnees::EstPanache(membre.club) ? noteClub(membre.licence) : QString();
        const bool vide = ((membre.nom + membre.prenom + membre.licence).trimmed() + note).isEmpty();
        joueurs += vide ? u"."_qs : membre.nom + u' ' + membre.prenom + u" ("_qs + membre.licence + note + u')';
    }
    return joueurs;
}

void FeuilleTirage::imprimeMembres(const QStringList &joueurs)
{
    const bool gras = m_papier.FontBold;
    m_papier.CurrentY += pasRang;
    m_papier.FontSize = 12;
    m_papier.FontBold = false;
    for (const QString &joueur : joueurs) {
        m_feuille.ecrit(gaucheMembre, joueur, m_papier.ScaleWidth());
        m_papier.Print({});
        m_feuille.saute();
    }
    m_papier.FontSize = 14;
    m_papier.FontBold = gras;
}

/// The club that a member of a mixed team has among the known players.
QString FeuilleTirage::noteClub(const QString &licence) const
{
    QString note;
    PasseErreur([&] {
        if (const auto joueur = donnees::JoueurConnu(m_contexte.partage.BaseDonnees, licence))
            note = u" -"_qs + joueur->club + u'-';
    });
    return note;
}

} // namespace

void ImprimeTirage(const Contexte &contexte, ModeTirage mode, bool detail, int tour, const QString &etat)
{
    const std::unique_ptr<Feuille> feuille = Feuille::ouvre(contexte, mise);
    if (feuille == nullptr)
        return;
    const QString titre = mode == ModeTirage::Tirage ? u"Tour N° "_qs + QString::number(tour) : u"Classement"_qs;
    FeuilleTirage contenu(contexte, *feuille, mode, titre, etat);
    if (mode == ModeTirage::Tirage)
        contenu.tirage(tour);
    else
        contenu.classement(detail);
}
