#include "printing/imprime_fiches.h"

#include "donnees/equipes.h"
#include "printing/feuille.h"

namespace {

constexpr int colonnes = 2;
constexpr int rangees = 4;
// Twips
constexpr int marge = 260; ///< Inside a slip.
constexpr int hautEquipe[] = {1100, 2450}; ///< First line of each team, from the top of the slip.
constexpr int largeurCase = 1100;
constexpr int hauteurCase = 1000;
constexpr int ecartCase = 200;
// Points
constexpr double tailleEntete = 12;
constexpr double tailleNumero = 20;
constexpr double tailleNoms = 12;

/// Slips are cut out of the sheet: no foot, and heads of their own.
constexpr MiseEnPage mise{.bordFin = MiseEnPage::Zone, .fin = 0, .pied = 0, .numerotee = false};

class Fiches
{
public:
    Fiches(const Contexte &contexte, Feuille &feuille, const moteur::RapportTour &rapport, MotsFiche mots)
        : m_partage(contexte.partage)
        , m_feuille(feuille)
        , m_papier(feuille.papier())
        , m_rapport(rapport)
        , m_mots(std::move(mots))
    {
    }

    void imprime();

private:
    void fiche(const moteur::PaireRapportee &paire, int gauche, int haut);
    void equipe(int numero, int gauche, int haut);
    void cadre(int gauche, int haut, int largeur, int hauteur);
    void traitsDeCoupe();
    int largeur() const { return m_papier.ScaleWidth() / colonnes; }
    int hauteur() const { return m_papier.ScaleHeight() / rangees; }

    Partage &m_partage;
    Feuille &m_feuille;
    Imprimante &m_papier;
    const moteur::RapportTour &m_rapport;
    MotsFiche m_mots;
};

void Fiches::imprime()
{
    m_papier.setOrientation(Orientation::Portrait);
    for (std::size_t i = 0; i < m_rapport.paires.size(); ++i) {
        const int place = int(i) % (colonnes * rangees);
        if (place == 0) {
            if (i > 0)
                m_papier.NewPage();
            traitsDeCoupe();
        }
        fiche(m_rapport.paires[i], place % colonnes * largeur(), place / colonnes * hauteur());
    }
    m_papier.EndDoc();
}

void Fiches::traitsDeCoupe()
{
    constexpr int tiret = 120;
    for (int x = 0; x + tiret < m_papier.ScaleWidth(); x += 2 * tiret) {
        for (int rangee = 1; rangee < rangees; ++rangee)
            m_papier.Line(x, rangee * hauteur(), x + tiret, rangee * hauteur());
    }
    for (int y = 0; y + tiret < m_papier.ScaleHeight(); y += 2 * tiret)
        m_papier.Line(largeur(), y, largeur(), y + tiret);
}

void Fiches::fiche(const moteur::PaireRapportee &paire, int gauche, int haut)
{
    const int fin = gauche + largeur() - marge;
    m_papier.FontSize = tailleEntete;
    m_papier.FontBold = true;
    m_papier.CurrentY = haut + marge;
    m_feuille.ecrit(gauche + marge, m_mots.tour, gauche + largeur() / 2);
    m_papier.FontBold = false;
    m_feuille.ecrit(gauche + largeur() / 2, m_mots.terrain + u" : ________"_qs, fin);
    m_papier.CurrentY = haut + marge + 360;
    m_feuille.ecrit(gauche + marge, m_partage.DateConcours + u' ' + m_partage.LieuConcours,
                    fin - largeurCase - ecartCase);
    m_feuille.ecrit(fin - largeurCase, m_mots.score, fin);
    equipe(paire.equipe1, gauche, haut + hautEquipe[0]);
    if (paire.exempt()) {
        m_papier.FontSize = tailleNoms;
        m_papier.CurrentY = haut + hautEquipe[1];
        m_feuille.ecrit(gauche + marge, m_mots.exempte, fin);
    } else {
        equipe(paire.equipe2, gauche, haut + hautEquipe[1]);
    }
}

/// Number, club and first member, and the box for the score.
void Fiches::equipe(int numero, int gauche, int haut)
{
    const int fin = gauche + largeur() - marge;
    const int finTexte = fin - largeurCase - ecartCase;
    const auto premier = donnees::PremierMembre(m_partage.BaseDonnees, m_partage.ConcoursCourant, numero);
    m_papier.FontSize = tailleNumero;
    m_papier.FontBold = true;
    m_papier.CurrentY = haut;
    m_feuille.ecrit(gauche + marge, QString::number(numero), gauche + marge + 1100);
    m_papier.FontBold = false;
    m_papier.FontSize = tailleNoms;
    m_papier.CurrentY = haut + 60;
    m_feuille.ecrit(gauche + marge + 1150, premier ? premier->nom + u' ' + premier->prenom : QString(), finTexte);
    m_papier.CurrentY = haut + 400;
    m_feuille.ecrit(gauche + marge + 1150, premier ? premier->club : QString(), finTexte);
    cadre(fin - largeurCase, haut, largeurCase, hauteurCase);
}

void Fiches::cadre(int gauche, int haut, int largeur, int hauteur)
{
    m_papier.Line(gauche, haut, gauche + largeur, haut);
    m_papier.Line(gauche, haut + hauteur, gauche + largeur, haut + hauteur);
    m_papier.Line(gauche, haut, gauche, haut + hauteur);
    m_papier.Line(gauche + largeur, haut, gauche + largeur, haut + hauteur);
}

} // namespace

void ImprimeFiches(const Contexte &contexte, const moteur::RapportTour &rapport, const MotsFiche &mots)
{
    if (const std::unique_ptr<Feuille> feuille = Feuille::ouvre(contexte, mise))
        Fiches(contexte, *feuille, rapport, mots).imprime();
}
