#include "commun/programme_pilote.h"

#include <QAbstractItemView>
#include <QDialogButtonBox>

namespace {

class ChoixLangue : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(prog.demarre());
        ouvre();
    }

    void ouvre()
    {
        prog.menu(u"traduction"_qs)->trigger();
        QCoreApplication::processEvents();
        combo = prog.controle<QComboBox>(u"langues"_qs, u"Qlang"_qs);
        ASSERT_NE(combo, nullptr);
    }

    /// Opens the list with the first letter of a language, types the others, and takes the line.
    void choisit(const QString &debut)
    {
        combo->setFocus();
        QTest::keyClicks(combo, debut.left(1));
        QTest::keyClicks(combo->view(), debut.mid(1));
        QTest::keyClick(combo->view(), Qt::Key_Return);
        QCoreApplication::processEvents();
    }

    QString actives() { return prog.valeur(u"select group_concat(numero) from traduc where actif"_qs).texte(); }

    QString menuResultats() { return prog.menu(u"Mnu_resultats"_qs)->text(); }

    QString boutonAnnuler()
    {
        return QDialogButtonBox(QDialogButtonBox::Cancel).button(QDialogButtonBox::Cancel)->text().remove(u'&');
    }

    ProgrammePilote prog;
    QComboBox *combo = nullptr;
};

TEST_F(ChoixLangue, ChangeLesTextesEtLesBoutonsDuSysteme)
{
    QStringList offertes;
    for (int i = 0; i < combo->count(); ++i)
        offertes += combo->itemText(i);
    EXPECT_EQ(offertes.join(u' '), u"Deutsch English Español Français Italiano Nederlands"_qs);
    EXPECT_EQ(combo->currentText(), u"Français"_qs);
    EXPECT_EQ(boutonAnnuler(), u"Annuler"_qs);

    prog.ouvre(u"f_concours"_qs);
    ouvre();
    choisit(u"Deu"_qs);
    EXPECT_EQ(actives(), u"5"_qs);
    EXPECT_EQ(prog.partage().LangueCourante, 5);
    EXPECT_EQ(menuResultats(), u"Ergebnisse"_qs);
    EXPECT_EQ(prog.torvik()->windowTitle(), u"VarloTour V0.0.1"_qs);
    EXPECT_EQ(boutonAnnuler(), u"Abbrechen"_qs);
    // What is open keeps its texts, what opens from now on has the new ones.
    EXPECT_EQ(prog.formulaires().forme(u"Econcours"_qs)->windowTitle(), u"Enregistrement du Concours"_qs);
    EXPECT_TRUE(prog.formulaires().estVisible(u"langues"_qs));
    prog.ouvre(u"f_resultats"_qs);
    prog.ouvre(u"f_concours"_qs);
    EXPECT_EQ(prog.formulaires().forme(u"Econcours"_qs)->windowTitle(), u"Turnier erfassen"_qs);

    prog.termine();
    ASSERT_TRUE(prog.demarre());
    EXPECT_EQ(prog.partage().Traducteur, u"Deutsche Fassung"_qs);
    EXPECT_EQ(boutonAnnuler(), u"Abbrechen"_qs);
    ouvre();
    EXPECT_EQ(combo->currentText(), u"Deutsch"_qs);
    choisit(u"Fra"_qs);
    EXPECT_EQ(boutonAnnuler(), u"Annuler"_qs);
}

TEST_F(ChoixLangue, LaLangueActivePerdSaMarque)
{
    choisit(u"Eng"_qs);
    ASSERT_EQ(actives(), u"2"_qs);
    choisit(u"Eng"_qs);
    EXPECT_EQ(actives(), u""_qs);
    EXPECT_EQ(prog.partage().LangueCourante, 1);
    EXPECT_EQ(prog.partage().Traducteur, u""_qs);
    EXPECT_EQ(menuResultats(), u"Résultats"_qs);
    prog.decharge(NomForme(u"langues"));
    ouvre();
    EXPECT_EQ(combo->currentText(), QString()) << "without an active language the field is empty";
    EXPECT_EQ(combo->count(), 6);
    choisit(u"Deu"_qs);
    EXPECT_EQ(actives(), u"5"_qs);
}

TEST_F(ChoixLangue, UneLangueRetireeEntreTempsNeChangeRien)
{
    prog.base().Execute(u"delete * from traduc where numero = 4"_qs);
    prog.boites.attend(prog.partage().mes(52));
    choisit(u"Ita"_qs);
    prog.boites.verifie();
    EXPECT_EQ(actives(), u"1"_qs);
    EXPECT_EQ(prog.partage().LangueCourante, 1);
    EXPECT_EQ(menuResultats(), u"Résultats"_qs);
}

} // namespace
