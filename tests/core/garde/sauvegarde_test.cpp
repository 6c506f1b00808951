#include "commun/fichiers_essai.h"
#include "commun/partage_essai.h"
#include "garde/sauvegarde.h"
#include "partage/base.h"
#include "store/base_native.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace {

class Sauvegardes : public testing::Test, protected PartageEssai
{
protected:
    Sauvegardes()
    {
        horloge.date = QDate(2026, 6, 1);
        horloge.instant = QTime(8, 0);
    }

    void ecrit(int concours)
    {
        partage.BaseDonnees.Execute(
            u"insert into scores (concours, tour, equipe_1) values (%1, 1, 7)"_qs.arg(concours));
    }

    /// A start of the program at another moment; gives how many copies there are behind it.
    qsizetype redemarre(const std::function<void()> &action)
    {
        partage.BaseDonnees.Close();
        action();
        partage.BaseDonnees = base.ouvre();
        horloge.instant = horloge.instant.addSecs(1);
        EXPECT_FALSE(SauveBase(partage, RaisonCopie::Depart).echouee());
        return noms().size();
    }

    void sauve() { EXPECT_FALSE(SauveBase(partage, RaisonCopie::Demande).echouee()); }
    QDir copies() const { return QDir(base.dossier() + u"/sauvegardes"_qs); }
    QStringList noms() const { return copies().entryList(QDir::Files, QDir::Name); }
};

void date(const QString &fichier, const QDateTime &moment)
{
    QFile date(fichier);
    EXPECT_TRUE(date.open(QIODevice::ReadWrite));
    EXPECT_TRUE(date.setFileTime(moment, QFileDevice::FileModificationTime));
}

TEST_F(Sauvegardes, UneCopieEstLaBaseDuMoment)
{
    ecrit(1);
    const BilanCopie bilan = SauveBase(partage, RaisonCopie::Tirage);
    ASSERT_EQ(noms(), QStringList(u"VarloBase-20260601-080000-000001-tirage.mdb"_qs));
    const QString fichier = copies().filePath(noms().value(0));
    EXPECT_EQ(bilan.fichier, fichier);
    EXPECT_EQ(SauveBase(partage, RaisonCopie::Purge).fichier, fichier) << "nothing has been written since";
    EXPECT_EQ(noms().size(), 1);
    partage.BaseDonnees.Execute(u"delete * from scores");
    sauve();
    EXPECT_EQ(noms().size(), 2);
    QFile::remove(copies().filePath(noms().value(1)));
    sauve();
    EXPECT_EQ(noms().size(), 2) << "a copy that has gone holds nothing";
    partage.BaseDonnees.Close();

    EXPECT_FALSE(octetsDe(fichier).startsWith("SQLite"));
    store::BaseNative copie(fichier, motDePasseBase, store::BaseNative::Mode::LectureEcriture);
    EXPECT_EQ(copie.valeurUnique(u"select equipe_1 from scores where concours = 1"_qs).entier(), 7);
    EXPECT_EQ(copie.valeurUnique(u"pragma integrity_check"_qs).texte(), u"ok"_qs);
    // The program works on the copy as on the base itself.
    copie.metEnService();
}

TEST_F(Sauvegardes, VingtRestentEtLaPremiereDuJour)
{
    horloge.date = QDate(2026, 5, 31);
    for (int i = 0; i < 3; ++i) {
        ecrit(i);
        sauve();
    }
    horloge.date = QDate(2026, 6, 1);
    // What bears no name of the program is none of its copies, and stays.
    for (const QString &autre : {u"lisez-moi.txt"_qs, u"VarloBase-finale.mdb"_qs, u"VarloBase-20261399-080000.mdb"_qs})
        ecritFichier(copies().filePath(autre), {});
    for (int i = 0; i < 30; ++i) {
        ecrit(i);
        sauve();
        horloge.instant = horloge.instant.addSecs(i % 2 * 60);
    }
    EXPECT_EQ(noms().size(), 23);
    EXPECT_EQ(noms().filter(u"-20260531-"_qs), QStringList());
    const std::vector<Copie> restent = ListeCopies(base.dossier());
    ASSERT_EQ(restent.size(), 20U);
    EXPECT_EQ(restent.front().ordre, 4) << "the first of the day";
    EXPECT_EQ(restent[1].ordre, 15);
    EXPECT_EQ(restent.back().ordre, 33);
}

