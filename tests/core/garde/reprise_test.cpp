#include "commun/contenu.h"
#include "commun/fichiers_essai.h"
#include "commun/partage_essai.h"
#include "garde/niveau.h"
#include "garde/reprise.h"
#include "garde/sauvegarde.h"
#include "partage/base.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace {

class Reprise : public testing::Test, protected PartageEssai
{
protected:
    void ecrit(int concours)
    {
        partage.BaseDonnees.Execute(u"insert into scores (concours, tour) values (%1, 1)"_qs.arg(concours));
    }
    qint64 nombre(const QString &sql) { return partage.BaseDonnees.native().valeurUnique(sql).entierOu(-1); }
    QStringList fichiers() const { return QDir(base.dossier()).entryList(QDir::Files); }
};

TEST_F(Reprise, ACopyTakesThePlaceOfWhatIsRefusedAndNothingGoes)
{
    EXPECT_TRUE(CopiesSaines(base.dossier()).empty());
    ecrit(1);
    ASSERT_FALSE(SauveBase(partage, RaisonCopie::Demande).echouee());
    const QString bonne = ListeCopies(base.dossier()).back().fichier;
    ecrit(2);
    ASSERT_FALSE(SauveBase(partage, RaisonCopie::Demande).echouee());
    partage.BaseDonnees.Close();
    for (const QString &abimee :
         {ListeCopies(base.dossier()).back().fichier, base.fichier(), base.fichier() + u"-wal"_qs}) {
        abimeFichier(abimee, 3000);
    }
    const QByteArray refusee = octetsDe(base.fichier());
    const QByteArray journal = octetsDe(base.fichier() + u"-wal"_qs);
    const std::vector<CopieSaine> saines = CopiesSaines(base.dossier());
    ASSERT_EQ(saines.size(), 1U) << "a damaged copy is none";
    EXPECT_EQ(saines.front().copie.fichier, bonne);
    const QString ecartee = RemetCopie(partage, bonne);
    EXPECT_EQ(octetsDe(base.dossier() + u'/' + ecartee), refusee);
    EXPECT_EQ(octetsDe(base.dossier() + u'/' + ecartee + u"-wal"_qs), journal);
    EXPECT_EQ(fichiers().size(), 3);
    EXPECT_NE(RemetCopie(partage, bonne), ecartee) << "in the same second";
    partage.BaseDonnees = base.ouvre();
    EXPECT_EQ(nombre(u"select max(concours) from scores"_qs), 1);
}

TEST_F(Reprise, APurgeCutShortIsTakenUpOnlyWhenItsFileIsWhole)
{
    ecrit(1);
    partage.BaseDonnees.Close();
    EXPECT_FALSE(ReprendPurge(base.dossier()));
    const QString temporaire = base.dossier() + u'/' + nomBaseTemporaire;
    store::DBEngine::CompactDatabase(base.fichier(), temporaire, connexionBase);
    EXPECT_FALSE(ReprendPurge(base.dossier())) << "the base stands";
    const QByteArray entiere = octetsDe(temporaire);
    ASSERT_TRUE(QFile::remove(base.fichier()));
    ASSERT_TRUE(QFile::resize(temporaire, entiere.size() / 2));
    EXPECT_FALSE(ReprendPurge(base.dossier()));
    ecritFichier(temporaire, entiere);
    EXPECT_TRUE(ReprendPurge(base.dossier()));
    EXPECT_EQ(fichiers(), QStringList(nomBase));
    partage.BaseDonnees = base.ouvre();
    EXPECT_EQ(nombre(u"select max(concours) from scores"_qs), 1);
}

TEST_F(Reprise, ABaseRisesStepByStepEachWholeOrNotAtAll)
{
    ecrit(1);
    const std::vector<EtapeBase> etapes{
        {1, u"drop table scores"_qs}, // long since done
        {2, u"create table arbitres (nom TEXT); alter table concours add column arbitre TEXT"_qs},
        {3, u"insert into arbitres values ('perdu'); insert into nulle_part values (1)"_qs},
    };
    EXPECT_THROW(MetANiveau(partage, etapes), store::Erreur);
    EXPECT_EQ(nombre(u"pragma user_version"_qs), 2);
    EXPECT_EQ(nombre(u"select count(*) from arbitres"_qs), 0);
    ASSERT_EQ(ListeCopies(base.dossier()).size(), 1U) << "a copy before the first step";
    store::BaseNative copie(ListeCopies(base.dossier()).back().fichier, motDePasseBase,
                            store::BaseNative::Mode::LectureSeule);
    EXPECT_EQ(copie.valeurUnique(u"pragma user_version"_qs).entier(), 1);

    MetANiveau(partage, {etapes[0], etapes[1], {3, u"create index \"arbitres.nom\" on arbitres (nom)"_qs}});
    store::Recordset arbitres = partage.BaseDonnees.OpenRecordset(u"arbitres", store::dbOpenTable);
    arbitres.Index(u"nom");
    partage.BaseDonnees.Close();
    const QByteArray avant = octetsDe(base.fichier());
    try {
        base.ouvre();
        ADD_FAILURE() << "the base of a later version has been opened";
    } catch (const store::Erreur &erreur) {
        EXPECT_EQ(erreur.numero(), store::Erreur::VersionFuture);
        EXPECT_TRUE(erreur.phrase().contains(u"VarloBase.mdb vient d'une version plus récente"_qs));
    }
    EXPECT_EQ(octetsDe(base.fichier()), avant);
}

TEST_F(Reprise, ARiseWithoutACopyChangesNothing)
{
    ecritFichier(base.dossier() + u"/sauvegardes"_qs, {});
    EXPECT_THROW(MetANiveau(partage, {{2, u"create table arbitres (nom TEXT)"_qs}}), store::Erreur);
    EXPECT_EQ(nombre(u"pragma user_version"_qs), 1);
}

/// Rows that a lost index has let in twice still leave it usable.
TEST_F(Reprise, ALostIndexComesBack)
{
    partage.BaseDonnees.native().executeScript(u"drop index \"societes.nomsoc\"; drop index \"tbclass.rankkey\"; "
                                               u"insert into societes (societe) values ('B'), ('A'), ('A')"_qs);
    partage.BaseDonnees.Close();
    partage.BaseDonnees = base.ouvre();
    const QString complement =
        u"create unique index if not exists \"societes.nomsoc\" on societes (societe)\n"
        "create index if not exists \"tbclass.rankkey\" on tbclass (pt desc, ga desc, Equipe)"_qs;
    for (int depart = 0; depart < 2; ++depart) {
        CompleteBase(partage.BaseDonnees, complement);
        store::Recordset clubs = partage.BaseDonnees.OpenRecordset(u"societes", store::dbOpenTable);
        clubs.Index(u"nomsoc");
        clubs.Seek(u">", {u"A"});
        EXPECT_EQ(clubs[u"societe"].texte(), u"B"_qs);
        partage.BaseDonnees.OpenRecordset(u"tbclass", store::dbOpenTable).Index(u"rankkey");
        clubs.Close();
        partage.BaseDonnees.Close();
        partage.BaseDonnees = base.ouvre();
    }
}

} // namespace
