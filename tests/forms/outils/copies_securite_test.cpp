#include "commun/programme_pilote.h"

#include <QTableWidget>

namespace {

class Copies : public testing::Test
{
protected:
    void SetUp() override
    {
        prog.avecCopies();
        ASSERT_TRUE(prog.demarre()); // makes the first copy
        poseConcours(prog.base(), {.equipes = equipesDeClubs(2)});
        prog.ouvre(u"f_resultats"_qs);
        prog.touche(Qt::Key_F9);
    }

    QTableWidget *liste() const { return prog.controle<QTableWidget>(u"CopiesSecurite"_qs, u"Copies"_qs); }
    QString ecart(int ligne) const { return liste()->item(ligne, liste()->columnCount() - 1)->text(); }
    bool lues() const
    {
        const QWidget *restaurer = prog.controle(u"CopiesSecurite"_qs, u"Restaurer"_qs);
        return QTest::qWaitFor(
            [&] { return restaurer->isEnabled() && ecart(liste()->rowCount() - 1) != u"lecture en cours"; });
    }
    qint64 concours() { return prog.valeur(u"select count(*) from concours"_qs).entier(); }
    void clique(const QString &bouton) { prog.clique(u"CopiesSecurite"_qs, bouton); }

    ProgrammePilote prog;
};

} // namespace

TEST_F(Copies, ACopyIsRestoredAndItsOwnCopyUndoesIt)
{
    ASSERT_TRUE(lues());
    ASSERT_EQ(liste()->rowCount(), 1);
    EXPECT_EQ(ecart(0), u"1 concours de moins, 2 équipes de moins"_qs);
    prog.boites.attend(u"Par rapport à la base : 1 concours de moins, 2 équipes de moins."_qs, ReponseBoite::Non);
    clique(u"Restaurer"_qs);
    EXPECT_EQ(prog.boites.drapeaux() & vbDefaultButton2, vbDefaultButton2);
    EXPECT_EQ(concours(), 1);
    EXPECT_TRUE(prog.formulaires().estChargee(u"EResultats"_qs));

    prog.boites.attend(u"Restaurer la copie du 14/07/2026"_qs, ReponseBoite::Oui);
    prog.boites.attend(u"La base d'avant est dans la copie VarloBase-20260714-093000-000002-restauration.mdb"_qs);
    clique(u"Restaurer"_qs);
    EXPECT_EQ(concours(), 0);
    EXPECT_EQ(prog.partage().ConcoursCourant, 0);
    EXPECT_FALSE(prog.formulaires().estChargee(u"EResultats"_qs)) << "it stood on a competition that is gone";
    EXPECT_EQ(prog.focus(), u"Copies"_qs);

    ASSERT_TRUE(lues());
    ASSERT_EQ(liste()->rowCount(), 2);
    EXPECT_EQ(ecart(1), u"identique"_qs);
    liste()->selectRow(0);
    prog.boites.attend(u"Elle contient 1 concours, 2 équipes, 0 résultat."_qs, ReponseBoite::Oui);
    prog.boites.attend(u"est en place"_qs);
    clique(u"Restaurer"_qs);
    EXPECT_EQ(concours(), 1);
    prog.ouvre(u"f_resultats"_qs);
    EXPECT_EQ(prog.partage().ConcoursCourant, 1);
}

TEST_F(Copies, ABaseOfAnotherLanguageIsSpokenAsItSays)
{
    prog.base().native().execute(u"update traduc set actif = case numero when 5 then -1 else 0 end"_qs);
    prog.boites.attend(u"Copie faite : VarloBase-20260714-093000-000002-demande.mdb"_qs);
    clique(u"Copier_maintenant"_qs);
    prog.base().native().execute(u"update traduc set actif = case numero when 1 then -1 else 0 end"_qs);
    prog.formulaires().forme(u"CopiesSecurite"_qs)->Rafraichir();
    liste()->selectRow(0);
    ASSERT_TRUE(lues());
    EXPECT_EQ(ecart(0), u"mêmes nombres, contenu différent"_qs);
    prog.boites.attend(u"Restaurer la copie"_qs, ReponseBoite::Oui);
    prog.boites.attend(u"Die Kopie vom 14.07.2026"_qs);
    clique(u"Restaurer"_qs);
    EXPECT_EQ(prog.fenetre(u"CopiesSecurite"_qs)->windowTitle(), u"Sicherungskopien"_qs);
    EXPECT_EQ(prog.partage().LangueCourante, 5);
}

TEST_F(Copies, ACopyIsMadeOnceAndElsewhereAndADamagedOneIsTold)
{
    prog.boites.attend(u"Copie faite"_qs);
    clique(u"Copier_maintenant"_qs);
    prog.boites.attend(u"La dernière copie contient déjà tout"_qs);
    clique(u"Copier_maintenant"_qs);
    prog.boites.attendFichier(u"Copier la base vers"_qs, {});
    clique(u"Copier_vers"_qs);
    const QString cle = prog.dossier() + u"/cle.mdb"_qs;
    prog.boites.attendFichier(u"Copier la base vers"_qs, cle);
    prog.boites.attend(u"est écrite, relue et complète"_qs);
    clique(u"Copier_vers"_qs);
    EXPECT_TRUE(QFile::exists(cle));
    prog.boites.attendFichier(u"Copier la base vers"_qs, prog.fichier());
    prog.boites.attend(u"est la base en service"_qs);
    clique(u"Copier_vers"_qs);

    const QDir copies(prog.dossier() + u"/sauvegardes"_qs);
    abimeFichier(copies.filePath(copies.entryList(QDir::Files).constFirst()));
    prog.touche(Qt::Key_Escape);
    EXPECT_FALSE(prog.formulaires().estChargee(u"CopiesSecurite"_qs));
    prog.menu(u"mnu_CopiesSecurite"_qs)->trigger();
    ASSERT_TRUE(lues());
    EXPECT_EQ(ecart(1), u"copie illisible"_qs);
    liste()->selectRow(1);
    EXPECT_FALSE(prog.controle(u"CopiesSecurite"_qs, u"Restaurer"_qs)->isEnabled());
}
