#include "inscription_essai.h"

#include "noms/passation.h"

#include <QAbstractItemView>
#include <QWheelEvent>

namespace {

class ChoixConcours : public Inscription
{
protected:
    int lignesVisibles()
    {
        int nombre = 0;
        for (int i = 0; i < 4; ++i)
            nombre += visible(E, membre(u"LicenceJ", i)) && visible(E, membre(u"NomJ", i))
                && visible(E, membre(u"PrénomJ", i));
        return nombre;
    }
    /// Types a competition number, which hides everything else, and leaves it by a key.
    void change(const QString &numero, Qt::Key sortie = Qt::Key_Return)
    {
        QTest::mouseClick(liste(E, u"référence"_qs)->lineEdit(), Qt::LeftButton);
        champ(E, u"référence"_qs)->selectAll();
        tape(numero);
        EXPECT_FALSE(visible(E, u"Okc"_qs));
        EXPECT_FALSE(visible(E, u"LicenceJ_0"_qs));
        EXPECT_TRUE(visible(E, u"Lréférence"_qs));
        touche(sortie);
    }
};

TEST_F(ChoixConcours, WithoutACompetitionItMakesWayForTheEditor)
{
    ProgrammePilote::ouvre(u"f_equipes"_qs);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !formulaires().estChargee(E); }));
    EXPECT_FALSE(formulaires().estChargee(L));
    EXPECT_TRUE(formulaires().estVisible(u"Econcours"_qs));
}

TEST_F(ChoixConcours, ItOpensOnTheLastCompetition)
{
    creeConcours();
    const qint32 dernier =
        concoursDe(1, {.type = u"2 - Triplettes"_qs, .lieu = u"Aups"_qs, .categorie = u"Vétérans"_qs});
    ouvreFamille(u"f_equipes"_qs, E);
    EXPECT_EQ(partage().ConcoursCourant, dernier);
    EXPECT_EQ(textes(E, u"référence Lieuc datec typec categorie"_qs), u"000002|Aups|14/07/2026|Triplettes|Vétérans"_qs);
    EXPECT_EQ(lignesVisibles(), 3);
    EXPECT_EQ(textes(E, u"Equipe Label7"_qs), u"0002|1"_qs);
    // At opening the word follows the number proposed, not the number of teams.
    EXPECT_EQ(texte(E, u"Label8"_qs), partage().mes(87));
    EXPECT_FALSE(visible(E, u"SupprimerC"_qs));
}

TEST_F(ChoixConcours, AnotherNumberTakesTheFormOver)
{
    concoursDe(1, {.type = u"3 - Tête à tête"_qs, .repeche = true, .lieu = u"Aups"_qs, .categorie = u"Dames"_qs});
    execute(u"update concours set tourpri = 2"_qs);
    ouvre();
    remplit(E, u"NomJ_0"_qs, u"A"_qs);
    formulaires().etat<Passation>().PanacheeAutorisee = true;

    change(u"1"_qs);
    EXPECT_EQ(focus(), u"LicenceJ_0"_qs);
    EXPECT_EQ(texte(E, u"référence"_qs), u"000001"_qs);
    EXPECT_EQ(lignesVisibles(), 1);
    EXPECT_TRUE(visible(E, u"Okc"_qs));
    EXPECT_FALSE(visible(E, u"SupprimerC"_qs));
    EXPECT_EQ(textes(E, u"NomJ_0 Equipe"_qs), u"|0002"_qs);
    EXPECT_EQ(texte(E, u"Label7"_qs) + texte(E, u"Label8"_qs), u"1"_qs + partage().mes(88));
    EXPECT_EQ(partage().ConcoursCourant, 1);
    EXPECT_EQ(partage().NbJoueurs, 1);
    EXPECT_EQ(partage().TourCourant, 2);
    EXPECT_EQ(partage().LieuConcours + partage().CategorieConcours, u"AupsDames"_qs);
    EXPECT_TRUE(partage().AvecRepechage);
    EXPECT_FALSE(formulaires().etat<Passation>().PanacheeAutorisee);

    change(u"2"_qs, Qt::Key_Tab);
    EXPECT_EQ(focus(), u"LicenceJ_0"_qs);
    EXPECT_EQ(partage().ConcoursCourant, 2);
    EXPECT_EQ(texte(E, u"Equipe"_qs), u"0001"_qs);
}

