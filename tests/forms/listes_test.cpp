#include "inscription_essai.h"
#include "noms/passation.h"

#include <QHeaderView>

namespace {

const QString Q = u"listeq"_qs;
const QString P = u"listjo"_qs;
const QString R = u"EResultats"_qs;

class Listes : public Inscription
{
protected:
    FlexGrid *grille(const QString &nomForme, const QString &nom = u"Les_équipes"_qs)
    {
        return static_cast<FlexGrid *>(controle(nomForme, nom));
    }
    QStringList rangees(const QString &nomForme, const QString &nom = u"Les_équipes"_qs)
    {
        FlexGrid *montree = grille(nomForme, nom);
        QStringList textes;
        for (int ligne = 1; ligne < montree->Rows(); ++ligne) {
            QStringList cellules;
            for (int colonne = 0; colonne < montree->Cols(); ++colonne)
                cellules += montree->TextMatrix(ligne, colonne);
            textes += cellules.join(u'|');
        }
        return textes;
    }
    QStringList colonne(const QString &nomForme, int colonne)
    {
        QStringList textes;
        for (const QString &ligne : rangees(nomForme))
            textes += ligne.split(u'|')[colonne];
        return textes;
    }
    void clicLigne(const QString &nomForme, int ligne, int colonne = 0, Qt::MouseButton bouton = Qt::LeftButton)
    {
        active(nomForme);
        FlexGrid *montree = grille(nomForme);
        const QRect cellule = montree->visualRect(montree->model()->index(ligne - 1, colonne));
        QTest::mouseClick(montree->viewport(), bouton, Qt::NoModifier, cellule.topLeft() + QPoint(4, 4));
    }
    bool focusVient(const QString &nom)
    {
        return QTest::qWaitFor([&] { return focus() == nom; });
    }
    QByteArray csv()
    {
        QFile lu(QDir(dossier()).filePath(u"listEquipes.csv"_qs));
        return lu.open(QIODevice::ReadOnly) ? lu.readAll() : QByteArray("absent");
    }
    void ouvreListe(const QString &bouton, const QString &nom)
    {
        clic(E, bouton);
        active(nom);
    }
};

QByteArray colonnes(const QString &texte, int largeur)
{
    QString remplie = texte.left(largeur);
    while (remplie.size() < largeur)
        remplie += u' ';
    return remplie.toUtf8();
}

TEST_F(Listes, TheTeamsAreShownAndWrittenToTheirFile)
{
    joueur(u"A1"_qs, u"O'Brien"_qs, u"Éric"_qs, u"L'Étoile d'Aÿ"_qs);
    joueur(u"a1"_qs, u"SECOND"_qs, u"P"_qs, u"Ailleurs"_qs);
    const qint32 concours = ouvre();
    const QString debut = u"\uFEFFSète\r\nConcours du 14/07/2026  Doublettes Seniors\r\n"_qs;
    const QByteArray entete = debut.toUtf8() + "Equipe N° " + colonnes(u"Société"_qs, 30)
        + colonnes(u"Nom-Prénom"_qs, 40) + colonnes(u"Licence"_qs, 15) + "\r\n";
    ouvreListe(u"Command1"_qs, Q);
    EXPECT_EQ(forme(Q)->windowTitle(), u"Liste des équipes - Concours 000001"_qs);
    EXPECT_EQ(csv(), entete) << "no team: three lines";

    const QString nom60 = u"L'Œuvre d'Aÿ-"_qs.repeated(5).left(60);
    joueur(u"A1"_qs, u"O'Brien"_qs, u"Éric"_qs, u"*Panachée"_qs, concours, 2, 0);
    joueur(u"X'9"_qs, nom60, u"Zoé"_qs, u"*Panachée"_qs, concours, 2, 1);
    joueur(u"U1"_qs, u"SEUL"_qs, u"Max"_qs, u"DUP"_qs, concours, 10, 0);
    active(E);
    active(Q);
    EXPECT_EQ(rangees(Q),
              QStringList(
                  {u"2|O'Brien Éric|A1|L'Étoile d'Aÿ"_qs, u"|%1 Zoé|X'9|."_qs.arg(nom60), u"10|SEUL Max|U1|DUP"_qs}));
    const auto membre = [](const QString &joueur, const QString &licence, const QString &equipe, const QString &club) {
        return QByteArray(50, ' ') + colonnes(joueur, 40) + colonnes(licence, 15) + "\r\n" + colonnes(equipe, 20)
            + colonnes(club, 30) + "\r\n";
    };
    EXPECT_EQ(csv(),
              entete + membre(u"O'Brien-Éric"_qs, u"A1"_qs, u"2"_qs, u"L'Étoile d'Aÿ"_qs)
                  + membre(nom60, u"X'9"_qs, u"2"_qs, {}) + membre(u"SEUL-Max"_qs, u"U1"_qs, u"10"_qs, {}));

    // The file cannot be written: told, and the list stands all the same.
    QFile::remove(QDir(dossier()).filePath(u"listEquipes.csv"_qs));
    QDir(dossier()).mkdir(u"listEquipes.csv"_qs);
    active(E);
    boites.attend(u"listEquipes.csv"_qs);
    active(Q);
    EXPECT_EQ(grille(Q)->Rows(), 4);
    partage().NbJoueurs = 4;
    QDir(dossier()).rmdir(u"listEquipes.csv"_qs);
    active(E);
    active(Q);
    EXPECT_TRUE(csv().contains("  Triplettes Seniors\r\n"));
}

TEST_F(Listes, AClickOnATeamWritesItsNumberIntoTheFieldThatAsked)
{
    const qint32 concours = ouvre(u"1 - Doublettes"_qs, 12);
    rencontre(concours, 1, 11, 7);
    execute(u"update concours set tourpri = 1"_qs);
    ouvreFamille(u"f_resultats"_qs, R);
    clic(R, u"Equipe1"_qs);
    ASSERT_TRUE(formulaires().estVisible(Q));
    EXPECT_EQ(focus(), u"Equipe1"_qs) << "who would rather type goes on typing";
    EXPECT_EQ(colonne(Q, 0).size(), 12);
    EXPECT_EQ(csv(), QByteArray("absent"));
    EXPECT_LT(forme(Q)->frameGeometry().right(), controle(R, u"Equipe1"_qs)->mapToGlobal(QPoint()).x());

    clicLigne(Q, 7);
    EXPECT_TRUE(focusVient(u"Equipe1"_qs));
    EXPECT_EQ(texte(R, u"Equipe1"_qs), u"7"_qs);
    entre();
    EXPECT_EQ(texte(R, u"Equipe1"_qs) + u'-' + texte(R, u"Equipe2"_qs), u"11-7"_qs);
    EXPECT_EQ(focus(), u"Score1"_qs);

    clic(R, u"Equipe2"_qs);
    clicLigne(Q, 1, 0, Qt::RightButton);
    const QString premiere = colonne(Q, 0).first();
    EXPECT_EQ(premiere, u"12"_qs);
    active(R);
    clicLigne(Q, 1); // brings the list to the front first, which fills it anew
    EXPECT_TRUE(focusVient(u"Equipe2"_qs));
    EXPECT_EQ(texte(R, u"Equipe2"_qs), premiere);
    QTest::mouseClick(grille(Q)->horizontalHeader()->viewport(), Qt::LeftButton);
    EXPECT_EQ(texte(R, u"Equipe1"_qs), u"11"_qs);

    ouvreFamille(u"f_equipes"_qs, E);
    EXPECT_FALSE(formulaires().estChargee(Q));
}

TEST_F(Listes, APickedPlayerIsTypedIntoTheTeam)
{
    club(u"DUP"_qs);
    club(u"L'Étoile d'Aÿ"_qs);
    joueur(u"831"_qs, u"MEYNIER"_qs, u"Loïc"_qs, u"DUP"_qs);
    joueur(u"832"_qs, u"O'Brien"_qs, u"Éric"_qs, u"L'Étoile d'Aÿ"_qs);
    joueur(u"833"_qs, u"ZED"_qs, u"Al"_qs, u"DUP"_qs);
    ouvre();
    ouvreListe(u"Command2"_qs, P);
    EXPECT_EQ(forme(P)->windowTitle(), u"Liste des joueurs Pré-enregistrés"_qs);
    EXPECT_EQ(rangees(P),
              QStringList({u"1|MEYNIER Loïc|831|DUP||"_qs, u"2|O'Brien Éric|832|L'Étoile d'Aÿ||"_qs,
                           u"3|ZED Al|833|DUP||"_qs}));
    clicLigne(P, 2, 1);
    EXPECT_TRUE(focusVient(u"NomJ_0"_qs));
    EXPECT_EQ(texte(E, u"LicenceJ_0"_qs) + texte(E, u"NomJ_0"_qs), u"832O'Brien"_qs);
    EXPECT_EQ(texte(E, u"Société"_qs), u"L'Étoile d'Aÿ"_qs);

    execute(u"delete * from equipes where concours = 0 and equipe = 3"_qs);
    boites.attend(u"Un même joueur ne peut pas être"_qs);
    clicLigne(P, 2, 1);
    EXPECT_EQ(grille(P)->Rows(), 4) << "while players are picked, the list stays as it is";
    EXPECT_TRUE(focusVient(u"LicenceJ_1"_qs));
    EXPECT_EQ(texte(E, u"LicenceJ_1"_qs), QString());
    boites.attend(u"panachées"_qs, ReponseBoite::Oui);
    clicLigne(P, 1, 1);
    EXPECT_TRUE(focusVient(u"NomJ_1"_qs));
    EXPECT_EQ(texte(E, u"NomJ_1"_qs) + texte(E, u"Société"_qs), u"MEYNIER*Panachée"_qs);
    clicLigne(P, 3, 1);
    QTest::qWait(20);
    EXPECT_EQ(texte(E, u"LicenceJ_0"_qs) + texte(E, u"LicenceJ_1"_qs), u"832831"_qs) << "no line is free";
    EXPECT_EQ(focus(), u"Les_équipes"_qs);
}

TEST_F(Listes, AClubNarrowsThePlayersAndItsApostropheHarmsNothing)
{
    club(u"L'Étoile d'Aÿ"_qs);
    joueur(u"831"_qs, u"MEYNIER"_qs, u"Loïc"_qs, u"DUP"_qs);
    joueur(u"832"_qs, u"O'Brien"_qs, u"Éric"_qs, u"L'Étoile d'Aÿ"_qs);
    ouvre();
    ouvreListe(u"Command2"_qs, P);
    EXPECT_EQ(grille(P)->Rows(), 3);
    active(L);
    const auto clicClub = [&](int ligne) {
        FlexGrid *clubs = grille(L, u"Liste_soc"_qs);
        QTest::mouseClick(clubs->viewport(), Qt::LeftButton, Qt::ControlModifier,
                          clubs->visualRect(clubs->model()->index(ligne - 1, 0)).center());
    };
    clicClub(2);
    EXPECT_EQ(colonne(P, 1), QStringList{u"O'Brien Éric"_qs});
    EXPECT_EQ(forme(P)->windowTitle(), u"Liste des joueurs Pré-enregistrés (L'Étoile d'Aÿ)"_qs);
    clicClub(1); // the mixed club is nobody's
    EXPECT_EQ(grille(P)->Rows(), 3);
    clicClub(2);
    active(E);
    clic(E, u"Command2"_qs);
    active(P);
    EXPECT_EQ(grille(P)->Rows(), 3) << "the button shows all of them again";
    clic(P, u"Rafraichir"_qs);
    EXPECT_TRUE(formulaires().etat<Passation>().SelectionEnCours);
}

TEST_F(Listes, APickedPlayerIsReadIntoTheFileOfPlayers)
{
    club(u"DUP"_qs);
    for (const int numero : {7, 12345}) {
        execute(u"insert into equipes (concours, equipe, nom, prenom, licence, societe, ne, sexe) values "
                "(0, %1, 'NOM%1', 'P', 'L%1', 'DUP', '1960-01-31', 'F')"_qs.arg(numero));
    }
    menu(u"mnu_joueurs"_qs)->trigger();
    active(u"Ejoueurs"_qs);
    clic(u"Ejoueurs"_qs, u"Command1"_qs);
    active(P);
    EXPECT_EQ(rangees(P),
              QStringList({u"12345|NOM12345 P|L12345|DUP|31/01/1960|F"_qs, u"7|NOM7 P|L7|DUP|31/01/1960|F"_qs}));
    clicLigne(P, 2);
    EXPECT_TRUE(focusVient(u"LicenceJ_0"_qs)) << focus().toStdString();
    EXPECT_EQ(texte(u"Ejoueurs"_qs, u"Equipe"_qs) + texte(u"Ejoueurs"_qs, u"NomJ_0"_qs), u"0007NOM7"_qs);
    EXPECT_TRUE(visible(u"Ejoueurs"_qs, u"SupprimerC"_qs));
    clicLigne(P, 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return texte(u"Ejoueurs"_qs, u"NomJ_0"_qs) == u"NOM12345"; }));
    EXPECT_TRUE(focusVient(u"LicenceJ_0"_qs));
    EXPECT_EQ(texte(u"Ejoueurs"_qs, u"LicenceJ_0"_qs), u"L12345"_qs);
    ouvreFamille(u"f_equipes"_qs, u"Econcours"_qs); // there is no competition
    EXPECT_FALSE(formulaires().estChargee(u"Ejoueurs"_qs) || formulaires().estChargee(P));
}

