#include "feuilles_essai.h"

namespace {

constexpr int pied = hauteurPapier - 480 - 1500;

class FeuillesDeListe : public FeuillesEssai
{
protected:
    FlexGrid *ouvreListe(const QString &bouton, const QString &nom)
    {
        clic(E, bouton);
        active(nom);
        return static_cast<FlexGrid *>(controle(nom, u"Les_équipes"_qs));
    }
};

TEST_F(FeuillesDeListe, ThePlayersChosenOrAllOfThem)
{
    const QString nom60 = u"O'Brien d'Aÿ "_qs.repeated(5).left(60);
    joueur(u"0"_qs, nom60, u"Œdipe-Zoé"_qs, u"L'Étoile d'Aÿ"_qs.repeated(2));
    for (int i = 1; i < 50; ++i)
        joueur(u"L%1"_qs.arg(i), u"P%1"_qs.arg(i, 2, 10, QChar(u'0')), u"X"_qs, u"DUP"_qs);
    execute(u"update equipes set ne = '1960-01-31', sexe = 'F'"_qs);
    ouvre();
    FlexGrid *grille = ouvreListe(u"Command2"_qs, u"listjo"_qs);
    clic(u"listjo"_qs, u"imprimer"_qs);
    ASSERT_EQ(documents.size(), 1u);
    const Pages &pages = documents.front();
    ASSERT_EQ(pages.size(), 3u);
    EXPECT_TRUE(texteDe(pages[0]).startsWith(u"Logiciel VarloTour|Liste des joueurs pré-enregistrés|N°|Nom-Prénom|"
                                             "Licence|Société|Date nais.|Sexe|1|O'Brien d'Aÿ"_qs))
        << texteDe(pages[0]).toStdString();
    EXPECT_TRUE(texteDe(pages[1]).contains(u"|P30 X|L30|DUP|31/01/1960|F|"_qs));
    for (std::size_t page = 0; page < pages.size(); ++page)
        EXPECT_TRUE(texteDe(pages[page]).endsWith(u"|Page %1"_qs.arg(page + 1)));
    const QList<int> places{150,
                            900,
                            largeurPapier - 7500,
                            largeurPapier - 6000,
                            largeurPapier - 3300,
                            largeurPapier - 2000};
    const QStringList derniere{u"50"_qs, u"P49 X"_qs, u"L49"_qs, u"DUP"_qs, u"31/01/1960"_qs, u"F"_qs};
    for (int colonne = 0; colonne < 6; ++colonne) {
        const Dessin *cellule = trouve(pages[2], derniere[colonne]);
        ASSERT_NE(cellule, nullptr) << derniere[colonne].toStdString();
        EXPECT_EQ(cellule->x1, places[colonne]);
        EXPECT_TRUE(cellule->taille == 10 && !cellule->gras);
    }
    for (const PageDessinee &page : pages)
        VerifiePlaces(page, largeurPapier - 480, pied);

    grille->setRow(4);
    grille->setRowSel(2);
    clic(u"listjo"_qs, u"imprimer"_qs);
    ASSERT_EQ(documents.size(), 2u);
    EXPECT_TRUE(texteDe(documents[1].front())
                    .contains(u"|Sexe|2|P01 X|L1|DUP|31/01/1960|F|3|P02 X|L2|DUP|31/01/1960|F|"
                              "4|P03 X|L3|DUP|31/01/1960|F|www."_qs))
        << texteDe(documents[1].front()).toStdString();
    boites.imprimante = nullptr;
    boites.attend(u"Impression annulée"_qs);
    clic(u"listjo"_qs, u"imprimer"_qs);
    EXPECT_EQ(grille->Row() * 10 + grille->RowSel(), 42);
}

TEST_F(FeuillesDeListe, TheRegistrationsUnderTheHeadOfTheirCompetition)
{
    const qint32 concours = concoursDe(13, {.lieu = u"L'Étoile d'Aÿ"_qs});
    partage().ConcoursCourant = concours;
    ouvreFamille(u"f_equipes"_qs, E);
    ouvreListe(u"Command1"_qs, u"listeq"_qs);
    clic(u"listeq"_qs, u"imprimer_selection"_qs);
    ASSERT_EQ(documents.size(), 1u);
    const Pages &pages = documents.front();
    ASSERT_EQ(pages.size(), 2u);
    const QString tete =
        u"14/07/2026|L'Étoile d'Aÿ|Doublettes|Seniors|Liste des inscriptions|Equipe|Nom-Prénom|Licence|"
        "Société|"_qs;
    EXPECT_TRUE(texteDe(pages[0]).startsWith(tete + u"1|NOM1 P0|L1-0|DUP|NOM1 P1|L1-1|DUP|2|"_qs))
        << texteDe(pages[0]).toStdString();
    EXPECT_TRUE(texteDe(pages[1]).startsWith(tete)) << texteDe(pages[1]).toStdString();
    EXPECT_EQ(trouve(pages[0], u"NOM1 P0"_qs)->x1, 1500);
    EXPECT_EQ(trouve(pages[0], u"L1-0"_qs)->x1, 4500);
    EXPECT_EQ(trouve(pages[0], u"DUP"_qs)->x1, 6000);
    for (const PageDessinee &page : pages)
        VerifiePlaces(page, largeurPapier - 480, pied);

    partage().LieuConcours = lieuLong;
    partage().CategorieConcours = categorieLongue;
    clic(u"listeq"_qs, u"imprimer_selection"_qs);
    ASSERT_EQ(documents.size(), 2u);
    VerifiePlaces(documents[1].front(), largeurPapier - 480, pied);
    EXPECT_TRUE(texteDe(documents[1].front()).contains(lieuLong + u"|Doublettes|"_qs + categorieLongue));
}

} // namespace
