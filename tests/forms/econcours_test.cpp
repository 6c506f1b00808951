#include "commun/programme_pilote.h"

#include <QCheckBox>

namespace {

class EditeurConcours : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(prog.demarre()); }

    void ouvre() { prog.ouvre(u"f_concours"_qs); }
    qint32 concours(const QString &type = u"2 - Triplettes"_qs, int equipes = 0)
    {
        return poseConcours(prog.base(), {.type = type, .equipes = equipesDeClubs(equipes)});
    }
    template<typename Widget = QLineEdit>
    Widget *controle(const QString &nom)
    {
        return prog.controle<Widget>(u"Econcours"_qs, nom);
    }
    QString texte(const QString &nom) { return controle(nom)->text(); }
    QString combo(const QString &nom) { return controle<QComboBox>(nom)->currentText(); }
    void appelle(const QString &numero)
    {
        controle<QComboBox>(u"référence"_qs)->setFocus();
        controle<QComboBox>(u"référence"_qs)->clearEditText();
        prog.tape(numero + u'\n');
    }
    /// Types a whole competition from the top of the entry, and leaves the type on the way round.
    void saisit(const QString &date, const QString &type)
    {
        controle(u"Text2"_qs)->setFocus();
        controle(u"Text2"_qs)->clear();
        prog.tape(date + u"\nL'Isle\nLa Boule\n"_qs);
        controle<QComboBox>(u"Combo1"_qs)->clearEditText();
        prog.tape(type);
    }
    void ok() { prog.clique(u"Econcours"_qs, u"ok"_qs); }
    qint64 lignes() { return prog.valeur(u"select count(*) from concours"_qs).entier(); }

    ProgrammePilote prog;
};

TEST_F(EditeurConcours, LePremierConcours)
{
    ouvre();
    EXPECT_FALSE(controle<QComboBox>(u"référence"_qs)->isVisible());
    EXPECT_FALSE(controle<QLabel>(u"Label4"_qs)->isVisible());
    EXPECT_EQ(prog.focus(), u"Text2"_qs);
    saisit(u"14/07/2026"_qs, u"2 - Triplettes"_qs); // today is accepted
    EXPECT_EQ(prog.focus(), u"Combo1"_qs);
    EXPECT_EQ(texte(u"Text3"_qs), u"L'Isle"_qs);
    prog.boites.attend(u"Concours enregistré sous le numéro 000001"_qs);
    ok();
    prog.boites.verifie();
    EXPECT_TRUE(controle<QComboBox>(u"référence"_qs)->isVisible());
    EXPECT_EQ(combo(u"référence"_qs), u"000002"_qs);
    EXPECT_EQ(prog.partage().ConcoursCourant, 1);
    EXPECT_EQ(prog.valeur(u"select date || lieu || organisateur || type || tourpri || pro from concours"_qs).texte(),
              u"2026-07-14L'IsleLa Boule2 - Triplettes0-1"_qs);
    EXPECT_EQ(texte(u"Text2"_qs) + texte(u"Text3"_qs) + texte(u"Text4"_qs) + combo(u"Combo1"_qs), QString());
    // Nothing of the new competition is known to the other screens before they load it.
    EXPECT_EQ(prog.partage().LieuConcours, QString());
    ok(); // nothing to save, and nothing to say
    EXPECT_EQ(lignes(), 1);
}

TEST_F(EditeurConcours, OrdreDeLaSaisie)
{
    ouvre();
    controle(u"Text2"_qs)->setText(u"31/02/2026"_qs);
    prog.touche(Qt::Key_Right);
    EXPECT_EQ(prog.focus(), u"Text2"_qs); // no date yet
    controle(u"Text2"_qs)->setText(u"28/02/2027"_qs);
    prog.touche(Qt::Key_Right);
    EXPECT_EQ(prog.focus(), u"Text3"_qs);
    prog.touche(Qt::Key_Right);
    EXPECT_EQ(prog.focus(), u"Text4"_qs);
    prog.tape(u"\n"_qs);
    EXPECT_EQ(prog.focus(), u"Combo1"_qs);
    prog.tape(u"1 - n'importe quoi\n"_qs);
    EXPECT_EQ(prog.focus(), u"Text2"_qs);
    EXPECT_EQ(combo(u"Combo1"_qs), u"1 - Doublettes"_qs);
    controle<QComboBox>(u"Combo1"_qs)->setFocus();
    prog.touche(Qt::Key_Escape);
    EXPECT_EQ(prog.focus(), u"Text2"_qs);
    EXPECT_EQ(combo(u"Combo1"_qs) + texte(u"Text2"_qs), QString());
}

