#include "inscription_essai.h"

#include "noms/passation.h"

namespace {

const QString panachee = u"*Panachée"_qs;
const QString questionPanachees = u"Les équipes panachées sont-elles autorisées"_qs;

class JoueursDEquipe : public Inscription
{
protected:
    void SetUp() override
    {
        Inscription::SetUp();
        joueur(u"0831"_qs, u"FABRE"_qs, u"Rémi"_qs, u"DUP"_qs);
        joueur(u"0832"_qs, u"ROUX"_qs, u"Zoé"_qs, u"Dup"_qs);
        joueur(u"0840"_qs, u"BLANC"_qs, u"Léo"_qs, u"MAR"_qs);
        club(u"DUP"_qs);
        club(u"MAR"_qs);
    }
};

TEST_F(JoueursDEquipe, BlanksLeaveALicenceAndAClubWithTheFocus)
{
    const qint32 concours = ouvre();
    remplit(E, u"LicenceJ_0"_qs, u" 0831 "_qs);
    clic(E, u"PrénomJ_0"_qs);
    EXPECT_EQ(texte(E, u"LicenceJ_0"_qs), u"0831"_qs);
    remplit(E, u"LicenceJ_1"_qs, u"  "_qs);
    remplit(E, u"Société"_qs, u" dup "_qs);
    clic(E, u"Okc"_qs);
    EXPECT_EQ(equipe(concours, 1), QStringList({u"0|FABRE|Rémi|0831|dup|A|1"_qs, u"1||||dup|A|1"_qs}));
    boites.attend(partage().mes(103), ReponseBoite::Oui);
    licence(0, u"0831 "_qs);
    EXPECT_EQ(texte(E, u"LicenceJ_0"_qs), QString());
}

TEST_F(JoueursDEquipe, TheCardOfAPlayerGoesBeforeHisOldTeams)
{
    joueur(u"0899"_qs, u"ANCIEN"_qs, u"Nom"_qs, u"PARTI"_qs, 90, 1);
    ouvre();
    execute(u"delete * from equipes where licence = '0840'"_qs);
    joueur(u"0840"_qs, u"ANCIEN"_qs, u"Nom"_qs, u"PARTI"_qs, 90, 2);
    joueur(u"0840"_qs, u"BLANC"_qs, u"Léo"_qs, u"MAR"_qs);
    licence(0, u"0840"_qs);
    EXPECT_EQ(texte(E, u"NomJ_0"_qs) + texte(E, u"PrénomJ_0"_qs) + texte(E, u"Société"_qs), u"BLANCLéoMAR"_qs);
    licence(0, u"0899"_qs); // without a card
    EXPECT_EQ(texte(E, u"NomJ_0"_qs) + texte(E, u"Société"_qs), u"ANCIENPARTI"_qs);
}

TEST_F(JoueursDEquipe, MixedTeamsAreAskedForOnceACompetition)
{
    ouvre();
    licence(0, u"0831"_qs);
    licence(1, u" 0832 "_qs); // of the same club, in other letters
    EXPECT_EQ(textes(E, u"NomJ_1 Société"_qs), u"ROUX|DUP"_qs);
    boites.attend(questionPanachees, ReponseBoite::Non);
    licence(1, u"0840"_qs);
    EXPECT_EQ(boites.titre(), u"Enregistrement des équipes"_qs);
    EXPECT_EQ(texte(E, u"LicenceJ_1"_qs), QString());
    EXPECT_EQ(focus(), u"LicenceJ_1"_qs);
    EXPECT_EQ(texte(E, u"Société"_qs), panachee);

    boites.attend(questionPanachees, ReponseBoite::Oui);
    licence(1, u"0840"_qs);
    EXPECT_EQ(focus(), u"NomJ_1"_qs);
    clic(E, u"Okc"_qs);
    EXPECT_EQ(equipe(1, 1), QStringList({u"0|FABRE|Rémi|0831|*Panachée|A|1"_qs, u"1|BLANC|Léo|0840|*Panachée|A|1"_qs}));

    licence(0, u"9999"_qs); // Unknown: mixed until the operator says otherwise, and nothing more is asked.
    EXPECT_EQ(texte(E, u"Société"_qs), panachee);

    liste(E, u"référence"_qs)->setFocus();
    entre();
    boites.attend(questionPanachees, ReponseBoite::Oui);
    licence(0, u"9999"_qs);
    EXPECT_TRUE(formulaires().etat<Passation>().PanacheeAutorisee);
}

TEST_F(JoueursDEquipe, ALicenceOfAnotherTeamIsShownAndCleared)
{
    const qint32 concours = ouvre();
    joueur(u"0850"_qs, u"NOIR"_qs, u"Ève"_qs, u"MAR"_qs, concours, 7, 1);
    const Partage &p = partage();
    const QString boite = p.mes(103) + u" : 0850\r\n"_qs + p.mes(19) + u" : NOIR Ève(MAR)\r\n"_qs + p.mes(104) + u' '
        + p.mes(17) + u"7\r\n\r\n"_qs + p.mes(105);
    boites.attend(boite, ReponseBoite::Oui);
    licence(0, u"0850"_qs);
    EXPECT_EQ(boites.textes().last(), boite);
    EXPECT_EQ(texte(E, u"LicenceJ_0"_qs), QString());
    EXPECT_EQ(focus(), u"LicenceJ_0"_qs);

    // The very same person typed by hand: the line goes.
    remplit(E, u"Société"_qs, u"MAR"_qs);
    remplit(E, u"NomJ_0"_qs, u"noir"_qs);
    remplit(E, u"PrénomJ_0"_qs, u"Ève"_qs);
    boites.attend(boite, ReponseBoite::Non);
    licence(0, u"0850"_qs);
    for (const QString &vide : {u"LicenceJ_0"_qs, u"NomJ_0"_qs, u"PrénomJ_0"_qs})
        EXPECT_EQ(texte(E, vide), QString());
    EXPECT_EQ(focus(), u"NomJ_0"_qs);
}

TEST_F(JoueursDEquipe, ATeamReadBackKeepsItsOwnLicences)
{
    ouvre(u"1 - Doublettes"_qs, 2);
    appelle(u"2"_qs);
    clic(E, u"LicenceJ_1"_qs);
    entre();
    EXPECT_EQ(focus(), u"NomJ_1"_qs);
    EXPECT_EQ(texte(E, u"LicenceJ_1"_qs), u"L2-1"_qs);
    boites.attend(partage().mes(103), ReponseBoite::Oui);
    licence(1, u"L2-0"_qs); // The licence of the other line is another player's.
    EXPECT_EQ(texte(E, u"LicenceJ_1"_qs), QString());
}

TEST_F(JoueursDEquipe, TheLookUpRunsOnAnyWayOutAndOnlyOnce)
{
    ouvre();
    entre();
    EXPECT_EQ(focus(), u"LicenceJ_0"_qs);

    remplit(E, u"LicenceJ_0"_qs, u"0831"_qs);
    clic(E, u"LicenceJ_1"_qs);
    EXPECT_EQ(texte(E, u"NomJ_0"_qs), u"FABRE"_qs);
    EXPECT_EQ(focus(), u"NomJ_0"_qs);

    remplit(E, u"LicenceJ_1"_qs, u"0832"_qs);
    touche(Qt::Key_Right);
    EXPECT_EQ(focus(), u"NomJ_1"_qs);
    EXPECT_EQ(texte(E, u"NomJ_1"_qs), u"ROUX"_qs);

    // Each box comes once, whether the key or the loss of the focus has begun the look-up.
    boites.attend(u"Un même joueur ne peut pas être\r\nengagé deux fois dans la même équipe"_qs);
    licence(1, u"0831"_qs);
    EXPECT_EQ(texte(E, u"LicenceJ_0"_qs) + texte(E, u"LicenceJ_1"_qs), u"0831"_qs);
    boites.attend(u"Un même joueur"_qs);
    remplit(E, u"LicenceJ_1"_qs, u"0831"_qs);
    clic(E, u"PrénomJ_0"_qs);
    EXPECT_EQ(focus(), u"LicenceJ_1"_qs);
}

TEST_F(JoueursDEquipe, TheWalkEndsAtTheFirstEmptyLicence)
{
    ouvre(u"2 - Triplettes"_qs);
    remplit(E, u"Société"_qs, u"MAR"_qs);
    licence(2, u"0840"_qs);
    EXPECT_EQ(textes(E, u"NomJ_2 Société"_qs), u"|"_qs);
    EXPECT_EQ(focus(), u"NomJ_2"_qs);
    entre();
    entre();
    EXPECT_EQ(focus(), u"Société"_qs);
}

TEST_F(JoueursDEquipe, ANewClubIsCreatedOnConsent)
{
    ouvre();
    remplit(E, u"NomJ_0"_qs, u"A"_qs);
    remplit(E, u"Société"_qs, u"L'Étoile"_qs);
    boites.attend(partage().mes(92), ReponseBoite::Non);
    entre();
    EXPECT_EQ(texte(E, u"Société"_qs), QString());
    EXPECT_EQ(focus(), u"Société"_qs);
    EXPECT_EQ(nombre(u"select count(*) from societes"_qs), 3);

    tape(u" L'Étoile "_qs);
    boites.attend(partage().mes(92), ReponseBoite::Oui);
    entre();
    EXPECT_EQ(focus(), u"NomJ_0"_qs);
    EXPECT_EQ(lignes(u"select societe, codesoc from societes where codesoc > 3"_qs), QStringList({u"L'Étoile|4"_qs}));

    for (const QString &connu : {u"l'étoile"_qs, u"*panachée"_qs, u"   "_qs}) {
        remplit(E, u"Société"_qs, connu);
        entre();
        EXPECT_EQ(focus(), u"Okc"_qs) << connu.toStdString();
    }
    remplit(E, u"Société"_qs, u"L'Étoile"_qs);
    clic(E, u"Okc"_qs);
    redemarre();
    EXPECT_EQ(equipe(1, 1).first(), u"0|A|||L'Étoile|A|1"_qs);
    EXPECT_EQ(nombre(u"select count(*) from societes"_qs), 4);
}

TEST_F(JoueursDEquipe, TheFirstClubOfAllHasNoCode)
{
    ouvre();
    execute(u"delete * from societes"_qs);
    remplit(E, u"Société"_qs, u"SEUL"_qs);
    boites.attend(partage().mes(92), ReponseBoite::Oui);
    entre();
    EXPECT_EQ(lignes(u"select societe, codesoc from societes"_qs), QStringList({u"SEUL|Null"_qs}));
}

} // namespace
