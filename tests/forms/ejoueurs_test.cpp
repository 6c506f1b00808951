#include "inscription_essai.h"

#include <QRadioButton>

namespace {

const QString J = u"Ejoueurs"_qs;

class Joueurs : public Inscription
{
protected:
    void ouvreJoueurs()
    {
        menu(u"mnu_joueurs"_qs)->trigger();
        ASSERT_TRUE(QTest::qWaitFor([&] { return forme(J) == QApplication::activeWindow(); }));
    }
    bool coche(const QString &nom) { return qobject_cast<QRadioButton *>(controle(J, nom))->isChecked(); }
    QString numero() { return liste(J, u"Equipe"_qs)->currentText(); }
    void appelleJoueur(const QString &numero)
    {
        remplit(J, u"Equipe"_qs, numero);
        entre();
    }
    QStringList fichier()
    {
        return lignes(u"select equipe, doublon, nom, prenom, licence, societe, ne, sexe from equipes "
                      "where concours = 0 order by equipe"_qs);
    }
};

TEST_F(Joueurs, ANewOneIsTypedFromKeyToKeyAndCutToWhatTheFileHolds)
{
    club(u"L'Étoile d'Aÿ"_qs);
    ouvreJoueurs();
    EXPECT_EQ(forme(J)->windowTitle(), u"Gestion des joueurs"_qs);
    EXPECT_EQ(numero(), u"00001"_qs);
    EXPECT_EQ(partage().NbJoueurs, 1);
    EXPECT_EQ(focus(), u"Société"_qs);
    EXPECT_FALSE(visible(J, u"SupprimerC"_qs));
    const QString long60 = u"O'Brien-Sérusier "_qs.repeated(4).left(60);
    const std::pair<QString, QString> suite[] = {{u"L'Étoile d'Aÿ"_qs, u"LicenceJ_0"_qs},
                                                 {u"12345678901234567890"_qs, u"NomJ_0"_qs},
                                                 {long60, u"PrénomJ_0"_qs},
                                                 {long60, u"ne"_qs},
                                                 {u"5/3/48"_qs, u"Masculin"_qs}};
    for (const auto &[saisie, suivant] : suite) {
        tape(saisie);
        entre();
        EXPECT_EQ(focus(), suivant);
    }
    clic(J, u"Feminin"_qs);
    clic(J, u"Okc"_qs);
    EXPECT_EQ(fichier(), QStringList{u"1|0|%1|%1|123456789012345|L'Étoile d'Aÿ|1948-03-05|F"_qs.arg(long60.left(20))});
    EXPECT_EQ(lignes(u"select tableau, engage from equipes"_qs), QStringList{u"Null|0"_qs});
    EXPECT_EQ(nombre(u"select count(*) from evolution"_qs), 0);
    EXPECT_EQ(numero(), u"00002"_qs);
    EXPECT_EQ(focus(), u"Société"_qs);
    EXPECT_TRUE(coche(u"Masculin"_qs));

    tape(u"L'Étoile d'Aÿ"_qs);
    remplit(J, u"ne"_qs, u"jamais"_qs);
    boites.attend(u"« jamais » n'est pas une date : la date de naissance reste vide."_qs);
    clic(J, u"Okc"_qs);
    EXPECT_EQ(fichier().last(), u"2|0||||L'Étoile d'Aÿ|Null|M"_qs) << "what is no date is none";
    boites.attend(u"Le nom du club est obligatoire"_qs);
    clic(J, u"Okc"_qs);
    EXPECT_TRUE(formulaires().estVisible(L));
    EXPECT_EQ(focus(), u"Société"_qs);
    EXPECT_EQ(fichier().size(), 2);
}

TEST_F(Joueurs, ACorrectionStoresTheTextsAsTypedAndProposesTheNumberOfTheTeams)
{
    club(u"DUP"_qs);
    for (const auto *nom : {u"UN", u"DEUX", u"TROIS"})
        joueur(u"L"_qs + QString::fromUtf16(nom), QString::fromUtf16(nom), u"P"_qs, u"DUP"_qs);
    execute(u"update equipes set ne = '1960-01-31', sexe = 'F' where concours = 0 and equipe = 2"_qs);
    const qint32 concours = concoursDe(7);
    partage().ConcoursCourant = concours;
    ouvreJoueurs();
    EXPECT_EQ(numero(), u"0004"_qs);
    appelleJoueur(u"2"_qs);
    EXPECT_EQ(textes(J, u"NomJ_0 ne"_qs), u"DEUX|31/01/1960"_qs);
    EXPECT_TRUE(coche(u"Feminin"_qs));
    EXPECT_TRUE(visible(J, u"SupprimerC"_qs));
    EXPECT_EQ(focus(), u"Société"_qs);
    const QString long60 = u"D'Aÿ-Œuvrard "_qs.repeated(5).left(60);
    remplit(J, u"NomJ_0"_qs, long60);
    remplit(J, u"ne"_qs, u"31/02/1960"_qs);
    boites.attend(u"n'est pas une date"_qs);
    clic(J, u"Okc"_qs);
    EXPECT_EQ(fichier()[1], u"2|0|%1|P|LDEUX|DUP|1960-01-31|F"_qs.arg(long60));
    EXPECT_EQ(numero(), u"0008"_qs) << "the teams of the current competition go on";
    EXPECT_EQ(focus(), u"Equipe"_qs);
    boites.attend(partage().mes(81) + u"\r\n"_qs + partage().mes(82));
    entre();
    EXPECT_EQ(numero(), u"0003"_qs);

    appelleJoueur(u"2"_qs);
    EXPECT_TRUE(coche(u"Feminin"_qs));
    appelleJoueur(u"4"_qs);
    EXPECT_TRUE(coche(u"Masculin"_qs)) << "a new number";
    appelleJoueur(u"3"_qs);
    verifieSansCopie([this] { clic(J, u"SupprimerC"_qs); });
    EXPECT_EQ(fichier().size(), 2);
    EXPECT_EQ(nombre(u"select count(*) from equipes where concours = %1"_qs.arg(concours)), 14);
    EXPECT_EQ(numero(), u"0003"_qs);
    EXPECT_EQ(liste(J, u"Equipe"_qs)->count(), 2);
    EXPECT_EQ(texte(J, u"NomJ_0"_qs) + texte(J, u"Société"_qs), QString());
}

TEST_F(Joueurs, TabWalksTheWholeEntryBeforeTheNumber)
{
    club(u"DUP"_qs);
    ouvreJoueurs();
    const std::pair<QString, QString> suite[] = {{u" dup "_qs, u"LicenceJ_0"_qs}, {u" 831 "_qs, u"NomJ_0"_qs},
                                                 {u"FABRE"_qs, u"PrénomJ_0"_qs},  {u"Rémi"_qs, u"ne"_qs},
                                                 {u"5/3/48"_qs, u"Masculin"_qs},  {{}, u"Okc"_qs}};
    for (const auto &[saisie, suivant] : suite) {
        tape(saisie);
        touche(Qt::Key_Tab);
        EXPECT_EQ(focus(), suivant);
    }
    entre();
    EXPECT_EQ(fichier(), QStringList{u"1|0|FABRE|Rémi|831|dup|1948-03-05|M"_qs});
    for (const QString &suivant : {u"LicenceJ_0"_qs, u"NomJ_0"_qs, u"PrénomJ_0"_qs, u"ne"_qs, u"Masculin"_qs, u"Okc"_qs,
                                   u"Command1"_qs, u"Equipe"_qs, u"Société"_qs}) {
        touche(Qt::Key_Tab);
        EXPECT_EQ(focus(), suivant);
    }
}

TEST_F(Joueurs, ALicenceIsBorneOnce)
{
    club(u"DUP"_qs);
    joueur(u"831"_qs, u"MEYNIER"_qs, u"Loïc"_qs, u"DUP"_qs);
    ouvreJoueurs();
    remplit(J, u"LicenceJ_0"_qs, u"831"_qs);
    boites.attend(partage().mes(103), ReponseBoite::Non);
    entre();
    EXPECT_EQ(texte(J, u"LicenceJ_0"_qs), QString());
    appelleJoueur(u"1"_qs);
    clic(J, u"LicenceJ_0"_qs);
    entre(); // his own
    EXPECT_EQ(texte(J, u"LicenceJ_0"_qs), u"831"_qs);
    EXPECT_EQ(focus(), u"NomJ_0"_qs);
}

TEST_F(Joueurs, NumbersFromTenThousandOnAreShownWhole)
{
    club(u"DUP"_qs);
    execute(u"insert into equipes (concours, equipe, nom, societe) values (0, 2345, 'AUTRE', 'DUP')"_qs);
    execute(u"insert into equipes (concours, equipe, nom, societe) values (0, 12345, 'LE BON', 'DUP')"_qs);
    ouvreJoueurs();
    EXPECT_EQ(numero(), u"12346"_qs);
    appelleJoueur(u"12345"_qs);
    EXPECT_EQ(texte(J, u"NomJ_0"_qs), u"LE BON"_qs);
    appelleJoueur(u"500"_qs); // a gap
    EXPECT_EQ(numero(), u"12346"_qs);
}

} // namespace
