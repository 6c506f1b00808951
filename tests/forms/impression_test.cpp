#include "feuilles_essai.h"

namespace {

const QString D = u"I_tirage"_qs;

/// A doublette competition of \p n teams whose rounds are rows of the test.
class Impression : public FeuillesEssai
{
protected:
    void prepare(int equipes, int tours)
    {
        std::vector<moteur::Partie> rencontres;
        for (int tour = 1; tour <= tours; ++tour) {
            for (int equipe = 1; equipe <= equipes; equipe += 2)
                rencontres.push_back({.tour = tour,
                                      .equipe1 = equipe,
                                      .equipe2 = equipe == equipes ? 0 : equipe + 1,
                                      .score1 = 13,
                                      .score2 = equipe % 13});
        }
        poseRencontres(base(), creeConcours({.equipes = equipesDeClubs(equipes), .clubDesAutres = {}}), rencontres);
        ouvreFamille(u"f_resultats"_qs, u"EResultats"_qs);
        clic(u"EResultats"_qs, u"imprimer"_qs);
    }

    /// The draw of the current round, or the ranking.
    Pages imprime(bool classement, bool detail = false)
    {
        clic(D, classement ? u"Option3"_qs : u"Option1"_qs);
        if (detail)
            clic(D, u"Label2"_qs);
        return imprimes([this] { clic(D, u"Imprime"_qs); });
    }
};

TEST_F(Impression, TheDialogOffersOnlyWhatCanBePrinted)
{
    prepare(4, 0);
    clic(D, u"Option1"_qs);
    EXPECT_FALSE(visible(D, u"Imprime"_qs));
    execute(u"update concours set tourpri = 1"_qs);
    partage().TourCourant = 1;
    clic(D, u"Option1"_qs);
    EXPECT_TRUE(visible(D, u"Imprime"_qs) && visible(D, u"Tour"_qs));
    clic(D, u"Option3"_qs);
    EXPECT_TRUE(visible(D, u"Imprime"_qs));
    EXPECT_FALSE(visible(D, u"Tour"_qs));
    clic(D, u"sortie"_qs);
    EXPECT_EQ(forme(D), nullptr);
}

TEST_F(Impression, EachRoundAskedForIsADocumentOfItsOwn)
{
    prepare(5, 3);
    clic(D, u"Option1"_qs);
    const std::pair<QString, QString> cas[] = {
        {u"2"_qs, u"2"_qs},     {u"1-2"_qs, u"1 2"_qs},   {u"*"_qs, u"1 2 3"_qs}, {u"2-*"_qs, u"2 3"_qs},
        {u"2-9"_qs, u"2 3"_qs}, {u"9"_qs, u""_qs},        {u"0"_qs, u""_qs},      {u"abc"_qs, u""_qs},
        {u"3-1"_qs, u""_qs},    {u"1x-2y"_qs, u"1 2"_qs},
    };
    for (const auto &[saisie, attendus] : cas) {
        documents.clear();
        champ(D, u"Tour"_qs)->setText(saisie);
        clic(D, u"Imprime"_qs);
        QStringList tours;
        for (const Pages &document : documents) {
            for (int tour = 1; tour <= 3; ++tour) {
                if (trouve(document.front(), u"Tour N° %1"_qs.arg(tour)))
                    tours += QString::number(tour);
            }
        }
        EXPECT_EQ(tours.join(u' '), attendus) << saisie.toStdString();
        EXPECT_EQ(champ(D, u"Tour"_qs)->text(), attendus.isEmpty() ? QString() : saisie);
    }
}

TEST_F(Impression, EnterPrintsTheRoundsAndEscapeCloses)
{
    prepare(4, 2);
    clic(D, u"Option1"_qs);
    remplit(D, u"Tour"_qs, u"1"_qs);
    entre();
    ASSERT_EQ(documents.size(), 1u);
    EXPECT_NE(trouve(documents[0].front(), u"Tour N° 1"_qs), nullptr);
    for (const QString &controle : {u"Tour"_qs, u"D_tail"_qs}) {
        clic(u"EResultats"_qs, u"imprimer"_qs);
        clic(D, u"Option1"_qs);
        this->controle(D, controle)->setFocus();
        touche(Qt::Key_Escape);
        EXPECT_EQ(forme(D), nullptr) << controle.toStdString();
    }
}

TEST_F(Impression, ADrawSheetHoldsEveryMatchAboveItsFooter)
{
    prepare(37, 1);
    const Pages pages = imprime(false);
    ASSERT_EQ(pages.size(), 2u);
    EXPECT_TRUE(texteDe(pages[0]).startsWith(
        u"14/07/2026|Sète|Doublettes|Seniors|Tour N° 1|Terrain|38 Equipes|1|(Club 1)|2|(Club 2)|3|"_qs))
        << texteDe(pages[0]).toStdString();
    EXPECT_TRUE(texteDe(pages[1]).contains(u"37|(Club 37)|Exempt|"_qs));
    for (std::size_t page = 0; page < pages.size(); ++page) {
        const Dessin *pied = trouve(pages[page], u"Page %1"_qs.arg(page + 1));
        ASSERT_NE(pied, nullptr);
        EXPECT_EQ(pied->y1, hauteurPapier - 480 - 800);
        VerifiePlaces(pages[page], largeurPapier - 240, pied->y1);
    }
    const Dessin *numero = trouve(pages[0], u"1"_qs);
    EXPECT_TRUE(numero->gras && numero->taille == 33 && numero->x1 == 100);
    EXPECT_EQ(trouve(pages[0], u"2"_qs)->x1, largeurPapier / 2);
}

TEST_F(Impression, TheRankingLeavesThePlaceOfATieEmpty)
{
    prepare(4, 1);
    execute(u"update scores set score_2 = 3"_qs);
    const Pages pages = imprime(true, true);
    ASSERT_FALSE(pages.empty());
    const QString texte = texteDe(pages.front());
    EXPECT_TRUE(
        texte.contains(u"Clt|Equipe|J|G|P|Pp|Pc|Ga|1|-|1|(Club 1)|1|1|0|13|3|10|NOM1 P0 (L1-0)|NOM1 P1 (L1-1)|-|3|"
                       "(Club 3)|1|1|0|13|3|10|"_qs))
        << texte.toStdString();
    EXPECT_TRUE(texte.contains(u"|3|-|2|(Club 2)|1|0|1|3|13|-10|"_qs)) << texte.toStdString();
}

TEST_F(Impression, LongTextsGetSmallerBeforeTheyMeetOthers)
{
    prepare(120, 1);
    // Teams of one, three and four digits, ties among them.
    abime(u"update equipes set societe = 'AMICALE BOULISTE DRAGUIGNAN', equipe = equipe + 9000 * (equipe > 60)"_qs);
    abime(u"update scores set score_2 = 3 where equipe_1 > 9"_qs);
    abime(u"update scores set equipe_1 = equipe_1 + 9000, equipe_2 = equipe_2 + 9000 where equipe_1 > 60"_qs);
    abime(u"update equipes set societe = 'Les Amis réunis du Cochonnet et de la Boule de Saint-Raphaël' "
          "where equipe = 9120"_qs);
    partage().CategorieConcours = categorieLongue;
    for (const QString &lieu : {u"Boulodrome Jean Moulin, Saint-Raphaël"_qs, lieuLong}) {
        partage().LieuConcours = lieu;
        for (const PageDessinee &page : imprime(false)) {
            VerifiePlaces(page, largeurPapier - 480, hauteurPapier - 480 - 800);
            const Dessin *terrain = trouve(page, u"Terrain"_qs);
            ASSERT_NE(terrain, nullptr);
            EXPECT_EQ(terrain->x1, largeurPapier - 1800);
            for (const Dessin &dessin : page.dessins)
                EXPECT_TRUE(dessin.genre == Dessin::Trait || dessin.y1 <= terrain->y1 || dessin.x2 < terrain->x1)
                    << dessin.texte.toStdString();
            ASSERT_NE(trouve(page, lieu), nullptr);
            EXPECT_LT(trouve(page, lieu)->taille, 18);
        }
        int tirets = 0;
        for (const PageDessinee &page : imprime(true)) {
            VerifiePlaces(page, largeurPapier - 480, hauteurPapier - 480 - 800);
            for (std::size_t i = 0; i + 1 < page.dessins.size(); ++i) {
                if (page.dessins[i].texte.trimmed() != u"-")
                    continue;
                ++tirets;
                EXPECT_EQ(page.dessins[i].x1, trouve(page, u"-"_qs)->x1) << "the dashes stand in line";
                EXPECT_EQ(page.dessins[i + 1].x1, 900);
                EXPECT_GE(page.dessins[i + 1].x1, page.dessins[i].x2 + 20);
            }
        }
        EXPECT_EQ(tirets, 120);
    }
}

TEST_F(Impression, PlayersStandUnderTheirOwnTeam)
{
    prepare(30, 1);
    int equipes = 0;
    for (const PageDessinee &page : imprime(true, true)) {
        VerifiePlaces(page, largeurPapier - 480, hauteurPapier - 480 - 800);
        const Dessin *rang = nullptr; // last stroke of a team's row
        const Dessin *membre = nullptr;
        for (const Dessin &dessin : page.dessins) {
            if (dessin.texte.trimmed() == u"-") {
                ++equipes;
                EXPECT_TRUE(membre == nullptr || dessin.y1 == membre->y2 + 350);
                membre = nullptr;
            } else if (dessin.texte.startsWith(u"NOM")) {
                ASSERT_NE(rang, nullptr) << "the page starts with players whose team stands on the one before";
                EXPECT_EQ(dessin.y1, membre == nullptr ? rang->y2 + 350 : membre->y2);
                membre = &dessin;
            } else if (dessin.x1 == 9500 && dessin.taille == 14 && dessin.texte.trimmed() != u"Ga") {
                rang = &dessin;
            }
        }
    }
    EXPECT_EQ(equipes, 30);
}

TEST_F(Impression, MembersLookTheSameBehindAPageBreak)
{
    prepare(120, 1);
    // Teams of one, two and three, and one that fills more than a page.
    abime(u"delete from equipes where equipe % 5 = 0 and doublon = 1"_qs);
    abime(u"insert into equipes (concours, equipe, doublon, nom) select 1, equipe, 2, 'NOM' from equipes where "
          "equipe % 3 = 1 and doublon = 0"_qs);
    abime(
        u"insert into equipes (concours, equipe, doublon, nom) select 1, 8, rowid + 10, 'NOM' from equipes limit 60"_qs);
    int membres = 0;
    for (const PageDessinee &page : imprime(true, true)) {
        EXPECT_TRUE(texteDe(page).contains(u"|NOM")) << "a page without a player";
        for (const Dessin &dessin : page.dessins) {
            if (!dessin.texte.startsWith(u"NOM"))
                continue;
            ++membres;
            EXPECT_TRUE(dessin.taille == 12 && !dessin.gras && dessin.x1 == 1450) << dessin.texte.toStdString();
        }
    }
    EXPECT_EQ(membres, 240 - 24 + 40 + 60);
}

} // namespace
