#include "garde/dossier_travail.h"

#include "commun/affiche.h"
#include "commun/fichiers_essai.h"
#include "partage/base.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class DossierPersonnel : public testing::Test
{
protected:
    DossierPersonnel()
    {
        for (const QString &nom : {u"bin"_qs, u"share/varlotour"_qs})
            racine.mkpath(nom);
    }

    void ecrit(const QString &fichier, const QByteArray &contenu) const
    {
        ecritFichier(racine.filePath(fichier), contenu);
    }

    QByteArray lit(const QString &fichier) const { return octetsDe(racine.filePath(fichier)); }

    void poseOriginaux(const QString &dossier) const
    {
        ecrit(dossier + u"/VarloBase.mdb"_qs, "neuve");
        ecrit(dossier + u"/1.ico"_qs, "image 1");
        ecrit(dossier + u"/drelin.WAV"_qs, "son 1");
    }

    DossierTravail dossier(bool inscriptible) const
    {
        return DossierTravail({racine.filePath(u"bin"_qs), racine.filePath(u"share/varlotour"_qs),
                               racine.filePath(u"chez moi/VarloTour"_qs)},
                              inscriptible);
    }

    QTemporaryDir lieu;
    QDir racine{lieu.path()};
};

TEST_F(DossierPersonnel, LeDossierDuProgrammeSertTantQuIlPeut)
{
    // Nothing installed: even without a base the program says itself what it lacks.
    EXPECT_EQ(dossier(true).chemin(), racine.filePath(u"bin"_qs));
    poseOriginaux(u"share/varlotour"_qs);
    EXPECT_NE(dossier(true).chemin(), racine.filePath(u"bin"_qs)) << "an administrator starts the installed program";
    poseOriginaux(u"bin"_qs);
    EXPECT_EQ(dossier(true).chemin(), racine.filePath(u"bin"_qs));
    EXPECT_EQ(dossier(true).remplit(), QString());
    EXPECT_EQ(QDir(racine.filePath(u"bin"_qs)).entryList(QDir::Files).size(), 3) << "nothing is added there";

    EXPECT_TRUE(dossierInscriptible(racine.path()));
    EXPECT_EQ(racine.entryList(QDir::Files), QStringList());
    EXPECT_FALSE(dossierInscriptible(racine.filePath(u"nulle part"_qs)));
}

TEST_F(DossierPersonnel, LePremierDemarrageRemplitLesSuivantsGardent)
{
    poseOriginaux(u"share/varlotour"_qs);
    ASSERT_EQ(dossier(false).remplit(), QString());
    EXPECT_EQ(lit(u"chez moi/VarloTour/VarloBase.mdb"_qs), "neuve");
    EXPECT_EQ(lit(u"chez moi/VarloTour/drelin.WAV"_qs), "son 1");

    ecrit(u"chez moi/VarloTour/VarloBase.mdb"_qs, "concours");
    ecrit(u"chez moi/VarloTour/drelin.WAV"_qs, "ma sonnerie");
    ecrit(u"share/varlotour/VarloBase.mdb"_qs, "plus neuve");
    ecrit(u"share/varlotour/1.ico"_qs, "image 2");
    ecrit(u"share/varlotour/2.ico"_qs, "langue de plus");
    ASSERT_EQ(dossier(false).remplit(), QString());
    EXPECT_EQ(lit(u"chez moi/VarloTour/VarloBase.mdb"_qs), "concours");
    EXPECT_EQ(lit(u"chez moi/VarloTour/1.ico"_qs), "image 2");
    EXPECT_EQ(lit(u"chez moi/VarloTour/2.ico"_qs), "langue de plus");
    EXPECT_EQ(lit(u"chez moi/VarloTour/drelin.WAV"_qs), "ma sonnerie") << "no version has brought another";
    ecrit(u"share/varlotour/drelin.WAV"_qs, "son 2");
    ASSERT_EQ(dossier(false).remplit(), QString());
    EXPECT_EQ(lit(u"chez moi/VarloTour/drelin.WAV"_qs), "son 2");
}

TEST_F(DossierPersonnel, UneBaseEnAttenteNEstPasCachee)
{
    poseOriginaux(u"share/varlotour"_qs);
    for (const QString &trace : {nomBaseTemporaire, nomBase + u"-wal"_qs}) {
        const DossierTravail travail = dossier(false);
        ecrit(u"chez moi/VarloTour/"_qs + trace, "concours");
        EXPECT_EQ(travail.remplit(), QString());
        EXPECT_FALSE(travail.aUneBase()) << trace.toStdString();
        ASSERT_TRUE(QFile::remove(travail.chemin() + u'/' + trace));
    }
}

TEST_F(DossierPersonnel, UnDossierVerrouilleDitOuSontLesConcours)
{
    poseOriginaux(u"bin"_qs);
    ecrit(u"bin/VarloBase.mdb-wal"_qs, "suite");
    EXPECT_TRUE(dossier(false).remplit().contains(u"n'a pas été refermé"_qs));
    EXPECT_FALSE(dossier(false).aUneBase());
    ASSERT_TRUE(racine.remove(u"bin/VarloBase.mdb-wal"_qs));

    EXPECT_TRUE(dossier(false).remplit().contains(u"les concours sont dans"_qs));
    EXPECT_EQ(lit(u"chez moi/VarloTour/VarloBase.mdb"_qs), "neuve");
    EXPECT_EQ(dossier(false).remplit(), QString()) << "told once";

    QFile rejouee(racine.filePath(u"bin/VarloBase.mdb"_qs));
    ASSERT_TRUE(rejouee.open(QIODevice::ReadWrite));
    ASSERT_TRUE(rejouee.setFileTime(QDateTime::currentDateTime().addSecs(60), QFileDevice::FileModificationTime));
    rejouee.close();
    EXPECT_TRUE(dossier(false).remplit().contains(u"les concours sont dans"_qs)) << "the key was used meanwhile";
}

TEST_F(DossierPersonnel, UnEchecSeDit)
{
    poseOriginaux(u"share/varlotour"_qs);
    ecrit(u"chez moi"_qs, "un fichier");
    EXPECT_TRUE(dossier(false).remplit().contains(u"ne peut pas être créé"_qs));
    ASSERT_TRUE(racine.remove(u"chez moi"_qs));

    ASSERT_TRUE(racine.mkpath(u"chez moi/VarloTour/1.ico"_qs)) << "a folder stands where a picture should";
    EXPECT_TRUE(dossier(false).remplit().startsWith(u"1.ico ne peut pas être copié"_qs));
    EXPECT_TRUE(dossier(false).aUneBase()) << "the day goes on without that picture";
}

} // namespace
