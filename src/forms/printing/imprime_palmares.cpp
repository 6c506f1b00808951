#include "printing/imprime_palmares.h"

#include "grille/flexgrid.h"
#include "printing/feuille.h"

namespace {

// Twips
constexpr int gaucheTour = 14;
constexpr int gauchePhrase = 300;
constexpr int margeScore = 1200;
constexpr int avantLigne = 50;
constexpr int avantTour = 150;
constexpr int apresTour = 80;
constexpr int hauteurLigne = 330;

void entete(Feuille &feuille, Orientation orientation)
{
    Imprimante &papier = feuille.papier();
    papier.setOrientation(orientation);
    feuille.ecritConcours(18, papier.Width() - 4500);
    papier.FontSize = 14;
    papier.Print({});
}

void ligne(Feuille &feuille, const FlexGrid &grille, int numero)
{
    Imprimante &papier = feuille.papier();
    int gauche = gauchePhrase;
    const QString tour = grille.TextMatrix(numero, 0);
    if (!tour.isEmpty())
        feuille.saute(avantLigne + avantTour + hauteurLigne);
    papier.CurrentY += avantLigne;
    if (!tour.isEmpty()) {
        papier.FontBold = true;
        papier.CurrentY += avantTour;
        papier.CurrentX = gaucheTour;
        papier.Print(tour, false);
        // The sentence of the same line waits for the end of the round's name, or nobody could read either.
        gauche = std::max(gauche, papier.CurrentX + apresTour);
    }
    papier.FontBold = false;
    feuille.ecritRencontre(gauche, grille.TextMatrix(numero, 1), grille.TextMatrix(numero, 2), margeScore);
    feuille.saute();
}

} // namespace

bool ImprimePalmares(const Contexte &contexte, const ZonePalmares &zone)
{
    const std::unique_ptr<Feuille> feuille = Feuille::ouvre(contexte);
    if (feuille == nullptr)
        return false;
    feuille->setEntete([&] { entete(*feuille, zone.paysage ? Orientation::Paysage : Orientation::Portrait); });
    feuille->commence();
    for (int numero = zone.premiere; numero <= zone.derniere; ++numero)
        ligne(*feuille, zone.grille, numero);
    feuille->termine();
    return true;
}
