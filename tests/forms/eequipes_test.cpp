#include "commun/panne_ecriture.h"
#include "inscription_essai.h"

namespace {

class Enregistrement : public Inscription
{
};

TEST_F(Enregistrement, ATeamGoesInByKeyboardAloneAndSurvivesARestart)
{
    joueur(u"0831"_qs, u"FABRE"_qs, u"Rémi"_qs, u"Boule d'Ampus"_qs);
    joueur(u"0832"_qs, u"N'GUYEN"_qs, u"Zoé"_qs, u"Boule d'Ampus"_qs);
    club(u"Boule d'Ampus"_qs);
    const qint32 concours = ouvre();
    EXPECT_EQ(focus(), u"LicenceJ_0"_qs);
    EXPECT_EQ(texte(E, u"Equipe"_qs), u"00001"_qs);

    tape(u"0831"_qs);
    entre();
    EXPECT_EQ(focus(), u"NomJ_0"_qs);
    EXPECT_EQ(textes(E, u"NomJ_0 PrénomJ_0 Société"_qs), u"FABRE|Rémi|Boule d'Ampus"_qs);
    entre();
    EXPECT_EQ(focus(), u"PrénomJ_0"_qs);
    entre();
    EXPECT_EQ(focus(), u"LicenceJ_1"_qs);
    tape(u"0832"_qs);
    entre();
    entre();
    entre();
    EXPECT_EQ(focus(), u"Société"_qs);
    entre();
    EXPECT_EQ(focus(), u"Okc"_qs);
    entre();

    EXPECT_EQ(texte(E, u"Equipe"_qs), u"00002"_qs);
    EXPECT_EQ(texte(E, u"Label7"_qs) + u' ' + texte(E, u"Label8"_qs), u"1 équipe inscrite"_qs);
    EXPECT_EQ(focus(), u"LicenceJ_0"_qs);
    for (const QString &vide : {u"Société"_qs, u"LicenceJ_0"_qs, u"NomJ_1"_qs, u"PrénomJ_1"_qs})
        EXPECT_EQ(texte(E, vide), QString());

    redemarre();
    EXPECT_EQ(equipe(concours, 1),
              QStringList({u"0|FABRE|Rémi|0831|Boule d'Ampus|A|1"_qs, u"1|N'GUYEN|Zoé|0832|Boule d'Ampus|A|1"_qs}));
    EXPECT_EQ(lignes(u"select concours, equipe, principal, complement from evolution"_qs),
              QStringList({u"%1|1|1|0"_qs.arg(concours)}));
}

TEST_F(Enregistrement, ProposalsHaveFiveDigitsOnlyBehindANewTeam)
{
    club(u"DUP"_qs);
    const qint32 concours = ouvre();
    for (const QString &nom : {u"A"_qs, u"B"_qs, u"C"_qs})
        inscrit(nom, u"DUP"_qs);
    EXPECT_EQ(texte(E, u"Equipe"_qs), u"00004"_qs);
    EXPECT_EQ(texte(E, u"Label7"_qs) + u' ' + texte(E, u"Label8"_qs), u"3 équipes inscrites"_qs);
    EXPECT_EQ(numeros(concours), QStringList({u"1"_qs, u"2"_qs, u"3"_qs}));

    appelle(u"2"_qs);
    EXPECT_EQ(focus(), u"Société"_qs);
    EXPECT_EQ(textes(E, u"Equipe NomJ_0"_qs), u"0002|B"_qs);
    EXPECT_TRUE(visible(E, u"SupprimerC"_qs));
    EXPECT_FALSE(visible(E, u"cImport"_qs));
    clic(E, u"Okc"_qs);
    EXPECT_EQ(texte(E, u"Equipe"_qs), u"0004"_qs);
    EXPECT_FALSE(visible(E, u"SupprimerC"_qs));
    EXPECT_TRUE(visible(E, u"cImport"_qs));

    // On the way out of the field by the mouse, the team is read as well.
    remplit(E, u"Equipe"_qs, u"3"_qs);
    clic(E, u"PrénomJ_1"_qs);
    EXPECT_EQ(texte(E, u"NomJ_0"_qs), u"C"_qs);
    EXPECT_EQ(focus(), u"Société"_qs);

    // And by a pick from the list.
    clic(E, u"LicenceJ_0"_qs);
    liste(E, u"Equipe"_qs)->setFocus();
    EXPECT_EQ(texte(E, u"NomJ_0"_qs), QString());
    liste(E, u"Equipe"_qs)->setCurrentIndex(0);
    Q_EMIT liste(E, u"Equipe"_qs)->activated(0);
    EXPECT_EQ(texte(E, u"NomJ_0"_qs), u"A"_qs);
}

TEST_F(Enregistrement, GapsStayAndOnlyTheHighestNumberComesBack)
{
    club(u"DUP"_qs);
    const qint32 concours = ouvre();
    for (const QString &nom : {u"A"_qs, u"B"_qs, u"C"_qs})
        inscrit(nom, u"DUP"_qs);
    rencontre(concours, 1, 2, 3);

    appelle(u"2"_qs);
    clic(E, u"SupprimerC"_qs);
    EXPECT_EQ(numeros(concours), QStringList({u"1"_qs, u"3"_qs}));
    EXPECT_EQ(lignes(u"select equipe from evolution order by 1"_qs), QStringList({u"1"_qs, u"3"_qs}));
    EXPECT_EQ(nombre(u"select count(*) from scores"_qs), 1);
    EXPECT_EQ(textes(E, u"Label7 Equipe NomJ_0"_qs), u"2|0004|"_qs);
    EXPECT_FALSE(visible(E, u"SupprimerC"_qs));
    for (int i = 0; i < liste(E, u"Equipe"_qs)->count(); ++i)
        EXPECT_NE(liste(E, u"Equipe"_qs)->itemText(i).toInt(), 2);

    appelle(u"2"_qs);
    EXPECT_EQ(texte(E, u"Equipe"_qs), u"0004"_qs);
    EXPECT_FALSE(visible(E, u"SupprimerC"_qs));

    appelle(u"3"_qs);
    clic(E, u"SupprimerC"_qs);
    EXPECT_EQ(texte(E, u"Equipe"_qs), u"0002"_qs);
    EXPECT_EQ(texte(E, u"Label8"_qs), partage().mes(88));
    appelle(u"1"_qs);
    {
        const PanneEcriture panne(base().native(), 2); // the row of evolution
        boites.attend(u"Erreur"_qs);
        clic(E, u"SupprimerC"_qs);
    }
    EXPECT_EQ(numeros(concours), QStringList({u"1"_qs}));
    verifieSansCopie([this] {
        EXPECT_EQ(texte(E, u"NomJ_0"_qs), u"A"_qs);
        clic(E, u"SupprimerC"_qs);
    });
    EXPECT_EQ(texte(E, u"Equipe"_qs), u"0001"_qs);
    EXPECT_EQ(numeros(concours), QStringList());
}

TEST_F(Enregistrement, NumbersOutOfRangeGoBackToTheHighestOne)
{
    const QString refus = partage().mes(81) + u"\r\n"_qs + partage().mes(82);
    ouvre(u"1 - Doublettes"_qs, 3);
    for (const QString &faux : {u"0"_qs, u"abc"_qs, u"2bis"_qs, u"-1"_qs, u"5"_qs, u"99999999999999999999"_qs}) {
        boites.attend(refus);
        appelle(faux);
        EXPECT_EQ(texte(E, u"Equipe"_qs), u"0003"_qs) << faux.toStdString();
        EXPECT_EQ(focus(), u"Equipe"_qs);
        boites.verifie();
    }
    tape(u"4"_qs); // The refused number is selected: typing replaces it.
    entre();
    EXPECT_EQ(texte(E, u"Equipe"_qs), u"0004"_qs);
    EXPECT_EQ(focus(), u"Société"_qs);
}

TEST_F(Enregistrement, InAnEmptyCompetitionAnyNumberMeansTheFirst)
{
    ouvre();
    appelle(u"50"_qs);
    EXPECT_EQ(texte(E, u"Equipe"_qs), u"0001"_qs);
    boites.attend(partage().mes(81));
    appelle(u"0"_qs);
    EXPECT_EQ(texte(E, u"Equipe"_qs), u"0001"_qs);
}

TEST_F(Enregistrement, CorrectionCutsTheTextsAndSetsTheCountersBack)
{
    const QString long25 = u"ABCDEFGHIJKLMNOPQRSTUVWXY"_qs;
    const QString club30 = u"Société Bouliste de l'Évêché 0"_qs;
    ASSERT_EQ(club30.size(), 30);
    club(club30);
    const qint32 concours = ouvre();
    remplit(E, u"PrénomJ_0"_qs, long25);
    inscrit(long25, club30 + u"123"_qs);
    EXPECT_EQ(equipe(concours, 1).first(), u"0|%1|%1||%2|A|1"_qs.arg(long25, club30));

    execute(u"update evolution set principal = 4, complement = 2"_qs);
    execute(u"update equipes set tableau = 'B', engage = 2"_qs);
    rencontre(concours, 1, 1, 0);
    const QStringList avant = lignes(u"select * from scores"_qs);
    appelle(u"1"_qs);
    clic(E, u"Okc"_qs);
    EXPECT_EQ(equipe(concours, 1),
              QStringList({u"0|%1|%1||%2|A|1"_qs.arg(long25.left(20), club30), u"1||||%1|A|1"_qs.arg(club30)}));
    EXPECT_EQ(lignes(u"select principal, complement from evolution"_qs), QStringList({u"1|0"_qs}));
    EXPECT_EQ(lignes(u"select * from scores"_qs), avant);
}

TEST_F(Enregistrement, AClubIsNeededAndNumbersEndAt32768)
{
    club(u"DUP"_qs);
    const qint32 concours = ouvre();
    remplit(E, u"NomJ_0"_qs, u"A"_qs);
    boites.attend(u"Le nom du club est obligatoire"_qs);
    clic(E, u"Okc"_qs);
    EXPECT_EQ(focus(), u"Société"_qs);
    EXPECT_TRUE(formulaires().estVisible(L));
    EXPECT_EQ(texte(E, u"NomJ_0"_qs), u"A"_qs);
    EXPECT_EQ(nombre(u"select count(*) from equipes"_qs), 0);

    tape(u"DUP"_qs);
    champ(E, u"Equipe"_qs)->setText(u"32769"_qs);
    boites.attend(partage().mes(89) + u"\r\n"_qs + partage().mes(90) + u" 32768 "_qs + partage().mes(73));
    clic(E, u"Okc"_qs);
    EXPECT_EQ(texte(E, u"Société"_qs), QString());
    EXPECT_EQ(focus(), u"LicenceJ_0"_qs);
    EXPECT_EQ(nombre(u"select count(*) from equipes"_qs), 0);

    champ(E, u"Equipe"_qs)->setText(u"32768"_qs);
    inscrit(u"A"_qs, u"DUP"_qs);
    EXPECT_EQ(numeros(concours), QStringList({u"32768"_qs}));
}

TEST_F(Enregistrement, AFailingStoreNeverLeavesATeamThatLooksRegistered)
{
    club(u"DUP"_qs);
    const qint32 concours = ouvre();
    inscrit(u"A"_qs, u"DUP"_qs);
    abime(u"create trigger panne before insert on evolution begin select raise(abort, 'panne'); end"_qs);
    boites.attend(u"L'équipe 2 n'a pas pu être enregistrée"_qs);
    inscrit(u"B"_qs, u"DUP"_qs);
    EXPECT_EQ(numeros(concours), QStringList({u"1"_qs}));
    EXPECT_EQ(textes(E, u"NomJ_0 Equipe Label7"_qs), u"B|00002|1"_qs);

    abime(u"drop trigger panne"_qs);
    clic(E, u"Okc"_qs);
    EXPECT_EQ(numeros(concours), QStringList({u"1"_qs, u"2"_qs}));
    EXPECT_EQ(nombre(u"select count(*) from evolution"_qs), 2);
}

TEST_F(Enregistrement, AFailedCorrectionIsToldAndTheOtherWritesStay)
{
    club(u"DUP"_qs);
    const qint32 concours = ouvre(u"1 - Doublettes"_qs, 1);
    execute(u"update evolution set principal = 3"_qs);
    abime(u"create trigger panne before update on equipes when old.doublon = 0 "
          "begin select raise(abort, 'panne'); end"_qs);
    appelle(u"1"_qs);
    remplit(E, u"NomJ_0"_qs, u"X"_qs);
    remplit(E, u"NomJ_1"_qs, u"Y"_qs);
    boites.attend(u"L'équipe 1 n'a pas pu être enregistrée"_qs);
    clic(E, u"Okc"_qs);
    EXPECT_EQ(equipe(concours, 1), QStringList({u"0|NOM1|P0|L1-0|DUP|A|1"_qs, u"1|Y|P1|L1-1|DUP|A|1"_qs}));
    EXPECT_EQ(nombre(u"select principal from evolution"_qs), 1);
    EXPECT_EQ(texte(E, u"NomJ_0"_qs), u"X"_qs);
}

} // namespace
