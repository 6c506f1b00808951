#include "bench/concours_joue.h"
#include "commun/base_essai.h"
#include "commun/concours_en_base.h"
#include "engine/saison.h"

#include <gtest/gtest.h>

#include <set>

namespace {

/// The sums of one key, from the rows themselves.
struct Somme
{
    std::set<qint64> concours;
    int parties = 0;
    int gagnees = 0;
    int pour = 0;
    int contre = 0;
    int place = 0; ///< 0 for none.
};

struct Bilan
{
    int parties = 0;
    int gagnees = 0;
    int pour = 0;
    int contre = 0;
};

/// What each team of the competition has done, from its matches one by one.
std::map<qint64, Bilan> bilans(store::Database &base, qint64 concours, bool &complet)
{
    std::map<qint64, Bilan> equipes;
    store::Recordset scores = base.OpenRecordset(u"select * from scores where concours = %1"_qs.arg(concours));
    for (; !scores.Eof(); scores.MoveNext()) {
        const qint64 un = scores[u"equipe_1"].entier();
        const qint64 deux = scores[u"equipe_2"].entier();
        const bool exempt = deux == 0;
        const bool finie = exempt || !(scores[u"score_1"].estNull() || scores[u"score_2"].estNull());
        complet = complet && finie;
        const auto score1 = exempt ? 13 : scores[u"score_1"].entierOu(0);
        const auto score2 = exempt ? 7 : scores[u"score_2"].entierOu(0);
        const auto compte = [&](qint64 equipe, qint64 pour, qint64 contre, bool gagne) {
            Bilan &bilan = equipes[equipe];
            bilan.parties += finie;
            bilan.gagnees += gagne;
            bilan.pour += int(pour);
            bilan.contre += int(contre);
        };
        compte(un, score1, score2, score1 == 13);
        if (!exempt)
            compte(deux, score2, score1, score2 == 13 && score1 != 13);
    }
    return equipes;
}

/// By licence, or by the club of the first member.
std::map<QString, Somme> reckoned(store::Database &base, bool parLicence, const QString &condition = u"1 = 1"_qs)
{
    std::map<QString, Somme> sommes;
    store::Recordset liste = base.OpenRecordset(u"select * from concours where "_qs + condition);
    for (; !liste.Eof(); liste.MoveNext()) {
        const qint64 concours = liste[u"concours"].entier();
        bool complet = true;
        const std::map<qint64, Bilan> equipes = bilans(base, concours, complet);
        store::Recordset membres =
            base.OpenRecordset(u"select * from equipes where concours = %1 order by equipe, doublon"_qs.arg(concours));
        std::set<std::pair<qint64, QString>> comptees;
        for (; !membres.Eof(); membres.MoveNext()) {
            const auto equipe = equipes.find(membres[u"equipe"].entier());
            const QString cle = membres[parLicence ? u"licence" : u"societe"].texte();
            if (!comptees.emplace(membres[u"equipe"].entier(), cle).second)
                continue;
            const bool hors = !parLicence && (membres[u"doublon"].entier() != 0 || cle.toLower() == u"*panachée");
            if (equipe == equipes.end() || cle.isEmpty() || hors)
                continue;
            Somme &somme = sommes[parLicence ? cle : cle.toUpper()];
            somme.concours.insert(concours);
            somme.parties += equipe->second.parties;
            somme.gagnees += equipe->second.gagnees;
            somme.pour += equipe->second.pour;
            somme.contre += equipe->second.contre;
            int place = 1;
            for (const auto &[numero, autre] : equipes)
                place += std::pair(autre.gagnees, autre.pour - autre.contre)
                    > std::pair(equipe->second.gagnees, equipe->second.pour - equipe->second.contre);
            if (complet && (somme.place == 0 || place < somme.place))
                somme.place = place;
        }
    }
    return sommes;
}

void compare(const std::vector<LigneSaison> &lignes, const std::map<QString, Somme> &attendues, bool parLicence)
{
    ASSERT_EQ(lignes.size(), attendues.size());
    for (std::size_t i = 0; i < lignes.size(); ++i) {
        const LigneSaison &ligne = lignes[i];
        SCOPED_TRACE(ligne.cle.toStdString());
        const auto attendue = attendues.find(parLicence ? ligne.cle : ligne.cle.toUpper());
        ASSERT_NE(attendue, attendues.end());
        EXPECT_EQ(ligne.concours, int(attendue->second.concours.size()));
        EXPECT_EQ(ligne.parties, attendue->second.parties);
        EXPECT_EQ(ligne.gagnees, attendue->second.gagnees);
        EXPECT_EQ(ligne.pour, attendue->second.pour);
        EXPECT_EQ(ligne.contre, attendue->second.contre);
        EXPECT_EQ(ligne.meilleurePlace.value_or(0), attendue->second.place);
        if (i > 0) {
            EXPECT_GE(std::pair(lignes[i - 1].gagnees, lignes[i - 1].ecart()), std::pair(ligne.gagnees, ligne.ecart()));
        }
    }
}

} // namespace

