#include "feuilles_essai.h"
#include "partage/concours_courant.h"
#include "printing/imprime_equipe.h"
#include "printing/resusoc.h"

#include <QRadioButton>

#include <algorithm>

namespace {

const QString R = u"Resusoc"_qs;
const QString adresse = u"www.varlotour.example"_qs;
const QString soixante = u"ASSOCIATION DES AMATEURS DE BOULES ET PÉTANQUE DE LA VALLÉE "_qs;

/// A doublette competition and an honours list whose rows the test writes.
class FeuilleEquipe : public FeuillesEssai
{
protected:
    void SetUp() override
    {
        FeuillesEssai::SetUp();
        qint32 concours = creeConcours();
        partage().ConcoursCourant = ChargeConcours(partage(), concours);
        grille.setCols(3);
    }

    void membre(int equipe, int doublon, const QString &nom, const QString &prenom, const QString &club)
    {
        poseMembre(base(), 1, equipe, doublon, {nom, prenom, u"L%1%2"_qs.arg(equipe).arg(doublon), club});
    }

    void rangee(const QString &tour, const QString &phrase, const QString &score = u"13:7"_qs)
    {
        grille.AddItem(tour + u'\t' + phrase + u'\t' + score);
    }

    Pages imprime(const QString &texte, GenreFeuille genre, bool avecNoms = true)
    {
        const Pages pages = imprimes([&] {
            ImprimeEquipe({partage(), formulaires(), boites}, grille, avecNoms, texte, genre);
        });
        EXPECT_FALSE(pages.empty());
        return pages.empty() ? Pages(1) : pages;
    }

    static QStringList textes(const PageDessinee &page, bool italique)
    {
        QStringList textes;
        for (const Dessin &dessin : page.dessins) {
            if (dessin.genre == Dessin::Texte && dessin.italique == italique)
                textes += dessin.texte;
        }
        return textes;
    }

