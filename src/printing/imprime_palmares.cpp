#include "printing/imprime_palmares.h"

#include "platform/flexgrid.h"
#include "printing/cadre.h"

namespace {

// Twips
constexpr int gaucheTour = 14;
constexpr int gauchePhrase = 300;
constexpr int margeScore = 1200;
constexpr int avantLigne = 50;
constexpr int avantTour = 150;
constexpr int apresTour = 80;

void entete(Cadre &cadre, Orientation orientation)
{
    Imprimante &papier = cadre.papier();
    papier.setOrientation(orientation);
    papier.FontBold = false;
    papier.FontSize = 18;
    papier.CurrentX = 400;
    papier.CurrentY = 300;
    cadre.ecritConcours(papier.Width() - 4500);
    papier.FontSize = 14;
    papier.FontBold = false;
    papier.Print({});
}

void ligne(Imprimante &papier, const FlexGrid &grille, int numero)
{
    papier.CurrentY += avantLigne;
    const QString tour = grille.TextMatrix(numero, 0);
    if (!tour.isEmpty()) {
        papier.FontBold = true;
        papier.CurrentY += avantTour;
        papier.CurrentX = gaucheTour;
        papier.Print(tour, false);
    }
    papier.FontBold = false;
    const QString score = grille.TextMatrix(numero, 2);
    const int gaucheScore = papier.Width() - (papier.TextWidth(score) + margeScore);
    // The name of the round stands on the same line; the sentence waits for its end, or nobody could read either.
    papier.CurrentX = tour.isEmpty() ? gauchePhrase : std::max(gauchePhrase, papier.CurrentX + apresTour);
    ecritJusque(papier, grille.TextMatrix(numero, 1), gaucheScore);
    papier.CurrentX = gaucheScore;
    papier.Print(score);
}

} // namespace

bool ImprimePalmares(const Contexte &contexte, const ZonePalmares &zone)
{
    const std::unique_ptr<Cadre> cadre = Cadre::ouvre(contexte);
    if (cadre == nullptr)
        return false;
    Imprimante &papier = cadre->papier();
    cadre->setEntete([&] { entete(*cadre, zone.paysage ? Orientation::Paysage : Orientation::Portrait); });
    cadre->commence();
    for (int numero = zone.premiere; numero <= zone.derniere; ++numero) {
        ligne(papier, zone.grille, numero);
        cadre->saute(papier.ScaleHeight() - Cadre::margePage);
    }
    cadre->termine();
    return true;
}