TEST(SommesSaison, ClubsAndLicencesAddUpToWhatTheRowsOfAllCompetitionsTell)
{
    const BaseEssai essai;
    store::Database base = essai.ouvre();
    EXPECT_TRUE(LitSaison(base).concours.empty());
    std::mt19937 sort(5);
    const char *const types[] = {"1 - Doublettes", "2 - Triplettes", "2 - Triples"};
    for (int i = 0; i < 7; ++i) {
        essai::Concours
            joue(equipesMelangees(9 + 7 * i,
                                  {.clubs = 6, .pourcentPanache = 20, .pourcentSans = 10, .casseMelee = true}, sort),
                 i % 2 == 0, quint32(i));
        for (int tour = 0; tour < i; ++tour)
            joue.joueTour({.pourcentMots = 10, .pourcentSansVainqueur = 10});
        const qint32 numero = poseConcours(base, {.type = QString::fromUtf8(types[i % 3]), .equipes = joue.equipes()});
        poseRencontres(base, numero, joue.rencontres());
        base.Execute(u"update concours set date = '2026-0%1-1%1' where concours = %2"_qs.arg(8 - i).arg(numero));
    }
    base.native().executeScript(
        u"update equipes set licence = 'L' || (equipe % 23) || doublon, nom = 'Nom' || concours;"
        "update equipes set licence = '' where equipe % 5 = 0 and doublon = 1;"
        "update equipes set licence = 'L' || equipe where equipe % 7 = 0;"
        "update concours set tourpri = 4 where concours = 7;"
        "update scores set score_1 = null, score_2 = null where concours = 4 and tour = 3 and equipe_1 < 9;"
        "update concours set date = null where concours = 6;"_qs);

    Saison saison = LitSaison(base);
    EXPECT_EQ(saison.concours.size(), 7U);
    EXPECT_EQ(saison.concours[0].concours.numero, 6) << "the one without a date";
    EXPECT_EQ(saison.concours[1].concours.numero, 7);
    EXPECT_EQ(saison.concours[1].equipes, 51);
    EXPECT_EQ(saison.concours[1].tours, 6) << "as drawn; a round cancelled before leaves another number in the row";
    EXPECT_EQ(saison.concours[1].parties, 6 * 25) << "a bye is no match of two teams";
    compare(saison.clubs, reckoned(base, false), false);
    compare(saison.licences, reckoned(base, true), true);
    EXPECT_EQ(saison.licences.front().nom.left(4), u"Nom7"_qs) << "as he was registered last";

    saison = LitSaison(base, {.depuis = QDate(2026, 4, 14), .jusqua = QDate(2026, 7, 17)});
    compare(saison.clubs, reckoned(base, false, u"date >= '2026-04-14' and date <= '2026-07-17'"_qs), false);
    saison = LitSaison(base, {.type = u"2 - Tripletas"_qs});
    compare(saison.licences, reckoned(base, true, u"type like '2*'"_qs), true);
    EXPECT_EQ(saison.concours.size(), 4U) << "the code of a type counts, whatever its language";

    base.Execute(u"update concours set date = '2026-04-14' where concours = 4"); // the day of another one
    const std::vector<JourDeSaison> jours = JoursDeSaison(LitSaison(base));
    ASSERT_EQ(jours.size(), 5U) << "without the one that has no date";
    EXPECT_EQ(jours[0], (JourDeSaison{QDate(2026, 2, 12), 51}));
    EXPECT_EQ(jours[1], (JourDeSaison{QDate(2026, 4, 14), 30 + 37}));
}
