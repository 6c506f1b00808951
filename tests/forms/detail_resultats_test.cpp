#include "salle_resultats.h"

#include "results/etat_resultats.h"

namespace {

/// One competition of four doublets whose matches are written by hand.
class DetailEquipe : public SalleResultats
{
protected:
    void SetUp() override
    {
        ouvre(4);
        execute(u"delete from equipes; delete from scores;"
                u"insert into equipes (concours, equipe, doublon, prenom, nom, licence, societe) values"
                u" (0, 1, 0, 'Zoé', 'ROUX', 'L1', 'Boule de Cuers'), (0, 2, 0, 'Luc', 'BRUN', 'L2', 'Sainte-Anne'),"
                u" (1, 1, 0, 'Zoé', 'ROUX', 'L1', '*Panachée'), (1, 1, 1, 'Luc', 'BRUN', 'L2', '*Panachée'),"
                u" (1, 2, 1, 'Ida', 'NOIR', 'L4', 'La Farlède'), (1, 2, 0, 'Eve', 'BLANC', 'L3', 'La Farlède');"
                u"insert into scores (concours, tableau, tour, equipe_1, equipe_2, score_1, score_2, repechage) values"
                u" (1, 1, 6, 4, 1, null, null, null), (1, 1, 1, 1, 2, 13, 5, null), (1, 1, 2, 1, 2, 9, 13, 1),"
                u" (1, 1, 3, 2, 1, 4, 13, 2), (1, 1, 4, 2, 1, 13, -1, 1), (1, 1, 5, 1, 0, null, null, null);"
                u"update concours set tourpri = 6"_qs);
        prog.partage().ConcoursCourant = 1;
    }

    QString texte(const QString &nom)
    {
        return prog.controle<QPlainTextEdit>(u"Détail_résultats"_qs, nom)->toPlainText();
    }
    void presse(int colonne, Qt::MouseButton bouton = Qt::LeftButton)
    {
        prog.clique(u"EResultats"_qs, u"manquants"_qs);
        auto *grille = prog.controle<FlexGrid>(u"manqres"_qs, u"les_resultats_0"_qs);
        QApplication::processEvents();
        QTest::mouseClick(grille->viewport(), bouton, {},
                          grille->visualRect(grille->model()->index(0, colonne)).center());
    }
};

TEST_F(DetailEquipe, CompositionClubsEtUneLigneParRencontre)
{
    prog.partage().AvecRepechage = true;
    presse(2);
    const Formulaire *detail = prog.formulaires().forme(u"Détail_résultats"_qs);
    ASSERT_NE(detail, nullptr);
    EXPECT_TRUE(detail->isVisible());
    EXPECT_EQ(detail->windowTitle(), u"Résultats détaillés de l'équipe N° 1"_qs);
    EXPECT_EQ(texte(u"Equipe"_qs), u"- Zoé ROUX  (L1)\n- Luc BRUN  (L2)"_qs);
    EXPECT_EQ(texte(u"Club"_qs), u"Boule de Cuers\nSainte-Anne"_qs);
    const QString deux = u"contre 2 BLANC(La Farlède) NOIR(La Farlède)"_qs;
    EXPECT_EQ(texte(u"scores"_qs).split(u'\n'),
              QStringList({u"Tour n° 1 - Gagne 5:13 %1 "_qs.arg(deux),
                           u"Tour n° 2 - Perd 9:13 %1  Repêchée"_qs.arg(deux),
                           u"Tour n° 3 - Gagne 13:4 %1  Repêchée"_qs.arg(deux),
                           u"Tour n° 4 - Perd %2:13 %1 "_qs.arg(deux, prog.partage().mes(43)),
                           u"Tour n° 5 - Gagne 13:7 Exempt "_qs, u"Tour n° 6 - Résultat en attente contre 4 "_qs}));
    EXPECT_EQ(prog.focus(), u"Equipe1"_qs);

    // The same window for the next team, without the mark when the competition gives no second chance.
    prog.partage().AvecRepechage = false;
    execute(u"insert into scores (concours, tableau, tour, equipe_1, equipe_2) values (1, 1, 7, 2, 3);"
            u"delete from scores where tour = 6"_qs);
    presse(1);
    EXPECT_EQ(detail->windowTitle(), u"Résultats détaillés de l'équipe N° 2"_qs);
    EXPECT_EQ(texte(u"Club"_qs), u"La Farlède"_qs);
    EXPECT_EQ(texte(u"scores"_qs).section(u'\n', 0, 0),
              u"Tour n° 1 - Perd 5:13 contre 1 ROUX(*Panachée) BRUN(*Panachée) "_qs);
    EXPECT_FALSE(texte(u"scores"_qs).contains(u"Repêchée"_qs));
}

TEST_F(DetailEquipe, SeulLeClicGaucheSurUneEquipeLOuvre)
{
    presse(0);
    presse(3);
    presse(1, Qt::RightButton);
    prog.formulaires().etat<EtatResultats>().ClicGrille = false;
    presse(1);
    EXPECT_FALSE(prog.formulaires().estChargee(u"Détail_résultats"_qs));
    prog.formulaires().etat<EtatResultats>().ClicGrille = true;
}

} // namespace