TEST_F(EditeurConcours, TypeInconnuOuIncomplet)
{
    ouvre();
    // A code alone is refused when saving, although it exists; just opened, the form lets it go once.
    saisit(u"15/07/2026"_qs, u"1"_qs);
    prog.boites.attend(u"Choix inconnu"_qs);
    ok();
    prog.boites.verifie();
    EXPECT_EQ(prog.focus(), u"Combo1"_qs);
    EXPECT_EQ(combo(u"Combo1"_qs), QString());
    EXPECT_EQ(lignes(), 0);

    for (const QString &type : {u"\n"_qs, u"8 - Sextettes\n"_qs}) {
        prog.boites.attend(u"Choix inconnu"_qs);
        prog.tape(type);
        prog.boites.verifie();
        EXPECT_EQ(prog.focus(), u"Combo1"_qs);
        EXPECT_EQ(combo(u"Combo1"_qs), QString());
    }
    // A click that brings up the box is not carried out behind it.
    prog.boites.attend(u"Choix inconnu"_qs);
    ok();
    prog.boites.verifie();
    prog.touche(Qt::Key_Escape);
    EXPECT_EQ(prog.focus(), u"Text2"_qs);
}

TEST_F(EditeurConcours, DateRefusee)
{
    const qint32 ancien = concours();
    prog.base().native().executeScript(u"update concours set date = '2026-07-13'"_qs);
    ouvre();
    saisit(u"demain"_qs, u"1 - Doublettes"_qs);
    ok(); // no date: not a word
    EXPECT_EQ(lignes(), 1);
    appelle(QString::number(ancien));
    EXPECT_EQ(texte(u"Text2"_qs), u"13/07/2026"_qs);
    prog.boites.attend(u"ne peut pas être dans le passé"_qs);
    ok();
    prog.boites.verifie();
    EXPECT_EQ(prog.focus(), u"Text2"_qs);
    EXPECT_EQ(texte(u"Text3"_qs), u"Sète"_qs);
}

TEST_F(EditeurConcours, ModifierUnConcours)
{
    const qint32 premier = concours(u"3 - Tête à tête"_qs);
    concours();
    prog.base().native().executeScript(u"update concours set pro = 0, repeche = -1, tourpri = 2, categorie = null"_qs);
    ouvre();
    EXPECT_EQ(combo(u"référence"_qs), u"000003"_qs);
    appelle(QString::number(premier));
    EXPECT_EQ(combo(u"référence"_qs), u"000001"_qs);
    EXPECT_EQ(prog.focus(), u"Text2"_qs);
    EXPECT_EQ(combo(u"Combo1"_qs), u"3 - Tête à tête"_qs);
    EXPECT_EQ(combo(u"text1"_qs), QString());
    EXPECT_TRUE(controle<QCheckBox>(u"Check1"_qs)->isChecked());
    EXPECT_TRUE(controle<QCheckBox>(u"Check4"_qs)->isChecked());
    controle(u"Text3"_qs)->setText(u"Agde"_qs);
    prog.clique(u"Econcours"_qs, u"Check1"_qs);
    ok();
    EXPECT_EQ(prog.valeur(u"select lieu || pro || repeche || tourpri from concours where concours = 1"_qs).texte(),
              u"Agde-102"_qs);
    EXPECT_EQ(prog.valeur(u"select lieu || pro || repeche from concours where concours = 2"_qs).texte(), u"Sète0-1"_qs);
    EXPECT_EQ(combo(u"référence"_qs), u"000003"_qs);
    EXPECT_EQ(prog.partage().ConcoursCourant, premier);
    EXPECT_EQ(lignes(), 2);
}

TEST_F(EditeurConcours, NumerosProposesEtDonnes)
{
    for (int fois = 0; fois < 3; ++fois)
        concours();
    prog.base().native().executeScript(u"delete from concours where concours in (1, 3)"_qs);
    ouvre();
    EXPECT_EQ(combo(u"référence"_qs), u"000003"_qs);
    // A number without a competition, here a gap, leads to a new one under the store's next number.
    appelle(u"1"_qs);
    EXPECT_EQ(combo(u"référence"_qs), u"000003"_qs);
    saisit(u"20/07/2026"_qs, u"1 - Doublettes"_qs);
    ok();
    EXPECT_EQ(prog.partage().ConcoursCourant, 4);
    EXPECT_EQ(prog.valeur(u"select max(concours) from concours"_qs).entier(), 4);
    EXPECT_EQ(combo(u"référence"_qs), u"000005"_qs);
    EXPECT_GE(controle<QComboBox>(u"référence"_qs)->findText(u"000004"_qs), 0);
    appelle(u"abc"_qs); // no number: back to the last one known
    EXPECT_EQ(combo(u"référence"_qs), u"000004"_qs);
    EXPECT_EQ(texte(u"Text3"_qs), u"L'Isle"_qs);
}

