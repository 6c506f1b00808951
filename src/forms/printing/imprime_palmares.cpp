#include "printing/imprime_palmares.h"

#include "grille/flexgrid.h"
#include "printing/cadre.h"

namespace {

// Twips
constexpr int gaucheTour = 14;
constexpr int gauchePhrase = 300;
constexpr int margeScore = 1200;
constexpr int avantLigne = 50;
constexpr int avantTour = 150;
constexpr int apresTour = 80;
constexpr int hauteurLigne = 330;

void entete(Cadre &cadre, Orientation orientation)
{
    Imprimante &papier = cadre.papier();
    papier.setOrientation(orientation);
    cadre.ecritConcours(18, papier.Width() - 4500);
    papier.FontSize = 14;
    papier.Print({});
}

void ligne(Cadre &cadre, const FlexGrid &grille, int numero)
{
    Imprimante &papier = cadre.papier();
    int gauche = gauchePhrase;
    const QString tour = grille.TextMatrix(numero, 0);
    if (!tour.isEmpty())
        cadre.saute(avantLigne + avantTour + hauteurLigne);
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
    cadre.ecritRencontre(gauche, grille.TextMatrix(numero, 1), grille.TextMatrix(numero, 2), margeScore);
    cadre.saute();
}

} // namespace

bool ImprimePalmares(const Contexte &contexte, const ZonePalmares &zone)
{
    const std::unique_ptr<Cadre> cadre = Cadre::ouvre(contexte);
    if (cadre == nullptr)
        return false;
    cadre->setEntete([&] { entete(*cadre, zone.paysage ? Orientation::Paysage : Orientation::Portrait); });
    cadre->commence();
    for (int numero = zone.premiere; numero <= zone.derniere; ++numero)
        ligne(*cadre, zone.grille, numero);
    cadre->termine();
    return true;
}
