// The base file as the program finds it: opened through the store, compared with what the program counts on.

#include "fabrique.h"
#include "store/database.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace store;

namespace {

const QHash<QString, QString> champsVoulus{
    {u"concours"_qs, u"concours:i date:d lieu:t organisateur:t type:t categorie:t tourpri:i nbtours_a:i nbtours_b:i "
                     "nbtours_c:i repeche:b pro:b abc:i basculebc:i"_qs},
    {u"equipes"_qs, u"concours:i equipe:i doublon:i nom:t prenom:t licence:t societe:t sexe:t ne:d tableau:t "
                    "engage:i"_qs},
    {u"evolution"_qs, u"concours:i equipe:i principal:i complement:i consolante:i"_qs},
    {u"scores"_qs, u"concours:i tableau:i tour:i rencontre:i Equipe_1:i Equipe_2:i score_1:i score_2:i score_reel:b "
                   "lancee:b repechage:i"_qs},
    {u"tbclass"_qs, u"Equipe:i gagnées:i perdues:i pp:i pc:i ga:i pt:i concours:i repechage:i alea:i"_qs},
    {u"tnequipes"_qs, u"concours:i tableau:i"_qs},
    {u"tirages_pro"_qs, u"concours:i tableau:i"_qs},
    {u"societes"_qs, u"societe:t codesoc:i"_qs},
    {u"typconcours"_qs, u"lang:i type:t Libelle:t Nbjoueurs:i"_qs},
    {u"catégories"_qs, u"lang:i Libelle:t"_qs},
    {u"traduc"_qs, u"numero:i traducteur:t icone:t designation:t actif:b"_qs},
    {u"langues"_qs, u"lang:i num:i mes:t"_qs},
    {u"joueurs"_qs, u"licence:t nom:t prenom:t"_qs},
    {u"clubs"_qs, u"codesoc:i societe:t"_qs},
};

struct IndexVoulu
{
    QStringView table, nom, champs;
    bool unique;
};

const IndexVoulu indexVoulus[] = {
    {u"concours", u"primarykey", u"concours", true},
    {u"equipes", u"PrimaryKey", u"concours equipe doublon", true},
    {u"equipes", u"engage", u"licence concours", false},
    {u"equipes", u"licence", u"licence", false},
    {u"evolution", u"PRIMARYKEY", u"concours equipe", true},
    {u"scores", u"tirage", u"concours tableau tour", false},
    {u"scores", u"equipes", u"concours tableau tour equipe_1 equipe_2", false},
    {u"scores", u"Equipekey2", u"concours tableau tour equipe_2", false},
    {u"tbclass", u"PrimaryKey", u"equipe", true},
    {u"tbclass", u"rankkey", u"pt- ga- equipe", false},
    {u"tbclass", u"aleakey", u"pt- alea- equipe", false},
    {u"societes", u"nomsoc", u"societe", true},
    {u"typconcours", u"primarykey", u"type lang", false},
    {u"traduc", u"alpha", u"designation", false},
    {u"traduc", u"num", u"numero", true},
};

/// Messages that a form or a routine of the program shows.
constexpr int messagesLus[] = {0,  1,  2,  4,  6,  7,  8,  9,  10, 11, 12, 13, 14, 15,  17,  18,  19,  20,
                               21, 22, 23, 24, 25, 26, 27, 29, 30, 31, 33, 34, 35, 36,  37,  42,  43,  44,
                               45, 49, 52, 53, 54, 55, 56, 63, 64, 73, 80, 81, 82, 83,  87,  88,  89,  90,
                               91, 92, 93, 94, 95, 96, 98, 100, 101, 103, 104, 105, 106, 108, 109, 114, 115, 116,
                               117, 126, 127};

char lettre(TypeChamp type)
{
    switch (type) {
    case TypeChamp::Entier:
        return 'i';
    case TypeChamp::Texte:
        return 't';
    case TypeChamp::Booleen:
        return 'b';
    case TypeChamp::Date:
        return 'd';
    default:
        return '?';
    }
}

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

    qint64 nombre(const QString &instruction)
    {
        return m_base.native().valeurUnique(instruction).entierOu(-999);
    }

    QString message(int num)
    {
        return m_base.native().valeurUnique(u"select mes from langues where lang = 1 and num = %1"_qs.arg(num)).texte();
    }

    QTemporaryDir m_dossier;
    QByteArray m_neuve;
    DBEngine m_moteur;
    Database m_base;
};

} // namespace

TEST_F(BaseFaite, PorteTousLesChampsSousLeurType)
{
    EXPECT_EQ(m_base.TableDefs().size(), champsVoulus.size());
    const Schema schema(m_base.native());
    for (auto voulu = champsVoulus.cbegin(); voulu != champsVoulus.cend(); ++voulu) {
        const Table *table = schema.table(voulu.key());
        ASSERT_NE(table, nullptr) << qPrintable(voulu.key());
        for (const QString &champ : voulu->split(u' ')) {
            const int place = table->champ(champ.section(u':', 0, 0));
            ASSERT_GE(place, 0) << qPrintable(voulu.key() + u'.' + champ);
            EXPECT_EQ(lettre(table->champs[size_t(place)].type), champ.back().toLatin1())
                << qPrintable(voulu.key() + u'.' + champ);
        }
    }
}

