#include "app/base.h"
#include "app/sauvegarde.h"
#include "commun/affiche.h"
#include "commun/base_essai.h"
#include "store/base_native.h"

#include <QDir>
#include <QFile>
#include <QThread>

#include <gtest/gtest.h>

namespace {

class HorlogeReglable : public Horloge
{
public:
    QDate jour() const override { return date; }
    QTime heure() const override { return moment; }

    QDate date{2026, 6, 1};
    QTime moment{8, 0};
};

class Sauvegardes : public testing::Test
{
protected:
    Sauvegardes() { partage.BaseDonnees = base.ouvre(); }

    void ecrit(int concours)
    {
        partage.BaseDonnees.Execute(u"insert into scores (concours, tour, equipe_1) values (%1, 1, 7)"_qs.arg(concours));
    }

    QDir copies() const { return QDir(base.dossier() + u"/sauvegardes"_qs); }
    QStringList noms() const { return copies().entryList(QDir::Files, QDir::Name); }

    BaseEssai base;
    AleaFixe alea{1};
    HorlogeReglable horloge;
    Partage partage{base.dossier(), alea, horloge};
};

TEST_F(Sauvegardes, UneCopieEstLaBaseDuMoment)
{
    ecrit(1);
    ASSERT_EQ(SauveBase(partage), QString());
    ASSERT_EQ(noms(), QStringList(u"VarloBase-20260601-080000.mdb"_qs));
    EXPECT_EQ(SauveBase(partage), QString());
    EXPECT_EQ(noms().size(), 1) << "nothing has been written since";
    partage.BaseDonnees.Execute(u"delete * from scores");
    ASSERT_EQ(SauveBase(partage), QString());
    EXPECT_EQ(noms().size(), 2);
    partage.BaseDonnees.Close();

    const QString fichier = copies().filePath(u"VarloBase-20260601-080000.mdb"_qs);
    QFile brut(fichier);
    ASSERT_TRUE(brut.open(QIODevice::ReadOnly));
    EXPECT_FALSE(brut.read(16).startsWith("SQLite"));
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
        ASSERT_EQ(SauveBase(partage), QString());
    }
    horloge.date = QDate(2026, 6, 1);
    QFile note(copies().filePath(u"lisez-moi.txt"_qs));
    ASSERT_TRUE(note.open(QIODevice::WriteOnly));
    for (int i = 0; i < 30; ++i) {
        ecrit(i);
        ASSERT_EQ(SauveBase(partage), QString());
        horloge.moment = horloge.moment.addSecs(i % 2 * 60);
    }
    const QStringList restent = copies().entryList({u"*.mdb"_qs}, QDir::Files, QDir::Name);
    EXPECT_EQ(restent.size(), 20);
    EXPECT_EQ(restent.filter(u"-20260531-"_qs), QStringList());
    EXPECT_TRUE(restent.contains(u"VarloBase-20260601-080000.mdb"_qs));
    EXPECT_TRUE(restent.contains(u"VarloBase-20260601-081400-02.mdb"_qs));
    EXPECT_TRUE(note.exists());

    // A clock set back makes the newest copy bear the oldest name.
    horloge.date = QDate(2020, 1, 1);
    ecrit(99);
    ASSERT_EQ(SauveBase(partage), QString());
    EXPECT_EQ(noms().filter(u"-20200101-"_qs).size(), 1);
}

/// Else a day of idle starts would push out the copies of the days before.
TEST_F(Sauvegardes, UnDepartSansRienDeNouveauNEnFaitPas)
{
    const auto redemarre = [this](const std::function<void()> &action) {
        partage.BaseDonnees.Close();
        partage.BaseDonnees = base.ouvre();
        action();
        horloge.moment = horloge.moment.addSecs(1);
        EXPECT_EQ(SauveBase(partage), QString());
        return noms().size();
    };
    const auto rien = [] {};
    EXPECT_EQ(redemarre(rien), 1); // the first of all
    EXPECT_EQ(redemarre(rien), 1);
    EXPECT_EQ(redemarre([this] { ecrit(1); }), 2);
    ecrit(2);
    QThread::msleep(20); // beyond the grain of file times
    EXPECT_EQ(redemarre(rien), 3) << "written after the last copy of its run";
    EXPECT_EQ(redemarre(rien), 3);
    // A copy from the future: the clock has been put back, the dates of files tell nothing.
    QFile derniere(copies().filePath(noms().back()));
    ASSERT_TRUE(derniere.open(QIODevice::ReadWrite));
    ASSERT_TRUE(derniere.setFileTime(QDateTime::currentDateTime().addDays(1), QFileDevice::FileModificationTime));
    EXPECT_EQ(redemarre(rien), 4);
}

TEST_F(Sauvegardes, UnEchecSeDitEtNEmpecheRien)
{
    QFile obstacle(base.dossier() + u"/sauvegardes"_qs);
    ASSERT_TRUE(obstacle.open(QIODevice::WriteOnly));
    obstacle.close();
    EXPECT_TRUE(SauveBase(partage).contains(u"le dossier sauvegardes ne peut pas être créé"_qs));
    ecrit(1);
    ASSERT_TRUE(obstacle.remove());
    // What a cut copy left behind is no copy, and is taken away.
    ASSERT_TRUE(QDir(base.dossier()).mkdir(u"sauvegardes"_qs));
    QFile reste(copies().filePath(u"VarloBase-20260601-080000.encours"_qs));
    ASSERT_TRUE(reste.open(QIODevice::WriteOnly));
    reste.close();
    EXPECT_EQ(SauveBase(partage), QString());
    EXPECT_EQ(noms(), QStringList(u"VarloBase-20260601-080000.mdb"_qs));
    partage.BaseDonnees.Close();
    EXPECT_EQ(SauveBase(partage), QString());
}

} // namespace
