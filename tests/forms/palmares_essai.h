#pragma once

#include "feuilles_essai.h"

#include <optional>

/// A match as the tests write it.
struct Match
{
    int tour;
    int equipe1;
    int equipe2;
    std::optional<int> score1 = {};
    std::optional<int> score2 = {};
};

/// Surname of both members of a team.
inline QString nomDe(int equipe)
{
    return equipe == 3 ? QString() : u"NOM%1"_qs.arg(equipe);
}

inline const QString nomPalmares = u"palmares"_qs;

/// A doublette competition whose matches are rows of the test, and its honours list.
class PalmaresEssai : public FeuillesEssai
{
protected:
    /// \p suite is a statement that changes the rows before the list is opened.
    void ouvre(int equipes, const std::vector<Match> &matchs, const QString &suite = {})
    {
        std::vector<moteur::Partie> parties;
        for (const auto &[tour, equipe1, equipe2, score1, score2] : matchs)
            parties.push_back(
                {.tour = tour, .equipe1 = equipe1, .equipe2 = equipe2, .score1 = score1, .score2 = score2});
        poseRencontres(base(), creeConcours({.equipes = equipesDeClubs(equipes), .clubDesAutres = {}}), parties);
        abime(u"update equipes set nom = '' where equipe = 3;"_qs + suite);
        ouvreFamille(u"f_resultats"_qs, u"EResultats"_qs);
        clic(u"EResultats"_qs, u"hit"_qs);
        ASSERT_NE(forme(nomPalmares), nullptr);
        active(nomPalmares);
    }

    /// Rounds of a whole competition, \p equipes being odd: each has a bye.
    static std::vector<Match> tours(int equipes, int nombre)
    {
        std::vector<Match> matchs;
        for (int tour = 1; tour <= nombre; ++tour) {
            matchs.push_back({tour, equipes, 0, 13, 7});
            for (int e = 1; e + 1 < equipes; e += 2)
                matchs.push_back({tour, e, e + 1, (e + tour) % 4 == 0 ? 13 : e % 13, (e + tour) % 4 == 0 ? 5 : 13});
        }
        return matchs;
    }

    FlexGrid &grille() { return *qobject_cast<FlexGrid *>(controle(nomPalmares, u"Thonneur_1"_qs)); }

    void clicCellule(int ligne, int colonne, Qt::MouseButton bouton, Qt::KeyboardModifiers touches = Qt::NoModifier)
    {
        grille().setTopRow(std::max(ligne - 2, 1));
        QCoreApplication::processEvents();
        const QPoint place(grille().columnViewportPosition(colonne) + 5, grille().rowViewportPosition(ligne - 1) + 5);
        QTest::mouseClick(grille().viewport(), bouton, touches, place);
    }

    void choisit(int premiere, int derniere)
    {
        grille().setRow(premiere);
        grille().setRowSel(derniere);
    }

    void coche(const QString &nom, bool oui)
    {
        qobject_cast<QAbstractButton *>(controle(nomPalmares, nom))->setChecked(oui);
    }

    Pages imprime(bool detail, bool paysage)
    {
        coche(detail ? u"detail"_qs : u"Option1"_qs, true);
        coche(u"typedit"_qs, paysage);
        return imprimes([this] { clic(nomPalmares, u"imprimer"_qs); });
    }
};
