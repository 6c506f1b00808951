#include "commun/base_essai.h"
#include "commun/fichiers_essai.h"
#include "commun/panne_ecriture.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QMap>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace store;

namespace {

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

/// All files of a folder, by their names.
QMap<QString, QByteArray> fichiers(const QString &dossier)
{
    QMap<QString, QByteArray> tous;
    for (const QString &nom : QDir(dossier).entryList(QDir::Files))
        tous[nom] = octetsDe(QDir(dossier).filePath(nom));
    return tous;
}

/// What a program that is killed leaves: the base as it was opened, and a journal with the entry \p equipe.
void tueApresUneSaisie(const BaseEssai &essai, int equipe)
{
    QMap<QString, QByteArray> image;
    {
        Database base = essai.ouvre();
        base.Execute(u"insert into scores (concours, tour, equipe_1) values (1, 1, %1)"_qs.arg(equipe));
        image = fichiers(essai.dossier());
    }
    for (auto fichier = image.cbegin(); fichier != image.cend(); ++fichier)
        ecritFichier(essai.dossier() + u'/' + fichier.key(), fichier.value());
    ASSERT_GT(image[u"VarloBase.mdb-wal"_qs].size(), 0);
}

} // namespace

TEST(Ouverture, TellsEachBadFileApartAndLeavesItUntouched)
{
    BaseEssai essai;
    const QByteArray bonne = octetsDe(essai.fichier());
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
        {bonne.left(700), BaseEssai::connexion(), Erreur::FichierEndommage},
        {QByteArray(4096, 'x'), BaseEssai::connexion(), Erreur::MotDePasse},
        {QByteArray("SQLite format 3\0 and so on", 26), BaseEssai::connexion(), Erreur::FichierEtranger},
        {QByteArray(), BaseEssai::connexion(), Erreur::FichierEtranger},
    };
    for (std::size_t i = 0; i < std::size(cas); ++i) {
        ecritFichier(essai.fichier(), cas[i].octets);
        EXPECT_EQ(numeroAOuverture(essai.fichier(), cas[i].connexion), cas[i].numero) << i;
        EXPECT_EQ(octetsDe(essai.fichier()), cas[i].octets) << i;
        EXPECT_EQ(QDir(essai.dossier()).entryList(QDir::Files).size(), 1) << i;
    }
    ecritFichier(essai.fichier(), bonne);
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
    const QByteArray avant = octetsDe(fichier);
    EXPECT_EQ(numeroAOuverture(fichier, BaseEssai::connexion()), Erreur::FichierEtranger);
    EXPECT_EQ(octetsDe(fichier), avant);
}

/// The journal of a killed program holds entries that were acknowledged: they outlive a refusal.
TEST(Ouverture, ARefusalLeavesBaseAndJournalsAsTheyAre)
{
    const BaseEssai autre;
    const QString copie = autre.dossier() + u"/copie.mdb"_qs;
    {
        Database base = autre.ouvre();
        base.Execute(u"insert into societes (societe) values ('AUTRE')");
        base.native().copieVers(copie);
    }
    const QString recettes = autre.dossier() + u"/recettes.mdb"_qs;
    {
        BaseNative etrangere(recettes, u"qz7tkn42"_qs, BaseNative::Mode::Creation);
        etrangere.executeScript(u"create table recettes (nom text)"_qs);
        etrangere.metEnService();
    }
    for (const bool journalVide : {false, true}) {
        const BaseEssai essai;
        tueApresUneSaisie(essai, 7);
        if (journalVide)
            ecritFichier(essai.fichier() + u"-wal"_qs, {});
        const QByteArray bonne = octetsDe(essai.fichier());
        struct Cas
        {
            QByteArray octets;
            int numero;
        };
        const Cas cas[] = {
            {QByteArray(bonne).replace(3000, 400, QByteArray(400, 'x')), Erreur::FichierEndommage},
            {bonne.left(bonne.size() / 2 + 100), Erreur::FichierEndommage},
            {octetsDe(recettes), Erreur::FichierEtranger},
            {octetsDe(copie), journalVide ? 0 : Erreur::JournalEtranger},
            {octetsDe(autre.fichier()), journalVide ? 0 : Erreur::JournalEtranger},
            {bonne, 0},
        };
        for (std::size_t i = 0; i < std::size(cas); ++i) {
            SCOPED_TRACE(i);
            ecritFichier(essai.fichier(), cas[i].octets);
            const auto avant = fichiers(essai.dossier());
            EXPECT_EQ(numeroAOuverture(essai.fichier(), BaseEssai::connexion()), cas[i].numero);
            if (cas[i].numero != 0) {
                EXPECT_EQ(fichiers(essai.dossier()), avant);
            }
        }
        const qint64 saisies =
            essai.ouvre().OpenRecordset(u"select count(*) from scores where equipe_1 = 7")[0].entier();
        EXPECT_EQ(saisies, journalVide ? 0 : 1);
    }
}