    FlexGrid grille;
};

TEST_F(FeuilleEquipe, AClubHasItsTeamsAndTheMatchesOfEveryClubThatHoldsItsName)
{
    membre(12, 1, u"BLANC"_qs, u"Zoé"_qs, u"Aix"_qs);
    membre(12, 0, u"ARNAUD"_qs, u"Luc"_qs, u"Aix"_qs);
    membre(3, 0, u"CLÉMENT"_qs, u"Éric"_qs, u"Aix"_qs);
    membre(4, 0, u"DURAND"_qs, u"Paul"_qs, u"Aix-Nord"_qs);
    rangee(u"Tour 1"_qs, u" 12 (Aix)  bat   3 (Aix) "_qs, u"13:4"_qs);
    rangee({}, u"  7 (Var)  bat   8 (Var) "_qs, u"13:5"_qs);
    rangee({}, u"  9 (Var)  bat   4 (Aix-Nord) "_qs, u"13:6"_qs);
    rangee(u"Tour 2"_qs, u"  7 (Var)  bat   8 (Var) "_qs, u"13:8"_qs);
    rangee(u"Tour 3"_qs, u" 12 (Aix)  Exempt"_qs, {});
    const Pages pages = imprime(u"Aix"_qs, GenreFeuille::Club);
    ASSERT_EQ(pages.size(), 1u);
    const QStringList droits = {u"14/07/2026 Sète"_qs,
                                u"Equipes de Aix"_qs,
                                u"Tour 1"_qs,
                                u" 12 (Aix)  bat   3 (Aix) "_qs,
                                u"13:4"_qs,
                                u"  9 (Var)  bat   4 (Aix-Nord) "_qs,
                                u"13:6"_qs,
                                u"Tour 2"_qs,
                                u"Tour 3"_qs,
                                u" 12 (Aix)  Exempt"_qs,
                                adresse};
    EXPECT_EQ(textes(pages[0], false), droits) << textes(pages[0], false).join(u'|').toStdString();
    const QStringList penches = {u"Club : Aix"_qs, u"3 -      CLÉMENT Éric L30"_qs, u"12 -      ARNAUD Luc L120"_qs,
                                 u"BLANC Zoé L121"_qs};
    EXPECT_EQ(textes(pages[0], true), penches) << textes(pages[0], true).join(u'|').toStdString();
}

/// Every stroke in its place, the heights reckoned from the strokes before.
TEST_F(FeuilleEquipe, EveryStrokeStandsInItsPlace)
{
    membre(3, 0, u"NOM"_qs, u"Paul"_qs, u"Aix"_qs);
    rangee(u"Tour 1"_qs, u"  3 NOM P (Aix)  bat   4 AUTRE J (Var) "_qs);
    rangee({}, u"  5 (Var)  bat   6 (Var) "_qs);
    rangee({}, u"  5 (Var)  bat   3 NOM P (Aix) "_qs);
    const Pages pages = imprime(u"3 NOM P "_qs, GenreFeuille::Equipe);
    const std::vector<Dessin> &d = pages[0].dessins;
    ASSERT_EQ(d.size(), 10u);
    const auto hauteur = [&](int i) { return d[std::size_t(i)].y2 - d[std::size_t(i)].y1; };
    EXPECT_TRUE(d[0].x1 == 300 && d[0].y1 == 20 && d[0].taille == 18 && !d[0].gras);
    EXPECT_TRUE(d[1].x1 == 2800 && d[1].y1 == d[0].y2 + 2 * hauteur(0) && d[1].taille == 20 && d[1].gras);
    EXPECT_EQ(d[2].texte, u"- NOM Paul L30 Aix"_qs);
    const int corps = hauteur(2);
    EXPECT_TRUE(d[2].x1 == 0 && d[2].taille == 14 && d[2].italique && !d[2].gras);
    EXPECT_EQ(d[3].genre, Dessin::Trait);
    EXPECT_TRUE(d[3].x2 == largeurPapier && d[3].y1 == d[3].y2 && d[3].y1 == d[2].y2 + corps + 100);
    EXPECT_TRUE(d[4].x1 == 300 && d[4].y1 == d[3].y1 + 130 && d[4].gras && d[4].taille == 14);
    EXPECT_TRUE(d[5].x1 == 350 && d[5].y1 == d[4].y2 && !d[5].gras && !d[5].italique);
    EXPECT_TRUE(d[6].x1 == largeurPapier - 2000 && d[6].y1 == d[5].y1 && d[6].texte == u"13:7"_qs);
    EXPECT_TRUE(d[7].x1 == 350 && d[7].y1 == d[6].y2 + 30) << "a row that is passed over takes no step";
    EXPECT_TRUE(d[9].x1 == 200 && d[9].y1 == hauteurPapier - 1000 && d[9].taille == 10 && d[9].texte == adresse);
}

TEST_F(FeuilleEquipe, ATeamIsFoundByItsNameNotItsNumber)
{
    membre(3, 0, u"DE LA TOUR"_qs, u"Anne"_qs, u"L'Étoile d'Aÿ"_qs);
    membre(3, 1, u"PETIT"_qs, u"Léa"_qs, u"Aix"_qs);
    membre(4, 0, u"O'BRIEN"_qs, u"Pat"_qs, u"L'Étoile d'Aÿ"_qs);
    membre(5, 0, {}, {}, u"Aix"_qs);
    membre(6, 0, u"SANS"_qs, {}, u"Aix"_qs);
    rangee(u"Tour 1"_qs, u"  3 DE LA TOUR A (L'Étoile d'Aÿ)  bat   4 O'BRIEN P (L'Étoile d'Aÿ) "_qs);
    const QStringList deux = {u"- DE LA TOUR Anne L30 L'Étoile d'Aÿ"_qs, u"- PETIT Léa L31 Aix"_qs};
    const std::pair<QString, QStringList> cas[] = {{u"3 DE LA TOUR A "_qs, deux},
                                                   {u"99 DE LA TOUR A "_qs, deux},
                                                   {u"6 SANS  "_qs, {u"- SANS  L60 Aix"_qs}},
                                                   {u"5 "_qs, {}},
                                                   {u"3 "_qs, {}},
                                                   {u"4 O'BRIEN P "_qs, {}}};
    for (const auto &[texte, membres] : cas) {
        const Pages pages = imprime(texte, GenreFeuille::Equipe);
        EXPECT_EQ(textes(pages[0], true), membres) << texte.toStdString();
        EXPECT_NE(trouve(pages[0], u"Tour 1"_qs), nullptr);
    }
    // The statement on the club fails alone: the matches are there.
    const Pages pages = imprime(u"L'Étoile d'Aÿ"_qs, GenreFeuille::Club);
    EXPECT_EQ(textes(pages[0], true), QStringList(u"Club : L'Étoile d'Aÿ"_qs));
    EXPECT_NE(trouve(pages[0], u"Equipes de L'Étoile d'Aÿ"_qs), nullptr);
    EXPECT_NE(trouve(pages[0], u"13:7"_qs), nullptr);
}

/// A team and the ones whose numbers hold its own, in a list without names.
TEST_F(FeuilleEquipe, WithoutNamesTheWholeNumberTellsTheTeam)
{
    membre(3, 0, u"NOM"_qs, u"Paul"_qs, u"Aix"_qs);
    membre(3, 1, {}, {}, u"Aix"_qs);
    membre(13, 0, u"AUTRE"_qs, u"Jean"_qs, u"Var"_qs);
    const QString siennes[] = {u"  3 (Aix)  bat  13 (Var) "_qs, u" 13 (Var)  vs   3 (Aix) "_qs, u"  3 (Aix)  Exempt"_qs,
                               u"  3 (Aix) "_qs};
    for (const QString &phrase : siennes)
        rangee(u"Tour"_qs, phrase);
    rangee({}, u" 13 (Var)  bat  30 (Aix) "_qs);
    rangee({}, u" 23 (Boule 3 )  bat 103 (Aix) "_qs);
    const Pages pages = imprime(u"3 "_qs, GenreFeuille::Equipe, false);
    const QStringList phrases = rangeesA(pages[0], {350});
    EXPECT_EQ(phrases, QStringList(std::begin(siennes), std::end(siennes))) << phrases.join(u'|').toStdString();
    EXPECT_EQ(textes(pages[0], true), (QStringList{u"- NOM Paul L30 Aix"_qs, u"-   L31 Aix"_qs}));
}

TEST_F(FeuilleEquipe, ALongSheetGoesOnWithoutAHead)
{
    for (int equipe = 1; equipe <= 30; ++equipe) {
        for (int doublon = 0; doublon < 2; ++doublon)
            membre(equipe, doublon, u"NOM%1"_qs.arg(equipe), u"P"_qs, u"Aix"_qs);
    }
    for (int ligne = 1; ligne <= 60; ++ligne)
        rangee({}, u"%1 (Aix)  bat   0 (Aix) "_qs.arg(ligne, 3));
    const Pages pages = imprime(u"Aix"_qs, GenreFeuille::Club);
    ASSERT_EQ(pages.size(), 3u);
    int membres = 0;
    int scores = 0;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        const std::vector<Dessin> &dessins = pages[i].dessins;
        EXPECT_EQ(dessins.front().y1, i == 0 ? 20 : dessins.front().italique ? 1000 : 1030);
        EXPECT_TRUE(dessins.back().texte == adresse && dessins.back().y1 == hauteurPapier - 1000);
        EXPECT_FALSE(dessins.back().italique);
        for (const Dessin &dessin : dessins) {
            membres += dessin.texte.contains(u"NOM") ? 1 : 0;
            scores += dessin.texte == u"13:7" ? 1 : 0;
            EXPECT_TRUE(&dessin == &dessins.back() || dessin.y1 <= hauteurPapier - 2000 + 30);
            EXPECT_FALSE(dessin.texte.startsWith(u"Page"));
            EXPECT_TRUE(dessin.genre == Dessin::Trait || dessin.texte == adresse || dessin.taille >= 14);
        }
    }
    EXPECT_EQ(membres, 60);
    EXPECT_EQ(scores, 60);
}

