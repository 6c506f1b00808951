#include "printing/imprime_liste.h"

#include "platform/flexgrid.h"
#include "printing/cadre.h"

#include <algorithm>
#include <vector>

namespace {

// Twips
constexpr int repere = 15; ///< Below the line that is tested.
constexpr int avantLigne = 150;
constexpr int entreColonnes = 100;
constexpr int hauteurTexte = 240; ///< Of a row's letters, with a little air.
// Points
constexpr int tailleLigne = 10;
constexpr int tailleMinimale = 7;
constexpr int tailleTitres = 12;

class FeuilleListe
{
public:
    FeuilleListe(Cadre &cadre, FlexGrid &grille, bool joueurs)
        : m_cadre(cadre)
        , m_papier(cadre.papier())
        , m_grille(grille)
        , m_joueurs(joueurs)
    {
        const int largeur = m_papier.Width();
        m_places = joueurs ? std::vector{150, 900, largeur - 7500, largeur - 6000, largeur - 3300, largeur - 2000}
                           : std::vector{400, 1500, 4500, 6000, largeur - 1500};
        m_places.resize(std::min(m_places.size(), std::size_t(grille.Cols())));
        m_cadre.setEntete([this] { entete(); });
    }

    void imprime();

private:
    void entete();
    void titreJoueurs();
    void titreInscriptions();
    void ligne(int numero);
    void cellules(int numero);
    QString ajuste(const QString &texte, int largeur);
    int limite() const;

    Cadre &m_cadre;
    Imprimante &m_papier;
    FlexGrid &m_grille;
    bool m_joueurs;
    std::vector<int> m_places;
};

void FeuilleListe::entete()
{
    if (m_joueurs)
        titreJoueurs();
    else
        titreInscriptions();
    const auto trait = [this] {
        m_papier.Line(m_places.front(), m_papier.CurrentY, m_papier.Width(), m_papier.CurrentY);
    };
    trait();
    m_papier.FontSize = tailleTitres;
    m_papier.CurrentY += 120;
    cellules(0);
    m_papier.CurrentY += 120;
    trait();
    m_papier.CurrentY += 40;
    trait();
}

void FeuilleListe::titreJoueurs()
{
    m_papier.FontSize = 12;
    m_papier.CurrentX = 400;
    m_papier.CurrentY = 300;
    m_papier.Print({});
    m_papier.FontBold = true;
    m_papier.CurrentX = 500;
    m_papier.CurrentY += 200;
    m_papier.Print(u"Logiciel VarloTour"_qs);
    m_papier.FontSize = 24;
    m_papier.CurrentX = 2800;
    m_papier.Print(u"Liste des joueurs pré-enregistrés"_qs);
}

void FeuilleListe::titreInscriptions()
{
    m_papier.FontBold = false;
    m_papier.FontSize = 14;
    m_papier.CurrentX = 400;
    m_papier.CurrentY = 300;
    m_cadre.ecritConcours(m_papier.Width() - 4500);
    m_papier.FontSize = 24;
    m_papier.FontBold = true;
    m_papier.CurrentX = 2800;
    m_papier.CurrentY += 200;
    m_papier.Print(u"Liste des inscriptions"_qs);
    m_papier.CurrentY += 130;
}

/// Where no further line begins: below it the sheet ends, or the footer on a printer with wide margins.
int FeuilleListe::limite() const
{
    const int pied = m_papier.ScaleHeight() - Cadre::piedHabituel;
    return std::min(m_papier.Height() - Cadre::margePage - repere, pied - avantLigne - hauteurTexte);
}

/// Room for each column is what the next one leaves. A text that is too long gets smaller letters, and loses its end
/// where those would not be read any more.
QString FeuilleListe::ajuste(const QString &texte, int largeur)
{
    while (m_papier.TextWidth(texte) > largeur && m_papier.FontSize > tailleMinimale)
        m_papier.FontSize -= 1;
    QString ajuste = texte;
    while (m_papier.TextWidth(ajuste) > largeur && ajuste.size() > 1)
        ajuste = ajuste.left(ajuste.size() - 2) + u'…';
    return ajuste;
}

void FeuilleListe::cellules(int numero)
{
    const double taille = m_papier.FontSize;
    for (std::size_t c = 0; c < m_places.size(); ++c) {
        const int fin = c + 1 < m_places.size() ? m_places[c + 1] - entreColonnes : m_papier.ScaleWidth();
        m_papier.CurrentX = m_places[c];
        m_papier.Print(ajuste(m_grille.TextMatrix(numero, int(c)).trimmed(), fin - m_places[c]), false);
        m_papier.FontSize = taille;
    }
    m_papier.Print({});
}

void FeuilleListe::ligne(int numero)
{
    m_papier.FontSize = tailleLigne;
    m_papier.FontBold = false;
    m_papier.FontItalic = false;
    m_papier.CurrentY += avantLigne;
    cellules(numero);
    m_papier.CurrentY += avantLigne;
}

void FeuilleListe::imprime()
{
    auto [premiere, derniere] = std::minmax({m_grille.Row(), m_grille.RowSel()});
    if (derniere == 0)
        derniere = m_grille.Rows() - 1;
    m_papier.CurrentY = 0;
    m_cadre.commence();
    for (int numero = std::max(premiere, 1); numero <= derniere; ++numero) {
        m_cadre.saute(limite());
        ligne(numero);
    }
    m_cadre.termine();
    m_papier.FontBold = false;
}

} // namespace

void ImprimeListe(const Contexte &contexte, const QString &forme, FlexGrid &grille)
{
    const std::unique_ptr<Cadre> cadre = Cadre::ouvre(contexte);
    if (cadre != nullptr)
        FeuilleListe(*cadre, grille, forme == u"listjo").imprime();
}
