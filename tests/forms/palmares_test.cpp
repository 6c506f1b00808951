#include "palmares_essai.h"

#include <QRadioButton>

#include <array>

namespace {

const QString &P = nomPalmares;
const QString R = u"Resusoc"_qs;
constexpr quint32 cyan = 0xFFFF00;
constexpr quint32 blanc = 0xFFFFFF;

using Ligne = std::array<QString, 3>;

QString texteEquipe(int equipe, bool noms)
{
    const QString nom = noms && !nomDe(equipe).isEmpty() ? u" %1 P"_qs.arg(nomDe(equipe)) : QString();
    return QString::number(equipe).rightJustified(3) + nom + u" (Club %1) "_qs.arg(equipe);
}

QString texteScore(int score)
{
    return score == -1 ? u"Forfait"_qs : score == -2 ? u"Abandon"_qs : QString::number(score);
}

/// The rows that the list must have for \p matchs, which come round by round and in the order of the second teams.
std::vector<Ligne> lignesPour(const std::vector<Match> &matchs, bool noms)
{
    std::vector<Ligne> lignes;
    int tour = 0;
    QString phrase;
    QString score;
    for (const Match &m : matchs) {
        const bool nouveau = m.tour != tour;
        if (nouveau) {
            phrase.clear();
            score.clear();
        }
        const QString un = texteEquipe(m.equipe1, noms);
        const QString deux = texteEquipe(m.equipe2, noms);
        if (m.equipe2 == 0 || !m.score1) {
            phrase = m.equipe2 == 0 ? un + u" Exempt"_qs : un + u" vs "_qs + deux;
            score.clear();
        } else if (*m.score1 != *m.score2) {
            const bool premiere = *m.score1 > *m.score2;
            phrase = premiere ? un + u" bat "_qs + deux : deux + u" bat "_qs + un;
            score = texteScore(std::max(*m.score1, *m.score2)) + u':' + texteScore(std::min(*m.score1, *m.score2));
        }
        lignes.push_back({nouveau ? u"Tour %1"_qs.arg(m.tour) : QString(), phrase, score});
        tour = m.tour;
    }
    return lignes;
}

class Palmares : public PalmaresEssai
{
protected:
    void attendLignes(const std::vector<Ligne> &attendues)
    {
        ASSERT_EQ(grille().Rows(), int(attendues.size()) + 1);
        for (int ligne = 1; ligne < grille().Rows(); ++ligne) {
            const Ligne &attendue = attendues[std::size_t(ligne) - 1];
            for (int colonne = 0; colonne < 3; ++colonne)
                EXPECT_EQ(grille().TextMatrix(ligne, colonne), attendue[std::size_t(colonne)]) << "row " << ligne;
            const bool label = attendue[0] == u"Finaliste" || attendue[0] == u"Vainqueur";
            const quint32 fond = attendue[1].endsWith(u"Exempt") ? cyan : label ? FlexGrid::FondFenetre : blanc;
            EXPECT_EQ(grille().CellBackColor(ligne, 1), fond);
        }
    }
};

TEST_F(Palmares, EveryMatchIsASentenceWithItsWinnerFirst)
{
    std::vector<Match> matchs = {
        {1, 9, 0, 13, 7},
        {1, 1, 2, 13, 4},
        {1, 3, 4, 6, 13},
        {1, 5, 6, -1, 13},
        {1, 7, 8, 13, -2},
        {2, 8, 0, 13, 7},
        {2, 1, 3, 7, 7}, // a tie repeats the sentence before it
        {2, 2, 4, 13, 12},
        {2, 5, 7},
        {3, 6, 1, 10, 10}, // a tie in the first row of a round has nothing to
                           // repeat
        {3, 7, 3, 13, 0}, // another bracket stands in the same list
    };
    for (int tour = 4; tour <= 15; ++tour)
        matchs.push_back({tour, 1, 2, 13, tour % 13});
    std::vector<Match> quatorze = matchs;
    quatorze.pop_back();
    ouvre(9, matchs, u"update scores set tableau = 2 where tour = 3 and equipe_1 = 7"_qs);

    attendLignes(lignesPour(quatorze, false));
    EXPECT_EQ(grille().TextMatrix(0, 0), u"Tour           "_qs);
    EXPECT_EQ(grille().TextMatrix(0, 1), u"Equipes             "_qs);
    EXPECT_EQ(grille().TextMatrix(0, 2), u"Résultats "_qs);
    EXPECT_EQ(grille().ColWidth(1), 7000);
    EXPECT_EQ(forme(P)->windowTitle(), u"Palmarès"_qs);
    for (const QString &cache : {u"titre_1"_qs, u"detail_gagnant"_qs, u"detail_perdant"_qs})
        EXPECT_FALSE(visible(P, cache)) << cache.toStdString();
    EXPECT_TRUE(qobject_cast<QRadioButton *>(controle(P, u"Option1"_qs))->isChecked());

    // A right click reads the base again, one round further, and shows the first players.
    clicCellule(1, 1, Qt::RightButton);
    attendLignes(lignesPour(matchs, true));
    execute(u"update scores set score_2 = 12 where tour = 15"_qs);
    matchs.back().score2 = 12;
    clicCellule(1, 1, Qt::RightButton);
    attendLignes(lignesPour(matchs, false));
    clicCellule(1, 1, Qt::RightButton, Qt::ShiftModifier);
    formulaires().Decharge(NomForme(P));
    clic(u"EResultats"_qs, u"hit"_qs);
    quatorze.back().score2 = matchs[matchs.size() - 2].score2;
    attendLignes(lignesPour(quatorze, false));
}

TEST_F(Palmares, ARebuildEndsWhereTheMainBracketDoes)
{
    ouvre(4, {{1, 1, 2, 13, 4}, {1, 3, 4, 13, 5}, {2, 2, 4, 13, 6}},
          u"update scores set tableau = 2 where tour = 2; update concours set tourpri = 1"_qs);
    EXPECT_EQ(grille().Rows(), 4);
    clicCellule(1, 1, Qt::RightButton);
    EXPECT_EQ(grille().Rows(), 3);
}

TEST_F(Palmares, TheOnlyMatchOfTwoTeamsIsTheFinal)
{
    ouvre(2, {{1, 1, 2, 4, 13}});
    attendLignes({{u"Tour 1"_qs, texteEquipe(2, false) + u" bat "_qs + texteEquipe(1, false), u"13:4"_qs},
                  {u"Finaliste"_qs, texteEquipe(1, false), QString()},
                  {u"Vainqueur"_qs, texteEquipe(2, false), QString()}});

    execute(u"insert into equipes (concours, equipe, doublon, nom, licence, societe) values "
            "(0, 1, 0, 'NOM2', 'L2-1', 'Club connu')"_qs);
    choisit(1, 3);
    const Pages pages = imprime(true, false);
    ASSERT_EQ(pages.size(), 1u);
    // The winner's members alone, each with the club that the licence has among the known players.
    EXPECT_EQ(rangeesA(pages[0], {700, 4100, 5100}),
              QStringList({u"- 2 NOM2 P0|L2-0|Club 2"_qs, u"- 2 NOM2 P1|L2-1|Club connu"_qs}));
    EXPECT_EQ(trouve(pages[0], u"L2-0"_qs)->taille, 12);
    EXPECT_EQ(grille().RowSel(), 0);
}

TEST_F(Palmares, ACompetitionWithoutAMatchSaysSoInsteadOfAGrid)
{
    ouvre(4, {});
    EXPECT_FALSE(visible(P, u"Thonneur_1"_qs));
    EXPECT_EQ(texte(P, u"aucune"_qs), u"Nombre de rencontres : 0 "_qs);
    const QWidget *annonce = controle(P, u"aucune"_qs);
    EXPECT_EQ(annonce->pos(), QPoint(forme(P)->width() / 2, forme(P)->height() / 2));
    EXPECT_EQ(annonce->font().pointSize(), 20);
    EXPECT_TRUE(forme(P)->rect().contains(annonce->geometry()));
    boites.attend(u"Vous devez sélectionner la zone à imprimer"_qs);
    clic(P, u"imprimer"_qs);
    EXPECT_EQ(boites.drapeaux(), vbExclamation);
}

TEST_F(Palmares, AMatchOfAMissingTeamLeavesAFormThatCanBeRead)
{
    boites.attend(u"Erreur"_qs);
    ouvre(3,
          {{.tour = 1, .equipe1 = 1, .equipe2 = 2, .score1 = 13, .score2 = 5},
           {.tour = 1, .equipe1 = 3, .equipe2 = 9}});
    EXPECT_GT(forme(P)->width(), grille().width());
    EXPECT_TRUE(visible(P, u"Thonneur_1"_qs));
    EXPECT_GT(grille().Rows(), 2);
}

TEST_F(Palmares, TheListIsThatOfTheCompetitionAsItStands)
{
    ouvre(4, {{1, 1, 2, 13, 4}, {1, 3, 4}});
    clicCellule(1, 1, Qt::RightButton);
    clicCellule(1, 1, Qt::LeftButton, Qt::ControlModifier);
    ASSERT_TRUE(formulaires().estVisible(R));
    execute(u"update scores set score_1 = 5, score_2 = 13 where equipe_1 = 3"_qs);
    const QPoint place(40, 60);
    forme(P)->move(place);
    clic(u"EResultats"_qs, u"hit"_qs);
    EXPECT_FALSE(formulaires().estChargee(R)) << "the sheets of the old list are offered no more";
    EXPECT_TRUE(formulaires().estVisible(P));
    EXPECT_EQ(forme(P)->pos(), place);
    attendLignes(lignesPour({{1, 1, 2, 13, 4}, {1, 3, 4, 5, 13}}, false));

    // Another competition, without a match: its list has no row to print.
    const qint32 autre = creeConcours({.lieu = u"Aix"_qs});
    clicCellule(1, 1, Qt::LeftButton, Qt::ControlModifier);
    ASSERT_TRUE(formulaires().estVisible(R));
    auto *numero = champ(u"EResultats"_qs, u"listconcours"_qs);
    const auto choisitConcours = [&](qint32 concours) {
        active(u"EResultats"_qs);
        numero->setFocus();
        numero->setText(QString::number(concours));
        touche(Qt::Key_Return);
    };
    choisitConcours(autre);
    ASSERT_EQ(partage().ConcoursCourant, autre);
    EXPECT_FALSE(formulaires().estChargee(R));
    EXPECT_FALSE(visible(P, u"Thonneur_1"_qs));
    EXPECT_TRUE(visible(P, u"aucune"_qs));
    EXPECT_EQ(grille().Rows(), 1);
    EXPECT_EQ(focus(), u"listconcours"_qs) << "the keyboard stays with the results";
    choisitConcours(1);
    ASSERT_EQ(partage().ConcoursCourant, 1);
    EXPECT_FALSE(visible(P, u"aucune"_qs));
    attendLignes(lignesPour({{1, 1, 2, 13, 4}, {1, 3, 4, 5, 13}}, false));
}

TEST_F(Palmares, NothingIsPrintedWithoutASelectionNorAPrinter)
{
    ouvre(5, tours(5, 2));
    clicCellule(2, 1, Qt::LeftButton);
    EXPECT_EQ(grille().RowSel(), 2);
    touche(Qt::Key_Escape);
    EXPECT_TRUE(grille().RowSel() == 0 && grille().Row() == 0 && grille().Col() == 0);
    boites.attend(u"Vous devez sélectionner la zone à imprimer"_qs);
    clic(P, u"imprimer"_qs);

    boites.imprimante = nullptr;
    for (const bool detail : {false, true}) {
        choisit(2, 4);
        boites.attend(u"Impression annulée"_qs);
        EXPECT_TRUE(imprime(detail, false).empty());
        EXPECT_TRUE(grille().Row() == 2 && grille().RowSel() == 4);
    }
}

TEST_F(Palmares, CtrlAndAClickOfferTheTeamsAndClubsOfTheMatch)
{
    ouvre(4, {{1, 1, 2, 4, 13}, {1, 3, 4}});
    execute(u"update equipes set societe = '*Panachée' where equipe = 1 and concours = 1"_qs);
    clicCellule(1, 1, Qt::RightButton);

    clicCellule(1, 2, Qt::LeftButton, Qt::ControlModifier); // a score names no team
    EXPECT_FALSE(formulaires().estVisible(R));
    const auto offre = [this] {
        QStringList textes;
        for (int option = 1; option <= 4; ++option) {
            const QString nom = u"Option%1"_qs.arg(option);
            textes += texte(R, nom).trimmed() + (controle(R, nom)->isEnabled() ? QString() : u" (off)"_qs);
        }
        return textes.join(u'|');
    };
    clicCellule(1, 1, Qt::LeftButton, Qt::ControlModifier);
    ASSERT_TRUE(formulaires().estVisible(R));
    EXPECT_EQ(offre(), u"2 NOM2 P|1 NOM1 P|Club 2|*Panachée (off)"_qs);
    EXPECT_EQ(texte(R, u"tableau"_qs), u"1"_qs);
    active(P);
    clicCellule(2, 1, Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(offre(), u"3|4 NOM4 P|Club 3|Club 4"_qs);

    // The sentence is cut at the first letters of its word, wherever they stand.
    execute(u"update equipes set societe = 'Les combats' where equipe = 2 and concours = 1"_qs);
    active(P);
    clicCellule(1, 1, Qt::RightButton);
    active(P);
    clicCellule(1, 1, Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(offre(), u"2|s)  bat   1|Les co|*Panachée (off)"_qs);
}

} // namespace
