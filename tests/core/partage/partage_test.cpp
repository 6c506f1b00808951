#include "commun/fichiers_essai.h"
#include "commun/partage_essai.h"
#include "partage/concours_courant.h"
#include "partage/langue.h"
#include "partage/routines.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

class EtatPartage : public testing::Test, protected PartageEssai
{
protected:
    void execute(const QString &sql) { native().executeScript(sql); }
    QString chemin(const QString &nom) const { return base.dossier() + u'/' + nom; }
};

TEST_F(EtatPartage, LangueActive)
{
    ecritFichier(chemin(u"2.ico"_qs), {});
    execute(u"insert into traduc (numero, traducteur, icone, actif) values (1, 'Anne', '1.ico', 0), "
            u"(2, 'Ben', '2.ico', -1); "
            u"insert into langues values (1, 0, 'fr'), (2, 180, 'last'), (2, 0, 'first'), (2, 5, '')"_qs);
    partage.mes.pose(7, u"ancien"_qs);
    ChargeLangue(partage);
    EXPECT_EQ(partage.LangueCourante, 2);
    EXPECT_EQ(partage.Traducteur, u"Ben"_qs);
    EXPECT_EQ(partage.IconeLangue, chemin(u"2.ico"_qs));
    EXPECT_EQ(partage.mes(0), u"first"_qs);
    EXPECT_EQ(partage.mes(180), u"last"_qs);
    EXPECT_EQ(partage.mes(5), QString());
    EXPECT_EQ(partage.mes(7), QString());
    EXPECT_THROW(partage.mes(181), std::out_of_range);
}

TEST_F(EtatPartage, NumeroDeMessageHorsDeLaTable)
{
    for (const int numero : {181, -1}) {
        execute(u"delete from langues; insert into langues values (1, %1, 'trop')"_qs.arg(numero));
        EXPECT_THROW(ChargeLangue(partage), std::out_of_range) << numero;
    }
    execute(u"delete from langues; insert into langues values (1, 1, null)"_qs);
    EXPECT_THROW(ChargeLangue(partage), store::Erreur);
}

TEST_F(EtatPartage, SansLangueActiveLesTextesRestent)
{
    execute(u"insert into traduc (numero, traducteur, icone, actif) values (4, 'Ben', '4.ico', 0)"_qs);
    partage.LangueCourante = 4;
    partage.Traducteur = u"Ben"_qs;
    partage.mes.pose(7, u"ancien"_qs);
    ChargeLangue(partage);
    EXPECT_EQ(partage.LangueCourante, 1);
    EXPECT_EQ(partage.Traducteur, QString());
    EXPECT_EQ(partage.IconeLangue, chemin(u"1.ico"_qs));
    EXPECT_EQ(partage.mes(7), u"ancien"_qs);
    execute(u"insert into langues values (1, 7, 'nouveau')"_qs);
    ChargeLangue(partage);
    EXPECT_EQ(partage.mes(7), u"nouveau"_qs);
}

TEST_F(EtatPartage, IconeAbsenteLaisseLaPlaceALaPremiere)
{
    for (const QString &icone : {u"'9.ico'"_qs, u"''"_qs, u"null"_qs}) {
        execute(u"delete from traduc; insert into traduc (numero, icone, actif) values (9, %1, -1)"_qs.arg(icone));
        ChargeLangue(partage);
        EXPECT_EQ(partage.LangueCourante, 9);
        EXPECT_EQ(partage.Traducteur, QString());
        EXPECT_EQ(partage.IconeLangue, chemin(u"1.ico"_qs)) << icone.toStdString();
    }
}

TEST_F(EtatPartage, ConcoursCharge)
{
    qint32 numero = 0;
    EXPECT_EQ(ChargeConcours(partage, numero), 0); // none at all

    partage.mes.pose(117, u"dd/mm/yyyy"_qs);
    execute(u"insert into concours (concours, date, lieu, type, categorie, tourpri, repeche) values "
            u"(3, '2026-03-05', 'Agde', '1 - D', 'Mixte', 2, -1), (8, null, null, '3 - T', null, null, null), "
            u"(5, '2026-12-24', 'Sète', '2 - T', 'Seniors', 0, 0)"_qs);
    EXPECT_EQ(ChargeConcours(partage, numero = 3), 3);
    EXPECT_EQ(partage.DateConcours, u"05/03/2026"_qs);
    EXPECT_EQ(partage.LieuConcours, u"Agde"_qs);
    EXPECT_EQ(partage.CategorieConcours, u"Mixte"_qs);
    EXPECT_EQ(partage.TourCourant, 2);
    EXPECT_TRUE(partage.AvecRepechage);
    EXPECT_EQ(partage.NbJoueurs, 2);

    EXPECT_EQ(ChargeConcours(partage, numero = 77), 77); // unknown: nothing is taken over
    EXPECT_EQ(partage.LieuConcours, u"Agde"_qs);
    EXPECT_EQ(partage.ConcoursCourant, 0);

    execute(u"update concours set type = 'sans code', repeche = 0 where concours = 8"_qs);
    numero = 0;
    EXPECT_EQ(ChargeConcours(partage, numero), 8); // the greatest number
    EXPECT_EQ(numero, 8);
    EXPECT_EQ(partage.NbJoueurs, 2); // an unknown type leaves the players as they were
    EXPECT_EQ(partage.DateConcours, QString());
    EXPECT_EQ(partage.LieuConcours, QString());
    EXPECT_EQ(partage.TourCourant, 0);
    numero = 5;
    ChargeConcours(partage, numero);
    EXPECT_EQ(partage.NbJoueurs, 3);
}

TEST_F(EtatPartage, TextesCourts)
{
    EXPECT_EQ(ZeroPad(42, 6), u"000042"_qs);
    EXPECT_EQ(ZeroPad(1234567, 6), u"234567"_qs);
    EXPECT_EQ(LibellePluriel(partage, 0, u" équipe"_qs), u"0  équipe"_qs);
    EXPECT_EQ(LibellePluriel(partage, 1, u"équipe"_qs), u"1 équipe"_qs);
    EXPECT_EQ(LibellePluriel(partage, 2, u" équipe"_qs), u"2  équipes"_qs);
    partage.LangueCourante = 2;
    EXPECT_EQ(LibellePluriel(partage, 2, u" équipe"_qs), QString());

    partage.mes.pose(43, u"Forfait"_qs);
    partage.mes.pose(45, u"Disqualifié"_qs);
    EXPECT_EQ(TexteScore(partage, -1), u"Forfait"_qs);
    EXPECT_EQ(TexteScore(partage, -3), u"Disqualifié"_qs);
    EXPECT_EQ(TexteScore(partage, -4), u"-4"_qs);
    EXPECT_EQ(TexteScore(partage, 13), u"13"_qs);
    EXPECT_EQ(TexteScore(partage, {}), QString());

    EXPECT_EQ(SansApostrophe(u"'L''Amicale d'Agde'"_qs), u"LAmicale dAgde"_qs);
}

} // namespace