/// Its pages would fit the copy only in part.
TEST(Ouverture, AJournalIsNotTakenIntoACopyOfItsOwnBase)
{
    const BaseEssai essai;
    {
        Database base = essai.ouvre();
        base.native().copieVers(essai.dossier() + u"/copie.mdb"_qs);
    }
    tueApresUneSaisie(essai, 7);
    ecritFichier(essai.fichier(), octetsDe(essai.dossier() + u"/copie.mdb"_qs));
    const auto avant = fichiers(essai.dossier());
    EXPECT_EQ(numeroAOuverture(essai.fichier(), BaseEssai::connexion()), Erreur::JournalEtranger);
    EXPECT_EQ(fichiers(essai.dossier()), avant);
}

TEST(Ouverture, RefusesWhatMayNotBeWrittenOrReadAtAll)
{
    BaseEssai essai;
    const QByteArray avant = octetsDe(essai.fichier());
    chmod(essai.dossier().toUtf8().constData(), 0555);
    for (const mode_t droits : {0444, 0}) {
        chmod(essai.fichier().toUtf8().constData(), droits);
        const pid_t enfant = fork();
        if (enfant == 0) {
            // The administrator may write anywhere: an ordinary user tries.
            if (geteuid() == 0 && setuid(65534) != 0)
                _exit(100);
            _exit(-numeroAOuverture(essai.fichier(), BaseEssai::connexion()));
        }
        int etat = 0;
        waitpid(enfant, &etat, 0);
        EXPECT_EQ(WEXITSTATUS(etat), -Erreur::DossierProtege) << droits;
    }
    chmod(essai.dossier().toUtf8().constData(), 0755);
    chmod(essai.fichier().toUtf8().constData(), 0644);
    EXPECT_EQ(octetsDe(essai.fichier()), avant);
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
    EXPECT_FALSE(octetsDe(essai.fichier()).contains("DORMEUSE"));
    EXPECT_EQ(QDir(essai.dossier()).entryList(QDir::Files), QStringList{u"VarloBase.mdb"_qs});
    Database base = essai.ouvre();
    EXPECT_EQ(base.OpenRecordset(u"select * from societes")[u"codesoc"].entier(), 3);
}

/// Whoever copies the base file alone during the day gets what had been typed by then.
TEST(Ouverture, TheFileItselfFollowsWhatIsTyped)
{
    constexpr int parties = 4000;
    const BaseEssai essai;
    Database base = essai.ouvre();
    base.native().executeScript(u"pragma synchronous = off"_qs); // the disk plays no part here
    base.EcritEnGroupe([&] {
        for (int i = 1; i <= parties; ++i)
            base.Execute(
                u"insert into scores (concours, tableau, tour, equipe_1, equipe_2) values (1, 1, 1, %1, 0)"_qs.arg(i));
    });
    qint64 journal = 0;
    Recordset rencontres = base.OpenRecordset(u"scores", dbOpenTable);
    rencontres.Index(u"Equipes");
    Recordset voisin = base.OpenRecordset(u"scores", dbOpenTable);
    for (int i = 1; i <= parties; ++i) {
        voisin.MoveFirst();
        rencontres.Seek(u"=", {1, 1, 1, i, 0});
        rencontres.Edit();
        rencontres[u"score_1"] = 13;
        rencontres.Update();
        journal = std::max(journal, QFileInfo(essai.fichier() + u"-wal"_qs).size());
    }
    EXPECT_LT(journal, 1500 * 1024);
    voisin.MoveNext();
    EXPECT_EQ(voisin[u"equipe_1"].entier(), 2) << "a walk goes on behind a write";
    base.native().consolide();
    EXPECT_FALSE(base.native().journalEnAttente());
    const BaseEssai copie;
    ecritFichier(copie.fichier(), octetsDe(essai.fichier()));
    EXPECT_EQ(copie.ouvre().OpenRecordset(u"select count(*) from scores where score_1 = 13")[0].entier(), parties);
}

