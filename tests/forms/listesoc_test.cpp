#include "inscription_essai.h"
#include "noms/passation.h"

#include <QHeaderView>

namespace {

constexpr quint32 bleu = 16744448;

class Clubs : public Inscription
{
protected:
    void avec(const QStringList &noms)
    {
        for (const QString &nom : noms)
            club(nom);
        ouvre();
    }
    FlexGrid *grille() { return static_cast<FlexGrid *>(controle(L, u"Liste_soc"_qs)); }
    QStringList listes()
    {
        QStringList noms;
        for (int i = 1; i < grille()->Rows(); ++i)
            noms += grille()->TextMatrix(i, 0);
        return noms;
    }
    /// Clubs shown in blue, and the current one behind a bar.
    QString choix()
    {
        QStringList bleus;
        for (int i = 1; i < grille()->Rows(); ++i) {
            if (grille()->CellBackColor(i, 0) == bleu)
                bleus += grille()->TextMatrix(i, 0);
        }
        return bleus.join(u',') + u'|' + (grille()->Row() > 0 ? grille()->Text() : QString());
    }
    void cherche(const QString &debut) { remplit(L, u"Recherche"_qs, debut); }
    void clicClub(int ligne, Qt::MouseButton bouton = Qt::LeftButton, Qt::KeyboardModifiers touches = Qt::NoModifier)
    {
        active(L);
        const QPoint place = grille()->visualRect(grille()->model()->index(ligne - 1, 0)).center();
        QTest::mouseClick(grille()->viewport(), bouton, touches, place);
    }
};

TEST_F(Clubs, StandInOrderUnderTheirHeading)
{
    avec({u"ETOILE"_qs, u"Écrin"_qs, u"DURAND"_qs, u"dumas"_qs, u"L'Oustau"_qs});
    EXPECT_EQ(listes(),
              QStringList({u"*Panachée"_qs, u"dumas"_qs, u"DURAND"_qs, u"Écrin"_qs, u"ETOILE"_qs, u"L'Oustau"_qs}));
    EXPECT_EQ(grille()->TextMatrix(0, 0), partage().mes(31));
    EXPECT_EQ(forme(L)->windowTitle(), partage().mes(31));
}

TEST_F(Clubs, AreFoundByTheirFirstLettersOrTheNextOneInOrder)
{
    avec({u"DUMAS"_qs, u"DUPONT"_qs, u"DURAND"_qs, u"Écrin"_qs});
    cherche(u"DUP"_qs);
    EXPECT_EQ(choix(), u"DUPONT|DUPONT"_qs);
    cherche(u"DUQ"_qs);
    EXPECT_EQ(choix(), u"DURAND|DURAND"_qs);
    cherche(u"dum"_qs);
    EXPECT_EQ(choix(), u"DUMAS|DUMAS"_qs);
    cherche(u"ec"_qs);
    EXPECT_EQ(choix(), u"Écrin|Écrin"_qs);
    cherche(u"ZZ"_qs);
    EXPECT_EQ(choix(), u"|"_qs);
    boites.attend(u"Impossible de supprimer"_qs);
    clic(L, u"Command1"_qs);
    clic(L, u"Command2"_qs);
    EXPECT_EQ(texte(L, u"Recherche"_qs), QString());
    EXPECT_EQ(choix(), u"|"_qs);
}

TEST_F(Clubs, AClubFoundFarDownOrFarUpComesToTheTop)
{
    QStringList noms;
    for (int i = 0; i < 300; ++i)
        noms += u"CLUB%1"_qs.arg(i, 3, 10, QLatin1Char('0'));
    avec(noms);
    cherche(u"club150"_qs);
    QTest::qWait(1);
    EXPECT_EQ(grille()->TextMatrix(grille()->TopRow(), 0), u"CLUB150"_qs);
    cherche(u"club010"_qs);
    QTest::qWait(1);
    EXPECT_EQ(choix(), u"CLUB010|CLUB010"_qs);
    EXPECT_EQ(grille()->TextMatrix(grille()->TopRow(), 0), u"CLUB010"_qs);
}

TEST_F(Clubs, KeysInTheGridGoOnWithTheSearch)
{
    avec({u"DUMAS"_qs, u"DUPONT"_qs, u"DURAND"_qs});
    grille()->setFocus();
    QTest::keyClicks(grille(), u"dur"_qs);
    EXPECT_EQ(texte(L, u"Recherche"_qs), u"dur"_qs);
    EXPECT_EQ(choix(), u"DURAND|DURAND"_qs);
    QTest::keyClick(grille(), Qt::Key_Up);
    QTest::keyClick(grille(), Qt::Key_Shift);
    QTest::sendKeyEvent(QTest::Click, grille(), Qt::Key_Q, u"\x11"_qs, Qt::ControlModifier);
    EXPECT_EQ(texte(L, u"Recherche"_qs), u"dur"_qs);
    QTest::keyClick(grille(), Qt::Key_Backspace);
    EXPECT_EQ(texte(L, u"Recherche"_qs), QString());
}

TEST_F(Clubs, AClickFillsTheFormThatAsked)
{
    avec({u"DUMAS"_qs, u"L'Oustau"_qs});
    clicClub(3);
    EXPECT_EQ(texte(E, u"Société"_qs), u"L'Oustau"_qs);
    EXPECT_EQ(formulaires().etat<Passation>().ClubFiltre, u"L'Oustau"_qs);
    EXPECT_EQ(choix(), u"L'Oustau|L'Oustau"_qs);

    clicClub(2, Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(texte(E, u"Société"_qs), u"L'Oustau"_qs);
    EXPECT_EQ(formulaires().etat<Passation>().ClubFiltre, u"DUMAS"_qs);
    clicClub(1, Qt::RightButton);
    EXPECT_EQ(formulaires().etat<Passation>().ClubFiltre, u"DUMAS"_qs);
    EXPECT_EQ(choix(), u"DUMAS|DUMAS"_qs);
    QTest::mouseClick(grille()->horizontalHeader()->viewport(), Qt::LeftButton);
    EXPECT_EQ(texte(E, u"Société"_qs), u"L'Oustau"_qs);

    formulaires().etat<Passation>().FormeAppelante = u"Ejoueurs"_qs; // not open
    clicClub(2);
    EXPECT_EQ(texte(E, u"Société"_qs), u"L'Oustau"_qs);
}

TEST_F(Clubs, OneIsDeletedAfterAQuestionAndTheFirstOneStays)
{
    avec({u"DUMAS"_qs, u"DUPONT"_qs, u"DURAND"_qs});
    clicClub(1);
    boites.attend(u"Impossible de supprimer *Panachée"_qs);
    clic(L, u"Command1"_qs);
    clicClub(3);
    boites.attend(u"Supprimer DUPONT"_qs, ReponseBoite::Non);
    clic(L, u"Command1"_qs);
    EXPECT_EQ(listes().size(), 4);
    boites.attend(u"Supprimer DUPONT"_qs, ReponseBoite::Oui);
    clic(L, u"Command1"_qs);
    EXPECT_EQ(listes(), QStringList({u"*Panachée"_qs, u"DUMAS"_qs, u"DURAND"_qs}));
    EXPECT_EQ(choix(), u"DURAND|DURAND"_qs);
    EXPECT_EQ(lignes(u"select societe from societes order by societe"_qs), listes());

    boites.attend(u"Supprimer DURAND"_qs, ReponseBoite::Oui);
    clic(L, u"Command1"_qs);
    EXPECT_EQ(listes(), QStringList({u"*Panachée"_qs, u"DUMAS"_qs}));
    cherche(u"D"_qs);
    EXPECT_EQ(choix(), u"DUMAS|DUMAS"_qs);
}

TEST_F(Clubs, AnApostropheBreaksItsOwnDeletionAlone)
{
    // Joined to a deletion as they stand, the last two would remove the club before them, and all clubs.
    const QStringList apostrophes{u"L'Oustau"_qs, u"L''Oustau"_qs, u"Z' or '1'='1"_qs};
    avec(QStringList{u"DUMAS"_qs} + apostrophes);
    const QStringList avant = listes();
    for (const QString &club : apostrophes) {
        clicClub(int(avant.indexOf(club)) + 1);
        boites.attend(u"Supprimer "_qs + club, ReponseBoite::Oui);
        boites.attend(u"Erreur"_qs);
        clic(L, u"Command1"_qs);
        EXPECT_EQ(lignes(u"select societe from societes order by societe"_qs), avant);
    }
    clicClub(int(avant.indexOf(u"DUMAS"_qs)) + 1);
    boites.attend(u"Supprimer DUMAS"_qs, ReponseBoite::Oui);
    clic(L, u"Command1"_qs);
    EXPECT_EQ(nombre(u"select count(*) from societes"_qs), avant.size() - 1);
    EXPECT_EQ(nombre(u"select count(*) from societes where societe = 'DUMAS'"_qs), 0);
}

TEST_F(Clubs, AClubCreatedBesideItIsListedAtOnce)
{
    avec({u"DUMAS"_qs});
    remplit(E, u"Société"_qs, u"Bormes"_qs);
    boites.attend(partage().mes(92), ReponseBoite::Oui);
    entre();
    EXPECT_EQ(listes(), QStringList({u"*Panachée"_qs, u"Bormes"_qs, u"DUMAS"_qs}));
}

} // namespace
