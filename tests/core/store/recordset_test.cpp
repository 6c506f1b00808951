#include "commun/base_essai.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace store;

namespace {

struct Ligne
{
    int equipe;
    int pt;
    std::optional<int> ga;
    int alea;
};

class Jeu : public testing::Test
{
protected:
    void classe(const std::vector<Ligne> &lignes)
    {
        Recordset tbclass = base.OpenRecordset(u"tbclass", dbOpenTable);
        for (const Ligne &ligne : lignes) {
            tbclass.AddNew();
            tbclass[u"Equipe"] = ligne.equipe;
            tbclass[u"pt"] = ligne.pt;
            tbclass[u"ga"] = Valeur(ligne.ga);
            tbclass[u"alea"] = ligne.alea;
            tbclass.Update();
        }
    }

    QString marche(QStringView index)
    {
        Recordset tbclass = base.OpenRecordset(u"TBCLASS", dbOpenTable);
        tbclass.Index(index);
        QStringList vues;
        for (; !tbclass.Eof(); tbclass.MoveNext())
            vues += tbclass[u"equipe"].texte();
        return vues.join(u' ');
    }

    BaseEssai essai;
    Database base = essai.ouvre();
};

} // namespace

TEST_F(Jeu, WalksAnIndexWithNullsLastWhenDescending)
{
    classe({{1, 0, -6, 5}, {2, 2, 9, 5}, {3, 2, {}, 8}, {4, 2, 9, 5}, {5, 1, 3, 7}, {6, 0, {}, 9}, {7, 2, 11, 1}});
    EXPECT_EQ(marche(u"rankkey"), u"7 2 4 3 5 1 6");
    EXPECT_EQ(marche(u"AleaKey"), u"3 2 4 7 5 6 1");
    EXPECT_EQ(marche(u"PRIMARYKEY"), u"1 2 3 4 5 6 7");
    EXPECT_THROW(marche(u"autrekey"), Erreur);
}

TEST_F(Jeu, SeeksInTheOrderOfTheIndex)
{
    classe({{1, 0, -6, 5}, {2, 2, 9, 5}, {4, 2, 9, 5}, {5, 1, 3, 7}, {7, 2, 11, 1}});
    Recordset tbclass = base.OpenRecordset(u"tbclass", dbOpenTable);
    tbclass.Index(u"rankkey");
    tbclass.Seek(u">", {1, 999999, 0});
    EXPECT_EQ(tbclass[u"equipe"].entier(), 5) << "the first of a level lies behind a difference nobody has";
    tbclass.Seek(u">", {2, 9, 2});
    EXPECT_EQ(tbclass[u"equipe"].entier(), 4);
    tbclass.Seek(u">", {0, -6, 1});
    EXPECT_TRUE(tbclass.NoMatch());
    EXPECT_THROW(tbclass[u"equipe"].entier(), Erreur);
    tbclass.Index(u"primarykey");
    tbclass.Seek(u">=", {3});
    EXPECT_EQ(tbclass[u"equipe"].entier(), 4);
    tbclass.Seek(u"=", {u"0007"});
    EXPECT_FALSE(tbclass.NoMatch()) << "the text of a field converts to the number of the key";
    tbclass.Seek(u"=", {u"sept"});
    EXPECT_TRUE(tbclass.NoMatch());
}

TEST_F(Jeu, GoesOnWithTheRowsNotYetReadWhenKeysAreEditedUnderIt)
{
    classe({{1, 1, 5, 90}, {2, 1, 4, 80}, {3, 0, 3, 70}, {4, 0, 2, 60}, {5, 0, 1, 50}});
    Recordset marcheur = base.OpenRecordset(u"tbclass", dbOpenTable);
    marcheur.Index(u"aleakey");
    Recordset chercheur = base.OpenRecordset(u"tbclass", dbOpenTable);
    chercheur.Index(u"rankkey");
    marcheur.Move(2);
    ASSERT_EQ(marcheur[u"equipe"].entier(), 3);
    chercheur.Seek(u">", {0, 999999, 0});
    ASSERT_EQ(chercheur[u"equipe"].entier(), 3);

    // The walker's own row leaves its level; the next rows must still come, each once.
    marcheur.Edit();
    marcheur[u"pt"] = marcheur[u"pt"].entier() + 1;
    marcheur.Update();
    EXPECT_EQ(marcheur[u"pt"].entier(), 1);
    EXPECT_EQ(chercheur[u"pt"].entier(), 0) << "another recordset keeps the row as it read it";
    marcheur.MoveNext();
    EXPECT_EQ(marcheur[u"equipe"].entier(), 4);
    base.Execute(u"delete * from tbclass where equipe = 4");
    marcheur.MoveNext();
    EXPECT_EQ(marcheur[u"equipe"].entier(), 5);
    marcheur.MoveNext();
    EXPECT_TRUE(marcheur.Eof());
    EXPECT_THROW(marcheur.MoveNext(), Erreur);
}

TEST_F(Jeu, AgreesWithASortedListUnderRandomWrites)
{
    std::mt19937 des(20261122);
    std::vector<Ligne> lignes;
    for (int equipe = 1; equipe <= 300; ++equipe)
        lignes.push_back({equipe, int(des() % 4), des() % 5 ? std::optional<int>(int(des() % 9) - 4) : std::nullopt,
                          int(des() % 50)});
    classe(lignes);
    std::sort(lignes.begin(), lignes.end(), [](const Ligne &a, const Ligne &b) {
        const auto cle = [](const Ligne &l) { return std::tuple(-l.pt, l.ga ? -*l.ga : 1000, l.equipe); };
        return cle(a) < cle(b);
    });
    Recordset tbclass = base.OpenRecordset(u"tbclass", dbOpenTable);
    tbclass.Index(u"rankkey");
    std::size_t vue = 0;
    for (tbclass.MoveFirst(); !tbclass.Eof(); tbclass.MoveNext(), ++vue) {
        ASSERT_EQ(tbclass[u"equipe"].entier(), lignes[vue].equipe) << vue;
        if (des() % 3 == 0)
            base.Execute(u"update tbclass set perdues = perdues + 1 where equipe = %1"_qs.arg(des() % 300 + 1));
    }
    EXPECT_EQ(vue, lignes.size());
}

