#include "commun/programme_pilote.h"

namespace {

class ImportListes : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(prog.demarre());
        prog.base().Execute(u"insert into joueurs (nom) values ('AVANT')");
        prog.base().Execute(u"insert into clubs (societe) values ('Avant')");
    }
    void ecrit(const QString &nom, const QByteArray &octets) { ecritFichier(prog.dossier() + u'/' + nom, octets); }
    void choisit(const QString &entree) { prog.menu(entree)->trigger(); }
    qint64 nombre(const QString &table) { return prog.valeur(u"select count(*) from "_qs + table).entier(); }

    ProgrammePilote prog;
};

} // namespace

TEST_F(ImportListes, TheListBesideTheProgramTakesThePlaceOfTheOldRows)
{
    ecrit(u"joueurs.txt"_qs, "Nom;Licence\nROUX;1\nBLANC;2\n");
    choisit(u"mnu_ijoueur"_qs);
    EXPECT_EQ(nombre(u"joueurs"_qs), 2);
    EXPECT_EQ(prog.valeur(u"select licence from joueurs where nom = 'ROUX'"_qs).texte(), u"1"_qs);
    EXPECT_EQ(nombre(u"clubs"_qs), 1);
    ecrit(u"clubs.txt"_qs, "Code;Nom\n83;La Boule\n84;Le Carreau\n85;Les Pins\n");
    choisit(u"mnu_iclub"_qs);
    EXPECT_EQ(nombre(u"clubs"_qs), 3);
    EXPECT_FALSE(prog.formulaires().estChargee(u"Alerte"_qs));
}

TEST_F(ImportListes, AnyFailureLeavesTheTableEmptyWithoutAWord)
{
    choisit(u"mnu_iclub"_qs); // no file
    EXPECT_EQ(nombre(u"clubs"_qs), 0);
    ecrit(u"joueurs.txt"_qs, "Nom;Licence\nROUX;1\n\"BLANC;2\n");
    choisit(u"mnu_ijoueur"_qs);
    EXPECT_EQ(nombre(u"joueurs"_qs), 0);
    EXPECT_FALSE(prog.formulaires().estChargee(u"Alerte"_qs));
    EXPECT_EQ(prog.boites.textes(), QStringList());
}