TEST_F(FeuilleEquipe, LongNamesAreNeitherCutNorPrintedOver)
{
    ASSERT_EQ(soixante.size(), 60);
    membre(3, 0, soixante, u"Paul"_qs, soixante);
    rangee(u"Tour 1"_qs, u"  3 (%1)  bat   4 (Aix) "_qs.arg(soixante));
    rangee({}, u"  3 %1 P (%1)  bat   4 %1 P (%1) "_qs.arg(soixante));
    rangee({}, u"  3 %1 P (%1)  bat   4 (Aix) "_qs.arg(soixante));
    partage().LieuConcours = soixante + soixante;
    for (const auto &[texte, genre, scores] : {std::tuple(soixante, GenreFeuille::Club, 3),
                                               std::tuple(u"3 %1 P "_qs.arg(soixante), GenreFeuille::Equipe, 2)}) {
        const Pages pages = imprime(texte, genre);
        VerifiePlaces(pages[0], largeurPapier - 480, hauteurPapier - 1000);
        const auto trouves = std::ranges::count(pages[0].dessins, u"13:7"_qs, &Dessin::texte);
        EXPECT_EQ(trouves, scores);
    }
}

TEST_F(FeuilleEquipe, TheLongestLineGivesItsLettersToTheSheet)
{
    membre(3, 0, u"NOM"_qs, u"Paul"_qs, u"Aix"_qs);
    rangee(u"Tour 1"_qs, u"  3 NOM P (Aix)  bat   4 (Aix) "_qs);
    const QString longue = u"  3 NOM P (Aix)  bat   4 (%1) "_qs.arg(soixante);
    rangee(u"Tour 2"_qs, longue, u"13:12"_qs);
    const Pages pages = imprime(u"3 NOM P "_qs, GenreFeuille::Equipe);
    const Dessin *phrase = trouve(pages[0], longue.trimmed());
    ASSERT_NE(phrase, nullptr);
    const int place = largeurPapier - 2000 - 350;
    const double largeur = phrase->x2 - phrase->x1;
    EXPECT_TRUE(largeur <= place && largeur * (phrase->taille + 1) / phrase->taille > place);
    EXPECT_LT(phrase->taille, 14);
    for (const Dessin &dessin : pages[0].dessins)
        EXPECT_TRUE(dessin.genre == Dessin::Trait || dessin.taille == phrase->taille || dessin.taille >= 18
                    || dessin.texte == adresse)
            << dessin.texte.toStdString();
}