TEST(Ouverture, AWriteGroupCutShortIsUndoneWhole)
{
    BaseEssai essai;
    {
        Database base = essai.ouvre();
        const auto ajoute = [&](const QString &club) {
            base.Execute(u"insert into societes (societe) values ('%1')"_qs.arg(club));
        };
        const auto echoue = [&] { base.Execute(u"insert into nulle_part (societe) values ('X')"); };
        Recordset clubs = base.OpenRecordset(u"societes", dbOpenTable);
        clubs.Index(u"nomsoc");
        EXPECT_THROW(base.EcritEnGroupe([&] {
            ajoute(u"A"_qs);
            base.EcritEnGroupe([&] { ajoute(u"B"_qs); });
            clubs.Seek(u"=", {u"A"_qs});
            EXPECT_FALSE(clubs.NoMatch());
            echoue();
        }),
                     Erreur);
        EXPECT_TRUE(base.native().horsTransaction());
        // A recordset that was open across it sees the rows as they are.
        EXPECT_EQ(clubs.RecordCount(), 0);
        clubs.Seek(u"=", {u"A"_qs});
        EXPECT_TRUE(clubs.NoMatch());
        base.EcritEnGroupe([&] {
            ajoute(u"C"_qs);
            EXPECT_THROW(base.EcritEnGroupe([&] {
                ajoute(u"D"_qs);
                echoue();
            }),
                         Erreur);
            ajoute(u"E"_qs);
        });
    }
    Database base = essai.ouvre();
    Recordset clubs = base.OpenRecordset(u"select * from societes order by societe");
    EXPECT_EQ(clubs.RecordCount(), 2);
    EXPECT_EQ(clubs[u"societe"].texte(), u"C"_qs);
}

/// A disk that fails for good makes the engine undo and end the group by itself.
TEST(Ouverture, AGroupThatTheEngineEndedIsEndedNoSecondTime)
{
    BaseEssai essai;
    Database base = essai.ouvre();
    const auto ajoute = [&] { base.Execute(u"insert into societes (societe) values ('A')"); };
    int cause = 0;
    const auto groupe = [&](bool passeOutre) {
        const PanneEcriture panne(base.native(), 1, u"rollback"_qs);
        try {
            base.EcritEnGroupe([&] {
                ajoute();
                base.EcritEnGroupe([&] {
                    try {
                        ajoute();
                    } catch (const Erreur &erreur) {
                        cause = erreur.numero();
                        if (!passeOutre)
                            throw;
                    }
                });
            });
        } catch (const Erreur &erreur) {
            return erreur.numero();
        }
        return 0;
    };
    EXPECT_EQ(groupe(false), cause) << "and not that there is nothing to undo";
    EXPECT_EQ(groupe(true), 0) << "whoever passes the failure over is told of no other";
    EXPECT_EQ(base.native().valeurUnique(u"select count(*) from societes"_qs).entier(), 0);
    base.EcritEnGroupe(ajoute);
    EXPECT_EQ(base.native().valeurUnique(u"select count(*) from societes"_qs).entier(), 1);
}

TEST(Ouverture, CompactsIntoANewFileOfTheSameContent)
{
    BaseEssai essai;
    const QString cible = essai.dossier() + u"/myTmpDB.mdb"_qs;
    {
        Database base = essai.ouvre();
        for (int i = 0; i < 2000; ++i)
            base.native().execute(
                u"insert into equipes (concours, equipe, nom) values (%1, %2, 'un joueur')"_qs.arg(i < 10 ? 0 : 1)
                    .arg(i));
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
