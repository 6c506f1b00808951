// The build may bring a new base beside the program, but never at the cost of what an organiser has typed.

#include "commun/fichiers_essai.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class PoseBase : public testing::Test
{
protected:
    /// What lies beside the program after a build whose base holds \p neuve.
    QByteArray pose(const QByteArray &neuve)
    {
        ecritFichier(m_originale, neuve);
        const QStringList arguments{u"-DORIGINALE="_qs + m_originale, u"-DPOSEE="_qs + m_posee, u"-P"_qs,
                                    QStringLiteral(DOSSIER_DONNEES "/PoseBase.cmake")};
        EXPECT_EQ(QProcess::execute(QStringLiteral(PROGRAMME_CMAKE), arguments), 0);
        return octetsDe(m_posee);
    }

    QTemporaryDir m_base, m_bin;
    QString m_originale = m_base.filePath(u"VarloBase.mdb"_qs);
    QString m_posee = m_bin.filePath(u"VarloBase.mdb"_qs);
};

} // namespace

TEST_F(PoseBase, SuitLesDonneesTantQuePersonneNAEcrit)
{
    EXPECT_EQ(pose("un"), "un");
    EXPECT_EQ(pose("un"), "un");
    EXPECT_EQ(pose("deux"), "deux");
    EXPECT_EQ(pose("trois"), "trois");
    ASSERT_TRUE(QFile::remove(m_posee));
    ecritFichier(m_posee + u"-wal"_qs, "reste d'une autre base");
    EXPECT_EQ(pose("trois"), "trois");
    EXPECT_FALSE(QFile::exists(m_posee + u"-wal"_qs));
}

TEST_F(PoseBase, GardeUneBaseQuiAServi)
{
    pose("un");
    ecritFichier(m_posee, "un concours");
    EXPECT_EQ(pose("un"), "un concours");
    EXPECT_EQ(pose("deux"), "un concours");
    EXPECT_EQ(pose("trois"), "un concours");
}

TEST_F(PoseBase, GardeUneBaseOuverteEtCelleVenueDAilleurs)
{
    pose("un");
    ecritFichier(m_posee + u"-wal"_qs, "saisies");
    EXPECT_EQ(pose("deux"), "un");
    EXPECT_TRUE(QFile::exists(m_posee + u"-wal"_qs));

    ASSERT_TRUE(QFile::remove(m_originale + u".posee"_qs));
    ecritFichier(m_posee, "apportée");
    EXPECT_EQ(pose("deux"), "apportée");
}
