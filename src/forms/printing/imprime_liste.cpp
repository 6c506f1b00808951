#include "printing/imprime_liste.h"

#include "grille/flexgrid.h"
#include "noms/formes.h"
#include "printing/feuille.h"

#include <algorithm>
#include <vector>

namespace {

// Twips
constexpr int gaucheTitre = 2800;
constexpr int avantLigne = 150;
constexpr int hauteurTexte = 240; ///< Of a row's letters, with a little air.
// Points
constexpr int tailleLigne = 10;
constexpr int tailleTitres = 12;
constexpr int tailleTitre = 24;

/// The end of the page is tested 15 twips below the place of the next line.
constexpr MiseEnPage mise{.bordFin = MiseEnPage::Papier, .fin = 2015};

class FeuilleListe
{
public:
    FeuilleListe(Feuille &feuille, FlexGrid &grille, bool joueurs)
        : m_feuille(feuille)
        , m_papier(feuille.papier())
        , m_grille(grille)
        , m_joueurs(joueurs)
    {
        const int largeur = m_papier.Width();
        m_places = joueurs ? std::vector{150, 900, largeur - 7500, largeur - 6000, largeur - 3300, largeur - 2000}
                           : std::vector{400, 1500, 4500, 6000, largeur - 1500};
        m_places.resize(std::min(m_places.size(), std::size_t(grille.Cols())));
        m_feuille.setEntete([this] { entete(); });
    }

    void imprime();

private:
    void entete();
    void titreJoueurs();
    void titreInscriptions();
    void ligne(int numero);
    void cellules(int numero);

    Feuille &m_feuille;
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
    m_feuille.ecritTitre(tailleTitre, gaucheTitre, u"Liste des joueurs pré-enregistrés"_qs);
}

void FeuilleListe::titreInscriptions()
{
    m_feuille.ecritConcours(14, m_papier.Width() - 4500);
    m_papier.CurrentY += 200;
    m_feuille.ecritTitre(tailleTitre, gaucheTitre, u"Liste des inscriptions"_qs);
    m_papier.CurrentY += 130;
}

void FeuilleListe::cellules(int numero)
{
    QStringList textes;
    for (std::size_t c = 0; c < m_places.size(); ++c)
        textes += m_grille.TextMatrix(numero, int(c)).trimmed();
    m_feuille.ecritLigne(m_places, textes);
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
    m_feuille.commence();
    for (int numero = std::max(premiere, 1); numero <= derniere; ++numero) {
        m_feuille.saute(avantLigne + hauteurTexte);
        ligne(numero);
    }
    m_feuille.termine();
    m_papier.FontBold = false;
}

} // namespace

void ImprimeListe(const Contexte &contexte, NomForme forme, FlexGrid &grille)
{
    const std::unique_ptr<Feuille> feuille = Feuille::ouvre(contexte, mise);
    if (feuille != nullptr)
        FeuilleListe(*feuille, grille, forme == formes::listjo).imprime();
}