TEST_F(Jeu, MeetsRowsThatOthersWriteAheadOfTheWalk)
{
    const auto ajoute = [](int tour, int equipe, BaseNative &ou) {
        ou.execute(
            u"insert into scores (concours, tableau, tour, equipe_1) values (1, 1, %1, %2)"_qs.arg(tour).arg(equipe));
    };
    for (const int equipe : {1, 2, 3})
        ajoute(1, equipe, base.native());
    BaseNative autre(essai.fichier(), u"qz7tkn42"_qs, BaseNative::Mode::DejaVerifiee);
    Recordset scores = base.OpenRecordset(u"scores", dbOpenTable);
    scores.Index(u"tirage");
    QStringList vues;
    for (; !scores.Eof(); scores.MoveNext()) {
        vues += scores[u"equipe_1"].texte();
        if (vues.size() == 1)
            ajoute(1, 4, base.native());
        else if (vues.size() == 4)
            ajoute(2, 5, autre);
    }
    EXPECT_EQ(vues.join(u' '), u"1 2 3 4 5");
}

TEST_F(Jeu, WritesRowsWithDefaultsAndGeneratedNumbers)
{
    Recordset concours = base.OpenRecordset(u"Concours", dbOpenTable);
    concours.AddNew();
    EXPECT_EQ(concours[u"concours"].entier(), 1);
    concours[u"date"] = u"24/12/2026";
    EXPECT_THROW(concours[u"date"] = u"demain", Erreur);
    concours[u"repeche"] = true;
    concours.Update();
    EXPECT_EQ(concours[u"date"].date(), QDate(2026, 12, 24));
    EXPECT_EQ(concours[u"tourpri"].entier(), 0);
    EXPECT_TRUE(concours[u"repeche"].booleen());
    EXPECT_FALSE(concours[u"pro"].booleen());
    base.Execute(u"delete * from concours");
    concours.AddNew();
    EXPECT_EQ(concours[u"concours"].entier(), 2);

    Recordset scores = base.OpenRecordset(u"scores", dbOpenTable);
    scores.AddNew();
    scores[u"equipe_1"] = u"0012";
    scores[u"score_1"] = u"P";
    scores[u"score_2"] = u"";
    scores.Update();
    EXPECT_EQ(scores[u"equipe_1"], Valeur(12));
    EXPECT_EQ(scores[u"score_1"], Valeur(u"P"));
    EXPECT_TRUE(scores[u"score_2"].estNull());
    EXPECT_TRUE(scores[u"repechage"].estNull());
    EXPECT_EQ(scores[u"rencontre"].entier(), 0);
}

TEST_F(Jeu, ChangesAndRemovesTheRowsOfAStatement)
{
    for (int doublon = 0; doublon < 3; ++doublon)
        base.Execute(u"insert into equipes (concours, equipe) values (1, 8)");
    Recordset equipe = base.OpenRecordset(u"SELECT * FROM [Equipes] Where [concours] = 1 and equipe = 8");
    ASSERT_EQ(equipe.RecordCount(), 3);
    equipe.Edit();
    equipe[u"nom"] = u"O'Brien";
    equipe.Update();
    equipe.MoveNext();
    EXPECT_EQ(equipe[u"doublon"].entier(), 1);
    EXPECT_THROW(equipe[u"nom"] = u"sans Edit", Erreur);
    equipe.Delete();
    equipe.MoveNext();
    EXPECT_EQ(equipe[u"doublon"].entier(), 2);
    while (!equipe.Eof()) {
        equipe.MoveFirst();
        equipe.Delete();
    }
    EXPECT_EQ(base.OpenRecordset(u"equipes", dbOpenTable).RecordCount(), 0);

    Recordset lu = base.OpenRecordset(u"select * from societes", dbOpenSnapshot);
    EXPECT_TRUE(lu.Eof());
    EXPECT_THROW(lu.AddNew(), Erreur);
    EXPECT_THROW(lu.Index(u"nomsoc"), Erreur);
    EXPECT_THROW(base.OpenRecordset(u"select max(concours) from concours").AddNew(), Erreur);
    EXPECT_THROW(base.OpenRecordset(u"societes", dbOpenSnapshot), Erreur);
    EXPECT_THROW(lu[u"inconnu"].texte(), Erreur);
}

TEST_F(Jeu, FindsTextsWithoutRegardToCase)
{
    for (const QStringView club : {u"Dupont", u"*Panachée", u"DURAND", u"dumas", u"Étoile"})
        base.Execute(u"insert into societes (societe) values ('%1')"_qs.arg(club));
    Recordset societes = base.OpenRecordset(u"Societes", dbOpenTable);
    societes.Index(u"nomsoc");
    QStringList vues;
    for (; !societes.Eof(); societes.MoveNext())
        vues += societes[u"societe"].texte();
    EXPECT_EQ(vues.join(u' '), u"*Panachée dumas Dupont DURAND Étoile");
    societes.Seek(u"=", {u"ÉTOILE"});
    EXPECT_FALSE(societes.NoMatch());
    societes.Seek(u"=", {u"Etoile"});
    EXPECT_TRUE(societes.NoMatch());
}
