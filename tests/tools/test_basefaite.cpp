// The base file as the program finds it: opened through the store, compared with what the program counts on.

#include "commun/fichiers_essai.h"
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
        m_neuve = octetsDe(fichier);
        m_base = m_moteur.Workspaces(0).OpenDatabase(fichier, false, false, u";PWD=qz7tkn42"_qs);
    }

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
    const QString fichier = m_dossier.filePath(u"VarloBase.mdb"_qs);
    const QByteArray ouverte = octetsDe(fichier);
    m_base.Close();
    EXPECT_EQ(octetsDe(fichier), m_neuve);
    EXPECT_EQ(ouverte, m_neuve);
    EXPECT_EQ(QDir(m_dossier.path()).entryList(QDir::Files), QStringList{u"VarloBase.mdb"_qs});
}
