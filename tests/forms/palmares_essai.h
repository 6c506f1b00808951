#pragma once

#include "commun/papier_garde.h"
#include "commun/programme_essai.h"

#include "fenetres/formulaires.h"
#include "grille/flexgrid.h"

#include <QAbstractButton>
#include <QTest>

#include <optional>

/// A match as the tests write it.
struct Match
{
    int tour;
    int equipe1;
    int equipe2;
    std::optional<int> score1 = {};
    std::optional<int> score2 = {};
    int tableau = 1;
};

/// Surname of both members of a team.
inline QString nomDe(int equipe)
{
    return equipe == 3 ? QString() : u"NOM%1"_qs.arg(equipe);
}

inline const QString nomPalmares = u"palmares"_qs;

/// A doublette competition whose matches are rows of the test, and its honours list.
class PalmaresEssai : public ProgrammeEssai
{
protected:
    void ouvre(int equipes, const std::vector<Match> &matchs)
    {
        creeConcours({});
        for (int equipe = 1; equipe <= equipes; ++equipe) {
            for (int doublon = 0; doublon < 2; ++doublon)
                execute(u"insert into equipes (concours, equipe, doublon, nom, prenom, licence, societe) values "
                        "(1, %1, %2, '%3', 'Paul', 'L%1%2', 'Club %1')"_qs.arg(equipe)
                            .arg(doublon)
                            .arg(nomDe(equipe)));
        }
        const auto sql = [](std::optional<int> score) { return score ? QString::number(*score) : u"Null"_qs; };
        for (const Match &m : matchs)
            execute(u"insert into scores (concours, tableau, tour, equipe_1, equipe_2, score_1, score_2) values "
                    "(1, %1, %2, %3, %4, %5, %6)"_qs.arg(m.tableau)
                        .arg(m.tour)
                        .arg(m.equipe1)
                        .arg(m.equipe2)
                        .arg(sql(m.score1), sql(m.score2)));
        boites.imprimante = [this] { return std::make_unique<DestinationGardee>(documents); };
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
        documents.clear();
        clic(nomPalmares, u"imprimer"_qs);
        return documents.size() == 1 ? documents.front() : Pages();
    }

    std::vector<Pages> documents;
};
