#include "printing/imprime_saison.h"

#include "printing/courbe.h"
#include "printing/feuille.h"

#include <QRect>

#include <algorithm>

namespace {

// Twips
constexpr int gauche = 300;
constexpr int haut = 500;
constexpr int gaucheCourbe = 800;
constexpr int hauteurCourbe = 1500;
constexpr int rayonPoint = 30;
constexpr int ecartBarre = 300;
constexpr int debutBarre = 9500;
constexpr int finBarre = 11100;
constexpr int hauteurBarre = 150;
constexpr int pasTrait = 10; ///< Lines so close make a dark ground.
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
    for (int rang = y; rang < y + hauteurBarre; rang += pasTrait)
        papier.Line(debutBarre, rang, x(parts.second), rang);
}

/// A row: texts at the left end of their columns, numbers at the right.
void rangee(Feuille &feuille, const ListeSaison &liste, const QStringList &textes)
{
    Imprimante &papier = feuille.papier();
    for (std::size_t i = 0; i < liste.places.size(); ++i) {
        const bool derniere = i + 1 == liste.places.size();
        const int bout = liste.barres.empty() ? papier.ScaleWidth() - gauche : debutBarre - ecartBarre;
        const int fin = derniere ? bout : liste.places[i + 1] - ecartTextes;
        const QString &texte = textes[qsizetype(i)];
        const int debut = liste.nombres[i] ? fin - papier.TextWidth(texte) : liste.places[i];
        feuille.ecrit(std::max(liste.places[i], debut), texte, fin);
    }
    papier.Print({});
}

/// The line with its title, its greatest number and its first and last day.
void courbe(Feuille &feuille, const ListeSaison &liste)
{
    Imprimante &papier = feuille.papier();
    papier.CurrentY += hauteurLigne / 2;
    feuille.ecrit(gaucheCourbe, liste.titreCourbe, papier.ScaleWidth() - gauche);
    papier.Print({});
    const QRect cadre(gaucheCourbe, papier.CurrentY + hauteurLigne / 2, papier.ScaleWidth() - gauche - gaucheCourbe,
                      hauteurCourbe);
    papier.Line(cadre.left(), cadre.bottom(), cadre.right(), cadre.bottom());
    const std::vector<QPointF> points = PointsDeLaCourbe(liste.jours, cadre);
    for (std::size_t i = 0; i < points.size(); ++i) {
        const int x = int(points[i].x());
        const int y = int(points[i].y());
        if (i > 0)
            papier.Line(int(points[i - 1].x()), int(points[i - 1].y()), x, y);
        for (int rang = -rayonPoint; rang <= rayonPoint; rang += pasTrait)
            papier.Line(x - rayonPoint, y + rang, x + rayonPoint, y + rang);
    }
    const auto ecrit = [&](int x, int y, const QString &texte) {
        papier.CurrentX = x;
        papier.CurrentY = y;
        papier.Print(texte, false);
    };
    const QString plus = QString::number(std::ranges::max(liste.jours, {}, &JourDeSaison::equipes).equipes);
    for (const auto &[y, nombre] : {std::pair(cadre.top(), plus), std::pair(cadre.bottom(), u"0"_qs)})
        ecrit(cadre.left() - ecartTextes - papier.TextWidth(nombre), y - hauteurLigne / 2, nombre);
    const int dates = cadre.bottom() + pasLigne;
    ecrit(cadre.left(), dates, liste.dates.front());
    ecrit(cadre.right() - papier.TextWidth(liste.dates.back()), dates, liste.dates.back());
    papier.CurrentY = dates + hauteurLigne;
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
        papier.FontBold = false;
        if (!liste.type.isEmpty()) {
            feuille->ecrit(gauche, liste.type, papier.ScaleWidth() - gauche);
            papier.Print({});
        }
        if (std::exchange(premiere, false) && liste.jours.size() > 1)
            courbe(*feuille, liste);
        papier.FontBold = true;
        papier.CurrentY += hauteurLigne / 2;
        rangee(*feuille, liste, liste.entetes);
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
        rangee(*feuille, liste, liste.lignes[i]);
    }
    papier.CurrentY += hauteurLigne;
    feuille->saute(hauteurLigne);
    feuille->ecrit(gauche, liste.resume, papier.ScaleWidth());
    papier.Print({});
    feuille->termine();
}