TEST_F(Listes, ARightClickSortsTheOtherWayEachTime)
{
    for (const auto &[licence, nom] :
         {std::pair(u"9"_qs, u"émile"_qs), std::pair(u"100"_qs, u"Fabre"_qs), std::pair(u"20"_qs, u"DUMAS"_qs)})
        joueur(licence, nom, u"P"_qs, u"DUP"_qs);
    ouvre();
    ouvreListe(u"Command2"_qs, P);
    const QStringList parNom{u"DUMAS P"_qs, u"émile P"_qs, u"Fabre P"_qs};
    EXPECT_EQ(colonne(P, 1), parNom);
    clicLigne(P, 2, 1, Qt::RightButton);
    EXPECT_EQ(colonne(P, 1), QStringList(parNom.rbegin(), parNom.rend()));
    clicLigne(P, 2, 1, Qt::RightButton);
    EXPECT_EQ(colonne(P, 1), parNom);
    clicLigne(P, 1, 2, Qt::RightButton); // 20, 9, 100: from the first to the last it goes up
    EXPECT_EQ(colonne(P, 2), QStringList({u"100"_qs, u"20"_qs, u"9"_qs}));
    EXPECT_FALSE(formulaires().etat<Passation>().SelectionEnCours);
    active(E);
    active(P);
    EXPECT_EQ(colonne(P, 2), QStringList({u"100"_qs, u"20"_qs, u"9"_qs})) << "filled anew as the operator left it";
    clic(P, u"Rafraichir"_qs);
    EXPECT_EQ(colonne(P, 1), parNom);
    for (int i = 1; i <= 3; ++i)
        EXPECT_EQ(texte(E, membre(u"LicenceJ", i)), QString()) << "a right click picks nobody";
}

