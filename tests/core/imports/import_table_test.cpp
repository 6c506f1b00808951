#include "imports/import_table.h"

#include "commun/affiche.h"
#include "commun/base_essai.h"
#include "commun/contenu.h"
#include "imports/texte_recu.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>

namespace {

class ImportTable : public testing::Test
{
protected:
    qint64 importe(const TableImportee &table, QByteArray octets)
    {
        QBuffer source(&octets);
        source.open(QIODevice::ReadOnly);
        return ImporteTable(base, table, source, [](qint64) {});
    }
    qint64 importeExemple(const TableImportee &table)
    {
        QFile fichier(QStringLiteral(VARLOTOUR_EXEMPLES "/") + table.fichier);
        EXPECT_TRUE(fichier.open(QIODevice::ReadOnly));
        return importe(table, fichier.readAll());
    }
    QStringList joueurs()
    {
        return Lignes(base.native(), u"select licence, nom, prenom, societe, sexe, ne from joueurs order by rowid"_qs);
    }

    BaseEssai essai;
    store::Database base = essai.ouvre();
};

} // namespace

TEST_F(ImportTable, TheExamplesFillEveryColumn)
{
    EXPECT_EQ(importeExemple(TableJoueurs()), 4);
    EXPECT_EQ(joueurs(),
              QStringList({u"08310001|FABRE|Rémi|Boule Ferrée Lorgues|M|1965-03-12"_qs,
                           u"08310002|ROUX|Zoé|Boule Ferrée Lorgues|F|1988-11-05"_qs,
                           u"08310011|MARTIN|Hélène|Les Platanes ; Carcès|F|1952-07-30"_qs,
                           u"08310021|D'HONORAT|Joëlle|Club \"Carreau\" Fuveau|F|Null"_qs}));
    EXPECT_EQ(importeExemple(TableClubs()), 3);
    EXPECT_EQ(Lignes(base.native(), u"select codesoc, societe from clubs order by rowid"_qs),
              QStringList({u"83001|Boule Ferrée Lorgues"_qs, u"83002|Les Platanes ; Carcès"_qs,
                           u"83003|Club \"Carreau\" Fuveau"_qs}));
}

TEST_F(ImportTable, ColumnsAreKnownByManyNamesInAnyOrder)
{
    // The club's name goes before a column "Club" that holds its code; the file is in Windows-1252.
    importe(TableJoueurs(),
            "CLUB\tDATE DE NAISSANCE\tPR\xC9NOM\tNom de famille\tCivilit\xE9\tNum\xE9ro de licence\t"
            "Nom du club\n"
            "83\t1965-03-12 00:00:00\tZo\xE9\tROUX\tMme\t0007\tD'Or\n"
            "83\t31/02/1960\tL\xE9o\tBLANC\tMonsieur\t\tD'Or\n");
    EXPECT_EQ(joueurs(), QStringList({u"0007|ROUX|Zoé|D'Or|F|1965-03-12"_qs, u"Null|BLANC|Léo|D'Or|M|Null"_qs}));
    importe(TableClubs(), "Nom,Code\nLa Boule,C12\n");
    EXPECT_EQ(Lignes(base.native(), u"select codesoc, societe from clubs"_qs), QStringList({u"C12|La Boule"_qs}));
}

TEST_F(ImportTable, AFileOfSomethingElseIsRefusedWhole)
{
    EXPECT_THROW(importe(TableJoueurs(), "ROUX;Zoé;0007\nBLANC;Léo;0008\n"), recu::ErreurLecture);
    EXPECT_THROW(importe(TableClubs(), "licence;prenom\n1;2\n"), recu::ErreurLecture);
    EXPECT_THROW(importe(TableJoueurs(), "nom;licence\nROUX;1\n\"BLANC;2\n"), recu::ErreurLecture);
    EXPECT_EQ(joueurs(), QStringList());
    base.Execute(u"insert into joueurs (nom) values ('encore')"); // and the base goes on being written
    EXPECT_EQ(joueurs().size(), 1);
}
