#include "printing/imprime_saison.h"

#include "printing/courbe.h"
#include "printing/feuille.h"

#include <QRect>

namespace {

// Twips
constexpr int gauche = 300;
constexpr int haut = 500;
constexpr int hauteurCourbe = 1500;
constexpr int debutBarre = 9500;
constexpr int finBarre = 11100;
constexpr int hauteurBarre = 150;
constexpr int pasLigne = 60;
constexpr int hauteurLigne = 320;
// Points
constexpr double tailleTexte = 10;

constexpr MiseEnPage mise{.bordFin = MiseEnPage::Papier, .pied = 800};

/// A frame as long as the matches, filled as far as they were won.
void barre(Imprimante &papier, int y, const std::pair<double, double> &parts)
{
    const auto x = [](double part) { return debutBarre + int(part * (finBarre - debutBarre)); };
    const int fin = x(parts.first);
    papier.Line(debutBarre, y, fin, y);
    papier.Line(debutBarre, y + hauteurBarre, fin, y + hauteurBarre);
    papier.Line(debutBarre, y, debutBarre, y + hauteurBarre);
    papier.Line(fin, y, fin, y + hauteurBarre);
    for (int rang = y; rang < y + hauteurBarre; rang += 10)
        papier.Line(debutBarre, rang, x(parts.second), rang);
}

void courbe(Imprimante &papier, const std::vector<int> &equipes)
{
    const QRect cadre(gauche + 600, papier.CurrentY + 150, papier.ScaleWidth() - 2 * gauche - 600, hauteurCourbe - 300);
    papier.Line(cadre.left(), cadre.bottom(), cadre.right(), cadre.bottom());
    const std::vector<QPointF> points = PointsDeLaCourbe(equipes, cadre);
    for (std::size_t i = 1; i < points.size(); ++i)
        papier.Line(int(points[i - 1].x()), int(points[i - 1].y()), int(points[i].x()), int(points[i].y()));
    const auto ecrit = [&](int y, int nombre) {
        papier.CurrentY = y - 120;
        papier.CurrentX = gauche;
        papier.Print(QString::number(nombre));
    };
    ecrit(cadre.top(), std::ranges::max(equipes));
    ecrit(cadre.bottom(), 0);
    papier.CurrentY = cadre.bottom() + 200;
}

} // namespace

void ImprimeSaison(const Contexte &contexte, const ListeSaison &liste)
{
    const std::unique_ptr<Feuille> feuille = Feuille::ouvre(contexte, mise);
    if (feuille == nullptr)
        return;
    Imprimante &papier = feuille->papier();
    bool premiere = true;
    feuille->setEntete([&] {
        papier.setOrientation(Orientation::Portrait);
        papier.CurrentY = haut;
        feuille->ecritTitre(22, gauche, liste.titre);
        papier.FontSize = tailleTexte;
        if (std::exchange(premiere, false) && liste.equipes.size() > 1) {
            papier.FontBold = false;
            courbe(papier, liste.equipes);
            papier.FontBold = true;
        }
        papier.CurrentY += hauteurLigne / 2;
        feuille->ecritLigne(liste.places, liste.entetes);
        papier.Line(gauche, papier.CurrentY, papier.ScaleWidth() - gauche, papier.CurrentY);
        papier.FontBold = false;
        papier.CurrentY += pasLigne;
    });
    feuille->commence();
    for (std::size_t i = 0; i < liste.lignes.size(); ++i) {
        feuille->saute(pasLigne + hauteurLigne);
        papier.CurrentY += pasLigne;
        if (i < liste.barres.size())
            barre(papier, papier.CurrentY + pasLigne, liste.barres[i]);
        feuille->ecritLigne(liste.places, liste.lignes[i]);
    }
    papier.CurrentY += hauteurLigne;
    feuille->saute(hauteurLigne);
    feuille->ecrit(gauche, liste.resume, papier.ScaleWidth());
    papier.Print({});
    feuille->termine();
}