TEST_F(EditeurConcours, TypeFigeDesLaPremiereEquipe)
{
    const qint32 numero = concours(u"2 - Triplettes"_qs, 1);
    ouvre();
    appelle(QString::number(numero));
    controle<QComboBox>(u"Combo1"_qs)->setFocus();
    controle<QComboBox>(u"Combo1"_qs)->clearEditText();
    prog.boites.attend(prog.partage().mes(116) + u" : "_qs + prog.partage().mes(87));
    prog.tape(u"1 - Doublettes\n"_qs);
    prog.boites.verifie();
    EXPECT_EQ(prog.focus(), u"Combo1"_qs);
    EXPECT_EQ(combo(u"Combo1"_qs), u"1 - Doublettes"_qs); // left to the operator to correct
    controle<QComboBox>(u"Combo1"_qs)->clearEditText();
    prog.tape(u"2 - Triplettes\n"_qs);
    EXPECT_EQ(prog.focus(), u"Text2"_qs);
    EXPECT_EQ(prog.valeur(u"select type from concours"_qs).texte(), u"2 - Triplettes"_qs);
}

TEST_F(EditeurConcours, EchapSortDeLaDisciplineFigee)
{
    const qint32 numero = concours(u"2 - Triplettes"_qs, 1);
    ouvre();
    appelle(QString::number(numero));
    for (int fois = 0; fois < 2; ++fois) {
        controle<QComboBox>(u"Combo1"_qs)->setFocus();
        prog.touche(Qt::Key_Escape);
        EXPECT_EQ(prog.focus(), u"Text2"_qs);
    }
    controle(u"Text2"_qs)->setText(u"20/07/2026"_qs);
    prog.boites.attend(u"Choix inconnu"_qs);
    ok();
    prog.boites.verifie();
    prog.touche(Qt::Key_Escape);
    EXPECT_EQ(prog.focus(), u"Text2"_qs);
    EXPECT_EQ(prog.valeur(u"select type || lieu from concours"_qs).texte(), u"2 - TriplettesSète"_qs);
}

TEST_F(EditeurConcours, UnNumeroQuiNEstPasReluNEstRemplaceQuApresUneQuestion)
{
    concours();
    ouvre();
    saisit(u"15/07/2026"_qs, u"1 - Doublettes"_qs);
    ok();
    appelle(u"1"_qs);
    ok(); // read, so it is changed without a word
    EXPECT_EQ(combo(u"référence"_qs), u"000002"_qs);
    const QString question = u"Le concours 000002 existe déjà"_qs;
    const auto deux = [&] { return prog.valeur(u"select date || lieu from concours where concours = 2"_qs).texte(); };
    const QString avant = deux();
    saisit(u"16/07/2026"_qs, u"2 - Triplettes"_qs);
    prog.boites.attend(question, ReponseBoite::Non);
    ok();
    prog.boites.verifie();
    EXPECT_EQ(prog.boites.drapeaux() & vbDefaultButton2, vbDefaultButton2);
    EXPECT_EQ(deux(), avant);
    EXPECT_EQ(lignes(), 2);
    EXPECT_EQ(texte(u"Text2"_qs), u"16/07/2026"_qs);
    // What was typed stays, and coming back from the list proposes a number for it.
    prog.clique(u"Econcours"_qs, u"Command1"_qs);
    QApplication::processEvents();
    prog.formulaires().Montre(NomForme(u"Econcours"));
    QApplication::processEvents();
    EXPECT_EQ(combo(u"référence"_qs), u"000003"_qs);
    ok();
    EXPECT_EQ(deux(), avant);
    EXPECT_EQ(prog.valeur(u"select date || lieu || type from concours where concours = 3"_qs).texte(),
              u"2026-07-16L'Isle2 - Triplettes"_qs);

    // Escape empties what was read.
    appelle(u"2"_qs);
    controle<QComboBox>(u"Combo1"_qs)->setFocus();
    prog.touche(Qt::Key_Escape);
    saisit(u"17/07/2026"_qs, u"2 - Triplettes"_qs);
    prog.boites.attend(question, ReponseBoite::Oui);
    ok();
    prog.boites.verifie();
    EXPECT_EQ(deux(), u"2026-07-17L'Isle"_qs);
    EXPECT_EQ(lignes(), 3);
}

TEST_F(EditeurConcours, EchecDeLaBaseDitUneFois)
{
    ouvre();
    saisit(u"20/07/2026"_qs, u"1 - Doublettes"_qs);
    prog.base().native().executeScript(
        u"create temp trigger coupe before insert on main.concours begin select raise(abort, 'disque'); end"_qs);
    prog.boites.attend(u"Concours enregistré"_qs); // told before the row is stored
    prog.boites.attend(u"Erreur"_qs);
    ok();
    prog.boites.verifie();
    EXPECT_EQ(lignes(), 0);
    prog.base().native().executeScript(u"drop trigger coupe"_qs);
    ok();
    EXPECT_EQ(lignes(), 1);
}

} // namespace
