#include "commun/base_essai.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace store;

namespace {

QByteArray contenu(const QString &fichier)
{
    QFile lu(fichier);
    lu.open(QIODevice::ReadOnly);
    return lu.readAll();
}

void remplace(const QString &fichier, const QByteArray &octets)
{
    QFile ecrit(fichier);
    ecrit.open(QIODevice::WriteOnly | QIODevice::Truncate);
    ecrit.write(octets);
}

int numeroAOuverture(const QString &fichier, const QString &connexion)
{
    try {
        DBEngine().Workspaces(0).OpenDatabase(fichier, false, false, connexion);
    } catch (const Erreur &erreur) {
        EXPECT_GT(erreur.phrase().size(), 20);
        return erreur.numero();
    }
    return 0;
}

} // namespace

TEST(Ouverture, TellsEachBadFileApartAndLeavesItUntouched)
{
    BaseEssai essai;
    const QByteArray bonne = contenu(essai.fichier());
    QByteArray abimee = bonne;
    for (qsizetype i = bonne.size() / 2; i < bonne.size() / 2 + 40; ++i)
        abimee[i] = char(abimee[i] ^ 0x5a);

    struct Cas
    {
        QByteArray octets;
        QString connexion;
        int numero;
    };
    const Cas cas[] = {
        {bonne, u";PWD=autre"_qs, Erreur::MotDePasse},
        {bonne, u""_qs, Erreur::MotDePasse},
        {abimee, BaseEssai::connexion(), Erreur::FichierEndommage},
        {bonne.left(bonne.size() / 2 + 100), BaseEssai::connexion(), Erreur::FichierEndommage},
        {bonne.left(bonne.size() / 2048 * 1024), BaseEssai::connexion(), Erreur::FichierEndommage},
        {QByteArray(4096, 'x'), BaseEssai::connexion(), Erreur::MotDePasse},
        {QByteArray("SQLite format 3\0 and so on", 26), BaseEssai::connexion(), Erreur::FichierEtranger},
        {QByteArray(), BaseEssai::connexion(), Erreur::FichierEtranger},
    };
    for (std::size_t i = 0; i < std::size(cas); ++i) {
        remplace(essai.fichier(), cas[i].octets);
        EXPECT_EQ(numeroAOuverture(essai.fichier(), cas[i].connexion), cas[i].numero) << i;
        EXPECT_EQ(contenu(essai.fichier()), cas[i].octets) << i;
        EXPECT_EQ(QDir(essai.dossier()).entryList(QDir::Files).size(), 1) << i;
    }
    remplace(essai.fichier(), bonne);
    EXPECT_EQ(numeroAOuverture(essai.dossier() + u"/absente.mdb"_qs, BaseEssai::connexion()), Erreur::FichierAbsent);
    EXPECT_EQ(numeroAOuverture(essai.fichier(), u";pwd=qz7tkn42"_qs), 0);
}

TEST(Ouverture, RefusesAnEncryptedFileOfOtherTables)
{
    QTemporaryDir dossier;
    const QString fichier = dossier.filePath(u"VarloBase.mdb"_qs);
    {
        BaseNative autre(fichier, u"qz7tkn42"_qs, BaseNative::Mode::Creation);
        autre.executeScript(u"create table recettes (nom text)"_qs);
    }
    const QByteArray avant = contenu(fichier);
    EXPECT_EQ(numeroAOuverture(fichier, BaseEssai::connexion()), Erreur::FichierEtranger);
    EXPECT_EQ(contenu(fichier), avant);
}

TEST(Ouverture, RefusesAFolderThatCannotBeWritten)
{
    BaseEssai essai;
    const QByteArray avant = contenu(essai.fichier());
    chmod(essai.dossier().toUtf8().constData(), 0555);
    chmod(essai.fichier().toUtf8().constData(), 0444);
    const pid_t enfant = fork();
    if (enfant == 0) {
        // The administrator may write anywhere: an ordinary user tries.
        if (geteuid() == 0 && setuid(65534) != 0)
            _exit(100);
        _exit(-numeroAOuverture(essai.fichier(), BaseEssai::connexion()));
    }
    int etat = 0;
    waitpid(enfant, &etat, 0);
    EXPECT_EQ(WEXITSTATUS(etat), -Erreur::DossierProtege);
    EXPECT_EQ(contenu(essai.fichier()), avant);
    chmod(essai.dossier().toUtf8().constData(), 0755);
}

TEST(Ouverture, KeepsWhatWasWrittenAndNeverInClear)
{
    BaseEssai essai;
    {
        Database base = essai.ouvre();
        base.Execute(u"insert into societes (societe, codesoc) values ('BOULE DORMEUSE', 3)");
        base.Close();
        EXPECT_THROW(base.Execute(u"delete * from societes"), Erreur);
    }
    EXPECT_FALSE(contenu(essai.fichier()).contains("DORMEUSE"));
    EXPECT_EQ(QDir(essai.dossier()).entryList(QDir::Files), QStringList{u"VarloBase.mdb"_qs});
    Database base = essai.ouvre();
    EXPECT_EQ(base.OpenRecordset(u"select * from societes")[u"codesoc"].entier(), 3);
}

TEST(Ouverture, AWriteGroupCutShortKeepsWhatWasWritten)
{
    BaseEssai essai;
    {
        Database base = essai.ouvre();
        EXPECT_THROW(base.EcritEnGroupe([&] {
            base.Execute(u"insert into societes (societe) values ('A')");
            base.EcritEnGroupe([&] { base.Execute(u"insert into societes (societe) values ('B')"); });
            base.Execute(u"insert into nulle_part (societe) values ('C')");
        }),
                     Erreur);
        base.EcritEnGroupe([&] { base.Execute(u"insert into societes (societe) values ('D')"); });
    }
    EXPECT_EQ(essai.ouvre().OpenRecordset(u"select count(*) from societes")[0].entier(), 3);
}

TEST(Ouverture, CompactsIntoANewFileOfTheSameContent)
{
    BaseEssai essai;
    const QString cible = essai.dossier() + u"/myTmpDB.mdb"_qs;
    {
        Database base = essai.ouvre();
        for (int i = 0; i < 2000; ++i)
            base.native().execute(u"insert into equipes (concours, equipe, nom) values (%1, %2, 'un joueur')"_qs.arg(
                i < 10 ? 0 : 1).arg(i));
        base.Execute(u"insert into concours (lieu) values ('ici')");
        base.Execute(u"delete * from concours");
        base.Execute(u"delete * from equipes where concours<>0");
    }
    DBEngine::CompactDatabase(essai.fichier(), cible, u";pwd=qz7tkn42"_qs);
    EXPECT_LT(QFileInfo(cible).size(), QFileInfo(essai.fichier()).size());
    EXPECT_THROW(DBEngine::CompactDatabase(essai.fichier(), cible, u";pwd=qz7tkn42"_qs), Erreur);

    Database base = DBEngine().Workspaces(0).OpenDatabase(cible, false, false, BaseEssai::connexion());
    EXPECT_EQ(base.OpenRecordset(u"select count(*) from equipes")[0].entier(), 10);
    Recordset concours = base.OpenRecordset(u"concours", dbOpenTable);
    concours.AddNew();
    EXPECT_EQ(concours[u"concours"].entier(), 2) << "a number is never given twice, not even after a purge";
    EXPECT_EQ(base.native().valeurUnique(u"pragma user_version"_qs).entier(), 1);
}