TEST_F(Listes, AColumnWithBlanksTurnsRoundToo)
{
    ouvre(u"1 - Doublettes"_qs, 12);
    ouvreListe(u"Command1"_qs, Q);
    const auto sansBlancs = [&] {
        QStringList numeros = colonne(Q, 0);
        const qsizetype blancs = numeros.removeAll(QString());
        EXPECT_EQ(blancs, 12);
        return numeros.join(u' ');
    };
    const QString croissants = u"1 2 3 4 5 6 7 8 9 10 11 12"_qs;
    const QString decroissants = u"12 11 10 9 8 7 6 5 4 3 2 1"_qs;
    clicLigne(Q, 1, 0, Qt::RightButton); // from 1 to a blank it goes down
    EXPECT_EQ(sansBlancs(), croissants);
    EXPECT_EQ(colonne(Q, 0).first(), QString()) << "a blank stands below all";
    clicLigne(Q, 1, 0, Qt::RightButton);
    EXPECT_EQ(sansBlancs(), decroissants);
    EXPECT_EQ(colonne(Q, 0).first(), u"12"_qs);
    clicLigne(Q, 1, 0, Qt::RightButton);
    EXPECT_EQ(sansBlancs(), croissants);
}

TEST_F(Listes, AllCompetitionsStandInTheirList)
{
    creeConcours({.lieu = u"L'Étoile d'Aÿ"_qs});
    creeConcours({.type = u"2 - Triplettes"_qs});
    ouvreFamille(u"f_concours"_qs, u"Econcours"_qs);
    clic(u"Econcours"_qs, u"Command1"_qs);
    active(u"Listco"_qs);
    const QString titre = grille(u"Listco"_qs, u"Liste_c"_qs)->FormatString();
    EXPECT_TRUE(titre.trimmed().endsWith(u"|<Catégorie"_qs)) << titre.toStdString();
    EXPECT_EQ(rangees(u"Listco"_qs, u"Liste_c"_qs),
              QStringList({u"1|14/07/2026|L'Étoile d'Aÿ|1 - Doublettes|Seniors"_qs,
                           u"2|14/07/2026|Sète|2 - Triplettes|Seniors"_qs}));
    execute(u"delete * from concours where concours = 1"_qs);
    clic(u"Econcours"_qs, u"Command1"_qs);
    EXPECT_EQ(grille(u"Listco"_qs, u"Liste_c"_qs)->Rows(), 2);
}

} // namespace
