// The base file as the program finds it: opened through the store, compared with what the program counts on.

#include "fabrique.h"
#include "store/database.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace store;

namespace {

class BaseFaite : public testing::Test
{
protected:
    void SetUp() override
    {
        const QString fichier = m_dossier.filePath(u"VarloBase.mdb"_qs);
        creeBase(QStringLiteral(DOSSIER_DONNEES), fichier);
        QFile lu(fichier);
        ASSERT_TRUE(lu.open(QIODevice::ReadOnly));
        m_neuve = lu.readAll();
        m_base = m_moteur.Workspaces(0).OpenDatabase(fichier, false, false, u";PWD=qz7tkn42"_qs);
    }

    qint64 nombre(const QString &instruction) { return m_base.native().valeurUnique(instruction).entierOu(-999); }

    QTemporaryDir m_dossier;
    QByteArray m_neuve;
    DBEngine m_moteur;
    Database m_base;
};

} // namespace

TEST_F(BaseFaite, DonneZeroSaufLaOuLeVideVeutDireQuelqueChose)
{
    const QString nuls = u" scores.score_1 scores.score_2 scores.repechage tbclass.pp tbclass.pc tbclass.ga "
                         "tbclass.repechage societes.codesoc clubs.codesoc "_qs;
    const Schema schema(m_base.native());
    for (const QString &nom : schema.tables()) {
        m_base.native().execute(u"delete from [%1]"_qs.arg(nom));
        m_base.native().execute(u"insert into [%1] default values"_qs.arg(nom));
        Instruction ligne(m_base.native(), u"select * from [%1]"_qs.arg(nom));
        ASSERT_TRUE(ligne.avance());
        for (int i = 0; i < ligne.colonnes(); ++i) {
            const QString champ = nom + u'.' + ligne.nomColonne(i);
            const bool numero = champ == u"concours.concours"_qs;
            const TypeChamp type = ligne.typeColonne(i);
            const bool vide = type == TypeChamp::Texte || type == TypeChamp::Date
                || nuls.contains(u' ' + champ + u' ', Qt::CaseInsensitive);
            EXPECT_EQ(ligne.estNulle(i), vide) << qPrintable(champ);
            EXPECT_EQ(ligne.nombre(i), numero ? 1 : 0) << qPrintable(champ);
        }
    }
}

TEST_F(BaseFaite, ResteTelleQuelleTantQueRienNEstSaisi)
{
    QFile fichier(m_dossier.filePath(u"VarloBase.mdb"_qs));
    ASSERT_TRUE(fichier.open(QIODevice::ReadOnly));
    const QByteArray ouverte = fichier.readAll();
    m_base.Close();
    fichier.seek(0);
    EXPECT_EQ(fichier.readAll(), m_neuve);
    EXPECT_EQ(ouverte, m_neuve);
    EXPECT_EQ(QDir(m_dossier.path()).entryList(QDir::Files), QStringList{u"VarloBase.mdb"_qs});
}

TEST_F(BaseFaite, ApporteUneLangueActiveLesTypesEtLeSeulClubPanache)
{
    EXPECT_EQ(nombre(u"select count(*) from traduc where actif"_qs), 1);
    EXPECT_EQ(nombre(u"select numero from traduc where actif"_qs), 1);
    EXPECT_EQ(nombre(u"select Nbjoueurs from typconcours where type = '1' and lang = 1"_qs), 2);
    EXPECT_EQ(nombre(u"select Nbjoueurs from typconcours where type = '2' and lang = 1"_qs), 3);
    EXPECT_EQ(nombre(u"select Nbjoueurs from typconcours where type = '3' and lang = 1"_qs), 1);
    EXPECT_EQ(nombre(u"select count(*) from typconcours"_qs), 3 * 6);
    EXPECT_EQ(nombre(u"select count(distinct lang) from catégories"_qs), 6);
    EXPECT_EQ(nombre(u"select codesoc from societes"_qs), 1);
    EXPECT_EQ(nombre(u"select count(*) from societes where societe = '*Panachée'"_qs), 1);
    for (const QString &vide : {u"concours"_qs, u"equipes"_qs, u"evolution"_qs, u"scores"_qs, u"joueurs"_qs})
        EXPECT_EQ(nombre(u"select count(*) from "_qs + vide), 0) << qPrintable(vide);
}