TEST_F(BaseFaite, PorteTousLesIndexDansLOrdreDeLeursChamps)
{
    const Schema schema(m_base.native());
    for (const IndexVoulu &voulu : indexVoulus) {
        const Table *table = schema.table(voulu.table);
        const IndexTable *index = table->indexNomme(voulu.nom);
        ASSERT_NE(index, nullptr) << qPrintable(u"%1.%2"_qs.arg(voulu.table, voulu.nom));
        QStringList champs;
        for (const CleIndex &cle : index->cles)
            champs.append(table->champs[size_t(cle.champ)].nom.toLower() + (cle.descendant ? u"-"_qs : QString()));
        EXPECT_EQ(champs.join(u' '), voulu.champs) << qPrintable(index->nom);
        const QString unique = u"select count(*) from sqlite_master where name = '%1.%2' and sql like '*unique*'"_qs;
        EXPECT_EQ(nombre(unique.arg(table->nom, index->nom)), voulu.unique ? 1 : 0) << qPrintable(index->nom);
    }
}

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

TEST_F(BaseFaite, NeRendPasLeNumeroDUnConcoursRetire)
{
    m_base.Execute(u"insert into concours (lieu) values ('Un')");
    m_base.Execute(u"insert into concours (lieu) values ('Deux')");
    m_base.Execute(u"delete * from concours where lieu = 'Deux'");
    m_base.Execute(u"insert into concours (lieu) values ('Trois')");
    EXPECT_EQ(nombre(u"select max(concours) from concours"_qs), 3);
}

TEST_F(BaseFaite, UneCopieGardeTousLesMembresDesEquipes)
{
    for (int equipe = 1; equipe <= 2; ++equipe) {
        for (int membre = 0; membre < 3; ++membre)
            m_base.Execute(u"insert into equipes (concours, equipe, doublon, nom) values (1, %1, %2, 'm%1%2')"_qs
                               .arg(equipe).arg(membre));
    }
    m_base.Execute(u"INSERT INTO equipes (equipe, nom, concours) select equipe, nom, 2 as e1 from equipes "
                   u"where concours= 1");
    EXPECT_EQ(nombre(u"select count(*) from equipes where concours = 2"_qs), 6);
    EXPECT_EQ(nombre(u"select count(*) from equipes where concours = 2 and doublon = 2"_qs), 2);
    EXPECT_EQ(nombre(u"select count(distinct nom) from equipes where concours = 2"_qs), 6);
}

TEST_F(BaseFaite, AUneLangueActiveEtTousSesMessages)
{
    EXPECT_EQ(nombre(u"select count(*) from traduc where actif"_qs), 1);
    EXPECT_EQ(nombre(u"select numero from traduc where actif"_qs), 1);
    for (const int num : messagesLus)
        EXPECT_FALSE(message(num).trimmed().isEmpty()) << num;
    EXPECT_EQ(nombre(u"select count(*) from langues where num not between 0 and 180 or mes is null"_qs), 0);
}

TEST_F(BaseFaite, EcritLesMessagesPourLaPlaceQuiLesAttend)
{
    EXPECT_LE(message(24).size(), 22);
    EXPECT_EQ(message(42), u"Exempt"_qs);
    EXPECT_EQ(message(80), u"*Panachée"_qs.toUpper());
    EXPECT_EQ(message(117), u"dd/mm/yyyy"_qs);
    EXPECT_EQ(message(109) + u" 1"_qs + message(108), u"manque 1 Résultat"_qs);
    EXPECT_TRUE(message(95).endsWith(u' '));
    EXPECT_TRUE(message(106).endsWith(u' '));
    EXPECT_TRUE(message(64).startsWith(u"Tour "_qs));
    const QString mots = u"%1 %2 %3"_qs.arg(message(114), message(15), message(115));
    EXPECT_EQ(mots, u"Attention, le tirage du tour 1 a déjà été fait"_qs);
}

TEST_F(BaseFaite, ApporteTypesCategoriesEtLeSeulClubPanache)
{
    EXPECT_EQ(nombre(u"select Nbjoueurs from typconcours where type = '1' and lang = 1"_qs), 2);
    EXPECT_EQ(nombre(u"select Nbjoueurs from typconcours where type = '2' and lang = 1"_qs), 3);
    EXPECT_EQ(nombre(u"select Nbjoueurs from typconcours where type = '3' and lang = 1"_qs), 1);
    EXPECT_EQ(nombre(u"select count(*) from typconcours"_qs), 3 * 6);
    EXPECT_EQ(nombre(u"select count(distinct lang) from catégories"_qs), 6);
    EXPECT_GT(nombre(u"select count(*) from catégories where lang = 1"_qs), 0);
    EXPECT_EQ(nombre(u"select count(*) from societes"_qs), 1);
    EXPECT_EQ(nombre(u"select codesoc from societes where societe = '*Panachée'"_qs), 1);
    for (const QString &vide : {u"concours"_qs, u"equipes"_qs, u"evolution"_qs, u"scores"_qs, u"joueurs"_qs})
        EXPECT_EQ(nombre(u"select count(*) from "_qs + vide), 0) << qPrintable(vide);
}