TEST_F(ChoixConcours, AnUnknownNumberHoldsTheOperatorThere)
{
    ouvre();
    for (const QString &faux : {u"7"_qs, u"abc"_qs, u"1a"_qs, u"0"_qs}) {
        boites.attend(partage().mes(91) + u"\r\n"_qs + partage().mes(82));
        change(faux);
        EXPECT_EQ(focus(), u"référence"_qs);
        EXPECT_FALSE(visible(E, u"Okc"_qs));
        boites.verifie();
    }
    EXPECT_EQ(partage().ConcoursCourant, 1);
    tape(u"1"_qs);
    entre();
    EXPECT_TRUE(visible(E, u"Okc"_qs));
    EXPECT_EQ(focus(), u"LicenceJ_0"_qs);
}

TEST_F(ChoixConcours, ThePickFromTheListCountsWheelAndArrowsDoNot)
{
    creeConcours({.type = u"2 - Triplettes"_qs});
    ouvre();
    QComboBox *combo = liste(E, u"référence"_qs);
    QWheelEvent roue(QPointF(5, 5), combo->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(combo, &roue);
    EXPECT_EQ(texte(E, u"référence"_qs), u"000002"_qs);
    EXPECT_TRUE(visible(E, u"Okc"_qs));

    combo->setFocus();
    touche(Qt::Key_Up);
    EXPECT_EQ(texte(E, u"référence"_qs), u"000002"_qs);
    QApplication::processEvents();
    ASSERT_TRUE(combo->view()->isVisible());
    QTest::keyClick(combo->view(), Qt::Key_Up);
    QTest::keyClick(combo->view(), Qt::Key_Return);
    EXPECT_EQ(partage().ConcoursCourant, 1);
    EXPECT_EQ(lignesVisibles(), 3);
    active(E); // offscreen, a list that closes leaves no window active
    EXPECT_EQ(focus(), u"LicenceJ_0"_qs);
}

TEST_F(ChoixConcours, AnUnknownTypeHasTeamsWithoutRows)
{
    club(u"DUP"_qs);
    const qint32 concours = ouvre(u"9 - Autre"_qs);
    EXPECT_EQ(lignesVisibles(), 0);
    remplit(E, u"Société"_qs, u"DUP"_qs);
    clic(E, u"Okc"_qs);
    EXPECT_EQ(numeros(concours), QStringList());
    EXPECT_EQ(lignes(u"select equipe, principal from evolution"_qs), QStringList({u"1|1"_qs}));
    appelle(u"1"_qs);
    EXPECT_FALSE(visible(E, u"SupprimerC"_qs));
}

TEST_F(ChoixConcours, TheClubsStandBesideTheFormAndNeverTakeTheFocus)
{
    ouvre();
    const auto aCote = [this](int largeur) {
        EXPECT_EQ(forme(L)->Left(), forme(E)->Left() + forme(E)->Width());
        EXPECT_EQ(forme(L)->Top(), forme(E)->Top());
        EXPECT_EQ(forme(L)->Height(), forme(E)->Height());
        EXPECT_NEAR(forme(L)->Width(), largeur, 15);
    };
    EXPECT_EQ(forme(E)->Left(), 45); // 50 twips, to the nearest pixel
    EXPECT_TRUE(formulaires().estVisible(L));
    EXPECT_EQ(focus(), u"LicenceJ_0"_qs);
    aCote(4000);
    EXPECT_LE(forme(L)->Left() + forme(L)->Width(), 1366 * 15);

    formulaires().Decharge(NomForme(L));
    clic(E, u"Label1"_qs);
    EXPECT_TRUE(formulaires().estVisible(L));
    aCote(4500);
    EXPECT_LE(forme(L)->Left() + forme(L)->Width(), 1366 * 15);
    EXPECT_TRUE(forme(E)->isActiveWindow());
    EXPECT_EQ(focus(), u"LicenceJ_0"_qs);
}

TEST_F(ChoixConcours, TheWindowsCloseWithoutTouchingTheClosedBase)
{
    ouvre();
    formulaires().Decharge(NomForme(E));
    EXPECT_FALSE(formulaires().estChargee(L));
    ouvreFamille(u"f_equipes"_qs, E);
    EXPECT_EQ(texte(E, u"Equipe"_qs), u"00001"_qs);
    remplit(E, u"LicenceJ_0"_qs, u"à moitié"_qs);
    redemarre();
    EXPECT_EQ(boites.textes(), QStringList());
}

} // namespace