TEST_F(Sauvegardes, UneHorlogeQuiSauteNeChassePasLesDernieres)
{
    ASSERT_TRUE(QDir(base.dossier()).mkdir(u"sauvegardes"_qs));
    for (int i = 0; i < 20; ++i) // as older versions named them
        ecritFichier(copies().filePath(u"VarloBase-20360101-0800%1.mdb"_qs.arg(i, 2, 10, QChar(u'0'))), {});
    for (const int annee : {2036, 2026, 2020}) {
        horloge.date = QDate(annee, 6, 1);
        for (int i = 0; i < 12; ++i) {
            ecrit(i);
            sauve();
        }
        EXPECT_EQ(noms().filter(horloge.date.toString(u"-yyyyMMdd-"_qs)).size(), 12) << annee;
    }
    EXPECT_EQ(noms().size(), 20);
    EXPECT_EQ(noms().filter(u"-2036"_qs), QStringList());
    EXPECT_EQ(ListeCopies(base.dossier()).back().ordre, 36);
}

TEST_F(Sauvegardes, LaListeDitLOrdreEtLaRaison)
{
    EXPECT_TRUE(ListeCopies(base.dossier()).empty());
    ASSERT_TRUE(QDir(base.dossier()).mkdir(u"sauvegardes"_qs));
    for (const QString &nom : {u"20260714-093000-02"_qs, u"20260714-093000"_qs, u"20200101-000000-000007-purge"_qs,
                               u"20360101-000000-000006-inconnue"_qs, u"20260714-093000-000005"_qs})
        ecritFichier(copies().filePath(u"VarloBase-%1.mdb"_qs.arg(nom)), {});
    const std::vector<Copie> liste = ListeCopies(base.dossier());
    ASSERT_EQ(liste.size(), 4U);
    EXPECT_EQ(liste[0].fichier, copies().filePath(u"VarloBase-20260714-093000.mdb"_qs));
    EXPECT_EQ(liste[0].ordre, 0);
    EXPECT_EQ(liste[1].jour, QDate(2026, 7, 14));
    EXPECT_EQ(liste[1].heure, QTime(9, 30));
    EXPECT_EQ(liste[2].ordre, 6);
    EXPECT_EQ(liste[2].raison, std::nullopt);
    EXPECT_EQ(liste[3].raison, RaisonCopie::Purge);
    for (const RaisonCopie raison : {RaisonCopie::Depart, RaisonCopie::Suppression, RaisonCopie::Annulation,
                                     RaisonCopie::Restauration, RaisonCopie::Demande, RaisonCopie::Secours}) {
        ecrit(1);
        ASSERT_FALSE(SauveBase(partage, raison).echouee());
        EXPECT_EQ(ListeCopies(base.dossier()).back().raison, raison);
    }
    EXPECT_EQ(ListeCopies(base.dossier()).back().ordre, 13);
}

/// Else a day of idle starts would push out the copies of the days before.
TEST_F(Sauvegardes, UnDepartSansRienDeNouveauNEnFaitPas)
{
    const auto rien = [] {};
    EXPECT_EQ(redemarre(rien), 1); // the first of all
    EXPECT_EQ(redemarre(rien), 1);
    ecrit(1);
    EXPECT_EQ(redemarre(rien), 2) << "written after the last copy of its run";
    EXPECT_EQ(redemarre(rien), 2);
    // Dates prove nothing, either way.
    EXPECT_EQ(redemarre([this] { date(copies().filePath(noms().back()), QDateTime::currentDateTime().addYears(10)); }),
              2);
    EXPECT_EQ(redemarre([this] { date(base.fichier(), QDateTime::currentDateTime().addYears(20)); }), 2);
}