/// The form over a real honours list.
class ChoixFeuille : public FeuilleEquipe
{
protected:
    void SetUp() override
    {
        FeuilleEquipe::SetUp();
        membre(3, 0, u"NOM"_qs, u"Paul"_qs, u"Aix"_qs);
        membre(4, 0, u"AUTRE"_qs, u"Jean"_qs, u"*Panachée"_qs);
        execute(u"insert into scores (concours, tableau, tour, equipe_1, equipe_2, score_1, score_2) "
                "values (1, 1, 1, 3, 4, 13, 7)"_qs);
        ASSERT_NE(formulaires().Charge(NomForme(u"palmares")), nullptr);
        propose(u"3 NOM P (Aix)"_qs, u"4 AUTRE J (*Panachée)"_qs);
    }

    void propose(const QString &equipe1, const QString &equipe2)
    {
        qobject_cast<Resusoc *>(formulaires().Charge(NomForme(R)))->propose(1, equipe1, equipe2);
        formulaires().Montre(NomForme(R));
        active(R);
    }

    QRadioButton &option(int numero) { return *qobject_cast<QRadioButton *>(controle(R, u"Option%1"_qs.arg(numero))); }

    /// Titles of the sheets that have come out since the last time.
    QString titres()
    {
        QStringList titres;
        for (const Pages &pages : std::exchange(documents, {}))
            titres += textes(pages.front(), false)[1];
        return titres.join(u'|');
    }
};

TEST_F(ChoixFeuille, EachOptionHasItsSheetAndAMixedClubHasNone)
{
    EXPECT_EQ(forme(R)->windowTitle(), u"Imprimer Equipe/Club"_qs);
    EXPECT_EQ(texte(R, u"Label1"_qs) + u'|' + texte(R, u"Label2"_qs), u"Equipe|Société"_qs);
    EXPECT_EQ(focus(), u"Option1"_qs);
    const QString attendus[] = {u"Equipe 3"_qs, u"Equipe 4"_qs, u"Equipes de Aix"_qs};
    for (int numero = 1; numero <= 3; ++numero) {
        clic(R, option(numero).objectName());
        clic(R, u"imprimer"_qs);
        EXPECT_EQ(titres(), attendus[numero - 1]);
    }
    clic(R, u"Option4"_qs);
    EXPECT_FALSE(option(4).isChecked());
    option(4).setChecked(true);
    clic(R, u"imprimer"_qs);
    EXPECT_EQ(titres(), QString());
    boites.imprimante = nullptr;
    clic(R, u"Option1"_qs);
    boites.attend(u"Impression annulée"_qs);
    clic(R, u"imprimer"_qs);
    EXPECT_EQ(titres(), QString());
}

} // namespace