TEST_F(Sauvegardes, SeulUnContenuProuveTientLieuDeCopie)
{
    ecrit(1);
    EXPECT_EQ(redemarre([] {}), 1);
    const QString premiere = copies().filePath(noms().front());
    ecrit(2);
    EXPECT_EQ(redemarre([] {}), 2);
    // The day's base is laid aside for another one, older by its date, which no copy holds.
    EXPECT_EQ(redemarre([this] {
                  const BaseEssai autre;
                  {
                      store::Database ouverte = autre.ouvre();
                      ouverte.Execute(u"insert into concours (lieu) values ('Sète')");
                  }
                  ecritFichier(base.fichier(), octetsDe(autre.fichier()));
                  date(base.fichier(), QDateTime::currentDateTime().addYears(-3));
              }),
              3);
    // An older copy of the same base, put in its place by a file manager that keeps dates.
    EXPECT_EQ(redemarre([&] {
                  ecritFichier(base.fichier(), octetsDe(premiere));
                  date(base.fichier(), QDateTime::currentDateTime().addYears(-3));
              }),
              4);
    // A copy that has been cut, or that another has been laid over, holds nothing any more.
    const QString derniere = copies().filePath(noms().back());
    EXPECT_EQ(redemarre([&] { ecritFichier(derniere, octetsDe(derniere).chopped(4096)); }), 5);
    ecritFichier(copies().filePath(noms().back()), QByteArray(octetsDe(derniere).size(), 'x'));
    sauve();
    EXPECT_EQ(noms().size(), 6);
}

/// The base tells names and dates of birth. Where files have no owners there is nothing to look at.
TEST_F(Sauvegardes, BaseEtCopiesSontASeulUtilisateur)
{
    constexpr QFile::Permissions autres =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeGroup | QFile::ExeOther;
    const auto ouvre = [&](const QString &chemin) {
        QFile::setPermissions(chemin, QFile::permissions(chemin) | autres);
    };
    const auto exigeReserve = [&](const QString &chemin) {
        EXPECT_TRUE(QFile::exists(chemin)) << chemin.toStdString();
        EXPECT_FALSE(QFile::permissions(chemin) & autres) << chemin.toStdString();
    };
    ecrit(1);
    sauve();
    partage.BaseDonnees.Close();
    // As an older version has left them.
    for (const QString &chemin : {base.fichier(), copies().path(), copies().filePath(noms().front())})
        ouvre(chemin);
    partage.BaseDonnees = base.ouvre();
    ecrit(2);
    sauve();
    for (const QString &suffixe : {QString(), u"-wal"_qs, u"-shm"_qs})
        exigeReserve(base.fichier() + suffixe);
    exigeReserve(copies().path());
    ASSERT_EQ(noms().size(), 2);
    for (const QString &nom : noms())
        exigeReserve(copies().filePath(nom));
    partage.BaseDonnees.Close();
    const QString reduite = base.dossier() + u"/myTmpDB.mdb"_qs;
    store::DBEngine::CompactDatabase(base.fichier(), reduite, BaseEssai::connexion());
    exigeReserve(reduite);
}

TEST_F(Sauvegardes, UnEchecSeDit)
{
    ecritFichier(copies().path(), {});
    const BilanCopie bilan = SauveBase(partage, RaisonCopie::Purge);
    EXPECT_TRUE(bilan.echouee());
    EXPECT_EQ(bilan.cause, u"le dossier sauvegardes ne peut pas être créé."_qs);
    ecrit(1);
    ASSERT_TRUE(QFile::remove(copies().path()));
    // What a cut copy left behind is no copy, and is taken away.
    ASSERT_TRUE(QDir(base.dossier()).mkdir(u"sauvegardes"_qs));
    ecritFichier(copies().filePath(u"VarloBase-20260601-080000-000001-purge.mdb.encours"_qs), {});
    sauve();
    EXPECT_EQ(noms(), QStringList(u"VarloBase-20260601-080000-000001-demande.mdb"_qs));
    partage.BaseDonnees.Close();
    EXPECT_FALSE(SauveBase(partage, RaisonCopie::Purge).echouee());
}

} // namespace
